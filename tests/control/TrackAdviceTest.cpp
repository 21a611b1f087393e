#include "control/TrackAdvice.h"

#include <gtest/gtest.h>

namespace veerwatch {
namespace {

TEST(TrackSuggestion, IsDirectionAtEveryRateCalmForABoatThatAnswersSoon) {
  for (const double rate : {0.5, 1.0, 5.0, 10.0}) {
    for (const double lag : {0.0, 2.0, 6.0}) {
      const TrackSuggestion suggestion = TrackSuggestionFor({rate, lag, true, true});
      EXPECT_EQ(suggestion.Method, TrackMethod::Direction);
      EXPECT_EQ(suggestion.Bandwidth, 60.0F);
      EXPECT_EQ(suggestion.WindAverage, 2.0F);
      EXPECT_EQ(suggestion.AlarmAverage, 5.0F);
    }
  }
  EXPECT_EQ(TrackSuggestionFor({5.0, 2.5, true, true}).Reason,
            "Direction holds at 5 wind sentences a second without tuning; 60 s keep the rudder calm on a "
            "boat that answers in 2.5 s.");
}

TEST(TrackSuggestion, IsCloserForASlowBoat) {
  for (const double lag : {6.1, 8.0, 20.0}) {
    const TrackSuggestion suggestion = TrackSuggestionFor({1.0, lag, true, true});
    EXPECT_EQ(suggestion.Method, TrackMethod::Direction);
    EXPECT_EQ(suggestion.Bandwidth, 40.0F);
  }
  EXPECT_EQ(TrackSuggestionFor({1.0, 8.0, true, true}).Reason,
            "Direction holds at 1 wind sentence a second without tuning; 40 s follow closely and cost little "
            "rudder on a boat that takes 8 s to answer.");
}

TEST(TrackSuggestion, IsClockWithoutABoatSpeed) {
  const TrackSuggestion suggestion = TrackSuggestionFor({10.0, 1.0, true, false});
  EXPECT_EQ(suggestion.Method, TrackMethod::Clock);
  EXPECT_EQ(suggestion.Bandwidth, 60.0F);
  EXPECT_EQ(suggestion.WindAverage, 2.0F);
  EXPECT_EQ(suggestion.AlarmAverage, 5.0F);
  EXPECT_EQ(suggestion.Reason,
            "Without a boat speed Direction does not know the apparent wind: Clock with 60 s.");
}

TEST(TrackSuggestion, IsSentenceByItsRateWithoutAHeading) {
  // Two samples at one a second leave half of what was before after a second: at five the fifth root of a
  // half, 1 / (1 - 0.8706) = 7.7; at ten 14.9.
  for (const auto& [rate, bandwidth, average] : {std::tuple{0.5, 30.0F, 2.0F},
                                                 std::tuple{1.0, 60.0F, 2.0F},
                                                 std::tuple{4.98, 300.0F, 8.0F},
                                                 {10.0, 600.0F, 15.0F}}) {
    const TrackSuggestion suggestion = TrackSuggestionFor({rate, 4.0, false, true});
    EXPECT_EQ(suggestion.Method, TrackMethod::Sentence);
    EXPECT_EQ(suggestion.Bandwidth, bandwidth) << rate;
    EXPECT_EQ(suggestion.WindAverage, average) << rate;
    EXPECT_EQ(suggestion.AlarmAverage, 5.0F);
    EXPECT_EQ(TrackSwingsText(suggestion.Method, static_cast<double>(suggestion.Bandwidth), rate), "");
  }
  EXPECT_EQ(TrackSuggestionFor({4.98, 4.0, false, false}).Reason,
            "Without a heading only Sentence steers: 300 s for 5 wind sentences a second.");
}

TEST(TrackSwings, TellsASentenceRateThatTheBandwidthDoesNotFit) {
  EXPECT_EQ(TrackSwingsText(TrackMethod::Sentence, 20.0, 5.0),
            "5 wind sentences a second: this bandwidth swings; choose Clock");
  EXPECT_EQ(TrackSwingsText(TrackMethod::Sentence, 20.0, 4.97),
            "5 wind sentences a second: this bandwidth swings; choose Clock");
  EXPECT_EQ(TrackSwingsText(TrackMethod::Sentence, 60.0, 1.6),
            "1.6 wind sentences a second: this bandwidth swings; choose Clock");
}

TEST(TrackSwings, BeginsAboveOneAndAHalfAndBelowFortyForEach) {
  EXPECT_EQ(TrackSwingsText(TrackMethod::Sentence, 20.0, 1.5), "");
  EXPECT_NE(TrackSwingsText(TrackMethod::Sentence, 20.0, 1.6), "");
  EXPECT_EQ(TrackSwingsText(TrackMethod::Sentence, 200.0, 5.0), "");
  EXPECT_EQ(TrackSwingsText(TrackMethod::Sentence, 200.0, 5.04), "") << "5 as it is told";
  EXPECT_NE(TrackSwingsText(TrackMethod::Sentence, 199.0, 5.0), "");
}

TEST(TrackSwings, IsNothingForTheOthersAndWhileTheRateIsNotKnown) {
  EXPECT_EQ(TrackSwingsText(TrackMethod::Clock, 20.0, 10.0), "");
  EXPECT_EQ(TrackSwingsText(TrackMethod::Direction, 20.0, 10.0), "");
  EXPECT_EQ(TrackSwingsText(TrackMethod::Sentence, 20.0, std::nullopt), "");
}

TEST(WindsASecondText, IsToldToATenth) {
  EXPECT_EQ(WindsASecondText(1.02), "1 wind sentence a second");
  EXPECT_EQ(WindsASecondText(0.5), "0.5 wind sentences a second");
  EXPECT_EQ(WindsASecondText(9.96), "10 wind sentences a second");
  EXPECT_EQ(WindsASecondText(0.01), "0.1 wind sentences a second");
}

}  // namespace
}  // namespace veerwatch
