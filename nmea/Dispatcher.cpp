#include "nmea/Dispatcher.h"

#include "nmea/SentenceTable.h"

namespace veerwatch {

Dispatcher::Outcome Dispatcher::Dispatch(std::string_view line, std::int16_t port, const Moment& now) {
  Outcome outcome;
  const SentenceKind* kind = FindSentence(line);
  if (kind == nullptr) {
    return outcome;
  }
  if (!(m_settings.*kind->Enabled)) {
    m_sources.SawSwitchedOff(*kind);
    return outcome;
  }
  Readings& readings = m_readings.emplace(OriginOf(line, port, now));
  outcome.Incomplete = !kind->Decode(Fields(line), readings);
  outcome.Incomplete = outcome.Incomplete || !Counts(readings);
  outcome.Used = m_choice.Take(readings);
  outcome.Incomplete = outcome.Incomplete || m_choice.Lacks(readings);
  outcome.WindSentence = kind->IsWind;
  outcome.Brought = &readings;
  m_sources.Saw(*kind, readings, !outcome.Incomplete, m_record.Data().VariationValid);
  return outcome;
}

bool Dispatcher::Counts(Readings& readings) const {
  if (readings.Invalid() && m_settings.m_eNmeaInvalidStatus == InvalidRule::Ignore) {
    readings.Drop();
    return false;
  }
  if (!readings.UnreadUnit().empty()) {
    if (m_settings.m_bNmeaWindUnits && readings.begin() != readings.end()) {
      readings.ReadUnit();
    } else {
      readings.Drop();
    }
  }
  return true;
}

}  // namespace veerwatch
