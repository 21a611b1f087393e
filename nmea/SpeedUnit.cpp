#include "nmea/SpeedUnit.h"

#include "nmea/FieldNumber.h"

namespace veerwatch {

std::optional<float> FirstSpeed(const Fields& fields, std::initializer_list<std::size_t> places) {
  for (const std::size_t n : places) {
    const auto text = fields.Text(n, n + 1);
    if (!text) {
      continue;
    }
    const std::optional<float> speed = SpeedField(*text);
    if (!speed) {
      return std::nullopt;
    }
    if (KnotsIn(fields[n + 1]) > 0.0) {
      return Knots(*speed, fields[n + 1]);
    }
  }
  return std::nullopt;
}

}  // namespace veerwatch
