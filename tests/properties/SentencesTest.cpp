// What the instruments encode is what the decoders give, and what the program encodes is what a pilot reads.
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <string_view>

#include "helm/Helm.h"
#include "nmea/Encode.h"
#include "nmea/Hdg.h"
#include "nmea/Hvm.h"
#include "nmea/Mwv.h"
#include "nmea/Rmb.h"
#include "nmea/Rmc.h"
#include "nmea/Sentence.h"
#include "nmea/SentenceTable.h"
#include "nmea/Vhw.h"
#include "pilot/PilotForm.h"
#include "pilot/PilotSentences.h"
#include "pilot/WireBoat.h"
#include "platform/Random.h"
#include "tests/support/FixedRandom.h"
#include "tests/support/HandClock.h"
#include "tests/support/HandTimer.h"
#include "tests/support/ScriptedPort.h"

namespace veerwatch {
namespace {

constexpr int kRounds = 3000;

/// Random values with the decimals that their sentence has.
class AnySentence : public testing::Test {
 protected:
  int Whole(int least, int most) {
    return least + static_cast<int>(m_random.Next() * static_cast<double>(most - least + 1));
  }
  /// [deg, [0, 360)]
  double Angle() { return Whole(0, 3599) / 10.0; }
  double Tenths(int most) { return Whole(0, most) / 10.0; }
  double Hundredths(int most) { return Whole(0, most) / 100.0; }
  double Variation() { return Whole(-1800, 1800) / 10.0; }
  EarthPlace Place() { return {Whole(-90000, 90000) / 1000.0, Whole(-180000, 180000) / 1000.0}; }
  UtcMoment Moment() {
    return {Whole(0, 23), Whole(0, 59), Whole(0, 59), Whole(1, 28), Whole(1, 12), Whole(0, 99)};
  }

  /// The line is good and of `type`; its decoded sentence goes to `see`.
  template <class Decoded, class See>
  void Decode(const std::string& line, std::string_view type, Decoded (*decode)(const Fields&), See see) {
    SCOPED_TRACE(line);
    ASSERT_EQ(CheckFrame(line), Frame::Good);
    ASSERT_NE(FindSentence(line), nullptr);
    ASSERT_EQ(FindSentence(line)->Name, type);
    const Decoded sentence = decode(Fields(line));
    EXPECT_TRUE(sentence.Complete());
    see(sentence);
  }

  static void ExpectSame(double sent, float read) { EXPECT_FLOAT_EQ(static_cast<float>(sent), read); }
  static void ExpectVariation(double sent, const VariationValue& read) {
    ExpectSame(sent, read.Degrees);
    EXPECT_EQ(read.Direction, sent < 0.0 ? 'W' : 'E');
  }

 private:
  SeededRandom m_random{31};
};

TEST_F(AnySentence, HdgIsReadAsItWasSent) {
  for (int i = 0; i < kRounds && !HasFailure(); ++i) {
    const double heading = Angle();
    const double variation = Variation();
    const auto see = [&](const Hdg& hdg) {
      ExpectSame(heading, hdg.Heading);
      ExpectVariation(variation, hdg.Variation);
    };
    Decode(EncodeHdg(heading, variation), "HDG", DecodeHdg, see);
  }
}

TEST_F(AnySentence, HvmIsReadAsItWasSent) {
  for (int i = 0; i < kRounds && !HasFailure(); ++i) {
    const double variation = Variation();
    const auto see = [&](const Hvm& hvm) { ExpectVariation(variation, hvm.Variation); };
    Decode(EncodeHvm(variation), "HVM", DecodeHvm, see);
  }
}

TEST_F(AnySentence, MwvIsReadAsItWasSent) {
  for (int i = 0; i < kRounds && !HasFailure(); ++i) {
    const double angle = Angle();
    const double speed = Tenths(9999);
    const char reference = i % 2 == 0 ? 'R' : 'T';
    const auto see = [&](const Mwv& mwv) {
      ExpectSame(angle, mwv.WindAngle);
      ExpectSame(speed, mwv.WindSpeed);
      EXPECT_EQ(mwv.Reference, reference);
      EXPECT_EQ(mwv.SpeedUnit, "Kts");
    };
    Decode(EncodeMwv(angle, reference, speed), "MWV", DecodeMwv, see);
  }
}

TEST_F(AnySentence, RmbIsReadAsItWasSent) {
  for (int i = 0; i < kRounds && !HasFailure(); ++i) {
    const double range = Hundredths(999999);
    const double bearing = Angle();
    const auto see = [&](const Rmb& rmb) {
      ExpectSame(range, rmb.Range);
      ExpectSame(bearing, rmb.Bearing);
    };
    Decode(EncodeRmb(Place(), range, bearing, Tenths(200) - 10.0), "RMB", DecodeRmb, see);
  }
}

TEST_F(AnySentence, RmcIsReadAsItWasSent) {
  for (int i = 0; i < kRounds && !HasFailure(); ++i) {
    const double speed = Hundredths(99999);
    const double course = Angle();
    const double variation = Variation();
    const auto see = [&](const Rmc& rmc) {
      ExpectSame(speed, rmc.Speed);
      ExpectSame(course, rmc.Course);
      ExpectVariation(variation, rmc.Variation);
    };
    Decode(EncodeRmc(Moment(), Place(), speed, course, variation), "RMC", DecodeRmc, see);
  }
}

TEST_F(AnySentence, VhwAndVtgAreReadAsTheyWereSent) {
  for (int i = 0; i < kRounds && !HasFailure(); ++i) {
    const double angleTrue = Angle();
    const double angle = Angle();
    const double speed = Hundredths(99999);
    const auto see = [&](const Vhw& motion) {
      ExpectSame(angle, motion.Heading);
      ExpectSame(speed, motion.Speed);
    };
    Decode(EncodeVhw(angleTrue, angle, speed), "VHW", DecodeVhw, see);
    Decode(EncodeVtg(angleTrue, angle, speed), "VTG", DecodeVtg, see);
  }
}

TEST_F(AnySentence, EveryTypeReachesTheRecord) {
  Settings settings;
  settings.m_fNmeaTrueWindAverage = 0.0F;
  settings.m_iNmeaTrueWind = 0;
  ScriptedPort port;
  ScriptedPort pilotPort;
  HandTimer timer;
  HandClock clock;
  FixedRandom random;
  Helm helm(settings, port, pilotPort, timer, clock, random);
  helm.Modes().TrackSetSetup();
  const InstrumentData& data = helm.Data();
  const auto receive = [&](const std::string& line) { port.Receive(line + "\r\n"); };
  const auto expectDirection = [](double sent, float read) {
    EXPECT_LT(std::fabs(std::remainder(sent - static_cast<double>(read), 360.0)), 1e-4);
    EXPECT_GE(read, 0.0F);
    EXPECT_LT(read, 360.0F);
  };
  for (int i = 0; i < kRounds && !HasFailure(); ++i) {
    SCOPED_TRACE(i);
    const double angle = 2.0 * Whole(0, 1799) / 10.0;
    const double speed = Hundredths(9999);
    const double variation = Variation();
    settings.m_iNmeaHeading = settings.m_iNmeaBoatSpeed = 0;
    receive(EncodeHdg(angle, variation));
    expectDirection(angle, data.Heading);
    ExpectSame(variation, data.Variation);
    receive(EncodeVhw(Angle(), angle / 2.0, speed));
    expectDirection(angle / 2.0, data.Heading);
    ExpectSame(speed, data.BoatSpeed);

    settings.m_iNmeaHeading = settings.m_iNmeaBoatSpeed = 1;
    receive(EncodeVtg(Angle(), angle, speed));
    expectDirection(angle, data.Heading);
    receive(EncodeHvm(-variation));
    ExpectSame(-variation, data.Variation);
    receive(EncodeRmb(Place(), speed, angle, speed));
    ExpectSame(speed, data.WaypointRange);
    EXPECT_NEAR(data.WaypointBearing, angle + variation, 1e-3);
    receive(EncodeRmc(Moment(), Place(), speed / 2.0, angle, variation));
    expectDirection(angle - variation, data.Heading);
    EXPECT_NEAR(data.BoatSpeed, speed / 2.0, 0.0051);

    const double wind = Tenths(999);
    receive(EncodeMwv(angle, 'R', wind));
    ExpectSame(wind, data.WindSpeedApparent);
    EXPECT_NEAR(std::remainder(angle - static_cast<double>(data.WindAngleApparent), 360.0), 0.0, 1e-4);
    receive(EncodeMwv(-angle, 'T', wind));
    ExpectSame(wind, data.WindSpeedTrue);
    EXPECT_NEAR(std::remainder(angle + static_cast<double>(data.WindAngleTrue), 360.0), 0.0, 1e-4);
  }
}

TEST_F(AnySentence, TheAutopilotSentenceIsReadAsItWasSent) {
  WireBoat boat(BoatSettings{}, 0.0, 1);
  PilotSentences sentences;
  const Settings settings;
  const PilotForm form = PilotFormOf(settings);
  for (int tenths = 0; tenths < 3600; ++tenths) {
    // A little beside the decimal that it is rounded to.
    const double bearing = tenths / 10.0 + (tenths % 2 == 0 ? 0.04 : -0.04);
    sentences.Build(form, static_cast<float>(bearing));
    const std::string sentence(sentences.Bundle().Sentence(0));
    ASSERT_EQ(CheckFrame(sentence), Frame::Good);
    boat.Steer(sentence + "\r\n");
    ASSERT_EQ(boat.Reader().GoodSentences(), tenths + 1) << sentence;
    ASSERT_NEAR(boat.Pilot().Bearing(), tenths / 10.0, 1e-9) << sentence;
  }
  EXPECT_EQ(boat.Reader().BadSentences(), 0);
}

TEST_F(AnySentence, OneCharacterChangedIsFoundByTheChecksum) {
  for (int i = 0; i < kRounds && !HasFailure(); ++i) {
    std::string line = EncodeRmc(Moment(), Place(), Hundredths(9999), Angle(), Variation());
    const auto at = static_cast<std::size_t>(Whole(1, static_cast<int>(line.size()) - 4));
    const char was = line[at];
    line[at] = static_cast<char>(Whole(' ', '~'));
    if (line[at] != was) {
      EXPECT_EQ(CheckFrame(line), Frame::WrongChecksum) << line;
    }
  }
}

}  // namespace
}  // namespace veerwatch
