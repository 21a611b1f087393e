#include "tack/TurnPlan.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <limits>
#include <string>

namespace veerwatch {
namespace {

constexpr std::size_t kApparent = 1;
constexpr std::size_t kTrue = 2;

/// A helm in Manual whose sentences reach the pilot, with the winds of the last ten seconds at `apparent` and
/// `trueWind`, on a heading of 100 with the pilot at 112.
HelmNow Sailing(float apparent, float trueWind) {
  HelmNow now;
  now.Mode = TrackMode::Manual;
  now.InputStarted = now.InputOpen = now.OutputOpen = now.CanTrack = true;
  now.OutputPort = 4;
  now.AutoPilot = 112.0F;
  now.Heading = 100.0F;
  now.WindMean[kApparent] = apparent;
  now.WindMean[kTrue] = trueWind;
  now.Side = TrackSide::True;
  return now;
}

TurnAsk Ask(ManoeuvreKind kind, float overshoot = 0.0F) {
  TurnAsk ask;
  ask.Kind = kind;
  ask.Overshoot = overshoot;
  ask.Rate = 5.0F;
  return ask;
}

TEST(TurnPlan, ATackLeadsToTheMirroredAngleThroughTheBow) {
  for (const float side : {1.0F, -1.0F}) {
    const TurnPlan plan = PlanTurn(Ask(ManoeuvreKind::Tack, 5.0F), Sailing(34.0F * side, 46.0F * side));
    EXPECT_EQ(plan.Refusal, "");
    EXPECT_EQ(plan.Change, 92.0 * static_cast<double>(side)) << "into the wind, which comes from that side";
    EXPECT_EQ(plan.Overshoot, 5.0 * static_cast<double>(side));
    EXPECT_EQ(plan.Held, -46.0F * side);
    EXPECT_EQ(plan.Rate, 5.0);
    EXPECT_EQ(plan.Bearing, 112.0);
    EXPECT_EQ(PlanWords(plan), std::string("Tack, 92 degrees to ") + (side > 0.0F ? "starboard" : "port") +
                                   " through the wind");
  }
}

TEST(TurnPlan, AJibeLeadsToTheMirroredAngleByTheStern) {
  const TurnPlan plan = PlanTurn(Ask(ManoeuvreKind::Jibe), Sailing(80.0F, 97.5F));
  EXPECT_EQ(plan.Change, -165.0) << "away from the wind";
  EXPECT_EQ(plan.Held, -97.5F);
  EXPECT_EQ(PlanWords(plan), "GYBE, 165 degrees to port, by the stern");
  EXPECT_EQ(PlanTurn(Ask(ManoeuvreKind::Jibe), Sailing(-140.0F, -150.0F)).Change, 60.0);
}

TEST(TurnPlan, InTrackTheHeldAngleIsMirroredAndNotTheLatestGust) {
  HelmNow now = Sailing(34.0F, 52.0F);
  now.Mode = TrackMode::Track;
  now.Desired = {0.0F, 33.0F, 45.0F};
  const TurnPlan plan = PlanTurn(Ask(ManoeuvreKind::Tack), now);
  EXPECT_EQ(plan.Change, 90.0);
  EXPECT_EQ(plan.Held, -45.0F);
  now.Side = TrackSide::Apparent;
  const TurnPlan apparent = PlanTurn(Ask(ManoeuvreKind::Tack), now);
  EXPECT_EQ(apparent.Change, 104.0) << "the boat turns by the true wind";
  EXPECT_EQ(apparent.Held, -33.0F);
}

TEST(TurnPlan, OnTheWayToTheHeldAngleTheBoatTurnsFromWhereSheIs) {
  HelmNow now = Sailing(-90.0F, -107.0F);
  now.WindAngleTrue = -104.0F;
  now.Mode = TrackMode::Track;
  now.Desired = {0.0F, 0.0F, -174.0F};
  TurnAsk ask = Ask(ManoeuvreKind::Jibe);
  ask.Aim = TurnAim{150.0F, 168.0F};
  EXPECT_EQ(PlanTurn(ask, now).Change, 85.0) << "not the 18 degrees from the angle that is not reached";
  EXPECT_EQ(PlanTurn(ask, now).Held, 168.0F);
  EXPECT_EQ(PlanTurn(Ask(ManoeuvreKind::Jibe), now).Change, 79.0) << "to the held angle, mirrored";
  now.WindAngleTrue = -135.0F;
  EXPECT_EQ(PlanTurn(ask, now).Refusal, "No turn: the boat swings, wait until she is steady");
  now.WindAngleTrue = -160.0F;
  EXPECT_EQ(PlanTurn(ask, now).Change, 18.0) << "she is there";
}

TEST(TurnPlan, AnAngleOfThePolarIsHeldOnTheOtherSide) {
  TurnAsk ask = Ask(ManoeuvreKind::Tack);
  ask.Aim = TurnAim{28.0F, 40.0F};
  HelmNow now = Sailing(-34.0F, -46.0F);
  const TurnPlan plan = PlanTurn(ask, now);
  EXPECT_EQ(plan.Change, -86.0);
  EXPECT_EQ(plan.Held, 40.0F);
  now.Side = TrackSide::Apparent;
  EXPECT_EQ(PlanTurn(ask, now).Held, 28.0F);
  ask.Aim->AtEdge = true;
  EXPECT_EQ(PlanWords(PlanTurn(ask, now)), "Tack, 86 degrees to port through the wind, at the polar's edge");
}

TEST(TurnPlan, ASteeringChangeGoesTheShorterWayAndHoldsTheAngleItLeadsTo) {
  TurnAsk ask = Ask(ManoeuvreKind::Steer, 7.0F);
  ask.NewHeading = 80.0F;
  const TurnPlan plan = PlanTurn(ask, Sailing(50.0F, 60.0F));
  EXPECT_EQ(plan.Change, -20.0);
  EXPECT_EQ(plan.Overshoot, 0.0);
  EXPECT_EQ(plan.Held, 80.0F);
  EXPECT_EQ(PlanWords(plan), "Steer, 20 degrees to port");
  ask.NewHeading = 101.0F;
  EXPECT_EQ(PlanWords(PlanTurn(ask, Sailing(50.0F, 60.0F))), "Steer, 1 degree to starboard");
}

TEST(TurnPlan, TheOvershootEndsAtHalfACircleAndTurnsNobodyBack) {
  EXPECT_EQ(PlanTurn(Ask(ManoeuvreKind::Tack, 30.0F), Sailing(60.0F, 80.0F)).Overshoot, 20.0);
  EXPECT_EQ(PlanTurn(Ask(ManoeuvreKind::Tack, -300.0F), Sailing(60.0F, 80.0F)).Overshoot, -160.0);
  EXPECT_EQ(PlanTurn(Ask(ManoeuvreKind::Tack, std::numeric_limits<float>::quiet_NaN()), Sailing(60.0F, 80.0F))
                .Overshoot,
            0.0);
}

TEST(TurnPlan, ARateThatIsNoneIsTheUsualOne) {
  for (const float rate : {0.0F, -3.0F, std::numeric_limits<float>::quiet_NaN()}) {
    TurnAsk ask = Ask(ManoeuvreKind::Tack);
    ask.Rate = rate;
    EXPECT_EQ(PlanTurn(ask, Sailing(34.0F, 45.0F)).Rate, Manoeuvre::kUsualRate);
  }
}

TEST(TurnPlan, IsRefusedWithAReason) {
  const auto refusal = [](void (*change)(HelmNow&), ManoeuvreKind kind = ManoeuvreKind::Tack) {
    HelmNow now = Sailing(34.0F, 45.0F);
    change(now);
    return PlanTurn(Ask(kind), now).Refusal;
  };
  EXPECT_EQ(refusal([](HelmNow&) {}), "");
  EXPECT_EQ(refusal([](HelmNow& now) { now.Mode = TrackMode::Off; }), "No turn in Off: press Setup first");
  EXPECT_EQ(refusal([](HelmNow& now) { now.OutputOpen = false; }), "No turn: Output Port 4 Not Open");
  EXPECT_EQ(refusal([](HelmNow& now) { now.Heading.reset(); }), "No turn: No Heading");
  EXPECT_EQ(refusal([](HelmNow& now) {
              now.Watch.Values[static_cast<std::size_t>(Watched::Heading)].State = Freshness::Lost;
            }),
            "No turn: No Heading");
  EXPECT_EQ(refusal([](HelmNow& now) { now.TakesBearing = false; }),
            "No turn: the pilot holds the wind by itself");
  EXPECT_EQ(refusal([](HelmNow& now) { now.CanTrack = false; }),
            "No turn: Track needs a bandwidth above 0 and a usable damping");
  EXPECT_EQ(refusal([](HelmNow& now) { now.WindMean[kTrue].reset(); }), "No turn: No Wind");
  EXPECT_EQ(refusal([](HelmNow& now) { now.WindMean[kTrue] = 0.0F; }), "No turn: the wind is dead ahead");
  EXPECT_EQ(refusal([](HelmNow& now) { now.WindMean[kTrue] = 180.0F; }, ManoeuvreKind::Jibe),
            "No turn: the wind is dead astern");
  EXPECT_EQ(refusal([](HelmNow& now) { now.WindMean[kTrue] = 91.0F; }),
            "No turn: it would be half a circle or more");
  EXPECT_EQ(refusal([](HelmNow&) {}, ManoeuvreKind::Jibe), "No turn: it would be half a circle or more");
}

TEST(TurnPlan, ATackIsRefusedWhileTheBoatStillSwingsOutOfTheTurnBefore) {
  HelmNow now = Sailing(10.0F, 12.0F);
  now.WindAngleTrue = -25.0F;
  EXPECT_EQ(PlanTurn(Ask(ManoeuvreKind::Tack), now).Refusal,
            "No turn: the boat swings, wait until she is steady")
      << "the mean would lead her into the wind";
  EXPECT_NE(PlanTurn(Ask(ManoeuvreKind::Jibe), now).Refusal, "");
  TurnAsk steer = Ask(ManoeuvreKind::Steer);
  steer.NewHeading = 110.0F;
  EXPECT_EQ(PlanTurn(steer, now).Refusal, "");
  now.WindAngleTrue = -5.0F;
  EXPECT_EQ(PlanTurn(Ask(ManoeuvreKind::Tack), now).Refusal, "");
  now.WindAngleTrue = -25.0F;
  now.Mode = TrackMode::Track;
  now.Desired[kTrue] = -45.0F;
  EXPECT_EQ(PlanTurn(Ask(ManoeuvreKind::Tack), now).Change, -90.0) << "the held angle is mirrored";
  // Across dead astern the two are close.
  now.Mode = TrackMode::Manual;
  now.WindMean[kTrue] = 178.0F;
  now.WindAngleTrue = -178.0F;
  EXPECT_EQ(PlanTurn(Ask(ManoeuvreKind::Jibe), now).Refusal, "");
}

TEST(TurnPlan, WhatIsSaidAs150DegreesIsAskedAbout) {
  const TurnPlan plan = PlanTurn(Ask(ManoeuvreKind::Tack), Sailing(70.0F, 74.8F));
  EXPECT_NE(PlanWords(plan).find("150 degrees"), std::string::npos);
  EXPECT_TRUE(PlanAsksOnceMore(plan, WindCrossing::Bow));
  EXPECT_FALSE(
      PlanAsksOnceMore(PlanTurn(Ask(ManoeuvreKind::Tack), Sailing(70.0F, 74.7F)), WindCrossing::Bow));
}

TEST(TurnPlan, ALargeTurnAndACrossingThatNobodyNamedAreAskedAbout) {
  const TurnPlan tack = PlanTurn(Ask(ManoeuvreKind::Tack, 5.0F), Sailing(34.0F, 45.0F));
  EXPECT_FALSE(PlanAsksOnceMore(tack, WindCrossing::Bow));
  EXPECT_TRUE(PlanAsksOnceMore(tack, WindCrossing::None));
  EXPECT_TRUE(PlanAsksOnceMore(tack, WindCrossing::Stern));
  const TurnPlan wide = PlanTurn(Ask(ManoeuvreKind::Tack, 0.0F), Sailing(60.0F, 75.0F));
  EXPECT_TRUE(PlanAsksOnceMore(wide, WindCrossing::Bow)) << "150 degrees";
  EXPECT_FALSE(
      PlanAsksOnceMore(PlanTurn(Ask(ManoeuvreKind::Tack), Sailing(60.0F, 74.0F)), WindCrossing::Bow));
  EXPECT_TRUE(
      PlanAsksOnceMore(PlanTurn(Ask(ManoeuvreKind::Tack, 5.0F), Sailing(60.0F, 74.0F)), WindCrossing::Bow))
      << "with its overshoot";
  const TurnPlan jibe = PlanTurn(Ask(ManoeuvreKind::Jibe), Sailing(140.0F, 150.0F));
  EXPECT_FALSE(PlanAsksOnceMore(jibe, WindCrossing::Stern));
  EXPECT_TRUE(PlanAsksOnceMore(jibe, WindCrossing::Bow));
  EXPECT_EQ(PlanQuestion(jibe, WindCrossing::Stern), "");
  EXPECT_EQ(PlanQuestion(jibe, WindCrossing::Bow), "GYBE to port: OK once more?");
  EXPECT_EQ(PlanQuestion(wide, WindCrossing::Bow), "Tack to starboard: OK once more?");
}

}  // namespace
}  // namespace veerwatch
