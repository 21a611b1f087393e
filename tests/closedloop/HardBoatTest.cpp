// The boat with a rudder, her pilot, her late instruments and her seas.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "pilot/WireBoat.h"
#include "platform/NumberText.h"
#include "tests/support/Sentences.h"

namespace veerwatch {

static std::string NameOf(Sea sea) {
  constexpr const char* kNames[] = {"Flat", "Slight", "Beam", "Following", "Head"};
  return kNames[static_cast<int>(sea)];
}

static void PrintTo(Sea sea, std::ostream* out) { *out << NameOf(sea); }

namespace {

constexpr double kRadian = std::numbers::pi / 180.0;

std::string Apb(const std::string& bearing) {
  return WithChecksum("$ECAPB,A,A,0.00,R,N,V,V," + bearing + ",M,1," + bearing + ",M," + bearing + ",M") +
         "\r\n";
}

double Between(double a, double b) { return std::remainder(a - b, 360.0); }

/// The hard boat in a steady wind, with nothing that disturbs her.
BoatSettings Calm() {
  BoatSettings settings = HardBoat(Sea::Flat);
  settings.GustDeviation = 0.0;
  settings.ShiftDeviation = 0.0;
  settings.SwingDeviation = 0.0;
  settings.VaneNoise = 0.0;
  settings.SpeedNoise = 0.0;
  settings.Deviation = 0.0;
  settings.Variation = 0.0;
  return settings;
}

/// The same, with a pilot that lays the rudder over to its limit for a large turn, and a speed that stays.
BoatSettings Circling() {
  BoatSettings settings = Calm();
  settings.SpeedLag = 1e9;
  settings.Pilot.BearingLag = 0.0;
  settings.Pilot.MostTurn = 1e9;
  settings.Pilot.Lead = 0.0;
  settings.Rudder->Pull = 0.0;
  return settings;
}

/// Number `field` of every sentence in `lines` that begins with `address`.
std::vector<double> Numbers(const std::string& lines, std::string_view address, std::size_t field) {
  std::vector<double> numbers;
  for (std::size_t at = lines.find(address); at != std::string::npos; at = lines.find(address, at + 1)) {
    std::string_view rest = std::string_view(lines).substr(at);
    for (std::size_t i = 0; i < field; ++i) {
      rest = rest.substr(rest.find(',') + 1);
    }
    numbers.push_back(StrictDouble(rest.substr(0, rest.find(','))).value_or(NAN));
  }
  return numbers;
}

class Spread {
 public:
  void Add(double value) {
    m_count += 1.0;
    m_sum += value;
    m_squares += value * value;
  }
  double Deviation() const {
    return std::sqrt(std::max(0.0, m_squares / m_count - m_sum * m_sum / m_count / m_count));
  }

 private:
  double m_count = 0.0;
  double m_sum = 0.0;
  double m_squares = 0.0;
};

// The rudder and the hull

TEST(HardBoat, TurnsSteadilyAsTheRudderAngleAndTheSpeedSay) {
  for (const double hull : {4.0, 8.0}) {
    for (const double angle : {5.0, 20.0}) {
      BoatSettings settings = Circling();
      settings.HullSpeed = hull;
      settings.Rudder->Most = angle;
      WireBoat boat(settings, 100.0, 1);
      const double way = boat.State().Speed / 6.0;
      boat.Steer(Apb("270.0"));
      boat.Step(15.0);
      ASSERT_EQ(boat.State().Rudder, angle);
      // The rate at which hull and damping take up all that the rudder gives.
      const double gives = 0.4 * way * angle;
      const double steady = (std::sqrt(1.0 + 4.0 * 0.04 * gives) - 1.0) / (2.0 * 0.04);
      EXPECT_NEAR(boat.State().TurnRate, steady, 0.01 * steady) << "hull " << hull << " rudder " << angle;
    }
  }
}

TEST(HardBoat, TakesUpATurnInTheTimeOfTheHullWhichShrinksWithTheSpeed) {
  for (const double hull : {4.0, 8.0}) {
    BoatSettings settings = Circling();
    settings.HullSpeed = hull;
    settings.Rudder->Rate = 1e9;
    settings.Rudder->Most = 10.0;
    settings.Rudder->Damping = 0.0;
    settings.Pilot.CompassLag = 0.0;
    WireBoat boat(settings, 100.0, 1);
    const double way = boat.State().Speed / 6.0;
    boat.Steer(Apb("270.0"));
    boat.Step(1.5 / way);
    const double part = boat.State().TurnRate / (0.4 * way * 10.0);
    EXPECT_NEAR(part, 1.0 - 1.0 / std::numbers::e, 0.02) << "hull " << hull;
  }
}

TEST(HardBoat, TheRudderMovesAtItsRateUpToItsLimit) {
  WireBoat boat(Circling(), 100.0, 1);
  boat.Steer(Apb("270.0"));
  boat.Step(5.0);
  EXPECT_NEAR(boat.State().Rudder, 4.0 * 5.0, 0.21) << "4 degrees a second";
  boat.Step(5.0);
  EXPECT_EQ(boat.State().Rudder, 30.0);
  EXPECT_NEAR(boat.State().RudderTravel, 30.0, 1e-9);
  double most = 0.0;
  for (int i = 0; i < 1200; ++i) {
    const double before = boat.State().Rudder;
    boat.Step(BoatModel::kTick);
    ASSERT_LE(std::fabs(boat.State().Rudder - before), 4.0 * BoatModel::kTick + 1e-9);
    most = std::max(most, std::fabs(boat.State().Rudder));
  }
  EXPECT_EQ(most, 30.0);
}

TEST(HardBoat, AStrongerWindPullsHerToWindward) {
  for (const double side : {1.0, -1.0}) {
    BoatSettings settings = Calm();
    settings.WindFrom = side * 90.0;
    WireBoat boat(settings, 0.0, 1);
    boat.Steer(Apb("004.0"));
    boat.Step(300.0);
    EXPECT_LT(side * boat.State().Rudder, -1.0) << "the rudder holds her off";
    boat.PilotStandby(std::nullopt);
    boat.Set().WindSpeed *= 1.3;
    const double heading = boat.State().Heading;
    boat.Step(5.0);
    EXPECT_GT(side * Between(boat.State().Heading, heading), 1.0);
  }
}

// The pilot

TEST(HardBoat, ThePilotSettlesOnTheBearingByItsOwnCompass) {
  for (const double offset : {-3.0, 3.0, 5.0}) {
    BoatSettings settings = Calm();
    settings.Pilot.CompassOffset = offset;
    WireBoat boat(settings, 100.0, 1);
    boat.Steer(Apb("120.0"));
    boat.Step(400.0);
    EXPECT_NEAR(boat.State().Compass, 120.0 - offset, 0.05);
    EXPECT_GT(std::fabs(boat.State().Rudder), 1.0) << "against the pull of the wind, which the trim takes up";
  }
}

TEST(HardBoat, TheBoatMakesTwoThirdsOfASmallTurnInAboutTheLagOfThePilot) {
  for (const double lag : {4.0, 8.0}) {
    BoatSettings settings = Calm();
    settings.Pilot.BearingLag = lag;
    settings.Pilot.CompassOffset = 0.0;
    WireBoat boat(settings, 100.0, 1);
    boat.Step(400.0);
    boat.Steer(Apb("105.0"));
    double seconds = 0.0;
    while (boat.State().Compass < 100.0 + 5.0 * 0.63 && seconds < 60.0) {
      boat.Step(0.1);
      seconds += 0.1;
    }
    EXPECT_GT(seconds, lag);
    EXPECT_LT(seconds, lag + 3.0) << "what hull, rudder and compass take";
  }
}

TEST(HardBoat, ARefusingPilotSteersOnToTheBearingThatItHas) {
  for (const bool rudder : {true, false}) {
    BoatSettings settings = Calm();
    settings.Pilot.CompassOffset = 0.0;
    if (!rudder) {
      settings.Rudder.reset();
    }
    WireBoat boat(settings, 100.0, 1);
    boat.Set().Pilot.Refuses = true;
    boat.Steer(Apb("130.0"));
    boat.Step(300.0);
    EXPECT_NEAR(boat.State().Compass, 100.0, 0.1);
    EXPECT_EQ(boat.Reader().GoodSentences(), 1);
    boat.Set().Pilot.Refuses = false;
    boat.Steer(Apb("130.0"));
    boat.Step(300.0);
    EXPECT_NEAR(boat.State().Compass, 130.0, 0.1);
  }
}

TEST(HardBoat, AReversedPilotTurnsTheWrongWay) {
  for (const bool rudder : {true, false}) {
    BoatSettings settings = Calm();
    settings.Pilot.Reversed = true;
    if (!rudder) {
      settings.Rudder.reset();
    }
    WireBoat boat(settings, 100.0, 1);
    boat.Steer(Apb("130.0"));
    boat.Step(15.0);
    EXPECT_LT(Between(boat.State().Compass, 100.0), -15.0);
  }
}

TEST(HardBoat, InStandbyTheWheelStaysWhereItWasAndTheBoatWanders) {
  WireBoat boat(HardBoat(Sea::Slight), 100.0, 5);
  boat.Step(120.0);
  const double rudder = boat.State().Rudder;
  const double heading = boat.State().Heading;
  boat.PilotStandby(std::nullopt);
  boat.Steer(Apb("200.0"));
  double most = 0.0;
  for (int i = 0; i < 300; ++i) {
    boat.Step(1.0);
    ASSERT_EQ(boat.State().Rudder, rudder);
    most = std::max(most, std::fabs(Between(boat.State().Heading, heading)));
  }
  EXPECT_GT(most, 20.0);
  boat.PilotEngage();
  boat.Step(60.0);
  EXPECT_NEAR(Between(boat.State().Compass, 200.0), 0.0, 15.0);
}

TEST(HardBoat, AtTheWheelSomebodyKeepsAHeadingAsNearAsTheWindLets) {
  WireBoat boat(Calm(), 100.0, 1);
  boat.PilotStandby(140.0);
  boat.Step(120.0);
  EXPECT_NEAR(Between(boat.State().Compass, 140.0), 0.0, 8.0);
  EXPECT_GT(Between(boat.State().Compass, 100.0), 30.0);
}

TEST(HardBoat, ThePilotCountsTheBearingsThatAreNew) {
  WireBoat boat(Calm(), 100.0, 1);
  for (const char* const bearing : {"101.0", "101.0", "102.0", "101.0", "101.0"}) {
    boat.Steer(Apb(bearing));
  }
  EXPECT_EQ(boat.Reader().BearingChanges(), 3);
}

// The instruments

TEST(HardBoat, TheApparentWindIsSentAsItWasOneAndAHalfSecondsAgo) {
  BoatSettings settings = Calm();
  settings.Rudder.reset();
  settings.WindPeriod = 0.1;
  WireBoat boat(settings, 120.0, 1);
  boat.Step(10.0);
  const double before = boat.State().ApparentAngle;
  boat.Set().WindFrom += 10.0;
  const std::vector<double> sent = Numbers(boat.Step(3.0), "$IIMWV", 1);
  const double after = boat.State().ApparentAngle;
  ASSERT_EQ(sent.size(), 30U);
  EXPECT_NEAR(sent[14], before, 0.06) << "1.5 s after the shift";
  EXPECT_GT(sent[15], before + 5.0) << "1.6 s after it";
  EXPECT_NEAR(sent[29], after, 0.3);
}

TEST(HardBoat, TheLogLagsByThreeSeconds) {
  BoatSettings settings = Calm();
  settings.Rudder.reset();
  settings.SpeedLag = 0.0;
  settings.OtherPeriod = 0.1;
  WireBoat boat(settings, 120.0, 1);
  boat.Step(10.0);
  const double before = boat.State().Speed;
  boat.Set().HullSpeed *= 1.5;
  const std::vector<double> sent = Numbers(boat.Step(30.0), "$IIVHW", 5);
  const double after = boat.State().Speed;
  ASSERT_NEAR(after, 1.5 * before, 1e-9);
  EXPECT_NEAR((sent[29] - before) / (after - before), 1.0 - 1.0 / std::numbers::e, 0.01) << "after 3 s";
  EXPECT_NEAR(sent[299], after, 0.01);
}

// The sea

class Seas : public testing::TestWithParam<Sea> {};

TEST_P(Seas, HaveTheDeviationsAndThePeriodThatTheySay) {
  const SeaSettings sea = SeaOf(GetParam());
  const Seaway seaway(3);
  Spread yaw;
  Spread roll;
  Spread pitch;
  int crests = 0;
  double last = 0.0;
  const double step = 0.05;
  const double hours = 2.0;
  for (double seconds = 0.0; seconds < hours * 3600.0; seconds += step) {
    const SeaMotion motion = seaway.At(sea, seconds);
    yaw.Add(motion.Yaw);
    roll.Add(motion.RollRate);
    pitch.Add(motion.PitchRate);
    crests += last < 0.0 && motion.Yaw >= 0.0 ? 1 : 0;
    last = motion.Yaw;
  }
  EXPECT_NEAR(yaw.Deviation(), sea.Yaw, 0.02 * sea.Yaw);
  // A wave of one period changes that fast; those round it somewhat faster together.
  const double pace = 2.0 * std::numbers::pi / sea.Period;
  EXPECT_NEAR(roll.Deviation(), pace * sea.Roll, 0.05 * pace * sea.Roll);
  EXPECT_NEAR(pitch.Deviation(), pace * sea.Pitch, 0.05 * pace * sea.Pitch);
  if (sea.Yaw > 0.0) {
    EXPECT_NEAR(hours * 3600.0 / crests, sea.Period, 0.08 * sea.Period);
  }
}

TEST_P(Seas, YawTheBoatAndSwingTheMasthead) {
  BoatSettings settings = Calm();
  settings.Sea = SeaOf(GetParam());
  settings.Rudder.reset();
  settings.TurnLag = 1e9;  // nobody steers against it
  settings.VaneDelay = 0.0;
  settings.WindPeriod = BoatModel::kTick;
  WireBoat boat(settings, 120.0, 2);
  Spread heading;
  Spread ahead;
  Spread right;
  for (int i = 0; i < 24000; ++i) {
    const std::string sent = boat.Step(BoatModel::kTick);
    const double angle = Numbers(sent, "$IIMWV", 1).at(0) * kRadian;
    const double speed = Numbers(sent, "$IIMWV", 3).at(0);
    const BoatState& state = boat.State();
    heading.Add(Between(state.Heading, 120.0));
    ahead.Add(speed * std::cos(angle) - state.ApparentSpeed * std::cos(state.ApparentAngle * kRadian));
    right.Add(speed * std::sin(angle) - state.ApparentSpeed * std::sin(state.ApparentAngle * kRadian));
  }
  EXPECT_NEAR(heading.Deviation(), settings.Sea.Yaw, 0.05 * settings.Sea.Yaw + 1e-6);
  // 15 metres up, in knots; sentences are rounded to tenths.
  const double masthead = 15.0 * kRadian * 2.0 * std::numbers::pi / settings.Sea.Period * 3600.0 / 1852.0;
  EXPECT_NEAR(ahead.Deviation(), masthead * settings.Sea.Pitch, 0.1 * masthead * settings.Sea.Pitch + 0.05);
  EXPECT_NEAR(right.Deviation(), masthead * settings.Sea.Roll, 0.1 * masthead * settings.Sea.Roll + 0.05);
}

INSTANTIATE_TEST_SUITE_P(All, Seas,
                         testing::Values(Sea::Flat, Sea::Slight, Sea::Beam, Sea::Following, Sea::Head),
                         [](const testing::TestParamInfo<Sea>& one) { return NameOf(one.param); });

TEST(HardBoat, ASeaFromAsternSlewsHerAndOneFromAheadPitchesHer) {
  const SeaSettings astern = SeaOf(Sea::Following);
  EXPECT_GE(astern.Yaw, 5.0);
  EXPECT_LE(astern.Yaw, 8.0);
  EXPECT_GE(astern.Period, 6.0);
  EXPECT_LE(astern.Period, 8.0);
  for (const Sea sea : {Sea::Flat, Sea::Slight, Sea::Beam, Sea::Following}) {
    EXPECT_GT(SeaOf(Sea::Head).Pitch, 2.0 * SeaOf(sea).Pitch);
  }
  EXPECT_EQ(SeaOf(Sea::Flat).Yaw + SeaOf(Sea::Flat).Roll + SeaOf(Sea::Flat).Pitch, 0.0);
}

// The wind

/// Means of ten seconds, one for each second.
std::vector<double> TenSecondMeans(const std::vector<double>& values) {
  constexpr std::size_t kSpan = 10;
  std::vector<double> means;
  double sum = 0.0;
  for (std::size_t i = 0; i < values.size(); ++i) {
    sum += values[i] - (i >= kSpan ? values[i - kSpan] : 0.0);
    if (i + 1 >= kSpan) {
      means.push_back(sum / kSpan);
    }
  }
  return means;
}

/// By how much it changes within `seconds`: the root of the mean square.
double ChangeOver(const std::vector<double>& values, std::size_t seconds) {
  double squares = 0.0;
  for (std::size_t i = seconds; i < values.size(); ++i) {
    squares += std::pow(values[i] - values[i - seconds], 2.0);
  }
  return std::sqrt(squares / static_cast<double>(values.size() - seconds));
}

TEST(HardBoat, TheWindTurnsAndBlowsAboutAsMuchAsRecorded) {
  BoatSettings settings = HardBoat(Sea::Flat);
  settings.HeadingPeriod = settings.WindPeriod = settings.OtherPeriod = 1e6;
  WireBoat boat(settings, 100.0, 8);
  boat.Step(300.0);
  std::vector<double> turned;
  std::vector<double> parts;
  Spread all;
  for (int second = 0; second < 3 * 3600; ++second) {
    boat.Step(1.0);
    turned.push_back(Between(boat.State().WindFrom, settings.WindFrom));
    parts.push_back(100.0 * boat.State().WindSpeed / settings.WindSpeed);
    all.Add(turned.back());
  }
  EXPECT_NEAR(all.Deviation(), 7.3, 1.0);
  // Source: the direction over the earth from compass, log and vane of a yacht on a reach, docs/control.md.
  const std::vector<double> turns = TenSecondMeans(turned);
  EXPECT_NEAR(ChangeOver(turns, 10), 2.0, 0.4);
  EXPECT_NEAR(ChangeOver(turns, 20), 2.4, 0.6);
  EXPECT_NEAR(ChangeOver(turns, 60), 5.0, 1.0);
  // The speed changes somewhat more than there, as it does over open water.
  const std::vector<double> speeds = TenSecondMeans(parts);
  EXPECT_GT(ChangeOver(speeds, 10), 3.9);
  EXPECT_LT(ChangeOver(speeds, 10), 2.0 * 3.9);
}

TEST(HardBoat, ASwingHasNoCorners) {
  BoatSettings settings = Calm();
  settings.SwingDeviation = 7.0;
  settings.HeadingPeriod = settings.WindPeriod = settings.OtherPeriod = 1e6;
  WireBoat boat(settings, 100.0, 3);
  boat.Step(300.0);
  std::vector<double> turned;
  for (int second = 0; second < 3600; ++second) {
    boat.Step(1.0);
    turned.push_back(Between(boat.State().WindFrom, settings.WindFrom));
  }
  // What wanders without a swing changes by 1.4 times as much in twice the time.
  EXPECT_GT(ChangeOver(turned, 8), 1.7 * ChangeOver(turned, 4));
  EXPECT_GT(ChangeOver(turned, 60), 3.0);
}

// All of it

TEST(HardBoat, TheSameSeedSailsTheSameWay) {
  WireBoat one(HardBoat(Sea::Head), 155.0, 11);
  WireBoat two(HardBoat(Sea::Head), 155.0, 11);
  WireBoat other(HardBoat(Sea::Head), 155.0, 12);
  const std::string first = one.Step(60.0);
  std::string second;
  for (int i = 0; i < 900; ++i) {
    second += two.Step(1.0 / 15.0);
  }
  EXPECT_EQ(first, second);
  EXPECT_NE(first, other.Step(60.0));
}

TEST(HardBoat, AnotherSeedIsAnotherSea) {
  BoatSettings settings = Calm();
  settings.Sea = SeaOf(Sea::Head);
  WireBoat one(settings, 155.0, 11);
  WireBoat other(settings, 155.0, 12);
  one.Step(60.0);
  other.Step(60.0);
  EXPECT_NE(one.State().Heading, other.State().Heading);
}

}  // namespace
}  // namespace veerwatch
