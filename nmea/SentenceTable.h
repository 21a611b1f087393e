// The sentence types that the program reads, in one table: name, switch, text of the options' list, decoder.
#pragma once

#include <array>
#include <string_view>

#include "instruments/Reading.h"
#include "nmea/Fields.h"
#include "settings/Settings.h"

namespace veerwatch {

struct SentenceKind {
  std::string_view Name;    ///< characters 4 to 6 of a line
  const char* Text;         ///< the row of the options' list
  bool Settings::*Enabled;  ///< its switch
  bool IsWind;              ///< the steps after a wind sentence follow
  /// Adds what the fields hold to the readings; false when something is missing that the sentence should
  /// hold. What was read before a field that cannot be converted stays.
  bool (*Decode)(const Fields& fields, Readings& readings);
};

/// Every type, in the order of the options' list.
extern const std::array<SentenceKind, 13> kSentences;

/// The row of a line by its characters 4 to 6; the two characters of the talker may be any. Null for a type
/// that is not read.
const SentenceKind* FindSentence(std::string_view line);

}  // namespace veerwatch
