// The true wind from the apparent one and back.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <string>

#include "helm/Helm.h"
#include "instruments/MathLib.h"
#include "pilot/WireBoat.h"
#include "platform/NumberText.h"
#include "platform/Random.h"
#include "tests/support/FixedRandom.h"
#include "tests/support/HandClock.h"
#include "tests/support/HandTimer.h"
#include "tests/support/ScriptedPort.h"
#include "tests/support/Sentences.h"

namespace veerwatch {
namespace {

constexpr int kWinds = 20000;
constexpr double kRadian = std::numbers::pi / 180.0;

struct Wind {
  float Speed = 0.0F;
  float Angle = 0.0F;
};

/// How far apart the tips of two winds are [kn].
double Apart(const Wind& a, const Wind& b) {
  const auto ahead = [](const Wind& wind) {
    return static_cast<double>(wind.Speed) * std::cos(static_cast<double>(wind.Angle) * kRadian);
  };
  const auto right = [](const Wind& wind) {
    return static_cast<double>(wind.Speed) * std::sin(static_cast<double>(wind.Angle) * kRadian);
  };
  return std::hypot(ahead(a) - ahead(b), right(a) - right(b));
}

class AnyWind : public testing::Test {
 protected:
  float Between(double least, double most) {
    return static_cast<float>(least + (most - least) * m_random.Next());
  }
  Wind Any() { return {Between(0.0, 60.0), Between(-180.0, 180.0)}; }

 private:
  SeededRandom m_random{77};
};

/// A single holds 24 bits; a few operations on 60 and 30 knots lose a few of them.
constexpr double kRounding = 6e-5;

TEST_F(AnyWind, TrueFromApparentAndBackIsTheSame) {
  for (int i = 0; i < kWinds; ++i) {
    const Wind wind = Any();
    const float boat = Between(0.0, 30.0);
    Wind other;
    Wind back;
    WindTrueFromApparent(wind.Speed, wind.Angle, boat, other.Speed, other.Angle);
    WindApparentFromTrue(other.Speed, other.Angle, boat, back.Speed, back.Angle);
    ASSERT_LT(Apart(wind, back), kRounding) << wind.Speed << " at " << wind.Angle << " boat " << boat;
    WindApparentFromTrue(wind.Speed, wind.Angle, boat, other.Speed, other.Angle);
    WindTrueFromApparent(other.Speed, other.Angle, boat, back.Speed, back.Angle);
    ASSERT_LT(Apart(wind, back), kRounding) << wind.Speed << " at " << wind.Angle << " boat " << boat;
    ASSERT_GT(Apart(wind, other) + 1e-4, static_cast<double>(boat))
        << "the way of the boat lies between them";
  }
}

/// A helm that is given an apparent wind and a speed as sentences.
class AnyWindOnTheWire : public AnyWind {
 protected:
  AnyWindOnTheWire() {
    m_settings.m_fNmeaTrueWindAverage = 0.0F;
    m_settings.m_iNmeaBoatSpeed = 0;
    m_helm.Modes().TrackSetSetup();
  }

  void Receive(const std::string& body) { m_port.Receive(WithChecksum(body) + "\r\n"); }
  void ReceiveSpeed(float speed) {
    Receive(std::string("$IIVHW,,T,100.0,M,") + ShortestText(speed) + ",N,,K");
  }
  void ReceiveApparent(const Wind& wind) {
    Receive(std::string("$IIMWV,") + ShortestText(wind.Angle) + ",R," + ShortestText(wind.Speed) + ",N,A");
  }

  Settings m_settings;
  ScriptedPort m_port;
  ScriptedPort m_pilotPort;
  HandTimer m_timer;
  HandClock m_clock;
  FixedRandom m_random;
  Helm m_helm{m_settings, m_port, m_pilotPort, m_timer, m_clock, m_random};
};

TEST_F(AnyWindOnTheWire, TheRecordFindsTheTrueWindOfAnApparentOne) {
  for (int i = 0; i < 2000; ++i) {
    const Wind wind = Any();
    const float boat = Between(0.0, 30.0);
    // The apparent wind by the sum of vectors, in the polar form of a complex number.
    const double ahead =
        static_cast<double>(wind.Speed) * std::cos(static_cast<double>(wind.Angle) * kRadian);
    const double right =
        static_cast<double>(wind.Speed) * std::sin(static_cast<double>(wind.Angle) * kRadian);
    const double seen = ahead + static_cast<double>(boat);
    ReceiveSpeed(boat);
    ReceiveApparent(
        {static_cast<float>(std::hypot(seen, right)), static_cast<float>(std::atan2(right, seen) / kRadian)});
    const InstrumentData& data = m_helm.Data();
    ASSERT_TRUE(data.WindTrueValid);
    ASSERT_LT(Apart(wind, {data.WindSpeedTrue, data.WindAngleTrue}), kRounding)
        << wind.Speed << " at " << wind.Angle << " boat " << boat;
  }
}

TEST_F(AnyWindOnTheWire, TheRecordAgreesWithTheBoatThatMakesNoLeeway) {
  SeededRandom random(5);
  for (int i = 0; i < 200; ++i) {
    BoatSettings settings;
    settings.Leeway = 0.0;
    settings.WindFrom = 360.0 * random.Next();
    settings.WindSpeed = 4.0 + 30.0 * random.Next();
    WireBoat boat(settings, 360.0 * random.Next(), 1);
    m_port.Receive(boat.Step(1.0));
    const InstrumentData& data = m_helm.Data();
    // The sentences have one decimal in angle and speed of the wind, two in that of the boat.
    const double decimals = 0.05 + 0.005 + boat.State().ApparentSpeed * 0.05 * kRadian + kRounding;
    const Wind real{static_cast<float>(boat.State().TrueSpeed), static_cast<float>(boat.State().TrueAngle)};
    ASSERT_LT(Apart(real, {data.WindSpeedTrue, data.WindAngleTrue}), decimals) << i;
  }
}

}  // namespace
}  // namespace veerwatch
