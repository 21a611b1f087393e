// Which settings stand where in the profile.
#pragma once

#include "platform/Profile.h"
#include "settings/Settings.h"

namespace veerwatch {

/// The two windows that are open again when they were open at the close.
class RememberedWindows {
 public:
  virtual ~RememberedWindows() = default;
  /// Each is called in the middle of the reading, when everything in front of its section has been read.
  virtual void HistoryShow() {}
  virtual void PolarShow() {}
  virtual bool HistoryVisible() const { return false; }
  virtual bool PolarVisible() const { return false; }
};

/// Sets every setting that the profile may hold, and the simulated time, to its default. The mode, the path
/// of the profile and the night colours stay: nobody at night wants a white screen for a default.
void SettingsDefault(Settings& settings);

/// Overlays what the profile holds. Angles are folded; a text that is no number under a numeric key, a number
/// out of range and a bandwidth that is not above 0 leave the default. Deliberate: the wind indicator's
/// average is written but never read.
void ProfileRead(const Profile& profile, Settings& settings, RememberedWindows& windows);

/// Sets every key.
void ProfileWrite(Profile& profile, const Settings& settings, const RememberedWindows& windows);

}  // namespace veerwatch
