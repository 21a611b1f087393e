// From a good line to the record: decodes the enabled sentence types and gives what they hold to the choice
// of sources.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "instruments/InstrumentRecord.h"
#include "instruments/SourceChoice.h"
#include "nmea/SourceWatch.h"
#include "settings/Settings.h"

namespace veerwatch {

class Dispatcher {
 public:
  struct Outcome {
    bool Used = false;          ///< the line updated the record
    bool Incomplete = false;    ///< the decoder missed something that its sentence should hold
    bool WindSentence = false;  ///< an enabled wind sentence, used or not
    /// What the line brought, used or not; null for a type that is disabled or not known. Until the next
    /// line.
    const Readings* Brought = nullptr;
  };

  Dispatcher(const Settings& settings, InstrumentRecord& record)
      : m_settings(settings), m_record(record), m_choice(settings, record), m_sources(settings) {}

  /// Routes one line whose frame is good and that came in on `port` at `now`. A disabled type or one that is
  /// not known changes nothing. Deliberate: what an incomplete sentence did hold is used.
  Outcome Dispatch(std::string_view line, std::int16_t port, const Moment& now);

  /// What has come, and what is missing.
  SourceWatch& Sources() { return m_sources; }
  const SourceWatch& Sources() const { return m_sources; }

 private:
  /// Drops what the settings do not let count; false when the sentence is one without a value then.
  bool Counts(Readings& readings) const;

  const Settings& m_settings;
  const InstrumentRecord& m_record;
  SourceChoice m_choice;
  SourceWatch m_sources;
  std::optional<Readings> m_readings;  ///< of the latest line that was decoded
};

}  // namespace veerwatch
