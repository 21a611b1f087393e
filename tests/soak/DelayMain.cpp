// veerwatch_delay winds|flood [OPTION VALUE...]: the real program on pseudo terminals, all of its windows
// open or the main window alone, in Track. "winds" sends single winds and measures how long each takes to its
// sentence for the pilot; "flood" sends as many lines as the program takes and measures how late its event
// loop is. Exit status 1 when that is more than is promised.
#include <poll.h>

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cmath>
#include <csignal>
#include <cstdio>
#include <deque>
#include <map>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "tests/soak/Sailor.h"
#include "tests/support/Pty.h"
#include "tests/support/Sentences.h"
#include "tests/support/TemporaryFolder.h"

namespace veerwatch {
namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

// What is promised of 99.9 % [ms].
constexpr double kMostWait = 5.0;
constexpr double kMostWaitOnAPart = 50.0;  // with less than the whole core
constexpr double kMostDelay = 50.0;

struct Wishes {
  double Seconds = 60.0;
  double Rate = 10.0;  ///< winds a second
  int Rows = 200;      ///< of the polar
  int Columns = 50;
  double Plot = 1.0;     ///< 0 true, 1 apparent wind
  double Core = 100.0;   ///< part of one core that the program may use [%]
  double Windows = 1.0;  ///< 1 all of them open, 0 the main window alone
};

/// A polar of that size.
std::string PolarOf(int rows, int columns) {
  std::ostringstream text;
  text << "TWA";
  for (int column = 1; column <= columns; ++column) {
    text << '\t' << column * 50.0 / columns;
  }
  text << '\n';
  for (int row = 1; row <= rows; ++row) {
    const double angle = 180.0 * row / rows;
    text << angle;
    for (int column = 1; column <= columns; ++column) {
      text << '\t' << std::round(10.0 * std::sqrt(angle * column * 50.0 / columns) / 3.0) / 10.0;
    }
    text << '\n';
  }
  return text.str();
}

/// Lets a process run for a part of each period only.
class Brake {
 public:
  Brake(pid_t process, double percent) : m_process(process), m_part(percent / 100.0), m_begin(Clock::now()) {}
  ~Brake() { Hold(false); }
  Brake(const Brake&) = delete;
  Brake& operator=(const Brake&) = delete;

  /// To be called all the time. When to call again.
  Clock::time_point Turn(Clock::time_point now) {
    if (m_part >= 1.0) {
      return now + std::chrono::seconds(1);
    }
    const double passed = Milliseconds(now - m_begin).count();
    const double at = std::fmod(passed, kPeriod);
    const bool runs = at < kPeriod * m_part;
    Hold(!runs);
    const double left = (runs ? kPeriod * m_part : kPeriod) - at;
    return now + std::chrono::duration_cast<Clock::duration>(Milliseconds(left));
  }

 private:
  static constexpr double kPeriod = 8.0;  // [ms]

  void Hold(bool hold) {
    if (hold != m_held) {
      m_held = hold;
      ::kill(m_process, hold ? SIGSTOP : SIGCONT);
    }
  }

  pid_t m_process;
  double m_part;
  Clock::time_point m_begin;
  bool m_held = false;
};

/// The two ends of the wire, and what the instruments say at each wind.
class Instruments {
 public:
  explicit Instruments(const Wishes& wishes) : m_folder(), m_wishes(wishes) {
    WriteFile(m_folder / "soak.pol", PolarOf(wishes.Rows, wishes.Columns));
  }

  std::string Profile() const {
    const std::string ports =
        "[Nmea]\nPort=1\n[Pilot]\nPort=2\n[Ports]\n1=" + m_nmea.Device() + "\n2=" + m_pilot.Device() + "\n";
    if (m_wishes.Windows == 0.0) {
      return ports;
    }
    return ports + "[Polar Window]\nVisible=True\n[Polar Data]\nFile 1=" + (m_folder / "soak.pol").string() +
           "\nPlot Type=" + std::to_string(static_cast<int>(m_wishes.Plot)) +
           "\nCourse Waypoint=True\nCourse Waypoint Index=2\n" +
           "[History Window]\nVisible=True\nWidth=15000\nHeight=9000\n";
  }

  /// Heading, speed, waypoint and a wind that is another each time, the wind last.
  std::string Next() {
    ++m_number;
    const auto swing = [this](double step, double most) { return most * std::sin(step * m_number); };
    const auto number = [](double value) {
      std::array<char, 32> text{};
      std::snprintf(text.data(), text.size(), "%.1f", value);
      return std::string(text.data());
    };
    const std::string heading = number(123.0 + swing(0.31, 4.0));
    std::string text;
    for (const std::string& body :
         {"$GPVTG,,T," + heading + ",M,6.3,N,,K", "$IIHDG," + heading + ",,,3.0,W",
          "$IIVHW,,T," + heading + ",M,6.2,N,,K",
          std::string("$GPRMB,A,0.10,R,START,MARK,5010.00,N,00510.00,W,12.0,150.0,5.0,V"),
          "$IIMWV," + number(45.0 + swing(0.47, 6.0)) + ",R," + number(14.0 + swing(0.23, 3.0)) + ",N,A"}) {
      text += WithChecksum(body) + "\r\n";
    }
    return text;
  }

  const Pty& Nmea() const { return m_nmea; }

  /// Sentences that have come for the pilot since the last call.
  std::size_t Sentences() {
    const std::string text = m_pilot.Read();
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
  }

  /// Waits until something comes for the pilot, or for `space` in front of the program, but not after
  /// `until`.
  void Wait(Clock::time_point until, bool space) const {
    const auto left = std::max(Clock::duration::zero(), until - Clock::now());
    const auto nanoseconds = std::chrono::duration_cast<std::chrono::nanoseconds>(left).count();
    constexpr long kSecond = 1'000'000'000;
    const timespec limit{nanoseconds / kSecond, nanoseconds % kSecond};
    std::array<pollfd, 2> ends{pollfd{m_pilot.Master(), POLLIN, 0},
                               pollfd{m_nmea.Master(), static_cast<short>(space ? POLLOUT : 0), 0}};
    ::ppoll(ends.data(), ends.size(), &limit, nullptr);
  }

 private:
  TemporaryFolder m_folder;
  Wishes m_wishes;
  Pty m_nmea;
  Pty m_pilot;
  int m_number = 0;
};

double Quantile(const std::vector<double>& sorted, double part) {
  const auto at = static_cast<std::size_t>(std::ceil(part * static_cast<double>(sorted.size())));
  return sorted.empty() ? 0.0 : sorted[std::max<std::size_t>(at, 1) - 1];
}

/// Goes to Track with the first winds.
void Begin(const Wishes& wishes, Instruments& instruments, Sailor& program) {
  if (wishes.Windows != 0.0) {
    program.OpenWindows();
  } else {
    program.Do("click tbrTrack(5)");
  }
  for (int i = 0; i < 20; ++i) {
    instruments.Nmea().Write(instruments.Next());
    instruments.Wait(Clock::now() + std::chrono::milliseconds(100), false);
    instruments.Sentences();
  }
  program.Do("click tbrTrack(7)");
  program.Do("delays");
}

/// True when it ends in order.
bool End(Sailor& program) {
  const std::optional<int> status = program.Close();
  if (status != 0) {
    std::fprintf(stderr, "the program did not last: %d\n", status.value_or(-1));
  }
  return status == 0;
}

int Winds(const Wishes& wishes) {
  Instruments instruments(wishes);
  Sailor program(instruments.Profile());
  Begin(wishes, instruments, program);
  std::vector<double> waits;
  std::deque<Clock::time_point> waiting;  // winds without a sentence; the first sentence is for the first
  std::size_t winds = 0;
  const auto begin = Clock::now();
  const auto due = [&] {
    return begin + std::chrono::duration_cast<Clock::duration>(
                       std::chrono::duration<double>(static_cast<double>(winds) / wishes.Rate));
  };
  {
    Brake brake(program.Id(), wishes.Core);
    const auto end =
        begin + std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(wishes.Seconds));
    constexpr std::chrono::seconds kLast(2);
    for (auto now = begin; now < end + kLast; now = Clock::now()) {
      const auto turn = brake.Turn(now);
      if (now < end && now >= due()) {
        instruments.Nmea().Write(instruments.Next());
        waiting.push_back(Clock::now());
        ++winds;
      }
      instruments.Wait(std::min(turn, now < end ? due() : end + kLast), false);
      for (std::size_t left = instruments.Sentences(); left > 0 && !waiting.empty(); --left) {
        waits.push_back(Milliseconds(Clock::now() - waiting.front()).count());
        waiting.pop_front();
      }
    }
  }
  const bool ended = End(program);
  std::sort(waits.begin(), waits.end());
  const double wait = Quantile(waits, 0.999);
  std::printf("winds %zu, sentences for the pilot %zu\n", winds, waits.size());
  std::printf("from a wind to its sentence: median %.2f ms, 99 %% %.2f, 99.9 %% %.2f, most %.2f\n",
              Quantile(waits, 0.5), Quantile(waits, 0.99), wait, Quantile(waits, 1.0));
  const bool good =
      ended && waits.size() == winds && wait < (wishes.Core < 100.0 ? kMostWaitOnAPart : kMostWait);
  std::printf("%s\n", good ? "as promised" : "NOT as promised");
  return good ? 0 : 1;
}

int Flood(const Wishes& wishes) {
  Instruments instruments(wishes);
  Sailor program(instruments.Profile());
  Begin(wishes, instruments, program);
  std::string waiting;
  std::size_t lines = 0;
  std::size_t sentences = 0;
  const auto begin = Clock::now();
  const auto end =
      begin + std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(wishes.Seconds));
  {
    Brake brake(program.Id(), wishes.Core);
    for (auto now = begin; now < end; now = Clock::now()) {
      const auto turn = brake.Turn(now);
      constexpr std::size_t kAhead = 4096;
      while (waiting.size() < kAhead) {
        waiting += instruments.Next();
        lines += 5;
      }
      waiting.erase(0, instruments.Nmea().Write(waiting));
      instruments.Wait(std::min(turn, end), true);
      sentences += instruments.Sentences();
    }
  }
  std::istringstream delays(program.Ask("delays"));
  std::string word;
  double count = 0.0;
  double median = 0.0;
  double most99 = 0.0;
  double most999 = 0.0;
  double most = 0.0;
  delays >> word >> count >> median >> most99 >> most999 >> most;
  const bool ended = End(program);
  std::printf("%.0f lines a second, %zu sentences for the pilot\n",
              static_cast<double>(lines) / wishes.Seconds, sentences);
  std::printf("event loop late, %.0f turns: median %.1f ms, 99 %% %.1f, 99.9 %% %.1f, most %.1f\n", count,
              median, most99, most999, most);
  const bool good = ended && count > 0.0 && sentences > 0 && most999 < kMostDelay;
  std::printf("%s\n", good ? "as promised" : "NOT as promised");
  return good ? 0 : 1;
}

/// Takes "--name value" pairs; false for anything else.
bool Take(int argc, char** argv, Wishes& wishes) {
  double rows = wishes.Rows;
  double columns = wishes.Columns;
  const std::map<std::string_view, double*> options{
      {"--seconds", &wishes.Seconds}, {"--rate", &wishes.Rate}, {"--rows", &rows},
      {"--columns", &columns},        {"--plot", &wishes.Plot}, {"--core", &wishes.Core},
      {"--windows", &wishes.Windows}};
  for (int i = 2; i < argc; i += 2) {
    const auto option = options.find(argv[i]);
    if (option == options.end() || i + 1 == argc) {
      return false;
    }
    const std::string_view value = argv[i + 1];
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), *option->second);
    if (error != std::errc() || end != value.data() + value.size() || *option->second < 0.0) {
      return false;
    }
  }
  wishes.Rows = static_cast<int>(rows);
  wishes.Columns = static_cast<int>(columns);
  return wishes.Seconds > 0.0 && wishes.Rate > 0.0 && wishes.Core > 0.0 && rows >= 2.0 && rows <= 200.0 &&
         columns >= 1.0 && columns <= 50.0;
}

}  // namespace
}  // namespace veerwatch

int main(int argc, char** argv) {
  veerwatch::Wishes wishes;
  const std::string_view what = argc > 1 ? argv[1] : "";
  if ((what != "winds" && what != "flood") || !veerwatch::Take(argc, argv, wishes)) {
    std::fprintf(
        stderr,
        "usage: veerwatch_delay winds|flood [--seconds S] [--rate N] [--rows N] [--columns N] [--plot 0|1] "
        "[--core PERCENT] [--windows 0|1]\n");
    return 2;
  }
  return what == "winds" ? veerwatch::Winds(wishes) : veerwatch::Flood(wishes);
}
