#include "tests/profile/ProfilePage.h"

#include <type_traits>

#include "tests/profile/AllTables.h"

namespace veerwatch {

namespace {

void AddLine(std::string& page, std::initializer_list<std::string> cells) {
  page += "|";
  for (const std::string& cell : cells) {
    page.append(cell.empty() ? "" : " ").append(cell).append(" |");
  }
  page += "\n";
}

}  // namespace

std::string ProfilePageTable() {
  std::string page;
  AddLine(page, {"Section", "Key", "Default", "Range", "Unit", "Meaning", "Where it is set"});
  page += "|---|---|---|---|---|---|---|\n";
  VisitTables([&page]<class Struct>(const SettingTable<Struct>& table, const Struct& defaults) {
    for (const SettingRow<Struct>& row : table) {
      // A window that was never moved has no place.
      constexpr bool kNoDefault = std::is_same_v<Struct, PolarPlace>;
      AddLine(page, {row.Section, row.Key, kNoDefault ? "" : WrittenText(row, defaults), row.Value.Range,
                     row.Unit, row.Meaning, row.Where});
    }
  });
  return page;
}

}  // namespace veerwatch
