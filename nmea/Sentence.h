// One line as a sentence: its frame, its checksum, its type, and the decoder that belongs to the type.
#pragma once

#include <string_view>

#include "nmea/Fields.h"
#include "nmea/Hdg.h"
#include "nmea/Hvm.h"
#include "nmea/Mwv.h"
#include "nmea/Rmb.h"
#include "nmea/Rmc.h"
#include "nmea/Vhw.h"

namespace veerwatch {

enum class Frame {
  Good,
  NoDollar,       ///< does not begin with "$"
  WrongChecksum,  ///< has a checksum that is not its own
};

/// Checks the frame of a line without its line end. A line whose third character from the end is not "*" has
/// no checksum and is good without. Deliberate: a checksum in lower-case hexadecimal is wrong.
Frame CheckFrame(std::string_view line);

enum class SentenceType { Hdg, Hvm, Mwv, Rmb, Rmc, Vhw, Vtg, Other };

/// The type by characters 4 to 6 of a line; the two characters of the talker may be any.
SentenceType SentenceTypeOf(std::string_view line);

/// Decodes `line` and calls `visit` with the decoder's struct; false for SentenceType::Other, without a call.
template <class Visit>
bool VisitSentence(SentenceType type, std::string_view line, Visit&& visit) {
  if (type == SentenceType::Other) {
    return false;
  }
  const Fields fields(line);
  switch (type) {
    case SentenceType::Hdg:
      visit(DecodeHdg(fields));
      break;
    case SentenceType::Hvm:
      visit(DecodeHvm(fields));
      break;
    case SentenceType::Mwv:
      visit(DecodeMwv(fields));
      break;
    case SentenceType::Rmb:
      visit(DecodeRmb(fields));
      break;
    case SentenceType::Rmc:
      visit(DecodeRmc(fields));
      break;
    case SentenceType::Vhw:
      visit(DecodeVhw(fields));
      break;
    case SentenceType::Vtg:
      visit(DecodeVtg(fields));
      break;
    case SentenceType::Other:
      break;
  }
  return true;
}

}  // namespace veerwatch
