#include "polar/PolarSettings.h"

#include "instruments/MathLib.h"

namespace veerwatch {

namespace {

constexpr const char* kData = "Polar Data";
constexpr const char* kWindow = "Polar Window";
constexpr float kLastColor = 16777215.0F;

/// A number that `fits`, else `value` stays.
template <class Fits>
void GetNumber(const Profile& profile, const char* key, float& value, Fits fits) {
  float number = value;
  profile.ProfileGet(kData, key, number);
  if (fits(number)) {
    value = number;
  }
}

bool Positive(float number) { return number > 0.0F; }

/// An enumeration of whole numbers from 0 to `last`.
template <class Enumeration>
void GetChoice(const Profile& profile, const char* key, Enumeration& value, Enumeration last) {
  auto number = static_cast<std::int16_t>(value);
  profile.ProfileGet(kData, key, number, 0, static_cast<std::int16_t>(last));
  value = static_cast<Enumeration>(number);
}

}  // namespace

void PolarRecall(const Profile& profile, PolarSettings& settings) {
  profile.ProfileGet(kData, "File 1", settings.File[0]);
  profile.ProfileGet(kData, "File 2", settings.File[1]);
  GetNumber(profile, "Plot Average", settings.PlotAverage, IsAverageCount);
  profile.ProfileGet(kData, "Plot Label WindSpeed", settings.PlotLabelWindSpeed);
  GetChoice(profile, "Plot Type", settings.Type, PlotType::ApparentWind);
  // Every colour of 24 bits is a whole single.
  auto color = static_cast<float>(settings.SpeedColor);
  GetNumber(profile, "Speed Color", color, [](float value) { return value >= 0.0F && value <= kLastColor; });
  settings.SpeedColor = static_cast<std::uint32_t>(color);
  GetNumber(profile, "Speed Factor", settings.SpeedFactor, Positive);
  GetNumber(profile, "Speed Range", settings.SpeedRange, Positive);
  profile.ProfileGet(kData, "Course Scale", settings.CourseScale);
  profile.ProfileGet(kData, "Course Target Bearing", settings.CourseTargetBearing);
  settings.CourseTargetBearing = FoldBearing(static_cast<double>(settings.CourseTargetBearing));
  profile.ProfileGet(kData, "Course Waypoint", settings.CourseWaypoint);
  GetChoice(profile, "Course Waypoint Index", settings.CourseWaypointIndex, CourseSource::None);
  profile.ProfileGet(kData, "Boat Motor Speed", settings.BoatMotorSpeed);
  GetChoice(profile, "Boat Type", settings.Boat, BoatType::MotorAndSail);
  profile.ProfileGet(kData, "Smooth Between Winds", settings.SmoothWinds);
}

std::optional<WindowPlace> PolarPlaceRecall(const Profile& profile) {
  WindowPlace place;
  for (const auto& [key, value] : {std::pair{"Top", &place.Top}, std::pair{"Left", &place.Left},
                                   std::pair{"Height", &place.Height}, std::pair{"Width", &place.Width}}) {
    *value = INT16_MIN;
    profile.ProfileGet(kWindow, key, *value, INT16_MIN + 1);
    if (*value == INT16_MIN) {
      return std::nullopt;
    }
  }
  if (place.Height <= 0 || place.Width <= 0) {
    return std::nullopt;
  }
  return place;
}

void PolarStore(Profile& profile, const PolarSettings& settings, const std::filesystem::path& programFolder) {
  profile.ProfileSet(kData, "File 1", WithoutFolder(settings.File[0], programFolder));
  profile.ProfileSet(kData, "File 2", WithoutFolder(settings.File[1], programFolder));
  profile.ProfileSet(kData, "Plot Average", settings.PlotAverage);
  profile.ProfileSet(kData, "Plot Label WindSpeed", settings.PlotLabelWindSpeed);
  profile.ProfileSet(kData, "Plot Type", static_cast<std::int16_t>(settings.Type));
  profile.ProfileSet(kData, "Speed Color", static_cast<float>(settings.SpeedColor));
  profile.ProfileSet(kData, "Speed Factor", settings.SpeedFactor);
  profile.ProfileSet(kData, "Speed Range", settings.SpeedRange);
  profile.ProfileSet(kData, "Course Scale", settings.CourseScale);
  profile.ProfileSet(kData, "Course Target Bearing", settings.CourseTargetBearing);
  profile.ProfileSet(kData, "Course Waypoint", settings.CourseWaypoint);
  profile.ProfileSet(kData, "Course Waypoint Index", static_cast<std::int16_t>(settings.CourseWaypointIndex));
  profile.ProfileSet(kData, "Boat Motor Speed", settings.BoatMotorSpeed);
  profile.ProfileSet(kData, "Boat Type", static_cast<std::int16_t>(settings.Boat));
  profile.ProfileSet(kData, "Smooth Between Winds", settings.SmoothWinds);
}

void PolarPlaceStore(Profile& profile, const WindowPlace& place) {
  profile.ProfileSet(kWindow, "Top", place.Top);
  profile.ProfileSet(kWindow, "Left", place.Left);
  profile.ProfileSet(kWindow, "Height", place.Height);
  profile.ProfileSet(kWindow, "Width", place.Width);
}

std::string WithoutFolder(const std::string& file, const std::filesystem::path& programFolder) {
  if (programFolder.empty()) {
    return file;
  }
  const std::filesystem::path name(file);
  std::filesystem::path folder = programFolder.lexically_normal();
  if (!folder.has_filename()) {
    folder = folder.parent_path();
  }
  return name.lexically_normal().parent_path() == folder ? name.filename().string() : file;
}

}  // namespace veerwatch
