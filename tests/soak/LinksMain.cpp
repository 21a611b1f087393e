// veerwatch_links: the real program, its main window alone, between all kinds of endpoints of this computer.
// Measures how long each wind takes to its sentence for the pilot, from every kind to every kind; whether a
// flood of lines from a TCP connection comes in whole while the window answers; and what ten clients cost
// that do nothing. Exit status 1 when that is more than is promised.

#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <iterator>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tests/soak/FarEnds.h"
#include "tests/soak/Sailor.h"
#include "tests/support/Sentences.h"
#include "tests/support/TemporaryFolder.h"

namespace veerwatch {
namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

// What is promised.
constexpr double kMostWait = 2.0;    // of 99 % of the winds [ms]
constexpr double kMostDelay = 50.0;  // of 99.9 % of the event loop's turns [ms]
constexpr double kLines = 100'000;   // a second

struct Kind {
  const char* Name;
  std::function<std::unique_ptr<FarEnd>()> In;
  std::function<std::unique_ptr<FarEnd>()> Out;
};

template <class End>
std::unique_ptr<FarEnd> Make() {
  return std::make_unique<End>();
}

const std::array<Kind, 4> kKinds{{{"device", Make<PtyEnd>, Make<PtyEnd>},
                                  {"tcp", Make<TcpEnd>, Make<TcpEnd>},
                                  {"tcp-listen", Make<CallingEnd>, Make<CallingEnd>},
                                  {"udp", Make<UdpSource>, Make<UdpSink>}}};

std::string Profile(const FarEnd& in, const FarEnd& out) {
  return "[Nmea]\nPort=1\n[Pilot]\nPort=2\n[Ports]\n1=" + in.Endpoint() + "\n2=" + out.Endpoint() + "\n";
}

/// The next wind, another one each time.
std::string Wind(int number) {
  const int angle = 450 + static_cast<int>(std::lround(60.0 * std::sin(0.47 * number)));
  return WithChecksum("$IIMWV," + std::to_string(angle / 10) + "." + std::to_string(angle % 10) +
                      ",R,14.5,N,A") +
         "\r\n";
}

std::size_t SentencesOf(const std::string& text) {
  return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

/// Ends this program: the one that is tried is not there.
[[noreturn]] void Lost(const std::string& what) {
  std::fprintf(stderr, "%s\n", what.c_str());
  std::exit(1);
}

/// Both far ends with the program between them, in Track.
void Begin(Sailor& program, FarEnd& in, FarEnd& out) {
  if (!in.Join() || !out.Join()) {
    Lost("the program does not come to " + in.Endpoint() + " and " + out.Endpoint());
  }
  program.Do("click tbrTrack(5)");
  for (int i = 0; i < 20; ++i) {
    in.Send(WithChecksum("$GPVTG,,T,123.0,M,6.3,N,,K") + "\r\n" + Wind(i));
    out.Wait(100);
    out.Read();
  }
  program.Do("click tbrTrack(7)");
}

double Quantile(const std::vector<double>& sorted, double part) {
  const auto at = static_cast<std::size_t>(std::ceil(part * static_cast<double>(sorted.size())));
  return sorted.empty() ? 0.0 : sorted[std::max<std::size_t>(at, 1) - 1];
}

/// From a wind to its sentence, for each pair of kinds; true when it is as promised.
bool Waits(int winds) {
  constexpr int kPause = 20;  // [ms]
  bool good = true;
  for (const Kind& from : kKinds) {
    for (const Kind& to : kKinds) {
      const std::unique_ptr<FarEnd> in = from.In();
      const std::unique_ptr<FarEnd> out = to.Out();
      Sailor program(Profile(*in, *out));
      Begin(program, *in, *out);
      std::vector<double> waits;
      for (int i = 0; i < winds; ++i) {
        ::usleep(kPause * 1000);
        const auto sent = Clock::now();
        in->Send(Wind(i));
        constexpr int kLost = 1000;  // [ms]
        out->Wait(kLost);
        if (SentencesOf(out->Read()) == 1) {
          waits.push_back(Milliseconds(Clock::now() - sent).count());
        }
      }
      std::sort(waits.begin(), waits.end());
      const bool fine = waits.size() == static_cast<std::size_t>(winds) && Quantile(waits, 0.99) < kMostWait;
      good = program.Close() == 0 && fine && good;
      std::printf("%-10s to %-10s %zu of %d winds: median %.2f ms, 99 %% %.2f, most %.2f%s\n", from.Name,
                  to.Name, waits.size(), winds, Quantile(waits, 0.5), Quantile(waits, 0.99),
                  Quantile(waits, 1.0), fine ? "" : " NOT as promised");
      std::fflush(stdout);
    }
  }
  return good;
}

/// Lines from a TCP connection at the promised rate, recorded by the program.
bool Flood(double seconds) {
  const TemporaryFolder folder;
  TcpEnd in;
  PtyEnd out;
  Sailor program(Profile(in, out));
  Begin(program, in, out);
  program.Do("click mnuFileRecord");
  program.Do("type fileNameEdit " + (folder / "flood.nmea").string());
  std::string thousand;
  for (int i = 0; i < 200; ++i) {
    for (const char* body : {"$IIHDG,123.0,,,3.0,W", "$GPVTG,,T,123.0,M,6.3,N,,K",
                             "$IIVHW,,T,123.0,M,6.2,N,,K", "$GPGLL,5010.00,N,00510.00,W,120000,A"}) {
      thousand += WithChecksum(body) + "\r\n";
    }
    thousand += Wind(i);
  }
  program.Do("delays");
  const auto begin = Clock::now();
  const double wanted = kLines * seconds / 1000.0;
  double late = 0.0;
  double sent = 0.0;
  for (; sent < wanted; ++sent) {
    const double due = 1000.0 * sent * 1000.0 / kLines;
    while (Milliseconds(Clock::now() - begin).count() < due) {
      out.Read();
      ::usleep(500);
    }
    for (std::string_view rest = thousand; !rest.empty(); rest.remove_prefix(in.Send(rest))) {
      in.Wait(1, POLLOUT);
    }
    late = std::max(late, Milliseconds(Clock::now() - begin).count() - due);
  }
  const double took = Milliseconds(Clock::now() - begin).count() / 1000.0;
  std::istringstream delays(program.Ask("delays"));
  std::string word;
  std::array<double, 5> figures{};  // count, median, 99 %, 99.9 %, most
  delays >> word;
  for (double& figure : figures) {
    delays >> figure;
  }
  // A large recording goes on in another file, and the last lines reach the disk after a second.
  double recorded = 0.0;
  Await([&] {
    recorded = 0.0;
    for (const std::string& name : folder.Names()) {
      recorded += static_cast<double>(SentencesOf(ReadFile(folder / name)));
    }
    return recorded >= sent * 1000.0;
  });
  const bool ended = program.Close() == 0;
  std::printf("flood: %.0f lines in %.2f s, the sender late by %.0f ms at most; %.0f recorded\n",
              sent * 1000.0, took, late, recorded);
  std::printf("event loop late, %.0f turns: median %.1f ms, 99 %% %.1f, 99.9 %% %.1f, most %.1f\n",
              figures[0], figures[1], figures[2], figures[3], figures[4]);
  constexpr double kLate = 1.05;
  return ended && recorded == sent * 1000.0 && took < seconds * kLate && figures[0] > 0.0 &&
         figures[3] < kMostDelay;
}

/// Processor time of a process so far [s].
double ProcessorTime(pid_t process) {
  std::ifstream stat("/proc/" + std::to_string(process) + "/stat");
  std::string text((std::istreambuf_iterator<char>(stat)), std::istreambuf_iterator<char>());
  std::istringstream fields(text.substr(text.rfind(')') + 2));
  std::string skipped;
  for (int i = 3; i < 14; ++i) {
    fields >> skipped;
  }
  double user = 0.0;
  double system = 0.0;
  fields >> user >> system;
  return (user + system) / static_cast<double>(::sysconf(_SC_CLK_TCK));
}

/// What clients cost that connect and then do nothing.
void Idle(int seconds) {
  PtyEnd in;
  CallingEnd out;
  Sailor program(Profile(in, out));
  Begin(program, in, out);
  program.Do("click tbrTrack(1)");
  const auto cost = [&] {
    const double before = ProcessorTime(program.Id());
    ::sleep(static_cast<unsigned>(seconds));
    return 100.0 * (ProcessorTime(program.Id()) - before) / seconds;
  };
  const double alone = cost();
  std::vector<std::unique_ptr<Caller>> clients;
  for (int i = 0; i < 9; ++i) {
    clients.push_back(std::make_unique<Caller>(out.Number()));
  }
  std::printf("idle clients: one %.2f %%, ten %.2f %% of a core\n", alone, cost());
  program.Close();
}

}  // namespace
}  // namespace veerwatch

int main(int argc, char** argv) {
  const std::string what = argc > 1 ? argv[1] : "";
  bool good = true;
  if (what.empty() || what == "waits") {
    good = veerwatch::Waits(150) && good;
  }
  if (what.empty() || what == "flood") {
    good = veerwatch::Flood(5.0) && good;
  }
  if (what.empty() || what == "idle") {
    veerwatch::Idle(20);
  }
  std::printf("%s\n", good ? "as promised" : "NOT as promised");
  return good ? 0 : 1;
}
