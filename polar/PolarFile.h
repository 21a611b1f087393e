// Polar files: tab-separated tables of boat speed, a header line of wind speeds and a line per wind angle.
//
//     TWA <tab> 6   <tab> 8   <tab> 10      true wind speeds [kn]
//     30  <tab> 3.1 <tab> 4.0 <tab> 4.6     true wind angle [deg], then boat speeds [kn]
#pragma once

#include <cstdint>
#include <filesystem>
#include <istream>
#include <optional>
#include <string>

#include "polar/PolarTable.h"

namespace veerwatch {

/// How a cell of a file ended.
enum class CellEnd { Tab, LineFeed, EndOfFile };

/// How a load ended.
struct PolarLoadResult {
  bool Loaded = false;  ///< the end of the file was reached after a line end
  std::string Error;    ///< the text for a message box; "" for none, also for a file without a last line end
  /// The first line was whole: what the slot holds now is of this file, if only in part. False leaves all
  /// that counts of the slot as it was.
  bool Replaced = false;
};

/// Reads one cell, up to a tab, a line feed or the end of the file, which is not kept. Of a cell longer than
/// any number only the beginning is kept.
CellEnd PolarReadCell(std::istream& file, std::string& text);

/// Largest file that is read [bytes].
inline constexpr std::uintmax_t kLargestPolar = 1U << 20U;

/// Reads `file` into a slot of the table, each boat speed times `speedFactor`. A file that is larger than
/// kLargestPolar, has more rows or columns than a table, or is no regular file changes nothing. Rows and
/// columns are counted as lines become whole, so a failed load leaves what was read so far, and a failed
/// header the polar of before. Deliberate: the last line must end with a line feed; the values of one that
/// does not are stored but not counted, and the load is false without a text.
PolarLoadResult PolarLoad(PolarTable& table, int slot, float speedFactor, const std::filesystem::path& file);

/// The same from an open stream, of any length.
PolarLoadResult PolarRead(PolarTable& table, int slot, float speedFactor, std::istream& file);

/// How wind speeds and angles are written: rounded to whole numbers, or as they are.
enum class PolarHeads { Whole, Exact };

/// The table of a slot as the text of a file: wind speeds and angles, speeds with one decimal, lines with
/// CR LF. Deliberate: the speeds are the scaled ones that the table holds.
std::string PolarText(const PolarTable& table, int slot, PolarHeads heads = PolarHeads::Whole);

/// Writes a slot to `file` in one step. Nothing when done, else what went wrong, with the old file whole.
std::optional<std::string> PolarSave(const PolarTable& table, int slot, const std::filesystem::path& file,
                                     PolarHeads heads = PolarHeads::Whole);

}  // namespace veerwatch
