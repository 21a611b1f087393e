#include "alarms/TonePattern.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace veerwatch {
namespace {

constexpr int kRate = 48000;

int Loudest(const std::vector<std::int16_t>& samples) {
  int most = 0;
  for (const std::int16_t sample : samples) {
    most = std::max(most, std::abs(static_cast<int>(sample)));
  }
  return most;
}

/// How often the samples go up through 0.
int Waves(const std::vector<std::int16_t>& samples) {
  int count = 0;
  for (std::size_t i = 1; i < samples.size(); ++i) {
    count += samples[i - 1] < 0 && samples[i] >= 0 ? 1 : 0;
  }
  return count;
}

TEST(TonePattern, TheWorseIsHigherAndComesMoreOften) {
  const TonePattern red = PatternOf(Level::Red, false);
  const TonePattern amber = PatternOf(Level::Amber, false);
  const TonePattern note = PatternOf(Level::Note, false);
  EXPECT_LT(red.Repeat, amber.Repeat);
  EXPECT_LT(amber.Repeat, note.Repeat);
  EXPECT_GT(red.Notes[0].Frequency, amber.Notes[0].Frequency);
  EXPECT_GT(amber.Notes[0].Frequency, note.Notes[0].Frequency);
  EXPECT_GT(red.Notes.size(), amber.Notes.size());
}

TEST(TonePattern, EachEndsBeforeItIsDueAgain) {
  for (const Level level : {Level::Red, Level::Amber, Level::Note}) {
    for (const bool rises : {false, true}) {
      const TonePattern pattern = PatternOf(level, rises);
      const auto samples = static_cast<std::int64_t>(ToneSamples(pattern, kRate).size());
      EXPECT_LT(samples * 1000 / kRate, pattern.Repeat);
    }
  }
}

TEST(TonePattern, OneThatRisesIsLouderAndComesTwiceAsOften) {
  const TonePattern usual = PatternOf(Level::Red, false);
  const TonePattern rising = PatternOf(Level::Red, true);
  EXPECT_EQ(rising.Repeat * 2, usual.Repeat);
  const int loud = Loudest(ToneSamples(rising, kRate));
  EXPECT_GT(loud, 32000);
  EXPECT_LE(loud, 32767);
  EXPECT_LT(Loudest(ToneSamples(usual, kRate)), loud / 2);
}

TEST(TonePattern, ANoteHasItsFrequencyItsLengthAndNoEdges) {
  TonePattern pattern;
  pattern.Notes = {{500.0, 0.5}, {0.0, 0.25}};
  const std::vector<std::int16_t> samples = ToneSamples(pattern, kRate);
  ASSERT_EQ(samples.size(), 36000U);
  EXPECT_NEAR(Waves({samples.begin(), samples.begin() + 24000}), 250, 1);
  EXPECT_EQ(Loudest({samples.begin() + 24000, samples.end()}), 0) << "the rest";
  EXPECT_LT(Loudest({samples.begin(), samples.begin() + 10}), 500);
  EXPECT_LT(Loudest({samples.begin() + 23990, samples.begin() + 24000}), 1500);
}

constexpr AlarmTone kSilence{};
constexpr AlarmTone kRed{Level::Red, false};
constexpr AlarmTone kRising{Level::Red, true};
constexpr AlarmTone kAmber{Level::Amber, false};

TEST(ToneSchedule, RepeatsAPatternUntilThereIsSilence) {
  ToneSchedule schedule;
  int begun = 0;
  for (std::int64_t second = 0; second < 10; ++second) {
    // A timer that comes now a little early and now a little late.
    begun += schedule.Next(kRed, second * 1000 + second % 2 * 60).has_value() ? 1 : 0;
  }
  EXPECT_EQ(begun, 5);
  EXPECT_FALSE(schedule.Next(kSilence, 10000));
  EXPECT_TRUE(schedule.Next(kRed, 10100)) << "anew";
}

TEST(ToneSchedule, AnotherLevelBeginsAtOnce) {
  ToneSchedule schedule;
  EXPECT_TRUE(schedule.Next(kAmber, 0));
  EXPECT_FALSE(schedule.Next(kAmber, 1000));
  EXPECT_TRUE(schedule.Next(kRed, 2000));
  EXPECT_FALSE(schedule.Next(kRed, 3000));
  const auto rising = schedule.Next(kRising, 3500);
  ASSERT_TRUE(rising);
  EXPECT_EQ(rising->Loudness, 1.0);
  EXPECT_TRUE(schedule.Next(kRising, 4500));
}

}  // namespace
}  // namespace veerwatch
