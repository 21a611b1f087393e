// The updates that write InstrumentData: each stores the raw value, keeps its smoothed copy and tells the
// listener what to show. Called by the sentence dispatcher and the simulator with values that are finite.
#pragma once

#include "app/Settings.h"
#include "instruments/InstrumentData.h"

namespace veerwatch {

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
  /// For the simulator, which works out its values in the record itself.
  InstrumentData& Data() { return m_data; }

  /// Clears the validity flags and blanks the labels, so that every smoothed value restarts from its next
  /// sample. Deliberate: the variation and its flag stay, and no value is zeroed.
  void Restart();

  /// `Heading` [deg magnetic, any turn]. Deliberate: the first smoothed heading is the first sample unfolded.
  void HeadingUpdate(float Heading);
  /// `BoatSpeed` [kn].
  void BoatSpeedUpdate(float BoatSpeed);
  /// `Variation` [deg, east positive]. Shown nowhere.
  void VariationUpdate(float Variation);
  /// `WaypointRange` [nm], `WaypointBearing` [deg magnetic], stored as they come.
  void WaypointUpdate(float WaypointRange, float WaypointBearing);
  /// `WindAngle` [deg relative, any turn], `WindSpeed` [kn]. With `ComputeTrue`, m_iNmeaTrueWind 1
  /// and a valid boat speed the true wind follows from the smoothed values.
  void WindApparentUpdate(float WindAngle, float WindSpeed, bool ComputeTrue);
  /// The same for the true wind, smoothed when `Average` is true.
  void WindTrueUpdate(float WindAngle, float WindSpeed, bool Average);
  /// Smooths the geographic direction of the true wind for the caption. Call it only with a valid variation.
  void WindIndicatorUpdate();

 private:
  const Settings& m_settings;
  Listener& m_listener;
  InstrumentData m_data;
};

}  // namespace veerwatch
