// The tracking modes and the side that is tracked. Standard library only: every folder may include it.
#pragma once

#include <cstdint>

namespace veerwatch {

/// The numbers are the indexes of the toolbar's buttons; the even indexes are separators.
enum class TrackMode : std::int32_t {
  Switching = 0,  ///< for the moment of a switch; nothing is computed or sent
  Off = 1,        ///< nothing is computed or sent
  Setup = 3,      ///< desired angles follow the measured ones; nothing is sent
  Manual = 5,     ///< desired angles follow the measured ones; the bearing that the user sets is sent
  Track = 7,      ///< the controller steers and its bearing is sent
};

/// By which law the wind is held; the numbers are the indexes of the names in the profile.
enum class TrackMethod : std::int32_t {
  Sentence = 0,   ///< proportional plus integral, one pass per wind sentence
  Clock = 1,      ///< the same law by the time between the sentences
  Direction = 2,  ///< steers by the direction of the true wind over the earth
};

/// Which wind angle is held; the numbers are the indexes of the option pair and of the desired angles.
enum class TrackSide : std::int32_t { Apparent = 1, True = 2 };

}  // namespace veerwatch
