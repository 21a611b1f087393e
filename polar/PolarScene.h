// The whole plot of a model in one size, in two parts: what stands still while the boat sails (grid, labels,
// curves, legend places), made anew only when something of it changes, and what moves with every update.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "polar/CourseLedger.h"
#include "polar/PolarCurves.h"
#include "polar/PolarGrid.h"
#include "polar/PolarLegend.h"
#include "polar/PolarMarks.h"
#include "polar/PolarModel.h"

namespace veerwatch {

struct PolarStill {
  std::uint64_t Version = 0;  ///< another number for another picture
  PolarGeometry Geometry;
  double TextHeight = 0.0;  ///< of the labels [px]
  PolarGrid Grid;
  std::vector<PolarCurve> Main;
  std::vector<PolarCurve> Reference;  ///< empty while the reference is hidden
  PolarLegend Legend;
  std::vector<std::string> Keys;  ///< names of the polars that are drawn
  std::uint32_t SpeedColor = 0;   ///< 0xBBGGRR; 0 for the foreground colour
};

/// A leg of the course.
struct PolarLeg {
  LegArrow Arrow;
  bool PortTack = false;
  bool Now = false;  ///< the leg to sail now
};

struct PolarMoving {
  std::vector<Polyline> Wind;           ///< the own polar in the present true wind
  std::vector<Polyline> ReferenceWind;  ///< the reference in it
  std::optional<WindArrow> Arrow;       ///< none until values have come
  std::optional<BoatPoint> Boat;
  std::optional<TargetMark> Target;  ///< the bearing to sail to, while there is a course
  std::vector<PolarLeg> Legs;
  std::optional<HeldMark> Held;  ///< what Track holds, in the wind that is plotted
  std::optional<TurnArc> Turn;   ///< the turn to come, in the wind that is plotted
  std::string TurnText;          ///< its degrees and seconds
  Polyline Guard;                ///< where the angle guard lets no wind come; empty without it
  PolarReadout Readout;
};

class PolarScene {
 public:
  explicit PolarScene(const PolarModel& model) : m_model(model) {}

  /// The still part in an area of `width` by `height`, of which `taken` is not the legend's [px].
  const PolarStill& Still(int width, int height, const PlotRoom& taken = {});

  /// The moving part with a course, when there is one, in the geometry of the latest still one.
  PolarMoving Moving(const LedgerContent* course = nullptr) const;

 private:
  void HoldMarks(PolarMoving& moving) const;
  /// All that the still part depends on.
  struct Key {
    int Width = -1;
    int Height = -1;
    PlotRoom Taken;
    std::uint64_t Table = 0;
    int Shown = 0;
    bool WindLabels = false;
    bool SpeedsToPort = true;
    float Range = 0.0F;
    std::uint32_t Color = 0;
    std::vector<std::string> Names;
    bool operator==(const Key&) const = default;
  };

  const PolarModel& m_model;
  Key m_key;
  PolarStill m_still;
  bool m_speedsToPort = true;
};

}  // namespace veerwatch
