#include "polar/PolarScene.h"

#include <algorithm>
#include <utility>

namespace veerwatch {

namespace {

constexpr double kTextShare = 0.021;
constexpr double kLeastText = 9.0;
constexpr double kMostText = 26.0;
/// The ring labels change sides when the wind is so far on theirs [deg].
constexpr float kChangeSides = 5.0F;

}  // namespace

const PolarStill& PolarScene::Still(int width, int height, const PlotRoom& taken) {
  const auto& settings = m_model.Settings();
  const float wind = m_model.WindAngle();
  if (m_model.Received() && (m_speedsToPort ? wind < -kChangeSides : wind > kChangeSides)) {
    m_speedsToPort = !m_speedsToPort;
  }
  std::vector<std::string> names{m_model.Name(PolarModel::kMain)};
  if (m_model.PolarsShown() == 2) {
    names.push_back(m_model.Name(PolarModel::kReference));
  }
  const Key key{width,
                height,
                taken,
                m_model.Version(),
                m_model.PolarsShown(),
                settings.PlotLabelWindSpeed,
                m_speedsToPort,
                settings.SpeedRange,
                settings.SpeedColor,
                names};
  if (key == m_key) {
    return m_still;
  }
  m_key = key;

  PolarStill still;
  still.Version = m_still.Version + 1;
  still.Geometry = PlotGeometry(width, height, static_cast<double>(settings.SpeedRange));
  still.TextHeight =
      std::clamp(static_cast<double>(std::min(width, height)) * kTextShare, kLeastText, kMostText);
  still.Main = PolarCurves(m_model.Table(), PolarModel::kMain, still.Geometry);
  still.Keys = std::move(names);
  if (m_model.PolarsShown() == 2) {
    still.Reference = PolarCurves(m_model.Table(), PolarModel::kReference, still.Geometry);
  }
  still.Grid = MakeGrid(still.Geometry,
                        {static_cast<double>(settings.SpeedRange), still.TextHeight,
                         settings.PlotLabelWindSpeed, m_speedsToPort},
                        still.Main);
  still.Legend = LayLegend(width, height, static_cast<int>(still.Keys.size()), taken);
  still.SpeedColor = settings.SpeedColor;
  m_still = std::move(still);
  return m_still;
}

void PolarScene::HoldMarks(PolarMoving& moving) const {
  const PolarGeometry& geometry = m_still.Geometry;
  const PlotHold& hold = m_model.Hold();
  const bool apparent = m_model.Settings().Type == PlotType::ApparentWind;
  const auto held = apparent ? hold.Apparent : hold.True;
  if (held) {
    moving.Held = MakeHeldMark(geometry, static_cast<double>(*held), m_still.TextHeight);
  }
  if (const auto& turn = hold.Turn) {
    moving.Turn = MakeTurnArc(geometry, apparent ? turn->ApparentFrom : turn->TrueFrom,
                              apparent ? turn->ApparentTo : turn->TrueTo, m_still.TextHeight);
    moving.TurnText = turn->Text;
  }
  constexpr double kRound = 360.0;
  if (apparent && hold.LeastApparent) {
    const auto least = static_cast<double>(*hold.LeastApparent);
    moving.Guard = MakeGuardBand(geometry, -least, least, m_still.TextHeight);
  } else if (!apparent && hold.LargestTrue) {
    const auto largest = static_cast<double>(*hold.LargestTrue);
    moving.Guard = MakeGuardBand(geometry, largest, kRound - largest, m_still.TextHeight);
  }
}

PolarMoving PolarScene::Moving(const LedgerContent* course) const {
  PolarMoving moving;
  moving.Readout = m_model.Readout();
  if (!m_model.Received()) {
    return moving;
  }
  const PolarGeometry& geometry = m_still.Geometry;
  const float trueWind = m_model.Values().WindSpeedTrue;
  moving.Wind = WindCurve(m_model.Table(), PolarModel::kMain, trueWind, geometry).Lines;
  if (m_model.PolarsShown() == 2) {
    moving.ReferenceWind = WindCurve(m_model.Table(), PolarModel::kReference, trueWind, geometry).Lines;
  }
  const auto angle = static_cast<double>(m_model.WindAngle());
  moving.Arrow = MakeWindArrow(geometry, angle, m_still.TextHeight);
  moving.Boat = MakeBoatPoint(geometry, angle, static_cast<double>(m_model.Values().BoatSpeed));
  HoldMarks(moving);
  if (course != nullptr) {
    moving.Target = MakeTargetMark(geometry, course->TargetWindAngle, m_still.TextHeight);
    for (const LedgerLeg& leg : course->Legs) {
      moving.Legs.push_back({MakeLegArrow(geometry, leg.WindAngle, leg.Speed), leg.PortTack, leg.Now});
    }
  }
  return moving;
}

}  // namespace veerwatch
