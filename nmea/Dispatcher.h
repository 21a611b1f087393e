// From a good line to the record: decodes the enabled sentence types and calls the updates that the source
// settings choose.
#pragma once

#include <string_view>

#include "app/Settings.h"
#include "instruments/InstrumentRecord.h"
#include "nmea/Sentence.h"
#include "nmea/SourceWatch.h"

namespace veerwatch {

class Dispatcher {
 public:
  struct Outcome {
    bool Used = false;          ///< the line updated the record
    bool Incomplete = false;    ///< the decoder missed something that its sentence should hold
    bool WindSentence = false;  ///< an enabled "MWV", used or not
  };

  Dispatcher(const Settings& settings, InstrumentRecord& record)
      : m_settings(settings), m_record(record), m_sources(settings) {}

  /// Routes one line whose frame is good. A disabled type or one that is not known changes nothing.
  /// Deliberate: what an incomplete sentence did hold is used.
  Outcome Dispatch(std::string_view line);

  /// What has come, and what is missing.
  SourceWatch& Sources() { return m_sources; }
  const SourceWatch& Sources() const { return m_sources; }

 private:
  bool Enabled(SentenceType type) const;
  bool UseVariation(const VariationValue& variation);
  bool UseMotion(const Vhw& motion, int source);

  // Each says whether it called an update.
  bool Use(const Hdg& hdg);
  bool Use(const Hvm& hvm);
  bool Use(const Mwv& mwv);
  bool Use(const Rmb& rmb);
  bool Use(const Rmc& rmc);
  bool Use(const Vhw& vhw);
  bool Use(const Vtg& vtg);

  const Settings& m_settings;
  InstrumentRecord& m_record;
  SourceWatch m_sources;
};

}  // namespace veerwatch
