// Strokes the numbers of a StripChartPicture.
#pragma once

#include <QLineF>
#include <QList>
#include <QPainter>
#include <set>
#include <vector>

#include "draw/TextMeasureQt.h"
#include "history/StripChartColoursQt.h"
#include "history/StripChartPicture.h"
#include "history/TraceStroke.h"

namespace veerwatch {

class StripChartPainterQt {
 public:
  /// Everything outlives the painter; the painter is at work on a surface in the chart's pixels.
  StripChartPainterQt(QPainter& painter, const StripChartPicture& picture, const TextMeasureQt& measure,
                      const StripChartColoursQt& colours, const std::vector<QColor>& traceColours,
                      const std::vector<QColor>& groupColours)
      : m_painter(painter),
        m_picture(picture),
        m_measure(measure),
        m_colours(colours),
        m_traceColours(traceColours),
        m_groupColours(groupColours) {}

  /// What stays while samples arrive: panels, axes and all of the traces but their newest bucket.
  void PaintStill();
  /// The newest bucket of every trace, and the legend; the values of `faded` traces are in half tone.
  void PaintLive(const std::set<int>& faded);
  /// What stands under the mouse.
  void PaintReading(const ChartReading& reading);

 private:
  void PaintAxes(const ChartPanel& panel);
  void PaintLine(const ChartTrace& trace, const TraceLine& line);
  void PaintText(const PlacedText& text, const QColor& colour, bool bold = false);
  QColor TraceColour(int trace) const { return m_traceColours[static_cast<std::size_t>(trace)]; }

  QPainter& m_painter;
  const StripChartPicture& m_picture;
  const TextMeasureQt& m_measure;
  const StripChartColoursQt& m_colours;
  const std::vector<QColor>& m_traceColours;
  const std::vector<QColor>& m_groupColours;
  TraceStroke m_stroke;
  QList<QLineF> m_pieces;
};

}  // namespace veerwatch
