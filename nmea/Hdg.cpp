#include "nmea/Hdg.h"

#include "nmea/FieldNumber.h"

namespace veerwatch {

Hdg DecodeHdg(const Fields& fields) {
  Hdg hdg;
  if (const auto text = fields.Text(1, 1)) {
    const auto heading = AngleField(*text);
    if (!heading) {
      return hdg;
    }
    hdg.Heading = *heading;
    hdg.HeadingMark = true;
  }
  hdg.Variation = DecodeVariation(fields, 4);
  return hdg;
}

void Hdg::AddTo(Readings& readings) const {
  if (HeadingMark) {
    readings.Add(Quantity::Heading, Heading);
  }
  Variation.AddTo(readings);
}

}  // namespace veerwatch
