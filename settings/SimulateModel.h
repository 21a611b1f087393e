// Which boat the simulator sails, and what she meets; the choices of section "Simulate". Standard library
// only.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "platform/Language.h"

namespace veerwatch {

/// The numbers are the indexes of the names.
enum class SimulateModel : std::int32_t {
  Steady = 0,  ///< lies on the bearing at once and has the wind and the speed that are set
  Boat = 1,    ///< has a hull, a rudder, a pilot that reads what is sent, a sea and a wind that is not steady
};
inline constexpr std::array<std::string_view, 2> kSimulateModels{TrMark("Steady"), TrMark("Boat")};

/// The sea that the boat sails in; the numbers are the indexes of the names.
enum class Sea : std::int32_t {
  Flat = 0,
  Slight = 1,
  Beam = 2,       ///< moderate, from abeam
  Following = 3,  ///< rough, from astern
  Head = 4,       ///< steep, from ahead
};
inline constexpr std::array<std::string_view, 5> kSeaNames{TrMark("Flat"), TrMark("Slight"), TrMark("Beam"),
                                                           TrMark("Following"), TrMark("Head")};

/// Which sentences the boat's pilot reads; the numbers are the indexes of the names.
enum class PilotReads : std::int32_t {
  All = 0,
  Apb = 1,
  Rmb = 2,
  Hsc = 3,
  Bwc = 4,
  Wind = 5,     ///< MWV and VWR, whose angle it holds
  Nothing = 6,  ///< and steers on to the bearing that it has
};
inline constexpr std::array<std::string_view, 7> kPilotReadsNames{
    TrMark("All"), "APB", "RMB", "HSC", "BWC", TrMark("Wind"), TrMark("Nothing")};

}  // namespace veerwatch
