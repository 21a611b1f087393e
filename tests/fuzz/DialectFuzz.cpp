// Any bytes as a polar of somebody else's spelling: a table in order, or a line that says what is wrong.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>
#include <string_view>

#include "polar/PolarDialect.h"
#include "polar/PolarFile.h"
#include "tests/fuzz/Demand.h"

static veerwatch::Landmark reads("a table that is read");

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace veerwatch;
  static PolarTable table;
  table.PolarRows(0) = 0;
  table.PolarColumns(0) = 0;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  if (const DialectResult result = PolarReadDialect(table, 0, bytes); !result.Error.empty()) {
    Demand(table.PolarRows(0) == 0 && table.PolarColumns(0) == 0, "a slot that is left alone");
    return 0;
  }
  const int rows = table.PolarRows(0);
  const int columns = table.PolarColumns(0);
  Demand(rows >= 1 && rows <= PolarTable::kMostRows, "rows");
  Demand(columns >= 1 && columns <= PolarTable::kMostColumns, "columns");
  for (int row = 0; row <= rows; ++row) {
    for (int column = row == 0 ? 1 : 0; column <= columns; ++column) {
      Demand(std::isfinite(table.Value(0, row, column)), "a finite cell");
    }
    Demand(row < 2 || table.Value(0, row, 0) > table.Value(0, row - 1, 0), "angles that ascend");
  }
  for (int column = 2; column <= columns; ++column) {
    Demand(table.Value(0, 0, column) > table.Value(0, 0, column - 1), "winds that ascend");
  }
  // What is written is the program's own spelling.
  const std::string text = PolarText(table, 0, PolarHeads::Exact);
  static PolarTable again;
  std::istringstream own(text);
  Demand(PolarRead(again, 0, 1.0F, own).Loaded, "a table that loads");
  Demand(PolarText(again, 0, PolarHeads::Exact) == text, "a table that stays");
  reads.Reach();
  return 0;
}
