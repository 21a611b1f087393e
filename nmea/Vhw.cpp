#include "nmea/Vhw.h"

#include "nmea/FieldNumber.h"

namespace veerwatch {

Vhw DecodeVhw(const Fields& fields) {
  Vhw vhw;
  if (const auto text = fields.Text(3, 4)) {
    const auto heading = AngleField(*text);
    if (!heading) {
      return vhw;
    }
    vhw.Heading = *heading;
    vhw.HeadingMark = fields[4] == "M";
  }
  if (const auto text = fields.Text(5, 6)) {
    const auto speed = SpeedField(*text);
    if (!speed) {
      return vhw;
    }
    vhw.Speed = *speed;
    vhw.SpeedMark = fields[6] == "N";
  }
  return vhw;
}

Vtg DecodeVtg(const Fields& fields) { return {DecodeVhw(fields)}; }

namespace {

void AddMotion(const Vhw& motion, Quantity direction, Quantity speed, Readings& readings) {
  if (motion.HeadingMark) {
    readings.Add(direction, motion.Heading);
  }
  if (motion.SpeedMark) {
    readings.Add(speed, motion.Speed);
  }
}

}  // namespace

void Vhw::AddTo(Readings& readings) const {
  AddMotion(*this, Quantity::Heading, Quantity::SpeedThroughWater, readings);
}

void Vtg::AddTo(Readings& readings) const {
  AddMotion(*this, Quantity::CourseMagnetic, Quantity::SpeedOverGround, readings);
}

}  // namespace veerwatch
