// The course ledger: what a solution says about the way to the target or waypoint, as texts and legs to draw.
// The polar window fills its panel and its buttons with it.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "polar/CourseCaptions.h"
#include "polar/CourseTargets.h"
#include "polar/PolarSettings.h"

namespace veerwatch {

/// What a figure or a row is about; it is shown in a colour of its own.
enum class LedgerSubject { Boat, StarboardTack, PortTack, Target, Wind };

/// A value under its column heading.
struct LedgerFigure {
  std::string Heading;
  std::string Value;
  LedgerSubject Subject = LedgerSubject::Boat;
  bool Faint = false;  ///< of a leg that is not sailed
  bool operator==(const LedgerFigure&) const = default;
};

/// A row under the figures.
struct LedgerRow {
  std::string Label;
  std::string Angle;  ///< [deg], from the wind or from the bow; "--" for a leg that is not sailed
  std::string Speed;  ///< [kn], or ""
  LedgerSubject Subject = LedgerSubject::Boat;
  bool operator==(const LedgerRow&) const = default;
};

/// A leg to draw.
struct LedgerLeg {
  double WindAngle = 0.0;  ///< in the wind of the plot [deg relative, [-180, 180]]
  double Speed = 0.0;      ///< [kn]
  bool PortTack = false;
  bool Now = false;  ///< the leg to sail now
};

struct LedgerContent {
  std::vector<LedgerFigure> Figures;
  std::array<LedgerRow, 6> Rows;
  double TargetWindAngle = 0.0;  ///< of the straight way to the target, as the plot has it [deg relative]
  std::vector<LedgerLeg> Legs;   ///< with a share of the time and a speed above 0
  TurnFace Steer;
  TurnFace Tack;
  bool TackPossible = false;  ///< the other leg has a share
  bool Upwind = true;         ///< the turn to it is called a tack, else a jibe
  float SteerHeading = 0.0F;  ///< of the leg to sail now [deg magnetic, [0, 360)]
  float TackHeading = 0.0F;   ///< of the other leg [deg magnetic, [0, 360)]
};

/// What the boat does, as averages.
struct LedgerInput {
  CourseQuery Query;
  float BoatSpeed = 0.0F;      ///< [kn]
  float PolarSpeed = 0.0F;     ///< of the polar in the present wind [kn]
  float WaypointRange = 0.0F;  ///< [nm]
};

/// The ledger for the course source, the scaling and the boat in `settings`. With Course Scale all speeds
/// follow the boat's own. Deliberate: under motor and sail they do so without it too. Leg times are the
/// shares of the whole time. Under motor and sail the time at the motor speed stands after that under sail.
LedgerContent CourseLedger(const PolarSettings& settings, const LedgerInput& input,
                           const CourseSolution& solution);

}  // namespace veerwatch
