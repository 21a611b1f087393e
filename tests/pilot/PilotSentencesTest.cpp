#include "pilot/PilotSentences.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "instruments/InstrumentRecord.h"
#include "platform/Angles.h"
#include "tests/pilot/SentenceReaders.h"
#include "tests/support/Origins.h"
#include "tests/support/Sentences.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Why = PilotRefusal::Why;

class PilotSentencesTest : public testing::Test {
 protected:
  /// A bearing with a variation of 7 degrees west, and a wind from port.
  static PilotValues Values(float bearing) {
    PilotValues values(bearing);
    values.Variation = -7.0F;
    values.Wind = {-38.2F, 12.4F};
    return values;
  }

  /// What leaves; why the rest does not is in Refusal.
  std::vector<std::string> Sent(const PilotValues& values) {
    Refusal = m_sentences.Build(PilotFormOf(Set), values);
    std::vector<std::string> lines;
    for (std::size_t i = 0; i < m_sentences.Bundle().Count(); ++i) {
      lines.emplace_back(m_sentences.Bundle().Sentence(i));
    }
    return lines;
  }

  void OwnWithEverything() {
    Set.m_ePilotProfile = PilotProfile::Own;
    Set.m_bPilotOwnAPB = Set.m_bPilotOwnRMB = Set.m_bPilotOwnHSC = true;
    Set.m_bPilotOwnXTE = Set.m_bPilotOwnBWC = true;
  }

  Settings Set;
  PilotRefusal Refusal;

 private:
  PilotSentences m_sentences;
};

TEST_F(PilotSentencesTest, MagneticApbIsTheDefaultAndNeedsNothing) {
  EXPECT_THAT(Sent(245.0F), ElementsAre("$ECAPB,A,A,0.00,R,N,V,V,245.0,M,1,245.0,M,245.0,M*06"));
  EXPECT_EQ(Refusal, PilotRefusal());
}

TEST_F(PilotSentencesTest, TrueApbAddsTheVariation) {
  Set.m_ePilotProfile = PilotProfile::TrueApb;
  EXPECT_THAT(Sent(Values(245.0F)),
              ElementsAre(WithChecksum("$ECAPB,A,A,0.00,R,N,V,V,238.0,T,1,238.0,T,238.0,T")));
  PilotValues east = Values(355.0F);
  east.Variation = 10.5F;
  EXPECT_THAT(Sent(east), ElementsAre(WithChecksum("$ECAPB,A,A,0.00,R,N,V,V,005.5,T,1,005.5,T,005.5,T")));
  EXPECT_EQ(Refusal, PilotRefusal());
}

TEST_F(PilotSentencesTest, TrueApbIsRefusedWithoutAVariation) {
  Set.m_ePilotProfile = PilotProfile::TrueApb;
  EXPECT_THAT(Sent(245.0F), IsEmpty());
  EXPECT_EQ(PilotRefusalText(Refusal), "True APB Needs the Variation");
  PilotValues old(245.0F);
  old.OldVariation = true;
  EXPECT_THAT(Sent(old), IsEmpty());
  EXPECT_EQ(PilotRefusalText(Refusal), "True APB: Variation Older Than 1 h");
}

TEST_F(PilotSentencesTest, RmbLeavesAfterApbToAPointTenMilesAhead) {
  Set.m_ePilotProfile = PilotProfile::ApbAndRmb;
  EXPECT_THAT(Sent(Values(245.0F)), ElementsAre("$ECAPB,A,A,0.00,R,N,V,V,245.0,M,1,245.0,M,245.0,M*06",
                                                WithChecksum("$ECRMB,A,0.00,R,,1,,,,,10.0,238.0,,V")));
}

TEST_F(PilotSentencesTest, WithoutAVariationOnlyTheCompanionsStay) {
  Set.m_ePilotProfile = PilotProfile::ApbAndRmb;
  EXPECT_THAT(Sent(245.0F), ElementsAre("$ECAPB,A,A,0.00,R,N,V,V,245.0,M,1,245.0,M,245.0,M*06"));
  EXPECT_EQ(PilotRefusalText(Refusal), "RMB Needs the Variation");
  OwnWithEverything();
  EXPECT_THAT(Sent(245.0F), ElementsAre("$ECAPB,A,A,0.00,R,N,V,V,245.0,M,1,245.0,M,245.0,M*06",
                                        WithChecksum("$ECXTE,A,A,0.00,R,N")));
  EXPECT_EQ(Refusal, (PilotRefusal{Why::NoVariation, PilotType::Rmb}));
}

TEST_F(PilotSentencesTest, NoCompanionLeavesWhereItsApbIsRefused) {
  OwnWithEverything();
  Set.m_ePilotOwnBearing = BearingKind::True;
  EXPECT_THAT(Sent(245.0F), IsEmpty());
  EXPECT_EQ(Refusal, (PilotRefusal{Why::NoVariation, PilotType::Apb}));
}

TEST_F(PilotSentencesTest, HscHasTheTrueHeadingBeforeTheMagneticOne) {
  Set.m_ePilotProfile = PilotProfile::Hsc;
  EXPECT_THAT(Sent(Values(245.0F)), ElementsAre(WithChecksum("$ECHSC,238.0,T,245.0,M")));
  EXPECT_THAT(Sent(245.0F), IsEmpty());
  EXPECT_EQ(PilotRefusalText(Refusal), "HSC Needs the Variation");
}

TEST_F(PilotSentencesTest, AVanePilotGetsTheWindAndNoBearing) {
  Set.m_ePilotProfile = PilotProfile::Wind;
  EXPECT_THAT(Sent(Values(245.0F)), ElementsAre(WithChecksum("$ECVWR,038.2,L,12.4,N,6.4,M,23.0,K"),
                                                WithChecksum("$ECMWV,321.8,R,12.4,N,A")));
  EXPECT_THAT(Sent(245.0F), IsEmpty());
  EXPECT_EQ(PilotRefusalText(Refusal), "No Wind to Send");
}

TEST_F(PilotSentencesTest, OwnIsWrittenAsItWasChosen) {
  OwnWithEverything();
  Set.m_sPilotOwnTalker = "GP";
  Set.m_ePilotOwnBearing = BearingKind::True;
  Set.m_iPilotOwnFields = 15;
  Set.m_iPilotOwnDecimals = 0;
  Set.m_sPilotOwnPoint = "POINT6";
  EXPECT_THAT(Sent(Values(45.5F)),
              ElementsAre(WithChecksum("$GPAPB,A,A,0.00,R,N,V,V,039,T,POINT6,039,T,039,T,A"),
                          WithChecksum("$GPRMB,A,0.00,R,,POINT6,,,,,10.0,039,,V,A"),
                          WithChecksum("$GPHSC,039,T,046,M"), WithChecksum("$GPXTE,A,A,0.00,R,N,A"),
                          WithChecksum("$GPBWC,,,,,,039,T,046,M,10.0,N,POINT6,A")));
}

TEST_F(PilotSentencesTest, OwnWithoutAnySentenceSaysSo) {
  Set.m_ePilotProfile = PilotProfile::Own;
  Set.m_bPilotOwnAPB = false;
  EXPECT_THAT(Sent(Values(45.0F)), IsEmpty());
  EXPECT_EQ(PilotRefusalText(Refusal), "No Sentence Chosen");
}

TEST_F(PilotSentencesTest, WhatDoesNotHoldIsSaidOnlyWithAStatus) {
  PilotValues lost = Values(245.0F);
  lost.Good = false;
  EXPECT_THAT(Sent(lost), ElementsAre(WithChecksum("$ECAPB,V,V,0.00,R,N,V,V,245.0,M,1,245.0,M,245.0,M")));
  OwnWithEverything();
  EXPECT_THAT(Sent(lost), ElementsAre(WithChecksum("$ECAPB,V,V,0.00,R,N,V,V,245.0,M,1,245.0,M,245.0,M"),
                                      WithChecksum("$ECRMB,V,0.00,R,,1,,,,,10.0,238.0,,V"),
                                      WithChecksum("$ECXTE,V,V,0.00,R,N")));
  Set.m_iPilotOwnFields = 15;
  EXPECT_THAT(Sent(lost), ElementsAre(WithChecksum("$ECAPB,V,V,0.00,R,N,V,V,245.0,M,1,245.0,M,245.0,M,N"),
                                      WithChecksum("$ECRMB,V,0.00,R,,1,,,,,10.0,238.0,,V,N"),
                                      WithChecksum("$ECXTE,V,V,0.00,R,N,N"),
                                      WithChecksum("$ECBWC,,,,,,238.0,T,245.0,M,10.0,N,1,N")));
  Set.m_ePilotProfile = PilotProfile::Hsc;
  EXPECT_THAT(Sent(lost), IsEmpty());
  Set.m_ePilotProfile = PilotProfile::Wind;
  EXPECT_THAT(Sent(lost), ElementsAre(WithChecksum("$ECMWV,321.8,R,12.4,N,V")));
}

TEST_F(PilotSentencesTest, OneTextOfABearingStandsInAllSentencesAcrossTheFold) {
  OwnWithEverything();
  Set.m_iPilotOwnFields = 15;
  for (const int decimals : {0, 1}) {
    Set.m_iPilotOwnDecimals = static_cast<std::int16_t>(decimals);
    for (int hundredths = 35800; hundredths < 36200; ++hundredths) {
      PilotValues values(FoldBearing(hundredths / 100.0));
      values.Variation = -0.52F;
      const auto lines = Sent(values);
      ASSERT_EQ(lines.size(), 5U);
      const std::string magnetic = ReadFrame(lines[0])->Fields[7];
      const std::string bearingTrue = ReadFrame(lines[1])->Fields[10];
      for (const std::size_t at : {10U, 12U}) {
        ASSERT_EQ(ReadFrame(lines[0])->Fields[at], magnetic);
      }
      ASSERT_EQ(ReadFrame(lines[2])->Fields[2], magnetic) << lines[2];
      ASSERT_EQ(ReadFrame(lines[4])->Fields[7], magnetic) << lines[4];
      ASSERT_EQ(ReadFrame(lines[2])->Fields[0], bearingTrue) << lines[2];
      ASSERT_EQ(ReadFrame(lines[4])->Fields[5], bearingTrue) << lines[4];
    }
  }
}

/// A profile and how it is written, for what receivers understand of it.
struct Sending {
  const char* Name;
  PilotProfile Profile;
  std::int16_t Fields;
  std::int16_t Decimals;
  BearingKind Kind;
};
void PrintTo(const Sending& sending, std::ostream* stream) { *stream << sending.Name; }

class EachPilotProfile : public PilotSentencesTest, public testing::WithParamInterface<Sending> {
 protected:
  EachPilotProfile() {
    OwnWithEverything();
    Set.m_ePilotProfile = GetParam().Profile;
    Set.m_iPilotOwnFields = GetParam().Fields;
    Set.m_iPilotOwnDecimals = GetParam().Decimals;
    Set.m_ePilotOwnBearing = GetParam().Kind;
    Set.m_sPilotOwnPoint = "VEER01";
  }

  /// The two are the same direction to the rounding of a text.
  static void ExpectNear(const std::optional<double>& heard, double meant, double within) {
    if (heard) {
      EXPECT_LE(std::fabs(std::remainder(*heard - meant, 360.0)), within) << *heard << " for " << meant;
    }
  }
};

TEST_P(EachPilotProfile, IsUnderstoodByReceiversOfItsSentences) {
  const double within =
      (GetParam().Profile == PilotProfile::Own && GetParam().Decimals == 0 ? 0.5 : 0.05) + 1e-4;
  for (int step = 0; step < 3600; ++step) {
    const float bearing = static_cast<float>(step) / 10.0F + 0.04F;
    const float variation = static_cast<float>(step % 600) / 10.0F - 30.0F;
    PilotValues values(bearing);
    values.Variation = variation;
    values.Wind = {FoldRelative(step * 0.77), static_cast<float>(step % 600) / 10.0F};
    const auto lines = Sent(values);
    ASSERT_FALSE(lines.empty());
    for (const std::string& line : lines) {
      const PilotHeard heard = Hear(line);
      ASSERT_EQ(heard.Fault, "") << line;
      EXPECT_TRUE(heard.Valid) << line;
      ExpectNear(heard.Magnetic, static_cast<double>(bearing), within);
      ExpectNear(heard.True, static_cast<double>(bearing) + static_cast<double>(variation), within);
      ExpectNear(heard.WindAngle, static_cast<double>(values.Wind->Angle), 0.0501);
      EXPECT_NEAR(heard.WindSpeed.value_or(values.Wind->Speed), static_cast<double>(values.Wind->Speed),
                  0.0501);
      EXPECT_EQ(heard.Range.value_or(10.0), 10.0);
      ASSERT_FALSE(HasFailure()) << line;
    }
  }
}

TEST_P(EachPilotProfile, IsNotTakenForValidWhenNothingHolds) {
  PilotValues lost = Values(123.4F);
  lost.Good = false;
  for (const std::string& line : Sent(lost)) {
    const PilotHeard heard = Hear(line);
    EXPECT_EQ(heard.Fault, "") << line;
    EXPECT_FALSE(heard.Valid) << line;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Profiles, EachPilotProfile,
    testing::Values(Sending{"MagneticApb", PilotProfile::MagneticApb, 14, 1, BearingKind::Magnetic},
                    Sending{"TrueApb", PilotProfile::TrueApb, 14, 1, BearingKind::Magnetic},
                    Sending{"ApbAndRmb", PilotProfile::ApbAndRmb, 14, 1, BearingKind::Magnetic},
                    Sending{"Hsc", PilotProfile::Hsc, 14, 1, BearingKind::Magnetic},
                    Sending{"Wind", PilotProfile::Wind, 14, 1, BearingKind::Magnetic},
                    Sending{"Own", PilotProfile::Own, 14, 1, BearingKind::Magnetic},
                    Sending{"OwnTrue", PilotProfile::Own, 14, 1, BearingKind::True},
                    Sending{"OwnWithMode", PilotProfile::Own, 15, 1, BearingKind::Magnetic},
                    Sending{"OwnWhole", PilotProfile::Own, 15, 0, BearingKind::True}),
    [](const auto& tested) { return std::string(tested.param.Name); });

TEST(PilotValuesOf, TakesTheVariationForAnHour) {
  constexpr std::int64_t kHour = 3600000;
  Settings settings;
  InstrumentRecord record(settings);
  Moment now{1000, 0};
  EXPECT_FALSE(PilotValuesOf(10.0F, record, settings, now).Variation);
  EXPECT_FALSE(PilotValuesOf(10.0F, record, settings, now).OldVariation);
  Origin from;
  from.At = now;
  record.VariationUpdate(-3.5F, from);
  now.Steady += kHour;
  EXPECT_EQ(PilotValuesOf(10.0F, record, settings, now).Variation, -3.5F);
  ++now.Steady;
  EXPECT_FALSE(PilotValuesOf(10.0F, record, settings, now).Variation);
  EXPECT_TRUE(PilotValuesOf(10.0F, record, settings, now).OldVariation);
  settings.m_bSimulate = true;
  EXPECT_EQ(PilotValuesOf(10.0F, record, settings, now).Variation, -3.5F);
}

TEST(PilotValuesOf, TakesTheSmoothedWind) {
  Settings settings;
  settings.m_fNmeaTrueWindAverage = 4.0F;
  InstrumentRecord record(settings);
  EXPECT_FALSE(PilotValuesOf(10.0F, record, settings, Moment()).Wind);
  record.WindApparentUpdate(40.0F, 10.0F, false, Origin());
  record.WindApparentUpdate(60.0F, 14.0F, false, Origin());
  const auto wind = PilotValuesOf(10.0F, record, settings, Moment()).Wind;
  ASSERT_TRUE(wind);
  EXPECT_EQ(wind->Angle, record.Data().WindAngleApparentAverage);
  EXPECT_EQ(wind->Speed, record.Data().WindSpeedApparentAverage);
  EXPECT_LT(wind->Angle, 60.0F);
}

}  // namespace
}  // namespace veerwatch
