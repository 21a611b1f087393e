// Which of several instruments feeds the record: the rules of the source settings.
#pragma once

#include <optional>

#include "instruments/InstrumentRecord.h"
#include "instruments/Reading.h"
#include "settings/Settings.h"

namespace veerwatch {

class SourceChoice {
 public:
  /// Reads m_iNmeaHeading, m_iNmeaBoatSpeed, m_iNmeaTrueWind and m_bWatchAct at every sentence. Both outlive
  /// this.
  SourceChoice(const Settings& settings, InstrumentRecord& record) : m_settings(settings), m_record(record) {}

  /// Gives the record those readings of one sentence that the settings choose; true when there was one. A
  /// wind counts with angle and speed only, a waypoint with bearing and range; a true direction needs a
  /// variation, which the same sentence may bring. A wind's direction counts as the one of a sensor.
  bool Take(const Readings& readings);

  /// Whether a true heading, or a wind's direction, can not be made relative to the boat: it needs a
  /// variation of the last hour, or a heading of the last ten seconds.
  bool Lacks(const Readings& readings) const;

 private:
  /// While what is wrong is not to steer: not what its instrument calls invalid, and of two talkers of
  /// `value` the one that came first, as long as it comes.
  bool Trusted(const Readings& readings, RecordValue value) const;
  bool TakeVariation(const Readings& readings);
  bool TakeHeading(const Readings& readings);
  bool TakeBoatSpeed(const Readings& readings);
  bool TakeWind(const Readings& readings);
  /// The angle of a wind's direction off the bow [deg relative, any turn]; nothing where it needs what there
  /// is not.
  std::optional<float> AngleOf(const Readings& readings) const;
  /// The variation of the last hour [deg, east positive].
  std::optional<float> VariationAt(const Moment& now) const;
  bool TakeWaypoint(const Readings& readings);

  const Settings& m_settings;
  InstrumentRecord& m_record;
};

}  // namespace veerwatch
