// "MWV", wind speed and angle.
#pragma once

#include <string_view>

#include "instruments/Reading.h"
#include "nmea/Fields.h"

namespace veerwatch {

///     $IIMWV,045.0,R,10.5,N,A*hh
///            1     2 3    4 5
///            |     | |    | status: V where the instrument itself says that the wind does not hold
///            |     | |    unit of the speed: N knots, others are kept as they stand
///            |     | wind speed
///            |     reference: R relative (apparent), T theoretical (true)
///            wind angle [deg, [-360, 360]]
///
/// Source: NMEA 0183, MWV.
struct Mwv {
  float WindAngle = 0.0F;      ///< 0 where not read
  char Reference = '\0';       ///< 'R', 'T', or 0 when the sentence has no such mark or no angle
  float WindSpeed = 0.0F;      ///< 0 where not read
  std::string_view SpeedUnit;  ///< "Kts" for knots, another unit's text, "" for none
  bool Invalid = false;        ///< the status is V

  bool Complete() const { return Reference != '\0' && !SpeedUnit.empty(); }
  /// Adds the wind, its speed in knots; notes any other unit that it came in.
  void AddTo(Readings& readings) const;
};

/// Reads until a field cannot be converted; what was read before stays.
Mwv DecodeMwv(const Fields& fields);

}  // namespace veerwatch
