// The arithmetic of a chart's axes: which values stand at the edges, where the ticks are, what they are
// called. Pure functions on numbers; the chart's geometry uses them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace veerwatch {

/// How numbers of a scale run on: without end, or round a circle.
enum class ScaleKind {
  Linear,
  Relative,  ///< angles to the bow, shown in (-180, 180]
  Compass,   ///< directions, shown in [0, 360)
};

/// A value axis. Of a circle the edges may lie on any turn and are at most 360 apart.
struct ValueScale {
  ScaleKind Kind = ScaleKind::Linear;
  double Low = 0.0;   ///< value at the lower edge
  double High = 1.0;  ///< value at the upper edge, above Low
  double Step = 1.0;  ///< from tick to tick, above 0

  bool Circular() const { return Kind != ScaleKind::Linear; }
};

/// An interval of values, unwrapped where they are angles.
struct ValueInterval {
  double Low;
  double High;
};

/// A tick of a value axis.
struct ValueTick {
  double Value;
  std::string Text;
};

/// The scale that shows all of `shown`, with about `ticks` [2 and more] steps. One for speeds begins at 0
/// unless the values are far from it; one for angles is the shortest arc that holds them all, or the full
/// circle, whose seam lies at 180 (relative) or 360 (compass). Without values: 0 to 10, or the full circle.
ValueScale AutomaticScale(ScaleKind kind, const std::vector<ValueInterval>& shown, int ticks);

/// The scale between two values that the user chose; `low` is below `high`.
ValueScale FixedScale(ScaleKind kind, double low, double high, int ticks);

/// The ticks from Low to High, in their order.
std::vector<ValueTick> Ticks(const ValueScale& scale);

/// A value on the turn that is nearest above `low` [low, low + 360).
double OnTurnAbove(double value, double low);

/// The shortest of the usual steps of a time axis that is not shorter than `least` [s]: 10 seconds to 1 day.
std::int64_t TimeStep(double least);

}  // namespace veerwatch
