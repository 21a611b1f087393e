#include "cli/Steering.h"

#include <cmath>

#include "helm/SettingsProfile.h"
#include "nmea/Fields.h"
#include "nmea/SentenceTable.h"
#include "platform/Profile.h"

namespace veerwatch {

namespace {

constexpr std::int64_t kSecond = 1000;  // [ms]

}  // namespace

Steering::Steering(const SteeringOptions& options, bool simulate, std::uint64_t seed)
    : m_mode(options.Mode),
      m_windTime(static_cast<double>(kSecond) / options.WindsASecond),
      m_random(seed),
      m_helm(m_settings, m_nmeaPort, m_pilotPort, m_timer, m_clock, m_random),
      m_told(m_helm.Observers().Join(*this)) {
  if (options.ProfileFile) {
    Profile profile;
    if (profile.Load(*options.ProfileFile) != Profile::LoadResult::Read) {
      throw CommandError("cannot read the profile " + *options.ProfileFile);
    }
    RememberedWindows noWindows;
    ProfileRead(profile, m_settings, noWindows);
  }
  m_settings.m_bSimulate = simulate;
  m_helm.Loop().Side(options.Side);
}

bool Steering::BringsTracked(std::string_view line) const {
  const SentenceKind* kind = FindSentence(line);
  if (kind == nullptr || !kind->IsWind) {
    return false;
  }
  const bool fromSensor = m_helm.Loop().Side() == TrackSide::True && m_settings.m_iNmeaTrueWind == 0;
  return Fields(line)[2] == (fromSensor ? "T" : "R");
}

void Steering::Start() { m_helm.Modes().TrackSetSetup(); }

bool Steering::MayEnterMode() const { return m_mode != TrackMode::Track || !m_helm.Loop().LacksHeading(); }

void Steering::EnterMode() {
  if (m_mode == TrackMode::Setup) {
    return;
  }
  m_helm.Modes().TrackSetManual();
  if (m_mode == TrackMode::Track) {
    m_helm.Modes().TrackSetTrack();
    if (m_refused) {
      throw CommandError(std::string(TrackRefusalText(*m_refused)));
    }
  }
}

void Steering::Line(const std::string& line) {
  Forget();
  // A log without times: a second, or what was asked for, for each wind of the tracked side.
  if (BringsTracked(line)) {
    const auto before = std::llround(m_logTime);
    m_logTime += m_windTime;
    m_clock.Pass(std::llround(m_logTime) - before);
  }
  m_bytes.assign(line).push_back('\r');
  m_nmeaPort.Arrive(m_bytes);
}

void Steering::Tick() {
  Forget();
  m_clock.Pass(kSecond);
  m_helm.Tick();
}

void Steering::OnNmeaLine(std::string_view line, LineFault fault, bool used) {
  m_used = used;
  if (fault != LineFault::None) {
    ListedFault(line, fault, m_error.emplace());
  }
}

void Steering::Forget() {
  m_used = false;
  m_error.reset();
  m_pilotSentence.clear();
  m_delta.reset();
}

}  // namespace veerwatch
