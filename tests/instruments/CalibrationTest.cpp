// The settings that make good how an instrument is mounted or reads.
#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

#include "instruments/Calibration.h"
#include "instruments/SourceChoice.h"

namespace veerwatch {
namespace {

class Calibration : public testing::Test {
 protected:
  Calibration() {
    m_settings.m_iNmeaHeading = 0;
    m_settings.m_iNmeaBoatSpeed = 0;
    m_settings.m_iNmeaTrueWind = 0;
    m_settings.m_fNmeaTrueWindAverage = 0.0F;
    m_settings.m_fNmeaWindOffset = -4.0F;
    m_settings.m_fNmeaBoatSpeedFactor = 1.25F;
    m_settings.m_fNmeaHeadingOffset = 7.0F;
  }

  void Bring(const std::vector<std::pair<Quantity, float>>& values) {
    Readings readings(OriginOf("$IIXXX", 5, {m_steady += 100, 0}));
    for (const auto& [what, value] : values) {
      readings.Add(what, value);
    }
    m_choice.Take(readings);
  }
  const InstrumentData& Data() const { return m_record.Data(); }

  Settings m_settings;
  InstrumentRecord m_record{m_settings};
  SourceChoice m_choice{m_settings, m_record};
  std::int64_t m_steady = 0;
};

TEST_F(Calibration, TurnsTheApparentWindAndTheSensorsTrueWind) {
  Bring({{Quantity::ApparentWindAngle, 30.0F}, {Quantity::ApparentWindSpeed, 14.0F}});
  EXPECT_EQ(Data().WindAngleApparent, 26.0F);
  EXPECT_EQ(Data().WindSpeedApparent, 14.0F);
  Bring({{Quantity::TrueWindAngle, -178.0F}, {Quantity::TrueWindSpeed, 12.0F}});
  EXPECT_EQ(Data().WindAngleTrue, 178.0F) << "across dead astern";
}

TEST_F(Calibration, TheComputedTrueWindComesOfTheTurnedApparentOne) {
  m_settings.m_iNmeaTrueWind = 1;
  Bring({{Quantity::SpeedThroughWater, 4.0F}});
  Bring({{Quantity::ApparentWindAngle, 4.0F}, {Quantity::ApparentWindSpeed, 15.0F}});
  EXPECT_NEAR(Data().WindAngleTrue, 0.0F, 1e-4F);
  EXPECT_NEAR(Data().WindSpeedTrue, 10.0F, 1e-4F);
}

TEST_F(Calibration, MakesTheLogRunFaster) {
  Bring({{Quantity::SpeedThroughWater, 4.0F}});
  EXPECT_EQ(Data().BoatSpeed, 5.0F);
}

TEST_F(Calibration, TurnsTheCompassMagneticAndTrue) {
  Bring({{Quantity::Heading, 356.0F}});
  EXPECT_EQ(Data().Heading, 3.0F);
  Bring({{Quantity::Variation, -3.0F}});
  Bring({{Quantity::HeadingTrue, 100.0F}});
  EXPECT_EQ(Data().Heading, 110.0F);
}

TEST_F(Calibration, LeavesWhatComesOfTheSatellites) {
  m_settings.m_iNmeaHeading = 1;
  m_settings.m_iNmeaBoatSpeed = 1;
  Bring({{Quantity::CourseMagnetic, 40.0F}, {Quantity::SpeedOverGround, 4.0F}});
  EXPECT_EQ(Data().Heading, 40.0F);
  EXPECT_EQ(Data().BoatSpeed, 4.0F);
  Bring({{Quantity::Variation, -3.0F}});
  Bring({{Quantity::CourseTrue, 40.0F}});
  EXPECT_EQ(Data().Heading, 43.0F);
}

TEST_F(Calibration, AWindsDirectionIsTurnedBackWithTheCompassThatItWasReckonedWith) {
  m_settings.m_fNmeaWindOffset = 0.0F;
  Bring({{Quantity::Heading, 90.0F}});
  Bring({{Quantity::WindDirectionMagnetic, 130.0F}, {Quantity::TrueWindSpeed, 12.0F}});
  EXPECT_EQ(Data().WindAngleTrue, 40.0F) << "with the uncorrected compass aboard";
  m_settings.m_fNmeaWindOffset = -4.0F;
  Bring({{Quantity::WindDirectionMagnetic, 130.0F}, {Quantity::TrueWindSpeed, 12.0F}});
  EXPECT_EQ(Data().WindAngleTrue, 36.0F);
}

TEST_F(Calibration, KeepsTheLargestSpeedFinite) {
  m_settings.m_fNmeaBoatSpeedFactor = 2.0F;
  Bring({{Quantity::SpeedThroughWater, FLT_MAX}});
  EXPECT_TRUE(std::isfinite(Data().BoatSpeed));
}

TEST(Uncalibrated, PassesEveryValueBitByBit) {
  const Settings settings;
  for (const float value : {-0.0F, 0.1F, 359.99997F, -1234.5678F, FLT_MIN}) {
    EXPECT_EQ(std::signbit(CalibratedWindAngle(settings, value)), std::signbit(value));
    EXPECT_EQ(CalibratedWindAngle(settings, value), value);
    EXPECT_EQ(CalibratedBoatSpeed(settings, value), value);
    EXPECT_EQ(CalibratedHeading(settings, value), value);
  }
}

TEST(CalibrationFor, AWindThatShouldBeDeadAheadIsSetThere) {
  EXPECT_EQ(WindOffsetFor(6.0F, 0.0F), -6.0F);
  EXPECT_EQ(WindOffsetFor(-3.0F, -6.0F), -3.0F) << "seen with an offset already";
  EXPECT_EQ(WindOffsetFor(-175.0F, 10.0F), -175.0F) << "a vane that is mounted the wrong way round";
}

TEST(CalibrationFor, AHeadingIsBroughtToTheCourse) {
  EXPECT_EQ(HeadingOffsetFor(355.0F, 5.0F, 0.0F), 10.0F);
  EXPECT_EQ(HeadingOffsetFor(5.0F, 355.0F, 4.0F), -6.0F);
}

TEST(CalibrationFor, ALogIsBroughtToTheSpeedOverGround) {
  EXPECT_EQ(BoatSpeedFactorFor(5.0F, 6.0F, 1.0F), 1.2F);
  EXPECT_EQ(BoatSpeedFactorFor(6.0F, 5.0F, 1.2F), 1.0F);
}

TEST(CalibrationFor, ALogThatHardlyTurnsOrIsFarOffGivesNoFactor) {
  EXPECT_EQ(BoatSpeedFactorFor(1.9F, 2.5F, 1.0F), std::nullopt);
  EXPECT_EQ(BoatSpeedFactorFor(2.5F, 1.9F, 1.0F), std::nullopt);
  EXPECT_EQ(BoatSpeedFactorFor(3.0F, 7.0F, 1.0F), std::nullopt);
  EXPECT_EQ(BoatSpeedFactorFor(7.0F, 3.0F, 1.0F), std::nullopt);
  EXPECT_EQ(BoatSpeedFactorFor(std::nanf(""), 5.0F, 1.0F), std::nullopt);
}

}  // namespace
}  // namespace veerwatch
