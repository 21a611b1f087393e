// The units in which a wind's speed can come.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <optional>
#include <string_view>

#include "nmea/Fields.h"

namespace veerwatch {

/// Knots in one of `unit`: "N" knots, "M" metres a second, "K" kilometres an hour, "S" statute miles an hour;
/// 0 for any other text. Source: NMEA 0183, MWV; a nautical mile has 1852 m, a statute mile 1609.344 m.
constexpr double KnotsIn(std::string_view unit) {
  constexpr double kMile = 1852.0;       // [m]
  constexpr double kStatute = 1609.344;  // [m]
  constexpr double kHour = 3600.0;       // [s]
  if (unit == "N") {
    return 1.0;
  }
  if (unit == "M") {
    return kHour / kMile;
  }
  if (unit == "K") {
    return 1000.0 / kMile;
  }
  return unit == "S" ? kStatute / kMile : 0.0;
}

/// `speed` in `unit` as knots [kn]; 0 in a unit that is not known.
constexpr float Knots(float speed, std::string_view unit) {
  return unit == "N" ? speed : static_cast<float>(static_cast<double>(speed) * KnotsIn(unit));
}

/// The first speed that is there in a known unit [kn]. Each place of `places` is the number of a field with a
/// speed, and its unit is in the field after it. Nothing where none is there, or where one that comes before
/// is no speed.
std::optional<float> FirstSpeed(const Fields& fields, std::initializer_list<std::size_t> places);

}  // namespace veerwatch
