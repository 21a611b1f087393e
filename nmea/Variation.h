// A magnetic variation as three sentences carry it: a magnitude and a field "E" or "W".
#pragma once

#include <cstddef>

#include "instruments/Reading.h"
#include "nmea/Fields.h"

namespace veerwatch {

struct VariationValue {
  float Degrees = 0.0F;   ///< [deg, east positive]; the bare magnitude without a direction mark
  char Direction = '\0';  ///< 'E', 'W', or 0 when there is no such mark or no value

  /// Adds the variation where it has its direction.
  void AddTo(Readings& readings) const;
};

/// Reads field `n` and its direction in the field after it, where the line has at least n + 1 fields.
VariationValue DecodeVariation(const Fields& fields, std::size_t n);

}  // namespace veerwatch
