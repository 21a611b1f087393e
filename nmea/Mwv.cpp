#include "nmea/Mwv.h"

#include "nmea/FieldNumber.h"
#include "nmea/SpeedUnit.h"

namespace veerwatch {

Mwv DecodeMwv(const Fields& fields) {
  Mwv mwv;
  mwv.Invalid = fields[5] == "V";
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

void Mwv::AddTo(Readings& readings) const {
  if (Invalid) {
    readings.NoteInvalid();
  }
  const bool knots = SpeedUnit == "Kts";
  if (!knots) {
    readings.NoteUnreadUnit(SpeedUnit);
  }
  if (Reference == '\0' || (!knots && KnotsIn(SpeedUnit) == 0.0)) {
    return;
  }
  const bool apparent = Reference == 'R';
  readings.Add(apparent ? Quantity::ApparentWindAngle : Quantity::TrueWindAngle, WindAngle);
  readings.Add(apparent ? Quantity::ApparentWindSpeed : Quantity::TrueWindSpeed,
               knots ? WindSpeed : Knots(WindSpeed, SpeedUnit));
}

}  // namespace veerwatch
