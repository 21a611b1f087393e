// Polar tables in the spellings that are about, read with an explanation of what cannot be read:
//
//     # comment                    cells separated by tabs, semicolons, commas or blanks, as in the first
//     line twa/tws;6;8;10               "twa", "twa/tws" or "TWA\TWS" in any case; a byte order mark before
//     it 52;5,1;;6,4                  comma as the decimal sign after tabs and semicolons; a blank cell
//     40;4,4;5,2;5,8               rows and columns in any order
//
// The program itself opens only its own format (polar/PolarFile); this is for converting.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "polar/PolarTable.h"

namespace veerwatch {

/// Largest file that is worth reading [bytes].
inline constexpr std::size_t kLargestDialect = 8U << 20U;
/// Wind speeds that a text may have. A table has fewer.
inline constexpr std::size_t kMostDialectWinds = 500;

struct DialectResult {
  /// What could not be read, as "line 3, column 2: ..." with cells counted from 1; "" when all was.
  std::string Error;
  /// What the table has otherwise than the text, in a few words; mostly "".
  std::string Note;
};

/// Reads a table into a slot, rows and columns in ascending order. With an error the slot is as it was. Of
/// more wind speeds than a table has columns, the first, the last and others at even steps are kept.
///
/// A blank cell is filled on the straight line between its known neighbours in the row; else between those
/// in the column; else, below the lowest known wind speed of its row, on the line from 0 at no wind; else
/// with the value of the highest one.
DialectResult PolarReadDialect(PolarTable& table, int slot, std::string_view text);

}  // namespace veerwatch
