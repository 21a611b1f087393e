#include "cli/Steering.h"

#include <algorithm>
#include <cmath>

#include "alarms/WatchText.h"
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
      m_watched(options.Watch),
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
  if (kind->Name == "MWV") {
    return Fields(line)[2] == (fromSensor ? "T" : "R");
  }
  return (kind->Name == "VWR") != fromSensor;
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

void Steering::Line(const std::string& line, const std::optional<std::int64_t>& time) {
  Forget();
  if (time) {
    Pass(std::max<std::int64_t>(0, *time - m_time.value_or(*time)));
    m_time = time;
  } else if (BringsTracked(line)) {
    // A log without times: a second, or what was asked for, for each wind of the tracked side.
    const auto before = std::llround(m_logTime);
    m_logTime += m_windTime;
    Pass(std::llround(m_logTime) - before);
  }
  m_bytes.assign(line).push_back('\r');
  m_nmeaPort.Arrive(m_bytes);
}

void Steering::Pass(std::int64_t milliseconds) {
  // Without times the seconds are not the boat's, and tick only where the watch is asked for.
  const bool ticks = m_watched || m_time;
  while (ticks && m_sinceTick + milliseconds >= kSecond) {
    const std::int64_t rest = kSecond - m_sinceTick;
    m_clock.Pass(rest);
    milliseconds -= rest;
    m_sinceTick = 0;
    m_helm.Tick();
  }
  m_clock.Pass(milliseconds);
  m_sinceTick += ticks ? milliseconds : 0;
}

void Steering::OnWatch(const WatchNow& watch) {
  if (!m_watched) {
    return;
  }
  const std::string at = std::to_string(m_clock.Now().Steady / kSecond) + " s ";
  for (const Standing& one : m_watch.Conditions()) {
    if (watch.Find(one.What) == nullptr) {
      m_watchLines.push_back(at + "over " + WatchText(one));
    }
  }
  for (const Standing& one : watch.Conditions()) {
    if (m_watch.Find(one.What) == nullptr) {
      m_watchLines.push_back(at + std::string(LevelText(one.Rank)) + " " + WatchText(one));
    }
  }
  if (m_watch.Follow != watch.Follow) {
    m_watchLines.push_back(at + "pilot " + std::string(FollowText(watch.Follow)));
  }
  m_watch = watch;
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
  m_watchLines.clear();
}

}  // namespace veerwatch
