// The real program process talks through real pseudo terminals.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "tests/e2e/Process.h"
#include "tests/support/Pty.h"

namespace veerwatch {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

/// The sentence with its checksum and line end.
std::string Sentence(const std::string& body) {
  unsigned sum = 0;
  for (const char character : body) {
    sum ^= static_cast<unsigned char>(character);
  }
  std::array<char, 8> end{};
  std::snprintf(end.data(), end.size(), "*%02X\r\n", sum);
  return "$" + body + end.data();
}

std::string ApparentWind(const std::string& angle) { return Sentence("IIMWV," + angle + ",R,12.5,N,A"); }
std::string TrueWind(const std::string& angle) { return Sentence("IIMWV," + angle + ",T,9.0,N,A"); }
std::string Pilot(const std::string& bearing) {
  return Sentence("ECAPB,A,A,0.00,R,N,V,V," + bearing + ",M,1," + bearing + ",M," + bearing + ",M");
}

/// The bearings of a text that is nothing but whole pilot sentences with good checksums; nothing for any
/// other.
std::optional<std::vector<std::string>> Bearings(std::string_view text) {
  constexpr std::string_view kHead = "$ECAPB,A,A,0.00,R,N,V,V,";
  const auto isBearing = [](std::string_view word) {
    return word.size() == 5 && word[3] == '.' && word.find_first_not_of("0123456789") == 3 &&
           word.find_first_not_of("0123456789", 4) == word.npos;
  };
  std::vector<std::string> bearings;
  while (!text.empty()) {
    const std::string bearing(text.substr(std::min(text.size(), kHead.size()), 5));
    const std::string whole = Pilot(bearing);
    if (!isBearing(bearing) || !text.starts_with(whole)) {
      return std::nullopt;
    }
    bearings.push_back(bearing);
    text.remove_prefix(whole.size());
  }
  return bearings;
}

/// A true wind from the sensor, no averaging, an autopilot bearing of 100 degrees, and these ports.
std::string ProfileText(int inputPort, int pilotPort, const std::string& ports) {
  return "; a comment of the skipper\r\n[Nmea]\r\nPort=" + std::to_string(inputPort) +
         "\r\nTrue Wind=0\r\nTrue Wind Average=0\r\n[Pilot]\r\nPort=" + std::to_string(pilotPort) +
         "\r\nBearing=100\r\n[Track]\r\nAlarm=False\r\n[Ports]\r\n" + ports;
}

/// A device under a name that outlives it, as a plug that goes out and comes back.
class Socket {
 public:
  explicit Socket(fs::path link) : m_link(std::move(link)) {}

  void Plug(const Pty& pty) {
    const fs::path next = m_link.string() + ".next";
    fs::create_symlink(pty.Device(), next);
    fs::rename(next, m_link);
  }

 private:
  fs::path m_link;
};

/// All that has come out of a pty so far.
class Listener {
 public:
  explicit Listener(Pty& pty) : m_pty(&pty) {}

  const std::string& Heard() {
    m_heard += m_pty->Read();
    return m_heard;
  }
  /// True when exactly `text` comes out next; what came instead stays to be looked at.
  testing::AssertionResult Hears(const std::string& text) {
    Await([&] { return Heard().size() >= text.size(); });
    if (m_heard.starts_with(text)) {
      m_heard.erase(0, text.size());
      return testing::AssertionSuccess();
    }
    return testing::AssertionFailure() << "expected \"" << text << "\" but heard \"" << m_heard << '"';
  }

 private:
  Pty* m_pty;
  std::string m_heard;
};

/// Writes everything, however long the other end takes.
bool WriteAll(Pty& pty, std::string_view text) {
  return Await([&] {
    text.remove_prefix(pty.Write(text));
    return text.empty();
  });
}

class RealPorts : public testing::Test {
 protected:
  void Launch(const char* program, const std::string& profile) {
    m_program.emplace(program, profile);
    ASSERT_TRUE(m_program->Start());
  }

  /// Starts the program with the remote control and waits for its window.
  void LaunchRemote(const std::string& profile) {
    Launch(VEERWATCH_REMOTE, profile);
    ASSERT_TRUE(Await([&] { return m_program->Said().find("ready\n") != std::string::npos; }))
        << m_program->Said();
  }

  /// True when the program says the line after this point of time.
  bool Says(const std::string& line) {
    const bool said = Await([&] { return m_program->Said().find(line + "\n", m_seen) != std::string::npos; });
    if (said) {
      m_seen = m_program->Said().find(line + "\n", m_seen) + line.size() + 1;
    }
    return said;
  }

  void Click(const std::string& name) {
    m_program->Tell("click " + name);
    ASSERT_TRUE(Says("clicked " + name)) << m_program->Said();
  }

  /// What a label or an entry box shows.
  std::string Text(const std::string& name) {
    const std::string answer = "text " + name + "=";
    m_seen = m_program->Said().size();
    m_program->Tell("text " + name);
    std::size_t end = std::string::npos;
    Await([&] {
      const std::size_t at = m_program->Said().find(answer, m_seen);
      end = at == std::string::npos ? at : m_program->Said().find('\n', at);
      return end != std::string::npos;
    });
    if (end == std::string::npos) {
      ADD_FAILURE() << "no answer for " << name << ": " << m_program->Said();
      return {};
    }
    const std::size_t from = m_program->Said().find(answer, m_seen) + answer.size();
    return m_program->Said().substr(from, end - from);
  }

  bool AwaitText(const std::string& name, const std::string& text) {
    return Await([&] { return Text(name) == text; });
  }

  /// Brings the program from Setup to Manual on a wind of 40 degrees apparent and 60 true. The three winds
  /// that it has seen by then have made nothing come out but one sentence for the last.
  void SailInManual(Pty& in, Listener& out) {
    WriteAll(in, ApparentWind("040") + TrueWind("060"));
    ASSERT_TRUE(AwaitText("lblTrueWindAngle", "60"));
    Click("tbrTrack(5)");
    WriteAll(in, ApparentWind("040"));
    ASSERT_TRUE(out.Hears(Pilot("100.0")));
  }

  /// The program ends in order on SIGTERM, without a question, and leaves a whole profile.
  void ExpectOrderlyEnd() {
    ASSERT_TRUE(m_program->Runs()) << m_program->Said();
    m_program->Terminate();
    EXPECT_EQ(m_program->AwaitEnd(), 0) << m_program->Said();
    EXPECT_THAT(m_program->Profile(), HasSubstr("; a comment of the skipper\r\n"));
    EXPECT_THAT(m_program->Profile(), HasSubstr("Sentence HDG=True\r\n"));
  }

  std::optional<Process> m_program;

 private:
  std::size_t m_seen = 0;
};

TEST_F(RealPorts, SendsForEachWindInManualAndTrackButNotInSetup) {
  Pty in;
  Pty out;
  Listener pilot(out);
  LaunchRemote(ProfileText(1, 2, "1=" + in.Device() + "\r\n2=" + out.Device() + "\r\n"));
  for (int i = 0; i < 5; ++i) {
    WriteAll(in, ApparentWind("040") + TrueWind("060"));
  }
  WriteAll(in, ApparentWind("041"));
  ASSERT_TRUE(AwaitText("lblAppWindAngle", "41"));
  EXPECT_EQ(pilot.Heard(), "");

  SailInManual(in, pilot);
  WriteAll(in, TrueWind("060"));
  EXPECT_TRUE(pilot.Hears(Pilot("100.0")));

  // With the gains of the defaults, 0.2 * 64 / 65 and 0.2 / 65, an error of 3 degrees moves the bearing by
  // 3 * 0.196923 and then by 3.009231 * 0.196923.
  Click("tbrTrack(7)");
  WriteAll(in, ApparentWind("043"));
  EXPECT_TRUE(pilot.Hears(Pilot("100.6")));
  WriteAll(in, ApparentWind("043"));
  EXPECT_TRUE(pilot.Hears(Pilot("101.2")));
  EXPECT_EQ(Text("txtAutoPilot"), "101.2");

  Click("tbrTrack(1)");
  WriteAll(in, ApparentWind("050"));
  Click("tbrTrack(5)");
  EXPECT_EQ(pilot.Heard(), "");
  ExpectOrderlyEnd();
  EXPECT_THAT(m_program->Profile(), HasSubstr("Bearing=101.183"));
}

TEST_F(RealPorts, TalksBothWaysThroughOnePort) {
  Pty both;
  Listener pilot(both);
  LaunchRemote(ProfileText(3, 3, "3=" + both.Device() + "\r\n"));
  SailInManual(both, pilot);
  Click("tbrTrack(7)");
  WriteAll(both, ApparentWind("037"));
  EXPECT_TRUE(pilot.Hears(Pilot("099.4")));
  WriteAll(both, ApparentWind("040") + ApparentWind("040"));
  EXPECT_TRUE(Await([&] { return pilot.Heard().ends_with("\r\n"); }));
  EXPECT_TRUE(Bearings(pilot.Heard()).has_value()) << pilot.Heard();
  ExpectOrderlyEnd();
}

TEST_F(RealPorts, GoesOnWhenTheInputDeviceComesBack) {
  auto in = std::make_unique<Pty>();
  Pty out;
  Listener pilot(out);
  const fs::path folder = fs::path(testing::TempDir());
  const fs::path link = folder / ("veerwatch-input-" + std::to_string(::getpid()));
  Socket socket(link);
  socket.Plug(*in);
  LaunchRemote(ProfileText(1, 2, "1=" + link.string() + "\r\n2=" + out.Device() + "\r\n"));
  SailInManual(*in, pilot);
  m_program->Tell("watch StatusBar(2)");
  ASSERT_TRUE(Says("shows StatusBar(2)="));

  // The plug is pulled in the middle of a line.
  WriteAll(*in, ApparentWind("040") + "$IIMWV,0");
  ASSERT_TRUE(pilot.Hears(Pilot("100.0")));
  in.reset();
  EXPECT_TRUE(Says("shows StatusBar(2)=Input Port 1 Not Open")) << m_program->Said();

  // One single sentence waits in the device that comes back: behind the rest of the old line it would be
  // lost.
  Pty back;
  WriteAll(back, ApparentWind("042"));
  socket.Plug(back);
  EXPECT_TRUE(pilot.Hears(Pilot("100.0")));
  EXPECT_EQ(Text("lblAppWindAngle"), "42");
  EXPECT_EQ(Text("lblTrueWindAngle"), "60");
  EXPECT_EQ(Text("StatusBar(2)"), "");
  WriteAll(back, ApparentWind("044"));
  EXPECT_TRUE(pilot.Hears(Pilot("100.0")));
  fs::remove(link);
  ExpectOrderlyEnd();
}

TEST_F(RealPorts, GoesOnWhenThePilotDeviceComesBack) {
  Pty in;
  auto out = std::make_unique<Pty>();
  const fs::path link = fs::path(testing::TempDir()) / ("veerwatch-pilot-" + std::to_string(::getpid()));
  Socket socket(link);
  socket.Plug(*out);
  LaunchRemote(ProfileText(1, 2, "1=" + in.Device() + "\r\n2=" + link.string() + "\r\n"));
  Listener before(*out);
  SailInManual(in, before);
  m_program->Tell("watch StatusBar(3)");
  ASSERT_TRUE(Says("shows StatusBar(3)="));
  out.reset();
  EXPECT_TRUE(Says("shows StatusBar(3)=Output Port 2 Not Open")) << m_program->Said();
  WriteAll(in, ApparentWind("041"));
  ASSERT_TRUE(AwaitText("lblAppWindAngle", "41"));

  Pty back;
  Listener after(back);
  socket.Plug(back);
  EXPECT_TRUE(Says("shows StatusBar(3)=")) << m_program->Said();
  WriteAll(in, ApparentWind("042"));
  EXPECT_TRUE(after.Hears(Pilot("100.0")));
  fs::remove(link);
  ExpectOrderlyEnd();
}

TEST_F(RealPorts, SendsOnlyWholeSentencesAfterNobodyReadForLong) {
  Pty in;
  Pty out;
  Listener pilot(out);
  LaunchRemote(ProfileText(1, 2, "1=" + in.Device() + "\r\n2=" + out.Device() + "\r\n"));
  SailInManual(in, pilot);
  Click("tbrTrack(7)");
  // Far more sentences than the terminal holds; an error of one degree keeps the bearing on the move.
  constexpr int kWinds = 6000;
  for (int i = 0; i < kWinds; ++i) {
    ASSERT_TRUE(WriteAll(in, ApparentWind("041")));
  }
  WriteAll(in, ApparentWind("039"));
  ASSERT_TRUE(AwaitText("lblAppWindAngle", "39"));
  const std::string bearing = Text("txtAutoPilot");
  const std::string newest = Pilot(std::string(5 - std::min<std::size_t>(5, bearing.size()), '0') + bearing);
  EXPECT_TRUE(Await([&] { return pilot.Heard().ends_with(newest); }));
  const auto bearings = Bearings(pilot.Heard());
  ASSERT_TRUE(bearings.has_value());
  EXPECT_LT(bearings->size(), static_cast<std::size_t>(kWinds) / 2);
  WriteAll(in, ApparentWind("040"));
  EXPECT_TRUE(Await([&] { return pilot.Heard().size() == (bearings->size() + 1) * newest.size(); }));
  EXPECT_TRUE(Bearings(pilot.Heard()).has_value());
  ExpectOrderlyEnd();
}

TEST_F(RealPorts, SurvivesNoise) {
  Pty in;
  Pty out;
  Listener pilot(out);
  LaunchRemote(ProfileText(1, 2, "1=" + in.Device() + "\r\n2=" + out.Device() + "\r\n"));
  SailInManual(in, pilot);
  std::mt19937 random(20240607);
  std::string noise;
  for (int i = 0; i < 100'000; ++i) {
    noise.push_back(static_cast<char>(random() & 0xFFU));
  }
  noise += std::string(50'000, '$') + "\r" + std::string(2'000, '\r') + std::string(5'000, '\0') +
           "\r$\r$*\r$*00\r";
  for (int i = 0; i < 20'000; ++i) {
    noise.push_back("$IMWVRC,*0123456789.AN\r"[random() % 23]);
  }
  ASSERT_TRUE(WriteAll(in, noise + "\r"));
  WriteAll(in, ApparentWind("077"));
  ASSERT_TRUE(AwaitText("lblAppWindAngle", "77"));
  EXPECT_TRUE(pilot.Hears(Pilot("100.0")));
  // Noise on the pilot's side is read off and changes nothing.
  ASSERT_TRUE(WriteAll(out, noise));
  WriteAll(in, ApparentWind("078"));
  EXPECT_TRUE(pilot.Hears(Pilot("100.0")));
  EXPECT_TRUE(AwaitText("StatusBar(3)", "Receive Error"));
  ExpectOrderlyEnd();
}

TEST_F(RealPorts, StartsWithoutItsDevices) {
  LaunchRemote(ProfileText(1, 2, "1=no such device\r\n2=/\r\n"));
  m_program->Tell("watch StatusBar(2)");
  EXPECT_EQ(Text("StatusBar(3)"), "Output Port 2 Not Open");
  EXPECT_TRUE(Says("shows StatusBar(2)=No Input Data")) << m_program->Said();
  EXPECT_THAT(m_program->Said(), HasSubstr("shows StatusBar(2)=Input Port 1 Not Open"));
  ExpectOrderlyEnd();
}

TEST_F(RealPorts, EndsInOrderOnRequestAndKeepsWhatItMeasured) {
  Pty in;
  Pty out;
  Launch(VEERWATCH_PROGRAM, ProfileText(1, 2, "1=" + in.Device() + "\r\n2=" + out.Device() + "\r\n"));
  // More than the terminal holds: when all of it is taken the program has read.
  const std::string winds = TrueWind("051") + ApparentWind("033");
  for (int i = 0; i < 4000; ++i) {
    ASSERT_TRUE(WriteAll(in, winds)) << m_program->Said();
  }
  EXPECT_EQ(out.Read(), "");
  ExpectOrderlyEnd();
  EXPECT_THAT(m_program->Profile(), HasSubstr("Desired 1=33\r\n"));
  EXPECT_THAT(m_program->Profile(), HasSubstr("Desired 2=51\r\n"));
  EXPECT_THAT(m_program->Profile(), HasSubstr("1=" + in.Device() + "\r\n2=" + out.Device() + "\r\n"));
}

}  // namespace
}  // namespace veerwatch
