#include "options/TrackPreview.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "instruments/MathLib.h"
#include "platform/Language.h"
#include "platform/NumberText.h"

namespace veerwatch {

namespace {

constexpr double kFarthest = 1e9;
constexpr double kMostShown = 1e6;  // [deg]
constexpr double kGridTime = 10.0;  // [s]
constexpr double kGridBearing = 1.0;

int Nearest(double value) {
  return static_cast<int>(std::nearbyint(std::clamp(value, -kFarthest, kFarthest)));
}

/// The numbers in the boxes.
struct Numbers {
  TrackResponseInputs Inputs;
  double Min = 0.0;
  double Max = 0.0;
};

/// Reads the boxes; returns the line about the first that is no number, or "".
std::string Read(const TrackPreviewTexts& texts, Numbers& numbers) {
  struct Entry {
    const char* Name;
    const std::string& Text;
    double& Value;
  };
  const std::array<Entry, 7> boxes{{{TrMark("Bandwidth"), texts.Bandwidth, numbers.Inputs.Bandwidth},
                                    {TrMark("Damping"), texts.Damping, numbers.Inputs.Damping},
                                    {TrMark("Offset"), texts.Offset, numbers.Inputs.Offset},
                                    {TrMark("Noise"), texts.Noise, numbers.Inputs.Noise},
                                    {TrMark("Time"), texts.Time, numbers.Inputs.Time},
                                    {TrMark("Minimum"), texts.Min, numbers.Min},
                                    {TrMark("Maximum"), texts.Max, numbers.Max}}};
  for (const Entry& box : boxes) {
    // Direction has no damping: whatever stands there does not matter.
    if (&box.Value == &numbers.Inputs.Damping && texts.Method == TrackMethod::Direction) {
      continue;
    }
    const auto value = StrictDouble(box.Text);
    if (!value) {
      return Filled(Tr("%1 is not a number"), {Tr(box.Name)});
    }
    box.Value = *value;
  }
  return {};
}

TrackScale ScaleFor(const Numbers& numbers, int width, int height) {
  TrackScale scale;
  scale.TimeEnd = numbers.Inputs.Time;
  scale.TimeScale = (width - 1) / (scale.TimeEnd - scale.TimeStart);
  scale.BearingMin = numbers.Min;
  scale.BearingMax = numbers.Max;
  scale.BearingOrigin = height - 1;
  scale.BearingScale = -(height - 1) / (scale.BearingMax - scale.BearingMin);
  return scale;
}

/// The line about numbers that cannot be drawn, or "".
std::string TroubleWith(const Numbers& numbers) {
  std::string trouble = TrackResponseTrouble(numbers.Inputs);
  if (!trouble.empty()) {
    return trouble;
  }
  if (std::fabs(numbers.Min) > kMostShown) {
    return Tr("Minimum must be within 1000000 degrees");
  }
  if (std::fabs(numbers.Max) > kMostShown) {
    return Tr("Maximum must be within 1000000 degrees");
  }
  if (numbers.Min == numbers.Max) {
    return Tr("Minimum and maximum must differ");
  }
  return {};
}

/// The grid lines at `from`, `from` + `step`, ... to `to`, each placed by `place`, of which a step moves the
/// line by `spacing` units at most. Where they stand closer than the units there is one on every unit.
template <class Place>
std::vector<int> GridLines(double from, double to, double step, double spacing, const Place& place) {
  std::vector<int> lines;
  if (from > to) {
    return lines;
  }
  if (std::fabs(spacing) > 1.0) {
    double at = from;
    while (at <= to) {
      lines.push_back(place(at));
      at += step;
    }
    return lines;
  }
  const int first = place(from);
  const int last = place(from + std::floor((to - from) / step) * step);
  const int way = first <= last ? 1 : -1;
  for (int line = first; line != last + way; line += way) {
    lines.push_back(line);
  }
  return lines;
}

/// Gathers the points of a trace and leaves out those that do not show.
class TraceGatherer {
 public:
  explicit TraceGatherer(std::vector<TrackPoint>& trace) : m_trace(trace) {}

  void Add(const TrackPoint& point) {
    if (m_count > 0 && point.Column != m_first.Column) {
      Finish();
    }
    if (m_count == 0) {
      m_first = point;
      m_least = m_largest = point.Row;
    }
    m_least = std::min(m_least, point.Row);
    m_largest = std::max(m_largest, point.Row);
    m_lastRow = point.Row;
    ++m_count;
  }

  /// Ends the column.
  void Finish() {
    m_trace.push_back(m_first);
    const auto [low, high] = std::minmax(m_first.Row, m_lastRow);
    if (m_least < low) {
      m_trace.push_back({m_first.Column, m_least});
    }
    if (m_largest > high) {
      m_trace.push_back({m_first.Column, m_largest});
    }
    if (m_count > 1) {
      m_trace.push_back({m_first.Column, m_lastRow});
    }
    m_count = 0;
  }

 private:
  std::vector<TrackPoint>& m_trace;
  TrackPoint m_first;
  int m_least = 0;
  int m_largest = 0;
  int m_lastRow = 0;
  int m_count = 0;
};

/// The part of a piece between the rows `top` and `bottom`.
std::optional<Stroke> Cut(Stroke stroke, double top, double bottom) {
  const auto [from, to] = stroke;
  const double rise = to.Y - from.Y;
  if (rise == 0.0) {
    return from.Y >= top && from.Y <= bottom ? std::optional(stroke) : std::nullopt;
  }
  const double atTop = (top - from.Y) / rise;
  const double atBottom = (bottom - from.Y) / rise;
  const double begin = std::max(std::min(atTop, atBottom), 0.0);
  const double end = std::min(std::max(atTop, atBottom), 1.0);
  if (begin > end) {
    return std::nullopt;
  }
  const double run = to.X - from.X;
  if (begin > 0.0) {
    stroke.From = {from.X + run * begin, from.Y + rise * begin};
  }
  if (end < 1.0) {
    stroke.To = {from.X + run * end, from.Y + rise * end};
  }
  return stroke;
}

}  // namespace

int TrackScale::TimeColumn(double time) const { return Nearest((time - TimeStart) * TimeScale); }

int TrackScale::BearingRow(double bearing) const {
  return Nearest((bearing - BearingMin) * BearingScale + BearingOrigin);
}

std::vector<Stroke> TrackPreview::Strokes() const {
  std::vector<Stroke> strokes;
  for (std::size_t i = 1; i < Trace.size(); ++i) {
    const TrackPoint& from = Trace[i - 1];
    const TrackPoint& to = Trace[i];
    const Stroke whole{{static_cast<double>(from.Column), static_cast<double>(from.Row)},
                       {static_cast<double>(to.Column), static_cast<double>(to.Row)}};
    if (const auto stroke = Cut(whole, -Height, 2.0 * Height)) {
      strokes.push_back(*stroke);
    }
  }
  return strokes;
}

std::string TrackPreview::ReadOut(double x, double y) const {
  if (Empty()) {
    return {};
  }
  const float time = ToSingle(x / Scale.TimeScale + Scale.TimeStart);
  const float bearing = ToSingle((y - Scale.BearingOrigin) / Scale.BearingScale + Scale.BearingMin);
  return Filled(Curves.empty() ? Tr("time=%1, bearing=%2") : Tr("time=%1, error=%2"),
                {ShortestText(time), ShortestText(bearing)});
}

std::string TrackPreview::FiguresText() const {
  if (!Figures) {
    return {};
  }
  const auto number = [](float value) { return FormatNumber(value, "0.00"); };
  const auto texts = TrackFigureTexts(*Figures, number);
  return Filled(Tr("This run: %1, %2, %3"), {texts[0], texts[1], texts[2]});
}

std::vector<int> TrackGridColumns(const TrackScale& scale, double step) {
  return GridLines(scale.TimeStart, scale.TimeEnd, step, step * scale.TimeScale,
                   [&scale](double time) { return scale.TimeColumn(time); });
}

std::vector<int> TrackGridRows(const TrackScale& scale, double from, double step) {
  return GridLines(from, scale.BearingMax, step, step * scale.BearingScale,
                   [&scale](double bearing) { return scale.BearingRow(bearing); });
}

TrackPreview TrackPreviewDraw(const TrackPreviewTexts& texts, int width, int height, RandomSource& random) {
  TrackPreview preview;
  preview.Width = width;
  preview.Height = height;
  if (width < 2 || height < 2) {
    return preview;
  }
  Numbers numbers;
  numbers.Inputs.Method = texts.Method;
  numbers.Inputs.Rate = texts.Rate;
  numbers.Inputs.Limits = texts.Limits;
  preview.Trouble = Read(texts, numbers);
  if (preview.Trouble.empty()) {
    preview.Trouble = TroubleWith(numbers);
  }
  if (!preview.Trouble.empty()) {
    return preview;
  }
  TrackScale scale = ScaleFor(numbers, width, height);
  if (!std::isfinite(scale.TimeScale)) {
    preview.Trouble = Tr("Time is too short");
    return preview;
  }
  if (!std::isfinite(scale.BearingScale)) {
    preview.Trouble = Tr("Minimum and maximum are too close");
    return preview;
  }
  const auto series = TrackResponseSeries(numbers.Inputs, random);
  if (!series) {
    preview.Trouble = Tr(kTrackResponseDiverges);
    return preview;
  }

  preview.Scale = scale;
  preview.Columns = TrackGridColumns(scale, kGridTime);
  preview.Rows = TrackGridRows(scale, scale.BearingMin, kGridBearing);
  for (TrackReference& reference : preview.References) {
    reference.Row = scale.BearingRow(reference.Bearing);
  }
  TraceGatherer trace(preview.Trace);
  trace.Add({0, scale.BearingRow(numbers.Inputs.Offset)});
  for (std::size_t pass = 0; pass < series->size(); ++pass) {
    trace.Add({scale.TimeColumn(static_cast<double>(pass) / texts.Rate), scale.BearingRow((*series)[pass])});
  }
  trace.Finish();
  preview.Figures = TrackFiguresOf(numbers.Inputs.Offset, *series, texts.Rate);
  return preview;
}

}  // namespace veerwatch
