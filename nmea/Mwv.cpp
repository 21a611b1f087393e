#include "nmea/Mwv.h"

#include "nmea/FieldNumber.h"

namespace veerwatch {

Mwv DecodeMwv(const Fields& fields) {
  Mwv mwv;
  if (const auto text = fields.Text(1, 2)) {
    const auto angle = AngleField(*text);
    if (!angle) {
      return mwv;
    }
    mwv.WindAngle = *angle;
    const std::string_view reference = fields[2];
    if (reference == "T" || reference == "R") {
      mwv.Reference = reference.front();
    }
  }
  if (const auto text = fields.Text(3, 4)) {
    const auto speed = SpeedField(*text);
    if (!speed) {
      return mwv;
    }
    mwv.WindSpeed = *speed;
    mwv.SpeedUnit = fields[4] == "N" ? "Kts" : fields[4];
  }
  return mwv;
}

}  // namespace veerwatch
