#include "history/StripChartPainterQt.h"

#include <QLineF>
#include <QPen>
#include <algorithm>

#include "draw/DrawQt.h"
#include "platform/Language.h"

namespace veerwatch {

namespace {

constexpr int kBarAlpha = 70;

/// A panel's plot, and what a dot on its edge takes beyond it.
QRectF Clip(const ChartPanel& panel) {
  constexpr double kBeyond = ChartDot::kDiameter / 2.0;
  return ToQt(panel.Plot).adjusted(-kBeyond, -kBeyond, kBeyond, kBeyond);
}

}  // namespace

void StripChartPainterQt::PaintText(const PlacedText& text, const QColor& colour, bool bold) {
  if (text.Text.empty()) {
    return;
  }
  QFont font = m_measure.At(text.Height);
  font.setBold(bold);
  m_painter.setFont(font);
  m_painter.setPen(colour);
  m_painter.drawText(ToQt(text.Place),
                     static_cast<int>(ToQt(text.Align) | Qt::AlignVCenter) | Qt::TextDontClip,
                     ToQt(text.Text));
}

void StripChartPainterQt::PaintAxes(const ChartPanel& panel) {
  const QRectF plot = ToQt(panel.Plot);
  m_painter.setRenderHint(QPainter::Antialiasing, false);
  const auto group = static_cast<std::size_t>(panel.Group);
  m_painter.fillRect(plot,
                     m_colours.Plot(group < m_groupColours.size() ? m_groupColours[group] : m_colours.Back));
  m_painter.setPen(QPen(m_colours.Grid, 1.0));
  for (const ChartTimeTick& tick : m_picture.TimeTicks) {
    m_painter.drawLine(QLineF(tick.X, plot.top(), tick.X, plot.bottom()));
  }
  for (const double y : panel.Axes.front().TickY) {
    m_painter.drawLine(QLineF(plot.left(), y, plot.right(), y));
  }
  m_painter.setPen(QPen(m_colours.Dimmed, 1.0, Qt::DashLine));
  for (const double x : m_picture.Jumps) {
    m_painter.drawLine(QLineF(x, plot.top(), x, plot.bottom()));
  }
  m_painter.setPen(QPen(m_colours.Edge, 1.0));
  m_painter.setBrush(Qt::NoBrush);
  m_painter.drawRect(plot);
  for (const ChartAxis& axis : panel.Axes) {
    const bool right = &axis != &panel.Axes.front();
    PaintText(axis.Title, right ? m_colours.Caption : m_colours.Text, !right);
    PaintText(axis.Units, m_colours.Dimmed);
    for (const PlacedText& label : axis.Labels) {
      PaintText(label, m_colours.Caption);
    }
    if (right) {
      m_painter.setPen(QPen(m_colours.Edge, 1.0));
      for (const double y : axis.TickY) {
        m_painter.drawLine(QLineF(plot.right(), y, plot.right() + 0.25 * m_picture.TextHeight, y));
      }
    }
  }
}

void StripChartPainterQt::PaintLine(const ChartTrace& trace, const TraceLine& line) {
  const QColor colour = TraceColour(trace.Trace);
  QColor bars = colour;
  bars.setAlpha(kBarAlpha);
  m_painter.setRenderHint(QPainter::Antialiasing, false);
  for (const Box& bar : line.Bars) {
    m_painter.fillRect(ToQt(bar), bars);
  }
  m_painter.setRenderHint(QPainter::Antialiasing, true);
  const double width = m_picture.PerBucket > 1 ? 1.0 : std::max(1.4, 0.115 * m_picture.TextHeight);
  m_painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::FlatCap));
  for (std::size_t i = 0; i < line.Starts.size(); ++i) {
    const auto points = std::span(line.Points).subspan(line.Starts[i], line.End(i) - line.Starts[i]);
    m_pieces.clear();
    for (const Stroke& piece : m_stroke.Pieces(points, width)) {
      m_pieces.append(ToQt(piece));
    }
    m_painter.drawLines(m_pieces);
  }
  m_painter.setPen(Qt::NoPen);
  m_painter.setBrush(colour);
  for (const ChartDot& dot : line.Dots) {
    m_painter.drawEllipse(ToQt(dot.Middle), dot.Diameter / 2.0, dot.Diameter / 2.0);
  }
}

void StripChartPainterQt::PaintStill() {
  m_painter.fillRect(m_painter.viewport(), m_colours.Back);
  for (const ChartPanel& panel : m_picture.Panels) {
    PaintAxes(panel);
    m_painter.save();
    m_painter.setClipRect(Clip(panel));
    for (const ChartTrace& trace : panel.Traces) {
      PaintLine(trace, trace.Past);
    }
    m_painter.restore();
  }
  for (const ChartTimeTick& tick : m_picture.TimeTicks) {
    PaintText(tick.Label, m_colours.Caption);
  }
  m_painter.setPen(QPen(m_colours.Dimmed, 1.0, Qt::DashLine));
  for (const ChartMark& mark : m_picture.Marks) {
    m_painter.drawLine(
        QLineF(mark.X, m_picture.PlotArea.Y, mark.X, m_picture.PlotArea.Y + m_picture.PlotArea.Height));
  }
  for (const ChartMark& mark : m_picture.Marks) {
    PaintText(mark.Text, m_colours.Text);
  }
  if (m_picture.Panels.empty()) {
    PlacedText none;
    none.Text = Tr("No trace is shown");
    none.Height = m_picture.TextHeight;
    none.Align = PlacedText::Side::Middle;
    none.Place = m_picture.PlotArea;
    PaintText(none, m_colours.Dimmed);
  }
}

void StripChartPainterQt::PaintLive(const std::set<int>& faded) {
  for (const ChartPanel& panel : m_picture.Panels) {
    m_painter.save();
    m_painter.setClipRect(Clip(panel));
    for (const ChartTrace& trace : panel.Traces) {
      PaintLine(trace, trace.Live);
    }
    m_painter.restore();
  }
  m_painter.setRenderHint(QPainter::Antialiasing, true);
  for (const ChartLegendEntry& entry : m_picture.Legend) {
    const QColor colour = TraceColour(entry.Trace);
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(colour);
    const double round = entry.Swatch.Width / 2.0;
    m_painter.drawRoundedRect(ToQt(entry.Swatch), round, round);
    PaintText(entry.Name, m_colours.Caption);
    PaintText(entry.Value, entry.Old || faded.contains(entry.Trace) ? m_colours.Dimmed : colour, true);
    PaintText(entry.Units, m_colours.Dimmed);
  }
}

void StripChartPainterQt::PaintReading(const ChartReading& reading) {
  const double text = m_picture.TextHeight;
  const ChartPanel& panel = m_picture.Panels[reading.Panel];
  m_painter.setRenderHint(QPainter::Antialiasing, true);
  m_painter.setPen(QPen(m_colours.Caption, 1.0));
  m_painter.drawLine(QLineF(reading.X, m_picture.PlotArea.Y, reading.X, m_picture.PlotArea.Bottom()));
  double width = m_measure.BoldWidth(reading.Time, text);
  for (const ChartReading::Value& value : reading.Values) {
    m_painter.setPen(QPen(m_colours.Back, 1.5));
    m_painter.setBrush(TraceColour(value.Trace));
    m_painter.drawEllipse(QPointF(reading.X, value.Y), 0.32 * text, 0.32 * text);
    width = std::max(width, m_measure.BoldWidth(value.Text, text));
  }
  const double row = 1.35 * text;
  const double pad = 0.6 * text;
  const double swatch = 0.9 * text;
  QRectF box(0.0, 0.0, width + swatch + 2.0 * pad,
             row * static_cast<double>(reading.Values.size() + 1) + pad);
  const bool leftHalf = reading.X < m_picture.PlotArea.X + m_picture.PlotArea.Width / 2.0;
  const double right = m_picture.PlotArea.Right() + 0.5 * text;
  box.moveLeft(leftHalf ? reading.X + text : reading.X - text - box.width());
  box.moveLeft(std::max(2.0, std::min(box.left(), std::max(right, box.width() + 4.0) - box.width())));
  box.moveTop(
      std::max(2.0, std::min(panel.Plot.Y + 0.4 * text, m_picture.TimeArea.Bottom() - box.height() - 2.0)));
  QColor fill = m_colours.Back;
  fill.setAlpha(238);
  m_painter.setPen(QPen(m_colours.Edge, 1.0));
  m_painter.setBrush(fill);
  m_painter.drawRoundedRect(box, 0.4 * text, 0.4 * text);
  PlacedText line;
  line.Height = text;
  line.Text = reading.Time;
  line.Place = {box.left() + pad, box.top() + pad / 2.0, width, row};
  PaintText(line, m_colours.Text, true);
  for (std::size_t i = 0; i < reading.Values.size(); ++i) {
    const ChartReading::Value& value = reading.Values[i];
    line.Place.Y += row;
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(TraceColour(value.Trace));
    m_painter.drawEllipse(QPointF(box.left() + pad + 0.3 * text, line.Place.Y + row / 2.0), 0.3 * text,
                          0.3 * text);
    PlacedText named = line;
    named.Text = value.Text;
    named.Place.X += swatch;
    PaintText(named, i == reading.Nearest ? m_colours.Text : m_colours.Caption, i == reading.Nearest);
  }
}

}  // namespace veerwatch
