// Which of several instruments feeds the record: the rules of the source settings.
#pragma once

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
  /// variation, which the same sentence may bring.
  bool Take(const Readings& readings);

 private:
  /// While what is wrong is not to steer: not what its instrument calls invalid, and of two talkers of
  /// `value` the one that came first, as long as it comes.
  bool Trusted(const Readings& readings, RecordValue value) const;
  bool TakeVariation(const Readings& readings);
  bool TakeHeading(const Readings& readings);
  bool TakeBoatSpeed(const Readings& readings);
  bool TakeWind(const Readings& readings);
  bool TakeWaypoint(const Readings& readings);

  const Settings& m_settings;
  InstrumentRecord& m_record;
};

}  // namespace veerwatch
