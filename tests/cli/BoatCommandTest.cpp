#include "cli/BoatCommand.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <sstream>
#include <string>

#include "cli/Steering.h"
#include "tests/support/Sentences.h"

namespace veerwatch {
namespace {

std::string Apb(const std::string& bearing) {
  return WithChecksum("$ECAPB,A,A,0.00,R,N,V,V," + bearing + ",M,1," + bearing + ",M," + bearing + ",M");
}

double Between(double a, double b) { return std::remainder(a - b, 360.0); }

TEST(BoatCommand, TheBoatSendsAndFollows) {
  BoatOnWire boat{BoatOptions{}};
  const std::string sent = boat.Step(1.0);
  for (const char* type : {"$IIHDG,", "$IIVHW,", "$GPRMC,", "$GPVTG,", "$IIHVM,", "$GPRMB,", "$IIMWV,"}) {
    EXPECT_THAT(sent, testing::HasSubstr(type));
  }
  boat.Line(Apb("200.0"));
  boat.Step(90.0);
  EXPECT_NEAR(Between(boat.Boat().State().Compass, 200.0), 0.0, 8.0);
}

TEST(BoatCommand, HerOwnSentencesThatComeBackAreNotRead) {
  BoatOnWire boat{BoatOptions{}};
  std::istringstream sent(boat.Step(1.0));
  for (std::string line; std::getline(sent, line);) {
    line.pop_back();
    boat.Line(line);
  }
  EXPECT_EQ(boat.Boat().Reader().GoodSentences(), 0);
  EXPECT_EQ(boat.Boat().Pilot().Bearing(), BoatOptions{}.Heading);
  boat.Line(WithChecksum("$ECRMB,A,0.00,R,,1,,,,,10.0,238.0,,V"));
  EXPECT_NEAR(boat.Boat().Pilot().Bearing(), 235.0, 1e-9) << "by a variation of 3 degrees east";
}

TEST(BoatCommand, TheRateIsThatOfWindsAndHeadings) {
  BoatOptions options;
  options.Rate = 5.0;
  options.TrueWind = true;
  BoatOnWire boat(options);
  std::istringstream sent(boat.Step(10.0));
  int winds = 0;
  int headings = 0;
  int positions = 0;
  for (std::string line; std::getline(sent, line);) {
    winds += line.starts_with("$IIMWV") ? 1 : 0;
    headings += line.starts_with("$IIHDG") ? 1 : 0;
    positions += line.starts_with("$GPRMC") ? 1 : 0;
  }
  EXPECT_EQ(winds, 100);
  EXPECT_EQ(headings, 50);
  EXPECT_EQ(positions, 10);
}

TEST(BoatCommand, TheSameSeedSailsTheSame) {
  BoatOptions other;
  other.Seed = 2;
  const std::string sent = BoatOnWire(BoatOptions{}).Step(60.0);
  EXPECT_EQ(sent, BoatOnWire(BoatOptions{}).Step(60.0));
  EXPECT_NE(sent, BoatOnWire(other).Step(60.0));
}

TEST(BoatCommand, WhatIsOutOfItsRangeIsSaid) {
  for (const double value : {-1e9, 1e9, std::numeric_limits<double>::quiet_NaN()}) {
    for (double BoatOptions::*option :
         {&BoatOptions::Heading, &BoatOptions::Wind, &BoatOptions::From, &BoatOptions::Gust,
          &BoatOptions::Shift, &BoatOptions::Leeway, &BoatOptions::Lag, &BoatOptions::Offset,
          &BoatOptions::Variation, &BoatOptions::Rate}) {
      BoatOptions options;
      options.*option = value;
      EXPECT_THROW(BoatOf(options), CommandError);
    }
  }
}

TEST(BoatCommand, ServesForItsTimeAndSaysWhere) {
  BoatOptions options;
  options.Listen = {"pty:"};
  options.Time = 0.2;
  std::ostringstream out;
  Boat(options, out, [] { return false; });
  EXPECT_THAT(out.str(), testing::StartsWith("Listening on /dev/"));
  options.Time = 0.0;
  int asked = 0;
  Boat(options, out, [&] { return ++asked > 3; });
  EXPECT_EQ(asked, 4);
}

}  // namespace
}  // namespace veerwatch
