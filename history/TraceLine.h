// From slots to what is stroked: the samples of a trace gathered into one bucket per drawn column, and these
// turned into polylines and bars. Pure numbers [px], used by StripChartPicture.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "draw/Shapes.h"
#include "history/ChartScale.h"
#include "history/StripChartData.h"

namespace veerwatch {

/// Some slots of a trace together, that one column is drawn for.
struct TraceBucket {
  std::int64_t Slot = 0;  ///< its first slot, a whole multiple of the number of slots per bucket
  float Latest = 0.0F;
  /// Unwrapped around Latest where the trace is an angle, at most 360 apart.
  float Low = 0.0F;
  float High = 0.0F;
  bool Joined = false;  ///< the slots on both sides of its beginning hold values, so a line may cross it
};

/// Gathers the slots [first, last] of a trace, `perBucket` [1 and more] at a time, into `buckets`, oldest
/// first; a bucket without a value is left out. Slots that are not held count as empty.
void GatherBuckets(const StripChartData& data, const StripChartData::Trace& trace, std::int64_t first,
                   std::int64_t last, std::int64_t perBucket, std::vector<TraceBucket>& buckets);

/// Where slots and values stand in a panel.
struct TraceFrame {
  Box Plot;
  std::int64_t EndSlot = 0;    ///< the slot whose beginning is at the right edge
  double SlotWidth = 1.0;      ///< [px]
  std::int64_t PerBucket = 1;  ///< slots in a column
  ValueScale Scale;

  double X(double slot) const { return Plot.Right() - (static_cast<double>(EndSlot) - slot) * SlotWidth; }
  double Y(double value) const {
    return Plot.Bottom() - (value - Scale.Low) / (Scale.High - Scale.Low) * Plot.Height;
  }
};

/// A value without a line to either side.
struct ChartDot {
  static constexpr double kDiameter = 5.0;  ///< [px]; less where the next column is nearer

  Point Middle;
  double Diameter = kDiameter;
};

/// A trace as it is stroked: polylines through the latest values, and bars over all that happened.
struct TraceLine {
  Polyline Points;                  ///< of all polylines, one after the other
  std::vector<std::size_t> Starts;  ///< where in Points each begins; each has two points at least
  std::vector<ChartDot> Dots;
  std::vector<Box> Bars;

  void Clear() {
    Points.clear();
    Starts.clear();
    Dots.clear();
    Bars.clear();
  }
  /// One past the last point of a polyline.
  std::size_t End(std::size_t line) const {
    return line + 1 < Starts.size() ? Starts[line + 1] : Points.size();
  }
};

/// Traces the buckets [begin, end) into `line`. Nothing leaves the plot: what is beyond the scale is cut off
/// at its edge. Where an angle passes the seam of its scale, one polyline ends at one edge and another begins
/// at the other. No polyline goes on over a bucket that is not joined; when bucket `begin` is joined its line
/// starts at the bucket before it. A bucket that is joined to none is a dot.
void TraceBuckets(const TraceFrame& frame, const std::vector<TraceBucket>& buckets, std::size_t begin,
                  std::size_t end, TraceLine& line);

}  // namespace veerwatch
