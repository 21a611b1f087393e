// What the polar window knows and decides, without a window: settings, table, averages, the polar speed, the
// texts of its menus and of its legend. frmPolar shows it.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "polar/PolarAverages.h"
#include "polar/PolarFile.h"
#include "polar/PolarSettings.h"
#include "polar/PolarTable.h"
#include "settings/TrackMode.h"

namespace veerwatch {

/// Where polar files with relative names lie.
struct PolarFolders {
  std::filesystem::path Program;  ///< the program's own; "" for the current folder
  std::filesystem::path Shared;   ///< where an installed program has its data; "" for none
};

/// The numbers and captions beside the plot; values are "" until something was received.
struct PolarReadout {
  std::string ReferenceCaption;  ///< "Polar (Kts)", or "Motor (Kts)" for motor and sail
  std::string ReferenceValue;
  std::string BoatCaption;  ///< "Boat (Kts)"
  std::string BoatValue;
  std::string BoatPercent;       ///< of the reference, with "%"; "" when the reference is 0
  std::string WindSpeedCaption;  ///< "TWS (Kts)" or "AWS (Kts)"
  std::string WindSpeedValue;
  std::string WindAngleCaption;  ///< "TWA (R)" or "AWA (R)"
  std::string WindAngleValue;
};

/// What a slot of the table holds.
struct PolarHeld {
  std::string File;     ///< as the settings name it
  float Factor = 1.0F;  ///< by which its speeds were multiplied
  bool Whole = true;    ///< false for the beginning of a file that went wrong further on
};

/// A turn to come, in either wind: wind angles from where it begins to where it ends [deg]. They go on past
/// 180, so that the way between them is that of the turn.
struct PlotTurn {
  double ApparentFrom = 0.0;
  double ApparentTo = 0.0;
  double TrueFrom = 0.0;
  double TrueTo = 0.0;
  std::string Text;  ///< "90 deg, 12 s"
};

/// What the loop holds, for the plot in that wind; nothing where it holds nothing.
struct PlotHold {
  std::optional<float> Apparent;       ///< held apparent angle, or what the true one comes to [deg relative]
  std::optional<float> True;           ///< held true angle, or what the apparent one comes to [deg relative]
  std::optional<float> LeastApparent;  ///< of the angle guard [deg]
  std::optional<float> LargestTrue;    ///< of the angle guard [deg]
  std::optional<PlotTurn> Turn{};      ///< the turn to come
};

/// The cell under the mouse.
struct PolarMouse {
  std::string Text;        ///< angle, wind speed and boat speed, a line each
  std::string Captions;    ///< what they are, a line each
  bool Reference = false;  ///< of the reference polar
};

/// The ranges of the plot that the menu offers [kn].
inline constexpr std::array<float, 4> kMenuRanges{6.0F, 8.0F, 10.0F, 12.0F};

class PolarModel {
 public:
  static constexpr int kMain = 0;       ///< slot of the boat's own polar
  static constexpr int kReference = 1;  ///< slot of the reference
  /// Squared distance from the mouse below which a cell is read out [px squared].
  static constexpr double kMouseReach = 500.0;

  explicit PolarModel(PolarFolders folders) : m_folders(std::move(folders)) {}

  const PolarSettings& Settings() const { return m_settings; }
  const PolarTable& Table() const { return m_table; }
  const PolarFolders& Folders() const { return m_folders; }
  /// Polars that are drawn: 1, or 2 with the reference.
  int PolarsShown() const { return m_shown; }
  /// Grows with every change of the table or of how it is seen.
  std::uint64_t Version() const { return m_version; }

  /// Sets the defaults, overlaid with what `profile` holds when there is one. The table stays.
  void Reset(const Profile* profile);

  // Polar files

  /// Where the file of a slot is: the name itself when it is whole; else in the program's folder, in that of
  /// the polar opened last, in the shared one, whichever has it first; else in the program's.
  std::filesystem::path FilePath(int slot) const;
  /// Reads the file of a slot with the present factor. One that does not even begin as a polar leaves the
  /// slot, and with it the names and the factor in the settings, as they were with the polar that it holds.
  PolarLoadResult Load(int slot);
  /// What a slot holds; nothing before anything was loaded.
  const std::optional<PolarHeld>& Held(int slot) const { return m_held[static_cast<std::size_t>(slot)]; }
  /// What a slot holds as the plot names it, as "Fast Sled 60ft 90%".
  std::string Name(int slot) const;
  /// Takes `file` into a slot; a reference that is loaded is shown. Deliberate: the own polar starts with the
  /// speed factor 1 and, once loaded, hides the reference, which each start of the program hides, too.
  PolarLoadResult Open(int slot, const std::string& file);
  /// Writes the own polar to `file`, which then is its file; the factor stays. Nothing when done, else what
  /// went wrong.
  std::optional<std::string> SaveAs(const std::string& file);

  // Choices

  void ShowWind(PlotType type);
  void ToggleWindSpeedLabel();
  void ToggleSmoothWinds();
  void Range(float range) { m_settings.SpeedRange = range; }
  /// Takes the smallest range of the menu that shows every curve that is drawn. Where the largest is too
  /// small the next multiple of 5 kn, above 30 kn of 10 kn, so that the rings stay round. No curve leaves the
  /// range.
  void RangeFit();
  void Factor(float factor) { m_settings.SpeedFactor = factor; }  ///< the own polar has to be loaded again
  void Color(std::uint32_t color) { m_settings.SpeedColor = color; }
  void Average(float seconds) { m_settings.PlotAverage = seconds; }
  /// Makes `source` the course, or, when it is the course already, leaves no course.
  void ChooseCourse(CourseSource source);
  void ToggleCourseScale() { m_settings.CourseScale = !m_settings.CourseScale; }
  void ToggleTackByItself() { m_settings.TackByItself = !m_settings.TackByItself; }
  void Boat(BoatType type) { m_settings.Boat = type; }

  // Typed numbers: each is true when the text was a number that can be, and then took it.

  bool TakeRange(const std::string& text);   ///< [kn, above 0]
  bool TakeFactor(const std::string& text);  ///< [above 0]; the own polar has to be loaded again
  bool TakeBearing(const std::string& text);
  bool TakeMotorSpeed(const std::string& text);  ///< [kn]

  // Texts of the menus

  std::string ScalingCaption() const;
  std::string TargetBearingCaption() const;
  std::string MotorSpeedCaption() const;

  // What comes in

  /// Averages a set of values. `visible` is whether the window shows; only then the polar speed is looked up.
  /// True when the mode is another than before, so that the menus have to be refreshed.
  bool Update(TrackMode mode, const PolarValues& values, bool visible);
  bool Received() const { return m_averages.Fed(); }
  const PolarValues& Values() const { return m_averages.Values(); }
  void Hold(const PlotHold& hold) { m_hold = hold; }
  const PlotHold& Hold() const { return m_hold; }
  /// The set that came last, as it came.
  const PolarValues& Present() const { return m_present; }
  TrackMode Mode() const { return m_mode; }
  /// Speed of the own polar in the present true wind [kn], as of the last update in sight. Deliberate: the
  /// true wind is looked up also when the table is seen in apparent wind, where only a smooth table has it.
  float PolarSpeed() const { return m_polarSpeed; }
  /// The same as the history keeps it. Deliberate: a speed with the unit "deg".
  std::string PolarSpeedText() const;

  /// Where the course leads: the target bearing or that of the waypoint [deg magnetic]. Nothing without a
  /// source, without a valid heading, and for the waypoint without a valid one.
  std::optional<float> CourseBearing() const;

  PolarReadout Readout() const;
  /// The wind that the plot shows: apparent or true [deg relative], [kn].
  float WindAngle() const;
  float WindSpeed() const;

  /// The cell near (`x`, `y`) [px], of the own polar when both are equally near; nothing when none is.
  std::optional<PolarMouse> Nearest(double x, double y, const PolarGeometry& geometry) const;

 private:
  /// Loads a slot; where that leaves it as it was, the settings say `before` again.
  PolarLoadResult LoadElse(int slot, const PolarHeld& before);
  /// What a slot holds, or what the settings want in it.
  PolarHeld HeldOrWanted(int slot) const;
  /// What was found in the table or made of it counts no more.
  void TableChanged();
  void LookUp();

  PolarFolders m_folders;
  std::filesystem::path m_lastFolder;
  PolarSettings m_settings;
  PolarTable m_table;
  std::array<std::optional<PolarHeld>, 2> m_held;
  PolarAverages m_averages;
  PlotHold m_hold;
  PolarValues m_present;
  int m_shown = 1;
  std::uint64_t m_version = 0;
  TrackMode m_mode = TrackMode::Switching;
  float m_polarSpeed = 0.0F;
};

}  // namespace veerwatch
