// The ear of a simulated pilot: reads the sentences that a pilot of its kind reads, and says what they tell
// it. Whatever else comes, and what says of itself that it does not hold, tells it nothing.
#pragma once

#include <optional>
#include <string_view>

#include "instruments/BoatPilot.h"
#include "nmea/LineFramer.h"
#include "settings/SimulateModel.h"

namespace veerwatch {

class PilotReader {
 public:
  explicit PilotReader(PilotReads reads = PilotReads::All) : m_reads(reads) {}

  /// Which sentences it reads from now on.
  void Reads(PilotReads reads) { m_reads = reads; }

  /// Takes bytes in pieces of any size and returns the latest order in them, if any. True bearings become
  /// magnetic by `variation` [deg, east positive].
  std::optional<PilotOrder> Take(std::string_view bytes, double variation);

  int GoodSentences() const { return m_good; }      ///< that told it something
  int BadSentences() const { return m_bad; }        ///< lines that did not
  int BearingChanges() const { return m_changes; }  ///< good ones with another bearing than before

 private:
  void TakeLine(std::string_view line, double variation, std::optional<PilotOrder>& order);

  PilotReads m_reads;
  LineFramer m_framer;
  std::optional<double> m_told;  ///< the latest bearing [deg magnetic]
  int m_good = 0;
  int m_bad = 0;
  int m_changes = 0;
};

}  // namespace veerwatch
