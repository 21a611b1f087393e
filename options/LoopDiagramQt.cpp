#include "options/LoopDiagramQt.h"

#include <QFontInfo>
#include <QPainter>
#include <algorithm>

#include "draw/DrawQt.h"
#include "platform/LanguageQt.h"

namespace veerwatch {

namespace {

constexpr qreal kWayWidth = 4.0 / 3.0;
constexpr qreal kEdgeWidth = 1.0;
constexpr qreal kCorner = 4.0;

constexpr int kTextFlags = static_cast<int>(Qt::AlignCenter) | static_cast<int>(Qt::TextWordWrap);

/// Letters are sized in these parts of a pixel, as a font is whole pixels high.
constexpr qreal kLetterParts = 15.0;

QRectF InLetterParts(const Box& box) {
  const QRectF place = ToQt(box);
  return {place.topLeft() * kLetterParts, place.size() * kLetterParts};
}

void Write(QPainter& painter, const PlacedText& text, int flags) {
  painter.save();
  painter.scale(1.0 / kLetterParts, 1.0 / kLetterParts);
  painter.drawText(InLetterParts(text.Place), flags, ToQt(text.Text));
  painter.restore();
}

}  // namespace

LoopDiagramQt::LoopDiagramQt(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("pctDiagram"));
  setAccessibleName(TrQ("Diagram of the control loop"));
  setAccessibleDescription(
      TrQ("The current less the desired wind angle goes to the tracking circuit, which scales it and "
          "accumulates it into the bearing. The overshoot circuit scales and accumulates the same difference "
          "and adds it in front of the tracking circuit."));
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

double LoopDiagramQt::Scale() const {
  return std::min(width() / m_diagram.Width, height() / m_diagram.Height);
}

QFont LoopDiagramQt::FittingLetters() const {
  constexpr qreal kBeside = 4.0 * kLetterParts;
  QFont letters = font();
  const auto fits = [&letters](const PlacedText& box) {
    const QFontMetricsF metrics(letters);
    const QRectF room = InLetterParts(box.Place).adjusted(kBeside, 0.0, -kBeside, 0.0);
    const QRectF needed = metrics.boundingRect(room, kTextFlags, ToQt(box.Text));
    return needed.width() <= room.width() && needed.height() <= room.height();
  };
  for (int size = qRound(m_diagram.TextSize * kLetterParts); size > 1; --size) {
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
  const QFont letters = FittingLetters();
  QFont titles = letters;
  titles.setWeight(QFont::DemiBold);
  painter.setFont(titles);
  for (const Box& circuit : m_diagram.Circuits) {
    tint.setAlphaF(0.14F);
    painter.setBrush(tint);
    tint.setAlphaF(0.6F);
    painter.setPen(QPen(tint, kEdgeWidth));
    painter.drawRoundedRect(ToQt(circuit), 2.0 * kCorner, 2.0 * kCorner);
  }
  painter.setPen(text);
  for (const PlacedText& title : m_diagram.Titles) {
    Write(painter, title, Qt::AlignCenter);
  }

  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(text, kWayWidth, Qt::DashLine, Qt::FlatCap));
  Draw(painter, m_diagram.WayBack);
  painter.setPen(QPen(text, kWayWidth, Qt::SolidLine, Qt::RoundCap));
  Draw(painter, m_diagram.Lines);
  for (const DiagramArrow& arrow : m_diagram.lnArrow) {
    painter.drawLine(ToQt(arrow.Way));
  }
  Draw(painter, m_heads);
  Draw(painter, m_diagram.Signs);

  painter.setPen(Qt::NoPen);
  painter.setBrush(text);
  Draw(painter, m_diagram.Parting);
  painter.setFont(letters);
  painter.setPen(QPen(text, kEdgeWidth));
  painter.setBrush(base);
  for (const Circle& junction : m_diagram.Junctions) {
    Draw(painter, junction);
  }
  for (const PlacedText& box : m_diagram.Boxes) {
    painter.drawRoundedRect(ToQt(box.Place), kCorner, kCorner);
    Write(painter, box, kTextFlags);
  }
}

}  // namespace veerwatch
