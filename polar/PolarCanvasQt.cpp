#include "polar/PolarCanvasQt.h"

#include <QEvent>
#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <utility>

#include "draw/DrawQt.h"

namespace veerwatch {

namespace {

// Widths of lines [px] at the design size of the plot [px]; thinner on a smaller one.
constexpr qreal kDesignSize = 700.0;
constexpr qreal kCurveWidth = 1.8;
constexpr qreal kWindWidth = 4.0;
constexpr qreal kHalo = 2.6;
constexpr qreal kLegWidth = 2.0;
constexpr qreal kTargetWidth = 2.2;
/// Shorter than other dashes, as at night lines differ in little else.
constexpr qreal kTargetDash = 4.0;
constexpr qreal kLegNowWidth = 3.6;
/// How strongly the minor curves of a dense table show.
constexpr qreal kMinorShare = 0.3;

QPen RoundPen(const QColor& colour, qreal width) {
  return {colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

/// A dashed pen whose dashes keep their length [px] whatever the width.
QPen DashedPen(const QColor& colour, qreal width, qreal size, qreal dash = 8.0) {
  constexpr qreal kGap = 5.0;
  QPen pen(colour, width, Qt::CustomDashLine, Qt::FlatCap, Qt::RoundJoin);
  pen.setDashPattern({dash * size / width, kGap * size / width});
  return pen;
}

void StrokeLines(QPainter& painter, const std::vector<Polyline>& lines, const QPen& pen) {
  painter.setPen(pen);
  for (const Polyline& line : lines) {
    painter.drawPolyline(ToQt(line));
  }
}

/// Text with an outline of the background, legible on any lines.
void HaloText(QPainter& painter, const QPointF& centre, const QString& text, const QColor& colour,
              const QColor& halo) {
  const QFontMetricsF metrics(painter.font());
  QPainterPath path;
  path.addText(0.0, 0.0, painter.font(), text);
  path.translate(centre - path.boundingRect().center());
  painter.strokePath(path, RoundPen(halo, metrics.height() * 0.22));
  painter.fillPath(path, colour);
}

}  // namespace

PolarCanvasQt::PolarCanvasQt(QWidget* parent) : QWidget(parent), m_colours(palette()), m_moves(m_colours) {
  setMouseTracking(true);
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void PolarCanvasQt::Show(const PolarStill& still, PolarMoving moving) {
  if (still.Version != m_still.Version) {
    m_still = still;
  }
  m_moving = std::move(moving);
  update();
}

void PolarCanvasQt::paintEvent(QPaintEvent* /*event*/) {
  const qreal ratio = devicePixelRatioF();
  const QSize pixels = (QSizeF(size()) * ratio).toSize();
  if (m_pictured != m_still.Version || m_picture.size() != pixels) {
    m_picture = QPixmap(pixels);
    m_picture.setDevicePixelRatio(ratio);
    QPainter painter(&m_picture);
    PaintStill(painter);
    m_pictured = m_still.Version;
  }
  QPainter painter(this);
  painter.drawPixmap(0, 0, m_picture);
  PaintMoving(painter);
}

void PolarCanvasQt::PaintStill(QPainter& painter) const {
  painter.fillRect(rect(), m_colours.Surface);
  if (m_still.Grid.Rings.empty()) {
    return;
  }
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setFont(font());
  PaintGrid(painter);
  PaintCurves(painter);
  PaintKeys(painter);
}

void PolarCanvasQt::PaintLabels(QPainter& painter) const {
  for (const PlotLabel& label : m_still.Grid.Labels) {
    const bool wind = label.Kind == PlotLabelKind::Wind;
    const QRectF box = ToQt(label.Place);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_colours.Disc);
    painter.drawRoundedRect(box, box.height() * 0.3, box.height() * 0.3);
    painter.setFont(Letters(font(), label.Height, wind ? QFont::Bold : QFont::Normal));
    painter.setPen(wind ? m_colours.Curve(m_still.SpeedColor) : m_colours.GridLabel);
    painter.drawText(box, static_cast<int>(Qt::AlignCenter) | Qt::TextDontClip, ToQt(label.Text));
  }
}

void PolarCanvasQt::PaintGrid(QPainter& painter) const {
  const QPointF centre(m_still.Geometry.CentreX, m_still.Geometry.CentreY);
  const qreal outer = m_still.Grid.Rings.back();
  painter.setPen(Qt::NoPen);
  painter.setBrush(m_colours.Disc);
  painter.drawEllipse(centre, outer, outer);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(m_colours.Grid, 1.0));
  for (const double radius : m_still.Grid.Rings) {
    // The outer ring stands wholly inside of the square.
    const qreal inside = radius == outer ? radius - 0.5 : radius;
    painter.drawEllipse(centre, inside, inside);
  }
  for (const auto* strokes : {&m_still.Grid.Spokes, &m_still.Grid.Ticks}) {
    for (const Stroke& stroke : *strokes) {
      painter.drawLine(ToQt(stroke));
    }
  }
}

void PolarCanvasQt::PaintCurves(QPainter& painter) const {
  const qreal size = std::clamp(m_still.Geometry.CentreX * 2.0 / kDesignSize, 0.65, 1.6);
  const QColor curve = m_colours.Curve(m_still.SpeedColor);
  QColor faint = curve;
  faint.setAlphaF(static_cast<float>(kMinorShare));
  painter.setBrush(Qt::NoBrush);
  for (const bool major : {false, true}) {
    for (const PolarCurve& polar : m_still.Main) {
      if (polar.Major == major) {
        StrokeLines(painter, polar.Lines, RoundPen(major ? curve : faint, major ? kCurveWidth * size : 1.0));
      }
    }
  }
  for (const PolarCurve& polar : m_still.Reference) {
    if (polar.Major) {
      StrokeLines(painter, polar.Lines, DashedPen(m_colours.Reference, kCurveWidth * size, size));
    }
  }
}

void PolarCanvasQt::PaintKeys(QPainter& painter) const {
  for (std::size_t i = 0; i < std::min(m_still.Legend.Keys.size(), m_still.Keys.size()); ++i) {
    const QRectF box = ToQt(m_still.Legend.Keys[i]);
    const bool right = m_still.Legend.Corners && i == 1;
    painter.setFont(Letters(font(), box.height() * 0.62));
    const qreal sample = box.height() * 1.5;
    const QFontMetricsF metrics(painter.font(), painter.device());
    const QString name =
        metrics.elidedText(ToQt(m_still.Keys[i]), Qt::ElideMiddle, box.width() - sample * 1.25);
    const qreal width = metrics.horizontalAdvance(name) + sample * 1.25;
    const qreal x = right ? box.right() - width : box.left();
    const qreal y = box.center().y();
    painter.setPen(i == 0 ? RoundPen(m_colours.Curve(m_still.SpeedColor), 2.2)
                          : DashedPen(m_colours.Reference, 2.2, 0.7));
    painter.drawLine(QPointF(x, y), QPointF(x + sample, y));
    painter.setPen(m_colours.Caption);
    painter.drawText(QRectF(x + sample * 1.25, box.top(), width, box.height()),
                     Qt::AlignLeft | Qt::AlignVCenter, name);
  }
}

void PolarCanvasQt::PaintMoving(QPainter& painter) const {
  if (m_still.Grid.Rings.empty()) {
    return;
  }
  painter.setRenderHint(QPainter::Antialiasing);
  const qreal size = std::clamp(m_still.Geometry.CentreX * 2.0 / kDesignSize, 0.5, 1.6);
  painter.setBrush(Qt::NoBrush);
  StrokeLines(painter, m_moving.Wind, RoundPen(m_moves.Disc, (kWindWidth + kHalo) * size));
  StrokeLines(painter, m_moving.Wind, RoundPen(m_moves.Wind, kWindWidth * size));
  StrokeLines(painter, m_moving.ReferenceWind, DashedPen(m_moves.Reference, kWindWidth * size, 1.3 * size));
  if (m_moving.Target) {
    painter.setPen(DashedPen(m_moves.Target, kTargetWidth * size, size, kTargetDash));
    painter.drawLine(ToQt(m_moving.Target->Line));
  }
  PaintLabels(painter);
  if (m_moving.Target) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_moves.Target);
    painter.drawPolygon(ToQt(Polyline{m_moving.Target->Diamond.begin(), m_moving.Target->Diamond.end()}));
  }
  PaintHold(painter, size);
  if (m_moving.Arrow) {
    PaintArrow(painter, size);
  }
  PaintLegs(painter, size);
  if (m_moving.Turn) {
    PaintTurn(painter, size);
  }
  if (m_moving.Boat) {
    PaintBoat(painter, size);
  }
  PaintLegend(painter);
}

void PolarCanvasQt::PaintHold(QPainter& painter, qreal size) const {
  painter.setPen(Qt::NoPen);
  if (!m_moving.Guard.empty()) {
    QColor band = m_moves.Caption;
    band.setAlphaF(0.45F);
    painter.setBrush(band);
    painter.drawPolygon(ToQt(m_moving.Guard));
  }
  if (m_moving.Held) {
    painter.setPen(RoundPen(m_moves.Disc, kHalo * size));
    painter.setBrush(m_moves.Foreground);
    painter.drawPolygon(ToQt(Polyline{m_moving.Held->begin(), m_moving.Held->end()}));
  }
}

void PolarCanvasQt::PaintTurn(QPainter& painter, qreal size) const {
  constexpr qreal kArcWidth = 3.0;
  const TurnArc& turn = *m_moving.Turn;
  painter.setBrush(Qt::NoBrush);
  for (const QPen& pen :
       {RoundPen(m_moves.Disc, (kArcWidth + kHalo) * size), RoundPen(m_moves.Foreground, kArcWidth * size)}) {
    painter.setPen(pen);
    painter.drawPolyline(ToQt(turn.Line));
    painter.drawLine(ToQt(turn.HeadLeft));
    painter.drawLine(ToQt(turn.HeadRight));
  }
  painter.setFont(Letters(font(), m_still.TextHeight * 1.3, QFont::Bold));
  HaloText(painter, ToQt(turn.Label), ToQt(m_moving.TurnText), m_moves.Foreground, m_moves.Disc);
}

void PolarCanvasQt::PaintArrow(QPainter& painter, qreal size) const {
  const WindArrow& arrow = *m_moving.Arrow;
  const QPointF neck = (ToQt(arrow.HeadLeft) + ToQt(arrow.HeadRight)) / 2.0;
  const QPolygonF head{ToQt(arrow.Shaft.To), ToQt(arrow.HeadLeft), ToQt(arrow.HeadRight)};
  painter.setPen(QPen(m_moves.Wind, 1.2 * size));
  painter.drawLine(ToQt(arrow.Line));
  painter.setPen(RoundPen(m_moves.Disc, (6.0 + kHalo) * size));
  painter.setBrush(Qt::NoBrush);
  painter.drawLine(ToQt(arrow.Shaft.From), neck);
  painter.drawPolygon(head);
  painter.setPen(QPen(m_moves.Wind, 6.0 * size, Qt::SolidLine, Qt::FlatCap));
  painter.drawLine(ToQt(arrow.Shaft.From), neck);
  painter.setPen(Qt::NoPen);
  painter.setBrush(m_moves.Wind);
  painter.drawPolygon(head);
}

void PolarCanvasQt::PaintBoat(QPainter& painter, qreal size) const {
  const BoatPoint& boat = *m_moving.Boat;
  painter.setFont(Letters(font(), 30.0 * size, QFont::Black));
  HaloText(painter, ToQt(boat.At), QStringLiteral("X"), m_moves.Boat, m_moves.Disc);
  if (boat.Beyond) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(m_moves.Boat, 3.0 * size));
    painter.drawEllipse(ToQt(boat.At), 22.0 * size, 22.0 * size);
  }
}

void PolarCanvasQt::PaintLegs(QPainter& painter, qreal size) const {
  painter.setBrush(Qt::NoBrush);
  for (const PolarLeg& leg : m_moving.Legs) {
    const qreal width = (leg.Now ? kLegNowWidth : kLegWidth) * size;
    const QColor colour = leg.PortTack ? m_moves.PortTack : m_moves.StarboardTack;
    const QPen halo = RoundPen(m_moves.Disc, width + kHalo * size);
    const QPen head = RoundPen(colour, width);
    const QPen line = m_moves.Dashed(leg.PortTack) ? DashedPen(colour, width, size) : head;
    for (const auto& [linePen, headPen] : {std::pair{halo, halo}, std::pair{line, head}}) {
      painter.setPen(linePen);
      painter.drawLine(ToQt(leg.Arrow.Line));
      painter.setPen(headPen);
      painter.drawLine(ToQt(leg.Arrow.HeadLeft));
      painter.drawLine(ToQt(leg.Arrow.HeadRight));
    }
  }
}

void PolarCanvasQt::PaintLegend(QPainter& painter) const {
  const PolarLegend& legend = m_still.Legend;
  const PolarReadout& readout = m_moving.Readout;
  const QFont captionFont = Letters(font(), legend.CaptionText);
  const QFont valueFont = Letters(font(), legend.ValueText, QFont::DemiBold);
  const QFont percentFont = Letters(font(), legend.ValueText * 0.62, QFont::DemiBold);
  const auto cell = [&](const LegendCell& place, const std::string& caption, const std::string& value,
                        const std::string& percent, const QColor& colour) {
    const Qt::Alignment side = place.Right ? Qt::AlignRight : Qt::AlignLeft;
    painter.setFont(captionFont);
    painter.setPen(m_moves.Caption);
    painter.drawText(ToQt(place.Caption), static_cast<int>(side | Qt::AlignVCenter) | Qt::TextDontClip,
                     ToQt(caption));
    painter.setFont(valueFont);
    painter.setPen(colour);
    const QRectF box = ToQt(place.Value);
    const QFontMetricsF metrics(valueFont);
    const qreal baseline = box.center().y() + metrics.capHeight() / 2.0;
    const QString number = ToQt(value);
    const QString share = ToQt(percent);
    const QFontMetricsF small(percentFont);
    const qreal gap = share.isEmpty() ? 0.0 : legend.ValueText * 0.25;
    const qreal width = metrics.horizontalAdvance(number) + gap + small.horizontalAdvance(share);
    const qreal x = place.Right ? box.right() - width : box.left();
    painter.drawText(QPointF(x, baseline), number);
    if (!share.isEmpty()) {
      painter.setFont(percentFont);
      painter.drawText(QPointF(x + metrics.horizontalAdvance(number) + gap, baseline), share);
    }
  };
  cell(legend.Boat, readout.BoatCaption, readout.BoatValue, readout.BoatPercent, m_moves.Boat);
  cell(legend.Reference, readout.ReferenceCaption, readout.ReferenceValue, {}, m_moves.Foreground);
  cell(legend.WindSpeed, readout.WindSpeedCaption, readout.WindSpeedValue, {}, m_moves.Wind);
  cell(legend.WindAngle, readout.WindAngleCaption, readout.WindAngleValue, {}, m_moves.Wind);
}

void PolarCanvasQt::Fade(bool fade) {
  if (m_faded != fade) {
    m_faded = fade;
    m_moves = fade ? m_colours.Faded() : m_colours;
    update();
  }
}

void PolarCanvasQt::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  if (Resized) {
    Resized();
  }
}

void PolarCanvasQt::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && Pressed) {
    Pressed(event->position());
  }
}

void PolarCanvasQt::mouseMoveEvent(QMouseEvent* event) {
  if (Moved) {
    Moved(event->position());
  }
}

void PolarCanvasQt::leaveEvent(QEvent* event) {
  QWidget::leaveEvent(event);
  if (Left) {
    Left();
  }
}

void PolarCanvasQt::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) {
    m_colours = PolarPaletteQt(palette());
    m_moves = m_faded ? m_colours.Faded() : m_colours;
    m_pictured = 0;
    update();
  }
}

}  // namespace veerwatch
