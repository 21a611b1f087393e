#include "options/TrackInUseText.h"

#include <gtest/gtest.h>

namespace veerwatch {
namespace {

TEST(TrackInUseText, NamesBandwidthAndDamping) {
  EXPECT_EQ(TrackInUseText({20.0F, 4.0F}), "In use: 20 s, 4. Press Track to use what you apply.");
  EXPECT_EQ(TrackInUseText({12.5F, 0.7F}), "In use: 12.5 s, 0.7. Press Track to use what you apply.");
}

TEST(TrackInUseText, NamesAnotherMethodThanSentence) {
  EXPECT_EQ(TrackInUseText({60.0F, 4.0F, TrackMethod::Clock}),
            "In use: Clock, 60 s, 4. Press Track to use what you apply.");
  EXPECT_EQ(TrackInUseText({20.0F, 4.0F, TrackMethod::Direction}),
            "In use: Direction, 20 s. Press Track to use what you apply.");
}

}  // namespace
}  // namespace veerwatch
