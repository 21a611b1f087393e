// "HDM", "HDT" and "THS": a heading alone.
#pragma once

#include <optional>

#include "instruments/Reading.h"
#include "nmea/Fields.h"

namespace veerwatch {

///     $APHDM,218.6,M*hh       $GPHDT,221.6,T*hh       $INTHS,221.6,A*hh
///            1     2                 1     2                 1     2
///            |     always M          |     always T          |     status: A autonomous, S simulated;
///            |                       |                       |     E, M and V are no heading
///            magnetic heading        true heading            true heading [deg, [-360, 360]]
///
/// Source: NMEA 0183, HDM, HDT and THS.
struct Hdm {
  std::optional<float> Heading;  ///< [deg magnetic]

  bool Complete() const { return Heading.has_value(); }
  void AddTo(Readings& readings) const;
};

struct Hdt {
  std::optional<float> Heading;  ///< [deg true]

  bool Complete() const { return Heading.has_value(); }
  void AddTo(Readings& readings) const;
};

struct Ths : Hdt {};

Hdm DecodeHdm(const Fields& fields);
Hdt DecodeHdt(const Fields& fields);
Ths DecodeThs(const Fields& fields);

}  // namespace veerwatch
