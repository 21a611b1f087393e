#include "history/TraceBuffer.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace veerwatch {
namespace {

class TraceBufferTest : public testing::Test {
 public:
  TraceBufferTest() { Buffer.Resize(4); }

  const TraceSlot& Feed(TraceKind kind, std::initializer_list<float> values) {
    for (const float value : values) {
      Buffer.Add(1, kind, value);
    }
    return Buffer.At(1);
  }

  TraceBuffer Buffer;
};

TEST_F(TraceBufferTest, BeginsWithEmptySlots) {
  ASSERT_EQ(Buffer.Size(), 4U);
  for (std::size_t place = 0; place < 4; ++place) {
    EXPECT_TRUE(Buffer.At(place).Empty());
  }
}

TEST_F(TraceBufferTest, KeepsTheLatestTheLowestAndTheHighest) {
  const TraceSlot& slot = Feed(TraceKind::Speed, {5.0F, 7.5F, -1.0F, 6.0F});
  EXPECT_EQ(slot.Latest, 6.0F);
  EXPECT_EQ(slot.Low, -1.0F);
  EXPECT_EQ(slot.High, 7.5F);
  EXPECT_TRUE(Buffer.At(0).Empty());
  EXPECT_TRUE(Buffer.At(2).Empty());
}

TEST_F(TraceBufferTest, KeepsASpeedAbove180AsItIs) {
  const TraceSlot& slot = Feed(TraceKind::Speed, {10.0F, 500.0F});
  EXPECT_EQ(slot.Low, 10.0F);
  EXPECT_EQ(slot.High, 500.0F);
}

TEST_F(TraceBufferTest, UnwrapsAHeadingThatPassesNorth) {
  const TraceSlot& slot = Feed(TraceKind::Angle, {358.0F, 3.0F, 1.0F});
  EXPECT_EQ(slot.Latest, 1.0F);
  EXPECT_EQ(slot.Low, -2.0F);
  EXPECT_EQ(slot.High, 3.0F);
}

TEST_F(TraceBufferTest, UnwrapsAWindAngleThatPassesTheStern) {
  const TraceSlot& slot = Feed(TraceKind::Angle, {175.0F, -178.0F});
  EXPECT_EQ(slot.Latest, -178.0F);
  EXPECT_EQ(slot.Low, -185.0F);
  EXPECT_EQ(slot.High, -178.0F);
}

TEST_F(TraceBufferTest, AFullTurnIsNotMoreThanTheCircle) {
  const TraceSlot& slot =
      Feed(TraceKind::Angle, {0.0F, 100.0F, 200.0F, 300.0F, 40.0F, 140.0F, 240.0F, 340.0F, 80.0F});
  EXPECT_EQ(slot.Latest, 80.0F);
  EXPECT_LE(slot.High - slot.Low, 360.0F);
  EXPECT_GT(slot.High - slot.Low, 300.0F);
  EXPECT_LE(slot.Low, 80.0F);
  EXPECT_GE(slot.High, 80.0F);
}

TEST_F(TraceBufferTest, FoldsAnAngleOfManyTurns) {
  EXPECT_EQ(Feed(TraceKind::Angle, {725.0F}).Latest, 5.0F);
  EXPECT_LE(std::fabs(Feed(TraceKind::Angle, {3.0e38F}).Latest), 360.0F);
}

TEST_F(TraceBufferTest, AValueThatIsNotFiniteMakesAGap) {
  for (const float bad : {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(),
                          -std::numeric_limits<float>::infinity()}) {
    Feed(TraceKind::Speed, {5.0F});
    EXPECT_TRUE(Feed(TraceKind::Speed, {bad}).Empty());
  }
}

TEST_F(TraceBufferTest, BeginsAnewAfterAGap) {
  const TraceSlot& slot = Feed(TraceKind::Speed, {5.0F, std::nanf(""), 8.0F});
  EXPECT_EQ(slot.Low, 8.0F);
  EXPECT_EQ(slot.High, 8.0F);
}

}  // namespace
}  // namespace veerwatch
