#include "cli/Simulate.h"

#include <array>
#include <chrono>
#include <iomanip>
#include <string>
#include <string_view>
#include <thread>

#include "cli/Trace.h"
#include "platform/NumberText.h"

namespace veerwatch {

namespace {

constexpr std::array<std::string_view, 10> kColumns{"Tick",   "Heading",  "Boat Kts", "App R",     "App Kts",
                                                    "True R", "True Kts", "Desired",  "Delta deg", "Pilot M"};
constexpr int kColumnWidth = 10;

void WriteColumns(long tick, const Steering& steering, TrackSide side, std::ostream& out) {
  const InstrumentData& data = steering.Data();
  const Settings& settings = steering.Set();
  const bool apparent = side == TrackSide::Apparent;
  std::string delta;
  if (steering.Delta()) {
    delta = FormatNumber(apparent ? steering.Delta()->Apparent : steering.Delta()->True, "0.0");
  }
  const std::array<std::string, kColumns.size()> cells{
      std::to_string(tick),
      FormatNumber(data.Heading, "0"),
      FormatNumber(data.BoatSpeed, "0.0"),
      FormatNumber(data.WindAngleApparent, "0"),
      FormatNumber(data.WindSpeedApparent, "0.0"),
      FormatNumber(data.WindAngleTrue, "0"),
      FormatNumber(data.WindSpeedTrue, "0.0"),
      FormatNumber(settings.DesiredAngle[static_cast<std::size_t>(side)], "0"),
      delta,
      FormatNumber(settings.m_fAutoPilot, "0.0")};
  for (const std::string& cell : cells) {
    out << std::setw(kColumnWidth) << cell;
  }
  out << '\n';
}

}  // namespace

void Simulate(const SimulateOptions& options, std::ostream& out) {
  Steering steering(options.Steer, true, options.Seed);
  steering.Start();
  bool inMode = false;
  const auto enter = [&] {
    if (!inMode && steering.MayEnterMode()) {
      steering.EnterMode();
      inMode = true;
    }
  };
  enter();
  if (!options.Steer.Trace) {
    for (const std::string_view column : kColumns) {
      out << std::setw(kColumnWidth) << column;
    }
    out << '\n';
  }
  auto next = std::chrono::steady_clock::now();
  for (long tick = 1; out && tick <= options.Ticks; ++tick) {
    if (options.RealTime) {
      next += std::chrono::seconds(1);
      std::this_thread::sleep_until(next);
    }
    enter();
    steering.Tick();
    if (options.Steer.Trace) {
      out << TraceTick(steering) << '\n';
    } else {
      WriteColumns(tick, steering, options.Steer.Side, out);
    }
    if (options.RealTime) {
      out.flush();
    }
  }
}

}  // namespace veerwatch
