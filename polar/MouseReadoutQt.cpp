#include "polar/MouseReadoutQt.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QStringList>
#include <algorithm>
#include <cmath>

#include "draw/DrawQt.h"
#include "polar/PolarPaletteQt.h"

namespace veerwatch {

namespace {

/// The readout goes when the mouse is so far from where it was read [px].
constexpr double kLeash = 10.0;
constexpr int kGap = 12;
/// Time without a move after which the mouse rests [ms].
constexpr int kRest = 200;

// In heights of the plot's labels, and for the margins in heights of the values.
constexpr double kValueText = 1.45;
constexpr double kCaptionText = 1.0;
constexpr double kMargin = 0.4;
constexpr double kLine = 1.25;
constexpr float kEdge = 0.35F;

double Widest(const QFontMetricsF& metrics, const QStringList& lines) {
  double widest = 0.0;
  for (const QString& line : lines) {
    widest = std::max(widest, metrics.horizontalAdvance(line));
  }
  return std::ceil(widest);
}

}  // namespace

/// The lines with their letters and widths [px].
struct MouseReadoutQt::Texts {
  QStringList Captions;
  QStringList Values;
  QFont CaptionFont;
  QFont ValueFont;
  double CaptionWidth = 0.0;
  double ValueWidth = 0.0;
  double Line = 0.0;  ///< from one line to the next
  double Margin = 0.0;
};

MouseReadoutQt::MouseReadoutQt(QWidget* plot) : QLabel(plot) {
  setObjectName(QStringLiteral("lblMouse"));
  setTextFormat(Qt::PlainText);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  hide();
  m_rest.setSingleShot(true);
  m_rest.setInterval(kRest);
  connect(&m_rest, &QTimer::timeout, this, [this] { ReadOut(m_mouse); });
}

void MouseReadoutQt::Press(QPointF at) { ReadOut(at); }

void MouseReadoutQt::Move(QPointF at) {
  m_mouse = at;
  if (isVisible() && std::hypot(at.x() - m_at.x(), at.y() - m_at.y()) <= kLeash) {
    return;
  }
  hide();
  m_rest.start();
}

void MouseReadoutQt::Leave() {
  m_rest.stop();
  hide();
}

void MouseReadoutQt::Follow(double textHeight) {
  m_textHeight = textHeight;
  if (isVisible()) {
    ReadOut(m_at);
  }
}

void MouseReadoutQt::ReadOut(QPointF at) {
  m_rest.stop();
  m_at = at;
  const auto found = Find(at);
  if (found) {
    Colour(found->Reference);
    m_captions = QString::fromStdString(found->Captions);
    setText(QString::fromStdString(found->Text));
    Place(at);
  }
  setVisible(found.has_value());
}

void MouseReadoutQt::Colour(bool reference) {
  const PolarPaletteQt plot(window()->palette());
  QPalette colours = palette();
  colours.setColor(QPalette::Window, plot.MousePlate);
  colours.setColor(QPalette::WindowText, reference ? plot.MouseReference : plot.MouseMain);
  setPalette(colours);
}

void MouseReadoutQt::Place(QPointF at) {
  const QSize plot = parentWidget()->size();
  const QSize size = sizeHint();
  const int x = static_cast<int>(at.x()) + kGap;
  const int y = static_cast<int>(at.y()) - size.height() / 2;
  const bool left = x + size.width() > plot.width();
  setGeometry(
      {{left ? x - 2 * kGap - size.width() : x, std::clamp(y, 0, std::max(0, plot.height() - size.height()))},
       size});
}

MouseReadoutQt::Texts MouseReadoutQt::Measure() const {
  Texts texts;
  texts.Captions = m_captions.split(QLatin1Char('\n'));
  texts.Values = text().split(QLatin1Char('\n'));
  texts.CaptionFont = Letters(font(), m_textHeight * kCaptionText, QFont::Normal);
  texts.ValueFont = Letters(font(), m_textHeight * kValueText, QFont::DemiBold);
  texts.CaptionWidth = Widest(QFontMetricsF(texts.CaptionFont), texts.Captions);
  texts.ValueWidth = Widest(QFontMetricsF(texts.ValueFont), texts.Values);
  texts.Line = m_textHeight * kValueText * kLine;
  texts.Margin = m_textHeight * kValueText * kMargin;
  return texts;
}

QSize MouseReadoutQt::sizeHint() const {
  const Texts texts = Measure();
  return {static_cast<int>(std::ceil(texts.CaptionWidth + texts.ValueWidth + 3.0 * texts.Margin)),
          static_cast<int>(std::ceil(static_cast<double>(texts.Values.size()) * texts.Line + texts.Margin))};
}

void MouseReadoutQt::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  QColor edge = palette().color(QPalette::WindowText);
  edge.setAlphaF(kEdge);
  painter.setPen(edge);
  painter.setBrush(palette().color(QPalette::Window));
  painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
  painter.setPen(palette().color(QPalette::WindowText));
  const Texts texts = Measure();
  const double right = width() - texts.Margin;
  for (qsizetype i = 0; i < std::min(texts.Captions.size(), texts.Values.size()); ++i) {
    const double y = texts.Margin / 2.0 + static_cast<double>(i) * texts.Line;
    painter.setFont(texts.CaptionFont);
    painter.drawText(QRectF(texts.Margin, y, texts.CaptionWidth, texts.Line),
                     static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter) | Qt::TextDontClip,
                     texts.Captions[i]);
    painter.setFont(texts.ValueFont);
    painter.drawText(QRectF(right - texts.ValueWidth, y, texts.ValueWidth, texts.Line),
                     static_cast<int>(Qt::AlignRight | Qt::AlignVCenter) | Qt::TextDontClip, texts.Values[i]);
  }
}

}  // namespace veerwatch
