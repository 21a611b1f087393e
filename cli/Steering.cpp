#include "cli/Steering.h"

#include "helm/SettingsProfile.h"
#include "platform/Profile.h"

namespace veerwatch {

Steering::Steering(const SteeringOptions& options, bool simulate, std::uint64_t seed)
    : m_mode(options.Mode),
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

void Steering::Start() { m_helm.Modes().TrackSetSetup(); }

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
  m_bytes.assign(line).push_back('\r');
  m_nmeaPort.Arrive(m_bytes);
}

void Steering::Tick() {
  constexpr std::int64_t kSecond = 1000;  // [ms]
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
