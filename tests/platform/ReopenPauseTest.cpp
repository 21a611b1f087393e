#include "platform/ReopenPause.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <vector>

namespace veerwatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The ticks, counted from 1, at which the port is tried, while `open` says at which it is open.
std::vector<int> Tries(
    ReopenPause& pause, int ticks, const std::function<bool(int)>& open = [](int) { return false; }) {
  std::vector<int> tries;
  for (int tick = 1; tick <= ticks; ++tick) {
    if (pause.Tick(open(tick))) {
      tries.push_back(tick);
    }
  }
  return tries;
}

TEST(ReopenPause, TriesAtEveryFourthTick) {
  ReopenPause pause;
  EXPECT_THAT(Tries(pause, 13), ElementsAre(4, 8, 12));
}

TEST(ReopenPause, CountsOnWhileThePortIsOpen) {
  ReopenPause pause;
  EXPECT_THAT(Tries(pause, 13, [](int tick) { return tick < 7; }), ElementsAre(8, 12));
}

TEST(ReopenPause, TriesNothingThatIsOpen) {
  ReopenPause pause;
  EXPECT_THAT(Tries(pause, 13, [](int) { return true; }), IsEmpty());
}

TEST(ReopenPause, CountsAnewFromTheStart) {
  ReopenPause pause;
  Tries(pause, 3);
  pause.Restart();
  EXPECT_THAT(Tries(pause, 5), ElementsAre(4));
}

TEST(ReopenPause, DoublesUpToTheLongest) {
  ReopenPause pause(2, 12);
  EXPECT_THAT(Tries(pause, 45), ElementsAre(2, 6, 14, 26, 38));
}

TEST(ReopenPause, BeginsWithTheFirstAgainOnceThePortWasOpen) {
  ReopenPause pause(1, 8);
  EXPECT_THAT(Tries(pause, 20, [](int tick) { return tick >= 4 && tick < 9; }), ElementsAre(1, 3, 9, 11, 15));
}

TEST(ReopenPause, BeginsWithTheFirstAgainFromTheStart) {
  ReopenPause pause(1, 8);
  Tries(pause, 7);
  pause.Restart();
  EXPECT_THAT(Tries(pause, 3), ElementsAre(1, 3));
}

}  // namespace
}  // namespace veerwatch
