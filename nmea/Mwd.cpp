#include "nmea/Mwd.h"

#include <cstddef>

#include "nmea/FieldNumber.h"
#include "nmea/SpeedUnit.h"

namespace veerwatch {

Mwd DecodeMwd(const Fields& fields) {
  Mwd mwd;
  for (const std::size_t n : {1U, 3U}) {
    const auto text = fields.Text(n, n + 1);
    if (!text) {
      continue;
    }
    const auto direction = AngleField(*text);
    if (!direction) {
      return mwd;
    }
    if (fields[n + 1] == "T") {
      mwd.DirectionTrue = direction;
    } else if (fields[n + 1] == "M") {
      mwd.DirectionMagnetic = direction;
    }
  }
  mwd.WindSpeed = FirstSpeed(fields, {5, 7});
  return mwd;
}

void Mwd::AddTo(Readings& readings) const {
  if (DirectionTrue) {
    readings.Add(Quantity::WindDirectionTrue, *DirectionTrue);
  }
  if (DirectionMagnetic) {
    readings.Add(Quantity::WindDirectionMagnetic, *DirectionMagnetic);
  }
  if (WindSpeed) {
    readings.Add(Quantity::TrueWindSpeed, *WindSpeed);
  }
}

}  // namespace veerwatch
