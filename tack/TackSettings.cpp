#include "tack/TackSettings.h"

#include <string>

namespace veerwatch {

namespace {

using namespace setting;

void AddKind(SettingTable<TackSettings>& table, std::size_t kind, const std::string& when) {
  constexpr const char* kSection = "Tack Data";
  constexpr const char* kDialog = "Steer, Tack and Jibe";
  const std::string number = std::to_string(kind);
  table.push_back({kSection, "Rate " + number, Number(Element{&TackSettings::Rate, kind}, kAnyNumber),
                   "deg/s", "rate of change when " + when + "; 0 or less turns at 10", kDialog});
  table.push_back({kSection, "Overshoot " + number,
                   Number(Element{&TackSettings::Overshoot, kind}, kAnyNumber), "deg",
                   "how far to turn past the new heading when " + when, kDialog});
}

}  // namespace

const SettingTable<TackSettings>& TackSettingsTable() {
  static const SettingTable<TackSettings> kTable = [] {
    SettingTable<TackSettings> table;
    AddKind(table, 1, "steering");
    AddKind(table, 2, "tacking");
    AddKind(table, 3, "jibing");
    constexpr const char* kThen = "Steer, Tack and Jibe";
    table.push_back(
        {"Tack Data", "Then Track", Truth(&TackSettings::ThenTrack), "",
         "a turn eases its overshoot out, ends on the wind angle of the other tack, and Track takes over",
         kThen});
    table.push_back({"Tack Data", "Then Track Angle", Choice(&TackSettings::Angle, TackAngle::Best), "",
                     "that angle: 0 the present one mirrored, 1 the polar's best", kThen});
    table.push_back({"Tack Data", "Stage Limit", Number(&TackSettings::StageLimit, kAboveZero), "s",
                     "a stage of such a turn that lasts longer ends it, or twice what its rate needs",
                     "the profile alone"});
    return table;
  }();
  return kTable;
}

void TackRecall(const Profile& profile, TackSettings& settings) {
  SettingsRead(TackSettingsTable(), profile, settings);
}

void TackStore(Profile& profile, const TackSettings& settings) {
  SettingsWrite(TackSettingsTable(), profile, settings);
}

}  // namespace veerwatch
