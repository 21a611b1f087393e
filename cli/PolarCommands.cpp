#include "cli/PolarCommands.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <system_error>

#include "cli/Steering.h"
#include "platform/NumberText.h"
#include "polar/PolarDialect.h"
#include "polar/PolarFile.h"

namespace veerwatch {

namespace {

constexpr int kSlot = 0;
constexpr std::size_t kLongestLine = 4096;

struct Range {
  float Least = 0.0F;
  float Most = 0.0F;
};

std::string Text(const Range& range) { return ShortestText(range.Least) + " to " + ShortestText(range.Most); }

/// The range of the cells of a block, its ends included; 0 to 0 for an empty one.
Range RangeOf(const PolarTable& table, int firstRow, int lastRow, int firstColumn, int lastColumn) {
  if (firstRow > lastRow || firstColumn > lastColumn) {
    return {};
  }
  Range range{table.Value(kSlot, firstRow, firstColumn), table.Value(kSlot, firstRow, firstColumn)};
  for (int row = firstRow; row <= lastRow; ++row) {
    for (int column = firstColumn; column <= lastColumn; ++column) {
      const float value = table.Value(kSlot, row, column);
      range = {std::min(range.Least, value), std::max(range.Most, value)};
    }
  }
  return range;
}

/// Whether the row or column `heads` of numbers grows from cell to cell, after `seen` was applied.
template <class Seen>
bool Ascending(int count, Seen seen) {
  for (int i = 2; i <= count; ++i) {
    if (!(seen(i - 1) < seen(i))) {
      return false;
    }
  }
  return true;
}

}  // namespace

PolarTable LoadedPolar(const std::string& file, float factor) {
  PolarTable table;
  const PolarLoadResult result = PolarLoad(table, kSlot, factor, file);
  if (!result.Loaded) {
    throw CommandError(file + ": " + (result.Error.empty() ? "the last line has no line end" : result.Error));
  }
  return table;
}

bool NextLine(std::istream& in, long number, std::string& line) {
  constexpr int kEnd = std::char_traits<char>::eof();
  std::streambuf& buffer = *in.rdbuf();
  line.clear();
  int c = buffer.sbumpc();
  const bool any = c != kEnd;
  for (; c != kEnd && c != '\n'; c = buffer.sbumpc()) {
    if (line.size() == kLongestLine) {
      throw CommandError("line " + std::to_string(number) + ": longer than " + std::to_string(kLongestLine) +
                         " characters");
    }
    line.push_back(static_cast<char>(c));
  }
  return any;
}

std::vector<float> LineNumbers(std::string_view line, std::size_t count) {
  constexpr std::string_view kBlanks = " \t\r";
  std::vector<float> numbers;
  std::size_t at = line.find_first_not_of(kBlanks);
  while (at != std::string_view::npos) {
    const std::size_t end = std::min(line.find_first_of(kBlanks, at), line.size());
    const auto number = StrictNumber(line.substr(at, end - at));
    if (!number || numbers.size() == count) {
      return {};
    }
    numbers.push_back(*number);
    at = line.find_first_not_of(kBlanks, end);
  }
  return numbers.size() == count ? numbers : std::vector<float>();
}

void PolarSpeedCommand(const PolarSpeedOptions& options, std::istream& in, std::ostream& out) {
  PolarTable table = LoadedPolar(options.File, options.Factor);
  table.Type(options.Apparent ? PlotType::ApparentWind : PlotType::TrueWind);
  table.Smooth(options.Smooth);
  const auto speed = [&table](float angle, float wind) {
    return ShortestText(table.PolarSpeed(kSlot, std::fabs(angle), wind));
  };
  if (options.Angle && options.WindSpeed) {
    out << speed(*options.Angle, *options.WindSpeed) << '\n';
    return;
  }
  std::string line;
  for (long number = 1; NextLine(in, number, line); ++number) {
    const auto pair = LineNumbers(line, 2);
    if (pair.empty()) {
      throw CommandError("line " + std::to_string(number) + ": no angle and wind speed");
    }
    out << speed(pair[0], pair[1]) << '\n';
  }
}

void PolarCheckCommand(const std::string& file, std::ostream& out) {
  const PolarTable table = LoadedPolar(file);
  const int rows = table.PolarRows(kSlot);
  const int columns = table.PolarColumns(kSlot);
  out << "rows " << rows << '\n'
      << "columns " << columns << '\n'
      << "angles " << Text(RangeOf(table, 1, rows, 0, 0)) << " deg\n"
      << "wind speeds " << Text(RangeOf(table, 0, 0, 1, columns)) << " kn\n"
      << "boat speeds " << Text(RangeOf(table, 1, rows, 1, columns)) << " kn\n";
  if (!Ascending(rows, [&](int row) { return table.Value(kSlot, row, 0); })) {
    out << "angles are not in ascending order\n";
  }
  if (!Ascending(columns, [&](int column) { return table.Value(kSlot, 0, column); })) {
    out << "wind speeds are not in ascending order\n";
  }
}

void PolarConvertCommand(const std::string& from, const std::string& to, std::ostream& notes) {
  std::error_code error;
  std::ifstream stream(from, std::ios::binary);
  if (std::filesystem::is_directory(from, error) || !stream.is_open() || (stream.peek(), stream.bad())) {
    throw CommandError("cannot read " + from);
  }
  stream.clear();
  PolarTable table;
  if (const auto trouble = PolarReadDialect(table, kSlot, stream)) {
    throw CommandError(from + ": " + *trouble);
  }
  const auto whole = [](float value) { return FormatNumber(value, "0"); };
  bool rounded = false;
  const auto look = [&](int count, const char* what, auto value) {
    for (int i = 1; i <= count; ++i) {
      rounded = rounded || whole(value(i)) != ShortestText(value(i));
      if (i > 1 && whole(value(i)) == whole(value(i - 1))) {
        throw CommandError(from + ": the " + what + " " + ShortestText(value(i - 1)) + " and " +
                           ShortestText(value(i)) + " are one when rounded to whole numbers");
      }
    }
  };
  look(table.PolarRows(kSlot), "angles", [&](int row) { return table.Value(kSlot, row, 0); });
  look(table.PolarColumns(kSlot), "wind speeds", [&](int column) { return table.Value(kSlot, 0, column); });
  if (const auto failure = PolarSave(table, kSlot, to)) {
    throw CommandError(*failure);
  }
  if (rounded) {
    notes << "veerwatch-cli: " << from << ": angles and wind speeds are rounded to whole numbers\n";
  }
}

}  // namespace veerwatch
