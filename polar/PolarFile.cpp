#include "polar/PolarFile.h"

#include <array>
#include <sstream>
#include <string_view>
#include <utility>

#include "instruments/MathLib.h"
#include "platform/AtomicFile.h"
#include "platform/Language.h"
#include "platform/NumberText.h"
#include "platform/WholeFile.h"

namespace veerwatch {

namespace {

constexpr int kEnd = std::istream::traits_type::eof();
constexpr std::size_t kLongestCell = 256;
constexpr const char* kCorner = "TWA";

constexpr const char* kTooManyRows = TrMark("more than 200 angles");
constexpr const char* kTooManyColumns = TrMark("more than 50 wind speeds");
static_assert(PolarTable::kMostRows == 200 && PolarTable::kMostColumns == 50);

/// Which bound of a table a text goes beyond; null when it fits.
const char* Beyond(std::string_view text) {
  int row = 0;
  int column = 0;
  for (const char c : text) {
    if (row > PolarTable::kMostRows) {
      return kTooManyRows;
    }
    if (c == '\n') {
      ++row;
      column = 0;
    } else if (c == '\t' && ++column > PolarTable::kMostColumns) {
      return kTooManyColumns;
    }
  }
  return nullptr;
}

PolarLoadResult Failed(const std::string& reason, bool replaced = false) {
  return {false, Filled(Tr("Polar File Error: %1"), {Tr(reason)}), replaced};
}

}  // namespace

CellEnd PolarReadCell(std::istream& file, std::string& text) {
  text.clear();
  std::streambuf& buffer = *file.rdbuf();
  for (int c = buffer.sbumpc(); c != kEnd; c = buffer.sbumpc()) {
    if (c == '\t') {
      return CellEnd::Tab;
    }
    if (c == '\n') {
      return CellEnd::LineFeed;
    }
    if (text.size() < kLongestCell) {
      text.push_back(static_cast<char>(c));
    }
  }
  return CellEnd::EndOfFile;
}

PolarLoadResult PolarRead(PolarTable& table, int slot, float speedFactor, std::istream& file) {
  std::array<float, PolarTable::kMostColumns + 1> winds{};
  std::string cell;
  int row = 0;
  int column = 0;
  do {
    const bool replaced = row > 0;
    const CellEnd end = PolarReadCell(file, cell);
    if (end == CellEnd::EndOfFile && cell.empty() && column > 0) {
      return {false, {}, replaced};
    }
    if (row == 0 && column == 0) {
      if (cell != kCorner) {
        return Failed(TrMark("No TWA Data"));
      }
    } else {
      if (row > PolarTable::kMostRows || column > PolarTable::kMostColumns) {
        return Failed(row > PolarTable::kMostRows ? kTooManyRows : kTooManyColumns, replaced);
      }
      const double number = static_cast<double>(LeadingNumber(cell));
      const bool speed = row > 0 && column > 0;
      float& value = replaced ? table.Value(slot, row, column) : winds[static_cast<std::size_t>(column)];
      value = ToSingle(speed ? number * static_cast<double>(speedFactor) : number);
    }
    if (end == CellEnd::EndOfFile) {
      return {false, {}, replaced};
    }
    if (end == CellEnd::Tab) {
      ++column;
      continue;
    }
    if (!replaced) {
      for (int wind = 1; wind <= column; ++wind) {
        table.Value(slot, 0, wind) = winds[static_cast<std::size_t>(wind)];
      }
      table.PolarColumns(slot) = static_cast<std::int16_t>(column);
      table.PolarRows(slot) = 0;
    } else if (column != table.PolarColumns(slot)) {
      return Failed(TrMark("Number of Columns Mismatch"), replaced);
    } else {
      table.PolarRows(slot) = static_cast<std::int16_t>(row);
    }
    ++row;
    column = 0;
  } while (column > 0 || file.rdbuf()->sgetc() != kEnd);
  return {true, {}, true};
}

PolarLoadResult PolarLoad(PolarTable& table, int slot, float speedFactor, const std::filesystem::path& file) {
  WholeFile whole = ReadWholeFile(file, kLargestPolar);
  if (!whole.Error.empty()) {
    return Failed(whole.Error);
  }
  // Any other beginning is told by the reader, which stores nothing then.
  if (const char* beyond = whole.Bytes.starts_with(kCorner) ? Beyond(whole.Bytes) : nullptr) {
    return Failed(beyond);
  }
  std::istringstream stream(std::move(whole.Bytes));
  return PolarRead(table, slot, speedFactor, stream);
}

std::string PolarText(const PolarTable& table, int slot, PolarHeads heads) {
  const auto head = [heads](float value) {
    return heads == PolarHeads::Whole ? FormatNumber(value, "0") : ShortestText(value);
  };
  std::string text;
  for (int row = 0; row <= table.PolarRows(slot); ++row) {
    for (int column = 0; column <= table.PolarColumns(slot); ++column) {
      const bool corner = row == 0 && column == 0;
      const bool speed = row > 0 && column > 0;
      const float value = table.Value(slot, row, column);
      text += corner ? kCorner : speed ? FormatNumber(value, "0.0") : head(value);
      text += column < table.PolarColumns(slot) ? "\t" : "\r\n";
    }
  }
  return text;
}

std::optional<std::string> PolarSave(const PolarTable& table, int slot, const std::filesystem::path& file,
                                     PolarHeads heads) {
  return WriteAtomically(file, PolarText(table, slot, heads));
}

}  // namespace veerwatch
