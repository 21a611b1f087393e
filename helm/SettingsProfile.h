// The settings and the windows that were open, to and from the profile.
#pragma once

#include "settings/SettingRow.h"
#include "settings/Settings.h"

namespace veerwatch {

/// The two windows that are open again when they were open at the close, as the profile keeps them.
struct OpenWindows {
  bool History = false;
  bool Polar = false;
};
const SettingTable<OpenWindows>& OpenWindowsTable();

/// The same two, to be opened and asked.
class RememberedWindows {
 public:
  virtual ~RememberedWindows() = default;
  /// Each is called when all settings have been read.
  virtual void HistoryShow() {}
  virtual void PolarShow() {}
  virtual bool HistoryVisible() const { return false; }
  virtual bool PolarVisible() const { return false; }
};

/// Sets every setting that the profile may hold, and the simulated time, to its default. The mode, the path
/// of the profile and the night colours stay: nobody at night wants a white screen for a default.
void SettingsDefault(Settings& settings);

/// Overlays what the profile holds, as SettingsTable and OpenWindowsTable say.
void ProfileRead(const Profile& profile, Settings& settings, RememberedWindows& windows);

/// Sets every key.
void ProfileWrite(Profile& profile, const Settings& settings, const RememberedWindows& windows);

}  // namespace veerwatch
