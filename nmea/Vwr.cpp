#include "nmea/Vwr.h"

#include "nmea/FieldNumber.h"
#include "nmea/SpeedUnit.h"

namespace veerwatch {

namespace {

constexpr float kHalfTurn = 180.0F;

SidedWind DecodeWind(const Fields& fields) {
  SidedWind wind;
  if (const auto text = fields.Text(1, 2)) {
    const auto angle = AngleField(*text);
    if (!angle) {
      return wind;
    }
    const bool port = fields[2] == "L";
    wind.AngleMark = (port || fields[2] == "R") && *angle >= 0.0F && *angle <= kHalfTurn;
    wind.WindAngle = port && *angle < kHalfTurn ? -*angle : *angle;
  }
  if (const auto speed = FirstSpeed(fields, {3, 5, 7})) {
    wind.WindSpeed = *speed;
    wind.SpeedMark = true;
  }
  return wind;
}

void Add(const SidedWind& wind, Quantity angle, Quantity speed, Readings& readings) {
  if (wind.AngleMark) {
    readings.Add(angle, wind.WindAngle);
  }
  if (wind.SpeedMark) {
    readings.Add(speed, wind.WindSpeed);
  }
}

}  // namespace

Vwr DecodeVwr(const Fields& fields) { return {DecodeWind(fields)}; }
Vwt DecodeVwt(const Fields& fields) { return {DecodeWind(fields)}; }

void Vwr::AddTo(Readings& readings) const {
  Add(*this, Quantity::ApparentWindAngle, Quantity::ApparentWindSpeed, readings);
}

void Vwt::AddTo(Readings& readings) const {
  Add(*this, Quantity::TrueWindAngle, Quantity::TrueWindSpeed, readings);
}

}  // namespace veerwatch
