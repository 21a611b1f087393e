// The plot of the loop's response on the Tracking tab as plain numbers: grid, reference lines, trace and what
// stands under the mouse, from the boxes as typed. TrackPreviewQt strokes it.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "draw/Shapes.h"
#include "options/TrackResponse.h"
#include "platform/Random.h"

namespace veerwatch {

/// The seven boxes as typed, and what else the response depends on.
struct TrackPreviewTexts {
  std::string Bandwidth;  ///< [s]
  std::string Damping;
  std::string Offset;  ///< bearing at the start [deg]
  std::string Noise;   ///< to either side [deg]
  std::string Time;    ///< length of the run [s]
  std::string Min;     ///< lowest bearing shown [deg]
  std::string Max;     ///< highest bearing shown [deg]
  TrackMethod Method = TrackMethod::Sentence;
  double Rate = 1.0;          ///< wind sentences a second [1/s]
  BearingLimits Limits = {};  ///< but for Sentence
};

/// How seconds and degrees become columns and rows, counted from the upper left corner.
struct TrackScale {
  double TimeStart = 0.0;
  double TimeEnd = 0.0;
  double TimeScale = 0.0;      ///< [plot units/s]
  double BearingMin = 0.0;     ///< [deg]
  double BearingMax = 0.0;     ///< [deg]
  double BearingOrigin = 0.0;  ///< the row of BearingMin
  double BearingScale = 0.0;   ///< [plot units/deg]; negative, larger bearings are higher

  /// The nearest column, ties to the even one.
  int TimeColumn(double time) const;
  /// The nearest row, ties to the even one, at most 1e9 to either side.
  int BearingRow(double bearing) const;
};

/// A place of the trace in whole plot units.
struct TrackPoint {
  int Column = 0;
  int Row = 0;

  bool operator==(const TrackPoint&) const = default;
};

/// A line across the whole width.
struct TrackReference {
  double Bearing = 0.0;   ///< [deg]
  std::uint32_t Rgb = 0;  ///< as 0xRRGGBB
  int Row = 0;
};

/// One of several lines with a text of its own.
struct TrackCurve {
  TrackMethod Method = TrackMethod::Sentence;
  std::string Text;  ///< what stands beside it in the legend
  Polyline Line;     ///< [plot units]
};

struct TrackPreview {
  int Width = 0;   ///< [plot units]
  int Height = 0;  ///< [plot units]
  /// One line that says which box is wrong; the plot is empty then. "" otherwise.
  std::string Trouble;

  TrackScale Scale;
  /// Of the vertical lines of the grid, every 10 seconds, ascending. Lines on one column are one.
  std::vector<int> Columns;
  /// Of the horizontal lines of the grid, every degree from BearingMin up. Lines on one row are one.
  std::vector<int> Rows;
  /// In the order in which they are drawn.
  std::array<TrackReference, 3> References{{{1.0, 0xFF0000, 0}, {0.0, 0x00FF00, 0}, {-1.0, 0xFF0000, 0}}};
  /// The offset at column 0 and the bearing after each pass, from 0 seconds on. Of more than two points on
  /// one column the first, the least, the largest and the last row are kept, which look the same. Empty when
  /// nothing is drawn.
  std::vector<TrackPoint> Trace;

  /// In place of the trace: the error of each method over the time, beneath a legend of that height.
  std::vector<TrackCurve> Curves;
  int LegendHeight = 0;  ///< [plot units]

  bool Empty() const { return Trace.empty() && Curves.empty(); }

  /// The response in figures, that of all passes; nothing when nothing is drawn.
  std::optional<TrackFigures> Figures;

  /// "This run: overshoot 1.25 deg, settling time 31 s, steady state 0.50 deg rms"; "" when nothing is drawn.
  std::string FiguresText() const;

  /// The trace in straight pieces [plot units]. What is more than a plot's height above or below the plot is
  /// cut off.
  std::vector<Stroke> Strokes() const;

  /// What stands at a place of the plot [plot units]: "time=12.5, bearing=-0.25", of curves "error" in place
  /// of "bearing". "" when nothing is drawn.
  std::string ReadOut(double x, double y) const;
};

/// The places of grid lines at `from`, `from` + `step`, ... to `to` by `scale`, as columns or as rows.
std::vector<int> TrackGridColumns(const TrackScale& scale, double step);
std::vector<int> TrackGridRows(const TrackScale& scale, double from, double step);

/// Computes the plot for a size. Text that is not a number, and numbers that allow no plot or an absurd one,
/// end in Trouble. A plot less than 2 units wide or high stays empty without one. Deliberate: with a minimum
/// above the maximum the axis is upside down and there are no horizontal grid lines. Deliberate: `random`
/// goes on from where it is, so the same boxes give another noise each time.
TrackPreview TrackPreviewDraw(const TrackPreviewTexts& texts, int width, int height, RandomSource& random);

}  // namespace veerwatch
