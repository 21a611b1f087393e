// veerwatch_soak HOURS SPEED: the real program on pseudo terminals, all of its windows open, against a boat
// whose clock runs SPEED times as fast, for HOURS of the boat's time. A line of figures every ten seconds,
// then what they come to; exit status 1 when that is more than is promised.
#include <unistd.h>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "tests/soak/Sailor.h"
#include "tests/soak/Wire.h"

namespace veerwatch {
namespace {

using Clock = std::chrono::steady_clock;
using Seconds = std::chrono::duration<double>;

constexpr double kSamplePeriod = 10.0;  // [s]
constexpr double kStep = 1.0;           // of the boat [s]
// What is promised.
constexpr double kMostGrowth = 1024.0;  // of the memory in the second half [kB]
// And up to this speed, at which the boat sends more than a line at 4800 baud carries:
constexpr double kLineSpeed = 2.0;
// 99.9 % of the turns of the event loop in any sample are late by less [ms].
constexpr double kMostDelay = 20.0;

struct Sample {
  double Time = 0.0;    ///< [s]
  double Memory = 0.0;  ///< resident [kB]
  std::size_t Files = 0;
  double Processor = 0.0;  ///< since the start [s]
  double Delay999 = 0.0;   ///< [ms]
  double DelayMost = 0.0;  ///< [ms]
};

std::string ReadFile(const std::filesystem::path& path) {
  std::ifstream file(path);
  return {std::istreambuf_iterator<char>(file), {}};
}

Sample Measure(pid_t process) {
  const std::filesystem::path folder = "/proc/" + std::to_string(process);
  Sample sample;
  const std::string status = ReadFile(folder / "status");
  if (const auto at = status.find("VmRSS:"); at != std::string::npos) {
    sample.Memory = std::strtod(status.c_str() + at + 6, nullptr);
  }
  std::error_code error;
  for (std::filesystem::directory_iterator it(folder / "fd", error), end; it != end; it.increment(error)) {
    ++sample.Files;
  }
  // User and system time are fields 14 and 15, the 12th and 13th after the name in parentheses.
  const std::string stat = ReadFile(folder / "stat");
  std::istringstream fields(stat.substr(std::min(stat.size(), stat.rfind(')') + 1)));
  std::string field;
  for (int number = 1; fields >> field && number <= 13; ++number) {
    if (number >= 12) {
      sample.Processor += std::strtod(field.c_str(), nullptr) / static_cast<double>(::sysconf(_SC_CLK_TCK));
    }
  }
  return sample;
}

std::string ProfileFor(const Wire& wire) {
  return "[Nmea]\nPort=1\n[Pilot]\nPort=2\n[Ports]\n1=" + wire.Instruments() + "\n2=" + wire.Pilot() +
         "\n[Polar Window]\nVisible=True\n[Polar Data]\nCourse Waypoint=True\nCourse Waypoint Index=2\n" +
         "[History Window]\nVisible=True\nWidth=15000\nHeight=9000\n";
}

/// Most less least of a figure over some samples.
template <class Figure>
double Spread(const std::vector<Sample>& samples, std::size_t first, Figure figure) {
  double least = figure(samples[first]);
  double most = least;
  for (std::size_t i = first; i < samples.size(); ++i) {
    least = std::min(least, figure(samples[i]));
    most = std::max(most, figure(samples[i]));
  }
  return most - least;
}

/// What the program takes `passed` after the start [s], with a line about it.
Sample TakeSample(Sailor& program, double passed, double sailed, const Sample& before) {
  Sample sample = Measure(program.Id());
  sample.Time = passed;
  std::string word;
  double count = 0.0;
  double median = 0.0;
  double most99 = 0.0;
  std::istringstream delays(program.Ask("delays"));
  delays >> word >> count >> median >> most99 >> sample.Delay999 >> sample.DelayMost;
  std::printf("%12.2f  %9.0f  %5zu  %11.1f  %16.1f  %4.1f  %6.1f  %4.1f\n", sailed / 3600.0, sample.Memory,
              sample.Files, 100.0 * (sample.Processor - before.Processor) / (sample.Time - before.Time),
              median, most99, sample.Delay999, sample.DelayMost);
  std::fflush(stdout);
  return sample;
}

/// Says what the samples come to: true when it is as promised.
bool Judge(const std::vector<Sample>& samples, std::size_t winds, std::size_t orders, int bad, double speed) {
  const std::size_t half = samples.size() / 2;
  const double growth = Spread(samples, half, [](const Sample& sample) { return sample.Memory; });
  const double files =
      Spread(samples, half, [](const Sample& sample) { return static_cast<double>(sample.Files); });
  std::vector<double> delays;
  for (const Sample& sample : samples) {
    delays.push_back(sample.Delay999);
  }
  std::sort(delays.begin(), delays.end());
  const double delay = delays[delays.size() / 2];
  std::printf("memory in the second half: %.0f kB between least and most (%.0f allowed)\n", growth,
              kMostGrowth);
  std::printf("open files in the second half: %.0f between least and most (0 allowed)\n", files);
  std::printf(
      "event loop: 99.9 %% of its turns late by %.1f ms or less in half of the samples, %.1f in the worst\n",
      delay, delays.back());
  std::printf("wind sentences %zu, sentences for the pilot %zu, bad ones %d\n", winds, orders, bad);
  // Faster than a line, several winds arrive in one piece, and only the newest heading is sent.
  const bool inTime = speed > kLineSpeed || (winds == orders && delays.back() < kMostDelay);
  const bool good = growth <= kMostGrowth && files == 0.0 && bad == 0 && inTime;
  std::printf("%s\n", good ? "as promised" : "NOT as promised");
  return good;
}

int Soak(double hours, double speed) {
  Wire wire;
  Sailor program(ProfileFor(wire));
  const auto begin = Clock::now();
  const auto passed = [begin] { return Seconds(Clock::now() - begin).count(); };
  // The boat follows the wall clock, a step of hers at a time.
  double sailed = 0.0;
  const auto sail = [&](double until) {
    while (passed() < until && program.Runs()) {
      while (sailed < passed() * speed) {
        wire.Sail(kStep);
        sailed += kStep;
      }
      std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
  };

  program.OpenWindows();
  sail(5.0);
  program.Do("click tbrTrack(7)");
  program.Do("delays");
  const std::size_t windsBefore = wire.Winds();
  const int ordersBefore = wire.Boat().Reader().GoodSentences();

  std::printf("boat's hours  memory kB  files  processor %%  delay ms: median  99 %%  99.9 %%  most\n");
  std::vector<Sample> samples;
  const double end = hours * 3600.0 / speed;
  for (double until = passed() + kSamplePeriod; until < end && program.Runs(); until += kSamplePeriod) {
    sail(until);
    samples.push_back(TakeSample(program, passed(), sailed, samples.empty() ? Sample{} : samples.back()));
  }
  // What is on its way arrives.
  sail(passed() + 1.0);
  const std::size_t winds = wire.Winds() - windsBefore;
  const auto orders = static_cast<std::size_t>(wire.Boat().Reader().GoodSentences() - ordersBefore);
  const std::optional<int> status = program.Close();
  if (samples.size() < 2 || status != 0) {
    std::fprintf(stderr, "the program did not last: %d after %zu samples\n", status.value_or(-1),
                 samples.size());
    return 1;
  }

  return Judge(samples, winds, orders, wire.Boat().Reader().BadSentences(), speed) ? 0 : 1;
}

}  // namespace
}  // namespace veerwatch

int main(int argc, char** argv) {
  const double hours = argc > 1 ? std::strtod(argv[1], nullptr) : 0.0;
  const double speed = argc > 2 ? std::strtod(argv[2], nullptr) : 50.0;
  if (!(hours > 0.0) || !(speed > 0.0)) {
    std::fprintf(stderr, "usage: veerwatch_soak HOURS [SPEED]\n");
    return 2;
  }
  return veerwatch::Soak(hours, speed);
}
