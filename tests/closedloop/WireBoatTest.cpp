#include "pilot/WireBoat.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <string>

#include "nmea/LineFramer.h"
#include "nmea/Sentence.h"
#include "nmea/SentenceTable.h"
#include "tests/support/Origins.h"
#include "tests/support/Sentences.h"

namespace veerwatch {
namespace {

std::string Apb(const std::string& bearing) {
  return WithChecksum("$ECAPB,A,A,0.00,R,N,V,V," + bearing + ",M,1," + bearing + ",M," + bearing + ",M") +
         "\r\n";
}

double Between(double a, double b) { return std::remainder(a - b, 360.0); }

BoatSettings WithoutDeviation() {
  BoatSettings settings;
  settings.Deviation = 0.0;
  settings.Variation = 0.0;
  return settings;
}

TEST(WireBoat, HoldsItsHeadingUntilItIsTold) {
  WireBoat boat(BoatSettings{}, 123.0, 1);
  boat.Step(600.0);
  EXPECT_NEAR(boat.State().Compass, 123.0, 1e-6);
}

TEST(WireBoat, TurnsAsASystemOfFirstOrderWithTheLagOfTheRudder) {
  BoatSettings settings = WithoutDeviation();
  settings.TurnLag = 5.0;
  settings.RudderLag = 0.0;
  settings.TurnRate = 100.0;
  WireBoat boat(settings, 350.0, 1);
  boat.Steer(Apb("010.0"));
  boat.Step(5.0);
  // What is missing after one time constant is a part of 1 / e.
  EXPECT_NEAR(Between(10.0, boat.State().Heading), 20.0 / std::numbers::e, 0.15);

  settings.RudderLag = 2.0;
  WireBoat lagging(settings, 350.0, 1);
  lagging.Steer(Apb("010.0"));
  lagging.Step(5.0);
  EXPECT_GT(Between(10.0, lagging.State().Heading), 20.0 / std::numbers::e + 1.0);
  lagging.Step(60.0);
  EXPECT_NEAR(Between(10.0, lagging.State().Heading), 0.0, 0.01);
}

TEST(WireBoat, TurnsTheShorterWayAndNoFasterThanItCan) {
  BoatSettings settings = WithoutDeviation();
  settings.TurnRate = 3.0;
  WireBoat boat(settings, 200.0, 1);
  boat.Steer(Apb("080.0"));
  double last = boat.State().Heading;
  for (int i = 0; i < 100; ++i) {
    boat.Step(0.1);
    ASSERT_LT(std::fabs(Between(boat.State().Heading, last)), 0.301);
    last = boat.State().Heading;
  }
  EXPECT_NEAR(boat.State().Heading, 200.0 - 3.0 * 10.0, 2.0) << "less what the rudder took to lie";
}

TEST(WireBoat, TheApparentWindIsTheSumOfTheTrueWindAndTheWay) {
  BoatSettings settings = WithoutDeviation();
  settings.WindFrom = 90.0;
  settings.Leeway = 0.0;
  WireBoat boat(settings, 0.0, 1);
  const double way = boat.State().Speed;
  // The wind abeam and the way ahead are the sides of a right angle.
  EXPECT_NEAR(boat.State().ApparentSpeed, std::sqrt(12.0 * 12.0 + way * way), 1e-9);
  EXPECT_NEAR(boat.State().ApparentAngle, std::atan(12.0 / way) * 180.0 / std::numbers::pi, 1e-9);
  EXPECT_NEAR(boat.State().TrueAngle, 90.0, 1e-9);

  settings.WindFrom = 270.0;
  WireBoat mirrored(settings, 0.0, 1);
  EXPECT_NEAR(mirrored.State().ApparentAngle, -boat.State().ApparentAngle, 1e-9);
}

TEST(WireBoat, LeewayAndCurrentPushTheCourseAndNotTheHeading) {
  BoatSettings settings = WithoutDeviation();
  settings.WindFrom = 45.0;
  WireBoat boat(settings, 0.0, 1);
  EXPECT_NEAR(Between(boat.State().Course, 0.0), -4.0, 1e-6) << "away from a wind from starboard";
  settings.Leeway = 0.0;
  settings.CurrentTo = 90.0;
  settings.CurrentSpeed = boat.State().Speed;
  WireBoat drifting(settings, 0.0, 1);
  EXPECT_GT(Between(drifting.State().Course, 0.0), 40.0);
  EXPECT_NEAR(drifting.State().Heading, 0.0, 1e-9);
}

TEST(WireBoat, TheCompassIsOffByVariationAndDeviation) {
  BoatSettings settings;
  settings.Variation = 10.0;
  settings.Deviation = 3.0;
  WireBoat boat(settings, 77.0, 1);
  EXPECT_NEAR(Between(boat.State().Heading, 77.0 + 10.0), 3.0, 0.01) << "on about east";
}

TEST(WireBoat, GustsAndShiftsHaveTheirMeanAndDeviation) {
  BoatSettings settings = GustyBoat();
  WireBoat boat(settings, 155.0, 7);
  double sum = 0.0;
  double squares = 0.0;
  double shifts = 0.0;
  const int seconds = 40000;
  for (int i = 0; i < seconds; ++i) {
    boat.Step(1.0);
    sum += boat.State().WindSpeed;
    squares += boat.State().WindSpeed * boat.State().WindSpeed;
    shifts += std::pow(Between(boat.State().WindFrom, settings.WindFrom), 2.0);
  }
  const double mean = sum / seconds;
  EXPECT_NEAR(mean, 12.0, 0.2);
  EXPECT_NEAR(std::sqrt(squares / seconds - mean * mean), 2.4, 0.2);
  EXPECT_NEAR(std::sqrt(shifts / seconds), 4.0, 0.5);
}

TEST(WireBoat, EveryLineIsAWholeSentenceThatADecoderKnows) {
  BoatSettings settings = GustyBoat();
  settings.TrueWindSensor = true;
  WireBoat boat(settings, 155.0, 3);
  LineFramer framer;
  int lines = 0;
  framer.Feed(
      boat.Step(60.0),
      [&](std::string_view line) {
        ++lines;
        EXPECT_EQ(CheckFrame(line), Frame::Good) << line;
        const SentenceKind* kind = FindSentence(line);
        ASSERT_NE(kind, nullptr) << line;
        Readings readings(kOrigin);
        EXPECT_TRUE(kind->Decode(Fields(line), readings)) << line;
        EXPECT_EQ(line[line.size() - 3], '*') << line;
      },
      [](std::string_view) { ADD_FAILURE(); });
  EXPECT_EQ(lines, 60 * 8);
  EXPECT_TRUE(framer.LineBuffer().empty());
}

TEST(WireBoat, TheSameSeedSailsTheSameWayInStepsOfAnyLength) {
  WireBoat one(GustyBoat(), 155.0, 11);
  WireBoat two(GustyBoat(), 155.0, 11);
  WireBoat other(GustyBoat(), 155.0, 12);
  std::string first;
  std::string second;
  for (int i = 0; i < 30; ++i) {
    first += one.Step(1.0);
  }
  for (int i = 0; i < 900; ++i) {
    second += two.Step(1.0 / 30.0);
  }
  EXPECT_EQ(first, second);
  EXPECT_NE(first, other.Step(30.0));
}

TEST(WireBoat, ThePilotTakesWholeGoodSentencesInPiecesAndNothingElse) {
  WireBoat boat(BoatSettings{}, 10.0, 1);
  const std::string good = Apb("245.5");
  boat.Steer(good.substr(0, 20));
  EXPECT_EQ(boat.Pilot().Bearing(), 10.0);
  boat.Steer(good.substr(20));
  EXPECT_EQ(boat.Pilot().Bearing(), 245.5);
  std::string damaged = good;
  damaged[30] = '9';
  boat.Steer(damaged);
  boat.Steer("\r\n$\r\nnoise\r\n" + WithChecksum("$ECAPB,A,A") + "\r\n");
  EXPECT_EQ(boat.Pilot().Bearing(), 245.5);
  EXPECT_EQ(boat.Reader().GoodSentences(), 1);
  EXPECT_EQ(boat.Reader().BadSentences(), 5);
}

TEST(WireBoat, InStandbySomebodyAtTheWheelKeepsAHeading) {
  WireBoat boat(BoatSettings{}, 10.0, 1);
  boat.PilotStandby(40.0);
  boat.Steer(Apb("300.0"));
  boat.Step(120.0);
  EXPECT_NEAR(boat.State().Compass, 40.0, 0.01);
  boat.PilotEngage();
  boat.Step(120.0);
  EXPECT_NEAR(boat.State().Compass, 300.0, 0.01);
}

}  // namespace
}  // namespace veerwatch
