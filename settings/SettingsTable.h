// Every key of the profile that belongs to Settings.
#pragma once

#include "settings/SettingRow.h"
#include "settings/Settings.h"

namespace veerwatch {

/// Deliberate: the wind indicator's average is written but never read.
/// Deliberate: a damping below 0 is taken from a profile, and refused by the options.
const SettingTable<Settings>& SettingsTable();

}  // namespace veerwatch
