// The updates that write InstrumentData: each stores the raw value, keeps its smoothed copy, remembers where
// and when it came from, and notes that it has changed. Called by SourceChoice and the simulator with values
// that are finite; nobody else writes the record.
#pragma once

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "instruments/InstrumentData.h"
#include "instruments/Reading.h"
#include "settings/Settings.h"

namespace veerwatch {

/// What the record holds, for the questions after source, age and change.
enum class RecordValue { Heading, BoatSpeed, Variation, Waypoint, WindApparent, WindTrue, WindIndicator };

class InstrumentRecord {
 public:
  /// Reads m_fNmeaTrueWindAverage, m_fNmeaWindIndicatorAverage and m_iNmeaTrueWind at every update.
  explicit InstrumentRecord(const Settings& settings) : m_settings(settings) {}

  const InstrumentData& Data() const { return m_data; }

  /// Where the present value came from; nothing before the first one since the start, or since Restart().
  const std::optional<Origin>& Source(RecordValue value) const {
    return m_from[static_cast<std::size_t>(value)];
  }

  /// How old the present value is at `now` [ms of the steady clock, at least 0]; nothing where Source() has
  /// none.
  std::optional<std::int64_t> Age(RecordValue value, const Moment& now) const;

  /// Whether the value was updated since ForgetChanges().
  bool Changed(RecordValue value) const { return m_changed[static_cast<std::size_t>(value)]; }
  bool AnyChange() const { return m_changed.any(); }
  void ForgetChanges() { m_changed.reset(); }

  /// The present true wind before it was smoothed: the sensor's, or computed from what the instruments said
  /// last [deg relative, (-180, 180]], [kn].
  struct Wind {
    float Angle = 0.0F;
    float Speed = 0.0F;
  };
  Wind WindTrueUnsmoothed() const;

  /// Clears the validity flags, so that every smoothed value restarts from its next
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
  /// Smooths the geographic direction of the true wind for the caption. Call it only with a valid variation
  /// and after a true wind, whose origin it takes.
  void WindIndicatorUpdate();

 private:
  static constexpr std::size_t kValues = 7;

  std::optional<Origin>& From(RecordValue value) { return m_from[static_cast<std::size_t>(value)]; }
  /// Keeps where `value` came from, and that it has changed.
  void Note(RecordValue value, const Origin& from);
  /// The averaging count of a value that comes again, with `from`: by the clock, where the tracking is.
  float CountOf(RecordValue value, float count, const Origin& from) const;

  const Settings& m_settings;
  InstrumentData m_data;
  Wind m_sensorWind;            ///< the latest true wind that was given
  bool m_trueComputed = false;  ///< the latest one followed from the apparent wind
  std::array<std::optional<Origin>, kValues> m_from;
  std::bitset<kValues> m_changed;
};

}  // namespace veerwatch
