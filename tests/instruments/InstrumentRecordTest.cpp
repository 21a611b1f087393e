#include "instruments/InstrumentRecord.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "settings/Settings.h"
#include "tests/support/Origins.h"
#include "tests/support/RecordChanges.h"
#include "tests/support/RecordFault.h"

namespace veerwatch {
namespace {

class InstrumentRecordTest : public testing::Test {
 protected:
  InstrumentRecordTest() { m_settings.m_fNmeaTrueWindAverage = 4.0F; }

  const InstrumentData& Data() const { return m_record.Data(); }
  std::string TakeChanges() { return veerwatch::TakeChanges(m_record); }

  Settings m_settings;
  InstrumentRecord m_record{m_settings};
};

TEST_F(InstrumentRecordTest, StartsWithZerosAndNothingValid) {
  EXPECT_FALSE(Data().HeadingValid);
  EXPECT_FALSE(Data().BoatSpeedValid);
  EXPECT_FALSE(Data().VariationValid);
  EXPECT_FALSE(Data().WaypointValid);
  EXPECT_FALSE(Data().WindApparentValid);
  EXPECT_FALSE(Data().WindTrueValid);
  EXPECT_FALSE(Data().WindIndicatorValid);
  using D = InstrumentData;
  for (float D::*value :
       {&D::Heading, &D::HeadingAverage, &D::BoatSpeed, &D::BoatSpeedAverage, &D::Variation,
        &D::WaypointBearing, &D::WaypointRange, &D::WindAngleApparent, &D::WindAngleApparentAverage,
        &D::WindSpeedApparent, &D::WindSpeedApparentAverage, &D::WindAngleTrue, &D::WindSpeedTrue,
        &D::WindDirectionAverage, &D::WindSpeedAverage}) {
    EXPECT_EQ(Data().*value, 0.0F);
  }
}

TEST_F(InstrumentRecordTest, NotesWhatHasChangedUntilThatIsForgotten) {
  EXPECT_EQ(TakeChanges(), "");
  m_record.HeadingUpdate(10.0F, kOrigin);
  m_record.BoatSpeedUpdate(5.0F, kOrigin);
  EXPECT_EQ(TakeChanges(), "Heading BoatSpeed");
  m_record.BoatSpeedUpdate(5.0F, kOrigin);
  EXPECT_EQ(TakeChanges(), "BoatSpeed") << "the same value again is an update, too";
  EXPECT_EQ(TakeChanges(), "");
}

TEST_F(InstrumentRecordTest, TheFirstHeadingIsFoldedAndItsAverageIsNot) {
  m_record.HeadingUpdate(370.0F, kOrigin);
  EXPECT_TRUE(Data().HeadingValid);
  EXPECT_EQ(Data().Heading, 10.0F);
  EXPECT_EQ(Data().HeadingAverage, 370.0F);
  EXPECT_EQ(TakeChanges(), "Heading");
}

TEST_F(InstrumentRecordTest, LaterHeadingsAreSmoothedAroundTheCircle) {
  m_settings.m_fNmeaTrueWindAverage = 2.0F;
  m_record.HeadingUpdate(350.0F, kOrigin);
  m_record.HeadingUpdate(16.0F, kOrigin);
  EXPECT_EQ(Data().Heading, 16.0F);
  EXPECT_NEAR(Data().HeadingAverage, 3.0F, 1e-4);
}

TEST_F(InstrumentRecordTest, AHeadingOf360IsShownAsZero) {
  m_record.HeadingUpdate(360.0F, kOrigin);
  EXPECT_EQ(Data().Heading, 0.0F);
  m_record.HeadingUpdate(-90.0F, kOrigin);
  EXPECT_EQ(Data().Heading, 270.0F);
  EXPECT_EQ(TakeChanges(), "Heading");
}

TEST_F(InstrumentRecordTest, TheBoatSpeedIsShownRawAndSmoothed) {
  m_record.BoatSpeedUpdate(4.0F, kOrigin);
  EXPECT_EQ(Data().BoatSpeedAverage, 4.0F);
  m_record.BoatSpeedUpdate(8.0F, kOrigin);
  EXPECT_TRUE(Data().BoatSpeedValid);
  EXPECT_EQ(Data().BoatSpeed, 8.0F);
  EXPECT_EQ(Data().BoatSpeedAverage, 5.0F);
  EXPECT_EQ(TakeChanges(), "BoatSpeed");
}

TEST_F(InstrumentRecordTest, TheVariationIsKept) {
  m_record.VariationUpdate(-5.5F, kOrigin);
  EXPECT_TRUE(Data().VariationValid);
  EXPECT_EQ(Data().Variation, -5.5F);
  EXPECT_EQ(TakeChanges(), "Variation");
}

TEST_F(InstrumentRecordTest, TheWaypointIsStoredAsItComes) {
  m_record.WaypointUpdate(2.5F, -12.0F, kOrigin);
  EXPECT_TRUE(Data().WaypointValid);
  EXPECT_EQ(Data().WaypointRange, 2.5F);
  EXPECT_EQ(Data().WaypointBearing, -12.0F);
  m_record.WaypointUpdate(3.5F, 371.0F, kOrigin);
  EXPECT_EQ(Data().WaypointRange, 3.5F);
  EXPECT_EQ(Data().WaypointBearing, 371.0F);
  EXPECT_EQ(TakeChanges(), "Waypoint");
}

TEST_F(InstrumentRecordTest, AFirstApparentWindOf190IsMinus170) {
  m_record.WindApparentUpdate(190.0F, 12.0F, true, kOrigin);
  EXPECT_TRUE(Data().WindApparentValid);
  EXPECT_EQ(Data().WindAngleApparent, -170.0F);
  EXPECT_EQ(Data().WindAngleApparentAverage, -170.0F);
  EXPECT_EQ(Data().WindSpeedApparent, 12.0F);
  EXPECT_EQ(Data().WindSpeedApparentAverage, 12.0F);
  EXPECT_EQ(TakeChanges(), "WindApparent");
}

TEST_F(InstrumentRecordTest, TheApparentWindIsShownRawAndSmoothed) {
  m_record.WindApparentUpdate(0.0F, 4.0F, false, kOrigin);
  m_record.WindApparentUpdate(90.0F, 8.0F, false, kOrigin);
  EXPECT_EQ(Data().WindAngleApparent, 90.0F);
  EXPECT_NEAR(Data().WindAngleApparentAverage, 18.4349488F, 1e-4);
  EXPECT_EQ(Data().WindSpeedApparent, 8.0F);
  EXPECT_EQ(Data().WindSpeedApparentAverage, 5.0F);
  EXPECT_EQ(TakeChanges(), "WindApparent");
}

TEST_F(InstrumentRecordTest, WithoutABoatSpeedNoTrueWindIsComputed) {
  m_settings.m_iNmeaTrueWind = 1;
  m_record.WindApparentUpdate(45.0F, 10.0F, true, kOrigin);
  EXPECT_FALSE(Data().WindTrueValid);
  EXPECT_EQ(TakeChanges(), "WindApparent");
}

TEST_F(InstrumentRecordTest, WithATrueWindSensorNoTrueWindIsComputed) {
  m_settings.m_iNmeaTrueWind = 0;
  m_record.BoatSpeedUpdate(6.0F, kOrigin);
  m_record.WindApparentUpdate(45.0F, 10.0F, true, kOrigin);
  EXPECT_FALSE(Data().WindTrueValid);
}

TEST_F(InstrumentRecordTest, WithoutComputeTrueNoTrueWindIsComputed) {
  m_record.BoatSpeedUpdate(6.0F, kOrigin);
  m_record.WindApparentUpdate(45.0F, 10.0F, false, kOrigin);
  EXPECT_FALSE(Data().WindTrueValid);
}

TEST_F(InstrumentRecordTest, FiveKnotsAheadAtSixAreATrueWindOfOneKnotFromAstern) {
  m_record.BoatSpeedUpdate(6.0F, kOrigin);
  m_record.WindApparentUpdate(0.0F, 5.0F, true, kOrigin);
  EXPECT_TRUE(Data().WindTrueValid);
  EXPECT_EQ(Data().WindSpeedTrue, 1.0F);
  EXPECT_EQ(Data().WindAngleTrue, 180.0F);  // the -180 of the vector, folded on its way into the record
  EXPECT_EQ(TakeChanges(), "BoatSpeed WindApparent WindTrue");
}

TEST_F(InstrumentRecordTest, TheComputedTrueWindComesFromSmoothedValuesAndIsNotSmoothedAgain) {
  m_record.BoatSpeedUpdate(4.0F, kOrigin);
  m_record.WindApparentUpdate(90.0F, 3.0F, true, kOrigin);
  m_record.BoatSpeedUpdate(8.0F, kOrigin);                  // smoothed 5
  m_record.WindApparentUpdate(90.0F, 7.0F, true, kOrigin);  // smoothed 4 from 90
  EXPECT_NEAR(Data().WindSpeedTrue, std::hypot(4.0, 5.0), 1e-5);
  EXPECT_NEAR(Data().WindAngleTrue, 180.0 - 38.6598083, 1e-4);  // atan(4 / 5) = 38.6598
}

TEST_F(InstrumentRecordTest, AFirstTrueWindFromASensorIsTakenAsItIs) {
  m_record.WindTrueUpdate(190.0F, 12.0F, true, kOrigin);
  EXPECT_TRUE(Data().WindTrueValid);
  EXPECT_EQ(Data().WindAngleTrue, -170.0F);
  EXPECT_EQ(Data().WindSpeedTrue, 12.0F);
  EXPECT_EQ(TakeChanges(), "WindTrue");
}

TEST_F(InstrumentRecordTest, LaterTrueWindFromASensorIsSmoothed) {
  m_record.WindTrueUpdate(0.0F, 4.0F, true, kOrigin);
  m_record.WindTrueUpdate(90.0F, 8.0F, true, kOrigin);
  EXPECT_NEAR(Data().WindAngleTrue, 18.4349488F, 1e-4);
  EXPECT_EQ(Data().WindSpeedTrue, 5.0F);
  EXPECT_EQ(TakeChanges(), "WindTrue");
}

TEST_F(InstrumentRecordTest, ATrueWindThatIsNotToBeSmoothedReplacesTheOldOne) {
  m_record.WindTrueUpdate(0.0F, 4.0F, true, kOrigin);
  m_record.WindTrueUpdate(-180.0F, 8.0F, false, kOrigin);
  EXPECT_EQ(Data().WindAngleTrue, 180.0F);
  EXPECT_EQ(Data().WindSpeedTrue, 8.0F);
}

TEST_F(InstrumentRecordTest, WithAnAveragingCountOfZeroEverySmoothedValueIsTheLastSampleFolded) {
  m_settings.m_fNmeaTrueWindAverage = 0.0F;
  m_settings.m_fNmeaWindIndicatorAverage = 0.0F;
  m_record.VariationUpdate(10.0F, kOrigin);
  for (int i = 0; i < 2; ++i) {
    m_record.HeadingUpdate(20.0F, kOrigin);
    m_record.BoatSpeedUpdate(1.0F, kOrigin);
    m_record.WindApparentUpdate(20.0F, 2.0F, false, kOrigin);
    m_record.WindTrueUpdate(20.0F, 3.0F, true, kOrigin);
    m_record.WindIndicatorUpdate();
  }
  m_record.HeadingUpdate(-10.0F, kOrigin);
  m_record.BoatSpeedUpdate(7.0F, kOrigin);
  m_record.WindApparentUpdate(190.0F, 9.0F, false, kOrigin);
  m_record.WindTrueUpdate(-190.0F, 11.0F, true, kOrigin);
  m_record.WindIndicatorUpdate();
  EXPECT_EQ(Data().HeadingAverage, 350.0F);
  EXPECT_EQ(Data().BoatSpeedAverage, 7.0F);
  EXPECT_EQ(Data().WindAngleApparentAverage, -170.0F);
  EXPECT_EQ(Data().WindSpeedApparentAverage, 9.0F);
  EXPECT_EQ(Data().WindAngleTrue, 170.0F);
  EXPECT_EQ(Data().WindSpeedTrue, 11.0F);
  EXPECT_EQ(Data().WindDirectionAverage, 170.0F);  // 170 + 350 + 10 - 360
  EXPECT_EQ(Data().WindSpeedAverage, 11.0F);
}

TEST_F(InstrumentRecordTest, TheFirstWindIndicatorIsTakenAsItIsButFolded) {
  m_record.HeadingUpdate(300.0F, kOrigin);
  m_record.VariationUpdate(-5.0F, kOrigin);
  m_record.WindTrueUpdate(100.0F, 12.5F, true, kOrigin);
  m_record.ForgetChanges();
  m_record.WindIndicatorUpdate();
  EXPECT_TRUE(Data().WindIndicatorValid);
  EXPECT_EQ(Data().WindDirectionAverage, 35.0F);  // 100 + 300 - 5 - 360
  EXPECT_EQ(Data().WindSpeedAverage, 12.5F);
  EXPECT_EQ(TakeChanges(), "WindIndicator");
}

TEST_F(InstrumentRecordTest, LaterWindIndicatorsAreSmoothedWithTheirOwnCount) {
  m_settings.m_fNmeaWindIndicatorAverage = 2.0F;
  m_record.VariationUpdate(0.0F, kOrigin);
  m_record.WindTrueUpdate(-10.0F, 10.0F, false, kOrigin);
  m_record.WindIndicatorUpdate();
  m_record.WindTrueUpdate(16.0F, 20.0F, false, kOrigin);
  m_record.WindIndicatorUpdate();
  EXPECT_NEAR(Data().WindDirectionAverage, 3.0F, 1e-4);
  EXPECT_EQ(Data().WindSpeedAverage, 15.0F);
}

TEST_F(InstrumentRecordTest, TheWindIndicatorUsesTheRawHeadingEvenWhenItIsNoLongerValid) {
  m_record.HeadingUpdate(90.0F, kOrigin);
  m_record.Restart();
  m_record.VariationUpdate(0.0F, kOrigin);
  m_record.WindTrueUpdate(45.0F, 10.0F, false, kOrigin);
  m_record.WindIndicatorUpdate();
  EXPECT_FALSE(Data().HeadingValid);
  EXPECT_EQ(Data().WindDirectionAverage, 135.0F);
}

TEST_F(InstrumentRecordTest, RestartClearsTheFlagsButNeitherTheVariationNorAnyValue) {
  m_record.HeadingUpdate(90.0F, kOrigin);
  m_record.BoatSpeedUpdate(6.0F, kOrigin);
  m_record.VariationUpdate(-7.0F, kOrigin);
  m_record.WaypointUpdate(3.0F, 44.0F, kOrigin);
  m_record.WindApparentUpdate(45.0F, 10.0F, true, kOrigin);
  m_record.WindIndicatorUpdate();
  ASSERT_TRUE(Data().WindTrueValid);
  const float trueAngle = Data().WindAngleTrue;
  m_record.ForgetChanges();

  m_record.Restart();

  EXPECT_EQ(TakeChanges(), "");
  EXPECT_FALSE(Data().HeadingValid);
  EXPECT_FALSE(Data().BoatSpeedValid);
  EXPECT_FALSE(Data().WaypointValid);
  EXPECT_FALSE(Data().WindApparentValid);
  EXPECT_FALSE(Data().WindTrueValid);
  EXPECT_FALSE(Data().WindIndicatorValid);
  EXPECT_TRUE(Data().VariationValid);
  EXPECT_EQ(Data().Variation, -7.0F);
  EXPECT_EQ(Data().Heading, 90.0F);
  EXPECT_EQ(Data().BoatSpeed, 6.0F);
  EXPECT_EQ(Data().WaypointRange, 3.0F);
  EXPECT_EQ(Data().WindAngleApparent, 45.0F);
  EXPECT_EQ(Data().WindAngleTrue, trueAngle);
}

TEST_F(InstrumentRecordTest, SmoothingRestartsFromTheNextSampleAfterARestart) {
  m_record.HeadingUpdate(90.0F, kOrigin);
  m_record.BoatSpeedUpdate(6.0F, kOrigin);
  m_record.WindApparentUpdate(45.0F, 10.0F, false, kOrigin);
  m_record.Restart();
  m_record.HeadingUpdate(10.0F, kOrigin);
  m_record.BoatSpeedUpdate(2.0F, kOrigin);
  m_record.WindApparentUpdate(-20.0F, 3.0F, false, kOrigin);
  EXPECT_EQ(Data().HeadingAverage, 10.0F);
  EXPECT_EQ(Data().BoatSpeedAverage, 2.0F);
  EXPECT_EQ(Data().WindAngleApparentAverage, -20.0F);
  EXPECT_EQ(Data().WindSpeedApparentAverage, 3.0F);
}

TEST_F(InstrumentRecordTest, EveryAngleThatInstrumentsSendStaysInsideTheRangesOfTheRecord) {
  for (const float count : {0.0F, 0.5F, 1.0F, 2.0F, 60.0F}) {
    m_settings.m_fNmeaTrueWindAverage = count;
    m_settings.m_fNmeaWindIndicatorAverage = count;
    m_record.Restart();
    m_record.HeadingUpdate(0.0F, kOrigin);
    for (int angle = -360; angle <= 360; angle += 3) {
      const auto value = static_cast<float>(angle);
      m_record.HeadingUpdate(value, kOrigin);
      m_record.BoatSpeedUpdate(6.0F, kOrigin);
      m_record.VariationUpdate(value / 2.0F, kOrigin);
      m_record.WindApparentUpdate(value, 10.0F, true, kOrigin);
      m_record.WindIndicatorUpdate();
      m_record.WindTrueUpdate(value, 10.0F, true, kOrigin);
      m_record.WindIndicatorUpdate();
      ASSERT_EQ(RecordFault(Data()), "") << angle << " with a count of " << count;
    }
  }
}

TEST_F(InstrumentRecordTest, AVerySmallCountNeverBringsAValueThatIsNotFiniteIntoTheRecord) {
  for (const float count : {1e-3F, 1e-10F, 1e-30F, 1e-38F, 1e-45F, -1e-45F, -0.5F, 3e38F}) {
    m_settings.m_fNmeaTrueWindAverage = count;
    m_settings.m_fNmeaWindIndicatorAverage = count;
    m_record.Restart();
    m_record.VariationUpdate(5.0F, kOrigin);
    for (int i = 0; i < 50; ++i) {
      const float sign = i % 2 == 0 ? 1.0F : -1.0F;
      m_record.HeadingUpdate(180.0F + sign * 170.0F, kOrigin);
      m_record.BoatSpeedUpdate(500.0F + sign * 500.0F, kOrigin);
      m_record.WindApparentUpdate(sign * 170.0F, 500.0F + sign * 500.0F, true, kOrigin);
      m_record.WindIndicatorUpdate();
      m_record.WindTrueUpdate(sign * 100.0F, 500.0F - sign * 500.0F, true, kOrigin);
      m_record.WindIndicatorUpdate();
      ASSERT_EQ(RecordFault(Data()), "") << "with a count of " << count;
    }
  }
}

TEST(InstrumentRecordByTheClock, AveragesByTheTimeOfTwoSecondsAtMost) {
  for (const auto& [milliseconds, weight] : {std::pair{1000, 0.25F}, std::pair{500, 0.1340F},
                                             std::pair{2000, 0.4375F}, std::pair{60000, 0.4375F}}) {
    Settings settings;
    settings.m_fNmeaTrueWindAverage = 4.0F;
    InstrumentRecord record(settings);
    for (const TrackMethod method : {TrackMethod::Sentence, TrackMethod::Clock}) {
      settings.m_eTrackMethod = method;
      record.Restart();
      Origin from;
      from.At.Steady = 5000;
      record.HeadingUpdate(100.0F, from);
      record.BoatSpeedUpdate(4.0F, from);
      record.WindApparentUpdate(40.0F, 10.0F, false, from);
      record.WindTrueUpdate(60.0F, 8.0F, true, from);
      from.At.Steady += milliseconds;
      record.HeadingUpdate(110.0F, from);
      record.BoatSpeedUpdate(5.0F, from);
      record.WindApparentUpdate(50.0F, 11.0F, false, from);
      record.WindTrueUpdate(70.0F, 9.0F, true, from);
      const float share = method == TrackMethod::Sentence ? 0.25F : weight;
      const InstrumentData& data = record.Data();
      EXPECT_NEAR(data.HeadingAverage, 100.0F + 10.0F * share, 0.02F) << milliseconds;
      EXPECT_NEAR(data.BoatSpeedAverage, 4.0F + share, 0.02F) << milliseconds;
      EXPECT_NEAR(data.WindAngleApparentAverage, 40.0F + 10.0F * share, 0.02F) << milliseconds;
      EXPECT_NEAR(data.WindAngleTrue, 60.0F + 10.0F * share, 0.02F) << milliseconds;
    }
  }
}

}  // namespace
}  // namespace veerwatch
