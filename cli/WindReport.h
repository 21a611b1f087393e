// Why a recorded passage made no step: what became of its winds, for "veerwatch-cli replay".
#pragma once

#include <string>

#include "instruments/InstrumentRecord.h"
#include "nmea/SourceWatch.h"

namespace veerwatch {

struct LogCounts {
  long Lines = 0;
  long NoSentence = 0;     ///< without a "$"
  long WrongChecksum = 0;  ///< damaged
};

/// One line with the reasons and how often each was met, as "no usable wind in 1200 lines: 300 MWV in another
/// unit than knots". For a passage after which `record` has not both winds.
std::string NoWindText(const LogCounts& lines, const WindCounts& winds, const InstrumentData& record);

}  // namespace veerwatch
