#include "polar/PolarFile.h"

#include <cerrno>
#include <fstream>
#include <system_error>

#include "instruments/MathLib.h"
#include "platform/AtomicFile.h"
#include "platform/NumberText.h"

namespace veerwatch {

namespace {

constexpr int kEnd = std::istream::traits_type::eof();
constexpr std::size_t kLongestCell = 256;
constexpr const char* kCorner = "TWA";

PolarLoadResult Failed(const std::string& reason) { return {false, "Polar File Error: " + reason}; }

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
  std::string cell;
  int row = 0;
  int column = 0;
  do {
    const CellEnd end = PolarReadCell(file, cell);
    if (end == CellEnd::EndOfFile && cell.empty() && column > 0) {
      return {};
    }
    if (row == 0 && column == 0) {
      if (cell != kCorner) {
        return Failed("No TWA Data");
      }
    } else {
      if (row > PolarTable::kMostRows || column > PolarTable::kMostColumns) {
        return Failed("Subscript out of range");
      }
      const double number = static_cast<double>(LeadingNumber(cell));
      const bool speed = row > 0 && column > 0;
      table.Value(slot, row, column) = ToSingle(speed ? number * static_cast<double>(speedFactor) : number);
    }
    if (end == CellEnd::EndOfFile) {
      return {};
    }
    if (end == CellEnd::Tab) {
      ++column;
      continue;
    }
    if (row == 0) {
      table.PolarColumns(slot) = static_cast<std::int16_t>(column);
      table.PolarRows(slot) = 0;
    } else if (column != table.PolarColumns(slot)) {
      return Failed("Number of Columns Mismatch");
    } else {
      table.PolarRows(slot) = static_cast<std::int16_t>(row);
    }
    ++row;
    column = 0;
  } while (column > 0 || file.rdbuf()->sgetc() != kEnd);
  return {true, {}};
}

PolarLoadResult PolarLoad(PolarTable& table, int slot, float speedFactor, const std::filesystem::path& file) {
  std::error_code error;
  const bool regular = std::filesystem::is_regular_file(file, error);
  if (!regular) {
    return Failed(error ? error.message() : "not a file");
  }
  errno = 0;
  std::ifstream stream(file, std::ios::binary);
  if (!stream.is_open()) {
    return Failed(std::generic_category().message(errno));
  }
  try {
    return PolarRead(table, slot, speedFactor, stream);
  } catch (const std::ios_base::failure& failure) {
    // A read that the system refuses half way.
    return Failed(failure.code().message());
  }
}

std::string PolarText(const PolarTable& table, int slot) {
  std::string text;
  for (int row = 0; row <= table.PolarRows(slot); ++row) {
    for (int column = 0; column <= table.PolarColumns(slot); ++column) {
      const bool corner = row == 0 && column == 0;
      const bool speed = row > 0 && column > 0;
      text += corner ? kCorner : FormatNumber(table.Value(slot, row, column), speed ? "0.0" : "0");
      text += column < table.PolarColumns(slot) ? "\t" : "\r\n";
    }
  }
  return text;
}

std::optional<std::string> PolarSave(const PolarTable& table, int slot, const std::filesystem::path& file) {
  return WriteAtomically(file, PolarText(table, slot));
}

}  // namespace veerwatch
