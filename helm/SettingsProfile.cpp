#include "helm/SettingsProfile.h"

#include <utility>

#include "settings/SettingsTable.h"

namespace veerwatch {

void SettingsDefault(Settings& settings) {
  Settings defaults;
  defaults.m_eTrackMode = settings.m_eTrackMode;
  defaults.m_bNightColours = settings.m_bNightColours;
  defaults.m_eLanguage = settings.m_eLanguage;
  defaults.m_sProfileFile = std::move(settings.m_sProfileFile);
  settings = std::move(defaults);
}

const SettingTable<OpenWindows>& OpenWindowsTable() {
  static const SettingTable<OpenWindows> kTable{
      {"History Window", "Visible", setting::Truth(&OpenWindows::History), "", "open again at the start",
       "View > History"},
      {"Polar Window", "Visible", setting::Truth(&OpenWindows::Polar), "", "open again at the start",
       "View > Polar"}};
  return kTable;
}

void ProfileRead(const Profile& profile, Settings& settings, RememberedWindows& windows) {
  SettingsRead(SettingsTable(), profile, settings);
  OpenWindows open;
  SettingsRead(OpenWindowsTable(), profile, open);
  if (open.History) {
    windows.HistoryShow();
  }
  if (open.Polar) {
    windows.PolarShow();
  }
}

void ProfileWrite(Profile& profile, const Settings& settings, const RememberedWindows& windows) {
  SettingsWrite(SettingsTable(), profile, settings);
  SettingsWrite(OpenWindowsTable(), profile, {windows.HistoryVisible(), windows.PolarVisible()});
}

}  // namespace veerwatch
