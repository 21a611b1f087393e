#include "options/SimulateTimeText.h"

#include <gtest/gtest.h>

#include <cmath>

#include "options/SimulateSpinner.h"

namespace veerwatch {
namespace {

float Parsed(std::string_view text) { return std::get<float>(SimulateTimeParse(text)); }
OptionFault FaultOf(std::string_view text) { return std::get<OptionFault>(SimulateTimeParse(text)); }

TEST(SimulateTimeParse, ReadsHoursAndMinutes) {
  EXPECT_EQ(Parsed("0:00"), 0.0F);
  EXPECT_EQ(Parsed("1:30"), 1.5F);
  EXPECT_EQ(Parsed("12:45"), 12.75F);
  EXPECT_EQ(Parsed(" 2 : 15 "), 2.25F);
  EXPECT_EQ(Parsed("1.5:30"), 2.0F);
  EXPECT_EQ(Parsed("1:90"), 2.5F);
}

TEST(SimulateTimeParse, TakesATextWithoutAColonOrWithOneInFrontAs0) {
  for (const char* text : {"0.00", "1.5", "7", "", "x", ":30", ":"}) {
    EXPECT_EQ(Parsed(text), 0.0F) << text;
  }
}

TEST(SimulateTimeParse, RefusesPartsThatAreNoNumbers) {
  for (const char* text : {"1:", "x:30", "1:x", "1:30:10", " :30"}) {
    EXPECT_EQ(FaultOf(text), OptionFault::TypeMismatch) << text;
  }
  EXPECT_EQ(FaultOf("1e40:00"), OptionFault::Overflow);
}

TEST(SimulateTimeParse, StaysFiniteAtTheEndOfSingles) { EXPECT_TRUE(std::isfinite(Parsed("3.4e38:3.4e38"))); }

TEST(SimulateTimeFormat, ShowsHoursAndTwoDigitsOfMinutes) {
  EXPECT_EQ(SimulateTimeFormat(0.0F), "0:00");
  EXPECT_EQ(SimulateTimeFormat(1.5F), "1:30");
  EXPECT_EQ(SimulateTimeFormat(0.1F), "0:06");
  EXPECT_EQ(SimulateTimeFormat(25.75F), "25:45");
}

TEST(SimulateTimeFormat, CanShow60Minutes) { EXPECT_EQ(SimulateTimeFormat(1.999F), "1:60"); }

TEST(SimulateTimeFormat, RoundsHalfMinutesToTheEvenOne) {
  // 0.375 h is 22.5 minutes, 0.125 h is 7.5 minutes; both are exact.
  EXPECT_EQ(SimulateTimeFormat(0.375F), "0:22");
  EXPECT_EQ(SimulateTimeFormat(0.125F), "0:08");
}

TEST(SimulateTimeFormat, GivesBothPartsOfANegativeTimeTheirSign) {
  EXPECT_EQ(SimulateTimeFormat(-1.5F), "-1:-30");
  EXPECT_EQ(SimulateTimeFormat(-0.5F), "0:-30");
}

TEST(SimulateTime, SurvivesATurnThroughItsText) {
  for (int minutes = -300; minutes <= 300; ++minutes) {
    const std::string text = SimulateTimeFormat(static_cast<float>(minutes / 60.0));
    const float once = Parsed(text);
    EXPECT_NEAR(once, minutes / 60.0, 1e-5) << text;
    EXPECT_EQ(SimulateTimeFormat(once), text);
  }
}

TEST(SimulateTimeStep, MovesByTenMinutesOrByOne) {
  EXPECT_EQ(SimulateTimeStep("1:30", SpinnerStep::Coarse, -1), "1:40");
  EXPECT_EQ(SimulateTimeStep("1:30", SpinnerStep::Coarse, 1), "1:20");
  EXPECT_EQ(SimulateTimeStep("1:30", SpinnerStep::Fine, -1), "1:31");
  EXPECT_EQ(SimulateTimeStep("1:30", SpinnerStep::Fine, 1), "1:29");
  EXPECT_EQ(SimulateTimeStep("0:59", SpinnerStep::Fine, -1), "1:00");
  EXPECT_EQ(SimulateTimeStep("0:00", SpinnerStep::Fine, 1), "0:-01");
}

TEST(SimulateTimeStep, LeavesTheValueAtScroll0AndTakesNonsenseAs0) {
  EXPECT_EQ(SimulateTimeStep("1:30", SpinnerStep::Coarse, 0), "1:30");
  EXPECT_EQ(SimulateTimeStep("1:x", SpinnerStep::Coarse, -1), "0:10");
  EXPECT_EQ(SimulateTimeStep("1.5", SpinnerStep::Fine, -1), "0:01");
}

TEST(SimulateTimeStep, GoesOnForADayWithoutDrifting) {
  std::string text = "0:00";
  for (int minute = 0; minute < 24 * 60; ++minute) {
    text = SimulateTimeStep(text, SpinnerStep::Fine, -1);
  }
  EXPECT_EQ(text, "24:00");
}

TEST(SimulateAngleStep, MovesByTenDegreesOrByOneWithoutWrapping) {
  EXPECT_EQ(SimulateAngleStep("225", SpinnerStep::Coarse, -1), "235");
  EXPECT_EQ(SimulateAngleStep("225", SpinnerStep::Fine, 1), "224");
  EXPECT_EQ(SimulateAngleStep("355", SpinnerStep::Coarse, -1), "365");
  EXPECT_EQ(SimulateAngleStep("5", SpinnerStep::Coarse, 1), "-5");
  EXPECT_EQ(SimulateAngleStep("12.4", SpinnerStep::Fine, -1), "13");
  EXPECT_EQ(SimulateAngleStep("x", SpinnerStep::Fine, -1), "1");
  EXPECT_EQ(SimulateAngleStep("225.6", SpinnerStep::Fine, 0), "226");
}

}  // namespace
}  // namespace veerwatch
