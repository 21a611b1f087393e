// What the user sets for each kind of manoeuvre, and its keys in the profile.
#pragma once

#include <array>
#include <cstdint>

#include "settings/SettingRow.h"

namespace veerwatch {

/// On which wind angle a turn that then tracks ends.
enum class TackAngle : std::int16_t {
  Mirrored = 0,  ///< the present one on the other side
  Best = 1,      ///< the polar's best for the wind of now
};

/// By kind of manoeuvre: 1 Steer, 2 Tack, 3 Jibe; index 0 is not used.
struct TackSettings {
  std::array<float, 4> Overshoot{0.0F, 0.0F, 5.0F, 0.0F};  ///< past the new heading [deg]
  std::array<float, 4> Rate{0.0F, 5.0F, 10.0F, 5.0F};      ///< of change [deg/s]
  bool ThenTrack = false;  ///< a turn is followed to its end, and Track takes over
  TackAngle Angle = TackAngle::Mirrored;
  float StageLimit = 60.0F;  ///< the longest that a stage of such a turn takes [s]
};

/// The keys of section "Tack Data".
const SettingTable<TackSettings>& TackSettingsTable();

/// Overlays what the profile holds.
void TackRecall(const Profile& profile, TackSettings& settings);

/// Sets every key.
void TackStore(Profile& profile, const TackSettings& settings);

}  // namespace veerwatch
