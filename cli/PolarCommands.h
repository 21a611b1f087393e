// "veerwatch-cli polar": looks speeds up in a polar file, tells what is in it, and converts other spellings.
#pragma once

#include <istream>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "polar/PolarTable.h"

namespace veerwatch {

struct PolarSpeedOptions {
  std::string File;
  float Factor = 1.0F;             ///< multiplies each speed of the file
  bool Apparent = false;           ///< angles are apparent wind angles
  std::optional<float> Angle;      ///< [deg]; the side does not matter
  std::optional<float> WindSpeed;  ///< true wind speed [kn]
  bool Smooth = false;             ///< PolarTable::Smooth, for true wind angles
};

/// The table of a file, with each speed multiplied by `factor`. Throws CommandError with what is wrong with
/// it.
PolarTable LoadedPolar(const std::string& file, float factor = 1.0F);

/// Reads the line with this number, counted from 1, without its line feed; false after the last one. Throws
/// CommandError at a line that is longer than any question.
bool NextLine(std::istream& in, long number, std::string& line);

/// The `count` numbers of a line, with blanks between them; empty when it holds anything else.
std::vector<float> LineNumbers(std::string_view line, std::size_t count);

/// Writes the speed at the angle and wind speed, alone on a line [kn]. Without them, reads pairs "angle wind"
/// from `in`, a line each, and writes a speed for each. Throws CommandError.
void PolarSpeedCommand(const PolarSpeedOptions& options, std::istream& in, std::ostream& out);

/// Writes the rows, columns and ranges of a file, and what is odd in it. Throws CommandError with what is
/// wrong with it.
void PolarCheckCommand(const std::string& file, std::ostream& out);

/// Reads a table in any of the known spellings and writes it in the program's own, angles and wind speeds as
/// they are. What is left out is told in `notes`. Throws CommandError.
void PolarConvertCommand(const std::string& from, const std::string& to, std::ostream& notes);

}  // namespace veerwatch
