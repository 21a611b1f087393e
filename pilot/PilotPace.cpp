#include "pilot/PilotPace.h"

namespace veerwatch {

namespace {

constexpr int kSecond = 1000;       // [ms]
constexpr std::int64_t kEarly = 2;  // [ms] that a timer's clock may differ by

}  // namespace

std::optional<int> PilotPace::Spacing(const Settings& settings) {
  const int cadence = settings.m_iPilotCadence;
  // Rounded up, so that there are never more.
  return cadence > 0 ? std::optional((kSecond + cadence - 1) / cadence) : std::nullopt;
}

bool PilotPace::Due(std::int64_t spacing, std::int64_t now) const {
  return !m_said || now - *m_said >= spacing - kEarly || now < *m_said;
}

PilotPace::Says PilotPace::Say(Says what, std::int64_t now) {
  m_said = now;
  return what;
}

PilotPace::Says PilotPace::Step(std::int64_t now) {
  m_made = true;
  m_lost.reset();
  const auto spacing = Spacing(m_settings);
  return !spacing || Due(*spacing, now) ? Say(Says::Bearing, now) : Says::Nothing;
}

PilotPace::Says PilotPace::Look(bool good, std::int64_t now) {
  const auto spacing = Spacing(m_settings);
  if (!m_made) {
    return Says::Nothing;
  }
  if (good) {
    m_lost.reset();
    return spacing && Due(*spacing, now) ? Say(Says::Bearing, now) : Says::Nothing;
  }
  if (!m_lost) {
    m_lost = now;
  }
  const double seconds = static_cast<double>(now - *m_lost) / kSecond;
  if (!m_settings.m_bPilotInvalidWhenLost ||
      seconds >= static_cast<double>(m_settings.m_fPilotInvalidSeconds)) {
    return Says::Nothing;
  }
  return Due(spacing.value_or(kSecond), now) ? Say(Says::Invalid, now) : Says::Nothing;
}

}  // namespace veerwatch
