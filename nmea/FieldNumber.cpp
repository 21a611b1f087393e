#include "nmea/FieldNumber.h"

#include "platform/NumberText.h"

namespace veerwatch {

namespace {

std::optional<float> Within(std::string_view field, float least, float most) {
  const std::optional<float> number = StrictNumber(field);
  return number && *number >= least && *number <= most ? number : std::nullopt;
}

}  // namespace

std::optional<float> AngleField(std::string_view field) { return Within(field, -360.0F, 360.0F); }
std::optional<float> VariationField(std::string_view field) { return Within(field, -180.0F, 180.0F); }
std::optional<float> SpeedField(std::string_view field) { return Within(field, 0.0F, 1000.0F); }
std::optional<float> RangeField(std::string_view field) { return Within(field, 0.0F, 100000.0F); }

}  // namespace veerwatch
