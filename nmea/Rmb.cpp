#include "nmea/Rmb.h"

#include "nmea/FieldNumber.h"

namespace veerwatch {

Rmb DecodeRmb(const Fields& fields) {
  Rmb rmb;
  const std::size_t shift = fields[1] != "A" && fields[2] == "A" ? 1 : 0;
  rmb.Invalid = fields[1 + shift] == "V";
  if (const auto text = fields.Text(10 + shift, 10 + shift)) {
    const auto range = RangeField(*text);
    if (!range) {
      return rmb;
    }
    rmb.Range = *range;
    rmb.RangeMark = true;
  }
  if (const auto text = fields.Text(11 + shift, 11 + shift)) {
    const auto bearing = AngleField(*text);
    if (!bearing) {
      return rmb;
    }
    rmb.Bearing = *bearing;
    rmb.BearingMark = true;
  }
  return rmb;
}

void Rmb::AddTo(Readings& readings) const {
  if (Invalid) {
    readings.NoteInvalid();
  }
  if (RangeMark) {
    readings.Add(Quantity::WaypointRange, Range);
  }
  if (BearingMark) {
    readings.Add(Quantity::WaypointBearing, Bearing);
  }
}

}  // namespace veerwatch
