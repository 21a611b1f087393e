#include "control/Manoeuvre.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace veerwatch {
namespace {

constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinite = std::numeric_limits<float>::infinity();
constexpr float kHuge = std::numeric_limits<float>::max();

/// A turn of `change` [deg] with the wind at `wind`, from a heading of 100.
Manoeuvre Opened(float wind, float change) {
  Manoeuvre turn;
  EXPECT_TRUE(turn.Open(100.0F + change, 100.0F, 100.0F, wind));
  return turn;
}

/// All headings of a turn that has been started, the last one with it.
std::vector<float> Headings(Manoeuvre& turn) {
  std::vector<float> headings;
  bool done = false;
  while (!done && headings.size() < 1000) {
    done = turn.Step(1.0);
    headings.push_back(turn.Heading());
  }
  EXPECT_TRUE(done);
  return headings;
}

struct Choice {
  float Wind;
  float Change;
  ManoeuvreKind Kind;
  int Direction;
};

void PrintTo(const Choice& choice, std::ostream* out) {
  *out << "wind " << choice.Wind << ", change " << choice.Change;
}

class ManoeuvreChoice : public testing::TestWithParam<Choice> {};

TEST_P(ManoeuvreChoice, IsStrictAtItsBoundaries) {
  const Choice& choice = GetParam();
  const Manoeuvre turn = Opened(choice.Wind, choice.Change);
  EXPECT_EQ(turn.Kind(), choice.Kind) << choice.Wind << " " << choice.Change;
  EXPECT_EQ(turn.Direction(), choice.Direction) << choice.Wind << " " << choice.Change;
}

constexpr auto kSteer = ManoeuvreKind::Steer;
constexpr auto kTack = ManoeuvreKind::Tack;
constexpr auto kJibe = ManoeuvreKind::Jibe;

// The wind after the turn is the wind now less the change.
INSTANTIATE_TEST_SUITE_P(Winds, ManoeuvreChoice,
                         testing::Values(Choice{45, 90, kTack, 1}, Choice{-45, -90, kTack, -1},
                                         Choice{89, 178, kTack, 1},            // to -89
                                         Choice{90, 179, kSteer, 0},           // from 90 itself
                                         Choice{89, 179, kSteer, 0},           // to -90 itself
                                         Choice{-89, -179, kSteer, 0},         // to 90 itself
                                         Choice{-90, -135, kSteer, 0},         // from -90 itself
                                         Choice{89.99F, 179.98F, kTack, 1},    //
                                         Choice{45, 45, kSteer, 0},            // to 0 itself
                                         Choice{45, 45.01F, kTack, 1},         //
                                         Choice{45, 44.99F, kSteer, 0},        //
                                         Choice{0, 30, kSteer, 0},             // from 0 itself
                                         Choice{0, -30, kSteer, 0},            //
                                         Choice{-45, -45.01F, kTack, -1},      //
                                         Choice{135, -90, kJibe, -1},          // to 225, which is -135
                                         Choice{-135, 90, kJibe, 1},           //
                                         Choice{90.01F, -179.98F, kJibe, -1},  // to -90.01
                                         Choice{91, -179, kSteer, 0},          // to -90 itself
                                         Choice{90, -135, kSteer, 0},          // from 90 itself
                                         Choice{180, -30, kJibe, -1},     // dead astern is starboard, to port
                                         Choice{180, 30, kSteer, 0},      // and to starboard
                                         Choice{180, 300, kJibe, -1},     // to -120, the same as -60
                                         Choice{-180, -60, kJibe, -1},    // -180 is 180
                                         Choice{179, -1, kSteer, 0},      // to 180 itself
                                         Choice{179, -1.01F, kJibe, -1},  //
                                         Choice{-179, 1, kJibe, 1},       // to 180 itself, from port
                                         Choice{45, 180, kSteer, 0},      // across the beam
                                         Choice{45, 0, kSteer, 0}, Choice{0, 0, kSteer, 0},
                                         Choice{180, 0, kSteer, 0},
                                         Choice{405, 90, kTack, 1},  // a wind of more than one turn
                                         Choice{45, 450, kTack, 1}, Choice{45, -270, kTack, 1}));

TEST(Manoeuvre, IsNoTurnBeforeItIsOpened) {
  Manoeuvre turn;
  EXPECT_FALSE(turn.Open(kNan, 100.0F, 120.0F, 45.0F));
  EXPECT_EQ(turn.Heading(), 0.0F);
  EXPECT_EQ(turn.AutoPilot(), 0.0F);
  EXPECT_EQ(turn.Wind(), 0.0);
  EXPECT_EQ(turn.Change(), 0.0);
  EXPECT_EQ(turn.Progress(), 0.0);
  EXPECT_EQ(turn.Direction(), 0);
}

TEST(ManoeuvreChoice, SaysOverAllAnglesWhetherTheWindPassesBowOrStern) {
  // Every whole wind and change, judged by walking the boat round a degree at a time.
  for (int wind = -179; wind <= 180; ++wind) {
    for (int change = -179; change <= 179; ++change) {
      const int side = change < 0 ? -1 : 1;
      int angle = wind;
      bool bow = false;
      bool stern = false;
      bool beam = std::abs(wind) == 90;
      for (int i = 0; i != change; i += side) {
        angle -= side;
        angle = angle > 180 ? angle - 360 : (angle <= -180 ? angle + 360 : angle);
        bow = bow || angle == 0;
        stern = stern || angle == 180;
        beam = beam || std::abs(angle) == 90;
      }
      const Manoeuvre turn = Opened(static_cast<float>(wind), static_cast<float>(change));
      ManoeuvreKind expected = kSteer;
      if (bow && !beam && wind != 0 && angle != 0) {
        expected = kTack;
      } else if (!beam && (wind == 180 ? angle < 0 : stern && (wind < 0 || angle != 180))) {
        // Dead astern is a wind from starboard.
        expected = kJibe;
      }
      ASSERT_EQ(turn.Kind(), expected) << wind << " " << change;
      ASSERT_EQ(turn.Direction(), expected == kSteer ? 0 : side) << wind << " " << change;
    }
  }
}

TEST(Manoeuvre, TakesNothingThatIsNotFinite) {
  Manoeuvre turn = Opened(45.0F, 90.0F);
  for (const float bad : {kNan, kInfinite, -kInfinite}) {
    EXPECT_FALSE(turn.Open(bad, 1.0F, 1.0F, 1.0F));
    EXPECT_FALSE(turn.Open(1.0F, bad, 1.0F, 1.0F));
    EXPECT_FALSE(turn.Open(1.0F, 1.0F, bad, 1.0F));
    EXPECT_FALSE(turn.Open(1.0F, 1.0F, 1.0F, bad));
  }
  EXPECT_EQ(turn.Kind(), kTack);
  EXPECT_EQ(turn.Heading(), 100.0F);
}

TEST(Manoeuvre, ARateOfZeroOrLessOrNoNumberTurnsTenDegreesASecond) {
  for (const float rate : {0.0F, -0.0F, -3.0F, kNan, kInfinite, -kInfinite}) {
    Manoeuvre turn = Opened(45.0F, 35.0F);
    turn.Start(135.0F, 0.0F, rate);
    EXPECT_EQ(Headings(turn), (std::vector<float>{110.0F, 120.0F, 130.0F, 135.0F})) << rate;
  }
}

TEST(Manoeuvre, TurnsByHalfADegreeASecondWhereThatIsTheRate) {
  Manoeuvre turn = Opened(45.0F, 35.0F);
  turn.Start(135.0F, 0.0F, 0.5F);
  turn.Step(1.0);
  EXPECT_EQ(turn.Heading(), 100.5F);
}

TEST(Manoeuvre, AChangeOf170At20DegreesASecondTakesNineTicks) {
  Manoeuvre turn = Opened(85.0F, 170.0F);
  turn.Start(270.0F, 0.0F, 20.0F);
  EXPECT_EQ(turn.Change(), 170.0);
  EXPECT_EQ(Headings(turn), (std::vector<float>{120, 140, 160, 180, 200, 220, 240, 260, 270}));
  EXPECT_EQ(turn.Progress(), 170.0);
}

TEST(Manoeuvre, EndsAtTheTickThatJustReachesTheChange) {
  Manoeuvre turn = Opened(45.0F, 20.0F);
  turn.Start(120.0F, 0.0F, 10.0F);
  EXPECT_FALSE(turn.Step(1.0));
  EXPECT_TRUE(turn.Step(1.0));
}

TEST(Manoeuvre, TurnsThroughNorthTheShortWay) {
  Manoeuvre turn;
  ASSERT_TRUE(turn.Open(10.0F, 350.0F, 350.0F, 60.0F));
  turn.Start(10.0F, 0.0F, 5.0F);
  EXPECT_EQ(turn.Change(), 20.0);
  EXPECT_EQ(Headings(turn), (std::vector<float>{355.0F, 0.0F, 5.0F, 10.0F}));
  ASSERT_TRUE(turn.Open(350.0F, 10.0F, 10.0F, 60.0F));
  turn.Start(350.0F, 0.0F, 15.0F);
  EXPECT_EQ(turn.Change(), -20.0);
  EXPECT_EQ(Headings(turn), (std::vector<float>{355.0F, 350.0F}));
}

TEST(Manoeuvre, KeepsThePilotsOffsetThroughTheTurn) {
  Manoeuvre turn;
  ASSERT_TRUE(turn.Open(20.0F, 340.0F, 352.5F, 20.0F));
  turn.Start(20.0F, 0.0F, 20.0F);
  EXPECT_FALSE(turn.Step(1.0));
  EXPECT_EQ(turn.Heading(), 0.0F);
  EXPECT_EQ(turn.AutoPilot(), 12.5F);
  EXPECT_TRUE(turn.Step(1.0));
  EXPECT_EQ(turn.AutoPilot(), 32.5F);
  // An offset across north to port: 355 is 10 less than 5.
  ASSERT_TRUE(turn.Open(15.0F, 5.0F, 355.0F, 90.0F));
  turn.Start(15.0F, 0.0F, 2.0F);
  EXPECT_FALSE(turn.Step(1.0));
  EXPECT_EQ(turn.AutoPilot(), 357.0F);
}

TEST(Manoeuvre, StartsFromWhereItWasOpenedHoweverLate) {
  Manoeuvre turn;
  ASSERT_TRUE(turn.Open(120.0F, 100.0F, 103.0F, 90.0F));
  turn.Start(80.0F, 0.0F, 5.0F);
  EXPECT_FALSE(turn.Step(1.0));
  turn.Start(120.0F, 0.0F, 5.0F);
  EXPECT_FALSE(turn.Step(1.0));
  EXPECT_EQ(turn.Heading(), 105.0F);
  EXPECT_EQ(turn.AutoPilot(), 108.0F);
}

TEST(Manoeuvre, OvershootsOnTheSideOfATackAndOfAJibe) {
  Manoeuvre turn = Opened(45.0F, 90.0F);
  turn.Start(190.0F, 5.0F, 100.0F);
  EXPECT_EQ(Headings(turn).back(), 195.0F);
  turn = Opened(-45.0F, -90.0F);
  turn.Start(10.0F, 15.0F, 100.0F);
  EXPECT_EQ(Headings(turn).back(), 355.0F);
  turn = Opened(135.0F, -90.0F);
  turn.Start(10.0F, 5.0F, 100.0F);
  EXPECT_EQ(Headings(turn).back(), 5.0F);
  turn = Opened(-135.0F, 90.0F);
  turn.Start(190.0F, 5.0F, 100.0F);
  EXPECT_EQ(Headings(turn).back(), 195.0F);
}

TEST(Manoeuvre, SteersWithoutAnOvershoot) {
  Manoeuvre turn = Opened(45.0F, 20.0F);
  turn.Start(120.0F, 15.0F, 100.0F);
  EXPECT_EQ(Headings(turn).back(), 120.0F);
}

TEST(Manoeuvre, AnOvershootNeverTurnsTheBoatTheOtherWay) {
  Manoeuvre turn = Opened(89.0F, 178.0F);
  turn.Start(278.0F, 5.0F, 60.0F);
  EXPECT_EQ(turn.Change(), 180.0);
  EXPECT_EQ(Headings(turn), (std::vector<float>{160.0F, 220.0F, 280.0F}));
  turn = Opened(-89.0F, -178.0F);
  turn.Start(282.0F, 5.0F, 60.0F);
  EXPECT_EQ(turn.Change(), -180.0);
  EXPECT_EQ(Headings(turn), (std::vector<float>{40.0F, 340.0F, 280.0F}));
  for (const float overshoot : {5.0F, 100.0F, 400.0F, kHuge, -5.0F, -100.0F, -400.0F, -kHuge}) {
    for (int change = 1; change <= 179; ++change) {
      turn = Opened(45.0F, 90.0F);
      turn.Start(static_cast<float>(100 + change), overshoot, 10.0F);
      ASSERT_GE(turn.Change(), 0.0) << overshoot << " " << change;
      ASSERT_LE(turn.Change(), 180.0) << overshoot << " " << change;
      turn.Start(static_cast<float>(100 - change), overshoot, 10.0F);
      ASSERT_LE(turn.Change(), 0.0) << overshoot << " " << change;
      ASSERT_GE(turn.Change(), -180.0) << overshoot << " " << change;
    }
  }
}

TEST(Manoeuvre, HalfACircleGoesToStarboard) {
  Manoeuvre turn = Opened(45.0F, 90.0F);
  turn.Start(280.0F, 0.0F, 90.0F);
  EXPECT_EQ(turn.Change(), 180.0);
  EXPECT_EQ(Headings(turn), (std::vector<float>{190.0F, 280.0F}));
}

TEST(Manoeuvre, FoldsATypedHeading) {
  for (const float typed : {-150.0F, 210.0F, 570.0F, 360210.0F}) {
    Manoeuvre turn = Opened(45.0F, 90.0F);
    turn.Start(typed, 0.0F, 55.0F);
    EXPECT_EQ(Headings(turn), (std::vector<float>{155.0F, 210.0F})) << typed;
  }
}

TEST(Manoeuvre, NoChangeIsDoneAtTheFirstTick) {
  Manoeuvre turn = Opened(45.0F, 0.0F);
  turn.Start(100.0F, 0.0F, 10.0F);
  EXPECT_TRUE(turn.Step(1.0));
  EXPECT_EQ(turn.Heading(), 100.0F);
}

TEST(Manoeuvre, WhateverComesInTheBearingIsOnTheCompassAndTheTurnEnds) {
  const std::vector<float> values{kNan,    kInfinite, -kInfinite, kHuge,  -kHuge, 0.0F,
                                  -180.0F, 180.0F,    359.99997F, 360.0F, 1e-40F, -1e-8F};
  for (const float start : values) {
    for (const float pilot : values) {
      Manoeuvre turn;
      if (!turn.Open(200.0F, start, pilot, 30.0F)) {
        continue;
      }
      for (const float heading : values) {
        for (const float overshoot : values) {
          turn.Start(heading, overshoot, 7.0F);
          bool done = false;
          for (int tick = 0; tick < 30 && !done; ++tick) {
            done = turn.Step(1.0);
            ASSERT_GE(turn.AutoPilot(), 0.0F);
            ASSERT_LT(turn.AutoPilot(), 360.0F);
            ASSERT_GE(turn.Heading(), 0.0F);
            ASSERT_LT(turn.Heading(), 360.0F);
          }
          ASSERT_TRUE(done);
        }
      }
    }
  }
}

TEST(Manoeuvre, OpenedAgainStandsAtItsNewStartWithNothingTurned) {
  Manoeuvre turn = Opened(45.0F, 90.0F);
  turn.Start(190.0F, 0.0F, 10.0F);
  turn.Step(1.0);
  turn.Step(1.0);
  ASSERT_TRUE(turn.Open(300.0F, 200.0F, 212.0F, 45.0F));
  EXPECT_EQ(turn.Change(), 0.0);
  EXPECT_EQ(turn.Progress(), 0.0);
  EXPECT_EQ(turn.Heading(), 200.0F);
  EXPECT_EQ(turn.AutoPilot(), 212.0F);
}

TEST(Manoeuvre, PlansWhatItThenTurns) {
  Manoeuvre turn = Opened(45.0F, 90.0F);
  for (const float heading : {190.0F, 10.0F, 100.0F, 280.0F, kNan}) {
    for (const float overshoot : {0.0F, 5.0F, 95.0F, -20.0F, kInfinite}) {
      const double planned = turn.Planned(heading, overshoot);
      turn.Start(heading, overshoot, 10.0F);
      EXPECT_EQ(turn.Change(), planned);
    }
  }
  EXPECT_EQ(turn.Planned(190.0F, 5.0F), 95.0);
}

TEST(Manoeuvre, KeepsTheWindOfItsOpening) {
  EXPECT_EQ(Opened(-315.0F, 90.0F).Wind(), 45.0);
  EXPECT_EQ(Opened(-180.0F, 90.0F).Wind(), 180.0);
}

}  // namespace
}  // namespace veerwatch
