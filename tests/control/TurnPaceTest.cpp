#include "control/TurnPace.h"

#include <gtest/gtest.h>

namespace veerwatch {
namespace {

/// A turn of 90 degrees by 10 a second to `side`, from a bearing of 100, as the pilot hears of it.
class TurnPaceTest : public testing::TestWithParam<int> {
 public:
  TurnPaceTest() {
    const auto side = static_cast<float>(GetParam());
    EXPECT_TRUE(Turn.Open(100.0F + 90.0F * side, 100.0F, 100.0F, -150.0F * side));
    Turn.Start(100.0F + 90.0F * side, 0.0F, 10.0F);
    Pace.Start(Sent);
  }

  /// A second in which a sentence leaves, and one in which none does.
  bool Heard() { return Pace.Step(Turn, ++Sent, 1.0); }
  bool Unheard() { return Pace.Step(Turn, Sent, 1.0); }
  /// What is turned [deg].
  double Turned() const { return Turn.Progress() * GetParam(); }

  Manoeuvre Turn;
  TurnPace Pace;
  std::uint64_t Sent = 7;
};

INSTANTIATE_TEST_SUITE_P(Sides, TurnPaceTest, testing::Values(1, -1),
                         [](const auto& side) { return side.param > 0 ? "Starboard" : "Port"; });

TEST_P(TurnPaceTest, GoesOnWhileSentencesLeaveAndArrives) {
  for (int second = 1; second < 9; ++second) {
    EXPECT_FALSE(Heard());
    EXPECT_EQ(Turned(), 10.0 * second);
  }
  EXPECT_TRUE(Heard());
  EXPECT_EQ(Turned(), 90.0);
}

TEST_P(TurnPaceTest, TurnsByTheTimeThatHasPassedNotByItsTicks) {
  for (const double seconds : {0.95, 1.05, 0.9, 1.1}) {
    Pace.Step(Turn, ++Sent, seconds);
  }
  EXPECT_NEAR(Turned(), 40.0, 1e-9);
  Pace.Step(Turn, ++Sent, 0.0);
  EXPECT_NEAR(Turned(), 40.0, 1e-9);
}

TEST_P(TurnPaceTest, CountsAStandstillOfTheProgramAsTwoSeconds) {
  Pace.Step(Turn, ++Sent, 30.0);
  EXPECT_EQ(Turned(), 20.0);
}

TEST_P(TurnPaceTest, WaitsAtTheSecondSilentTickOfATimerThatIsEarly) {
  Pace.Step(Turn, ++Sent, 0.95);
  Pace.Step(Turn, Sent, 0.95);
  EXPECT_FALSE(Pace.Waiting());
  Pace.Step(Turn, Sent, 0.95);
  EXPECT_TRUE(Pace.Waiting());
}

TEST_P(TurnPaceTest, GoesOnWithASentenceEveryOtherSecond) {
  for (int second = 1; second <= 8; ++second) {
    second % 2 == 0 ? Heard() : Unheard();
    EXPECT_EQ(Turned(), 10.0 * second);
    EXPECT_FALSE(Pace.Waiting());
  }
}

TEST_P(TurnPaceTest, WaitsAfterTwoSilentSecondsWhereThePilotHeardOfItLast) {
  Heard();
  Heard();
  // 20 was set, and is sent within the next second.
  Heard();
  EXPECT_EQ(Turned(), 30.0);
  Unheard();
  EXPECT_EQ(Turned(), 40.0);
  for (int second = 0; second < 20; ++second) {
    EXPECT_FALSE(Unheard());
    EXPECT_TRUE(Pace.Waiting());
    EXPECT_EQ(Turned(), 20.0);
  }
  Heard();
  EXPECT_FALSE(Pace.Waiting());
  EXPECT_EQ(Turned(), 30.0);
  Heard();
  EXPECT_EQ(Turned(), 40.0);
}

TEST_P(TurnPaceTest, AsksThePilotForNoMoreThanTheRateAllowsWhateverTheGap) {
  for (int gap = 0; gap < 12; ++gap) {
    Turn.Start(100.0F + 90.0F * static_cast<float>(GetParam()), 0.0F, 10.0F);
    Pace.Start(Sent);
    double told = 0.0;
    for (int second = 0; second < 9; ++second) {
      const double before = told;
      told = Turned();
      EXPECT_LE(told - before, 10.0 * (second == 5 ? 2 : 1)) << gap << " at " << second;
      Heard();
      for (int silent = 0; second == 4 && silent < gap; ++silent) {
        Unheard();
      }
    }
  }
}

TEST_P(TurnPaceTest, NeverHeardOfItStaysAtItsStart) {
  Unheard();
  EXPECT_EQ(Turned(), 10.0);
  Unheard();
  EXPECT_EQ(Turned(), 0.0);
}

TEST_P(TurnPaceTest, HaltsAtWhatWasSentLast) {
  Heard();
  Heard();
  EXPECT_EQ(Turned(), 20.0);
  Pace.Halt(Turn, Sent);
  EXPECT_EQ(Turned(), 10.0);
}

TEST_P(TurnPaceTest, HaltsWhereItIsWhenThatWasSent) {
  Heard();
  Heard();
  Pace.Halt(Turn, ++Sent);
  EXPECT_EQ(Turned(), 20.0);
}

}  // namespace
}  // namespace veerwatch
