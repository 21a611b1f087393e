// Where the values of the record come from, and how old they are.
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "instruments/SourceChoice.h"

namespace veerwatch {
namespace {

constexpr Moment At(std::int64_t steady) { return {steady, 900000 - steady}; }

TEST(OriginOf, NamesTalkerTypePortAndMoment) {
  const Origin from = OriginOf("$IIMWV,045,R", 3, {17, 4});
  EXPECT_EQ(std::string(from.Talker.begin(), from.Talker.end()), "II");
  EXPECT_EQ(std::string(from.Sentence.begin(), from.Sentence.end()), "MWV");
  EXPECT_EQ(from.Port, 3);
  EXPECT_EQ(from.At.Steady, 17);
  EXPECT_EQ(from.At.Wall, 4);
}

TEST(OriginOf, OfATextThatIsTooShortNamesNeither) {
  const Origin from = OriginOf("$IIMW", 3, {17, 4});
  EXPECT_EQ(from.Talker[0], '\0');
  EXPECT_EQ(from.Sentence[0], '\0');
}

TEST(Readings, KeepsNoMoreThanItHasRoomFor) {
  Readings readings{Origin()};
  for (int i = 0; i < 6; ++i) {
    readings.Add(Quantity::Heading, static_cast<float>(i));
  }
  EXPECT_EQ(static_cast<std::size_t>(readings.end() - readings.begin()), Readings::kMost);
  EXPECT_EQ(readings.Find(Quantity::Heading)->Value, 0.0F);
  EXPECT_EQ(readings.Find(Quantity::Variation), nullptr);
}

class Sources : public testing::Test {
 protected:
  Sources() {
    m_settings.m_iNmeaHeading = 0;
    m_settings.m_iNmeaBoatSpeed = 0;
  }

  /// Lets one sentence bring `values` at `steady` [ms].
  bool Bring(const char* line, std::int64_t steady, const std::vector<std::pair<Quantity, float>>& values) {
    Readings readings(OriginOf(line, 5, At(steady)));
    for (const auto& [what, value] : values) {
      readings.Add(what, value);
    }
    return m_choice.Take(readings);
  }
  std::optional<std::int64_t> Age(RecordValue value, std::int64_t now) {
    return m_record.Age(value, At(now));
  }
  std::string SentenceOf(RecordValue value) {
    const auto from = m_record.Source(value);
    return from ? std::string(from->Sentence.begin(), from->Sentence.end()) : "none";
  }

  Settings m_settings;
  InstrumentRecord m_record{m_settings};
  SourceChoice m_choice{m_settings, m_record};
};

TEST_F(Sources, TheTrueWindIsKnownUnsmoothed) {
  m_settings.m_fNmeaTrueWindAverage = 4.0F;
  m_settings.m_iNmeaTrueWind = 0;
  for (const float angle : {40.0F, 80.0F}) {
    Bring("$IIMWV", 1000, {{Quantity::TrueWindAngle, angle}, {Quantity::TrueWindSpeed, 12.0F}});
  }
  EXPECT_LT(m_record.Data().WindAngleTrue, 60.0F);
  EXPECT_EQ(m_record.WindTrueUnsmoothed().Angle, 80.0F);
  EXPECT_EQ(m_record.WindTrueUnsmoothed().Speed, 12.0F);

  // Computed: dead ahead with 15 knots at 5 knots of boat speed, whatever came before.
  m_settings.m_iNmeaTrueWind = 1;
  Bring("$IIVHW", 1000, {{Quantity::SpeedThroughWater, 7.0F}});
  Bring("$IIVHW", 1000, {{Quantity::SpeedThroughWater, 5.0F}});
  Bring("$IIMWV", 1000, {{Quantity::ApparentWindAngle, 30.0F}, {Quantity::ApparentWindSpeed, 9.0F}});
  Bring("$IIMWV", 1000, {{Quantity::ApparentWindAngle, 0.0F}, {Quantity::ApparentWindSpeed, 15.0F}});
  EXPECT_GT(m_record.Data().WindAngleTrue, 1.0F);
  EXPECT_NEAR(m_record.WindTrueUnsmoothed().Angle, 0.0F, 1e-4F);
  EXPECT_NEAR(m_record.WindTrueUnsmoothed().Speed, 10.0F, 1e-4F);
}

TEST_F(Sources, ByTheClockValuesAreSmoothedAlikeAtEveryRate) {
  m_settings.m_fNmeaTrueWindAverage = 4.0F;
  m_settings.m_eTrackMethod = TrackMethod::Clock;
  Bring("$IIVHW", 1000, {{Quantity::SpeedThroughWater, 4.0F}});
  for (int sample = 1; sample <= 10; ++sample) {
    Bring("$IIVHW", 1000 + 100 * sample, {{Quantity::SpeedThroughWater, 8.0F}});
  }
  EXPECT_NEAR(m_record.Data().BoatSpeedAverage, 5.0F, 1e-4F) << "a quarter of the way in a second";
  Bring("$IIVHW", 2000, {{Quantity::SpeedThroughWater, 80.0F}});
  EXPECT_NEAR(m_record.Data().BoatSpeedAverage, 5.0F, 1e-4F) << "no time has passed";
}

TEST_F(Sources, AValueThatNeverCameHasNoAge) {
  for (const RecordValue value :
       {RecordValue::Heading, RecordValue::BoatSpeed, RecordValue::Variation, RecordValue::Waypoint,
        RecordValue::WindApparent, RecordValue::WindTrue, RecordValue::WindIndicator}) {
    EXPECT_EQ(Age(value, 5000), std::nullopt);
    EXPECT_EQ(SentenceOf(value), "none");
  }
}

TEST_F(Sources, TheAgeIsCountedOnTheSteadyClockFromTheLatestValue) {
  Bring("$IIHDG", 1000, {{Quantity::Heading, 20.0F}});
  Bring("$IIVHW", 1500, {{Quantity::SpeedThroughWater, 6.0F}});
  EXPECT_EQ(Age(RecordValue::Heading, 4000), 3000);
  EXPECT_EQ(Age(RecordValue::BoatSpeed, 4000), 2500);
  Bring("$IIVHW", 3900, {{Quantity::Heading, 21.0F}});
  EXPECT_EQ(Age(RecordValue::Heading, 4000), 100);
  EXPECT_EQ(SentenceOf(RecordValue::Heading), "VHW");
  EXPECT_EQ(SentenceOf(RecordValue::BoatSpeed), "VHW");
}

TEST_F(Sources, AnAgeIsNeverBelowZero) {
  Bring("$IIHDG", 1000, {{Quantity::Heading, 20.0F}});
  EXPECT_EQ(Age(RecordValue::Heading, 400), 0);
}

TEST_F(Sources, AComputedTrueWindIsAsOldAsTheWindThatItComesFrom) {
  m_settings.m_iNmeaTrueWind = 1;
  Bring("$IIVHW", 1000, {{Quantity::SpeedThroughWater, 6.0F}});
  Bring("$WIMWV", 2000, {{Quantity::ApparentWindAngle, 40.0F}, {Quantity::ApparentWindSpeed, 12.0F}});
  EXPECT_EQ(Age(RecordValue::WindTrue, 2500), 500);
  EXPECT_EQ(SentenceOf(RecordValue::WindTrue), "MWV");
  EXPECT_EQ(Age(RecordValue::WindApparent, 2500), 500);
}

TEST_F(Sources, AWindIndicatorIsAsOldAsTheTrueWindThatItComesFrom) {
  m_settings.m_iNmeaTrueWind = 0;
  Bring("$WIMWV", 2000, {{Quantity::TrueWindAngle, 40.0F}, {Quantity::TrueWindSpeed, 12.0F}});
  m_record.WindIndicatorUpdate();
  EXPECT_EQ(Age(RecordValue::WindIndicator, 2500), 500);
  EXPECT_EQ(SentenceOf(RecordValue::WindIndicator), "MWV");
  m_record.Restart();
  EXPECT_EQ(Age(RecordValue::WindIndicator, 2500), std::nullopt);
}

TEST_F(Sources, WhatTheSettingsDoNotChooseIsNoSource) {
  EXPECT_FALSE(Bring("$IIVTG", 1000, {{Quantity::CourseMagnetic, 20.0F}, {Quantity::SpeedOverGround, 6.0F}}));
  EXPECT_EQ(Age(RecordValue::Heading, 1000), std::nullopt);
  EXPECT_EQ(Age(RecordValue::BoatSpeed, 1000), std::nullopt);
}

TEST_F(Sources, HalfAWindOrHalfAWaypointIsNone) {
  m_settings.m_iNmeaTrueWind = 0;
  Bring("$IIHVM", 1000, {{Quantity::Variation, 5.0F}});
  EXPECT_FALSE(Bring("$IIMWV", 1000, {{Quantity::ApparentWindAngle, 40.0F}}));
  EXPECT_FALSE(Bring("$IIMWV", 1000, {{Quantity::ApparentWindSpeed, 12.0F}}));
  EXPECT_FALSE(Bring("$IIMWV", 1000, {{Quantity::TrueWindAngle, 40.0F}}));
  EXPECT_FALSE(Bring("$IIMWV", 1000, {{Quantity::TrueWindSpeed, 12.0F}}));
  EXPECT_FALSE(Bring("$IIRMB", 1000, {{Quantity::WaypointRange, 3.0F}}));
  EXPECT_FALSE(Bring("$IIRMB", 1000, {{Quantity::WaypointBearing, 30.0F}}));
  EXPECT_FALSE(m_record.Data().WindApparentValid);
  EXPECT_FALSE(m_record.Data().WindTrueValid);
  EXPECT_FALSE(m_record.Data().WaypointValid);
}

TEST_F(Sources, AStartForgetsEveryOriginButTheVariations) {
  Bring("$IIHDG", 1000, {{Quantity::Heading, 20.0F}, {Quantity::Variation, 5.0F}});
  Bring("$IIMWV", 1000, {{Quantity::ApparentWindAngle, 40.0F}, {Quantity::ApparentWindSpeed, 12.0F}});
  m_record.Restart();
  EXPECT_EQ(Age(RecordValue::Heading, 2000), std::nullopt);
  EXPECT_EQ(Age(RecordValue::WindApparent, 2000), std::nullopt);
  EXPECT_EQ(Age(RecordValue::Variation, 2000), 1000);
}

}  // namespace
}  // namespace veerwatch
