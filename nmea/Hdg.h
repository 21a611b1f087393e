// "HDG", heading, deviation and variation.
#pragma once

#include "nmea/Fields.h"
#include "nmea/Variation.h"

namespace veerwatch {

///     $IIHDG,123.4,1.0,E,5.0,W*hh
///            1     2   3 4   5
///            |     |   | |   direction of the variation: E or W
///            |     |   | magnetic variation [deg, [-180, 180]]
///            |     deviation and its direction, not looked at
///            heading [deg magnetic, [-360, 360]]
///
/// Source: NMEA 0183, HDG.
struct Hdg {
  float Heading = 0.0F;  ///< 0 where not read
  bool HeadingMark = false;
  VariationValue Variation;

  bool Complete() const { return HeadingMark && Variation.Direction != '\0'; }
  void AddTo(Readings& readings) const;
};

/// Reads until a field cannot be converted; what was read before stays.
Hdg DecodeHdg(const Fields& fields);

}  // namespace veerwatch
