#include "nmea/Variation.h"

#include "nmea/FieldNumber.h"

namespace veerwatch {

void VariationValue::AddTo(Readings& readings) const {
  if (Direction != '\0') {
    readings.Add(Quantity::Variation, Degrees);
  }
}

VariationValue DecodeVariation(const Fields& fields, std::size_t n) {
  VariationValue variation;
  const auto text = fields.Text(n, n + 1);
  const auto degrees = text ? VariationField(*text) : std::nullopt;
  if (!degrees) {
    return variation;
  }
  variation.Degrees = *degrees;
  const std::string_view direction = fields[n + 1];
  if (direction == "E" || direction == "W") {
    variation.Direction = direction.front();
  }
  if (variation.Direction == 'W') {
    variation.Degrees = -variation.Degrees;
  }
  return variation;
}

}  // namespace veerwatch
