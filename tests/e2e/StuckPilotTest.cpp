// A pilot that takes nothing: its terminal is full to the last byte.

#include <fcntl.h>
#include <unistd.h>

#include <chrono>
#include <string>
#include <thread>

#include "tests/e2e/RealPorts.h"

namespace veerwatch {
namespace {

class StuckPilot : public RealPorts {
 protected:
  StuckPilot() : m_filler(::open(Out.Device().c_str(), O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC)) {}
  ~StuckPilot() override { ::close(m_filler); }

  /// Tracks with a pilot that has stopped to read, so that a first sentence is on its way and others follow.
  void SailIntoIt() {
    ASSERT_GE(m_filler, 0);
    Sail();
    Click("tbrTrack(7)");
    // The kernel moves what it holds in steps, so that room shows up again after the first filling.
    for (int quiet = 0; quiet < 5; quiet = Fill() == 0 ? quiet + 1 : 0) {
      std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    Turn(100);
  }

  /// Sends so many winds, and waits for the bearing to follow each.
  void Turn(int winds) {
    for (int i = 0; i < winds; ++i) {
      const std::string before = Text("txtAutoPilot");
      WriteAll(In, ApparentWind("041"));
      ASSERT_TRUE(Await([&] { return Text("txtAutoPilot") != before; }));
    }
  }

  /// What comes out after the filling, until nothing more does for half a second.
  std::string Drain() {
    std::string all;
    for (int quiet = 0; quiet < 25;) {
      const std::string part = Out.Read();
      all += part;
      quiet = part.empty() ? quiet + 1 : 0;
      std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    return all.substr(all.find_last_of('x') + 1);
  }

 private:
  /// Writes as much as the terminal takes [bytes].
  std::size_t Fill() {
    std::size_t filled = 0;
    for (std::string part(64, 'x'); !part.empty();) {
      const ssize_t written = ::write(m_filler, part.data(), part.size());
      if (written > 0) {
        filled += static_cast<std::size_t>(written);
      } else {
        part.resize(part.size() / 2);
      }
    }
    return filled;
  }

  int m_filler;
};

TEST_F(StuckPilot, GetsTheSentenceOnItsWayAndTheNewestAndNoOther) {
  SailIntoIt();
  const std::string newest = PresentSentence();
  const std::string sent = Drain();
  const auto bearings = Bearings(sent);
  ASSERT_TRUE(bearings.has_value()) << sent;
  EXPECT_EQ(bearings->size(), 2U) << sent;
  EXPECT_TRUE(sent.ends_with(newest)) << sent;
  Turn(1);
  EXPECT_EQ(Drain(), PresentSentence());
  ExpectOrderlyEnd();
}

TEST_F(StuckPilot, GetsNothingNewInSetup) {
  SailIntoIt();
  Click("tbrTrack(3)");
  const std::string sent = Drain();
  const auto bearings = Bearings(sent);
  ASSERT_TRUE(bearings.has_value()) << sent;
  EXPECT_EQ(bearings->size(), 1U) << "only the one that was on its way: " << sent;
  ExpectOrderlyEnd();
}

TEST_F(StuckPilot, GetsNothingOldWhenItReadsAgain) {
  SailIntoIt();
  ASSERT_TRUE(AwaitText("StatusBar(2)", "No Input Data"));
  std::this_thread::sleep_for(std::chrono::milliseconds(500));
  const std::string sent = Drain();
  const auto bearings = Bearings(sent);
  ASSERT_TRUE(bearings.has_value()) << sent;
  EXPECT_EQ(bearings->size(), 1U) << "only the one that was on its way: " << sent;
  ExpectOrderlyEnd();
}

TEST_F(StuckPilot, DoesNotMakeItGrow) {
  SailIntoIt();
  const long before = MemoryInUse();
  constexpr int kWinds = 6000;
  for (int i = 0; i < kWinds; ++i) {
    ASSERT_TRUE(WriteAll(In, ApparentWind("041")));
  }
  WriteAll(In, ApparentWind("039"));
  ASSERT_TRUE(AwaitText("lblAppWindAngle", "39"));
  EXPECT_LT(MemoryInUse() - before, kWinds * 60 / 4) << "a quarter of what the sentences would take";
  ExpectOrderlyEnd();
}

TEST_F(StuckPilot, DoesNotHoldUpTheClose) {
  SailIntoIt();
  ExpectOrderlyEnd();
}

}  // namespace
}  // namespace veerwatch
