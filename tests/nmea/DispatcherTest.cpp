#include "nmea/Dispatcher.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "tests/support/Origins.h"
#include "tests/support/RecordChanges.h"
#include "tests/support/RecordFault.h"
#include "tests/support/Sentences.h"

namespace veerwatch {
namespace {

class DispatcherTest : public testing::Test {
 protected:
  DispatcherTest() { m_settings.m_fNmeaTrueWindAverage = 0.0F; }

  Dispatcher::Outcome Dispatch(std::string_view body) {
    return m_dispatcher.Dispatch(WithChecksum(body), 5, kOrigin.At);
  }
  bool Used(std::string_view body) { return Dispatch(body).Used; }
  const InstrumentData& Data() const { return m_record.Data(); }

  Settings m_settings;
  InstrumentRecord m_record{m_settings};
  Dispatcher m_dispatcher{m_settings, m_record};
};

constexpr std::string_view kHdg = "$IIHDG,123.4,,,5.0,W";
constexpr std::string_view kHvm = "$IIHVM,7.5,E";
constexpr std::string_view kMwvR = "$IIMWV,045,R,10.5,N,A";
constexpr std::string_view kMwvT = "$IIMWV,060,T,9.5,N,A";
constexpr std::string_view kRmb = "$GPRMB,A,0.66,L,003,004,4917.24,N,12309.57,W,001.3,052.5,000.5,V";
constexpr std::string_view kRmc = "$GPRMC,123519,A,4807.0,N,01131.0,E,5.2,230.0,230394,3.0,W";
constexpr std::string_view kRmcBare = "$GPRMC,123519,A,4807.0,N,01131.0,E,5.2,230.0,230394,,";
constexpr std::string_view kVhw = "$IIVHW,128.4,T,123.5,M,6.5,N,12.0,K";
constexpr std::string_view kVtg = "$GPVTG,054.7,T,034.4,M,005.5,N,010.2,K";

// --- HDG
// ---------------------------------------------------------------------------------------------------------

TEST_F(DispatcherTest, HdgSetsHeadingAndVariationWithTheCompassAsSource) {
  m_settings.m_iNmeaHeading = 0;
  const Dispatcher::Outcome outcome = Dispatch(kHdg);
  EXPECT_TRUE(outcome.Used);
  EXPECT_FALSE(outcome.Incomplete);
  EXPECT_FALSE(outcome.WindSentence);
  EXPECT_EQ(Data().Heading, 123.4F);
  EXPECT_TRUE(Data().VariationValid);
  EXPECT_EQ(Data().Variation, -5.0F);
}

TEST_F(DispatcherTest, HdgSetsOnlyTheVariationWithTheCourseAsSource) {
  m_settings.m_iNmeaHeading = 1;
  EXPECT_TRUE(Used(kHdg));
  EXPECT_FALSE(Data().HeadingValid);
  EXPECT_EQ(Data().Variation, -5.0F);
}

TEST_F(DispatcherTest, HdgWithoutVariationSetsTheHeadingAndIsIncomplete) {
  m_settings.m_iNmeaHeading = 0;
  m_record.VariationUpdate(4.0F, kOrigin);
  const Dispatcher::Outcome outcome = Dispatch("$IIHDG,123.4,,,,");
  EXPECT_TRUE(outcome.Used);
  EXPECT_TRUE(outcome.Incomplete);
  EXPECT_EQ(Data().Heading, 123.4F);
  EXPECT_EQ(Data().Variation, 4.0F);
}

TEST_F(DispatcherTest, HdgThatGivesNothingIsUnused) {
  m_settings.m_iNmeaHeading = 1;
  const Dispatcher::Outcome outcome = Dispatch("$IIHDG,123.4,,,,");
  EXPECT_FALSE(outcome.Used);
  EXPECT_TRUE(outcome.Incomplete);
}

// --- HVM
// ---------------------------------------------------------------------------------------------------------

TEST_F(DispatcherTest, HvmSetsTheVariationAndThatIsUse) {
  EXPECT_TRUE(Used(kHvm));
  EXPECT_EQ(Data().Variation, 7.5F);
  EXPECT_TRUE(Used("$IIHVM,7.5,W"));
  EXPECT_EQ(Data().Variation, -7.5F);
}

TEST_F(DispatcherTest, HvmWithoutDirectionIsIncompleteAndUnused) {
  const Dispatcher::Outcome outcome = Dispatch("$IIHVM,7.5,");
  EXPECT_FALSE(outcome.Used);
  EXPECT_TRUE(outcome.Incomplete);
  EXPECT_FALSE(Data().VariationValid);
}

// --- MWV
// ---------------------------------------------------------------------------------------------------------

TEST_F(DispatcherTest, MwvRelativeSetsTheApparentWind) {
  const Dispatcher::Outcome outcome = Dispatch(kMwvR);
  EXPECT_TRUE(outcome.Used);
  EXPECT_TRUE(outcome.WindSentence);
  EXPECT_FALSE(outcome.Incomplete);
  EXPECT_EQ(Data().WindAngleApparent, 45.0F);
  EXPECT_EQ(Data().WindSpeedApparent, 10.5F);
}

TEST_F(DispatcherTest, MwvRelativeComputesTheTrueWindFromTheBoatSpeed) {
  m_settings.m_iNmeaTrueWind = 1;
  m_record.BoatSpeedUpdate(6.0F, kOrigin);
  Dispatch("$IIMWV,000,R,5,N,A");
  EXPECT_TRUE(Data().WindTrueValid);
  EXPECT_EQ(Data().WindSpeedTrue, 1.0F);
  EXPECT_EQ(Data().WindAngleTrue, 180.0F);
}

TEST_F(DispatcherTest, MwvTrueSetsTheTrueWindWithTheSensorAsSource) {
  m_settings.m_iNmeaTrueWind = 0;
  EXPECT_TRUE(Used(kMwvT));
  EXPECT_EQ(Data().WindAngleTrue, 60.0F);
  EXPECT_EQ(Data().WindSpeedTrue, 9.5F);
}

TEST_F(DispatcherTest, MwvTrueIsUnusedWhenTheTrueWindIsComputed) {
  m_settings.m_iNmeaTrueWind = 1;
  const Dispatcher::Outcome outcome = Dispatch(kMwvT);
  EXPECT_FALSE(outcome.Used);
  EXPECT_FALSE(outcome.Incomplete);
  EXPECT_TRUE(outcome.WindSentence);
  EXPECT_FALSE(Data().WindTrueValid);
}

TEST_F(DispatcherTest, MwvInAnotherUnitIsNeitherUsedNorAnError) {
  for (const std::string_view body :
       {"$IIMWV,045,R,10.5,K,A", "$IIMWV,045,R,10.5,M,A", "$IIMWV,045,R,10.5,Kts,A"}) {
    const Dispatcher::Outcome outcome = Dispatch(body);
    EXPECT_FALSE(outcome.Incomplete) << body;
    EXPECT_TRUE(outcome.WindSentence) << body;
  }
  EXPECT_FALSE(Used("$IIMWV,045,R,10.5,K,A"));
  EXPECT_FALSE(Used("$IIMWV,045,R,10.5,M,A"));
}

TEST_F(DispatcherTest, MwvThatIsIncompleteUpdatesNothing) {
  for (const std::string_view body : {"$IIMWV,045,X,10.5,N,A", "$IIMWV,045,R,,N,A", "$IIMWV,,R,10.5,N,A",
                                      "$IIMWV,045,R,1001,N,A", "$IIMWV"}) {
    const Dispatcher::Outcome outcome = Dispatch(body);
    EXPECT_FALSE(outcome.Used) << body;
    EXPECT_TRUE(outcome.Incomplete) << body;
    EXPECT_TRUE(outcome.WindSentence) << body;
  }
  EXPECT_FALSE(Data().WindApparentValid);
}

// --- VHW and VTG
// -------------------------------------------------------------------------------------------------

TEST_F(DispatcherTest, VhwAndVtgFeedWhatTheSourcesSay) {
  for (const std::int16_t heading : {std::int16_t{0}, std::int16_t{1}}) {
    for (const std::int16_t speed : {std::int16_t{0}, std::int16_t{1}}) {
      m_settings.m_iNmeaHeading = heading;
      m_settings.m_iNmeaBoatSpeed = speed;

      m_record.Restart();
      EXPECT_EQ(Used(kVhw), heading == 0 || speed == 0);
      EXPECT_EQ(Data().HeadingValid, heading == 0);
      EXPECT_EQ(Data().BoatSpeedValid, speed == 0);
      if (heading == 0) {
        EXPECT_EQ(Data().Heading, 123.5F);
      }
      if (speed == 0) {
        EXPECT_EQ(Data().BoatSpeed, 6.5F);
      }

      m_record.Restart();
      EXPECT_EQ(Used(kVtg), heading == 1 || speed == 1);
      EXPECT_EQ(Data().HeadingValid, heading == 1);
      EXPECT_EQ(Data().BoatSpeedValid, speed == 1);
      if (heading == 1) {
        EXPECT_EQ(Data().Heading, 34.4F);
      }
      if (speed == 1) {
        EXPECT_EQ(Data().BoatSpeed, 5.5F);
      }
    }
  }
}

TEST_F(DispatcherTest, VhwWithOnlyOneOfItsMarksUsesThatOne) {
  m_settings.m_iNmeaHeading = 0;
  m_settings.m_iNmeaBoatSpeed = 0;
  const Dispatcher::Outcome speedOnly = Dispatch("$IIVHW,,,,,6.5,N,,");
  EXPECT_TRUE(speedOnly.Used);
  EXPECT_TRUE(speedOnly.Incomplete);
  EXPECT_FALSE(Data().HeadingValid);
  EXPECT_EQ(Data().BoatSpeed, 6.5F);
  const Dispatcher::Outcome headingOnly = Dispatch("$IIVHW,,,123.5,M,7.5x,N,,");
  EXPECT_TRUE(headingOnly.Used);
  EXPECT_TRUE(headingOnly.Incomplete);
  EXPECT_EQ(Data().Heading, 123.5F);
  EXPECT_EQ(Data().BoatSpeed, 6.5F);
}

// --- RMC
// ---------------------------------------------------------------------------------------------------------

TEST_F(DispatcherTest, RmcMakesItsCourseMagneticWithTheVariationOfTheSameSentence) {
  m_record.VariationUpdate(20.0F, kOrigin);
  const Dispatcher::Outcome outcome = Dispatch(kRmc);
  EXPECT_TRUE(outcome.Used);
  EXPECT_FALSE(outcome.Incomplete);
  EXPECT_EQ(Data().Variation, -3.0F);
  EXPECT_EQ(Data().Heading, 233.0F);
  EXPECT_EQ(Data().BoatSpeed, 5.2F);
}

TEST_F(DispatcherTest, RmcCourseIsFoldedOnItsWayIntoTheRecord) {
  Dispatch("$GPRMC,,A,,,,,5.2,359.0,,3.0,W");
  EXPECT_EQ(Data().Heading, 2.0F);
  Dispatch("$GPRMC,,A,,,,,5.2,1.0,,3.0,E");
  EXPECT_EQ(Data().Heading, 358.0F);
}

TEST_F(DispatcherTest, RmcWithoutVariationUsesTheSpeedButNoCourseUntilAVariationCame) {
  const Dispatcher::Outcome first = Dispatch(kRmcBare);
  EXPECT_TRUE(first.Used);
  EXPECT_TRUE(first.Incomplete);
  EXPECT_FALSE(Data().HeadingValid);
  EXPECT_EQ(Data().BoatSpeed, 5.2F);
  Dispatch(kHvm);
  const Dispatcher::Outcome second = Dispatch(kRmcBare);
  EXPECT_TRUE(second.Used);
  EXPECT_TRUE(second.Incomplete);
  EXPECT_EQ(Data().Heading, 222.5F);
}

TEST_F(DispatcherTest, RmcFeedsWhatTheSourcesSay) {
  m_settings.m_iNmeaHeading = 0;
  m_settings.m_iNmeaBoatSpeed = 0;
  EXPECT_TRUE(Used(kRmc));
  EXPECT_EQ(Data().Variation, -3.0F);
  EXPECT_FALSE(Data().HeadingValid);
  EXPECT_FALSE(Data().BoatSpeedValid);
  EXPECT_FALSE(Used(kRmcBare));
  m_settings.m_iNmeaBoatSpeed = 1;
  EXPECT_TRUE(Used(kRmcBare));
  EXPECT_EQ(Data().BoatSpeed, 5.2F);
  EXPECT_FALSE(Data().HeadingValid);
}

TEST_F(DispatcherTest, RmcWithABadCourseStillUsesItsSpeed) {
  m_record.VariationUpdate(1.0F, kOrigin);
  const Dispatcher::Outcome outcome = Dispatch("$GPRMC,,A,,,,,5.2,xyz,,3.0,W");
  EXPECT_TRUE(outcome.Used);
  EXPECT_TRUE(outcome.Incomplete);
  EXPECT_EQ(Data().BoatSpeed, 5.2F);
  EXPECT_FALSE(Data().HeadingValid);
  EXPECT_EQ(Data().Variation, 1.0F);
}

// --- RMB
// ---------------------------------------------------------------------------------------------------------

TEST_F(DispatcherTest, RmbMakesItsBearingMagnetic) {
  m_record.VariationUpdate(-4.5F, kOrigin);
  EXPECT_TRUE(Used(kRmb));
  EXPECT_TRUE(Data().WaypointValid);
  EXPECT_EQ(Data().WaypointRange, 1.3F);
  EXPECT_EQ(Data().WaypointBearing, 57.0F);
}

TEST_F(DispatcherTest, RmbUpdatesNothingUntilAVariationCame) {
  const Dispatcher::Outcome outcome = Dispatch(kRmb);
  EXPECT_FALSE(outcome.Used);
  EXPECT_FALSE(outcome.Incomplete);
  EXPECT_FALSE(Data().WaypointValid);
}

TEST_F(DispatcherTest, RmbBearingIsNotFolded) {
  m_record.VariationUpdate(10.0F, kOrigin);
  Dispatch("$GPRMB,A,,,,,,,,,1.3,4.0,,");
  EXPECT_EQ(Data().WaypointBearing, -6.0F);
}

TEST_F(DispatcherTest, RmbWithAnInvalidStatusStillUpdatesTheWaypoint) {
  m_record.VariationUpdate(0.0F, kOrigin);
  EXPECT_TRUE(Used("$GPRMB,V,0.66,L,003,004,4917.24,N,12309.57,W,001.3,052.5,000.5,V"));
  EXPECT_EQ(Data().WaypointBearing, 52.5F);
}

TEST_F(DispatcherTest, RmbWithAnExtraLeadingFieldIsReadWithTheShift) {
  m_record.VariationUpdate(0.0F, kOrigin);
  EXPECT_TRUE(Used("$GPRMB,1,A,0.66,L,003,004,4917.24,N,12309.57,W,001.3,052.5,000.5,V"));
  EXPECT_EQ(Data().WaypointRange, 1.3F);
  EXPECT_EQ(Data().WaypointBearing, 52.5F);
}

TEST_F(DispatcherTest, RmbWithOnlyOneOfItsMarksUpdatesNothing) {
  m_record.VariationUpdate(0.0F, kOrigin);
  for (const std::string_view body : {"$GPRMB,A,,,,,,,,,1.3,,", "$GPRMB,A,,,,,,,,,,52.5,"}) {
    const Dispatcher::Outcome outcome = Dispatch(body);
    EXPECT_FALSE(outcome.Used) << body;
    EXPECT_TRUE(outcome.Incomplete) << body;
  }
  EXPECT_FALSE(Data().WaypointValid);
}

// --- Routing
// -----------------------------------------------------------------------------------------------------

TEST_F(DispatcherTest, EachTypeHasItsOwnSwitch) {
  m_settings.m_iNmeaHeading = 0;
  m_settings.m_iNmeaBoatSpeed = 0;
  struct Case {
    bool Settings::*Switch;
    std::string_view Body;
  };
  for (const Case& c : {Case{&Settings::m_bNmeaSentenceHDG, kHdg}, Case{&Settings::m_bNmeaSentenceHVM, kHvm},
                        Case{&Settings::m_bNmeaSentenceMWV, kMwvR}, Case{&Settings::m_bNmeaSentenceRMB, kRmb},
                        Case{&Settings::m_bNmeaSentenceRMC, kRmc}, Case{&Settings::m_bNmeaSentenceVHW, kVhw},
                        Case{&Settings::m_bNmeaSentenceVTG, kVtg}}) {
    m_record.VariationUpdate(0.0F, kOrigin);
    m_settings.m_iNmeaHeading = c.Body == kVtg ? 1 : 0;
    ASSERT_TRUE(Used(c.Body)) << c.Body;
    m_record.ForgetChanges();
    m_settings.*c.Switch = false;
    const Dispatcher::Outcome outcome = Dispatch(c.Body);
    EXPECT_FALSE(outcome.Used) << c.Body;
    EXPECT_FALSE(outcome.Incomplete) << c.Body;
    EXPECT_FALSE(outcome.WindSentence) << c.Body;
    EXPECT_EQ(TakeChanges(m_record), "") << c.Body;
    m_settings.*c.Switch = true;
    EXPECT_TRUE(Used(c.Body)) << c.Body;
  }
}

TEST_F(DispatcherTest, ADisabledTypeReportsNoDecodeErrorEither) {
  m_settings.m_bNmeaSentenceHDG = false;
  EXPECT_FALSE(Dispatch("$IIHDG,rubbish").Incomplete);
}

TEST_F(DispatcherTest, AnyTalkerIsRouted) {
  for (const std::string_view body : {"$GPRMC,,A,,,,,5.2,230.0,,3.0,W", "$IIRMC,,A,,,,,5.2,230.0,,3.0,W",
                                      "$ZZRMC,,A,,,,,5.2,230.0,,3.0,W"}) {
    EXPECT_TRUE(Used(body)) << body;
  }
}

TEST_F(DispatcherTest, AnotherTypeChangesNothing) {
  for (const std::string_view body : {"$PGRME,15.0,M,45.0,M,25.0,M", "$IIHDT,123.4,T", "$GPGGA,1,2", "$"}) {
    const Dispatcher::Outcome outcome = Dispatch(body);
    EXPECT_FALSE(outcome.Used) << body;
    EXPECT_FALSE(outcome.Incomplete) << body;
    EXPECT_FALSE(outcome.WindSentence) << body;
  }
  EXPECT_EQ(TakeChanges(m_record), "");
}

TEST_F(DispatcherTest, ACommaAtAnotherPlaceThanTheSeventhIsIncomplete) {
  for (const std::string_view body :
       {"$IIHDG5,123.4,,,5.0,W", "$IIMWVX,045,R,10.5,N,A", "$IIRMC", "$IIRMBA,1"}) {
    const Dispatcher::Outcome outcome = Dispatch(body);
    EXPECT_TRUE(outcome.Incomplete) << body;
    EXPECT_FALSE(outcome.Used) << body;
  }
}

TEST_F(DispatcherTest, TheLastSourceOfAVariationCounts) {
  Dispatch(kHdg);
  EXPECT_EQ(Data().Variation, -5.0F);
  Dispatch(kHvm);
  EXPECT_EQ(Data().Variation, 7.5F);
  Dispatch(kRmc);
  EXPECT_EQ(Data().Variation, -3.0F);
}

TEST_F(DispatcherTest, AHeadingFromTheCompassIsOverwrittenByTheNextSource) {
  m_settings.m_iNmeaHeading = 0;
  Dispatch(kHdg);
  EXPECT_EQ(Data().Heading, 123.4F);
  Dispatch(kVhw);
  EXPECT_EQ(Data().Heading, 123.5F);
}

// --- Damage
// ------------------------------------------------------------------------------------------------------

class DamagedSentence : public DispatcherTest, public testing::WithParamInterface<std::string_view> {
 protected:
  DamagedSentence() {
    m_settings.m_fNmeaTrueWindAverage = 2.0F;
    m_record.VariationUpdate(2.0F, kOrigin);
    m_record.BoatSpeedUpdate(6.0F, kOrigin);
    m_record.ForgetChanges();
  }

  // Straight to the decoders, as a line without a checksum would come.
  void DispatchRaw(const std::string& line) {
    const Dispatcher::Outcome outcome = m_dispatcher.Dispatch(line, 5, kOrigin.At);
    ASSERT_EQ(RecordFault(Data()), "") << line;
    const std::string changes = TakeChanges(m_record);
    ASSERT_TRUE(outcome.Used || changes.empty()) << line << " changes " << changes;
  }
};

TEST_P(DamagedSentence, NoTruncationHarmsTheRecord) {
  for (const std::int16_t source : {std::int16_t{0}, std::int16_t{1}}) {
    m_settings.m_iNmeaHeading = source;
    m_settings.m_iNmeaBoatSpeed = source;
    m_settings.m_iNmeaTrueWind = source;
    const std::string line = WithChecksum(GetParam());
    for (std::size_t length = 0; length <= line.size(); ++length) {
      DispatchRaw(line.substr(0, length));
      DispatchRaw(line.substr(length));
    }
  }
}

TEST_P(DamagedSentence, NoSingleByteHarmsTheRecord) {
  for (const std::int16_t source : {std::int16_t{0}, std::int16_t{1}}) {
    m_settings.m_iNmeaHeading = source;
    m_settings.m_iNmeaBoatSpeed = source;
    m_settings.m_iNmeaTrueWind = source;
    const std::string line = WithChecksum(GetParam());
    for (std::size_t at = 0; at < line.size(); ++at) {
      for (int byte = 0; byte < 256; ++byte) {
        std::string damaged = line;
        damaged[at] = static_cast<char>(byte);
        DispatchRaw(damaged);
      }
    }
  }
}

TEST_P(DamagedSentence, NoNumberInAnyFieldHarmsTheRecord) {
  for (const std::string_view number :
       {"nan", "inf", "-inf", "1e999", "-1e999", "1e38", "-1e38", "3.5e38", "0x10", "360", "-360", "360.0001",
        "180", "1e-45", "-0", "99999999999999999999"}) {
    for (std::int16_t source = 0; source < 2; ++source) {
      m_settings.m_iNmeaHeading = source;
      m_settings.m_iNmeaBoatSpeed = source;
      m_settings.m_iNmeaTrueWind = source;
      const std::string line(GetParam());
      std::size_t start = line.find(',');
      while (start != std::string::npos) {
        const std::size_t end = std::min(line.find(',', start + 1), line.size());
        DispatchRaw(WithChecksum(line.substr(0, start + 1) + std::string(number) + line.substr(end)));
        start = line.find(',', start + 1);
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(All, DamagedSentence,
                         testing::Values(kHdg, kHvm, kMwvR, kMwvT, kRmb, kRmc, kRmcBare, kVhw, kVtg),
                         [](const testing::TestParamInfo<std::string_view>& sentence) {
                           return std::string(sentence.param.substr(3, 3)) + std::to_string(sentence.index);
                         });

}  // namespace
}  // namespace veerwatch
