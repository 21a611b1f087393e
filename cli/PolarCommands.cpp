#include "cli/PolarCommands.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "cli/Steering.h"
#include "platform/NumberText.h"
#include "platform/VisibleText.h"
#include "platform/WholeFile.h"
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

/// Where a column is slower than those of less wind.
struct Fall {
  int Angles = 0;       ///< at how many angles
  int Row = 0;          ///< where it falls to the smallest share
  double Share = 1.0;   ///< that share
  float Before = 0.0F;  ///< the speed there in less wind [kn]
};

Fall FallOf(const PolarTable& table, int column) {
  Fall fall;
  for (int row = 1; row <= table.PolarRows(kSlot); ++row) {
    float before = 0.0F;
    for (int other = 1; other < column; ++other) {
      before = std::max(before, table.Value(kSlot, row, other));
    }
    const float speed = table.Value(kSlot, row, column);
    if (speed < before) {
      ++fall.Angles;
      const double share = static_cast<double>(speed) / static_cast<double>(before);
      if (share < fall.Share) {
        fall = {fall.Angles, row, share, before};
      }
    }
  }
  return fall;
}

/// Names the columns that fall at most angles, or at any of them by more than half.
void WriteFalls(const PolarTable& table, std::ostream& out) {
  constexpr double kHalf = 0.5;
  const int rows = table.PolarRows(kSlot);
  for (int column = 2; column <= table.PolarColumns(kSlot); ++column) {
    const Fall fall = FallOf(table, column);
    if (2 * fall.Angles > rows || fall.Share < kHalf) {
      out << "boat speeds fall at " << ShortestText(table.Value(kSlot, 0, column))
          << " kn: slower than in less wind at " << fall.Angles << " of " << rows << " angles, at "
          << ShortestText(table.Value(kSlot, fall.Row, 0)) << " deg "
          << ShortestText(table.Value(kSlot, fall.Row, column)) << " after " << ShortestText(fall.Before)
          << " kn\n";
    }
  }
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
  if (Ascending(columns, [&](int column) { return table.Value(kSlot, 0, column); })) {
    WriteFalls(table, out);
  } else {
    out << "wind speeds are not in ascending order\n";
  }
}

void PolarConvertCommand(const std::string& from, const std::string& to, std::ostream& notes) {
  const WholeFile whole = ReadWholeFile(from, kLargestDialect);
  if (!whole.Error.empty()) {
    throw CommandError("cannot read " + from + ": " + whole.Error);
  }
  PolarTable table;
  const DialectResult result = PolarReadDialect(table, kSlot, whole.Bytes);
  if (!result.Error.empty()) {
    throw CommandError(from + ": " + result.Error);
  }
  if (const auto failure = PolarSave(table, kSlot, to, PolarHeads::Exact)) {
    throw CommandError(*failure);
  }
  if (!result.Note.empty()) {
    notes << "veerwatch-cli: " << VisibleText(from) << ": " << VisibleText(result.Note) << '\n';
  }
}

}  // namespace veerwatch
