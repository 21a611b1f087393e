// Random scenes for properties that must hold for every one of them: sentences of the instruments mixed with
// what the user does, and the same scene seen turned or in a mirror. A scene is played as bytes through a
// helm; the answers are what the record, the labels and the autopilot got.
#pragma once

#include <cstdint>
#include <vector>

#include "instruments/InstrumentData.h"
#include "settings/Settings.h"

namespace veerwatch {

/// What happens, in tenths, so that turning and mirroring is exact in every sentence.
struct SceneStep {
  enum class What {
    Hdg,
    Hvm,
    MwvApparent,
    MwvTrue,
    Rmb,
    Rmc,
    Vhw,
    Vtg,
    Setup,
    Manual,
    Track,
    HoldApparent,
    HoldTrue,
    SteerTo,
    AutoPilot,
    Desired,
  };
  What Kind = What::Hdg;
  int Direction = 0;  ///< a magnetic heading, course or bearing [0.1 deg]
  int Relative = 0;   ///< a wind angle or a change of course [0.1 deg, positive to starboard]
  int Variation = 0;  ///< [0.1 deg, east positive]
  int Amount = 0;     ///< a speed [0.1 kn] or a range [0.1 nm]
};

struct Scene {
  Settings Set;
  int AutoPilot = 0;  ///< bearing at the start [0.1 deg]
  std::vector<SceneStep> Steps;
};

/// How a scene is seen: first in a mirror along the meridian, port for starboard and east for west, then
/// turned. A turn leaves the variation as it is.
struct SceneView {
  bool Mirror = false;
  int Turn = 0;  ///< [0.1 deg]
};

/// What stands after one step.
struct SceneAnswer {
  InstrumentData Record;
  float AutoPilot = 0.0F;  ///< [deg magnetic]
  double Turned = 0.0;     ///< by which the bearing has gone to starboard in this step [deg, -180 to 180]
  float Desired[2] = {0.0F, 0.0F};
  float Delta[2] = {0.0F, 0.0F};    ///< as shown last
  double Integral = 0.0;            ///< of the loop
  int Alarms = 0;                   ///< told so far
  std::vector<double> Relatives;    ///< every angle shown that is no direction, in their order [deg]
  std::vector<double> Amounts;      ///< every speed and range shown, in their order [kn, nm]
  std::vector<double> Directions;   ///< every direction shown, in their order [deg]
  std::vector<double> ApbBearings;  ///< of each sentence sent [deg]
};

/// Where the wind of a scene may come from.
enum class SceneWind {
  AllRound,
  OneSide,  ///< 20 to 160 degrees off one bow, so that no angle is half a turn off the desired one, which has
            ///< no side to be mirrored to
};

/// A scene of `steps` steps and a few before them, whose angles walk. It begins with a heading, as the wind
/// indicator takes north for one until it has come. The limits of the alarm lie between the decimals of the
/// sentences.
Scene RandomScene(std::uint64_t seed, int steps, SceneWind winds);

/// An answer for each step.
std::vector<SceneAnswer> Play(const Scene& scene, const SceneView& view);

}  // namespace veerwatch
