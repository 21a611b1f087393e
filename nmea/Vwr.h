// "VWR" and "VWT": a wind by its side.
#pragma once

#include "instruments/Reading.h"
#include "nmea/Fields.h"

namespace veerwatch {

///     $IIVWR,062.0,L,15.5,N,8.0,M,28.8,K*hh
///            1     2 3    4 5   6 7    8
///            |     | |      |     speed in kilometres an hour
///            |     | |      speed in metres a second
///            |     | wind speed in knots; of the three the first that is there counts
///            |     side from which it blows: L port, R starboard
///            angle off the bow [deg, [0, 180]]
///
/// VWR is the apparent wind, VWT the true one over the water. Source: NMEA 0183, VWR and VWT.
struct SidedWind {
  float WindAngle = 0.0F;  ///< [deg relative, (-180, 180]], port negative
  bool AngleMark = false;  ///< there is an angle with its side
  float WindSpeed = 0.0F;  ///< [kn]
  bool SpeedMark = false;

  bool Complete() const { return AngleMark && SpeedMark; }
};

struct Vwr : SidedWind {
  void AddTo(Readings& readings) const;
};

struct Vwt : SidedWind {
  void AddTo(Readings& readings) const;
};

/// Reads until a field cannot be converted; what was read before stays.
Vwr DecodeVwr(const Fields& fields);
Vwt DecodeVwt(const Fields& fields);

}  // namespace veerwatch
