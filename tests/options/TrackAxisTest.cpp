#include "options/TrackAxis.h"

#include <gmock/gmock.h>

#include <cmath>

namespace veerwatch {
namespace {

using testing::ElementsAre;

std::vector<std::string> Texts(double from, double to, double leastStep) {
  std::vector<std::string> texts;
  for (const TrackNumber& number : TrackNumbers(from, to, leastStep)) {
    texts.push_back(number.Text);
  }
  return texts;
}

TEST(TrackNumbers, StandOnWholeMultiplesOfOneTwoOrFive) {
  EXPECT_THAT(Texts(-5.0, 15.0, 4.0), ElementsAre("-5", "0", "5", "10", "15"));
  EXPECT_THAT(Texts(-5.0, 15.0, 5.1), ElementsAre("0", "10"));
  EXPECT_THAT(Texts(0.0, 120.0, 11.0), ElementsAre("0", "20", "40", "60", "80", "100", "120"));
  EXPECT_THAT(Texts(0.0, 7.0, 1.1), ElementsAre("0", "2", "4", "6"));
  EXPECT_THAT(Texts(0.0, 1e6, 3e5), ElementsAre("0", "500000", "1000000"));
}

TEST(TrackNumbers, HaveTheirDecimals) {
  EXPECT_THAT(Texts(-0.2, 0.31, 0.08), ElementsAre("-0.2", "-0.1", "0", "0.1", "0.2", "0.3"));
  EXPECT_THAT(Texts(0.0, 0.05, 0.02), ElementsAre("0", "0.02", "0.04"));
}

TEST(TrackNumbers, AreTheSameOnAnAxisUpsideDown) {
  EXPECT_THAT(Texts(15.0, -5.0, 4.0), ElementsAre("-5", "0", "5", "10", "15"));
}

TEST(TrackNumbers, AreNoneWithoutAUsableStep) {
  for (const double step : {0.0, -1.0, static_cast<double>(NAN), 1e-9}) {
    EXPECT_TRUE(TrackNumbers(0.0, 100.0, step).empty()) << step;
  }
}

}  // namespace
}  // namespace veerwatch
