#include "tack/TurnWords.h"

#include <gtest/gtest.h>

namespace veerwatch {
namespace {

TEST(CrossingOf, IsWhereTheWindPassesAndTheSameInAMirror) {
  struct Case {
    double Wind;
    double Change;
    WindCrossing Crossing;
  };
  for (const Case& turn : {
           Case{45, 90, WindCrossing::Bow},
           Case{45, 44, WindCrossing::None},
           Case{45, 45, WindCrossing::None},  // ends with the wind on the bow
           Case{45, -90, WindCrossing::None},
           Case{45, -135, WindCrossing::None},  // ends dead before it
           Case{45, -136, WindCrossing::Stern},
           Case{135, -90, WindCrossing::Stern},
           Case{100, 140, WindCrossing::Bow},
           Case{170, 180, WindCrossing::Bow},
           Case{10, -180, WindCrossing::Stern},
           Case{0, 90, WindCrossing::None},
           Case{180, 90, WindCrossing::None},
           Case{180, -90, WindCrossing::None},
       }) {
    EXPECT_EQ(CrossingOf(turn.Wind, turn.Change), turn.Crossing) << turn.Wind << " " << turn.Change;
    EXPECT_EQ(CrossingOf(-turn.Wind, -turn.Change), turn.Crossing) << -turn.Wind << " " << -turn.Change;
  }
}

TEST(TurnWords, SayHowFarToWhichSideAndThroughWhat) {
  EXPECT_EQ(TurnWords(140.0, WindCrossing::Bow), "140 degrees to starboard, through the wind");
  EXPECT_EQ(TurnWords(-95.4, WindCrossing::Stern), "95 degrees to port, stern through the wind");
  EXPECT_EQ(TurnWords(-1.2, WindCrossing::None), "1 degree to port");
  EXPECT_EQ(TurnWords(0.4, WindCrossing::None), "No turn");
  EXPECT_EQ(TurnWords(-0.4, WindCrossing::Bow), "No turn");
}

TEST(CrossesUnsaid, OnlyWhereNeitherTheButtonNorTheKindSaidSo) {
  using enum WindCrossing;
  using enum ManoeuvreKind;
  EXPECT_TRUE(CrossesUnsaid(Bow, None, Steer));
  EXPECT_TRUE(CrossesUnsaid(Bow, Stern, Steer));
  EXPECT_TRUE(CrossesUnsaid(Bow, Stern, Jibe));
  EXPECT_TRUE(CrossesUnsaid(Stern, Bow, Tack));
  EXPECT_FALSE(CrossesUnsaid(Bow, Bow, Steer));
  EXPECT_FALSE(CrossesUnsaid(Bow, None, Tack));
  EXPECT_FALSE(CrossesUnsaid(Stern, Stern, Steer));
  EXPECT_FALSE(CrossesUnsaid(Stern, None, Jibe));
  for (const WindCrossing button : {None, Bow, Stern}) {
    for (const ManoeuvreKind kind : {Steer, Tack, Jibe}) {
      EXPECT_FALSE(CrossesUnsaid(None, button, kind));
    }
  }
}

TEST(CrossingQuestion, NamesTheEndOfTheBoat) {
  EXPECT_EQ(CrossingQuestion(WindCrossing::Bow), "The bow goes through the wind: OK once more?");
  EXPECT_EQ(CrossingQuestion(WindCrossing::Stern), "The stern goes through the wind: OK once more?");
  EXPECT_EQ(CrossingQuestion(WindCrossing::None), "");
}

}  // namespace
}  // namespace veerwatch
