#include "helm/WindRecorder.h"

#include <gtest/gtest.h>

#include "tests/support/MemoryInUse.h"

namespace veerwatch {
namespace {

/// A record that the test fills, and passes that it tells.
class WindRecorderTest : public testing::Test {
 protected:
  WindRecorderTest() { m_settings.m_iNmeaTrueWind = 0; }

  void Heading(float heading) { m_record.HeadingUpdate(heading, Now()); }
  /// A wind of both sides, and the pass that follows from it.
  void Wind(float angle, float speed = 12.0F) {
    m_record.WindApparentUpdate(angle / 2.0F, speed, false, Now());
    m_record.WindTrueUpdate(angle, speed, true, Now());
    m_observers.Tell([&](HelmObserver& told) { told.OnWindTrue(0.0F, 0.0F); });
    Pass();
  }
  void Pass() {
    m_observers.Tell([](HelmObserver& told) { told.OnDelta(0.0F, 0.0F); });
  }
  Origin Now() const {
    Origin from;
    from.At = m_now;
    return from;
  }

  Settings m_settings;
  InstrumentRecord m_record{m_settings};
  HelmObservers m_observers;
  Moment m_now{5000, 0};
};

TEST_F(WindRecorderTest, KeepsDirectionAndSpeedBeforeTheyAreSmoothed) {
  const WindRecorder recorder(m_observers, m_record);
  Heading(340.0F);
  Wind(30.0F, 10.0F);
  m_now.Steady += 1000;
  Wind(-50.0F, 14.0F);
  const auto winds = recorder.Winds();
  ASSERT_EQ(winds.size(), 2U);
  EXPECT_EQ(winds[0].Moment, 5000);
  EXPECT_FLOAT_EQ(winds[0].Direction, 10.0F);
  EXPECT_FLOAT_EQ(winds[1].Direction, 290.0F);
  EXPECT_EQ(winds[1].Speed, 14.0F);
}

TEST_F(WindRecorderTest, TellsAPassWithoutANewTrueWind) {
  const WindRecorder recorder(m_observers, m_record);
  Heading(100.0F);
  Wind(30.0F);
  m_now.Steady += 500;
  m_record.WindApparentUpdate(20.0F, 12.0F, false, Now());
  Pass();
  const auto winds = recorder.Winds();
  ASSERT_EQ(winds.size(), 2U);
  EXPECT_TRUE(winds[0].BringsTrue);
  EXPECT_FALSE(winds[1].BringsTrue);
  EXPECT_EQ(winds[1].Moment, 5500);
}

TEST_F(WindRecorderTest, NeedsAHeadingOfTheLastSeconds) {
  const WindRecorder recorder(m_observers, m_record);
  Wind(30.0F);
  EXPECT_TRUE(recorder.Winds().empty());
  Heading(100.0F);
  m_now.Steady += 3999;
  Wind(30.0F);
  EXPECT_EQ(recorder.Winds().size(), 1U);
  m_now.Steady += 1;
  Wind(30.0F);
  EXPECT_EQ(recorder.Winds().size(), 1U);
}

TEST_F(WindRecorderTest, KeepsTheSpanBeforeTheNewestAndNoMoreThanItMay) {
  const WindRecorder byTime(m_observers, m_record, 10000, 1000);
  const WindRecorder byCount(m_observers, m_record, 1000000, 8);
  for (int second = 0; second < 30; ++second) {
    Heading(100.0F);
    Wind(static_cast<float>(second));
    m_now.Steady += 1000;
  }
  const auto timed = byTime.Winds();
  ASSERT_EQ(timed.size(), 11U);
  EXPECT_FLOAT_EQ(timed.front().Direction, 119.0F);
  EXPECT_FLOAT_EQ(timed.back().Direction, 129.0F);
  const auto counted = byCount.Winds();
  ASSERT_EQ(counted.size(), 8U);
  EXPECT_FLOAT_EQ(counted.front().Direction, 122.0F);
  EXPECT_FLOAT_EQ(counted.back().Direction, 129.0F);
}

TEST_F(WindRecorderTest, BeginsAnewOnAClockThatRunsBack) {
  const WindRecorder recorder(m_observers, m_record, 1000000, 4);
  for (int second = 0; second < 6; ++second) {
    Heading(100.0F);
    Wind(30.0F);
    m_now.Steady += 1000;
  }
  m_now.Steady = 100;
  Heading(100.0F);
  Wind(60.0F);
  const auto winds = recorder.Winds();
  ASSERT_EQ(winds.size(), 1U);
  EXPECT_FLOAT_EQ(winds[0].Direction, 160.0F);
}

TEST_F(WindRecorderTest, TakesNoMoreMemoryOnceItIsMade) {
  const WindRecorder recorder(m_observers, m_record);
  Heading(100.0F);
  Wind(30.0F);
  const std::size_t before = MemoryInUse();
  for (int second = 0; second < 50000; ++second) {
    m_now.Steady += 1000;
    Heading(100.0F);
    Wind(30.0F);
  }
  EXPECT_EQ(MemoryInUse(), before);
}

}  // namespace
}  // namespace veerwatch
