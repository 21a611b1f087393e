// A table of settings: one row for each key of the profile that belongs to a struct. From it the struct is
// read and written, entry boxes know what may be entered, and docs/profile.md is written.
#pragma once

#include <algorithm>
#include <cassert>
#include <string>
#include <string_view>
#include <vector>

#include "settings/SettingValue.h"

namespace veerwatch {

enum class SettingUse {
  Kept,         ///< read and written
  WrittenOnly,  ///< never read
  ReadOnly,     ///< for whoever edits the profile; never written
};

template <class Struct>
struct SettingRow {
  std::string Section;
  std::string Key;
  SettingValue<Struct> Value;
  const char* Unit;     ///< "" without one
  std::string Meaning;  ///< for the profile's page
  const char* Where;    ///< where the user sets it; "" for in the profile alone
  SettingUse Use = SettingUse::Kept;
};

/// In the order in which a fresh profile gets the keys.
template <class Struct>
using SettingTable = std::vector<SettingRow<Struct>>;

/// Overlays what the profile holds; what is missing or damaged stays as it is.
template <class Struct>
void SettingsRead(const SettingTable<Struct>& table, const Profile& profile, Struct& all) {
  for (const SettingRow<Struct>& row : table) {
    if (row.Use != SettingUse::WrittenOnly) {
      row.Value.Read(profile, row.Section, row.Key, all);
    }
  }
}

/// Sets every key.
template <class Struct>
void SettingsWrite(const SettingTable<Struct>& table, Profile& profile, const Struct& all) {
  for (const SettingRow<Struct>& row : table) {
    if (row.Use != SettingUse::ReadOnly) {
      row.Value.Write(profile, row.Section, row.Key, all);
    }
  }
}

/// The row of a key that the table has.
template <class Struct>
const SettingRow<Struct>& RowOf(const SettingTable<Struct>& table, std::string_view section,
                                std::string_view key) {
  const auto row = std::find_if(table.begin(), table.end(), [&](const SettingRow<Struct>& each) {
    return each.Section == section && each.Key == key;
  });
  assert(row != table.end());
  return *row;
}

/// What numbers may be entered for a member that has a row.
template <class Struct>
const NumberRule& RuleOf(const SettingTable<Struct>& table, float Struct::*member) {
  const auto row = std::find_if(table.begin(), table.end(), [member](const SettingRow<Struct>& each) {
    return each.Value.Member == member;
  });
  assert(row != table.end());
  return row->Value.Rule;
}

}  // namespace veerwatch
