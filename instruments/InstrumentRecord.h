// The updates that write InstrumentData: each stores the raw value, keeps its smoothed copy, remembers where
// and when it came from, and tells the listener what to show. Called by SourceChoice and the simulator with
// values that are finite; nobody else writes the record.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "instruments/InstrumentData.h"
#include "instruments/Reading.h"
#include "settings/Settings.h"

namespace veerwatch {

/// What the record holds, for the questions after source and age.
enum class RecordValue { Heading, BoatSpeed, Variation, Waypoint, WindApparent, WindTrue };

class InstrumentRecord {
 public:
  /// Shows values; numbers only, whoever shows them formats them.
  class Listener {
   public:
    virtual ~Listener() = default;
    virtual void OnHeading(float /*heading: folded raw, deg magnetic*/) {}
    virtual void OnBoatSpeed(float /*speed: raw, kn*/) {}
    virtual void OnWaypoint(float /*range: nm*/, float /*bearing: deg magnetic*/) {}
    virtual void OnWindApparent(float /*angle: raw, deg relative*/, float /*speed: raw, kn*/) {}
    virtual void OnWindTrue(float /*angle: smoothed, deg relative*/, float /*speed: smoothed, kn*/) {}
    virtual void OnWindIndicator(float /*direction: smoothed, deg true*/, float /*speed: smoothed, kn*/) {}
    /// The input starts anew: the seven value labels go blank.
    virtual void OnValuesBlanked() {}
  };

  /// Reads m_fNmeaTrueWindAverage, m_fNmeaWindIndicatorAverage and m_iNmeaTrueWind at every update.
  InstrumentRecord(const Settings& settings, Listener& listener)
      : m_settings(settings), m_listener(listener) {}

  const InstrumentData& Data() const { return m_data; }

  /// Where the present value came from; nothing before the first one since the start, or since Restart().
  std::optional<Origin> Source(RecordValue value) const;

  /// How old the present value is at `now` [ms of the steady clock, at least 0]; nothing where Source() has
  /// none.
  std::optional<std::int64_t> Age(RecordValue value, const Moment& now) const;

  /// Clears the validity flags and blanks the labels, so that every smoothed value restarts from its next
  /// sample. Deliberate: the variation, its flag and its source stay, and no value is zeroed.
  void Restart();

  // Each update takes the origin of what it is given.

  /// `Heading` [deg magnetic, any turn]. Deliberate: the first smoothed heading is the first sample unfolded.
  void HeadingUpdate(float Heading, const Origin& from);
  /// `BoatSpeed` [kn].
  void BoatSpeedUpdate(float BoatSpeed, const Origin& from);
  /// `Variation` [deg, east positive]. Shown nowhere.
  void VariationUpdate(float Variation, const Origin& from);
  /// `WaypointRange` [nm], `WaypointBearing` [deg magnetic], stored as they come.
  void WaypointUpdate(float WaypointRange, float WaypointBearing, const Origin& from);
  /// `WindAngle` [deg relative, any turn], `WindSpeed` [kn]. With `ComputeTrue`, m_iNmeaTrueWind 1
  /// and a valid boat speed the true wind follows from the smoothed values, with the same origin.
  void WindApparentUpdate(float WindAngle, float WindSpeed, bool ComputeTrue, const Origin& from);
  /// The same for the true wind, smoothed when `Average` is true.
  void WindTrueUpdate(float WindAngle, float WindSpeed, bool Average, const Origin& from);
  /// The simulator's true wind. Deliberate: it is the present value before it is smoothed, so it is averaged
  /// with itself and not smoothed.
  void WindTrueSimulated(float WindAngle, float WindSpeed, const Origin& from);
  /// Smooths the geographic direction of the true wind for the caption. Call it only with a valid variation.
  void WindIndicatorUpdate();

 private:
  static constexpr std::size_t kValues = 6;

  std::optional<Origin>& From(RecordValue value) { return m_from[static_cast<std::size_t>(value)]; }

  const Settings& m_settings;
  Listener& m_listener;
  InstrumentData m_data;
  std::array<std::optional<Origin>, kValues> m_from;
};

}  // namespace veerwatch
