// What may go wrong around the real program process: plugs, floods, noise.

#include <array>
#include <memory>
#include <random>
#include <vector>

#include "tests/e2e/RealPorts.h"

namespace veerwatch {
namespace {

class Faults : public RealPorts {
 protected:
  fs::path Link(const char* name) const {
    return fs::path(testing::TempDir()) / ("veerwatch-" + std::string(name) + std::to_string(::getpid()));
  }
};

TEST_F(Faults, TheInputIsPulledTenTimes) {
  auto in = std::make_unique<Pty>();
  Pty out;
  Listener pilot(out);
  const fs::path link = Link("input-");
  Socket socket(link);
  socket.Plug(*in);
  LaunchRemote(ProfileText(1, 2, "1=" + link.string() + "\r\n2=" + out.Device() + "\r\n"));
  SailInManual(*in, pilot);
  for (int time = 1; time <= 10; ++time) {
    WriteAll(*in, "$IIMWV,17");
    socket.Pull();
    in.reset();
    ASSERT_TRUE(AwaitText("StatusBar(2)", "Input Port 1 Not Open")) << time;
    in = std::make_unique<Pty>();
    socket.Plug(*in);
    const std::string angle = "0" + std::to_string(50 + time);
    WriteAll(*in, ApparentWind(angle));
    ASSERT_TRUE(pilot.Hears(Pilot("100.0"))) << time;
    EXPECT_EQ(Text("lblAppWindAngle"), std::to_string(50 + time));
  }
  EXPECT_EQ(pilot.Heard(), "") << "a sentence a wind";
  fs::remove(link);
  ExpectOrderlyEnd();
}

TEST_F(Faults, AFloodOnTheInputLeavesTheProgramAnswering) {
  Sail();
  // Ten seconds at a hundred times the rate of a full line, as fast as the terminal takes them.
  constexpr std::size_t kBytes = std::size_t{480} * 100 * 10;
  constexpr std::size_t kEvery = 2000;
  const std::string wind = ApparentWind("041");
  std::size_t winds = 0;
  long before = 0;
  for (std::size_t sent = 0; sent < kBytes; ++winds, sent += wind.size()) {
    ASSERT_TRUE(WriteAll(In, wind));
    if (winds % kEvery == 0) {
      EXPECT_EQ(Text("txtAutoPilot"), "100.0") << "in the middle of it";
    }
    if (winds == kEvery) {
      before = MemoryInUse();
    }
    Pilots.Heard();
  }
  EXPECT_LT(MemoryInUse() - before, static_cast<long>(kBytes / 4)) << "it keeps nothing of it";
  WriteAll(In, ApparentWind("055"));
  ASSERT_TRUE(AwaitText("lblAppWindAngle", "55"));
  const auto bearings = Pilots.HearsBearings();
  ASSERT_TRUE(bearings.has_value());
  EXPECT_LE(bearings->size(), winds + 1);
  ExpectOrderlyEnd();
}

TEST_F(Faults, AFloodSkipsNoControlStep) {
  // Winds that swing to and fro, a good minute of them: every step adds to the bearing, none can be left out.
  std::mt19937 random(11);
  std::vector<std::string> winds;
  for (int i = 0; i < 80; ++i) {
    winds.push_back(ApparentWind("0" + std::to_string(35 + random() % 12)));
  }
  std::array<std::string, 2> bearings;
  for (std::string& bearing : bearings) {
    const bool atOnce = &bearing == &bearings.back();
    Pty in;
    Pty out;
    Listener pilot(out);
    LaunchRemote(ProfileText(1, 2, "1=" + in.Device() + "\r\n2=" + out.Device() + "\r\n"));
    SailInManual(in, pilot);
    Click("tbrTrack(7)");
    std::size_t heard = 0;
    for (const std::string& wind : winds) {
      ASSERT_TRUE(WriteAll(in, wind));
      if (!atOnce) {
        ASSERT_TRUE(Await([&] { return pilot.Heard().size() > heard && pilot.Heard().ends_with("\r\n"); }));
        heard = pilot.Heard().size();
      }
    }
    WriteAll(in, ApparentWind("061"));
    ASSERT_TRUE(AwaitText("lblAppWindAngle", "61"));
    bearing = Text("txtAutoPilot");
    ExpectOrderlyEnd();
  }
  EXPECT_NE(bearings.front(), "100.0");
  EXPECT_EQ(bearings.front(), bearings.back());
}

TEST_F(Faults, HalfASentenceAndThenSilenceSendsNothing) {
  Sail();
  const std::string wind = ApparentWind("044");
  WriteAll(In, wind.substr(0, wind.size() / 2));
  ASSERT_TRUE(AwaitText("StatusBar(2)", "No Input Data"));
  EXPECT_EQ(Pilots.Heard(), "");
  EXPECT_EQ(Text("lblAppWindAngle"), "40");
  WriteAll(In, wind.substr(wind.size() / 2) + ApparentWind("045"));
  EXPECT_TRUE(AwaitText("lblAppWindAngle", "45"));
  EXPECT_TRUE(AwaitText("StatusBar(2)", ""));
  EXPECT_TRUE(Pilots.Hears(Pilot("100.0") + Pilot("100.0"))) << "the whole one and the next";
  EXPECT_EQ(Pilots.Heard(), "");
  ExpectOrderlyEnd();
}

TEST_F(Faults, MinutesOfNoiseEndWithTheFirstGoodSentence) {
  Sail();
  // As much as a line at 4800 baud brings in ten minutes.
  std::mt19937 random(77);
  std::string noise(std::size_t{480} * 600, '\0');
  std::generate(noise.begin(), noise.end(), [&random] { return static_cast<char>(random() & 0xFFU); });
  const std::size_t first = noise.size() / 10;
  ASSERT_TRUE(WriteAll(In, noise.substr(0, first)));
  const long before = MemoryInUse();
  ASSERT_TRUE(WriteAll(In, noise.substr(first) + "\r"));
  EXPECT_LT(MemoryInUse() - before, static_cast<long>(noise.size() / 4)) << "it keeps nothing of it";
  WriteAll(In, ApparentWind("061"));
  ASSERT_TRUE(AwaitText("lblAppWindAngle", "61"));
  EXPECT_TRUE(Pilots.Hears(Pilot("100.0")));
  EXPECT_EQ(Pilots.Heard(), "");
  ExpectOrderlyEnd();
}

}  // namespace
}  // namespace veerwatch
