// What the commands share: a helm without a window, its settings from a profile, and the way into a mode.
#pragma once

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "cli/MemoryPort.h"
#include "helm/Helm.h"
#include "settings/Settings.h"

namespace veerwatch {

/// What stops a command: one clear line.
class CommandError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Options of both commands.
struct SteeringOptions {
  std::optional<std::string> ProfileFile;
  TrackMode Mode = TrackMode::Track;
  TrackSide Side = TrackSide::Apparent;
  bool Trace = false;
  bool Watch = false;         ///< the conditions of the watch are told as they come and go
  double WindsASecond = 1.0;  ///< of the tracked side in a log, which has no times [1/s, above 0]
};

/// A helm on memory ports. Collects what the latest line or tick made it say.
class Steering final : private HelmObserver {
 public:
  /// Reads the profile; throws CommandError where it cannot be read. `simulate` overrides the profile's.
  Steering(const SteeringOptions& options, bool simulate, std::uint64_t seed);

  /// Starts in Setup.
  void Start();
  /// Whether the mode of the options can be entered now: not while it waits for a heading.
  bool MayEnterMode() const;
  /// Goes on to the mode of the options, through Manual; throws CommandError when Track is refused.
  void EnterMode();

  /// Feeds one line as one receive event; the carriage return is added. `time` is when it was recorded [ms
  /// since 1970 UTC]: seconds that have passed since the line before are ticks. A time that runs back counts
  /// as none.
  void Line(const std::string& line, const std::optional<std::int64_t>& time);
  /// One second of the simulator.
  void Tick();

  const Settings& Set() const { return m_settings; }
  HelmObservers& Observers() { return m_helm.Observers(); }
  const InstrumentRecord& Record() const { return m_helm.Record(); }
  const InstrumentData& Data() const { return m_helm.Data(); }
  WindCounts Winds() { return m_helm.Receiver().Sources().Winds(); }
  double TrackIntegral() const { return m_helm.Loop().TrackIntegral(); }

  // Of the latest line or tick.

  const std::string& Status() const { return m_status; }
  bool Used() const { return m_used; }
  const std::optional<std::string>& Error() const { return m_error; }
  /// The sentences for the autopilot, with a line end between two; "" for none.
  const std::string& PilotSentence() const { return m_pilotSentence; }
  struct Deltas {
    float Apparent = 0.0F;
    float True = 0.0F;
  };
  /// Why the last sentence that was sent says what it says.
  const Why& LastSentence() const { return m_helm.LastSentence(); }
  /// The conditions that came and went, a line each: "17 s red No Wind 5 s", "21 s over No Wind"; and the
  /// verdict on the pilot where it is another than before: "30 s pilot Follows".
  const std::vector<std::string>& WatchLines() const { return m_watchLines; }
  /// The errors of the control step, where one ran [deg].
  const std::optional<Deltas>& Delta() const { return m_delta; }

 private:
  void Forget();
  /// The clock goes on, with a tick at every second.
  void Pass(std::int64_t milliseconds);
  /// A wind of the side that is tracked, or that it follows from.
  bool BringsTracked(std::string_view line) const;

  void OnInputStatus(const PortStatus& status) override { m_status = InputStatusText(status); }
  void OnNmeaLine(std::string_view line, LineFault fault, bool used) override;
  void OnPilotData(std::string_view sentence) override {
    m_pilotSentence.append(m_pilotSentence.empty() ? "" : "\n").append(sentence);
  }
  void OnDelta(float apparent, float trueWind) override { m_delta = Deltas{apparent, trueWind}; }
  void OnTrackRefused(TrackRefusal why) override { m_refused = why; }
  void OnWatch(const WatchNow& watch) override;

  TrackMode m_mode;
  bool m_watched;
  double m_windTime;  ///< between two winds of the tracked side in a log [ms]
  double m_logTime = 0.0;
  Settings m_settings;
  MemoryPort m_nmeaPort;
  MemoryPort m_pilotPort;
  IdleTimer m_timer;
  LogClock m_clock;
  SeededRandom m_random;
  Helm m_helm;
  HelmObservers::Membership m_told;
  std::string m_bytes;
  std::optional<std::int64_t> m_time;  ///< of the latest line [ms since 1970 UTC]
  std::int64_t m_sinceTick = 0;        ///< [ms]
  WatchNow m_watch;                    ///< what was told last
  std::vector<std::string> m_watchLines;

  std::string m_status;
  bool m_used = false;
  std::optional<std::string> m_error;
  std::string m_pilotSentence;
  std::optional<Deltas> m_delta;
  std::optional<TrackRefusal> m_refused;
};

}  // namespace veerwatch
