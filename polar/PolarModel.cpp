#include "polar/PolarModel.h"

#include <algorithm>
#include <cmath>
#include <system_error>

#include "instruments/MathLib.h"
#include "platform/Language.h"
#include "platform/NumberText.h"
#include "platform/VisibleText.h"

namespace veerwatch {

namespace {

constexpr float kPercent = 100.0F;

/// 0.9 as "90%".
std::string Percent(float share) {
  return FormatNumber(ToSingle(static_cast<double>(share) * static_cast<double>(kPercent)), "0") + "%";
}

/// The highest boat speed in a slot [kn]; 0 for an empty one.
float Fastest(const PolarTable& table, int slot) {
  float fastest = 0.0F;
  for (int row = 1; row <= table.PolarRows(slot); ++row) {
    for (int column = 1; column <= table.PolarColumns(slot); ++column) {
      fastest = std::max(fastest, table.Value(slot, row, column));
    }
  }
  return fastest;
}

bool Exists(const std::filesystem::path& file) {
  std::error_code error;
  return std::filesystem::exists(file, error);
}

}  // namespace

void PolarModel::Reset(const Profile* profile) {
  m_settings = {};
  if (profile != nullptr) {
    PolarRecall(*profile, m_settings);
  }
  m_lastFolder.clear();
  m_shown = 1;
  m_table.Type(m_settings.Type);
  m_table.Smooth(m_settings.SmoothWinds);
  ++m_version;
}

std::filesystem::path PolarModel::FilePath(int slot) const {
  std::filesystem::path name(m_settings.File[static_cast<std::size_t>(slot)]);
  if (name.is_absolute()) {
    return name;
  }
  for (const std::filesystem::path& folder : {m_lastFolder, m_folders.Shared}) {
    if (!Exists(m_folders.Program / name) && !folder.empty() && Exists(folder / name)) {
      return folder / name;
    }
  }
  return m_folders.Program / name;
}

PolarHeld PolarModel::HeldOrWanted(int slot) const {
  const auto index = static_cast<std::size_t>(slot);
  return m_held[index].value_or(PolarHeld{m_settings.File[index], m_settings.SpeedFactor});
}

PolarLoadResult PolarModel::Load(int slot) { return LoadElse(slot, HeldOrWanted(slot)); }

PolarLoadResult PolarModel::LoadElse(int slot, const PolarHeld& before) {
  const auto index = static_cast<std::size_t>(slot);
  PolarLoadResult result = PolarLoad(m_table, slot, m_settings.SpeedFactor, FilePath(slot));
  if (result.Replaced) {
    m_held[index] = {m_settings.File[index], m_settings.SpeedFactor, result.Loaded};
  } else {
    m_settings.File[index] = before.File;
    if (slot == kMain) {
      m_settings.SpeedFactor = before.Factor;
    }
  }
  TableChanged();
  return result;
}

std::string PolarModel::Name(int slot) const {
  const auto& held = Held(slot);
  if (!held) {
    return Tr("No polar");
  }
  std::string name = VisibleText(std::filesystem::path(held->File).stem().string());
  if (held->Factor != 1.0F) {
    name.append(" ").append(Percent(held->Factor));
  }
  return held->Whole ? name : Filled(Tr("%1 (incomplete)"), {name});
}

void PolarModel::TableChanged() {
  ++m_version;
  if (Received()) {
    LookUp();
  }
}

void PolarModel::LookUp() {
  m_polarSpeed = m_table.PolarSpeed(kMain, std::fabs(Values().WindAngleTrue), Values().WindSpeedTrue);
}

PolarLoadResult PolarModel::Open(int slot, const std::string& file) {
  const PolarHeld before = HeldOrWanted(slot);
  if (slot == kMain) {
    m_settings.SpeedFactor = 1.0F;
  }
  m_settings.File[static_cast<std::size_t>(slot)] = file;
  PolarLoadResult result = LoadElse(slot, before);
  if (result.Loaded) {
    m_shown = slot == kReference ? 2 : 1;
  }
  if (const std::filesystem::path folder = std::filesystem::path(file).parent_path(); !folder.empty()) {
    m_lastFolder = folder;
  }
  return result;
}

std::optional<std::string> PolarModel::SaveAs(const std::string& file) {
  auto failure = PolarSave(m_table, kMain, file);
  if (!failure) {
    m_settings.File[kMain] = file;
    m_held[kMain] = {file, m_settings.SpeedFactor};
  }
  return failure;
}

void PolarModel::ShowWind(PlotType type) {
  m_settings.Type = type;
  m_table.Type(type);
  TableChanged();
}

void PolarModel::ToggleWindSpeedLabel() { m_settings.PlotLabelWindSpeed = !m_settings.PlotLabelWindSpeed; }

void PolarModel::ToggleSmoothWinds() {
  m_settings.SmoothWinds = !m_settings.SmoothWinds;
  m_table.Smooth(m_settings.SmoothWinds);
  TableChanged();
}

void PolarModel::ChooseCourse(CourseSource source) {
  const bool again = m_settings.CourseWaypoint && m_settings.CourseWaypointIndex == source;
  m_settings.CourseWaypoint = !again;
  m_settings.CourseWaypointIndex = source;
}

void PolarModel::RangeFit() {
  const float fastest = std::max(Fastest(m_table, kMain), m_shown == 2 ? Fastest(m_table, kReference) : 0.0F);
  if (!(fastest > 0.0F)) {
    return;
  }
  for (const float range : kMenuRanges) {
    if (fastest <= range) {
      Range(range);
      return;
    }
  }
  constexpr double kFine = 5.0;
  constexpr double kCoarse = 10.0;
  constexpr double kMostFine = 30.0;
  const auto speed = static_cast<double>(fastest);
  const double step = speed > kMostFine ? kCoarse : kFine;
  Range(ToSingle(std::ceil(speed / step) * step));
}

bool PolarModel::TakeRange(const std::string& text) {
  const auto number = StrictNumber(text);
  if (!number || *number <= 0.0F) {
    return false;
  }
  m_settings.SpeedRange = *number;
  return true;
}

bool PolarModel::TakeFactor(const std::string& text) {
  const auto number = StrictNumber(text);
  if (!number || *number <= 0.0F) {
    return false;
  }
  m_settings.SpeedFactor = *number;
  return true;
}

bool PolarModel::TakeBearing(const std::string& text) {
  const auto number = StrictNumber(text);
  if (!number) {
    return false;
  }
  m_settings.CourseTargetBearing = FoldBearing(static_cast<double>(*number));
  return true;
}

bool PolarModel::TakeMotorSpeed(const std::string& text) {
  const auto number = StrictNumber(text);
  if (!number) {
    return false;
  }
  m_settings.BoatMotorSpeed = *number;
  return true;
}

std::string PolarModel::ScalingCaption() const {
  return Filled(Tr("Set Scaling (%1)..."), {Percent(m_settings.SpeedFactor)});
}

std::string PolarModel::TargetBearingCaption() const {
  return Filled(Tr("Set Target Bearing (%1 M)..."), {FormatNumber(m_settings.CourseTargetBearing, "0")});
}

std::string PolarModel::MotorSpeedCaption() const {
  return Filled(Tr("Set Motor Only Speed to Target/Waypoint (%1 Kts)..."),
                {FormatNumber(m_settings.BoatMotorSpeed, "0.0")});
}

bool PolarModel::Update(TrackMode mode, const PolarValues& values, bool visible) {
  m_averages.Feed(values, m_settings.PlotAverage);
  m_present = values;
  if (!visible) {
    return false;
  }
  const bool changed = mode != m_mode;
  m_mode = mode;
  LookUp();
  return changed;
}

std::string PolarModel::PolarSpeedText() const { return FormatNumber(m_polarSpeed, "0.0") + " deg"; }

std::optional<float> PolarModel::CourseBearing() const {
  if (!Received() || !m_settings.CourseWaypoint || !Values().HeadingValid) {
    return std::nullopt;
  }
  switch (m_settings.CourseWaypointIndex) {
    case CourseSource::TargetBearing:
      return m_settings.CourseTargetBearing;
    case CourseSource::WaypointBearing:
    case CourseSource::WaypointRange:
      return Values().WaypointValid ? std::optional(Values().WaypointBearing) : std::nullopt;
    case CourseSource::None:
      break;
  }
  return std::nullopt;
}

float PolarModel::WindAngle() const {
  return m_settings.Type == PlotType::ApparentWind ? Values().WindAngleApparent : Values().WindAngleTrue;
}

float PolarModel::WindSpeed() const {
  return m_settings.Type == PlotType::ApparentWind ? Values().WindSpeedApparent : Values().WindSpeedTrue;
}

PolarReadout PolarModel::Readout() const {
  const bool motor = m_settings.Boat == BoatType::MotorAndSail;
  const bool apparent = m_settings.Type == PlotType::ApparentWind;
  PolarReadout readout;
  readout.ReferenceCaption = motor ? Tr("Motor (Kts)") : Tr("Polar (Kts)");
  readout.BoatCaption = Tr("Boat (Kts)");
  readout.WindSpeedCaption = apparent ? Tr("AWS (Kts)") : Tr("TWS (Kts)");
  readout.WindAngleCaption = apparent ? Tr("AWA (R)") : Tr("TWA (R)");
  if (!Received()) {
    return readout;
  }
  const float reference = motor ? m_settings.BoatMotorSpeed : m_polarSpeed;
  const float boat = Values().BoatSpeed;
  readout.ReferenceValue = FormatNumber(reference, "0.0");
  readout.BoatValue = FormatNumber(boat, "0.0");
  if (reference != 0.0F) {
    const double share =
        static_cast<double>(boat) / static_cast<double>(reference) * static_cast<double>(kPercent);
    readout.BoatPercent = FormatNumber(ToSingle(share), "0") + "%";
  }
  readout.WindSpeedValue = FormatNumber(WindSpeed(), "0.0");
  readout.WindAngleValue = FormatNumber(WindAngle(), "0");
  return readout;
}

std::optional<PolarMouse> PolarModel::Nearest(double x, double y, const PolarGeometry& geometry) const {
  NearestCell winner = m_table.PolarNearest(kMain, x, y, geometry);
  bool reference = false;
  if (m_shown == 2) {
    const NearestCell other = m_table.PolarNearest(kReference, x, y, geometry);
    if (other.Found && (!winner.Found || other.SquaredDistance < winner.SquaredDistance)) {
      winner = other;
      reference = true;
    }
  }
  if (!winner.Found || !(winner.SquaredDistance < kMouseReach)) {
    return std::nullopt;
  }
  return PolarMouse{FormatNumber(winner.Cell.Angle, "0.0") + "\n" + FormatNumber(winner.Cell.WindSpeed, "0") +
                        "\n" + FormatNumber(winner.Cell.BoatSpeed, "0.0"),
                    (m_settings.Type == PlotType::ApparentWind ? Tr("AWA (R)") : Tr("TWA (R)")) + "\n" +
                        Tr("TWS (Kts)") + "\n" + (reference ? Tr("Reference (Kts)") : Tr("Polar (Kts)")),
                    reference};
}

}  // namespace veerwatch
