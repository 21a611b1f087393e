// The settings of the polar window and where they stand in the profile.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

#include "draw/Shapes.h"
#include "polar/PolarTable.h"
#include "settings/SettingRow.h"

namespace veerwatch {

/// The polar that comes with the program, in the program's own folder.
inline constexpr const char* kDefaultPolar = "Fast Sled 60ft.pol";

/// What the course is steered to.
enum class CourseSource : std::int16_t {
  TargetBearing = 0,
  WaypointBearing = 1,
  WaypointRange = 2,
  None = 3
};

enum class BoatType : std::int16_t { SailOnly = 0, MotorAndSail = 1 };

struct PolarSettings {
  std::array<std::string, 2> File{kDefaultPolar, kDefaultPolar};  ///< by slot; whole, or relative
  float PlotAverage = 2.0F;         ///< averaging count of what comes in [s], 0 = none, else above 0.5
  bool PlotLabelWindSpeed = false;  ///< each curve carries its wind speed
  PlotType Type = PlotType::TrueWind;
  std::uint32_t SpeedColor = 0;      ///< colour of the curves, 0xBBGGRR; 0 is the plot's foreground colour
  float SpeedFactor = 1.0F;          ///< multiplies each speed that is read, above 0
  float SpeedRange = 10.0F;          ///< speed at the outer ring [kn], above 0
  bool CourseScale = true;           ///< projections follow the boat's present speed
  float CourseTargetBearing = 0.0F;  ///< [deg magnetic, [0, 360)]
  bool CourseWaypoint = false;       ///< a course source is active
  /// Deliberate: the default chooses none of the three.
  CourseSource CourseWaypointIndex = CourseSource::None;
  float BoatMotorSpeed = 3.0F;  ///< under motor alone [kn]
  BoatType Boat = BoatType::SailOnly;
  bool SmoothWinds = false;   ///< PolarTable::Smooth
  bool TackByItself = false;  ///< a course that is sailed tacks without being asked
};

/// Where the window stands, as the profile keeps it: the corner of its frame and its inner size [px].
struct PolarPlace {
  std::int16_t Top = 0;
  std::int16_t Left = 0;
  std::int16_t Height = 0;
  std::int16_t Width = 0;
};

/// The keys of section "Polar Data" and of the place in section "Polar Window".
const SettingTable<PolarSettings>& PolarSettingsTable();
const SettingTable<PolarPlace>& PolarPlaceTable();

/// Overlays what the profile holds; what is missing, unreadable or out of range stays.
void PolarRecall(const Profile& profile, PolarSettings& settings);

/// The place in the profile; nothing unless all four keys are there with a size above 0.
std::optional<Box> PolarPlaceRecall(const Profile& profile);

/// Sets every key. A file inside `programFolder` is written without that folder.
void PolarStore(Profile& profile, PolarSettings settings, const std::filesystem::path& programFolder);
void PolarPlaceStore(Profile& profile, const Box& place);

/// `file` without `programFolder` in front of it.
std::string WithoutFolder(const std::string& file, const std::filesystem::path& programFolder);

}  // namespace veerwatch
