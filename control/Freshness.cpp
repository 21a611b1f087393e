#include "control/Freshness.h"

#include <algorithm>

namespace veerwatch {

namespace {

constexpr std::int64_t kUsualStale = 4000;  // [ms]

std::int64_t Milliseconds(float seconds) {
  constexpr double kMillisecondsPerSecond = 1000.0;
  constexpr double kLongest = 1e9;  // [ms]
  return static_cast<std::int64_t>(std::min(kLongest, static_cast<double>(seconds) * kMillisecondsPerSecond));
}

}  // namespace

void Ages::Came(Watched what, const Origin& from) {
  Value& value = m_values[static_cast<std::size_t>(what)];
  const std::int64_t now = from.At.Steady;
  const std::int64_t stale = StaleAfter(what);
  const bool gone = value.Counted && (value.StoodStill || now - *value.Counted > stale);
  if (gone && (!value.CameAgain || now - *value.CameAgain > stale)) {
    value.CameAgain = now;
    return;
  }
  value = {now, std::nullopt, false, from};
}

void Ages::StoodStill(std::int64_t milliseconds) {
  for (Value& value : m_values) {
    if (value.Counted) {
      *value.Counted += milliseconds;
      value.CameAgain.reset();
      value.StoodStill = true;
    }
  }
}

ValueAge Ages::At(Watched what, const Moment& now) const {
  const Value& value = Of(what);
  ValueAge age;
  age.From = value.From;
  if (value.Counted) {
    age.Age = std::max<std::int64_t>(0, now.Steady - *value.Counted);
  }
  age.State = StateOf(value, what, age.Age);
  if (age.State == Freshness::Fresh && m_settings.m_bSimulate) {
    age.Age = 0;
  }
  return age;
}

bool Ages::Within(Watched what, std::int64_t milliseconds, const Moment& now) const {
  const Value& value = Of(what);
  return m_settings.m_bSimulate ||
         (value.Counted && !value.StoodStill && now.Steady - *value.Counted <= milliseconds);
}

Freshness Ages::StateOf(const Value& value, Watched what, std::int64_t age) const {
  const bool fitted = what == Watched::BoatSpeed ? m_settings.m_bWatchLogFitted
                      : what == Watched::Heading ? m_settings.m_bWatchCompassFitted
                                                 : true;
  if (m_settings.m_bSimulate) {
    return Freshness::Fresh;
  }
  const std::int64_t stale = StaleAfter(what);
  const bool fresh = value.Counted && !value.StoodStill && age <= stale;
  if (fresh) {
    return Freshness::Fresh;
  }
  if (!fitted) {
    return Freshness::NotFitted;
  }
  if (!value.Counted) {
    return Freshness::Waiting;
  }
  return age > std::max(stale, kLostAfter) ? Freshness::Lost : Freshness::Stale;
}

std::int64_t Ages::StaleAfter(Watched what) const {
  switch (what) {
    case Watched::WindApparent:
      return Milliseconds(m_settings.m_fWatchStaleWindApparent);
    case Watched::WindTrue:
      return Milliseconds(m_settings.m_fWatchStaleWindTrue);
    case Watched::BoatSpeed:
      return Milliseconds(m_settings.m_fWatchStaleBoatSpeed);
    case Watched::Heading:
    case Watched::Compass:
      return Milliseconds(m_settings.m_fWatchStaleHeading);
    case Watched::Waypoint:
      return Milliseconds(m_settings.m_fWatchStaleWaypoint);
    case Watched::SpeedOverGround:
      break;
  }
  return kUsualStale;
}

}  // namespace veerwatch
