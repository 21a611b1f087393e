#include "nmea/Hdt.h"

#include <string_view>

#include "nmea/FieldNumber.h"

namespace veerwatch {

namespace {

/// Field 1 where the mark after it is the one that belongs there.
std::optional<float> HeadingWith(std::string_view marks, const Fields& fields) {
  const auto text = fields.Text(1, 2);
  const bool marked = fields[2].size() == 1 && marks.find(fields[2]) != std::string_view::npos;
  return text && marked ? AngleField(*text) : std::nullopt;
}

}  // namespace

Hdm DecodeHdm(const Fields& fields) { return {HeadingWith("M", fields)}; }
Hdt DecodeHdt(const Fields& fields) { return {HeadingWith("T", fields)}; }
Ths DecodeThs(const Fields& fields) { return {{HeadingWith("AS", fields)}}; }

void Hdm::AddTo(Readings& readings) const {
  if (Heading) {
    readings.Add(Quantity::Heading, *Heading);
  }
}

void Hdt::AddTo(Readings& readings) const {
  if (Heading) {
    readings.Add(Quantity::HeadingTrue, *Heading);
  }
}

}  // namespace veerwatch
