// What a pilot is sent; the choices of section "Pilot".
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "platform/Language.h"

namespace veerwatch {

/// Which sentences leave; the numbers are the indexes of the names.
enum class PilotProfile : std::int32_t {
  MagneticApb = 0,  ///< APB, its bearings magnetic
  TrueApb = 1,      ///< APB, its bearings true
  ApbAndRmb = 2,    ///< APB, its bearings magnetic, and RMB
  Hsc = 3,          ///< HSC
  Wind = 4,         ///< the apparent wind, VWR and MWV, for a pilot that holds it by itself
  Own = 5,          ///< what the user has chosen
};

/// As they are called in the profile and in the options dialog.
inline constexpr std::array<std::string_view, 6> kPilotProfiles{TrMark("Magnetic APB"),
                                                                TrMark("True APB"),
                                                                TrMark("APB and RMB"),
                                                                TrMark("Heading command HSC"),
                                                                TrMark("Wind to a vane-mode pilot"),
                                                                TrMark("Own")};

/// What the bearings of APB are measured from; the numbers are the indexes of the names "M" and "T".
enum class BearingKind : std::int32_t { Magnetic = 0, True = 1 };

}  // namespace veerwatch
