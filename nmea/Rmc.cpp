#include "nmea/Rmc.h"

#include "nmea/FieldNumber.h"

namespace veerwatch {

Rmc DecodeRmc(const Fields& fields) {
  Rmc rmc;
  rmc.Invalid = fields[2] == "V";
  if (const auto text = fields.Text(7, 7)) {
    const auto speed = SpeedField(*text);
    if (!speed) {
      return rmc;
    }
    rmc.Speed = *speed;
    rmc.SpeedMark = true;
  }
  if (const auto text = fields.Text(8, 8)) {
    const auto course = AngleField(*text);
    if (!course) {
      return rmc;
    }
    rmc.Course = *course;
    rmc.CourseMark = true;
  }
  rmc.Variation = DecodeVariation(fields, 10);
  return rmc;
}

void Rmc::AddTo(Readings& readings) const {
  if (Invalid) {
    readings.NoteInvalid();
  }
  Variation.AddTo(readings);
  if (CourseMark) {
    readings.Add(Quantity::CourseTrue, Course);
  }
  if (SpeedMark) {
    readings.Add(Quantity::SpeedOverGround, Speed);
  }
}

}  // namespace veerwatch
