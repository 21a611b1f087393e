#include "options/LoopDiagramQt.h"

#include <QFontInfo>
#include <QPainter>
#include <algorithm>

namespace veerwatch {

namespace {

constexpr qreal kWayWidth = 20.0;   // [twips]
constexpr qreal kEdgeWidth = 15.0;  // [twips]
constexpr qreal kCorner = 60.0;     // [twips]

constexpr int kTextFlags = static_cast<int>(Qt::AlignCenter) | static_cast<int>(Qt::TextWordWrap);

QString Text(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QRectF In(const DiagramBox& box) { return {box.X, box.Y, box.Width, box.Height}; }

void Stroke(QPainter& painter, const std::vector<DiagramLine>& lines) {
  for (const DiagramLine& line : lines) {
    painter.drawLine(QPointF(line.X1, line.Y1), QPointF(line.X2, line.Y2));
  }
}

}  // namespace

LoopDiagramQt::LoopDiagramQt(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("pctDiagram"));
  setAccessibleName(QStringLiteral("Diagram of the control loop"));
  setAccessibleDescription(QStringLiteral(
      "The current less the desired wind angle goes to the tracking circuit, which scales it and "
      "accumulates it into the bearing. The overshoot circuit scales and accumulates the same difference "
      "and adds it in front of the tracking circuit."));
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

double LoopDiagramQt::Scale() const {
  return std::min(width() / m_diagram.Width, height() / m_diagram.Height);
}

QFont LoopDiagramQt::Letters() const {
  constexpr qreal kBeside = 60.0;
  QFont letters = font();
  const auto fits = [this, &letters](const DiagramBox& box) {
    const QFontMetricsF metrics(letters);
    const QRectF room = In(box).adjusted(kBeside, 0.0, -kBeside, 0.0);
    const QRectF needed = metrics.boundingRect(room, kTextFlags, Text(box.Text));
    return needed.width() <= room.width() && needed.height() <= room.height();
  };
  for (int size = qRound(m_diagram.TextSize); size > 1; --size) {
    letters.setPixelSize(size);
    if (std::all_of(m_diagram.Boxes.begin(), m_diagram.Boxes.end(), fits)) {
      break;
    }
  }
  return letters;
}

QSize LoopDiagramQt::SizeFor(qreal textHeight) const {
  const qreal scale = textHeight / m_diagram.TextSize;
  return QSizeF(m_diagram.Width * scale, m_diagram.Height * scale).toSize();
}

QSize LoopDiagramQt::sizeHint() const { return SizeFor(QFontInfo(font()).pixelSize()); }

QSize LoopDiagramQt::minimumSizeHint() const {
  constexpr qreal kLeastShare = 0.75;
  return SizeFor(QFontInfo(font()).pixelSize() * kLeastShare);
}

void LoopDiagramQt::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().color(QPalette::Base));
  const qreal scale = Scale();
  if (scale <= 0.0) {
    return;
  }
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate((width() - m_diagram.Width * scale) / 2.0, (height() - m_diagram.Height * scale) / 2.0);
  painter.scale(scale, scale);

  const QColor base = palette().color(QPalette::Base);
  const QColor text = palette().color(QPalette::Text);
  QColor tint = palette().color(QPalette::Highlight);
  const QFont letters = Letters();
  QFont titles = letters;
  titles.setWeight(QFont::DemiBold);
  painter.setFont(titles);
  for (const DiagramBox& circuit : m_diagram.Circuits) {
    tint.setAlphaF(0.14F);
    painter.setBrush(tint);
    tint.setAlphaF(0.6F);
    painter.setPen(QPen(tint, kEdgeWidth));
    painter.drawRoundedRect(In(circuit), 2.0 * kCorner, 2.0 * kCorner);
    painter.setPen(text);
    painter.drawText(QRectF(circuit.X, circuit.Y, circuit.Width, m_diagram.TitleHeight), Qt::AlignCenter,
                     Text(circuit.Text));
  }

  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(text, kWayWidth, Qt::DashLine, Qt::FlatCap));
  Stroke(painter, m_diagram.WayBack);
  painter.setPen(QPen(text, kWayWidth, Qt::SolidLine, Qt::RoundCap));
  Stroke(painter, m_diagram.Lines);
  Stroke(painter, m_diagram.lnArrow);
  Stroke(painter, m_heads);
  Stroke(painter, m_diagram.Signs);

  painter.setPen(Qt::NoPen);
  painter.setBrush(text);
  painter.drawEllipse(QPointF(m_diagram.Parting.X, m_diagram.Parting.Y), m_diagram.Parting.Radius,
                      m_diagram.Parting.Radius);
  painter.setFont(letters);
  painter.setPen(QPen(text, kEdgeWidth));
  painter.setBrush(base);
  for (const DiagramJunction& junction : m_diagram.Junctions) {
    painter.drawEllipse(QPointF(junction.X, junction.Y), junction.Radius, junction.Radius);
  }
  for (const DiagramBox& box : m_diagram.Boxes) {
    painter.drawRoundedRect(In(box), kCorner, kCorner);
    painter.drawText(In(box), kTextFlags, Text(box.Text));
  }
}

}  // namespace veerwatch
