#include "cli/BoatCommand.h"

#include <poll.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "cli/BoatEnds.h"
#include "cli/Steering.h"

namespace veerwatch {

namespace {

double Within(const char* name, double value, double least, double most) {
  if (!(value >= least && value <= most)) {
    throw CommandError(std::string(name) + " is out of its range");
  }
  return value;
}

/// Waits for what comes, or for the moment `until`.
void Await(const std::vector<std::unique_ptr<BoatEnd>>& ends, std::chrono::steady_clock::time_point until) {
  std::vector<int> descriptors;
  for (const auto& end : ends) {
    end->AddTo(descriptors);
  }
  std::vector<pollfd> waited;
  waited.reserve(descriptors.size());
  for (const int descriptor : descriptors) {
    waited.push_back({descriptor, POLLIN, 0});
  }
  const auto left = std::chrono::ceil<std::chrono::milliseconds>(until - std::chrono::steady_clock::now());
  ::poll(waited.data(), waited.size(), static_cast<int>(std::max<std::int64_t>(0, left.count())));
}

}  // namespace

WireBoat BoatOf(const BoatOptions& options) {
  constexpr double kTurn = 360.0;
  constexpr double kPercent = 100.0;
  constexpr double kLeastRate = 0.01;
  constexpr double kMostRate = 20.0;
  BoatSettings boat;
  boat.Rudder = RudderSettings{};
  boat.LogLag = 3.0;
  boat.WindSpeed = Within("--wind", options.Wind, 0.0, 60.0);
  boat.WindFrom = Within("--from", options.From, -kTurn, kTurn);
  boat.GustDeviation = Within("--gust", options.Gust, 0.0, kPercent) / kPercent;
  boat.ShiftDeviation = Within("--shift", options.Shift, 0.0, 90.0);
  boat.Leeway = Within("--leeway", options.Leeway, 0.0, 30.0);
  boat.Pilot.BearingLag = Within("--lag", options.Lag, 0.0, 60.0);
  boat.Pilot.CompassOffset = Within("--offset", options.Offset, -180.0, 180.0);
  boat.Variation = Within("--variation", options.Variation, -180.0, 180.0);
  boat.WindPeriod = boat.HeadingPeriod = 1.0 / Within("--rate", options.Rate, kLeastRate, kMostRate);
  boat.Sea = SeaOf(options.TheSea);
  boat.VaneNoise = 1.0;
  boat.TrueWindSensor = options.TrueWind;
  return {boat, Within("--heading", options.Heading, 0.0, kTurn), options.Seed, options.Reads};
}

const std::string& BoatOnWire::Step(double seconds) {
  constexpr std::size_t kRecent = 8192;  // characters
  m_step = m_boat.Step(seconds);
  m_recent.append(m_step);
  if (m_recent.size() > kRecent) {
    m_recent.erase(0, m_recent.size() - kRecent);
  }
  return m_step;
}

void BoatOnWire::Line(std::string_view line) {
  // A gateway that relays everything would else lead her to her own waypoint.
  if (m_recent.find(line) == std::string::npos) {
    m_boat.Steer(std::string(line) + "\r\n");
  }
}

void Boat(const BoatOptions& options, std::ostream& out, const std::function<bool()>& ended) {
  using Steady = std::chrono::steady_clock;
  using Seconds = std::chrono::duration<double>;
  constexpr auto kStep = std::chrono::milliseconds(50);
  constexpr auto kFarBehind = std::chrono::seconds(2);
  BoatOnWire boat(options);
  std::vector<std::unique_ptr<BoatEnd>> ends;
  for (const std::string& where : options.Listen) {
    ends.push_back(OpenBoatEnd(where));
    out << "Listening on " << ends.back()->Name() << std::endl;
  }
  const auto start = Steady::now();
  auto next = start + kStep;
  while (!ended() && (options.Time == 0.0 || Seconds(Steady::now() - start).count() < options.Time)) {
    Await(ends, next);
    for (const auto& end : ends) {
      end->Take([&](std::string_view line) { boat.Line(line); });
    }
    if (Steady::now() < next) {
      continue;
    }
    // What a sleeping computer has missed is not sailed.
    next = Steady::now() - next > kFarBehind ? Steady::now() + kStep : next + kStep;
    const std::string& sent = boat.Step(Seconds(kStep).count());
    if (!sent.empty()) {
      for (const auto& end : ends) {
        end->Send(sent);
      }
    }
  }
}

}  // namespace veerwatch
