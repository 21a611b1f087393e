// "RMB", recommended minimum navigation to a waypoint.
#pragma once

#include "instruments/Reading.h"
#include "nmea/Fields.h"

namespace veerwatch {

///     $GPRMB,A,0.66,L,003,004,4917.24,N,12309.57,W,001.3,052.5,000.5,V*hh
///            1 2    3 4   5   6       7 8        9 10    11    12    13
///            |                                     |     bearing to the waypoint [deg true, [-360, 360]]
///            |                                     range to the waypoint [nm, [0, 100000]]
///            status: A, or V for data that do not hold
///
/// Deliberate: where field 1 is not "A" but field 2 is, every field stands one further on, as some senders
/// put a field of their own before the status.
///
/// Source: NMEA 0183, RMB.
struct Rmb {
  float Range = 0.0F;  ///< 0 where not read
  bool RangeMark = false;
  float Bearing = 0.0F;  ///< 0 where not read
  bool BearingMark = false;
  bool Invalid = false;  ///< the status is V

  bool Complete() const { return RangeMark && BearingMark; }
  void AddTo(Readings& readings) const;
};

/// Reads the status, and the rest until a field cannot be converted; what was read before stays.
Rmb DecodeRmb(const Fields& fields);

}  // namespace veerwatch
