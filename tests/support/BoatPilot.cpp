#include "tests/support/BoatPilot.h"

#include <algorithm>
#include <cmath>

#include "platform/NumberText.h"
#include "tests/support/Sentences.h"

namespace veerwatch {

namespace {

double Missing(double wanted, double has) { return std::remainder(wanted - has, 360.0); }

/// The part of a way that is made in `tick` by what follows with the time constant `lag`.
double Follows(double lag, double tick) { return lag > 0.0 ? 1.0 - std::exp(-tick / lag) : 1.0; }

}  // namespace

void BoatPilot::Take(std::string_view bytes, bool refuses) {
  for (const char byte : bytes) {
    if (byte == '\r') {
      TakeLine(refuses);
      m_received.clear();
    } else if (byte != '\n') {
      m_received.push_back(byte);
    }
  }
}

void BoatPilot::TakeLine(bool refuses) {
  constexpr std::size_t kHeadingToSteer = 13;
  const std::string_view line = m_received;
  constexpr std::size_t kAddress = 7;  // "$ECAPB,"
  const std::size_t star = line.find('*');
  if (line.size() < kAddress || line.front() != '$' || line.substr(3, 4) != "APB," ||
      star == std::string_view::npos || WithChecksum(line.substr(0, star)) != line) {
    ++m_badSentences;
    return;
  }
  std::string_view rest = line.substr(0, star);
  for (std::size_t field = 0; field < kHeadingToSteer; ++field) {
    const std::size_t comma = rest.find(',');
    rest = comma == std::string_view::npos ? std::string_view{} : rest.substr(comma + 1);
  }
  const auto bearing = StrictDouble(rest.substr(0, rest.find(',')));
  if (!bearing) {
    ++m_badSentences;
    return;
  }
  ++m_goodSentences;
  if (m_told != *bearing) {
    ++m_bearingChanges;
    m_told = bearing;
  }
  if (!refuses) {
    m_bearing = *bearing;
  }
}

double BoatPilot::Rudder(const PilotSettings& settings, double compass, double turn, double tick) {
  const double shows = compass + settings.CompassOffset;
  m_compass =
      m_compass ? *m_compass + Missing(shows, *m_compass) * Follows(settings.CompassLag, tick) : shows;
  const double most = settings.MostTurn * tick;
  const double step =
      std::clamp(Missing(m_bearing, m_wanted) * Follows(settings.BearingLag, tick), -most, most);
  m_wanted += step;

  // The trim is for what pulls the boat aside all the time, and nothing for a turn.
  constexpr double kTrimsWithin = 15.0;
  constexpr double kMostTrim = 15.0;
  const double missing = Missing(m_wanted, *m_compass);
  if (std::fabs(missing) < kTrimsWithin) {
    m_trim += settings.Gain * missing * tick / settings.TrimTime;
    m_trim = std::clamp(m_trim, -kMostTrim, kMostTrim);
  }
  const double rudder =
      settings.Gain * missing + settings.Lead * step / tick - settings.Counter * turn + m_trim;
  return settings.Reversed ? -rudder : rudder;
}

}  // namespace veerwatch
