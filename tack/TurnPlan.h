// What a turn that is followed to its end will be: worked out from the values of the moment, said in words,
// and then handed to a TurnEngine.
#pragma once

#include <optional>
#include <string>

#include "control/Manoeuvre.h"
#include "helm/HelmNow.h"
#include "tack/TurnWords.h"

namespace veerwatch {

/// The wind angle of the other tack, as sizes [deg, [0, 180]].
struct TurnAim {
  float Apparent = 0.0F;
  float True = 0.0F;
  bool AtEdge = false;  ///< of the table that it was looked up in: a better one may lie beyond
};

/// What a turn is asked for with.
struct TurnAsk {
  /// Tack and Jibe lead to the wind angle of the other tack, through the bow and through the stern; Steer to
  /// NewHeading, the shorter way round.
  ManoeuvreKind Kind = ManoeuvreKind::Tack;
  float NewHeading = 0.0F;     ///< of Steer [deg magnetic, any turn]
  float Overshoot = 0.0F;      ///< of Tack and Jibe [deg]
  float Rate = 0.0F;           ///< [deg/s], 0 or less is Manoeuvre::kUsualRate
  std::optional<TurnAim> Aim;  ///< of Tack and Jibe; nothing for the present angle mirrored
};

struct TurnPlan {
  ManoeuvreKind Kind = ManoeuvreKind::Tack;
  WindCrossing Crossing = WindCrossing::None;
  double Wind = 0.0;       ///< true wind angle that it starts from [deg relative, (-180, 180]]
  double Change = 0.0;     ///< to where it ends [deg, (-180, 180), positive to starboard]
  double Overshoot = 0.0;  ///< beyond it, eased out again [deg, with the sign of the change]; less than 0
                           ///< on the way is no turn back
  double Rate = Manoeuvre::kUsualRate;  ///< [deg/s], above 0
  double Bearing = 0.0;                 ///< of the pilot at the start [deg magnetic]
  float Held = 0.0F;                    ///< wind angle that Track then holds on its side [deg relative]
  std::string Note;                     ///< what the words say besides
  std::string Refusal;                  ///< why it cannot be made; "" when it can
};

/// The turn as it would begin now. The wind is the mean of ten seconds, or in Track the held angle, unless
/// Track is still on its way there, more than 20 degrees off; the bearing that of this moment. Refused in
/// Off, without an open output, a wind or a heading, while the settings give Track no gains, where it would
/// go by the mean and the boat swings so that the wind is more than 20 degrees off it (but for Steer), with
/// the wind dead ahead or astern, and for half a circle or more.
TurnPlan PlanTurn(const TurnAsk& ask, const HelmNow& now);

/// "Tack, 92 degrees to starboard through the wind", "GYBE, 165 degrees to port, by the stern", "Steer, 20
/// degrees to port".
std::string PlanWords(const TurnPlan& plan);

/// Whether the user is asked once more: for 150 degrees and more with the overshoot, and for a crossing of
/// the wind that `said`, by the button that was pressed, did not name.
bool PlanAsksOnceMore(const TurnPlan& plan, WindCrossing said);

/// That question, as "GYBE to port: OK once more?"; "" where nothing is asked. The same for the same kind and
/// side of turn, whatever its degrees are.
std::string PlanQuestion(const TurnPlan& plan, WindCrossing said);

}  // namespace veerwatch
