#include "instruments/MathLib.h"

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <numbers>

#include "settings/SettingRule.h"

namespace veerwatch {
namespace {

constexpr double kDegree = std::numbers::pi / 180.0;

TEST(Pi, HasFourteenDecimals) {
  EXPECT_EQ(kPi, 3.14159265358979);
  EXPECT_NE(kPi, std::numbers::pi);
}

// --- Atan2
// -------------------------------------------------------------------------------------------------------

TEST(Atan2, TakesTheCosineComponentFirst) {
  EXPECT_NEAR(Atan2(1.0, 0.0), 0.0, 1e-15);
  EXPECT_NEAR(Atan2(0.0, 1.0), kPi / 2.0, 1e-15);
  EXPECT_NEAR(Atan2(1.0, 1.0), kPi / 4.0, 1e-12);
  EXPECT_NEAR(Atan2(-1.0, 1.0), 3.0 * kPi / 4.0, 1e-12);
  EXPECT_NEAR(Atan2(-1.0, -1.0), -3.0 * kPi / 4.0, 1e-12);
}

TEST(Atan2, TurnsStraightBackIntoMinusPi) {
  EXPECT_EQ(Atan2(-1.0, 0.0), -3.14159265358979);
  EXPECT_EQ(Atan2(-0.001, 0.0), -3.14159265358979);
  EXPECT_EQ(Atan2(-1.0, -0.0), -3.14159265358979);
}

TEST(Atan2, IsZeroForTheNullVector) { EXPECT_EQ(Atan2(0.0, 0.0), 0.0); }

TEST(Atan2, IsAQuarterTurnOnTheSineAxis) {
  EXPECT_EQ(Atan2(0.0, 2.0), 3.14159265358979 / 2.0);
  EXPECT_EQ(Atan2(0.0, -2.0), -3.14159265358979 / 2.0);
}

TEST(Atan2, AgreesWithTheArgumentOfAComplexNumberAllAround) {
  for (int tenths = -1799; tenths <= 1799; ++tenths) {
    const std::complex<double> z = std::polar(3.0, tenths * 0.1 * kDegree);
    ASSERT_NEAR(Atan2(z.real(), z.imag()), std::arg(z), 1e-12) << tenths;
  }
}

// --- Averages
// ----------------------------------------------------------------------------------------------------

float Relative(float sample, float count, float average) {
  AverageAngleRelative(sample, count, average);
  return average;
}

float Absolute(float sample, float count, float average) {
  AverageAngleAbsolute(sample, count, average);
  return average;
}

float Value(float sample, float count, float average) {
  AverageValue(sample, count, average);
  return average;
}

TEST(AverageValue, ReturnsTheSampleForACountOfZeroOrOne) {
  EXPECT_EQ(Value(7.3F, 0.0F, 100.0F), 7.3F);
  EXPECT_EQ(Value(7.3F, 1.0F, 100.0F), 7.3F);
}

TEST(AverageValue, WeighsTheSampleWithAQuarterForACountOfFour) {
  EXPECT_EQ(Value(8.0F, 4.0F, 4.0F), 5.0F);
  EXPECT_EQ(Value(0.0F, 4.0F, 4.0F), 3.0F);
}

TEST(AverageValue, OvershootsForACountBetweenZeroAndOne) {
  // Weight 2 for the sample and -1 for the average.
  EXPECT_EQ(Value(10.0F, 0.5F, 4.0F), 16.0F);
}

TEST(AverageValue, StaysNearASteadySampleForEveryCountThatIsOne) {
  for (float count = 0.51F; count < 3.0F; count += 0.01F) {
    ASSERT_TRUE(IsAverageCount(count));
    float average = 5.0F;
    for (int i = 0; i < 2000; ++i) {
      AverageValue(12.0F, count, average);
      ASSERT_LT(std::fabs(average - 12.0F), 7.0F) << count;
    }
    EXPECT_NEAR(average, 12.0F, 0.01F) << count;
  }
}

TEST(AverageValue, ApproachesASteadySample) {
  float average = 0.0F;
  for (int i = 1; i <= 20; ++i) {
    AverageValue(10.0F, 4.0F, average);
    ASSERT_NEAR(average, 10.0 * (1.0 - std::pow(0.75, i)), 1e-4) << i;
  }
}

TEST(AverageCountAfter, IsTheCountAtOneSecondAndForCountsWithoutMemory) {
  for (const float count : {0.0F, 0.6F, 1.0F, 2.0F, 7.5F, 1000.0F}) {
    EXPECT_EQ(AverageCountAfter(count, 1.0), count);
  }
  for (const double seconds : {0.0, 0.1, 2.0}) {
    EXPECT_EQ(AverageCountAfter(0.0F, seconds), 0.0F);
    EXPECT_EQ(AverageCountAfter(0.6F, seconds), 0.6F);
    EXPECT_EQ(AverageCountAfter(1.0F, seconds), 1.0F);
  }
}

TEST(AverageCountAfter, WeighsAsMuchASecondAtEveryRate) {
  for (const float count : {1.5F, 2.0F, 4.0F, 60.0F}) {
    float once = 10.0F;
    AverageValue(20.0F, count, once);
    for (const int rate : {2, 5, 10}) {
      float often = 10.0F;
      for (int sample = 0; sample < rate; ++sample) {
        AverageValue(20.0F, AverageCountAfter(count, 1.0 / rate), often);
      }
      EXPECT_NEAR(often, once, 1e-4F) << count << " " << rate;
    }
  }
}

TEST(AverageCountAfter, GivesASampleOfTheSameMomentNoWeight) {
  float value = 10.0F;
  AverageValue(20.0F, AverageCountAfter(4.0F, 0.0), value);
  EXPECT_EQ(value, 10.0F);
  float angle = 30.0F;
  AverageAngleRelative(90.0F, AverageCountAfter(4.0F, 0.0), angle);
  EXPECT_NEAR(angle, 30.0F, 1e-5F);
}

TEST(AverageAngleRelative, ReturnsTheSampleForACountOfZeroOrOne) {
  EXPECT_EQ(Relative(-170.0F, 0.0F, 30.0F), -170.0F);
  EXPECT_NEAR(Relative(-170.0F, 1.0F, 30.0F), -170.0F, 1e-4);
}

TEST(AverageAngleRelative, WeighsTheSampleWithAQuarterForACountOfFour) {
  // A quarter of the unit vector to starboard and three quarters of the one ahead: atan(1/3) = 18.4349
  // degrees.
  EXPECT_NEAR(Relative(90.0F, 4.0F, 0.0F), 18.4349488F, 1e-4);
  EXPECT_NEAR(Relative(-90.0F, 4.0F, 0.0F), -18.4349488F, 1e-4);
}

TEST(AverageAngleRelative, OvershootsForACountBetweenZeroAndOne) {
  // Twice the vector at 90 less the one at 0: atan2(2, -1) = 116.565 degrees.
  EXPECT_NEAR(Relative(90.0F, 0.5F, 0.0F), 116.5650512F, 1e-4);
}

TEST(AverageAngleRelative, AveragesAcrossTheStern) {
  EXPECT_NEAR(std::abs(Relative(170.0F, 2.0F, -170.0F)), 180.0F, 1e-4);
  EXPECT_NEAR(Relative(174.0F, 2.0F, -170.0F), -178.0F, 1e-3);
}

TEST(AverageAngleRelative, StaysInsideItsRangeForEveryPairOfAngles) {
  for (int a = -180; a <= 180; a += 5) {
    for (int b = -180; b <= 180; b += 5) {
      for (const float count : {0.5F, 1.0F, 2.0F, 7.0F}) {
        const float average = Relative(static_cast<float>(a), count, static_cast<float>(b));
        ASSERT_GE(average, -180.0F);
        ASSERT_LE(average, 180.0F);
      }
    }
  }
}

TEST(AverageAngleRelative, AgreesWithTheSumOfComplexNumbers) {
  for (int a = -179; a <= 180; a += 7) {
    for (int b = -179; b <= 180; b += 11) {
      const std::complex<double> sum =
          0.2 * std::polar(1.0, a * kDegree) + 0.8 * std::polar(1.0, b * kDegree);
      const float average = Relative(static_cast<float>(a), 5.0F, static_cast<float>(b));
      ASSERT_NEAR(std::remainder(static_cast<double>(average) - std::arg(sum) / kDegree, 360.0), 0.0, 1e-4)
          << a << " " << b;
    }
  }
}

TEST(AverageAngleAbsolute, ReturnsTheSampleForACountOfZeroOrOne) {
  EXPECT_EQ(Absolute(350.0F, 0.0F, 30.0F), 350.0F);
  EXPECT_NEAR(Absolute(350.0F, 1.0F, 30.0F), 350.0F, 1e-4);
}

TEST(AverageAngleAbsolute, Averages350And10NearNorthAndNeverNear180) {
  const float average = Absolute(350.0F, 2.0F, 10.0F);
  EXPECT_NEAR(std::remainder(average, 360.0F), 0.0, 1e-4);
  EXPECT_GE(average, 0.0F);
  EXPECT_LT(average, 360.0F);
}

TEST(AverageAngleAbsolute, StaysInsideItsRangeForEveryPairOfAngles) {
  for (int a = 0; a < 360; a += 5) {
    for (int b = 0; b < 360; b += 5) {
      for (const float count : {0.5F, 1.0F, 2.0F, 7.0F, 60.0F}) {
        const float average = Absolute(static_cast<float>(a), count, static_cast<float>(b));
        ASSERT_GE(average, 0.0F) << a << " " << b << " " << count;
        ASSERT_LT(average, 360.0F) << a << " " << b << " " << count;
      }
    }
  }
}

TEST(AverageAngleAbsolute, StaysBelow360WhenTheSingleRoundsUp) {
  // Averages a hair to port of north.
  for (const float sample : {-1e-7F, -1e-12F, -1e-30F, 359.99997F}) {
    for (const float count : {1.0F, 2.0F, 1e6F}) {
      const float average = Absolute(sample, count, 0.0F);
      EXPECT_GE(average, 0.0F) << sample << " " << count;
      EXPECT_LT(average, 360.0F) << sample << " " << count;
    }
  }
}

// --- Wind
// --------------------------------------------------------------------------------------------------------

struct Wind {
  float Speed;
  float Angle;
};

Wind True(float speed, float angle, float boatSpeed) {
  Wind wind{};
  WindTrueFromApparent(speed, angle, boatSpeed, wind.Speed, wind.Angle);
  return wind;
}

Wind Apparent(float speed, float angle, float boatSpeed) {
  Wind wind{};
  WindApparentFromTrue(speed, angle, boatSpeed, wind.Speed, wind.Angle);
  return wind;
}

TEST(WindTrueFromApparent, GivesOneKnotFromMinus180ForFiveKnotsAheadAtSix) {
  const Wind wind = True(5.0F, 0.0F, 6.0F);
  EXPECT_EQ(wind.Speed, 1.0F);
  EXPECT_EQ(wind.Angle, -180.0F);
}

TEST(WindTrueFromApparent, SolvesTheThreeFourFiveTriangle) {
  // 5 knots from 53.13 degrees are 3 ahead and 4 abeam; at 3 knots only the 4 abeam are left.
  const Wind wind = True(5.0F, 53.130102F, 3.0F);
  EXPECT_NEAR(wind.Speed, 4.0F, 1e-5);
  EXPECT_NEAR(wind.Angle, 90.0F, 1e-4);
  EXPECT_NEAR(True(5.0F, -53.130102F, 3.0F).Angle, -90.0F, 1e-4);
}

TEST(WindApparentFromTrue, SolvesTheThreeFourFiveTriangle) {
  const Wind wind = Apparent(4.0F, 90.0F, 3.0F);
  EXPECT_NEAR(wind.Speed, 5.0F, 1e-5);
  EXPECT_NEAR(wind.Angle, 53.130102F, 1e-4);
  EXPECT_NEAR(Apparent(4.0F, -90.0F, 3.0F).Angle, -53.130102F, 1e-4);
}

TEST(WindApparentFromTrue, IsAHeadWindOfTheBoatSpeedInACalm) {
  const Wind wind = Apparent(0.0F, 0.0F, 6.0F);
  EXPECT_EQ(wind.Speed, 6.0F);
  EXPECT_EQ(wind.Angle, 0.0F);
}

TEST(WindApparentFromTrue, IsZeroFromAheadWhenTheBoatRunsWithTheWind) {
  const Wind wind = Apparent(0.0F, 0.0F, 0.0F);
  EXPECT_EQ(wind.Speed, 0.0F);
  EXPECT_EQ(wind.Angle, 0.0F);
}

TEST(WindHelpers, AreInverseToEachOtherAllAround) {
  for (int angle = -179; angle <= 179; ++angle) {
    for (const float boatSpeed : {0.0F, 3.0F, 8.5F, 20.0F}) {
      const Wind apparent = Apparent(12.0F, static_cast<float>(angle), boatSpeed);
      const Wind back = True(apparent.Speed, apparent.Angle, boatSpeed);
      ASSERT_NEAR(back.Speed, 12.0F, 1e-4) << angle << " " << boatSpeed;
      ASSERT_NEAR(std::remainder(back.Angle - static_cast<float>(angle), 360.0F), 0.0, 2e-4) << angle;
    }
  }
}

TEST(WindHelpers, AgreeWithTheSumOfComplexNumbersAllAround) {
  for (int angle = -179; angle <= 179; ++angle) {
    const std::complex<double> wind = std::polar(10.0, angle * kDegree);
    const Wind apparent = Apparent(10.0F, static_cast<float>(angle), 6.0F);
    ASSERT_NEAR(apparent.Speed, std::abs(wind + 6.0), 1e-5);
    ASSERT_NEAR(apparent.Angle, std::arg(wind + 6.0) / kDegree, 1e-4);
    const Wind trueWind = True(10.0F, static_cast<float>(angle), 6.0F);
    ASSERT_NEAR(trueWind.Speed, std::abs(wind - 6.0), 1e-5);
    ASSERT_NEAR(trueWind.Angle, std::arg(wind - 6.0) / kDegree, 1e-4);
  }
}

// --- Min and Max
// -------------------------------------------------------------------------------------------------

TEST(MinMax, ChooseAndNarrowToSingle) {
  EXPECT_EQ(Min(1.0, 2.0), 1.0F);
  EXPECT_EQ(Min(2.0, -1.0), -1.0F);
  EXPECT_EQ(Max(1.0, 2.0), 2.0F);
  EXPECT_EQ(Max(2.0, -1.0), 2.0F);
  EXPECT_EQ(Min(0.1, 0.2), 0.1F);
  EXPECT_EQ(Max(0.1, 0.1), 0.1F);
}

TEST(MinMax, TakeTheFirstOfTwoEqual) {
  EXPECT_TRUE(std::signbit(Min(-0.0, 0.0)));
  EXPECT_FALSE(std::signbit(Min(0.0, -0.0)));
  EXPECT_TRUE(std::signbit(Max(-0.0, 0.0)));
  EXPECT_FALSE(std::signbit(Max(0.0, -0.0)));
}

}  // namespace
}  // namespace veerwatch
