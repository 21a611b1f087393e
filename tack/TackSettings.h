// What the user sets for each kind of manoeuvre, and its keys in the profile.
#pragma once

#include <array>

#include "settings/SettingRow.h"

namespace veerwatch {

/// By kind of manoeuvre: 1 Steer, 2 Tack, 3 Jibe; index 0 is not used.
struct TackSettings {
  std::array<float, 4> Overshoot{0.0F, 0.0F, 5.0F, 0.0F};  ///< past the new heading [deg]
  std::array<float, 4> Rate{0.0F, 5.0F, 10.0F, 5.0F};      ///< of change [deg/s]
};

/// The keys of section "Tack Data".
const SettingTable<TackSettings>& TackSettingsTable();

/// Overlays what the profile holds.
void TackRecall(const Profile& profile, TackSettings& settings);

/// Sets every key.
void TackStore(Profile& profile, const TackSettings& settings);

}  // namespace veerwatch
