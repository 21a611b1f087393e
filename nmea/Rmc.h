// "RMC", recommended minimum GPS data.
#pragma once

#include "nmea/Fields.h"
#include "nmea/Variation.h"

namespace veerwatch {

///     $GPRMC,123519,A,4807.0,N,01131.0,E,5.2,230.0,230394,3.1,W*hh
///            1      2 3      4 5       6 7   8     9      10  11
///            |      |                    |   |     |      |   direction of the variation: E or W
///            |      |                    |   |     |      magnetic variation [deg, [-180, 180]]
///            |      |                    |   |     date, not looked at
///            |      |                    |   course over ground [deg true, [-360, 360]]
///            |      |                    speed over ground [kn, [0, 1000]]
///            time and position, not looked at; status: A, or V for data that do not hold
///
/// Source: NMEA 0183, RMC.
struct Rmc {
  float Speed = 0.0F;  ///< 0 where not read
  bool SpeedMark = false;
  float Course = 0.0F;  ///< 0 where not read
  bool CourseMark = false;
  VariationValue Variation;
  bool Invalid = false;  ///< the status is V

  bool Complete() const { return CourseMark && SpeedMark && Variation.Direction != '\0'; }
  void AddTo(Readings& readings) const;
};

/// Reads the status, and the rest until a field cannot be converted; what was read before stays.
Rmc DecodeRmc(const Fields& fields);

}  // namespace veerwatch
