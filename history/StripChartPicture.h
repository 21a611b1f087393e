// The whole of a strip chart as numbers: where panels, scales, ticks, traces and the legend stand and what
// they say. Composed from the recorded data, the user's choices and the size of the widget, which merely
// strokes it. All places [px] count from the chart's upper left corner, Y downwards.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "draw/Shapes.h"
#include "draw/TextMeasure.h"
#include "history/ChartLegend.h"
#include "history/StripChartData.h"
#include "history/TraceGroups.h"
#include "history/TraceLine.h"
#include "history/TraceSettings.h"

namespace veerwatch {

/// From where the chart is looked at.
struct ChartView {
  double Width = 0.0;           ///< [px]
  double Height = 0.0;          ///< [px]
  std::int64_t EndSlot = 0;     ///< the slot after the last one that is wanted
  std::int32_t UtcOffset = 0;   ///< local time ahead of UTC [s]
  double LeastTextHeight = 11;  ///< [px]
};

/// What a chart is a picture of.
struct ChartSubject {
  const StripChartData& Data;
  const std::vector<std::string>& Titles;  ///< of the groups
  const std::vector<TraceGroup>& Groups;   ///< of the traces
  const TraceSettings& Settings;
};

/// A value axis beside a panel.
struct ChartAxis {
  ValueScale Scale;
  int ScaleIndex = 0;
  PlacedText Title;
  PlacedText Units;  ///< after the title; none for angles, whose labels have the degree sign
  std::vector<PlacedText> Labels;
  std::vector<double> TickY;
};

struct ChartTrace {
  int Trace = 0;  ///< counts from 0
  TraceFrame Frame;
  std::vector<TraceBucket> Buckets;
  TraceLine Past;  ///< everything in front of the newest bucket of the picture
  TraceLine Live;  ///< the newest bucket, and the line that leads to it
};

/// A value group.
struct ChartPanel {
  int Group = 0;
  Box Plot;
  std::vector<ChartAxis> Axes;  ///< one or two: at the left of the plot, at its right
  std::vector<ChartTrace> Traces;
};

struct ChartTimeTick {
  double X = 0.0;
  PlacedText Label;  ///< without a text where there is no room for one
};

/// A mark: a line through all plots, and what it says beside it.
struct ChartMark {
  double X = 0.0;
  PlacedText Text;  ///< without a text where there is no room for one
};

/// What a point of the chart shows.
struct ChartReading {
  struct Value {
    int Trace = 0;
    double Y = 0.0;
    /// Name, value and units; lowest and highest where they differ, or "all round".
    std::string Text;
  };

  std::size_t Panel = 0;
  double X = 0.0;
  std::string Time;           ///< clock time with seconds
  std::vector<Value> Values;  ///< of the panel's traces at that time, as in the legend
  std::size_t Nearest = 0;    ///< the one nearest to the point
};

struct StripChartPicture {
  double TextHeight = 0.0;
  Box PlotArea;  ///< from the first panel's plot to the last one's
  Box TimeArea;  ///< the clock times
  std::int64_t EndSlot = 0;
  double SlotWidth = 1.0;
  std::int64_t PerBucket = 1;
  std::int64_t LiveSlot = 0;  ///< where the newest bucket begins; what is in front of it does not change
  std::vector<ChartPanel> Panels;
  std::vector<ChartTimeTick> TimeTicks;
  std::vector<ChartMark> Marks;
  std::vector<double> Jumps;  ///< X where the wall clock jumped
  std::vector<ChartLegendEntry> Legend;
  std::int32_t UtcOffset = 0;

  /// Composes everything anew. Panels without a trace that shows are left out.
  void Compose(const ChartSubject& subject, const ChartView& view, const TextMeasure& measure);

  /// What stands at a point of a plot; nothing outside of them, or where no trace of the panel has a value.
  std::optional<ChartReading> ReadAt(const ChartSubject& subject, double x, double y) const;

  /// The slots that a way [px] along the time axis is.
  double SlotsIn(double pixels) const { return pixels / SlotWidth; }

 private:
  void LayOut(const ChartSubject& subject, const ChartView& view, const TextMeasure& measure);
  /// The panels that have something to show, their buffers kept.
  void ChoosePanels(const ChartSubject& subject);
  bool ShowsDirections(const ChartSubject& subject) const;
  /// Panels from `top` to `bottom`, each with its part of the column `legend` beside it.
  void StackPanels(double top, double bottom, const Box& legend);
  void PlaceLegendCells(const ChartPanel& panel, const Box& box);
  void ComposePanel(const ChartSubject& subject, ChartPanel& panel, const TextMeasure& measure) const;
  void GatherTraces(const ChartSubject& subject, ChartPanel& panel) const;
  void PlaceTitle(const ChartPanel& panel, const TextMeasure& measure, ChartAxis& axis) const;
  void PlaceTicks(const ChartPanel& panel, const TextMeasure& measure, ChartAxis& axis) const;
  void ComposeTime(const StripChartData& data, const TextMeasure& measure);
  void ComposeMarks(const ChartSubject& subject, const TextMeasure& measure);
};

/// The slots that a span [s] is, at least 1.
std::int64_t SlotsOfSpan(const StripChartData& data, int span);

}  // namespace veerwatch
