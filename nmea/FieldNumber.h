// Fields to numbers, within the bounds that a sane instrument keeps.
#pragma once

#include <optional>
#include <string_view>

namespace veerwatch {

/// Each returns nothing for a text that is no number and for a number out of range.

/// An angle, heading or course [deg, [-360, 360]].
std::optional<float> AngleField(std::string_view field);
/// A magnetic variation [deg, [-180, 180]].
std::optional<float> VariationField(std::string_view field);
/// A speed [kn, [0, 1000]].
std::optional<float> SpeedField(std::string_view field);
/// A range [nm, [0, 100000]].
std::optional<float> RangeField(std::string_view field);

}  // namespace veerwatch
