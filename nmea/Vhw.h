// "VHW", heading and speed through the water, and "VTG", course and speed over ground: one layout.
#pragma once

#include "instruments/Reading.h"
#include "nmea/Fields.h"

namespace veerwatch {

///     $IIVHW,128.4,T,123.4,M,6.5,N,12.0,K*hh
///            1     2 3     4 5   6 7    8
///            |     | |     | |   | |    kilometres per hour, not looked at
///            |     | |     | |   N: the speed is in knots
///            |     | |     | speed [kn, [0, 1000]]
///            |     | |     M: the heading is magnetic
///            |     | heading or course [deg magnetic, [-360, 360]]
///            true heading or course, not looked at
///
/// Source: NMEA 0183, VHW and VTG.
struct Vhw {
  float Heading = 0.0F;  ///< 0 where not read
  bool HeadingMark = false;
  float Speed = 0.0F;  ///< 0 where not read
  bool SpeedMark = false;

  bool Complete() const { return HeadingMark && SpeedMark; }
  void AddTo(Readings& readings) const;
};

/// The same fields over ground.
struct Vtg : Vhw {
  void AddTo(Readings& readings) const;
};

/// Each reads until a field cannot be converted; what was read before stays.
Vhw DecodeVhw(const Fields& fields);
Vtg DecodeVtg(const Fields& fields);

}  // namespace veerwatch
