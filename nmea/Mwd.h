// "MWD", direction and speed of the true wind.
#pragma once

#include <optional>

#include "instruments/Reading.h"
#include "nmea/Fields.h"

namespace veerwatch {

///     $WIMWD,023.6,T,022.6,M,3.9,N,2.0,M*hh
///            1     2 3     4 5   6 7   8
///            |       |       |     speed in metres a second
///            |       |       wind speed in knots; of the two the first that is there counts
///            |       direction that it blows from [deg magnetic, [-360, 360]], may be empty
///            direction that it blows from [deg true, [-360, 360]], may be empty
///
/// Source: NMEA 0183, MWD.
struct Mwd {
  std::optional<float> DirectionTrue;
  std::optional<float> DirectionMagnetic;
  std::optional<float> WindSpeed;  ///< [kn]

  bool Complete() const { return (DirectionTrue || DirectionMagnetic) && WindSpeed; }
  void AddTo(Readings& readings) const;
};

/// Reads until a field cannot be converted; what was read before stays.
Mwd DecodeMwd(const Fields& fields);

}  // namespace veerwatch
