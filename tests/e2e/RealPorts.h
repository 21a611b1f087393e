// The real program process on real pseudo terminals: what all tests of it share.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tests/e2e/Process.h"
#include "tests/support/Pty.h"

namespace veerwatch {

namespace fs = std::filesystem;

/// The sentence with its checksum and line end.
inline std::string Sentence(const std::string& body) {
  unsigned sum = 0;
  for (const char character : body) {
    sum ^= static_cast<unsigned char>(character);
  }
  std::array<char, 8> end{};
  std::snprintf(end.data(), end.size(), "*%02X\r\n", sum);
  return "$" + body + end.data();
}

inline std::string ApparentWind(const std::string& angle) {
  return Sentence("IIMWV," + angle + ",R,12.5,N,A");
}
inline std::string TrueWind(const std::string& angle) { return Sentence("IIMWV," + angle + ",T,9.0,N,A"); }
inline std::string Pilot(const std::string& bearing) {
  return Sentence("ECAPB,A,A,0.00,R,N,V,V," + bearing + ",M,1," + bearing + ",M," + bearing + ",M");
}

/// The bearings of a text that is nothing but whole pilot sentences with good checksums; nothing for any
/// other.
inline std::optional<std::vector<std::string>> Bearings(std::string_view text) {
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
inline std::string ProfileText(int inputPort, int pilotPort, const std::string& ports) {
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
  /// To be called before the terminal hangs up: its number may be that of another test's a moment later.
  void Pull() const { fs::remove(m_link); }

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
  /// The bearings of all that has come out, as soon as it ends with a whole sentence; nothing when it is
  /// anything else than whole pilot sentences for half a minute.
  std::optional<std::vector<std::string>> HearsBearings() {
    std::optional<std::vector<std::string>> bearings;
    Await([&] {
      bearings = Bearings(Heard());
      return bearings && !bearings->empty();
    });
    return bearings;
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
inline bool WriteAll(Pty& pty, std::string_view text) {
  return Await([&] {
    text.remove_prefix(pty.Write(text));
    return text.empty();
  });
}

class RealPorts : public testing::Test {
 protected:
  void Launch(const char* program, const std::string& profile, const Surroundings& around = {}) {
    m_program.emplace(program, profile);
    ASSERT_TRUE(m_program->Start({}, around));
  }

  /// Starts the program with the remote control and waits for its window.
  void LaunchRemote(const std::string& profile, const Surroundings& around = {}) {
    Launch(VEERWATCH_REMOTE, profile, around);
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

  /// The memory [bytes] that the program has taken and not given back.
  long MemoryInUse() {
    m_seen = m_program->Said().size();
    m_program->Tell("memory");
    long bytes = 0;
    Await([&] {
      const std::size_t at = m_program->Said().find("memory ", m_seen);
      return at != std::string::npos && m_program->Said().find('\n', at) != std::string::npos &&
             std::sscanf(m_program->Said().c_str() + at, "memory %ld", &bytes) == 1;
    });
    EXPECT_GT(bytes, 0) << m_program->Said();
    return bytes;
  }

  /// The sentence for the bearing that the autopilot's box shows.
  std::string PresentSentence() {
    const std::string bearing = Text("txtAutoPilot");
    return Pilot(std::string(5 - std::min<std::size_t>(5, bearing.size()), '0') + bearing);
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

  /// The profile of a program between In and Out.
  std::string BetweenTerminals() const {
    return ProfileText(1, 2, "1=" + In.Device() + "\r\n2=" + Out.Device() + "\r\n");
  }

  /// Starts the program between In and Out and brings it to Manual, on a wind of 40 degrees.
  void Sail() {
    LaunchRemote(BetweenTerminals());
    SailInManual(In, Pilots);
  }

  /// The program ends in order on SIGTERM, without a question, and leaves a whole profile.
  void ExpectOrderlyEnd() {
    ASSERT_TRUE(m_program->Runs()) << m_program->Said();
    m_program->Terminate();
    EXPECT_EQ(m_program->AwaitEnd(), 0) << m_program->Said();
    EXPECT_THAT(m_program->Profile(), testing::HasSubstr("; a comment of the skipper\r\n"));
    EXPECT_THAT(m_program->Profile(), testing::HasSubstr("Sentence HDG=True\r\n"));
  }

  Pty In;
  Pty Out;
  Listener Pilots{Out};  ///< on Out
  std::optional<Process> m_program;

 private:
  std::size_t m_seen = 0;
};

}  // namespace veerwatch
