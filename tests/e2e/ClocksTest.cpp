// The real program process while its clocks jump and while it sleeps.

#include <chrono>
#include <csignal>
#include <thread>

#include "tests/e2e/RealPorts.h"

namespace veerwatch {
namespace {

constexpr int kHour = 3600;       // [s]
constexpr int kDay = 24 * kHour;  // [s]

class Clocks : public RealPorts {
 protected:
  /// On a wind of 40 degrees with the history open.
  void SailWithHistory() {
    Sail();
    Click("mnuViewHistory");
  }

  void Step(const std::string& clock, int seconds) {
    m_program->Tell("step " + clock + " " + std::to_string(seconds));
    ASSERT_TRUE(Says("stepped " + clock)) << m_program->Said();
  }

  /// One wind brings one sentence for the pilot, and no message.
  void ExpectToSteer(const std::string& angle) {
    WriteAll(In, ApparentWind(angle));
    EXPECT_TRUE(Pilots.Hears(Pilot("100.0")));
    EXPECT_EQ(Text("lblAppWindAngle"), std::to_string(std::stoi(angle)));
    EXPECT_EQ(Pilots.Heard(), "");
    EXPECT_TRUE(AwaitText("StatusBar(2)", ""));
    EXPECT_EQ(Text("StatusBar(3)"), "");
  }
};

TEST_F(Clocks, TheWallClockMayBeSetWhileItSteers) {
  SailWithHistory();
  int angle = 41;
  for (const int seconds : {1, -1, kHour, -2 * kHour, 400 * kDay, -800 * kDay, kDay}) {
    Step("wall", seconds);
    ExpectToSteer("0" + std::to_string(angle));
    ++angle;
  }
  ExpectOrderlyEnd();
}

TEST_F(Clocks, TheWallClockMayBeSetWhileItTracks) {
  SailWithHistory();
  Click("tbrTrack(7)");
  std::string bearing = Text("txtAutoPilot");
  std::size_t heard = 0;
  for (const int seconds : {0, kHour, -kHour}) {
    Step("wall", seconds);
    for (int wind = 1; wind <= 5; ++wind) {
      WriteAll(In, ApparentWind("045"));
      ASSERT_TRUE(Await([&] { return Pilots.Heard().size() > heard && Pilots.Heard().ends_with("\r\n"); }));
      const auto bearings = Bearings(Pilots.Heard());
      ASSERT_TRUE(bearings.has_value());
      EXPECT_EQ(Pilots.Heard().size() / bearings->size(), Pilot("100.0").size());
      heard = Pilots.Heard().size();
      // Too far off the wind: each step turns by the same few degrees whatever the wall clock shows.
      const double turned = std::stod(bearings->back()) - std::stod(bearing);
      EXPECT_GT(std::abs(turned), 0.05);
      EXPECT_LT(std::abs(turned), 5.0);
      bearing = bearings->back();
    }
  }
  ExpectOrderlyEnd();
}

/// How a computer's sleep shows on its clocks.
struct Sleep {
  const char* Name;
  int Wall;    // [s]
  int Steady;  // [s]
  int Boot;    // [s], beyond the steady one
};

void PrintTo(const Sleep& sleep, std::ostream* out) { *out << sleep.Name; }

class Sleeps : public Clocks, public testing::WithParamInterface<Sleep> {};

TEST_P(Sleeps, GoesOnWithWhatIsNew) {
  SailWithHistory();
  Step("wall", GetParam().Wall);
  Step("steady", GetParam().Steady);
  Step("boot", GetParam().Boot);
  ASSERT_EQ(::kill(m_program->Id(), SIGSTOP), 0);
  // What the terminal holds waits for it.
  for (int i = 0; i < 2000; ++i) {
    In.Write(ApparentWind("042"));
  }
  ASSERT_EQ(::kill(m_program->Id(), SIGCONT), 0);
  // After a long sleep what arrives with the old is old too.
  ASSERT_TRUE(Await([&] {
    WriteAll(In, "\r\n" + ApparentWind("048"));
    return Text("lblAppWindAngle") == "48";
  }));
  EXPECT_TRUE(Pilots.HearsBearings().has_value()) << Pilots.Heard();
  EXPECT_EQ(Text("txtAutoPilot"), "100.0");
  // What is told about the sentence that was cut off goes with the next one.
  WriteAll(In, ApparentWind("048"));
  EXPECT_TRUE(AwaitText("StatusBar(2)", ""));
  ExpectOrderlyEnd();
}

TEST_P(Sleeps, SendsNothingOfItsOwn) {
  SailWithHistory();
  Step("wall", GetParam().Wall);
  Step("steady", GetParam().Steady);
  Step("boot", GetParam().Boot);
  ASSERT_TRUE(AwaitText("StatusBar(2)", "No Input Data"));
  EXPECT_EQ(Pilots.Heard(), "");
  ExpectToSteer("044");
  ExpectOrderlyEnd();
}

TEST_F(Clocks, AStandstillTurnsTheBoatByNothingThatWaited) {
  Sail();
  Click("tbrTrack(7)");
  WriteAll(In, ApparentWind("045"));
  ASSERT_TRUE(Await([&] { return Text("txtAutoPilot") != "100.0"; }));
  const double before = std::stod(Text("txtAutoPilot"));
  ASSERT_EQ(::kill(m_program->Id(), SIGSTOP), 0);
  for (int wind = 0; wind < 60; ++wind) {
    ASSERT_TRUE(WriteAll(In, ApparentWind("045")));
  }
  std::this_thread::sleep_for(std::chrono::milliseconds(2500));
  ASSERT_EQ(::kill(m_program->Id(), SIGCONT), 0);
  int winds = 0;
  ASSERT_TRUE(Await([&] {
    WriteAll(In, ApparentWind("045"));
    ++winds;
    return std::stod(Text("txtAutoPilot")) > before;
  }));
  // An error of 5 degrees moves the bearing by hardly more than 1 at a step.
  EXPECT_LT(std::stod(Text("txtAutoPilot")) - before, 1.3 * winds);
  EXPECT_LT(std::stod(Text("txtAutoPilot")) - before, 10.0);
  EXPECT_TRUE(Pilots.HearsBearings().has_value());
  ExpectOrderlyEnd();
}

INSTANTIATE_TEST_SUITE_P(Clocks, Sleeps,
                         testing::Values(Sleep{"AMoment", 0, 0, 0},
                                         Sleep{"AnHourThatTheSteadyClockLeavesOut", kHour, 0, kHour},
                                         Sleep{"AnHourThatBothClocksCount", kHour, kHour, 0}),
                         [](const auto& sleep) { return std::string(sleep.param.Name); });

}  // namespace
}  // namespace veerwatch
