#include "polar/PolarSettings.h"

#include <algorithm>
namespace veerwatch {

namespace {

using namespace setting;
using P = PolarSettings;

constexpr const char* kData = "Polar Data";
/// A window place's key that is not there.
constexpr std::int16_t kNoPlace = INT16_MIN;

SettingTable<P> Plot() {
  return {
      {kData, "File 1", Text(Element{&P::File, 0}, "a path"), "", "the main polar", "polar plot > Polars"},
      {kData, "File 2", Text(Element{&P::File, 1}, "a path"), "", "the polar that is shown as reference",
       "polar plot > Polars"},
      {kData, "Plot Average", Number(&P::PlotAverage, kAverageCount), "s",
       "averaging count of what the window shows, 0 for none", "polar plot > Average"},
      {kData, "Plot Label WindSpeed", Truth(&P::PlotLabelWindSpeed), "", "a wind speed on each curve",
       "polar plot > Wind"},
      {kData, "Plot Type", Choice(&P::Type, PlotType::ApparentWind), "", "0 true wind, 1 apparent wind",
       "polar plot > Wind"},
      {kData, "Speed Color", Number(&P::SpeedColor, kColour24), "",
       "colour of the curves: red + 256 * green + 65536 * blue; 0 the foreground colour",
       "polar plot > Polars"},
      {kData, "Speed Factor", Number(&P::SpeedFactor, kAboveZero), "", "multiplies the speeds of the file",
       "polar plot > Polars"},
      {kData, "Speed Range", Number(&P::SpeedRange, kAboveZero), "kn", "speed at the outer ring",
       "polar plot > Range"},
  };
}

SettingTable<P> Course() {
  return {
      {kData, "Course Scale", Truth(&P::CourseScale), "", "projections follow the present boat speed",
       "polar plot > Course"},
      {kData, "Course Target Bearing", Number(&P::CourseTargetBearing, kBearing), "deg magnetic",
       "the bearing to steer to", "polar plot > Course"},
      {kData, "Course Waypoint", Truth(&P::CourseWaypoint), "", "a course is chosen", "polar plot > Course"},
      {kData, "Course Waypoint Index", Choice(&P::CourseWaypointIndex, CourseSource::None), "",
       "0 target bearing, 1 waypoint bearing, 2 range and bearing, 3 none", "polar plot > Course"},
      {kData, "Boat Motor Speed", Number(&P::BoatMotorSpeed, kAnyNumber), "kn", "speed under motor",
       "polar plot > Boat"},
      {kData, "Boat Type", Choice(&P::Boat, BoatType::MotorAndSail), "", "0 sail only, 1 motor and sail",
       "polar plot > Boat"},
      {kData, "Smooth Between Winds", Truth(&P::SmoothWinds), "",
       "boat speeds lie on straight lines between the two neighbouring wind speeds", "polar plot > Polars"},
      {kData, "Tack By Itself", Truth(&P::TackByItself), "",
       "a course that is sailed tacks at the line without Enter", "polar plot > Course"},
  };
}

}  // namespace

const SettingTable<PolarSettings>& PolarSettingsTable() {
  static const SettingTable<P> kTable = [] {
    SettingTable<P> table = Plot();
    const SettingTable<P> course = Course();
    table.insert(table.end(), course.begin(), course.end());
    return table;
  }();
  return kTable;
}

const SettingTable<PolarPlace>& PolarPlaceTable() {
  constexpr const char* kWindow = "Polar Window";
  constexpr const char* kByHand = "by moving and sizing it";
  const auto pixels = [](std::int16_t PolarPlace::*member) { return Whole(member, kNoPlace + 1, INT16_MAX); };
  static const SettingTable<PolarPlace> kTable{
      {kWindow, "Top", pixels(&PolarPlace::Top), "px", "place of the polar window; all four keys or none",
       kByHand},
      {kWindow, "Left", pixels(&PolarPlace::Left), "px", "from the left", kByHand},
      {kWindow, "Height", pixels(&PolarPlace::Height), "px", "inner height, above 0", kByHand},
      {kWindow, "Width", pixels(&PolarPlace::Width), "px", "inner width, above 0", kByHand}};
  return kTable;
}

void PolarRecall(const Profile& profile, PolarSettings& settings) {
  SettingsRead(PolarSettingsTable(), profile, settings);
}

void PolarStore(Profile& profile, PolarSettings settings, const std::filesystem::path& programFolder) {
  for (std::string& file : settings.File) {
    file = WithoutFolder(file, programFolder);
  }
  SettingsWrite(PolarSettingsTable(), profile, settings);
}

std::optional<Box> PolarPlaceRecall(const Profile& profile) {
  PolarPlace place{kNoPlace, kNoPlace, kNoPlace, kNoPlace};
  SettingsRead(PolarPlaceTable(), profile, place);
  if (place.Top == kNoPlace || place.Left == kNoPlace || place.Height <= 0 || place.Width <= 0) {
    return std::nullopt;
  }
  return Box{static_cast<double>(place.Left), static_cast<double>(place.Top),
             static_cast<double>(place.Width), static_cast<double>(place.Height)};
}

void PolarPlaceStore(Profile& profile, const Box& place) {
  const auto kept = [](double pixels) {
    return static_cast<std::int16_t>(std::clamp<double>(pixels, kNoPlace + 1, INT16_MAX));
  };
  SettingsWrite(PolarPlaceTable(), profile,
                {kept(place.Y), kept(place.X), kept(place.Height), kept(place.Width)});
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
