// How well two colours can be told apart.
#pragma once

#include <QColor>
#include <algorithm>
#include <cmath>

namespace veerwatch {

/// Contrast ratio of two colours, 1 to 21. Source: WCAG 2, relative luminance.
inline double ContrastRatio(const QColor& a, const QColor& b) {
  const auto luminance = [](const QColor& colour) {
    const auto channel = [](double part) {
      return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * channel(colour.redF()) + 0.7152 * channel(colour.greenF()) +
           0.0722 * channel(colour.blueF());
  };
  const double one = luminance(a) + 0.05;
  const double other = luminance(b) + 0.05;
  return std::max(one, other) / std::min(one, other);
}

}  // namespace veerwatch
