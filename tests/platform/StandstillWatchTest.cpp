#include "platform/StandstillWatch.h"

#include <gtest/gtest.h>

namespace veerwatch {
namespace {

TEST(StandstillWatch, TakesMoreThanTwoSecondsBetweenTwoBeatsForAStandstill) {
  StandstillWatch watch;
  watch.Restart(10'000);
  EXPECT_FALSE(watch.Beat(10'500));
  EXPECT_FALSE(watch.Beat(12'500));
  EXPECT_TRUE(watch.Beat(14'501));
  EXPECT_FALSE(watch.Beat(14'502));
}

TEST(StandstillWatch, CallsWhatArrivesOldForThreeTenthsAfterAStandstill) {
  StandstillWatch watch;
  watch.Restart(0);
  EXPECT_FALSE(watch.Old(0));
  watch.Beat(5000);
  EXPECT_TRUE(watch.Old(5000));
  EXPECT_TRUE(watch.Old(5299));
  EXPECT_FALSE(watch.Old(5300));
}

TEST(StandstillWatch, CallsNothingOldThatArrivesWithoutAStandstill) {
  StandstillWatch watch;
  watch.Restart(0);
  watch.Beat(2000);
  EXPECT_FALSE(watch.Old(2000));
}

TEST(StandstillWatch, BeginsAnewFromARestart) {
  StandstillWatch watch;
  watch.Restart(0);
  watch.Beat(5000);
  watch.Restart(5001);
  EXPECT_FALSE(watch.Old(5001));
  watch.Restart(20'000);
  EXPECT_FALSE(watch.Beat(20'100));
}

}  // namespace
}  // namespace veerwatch
