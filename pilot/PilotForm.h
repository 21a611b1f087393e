// What the pilot is sent by the settings: which sentences, and how they are written.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "settings/Settings.h"

namespace veerwatch {

/// The sentences that say where to steer, in the order in which they leave.
enum class PilotType { Apb, Rmb, Hsc, Xte, Bwc };
inline constexpr std::size_t kPilotTypes = 5;

struct PilotForm {
  /// The apparent wind leaves, and nothing of the below.
  bool Wind = false;
  std::array<bool, kPilotTypes> Sends{};  ///< in the order of PilotType
  std::string_view Talker;                ///< two characters
  bool True = false;                      ///< the bearings of APB are true
  bool Mode = false;                      ///< the sentences that can end with the mode do
  int Decimals = 1;                       ///< of the bearings, 0 or 1
  std::string_view Point;                 ///< name of the point steered to, 1 to 6 characters

  bool Has(PilotType type) const { return Sends[static_cast<std::size_t>(type)]; }
};

/// What `settings` send. Holds views of its texts.
PilotForm PilotFormOf(const Settings& settings);

}  // namespace veerwatch
