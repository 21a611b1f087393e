#include "options/TrackPreviewQt.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <QToolTip>
#include <cstdlib>
#include <utility>

#include "draw/DrawQt.h"
#include "platform/ColoursQt.h"
#include "platform/LanguageQt.h"

namespace veerwatch {

namespace {

constexpr qreal kTraceWidth = 1.4;
constexpr qreal kMainWidth = 1.8;
constexpr int kLegendMargin = 4;  // [px]

/// The desktop's colour of grey text; where it hardly differs from the foreground, a shade between this and
/// the background.
QColor GridColour(const QPalette& palette) {
  constexpr int kLeastDifference = 60;
  constexpr qreal kShare = 0.22;
  const QColor grey = palette.color(QPalette::Disabled, QPalette::WindowText);
  const QColor text = palette.color(QPalette::Text);
  if (std::abs(qGray(grey.rgb()) - qGray(text.rgb())) >= kLeastDifference) {
    return grey;
  }
  return Mixed(palette.color(QPalette::Base), text, kShare);
}

}  // namespace

TrackPreviewQt::TrackPreviewQt(RandomSource& random, QWidget* parent) : QWidget(parent), m_random(random) {
  setObjectName(QStringLiteral("pctTrack"));
  setAccessibleName(TrQ("Tracking Responce"));
  setAttribute(Qt::WA_OpaquePaintEvent);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setMouseTracking(true);
}

void TrackPreviewQt::Draw(const TrackPreviewTexts& texts) {
  m_ratio = devicePixelRatioF();
  Show(TrackPreviewDraw(texts, Pixels().width(), Pixels().height(), m_random));
}

void TrackPreviewQt::Draw(const TrackWindInputs& inputs) {
  m_ratio = devicePixelRatioF();
  Show(TrackWindDraw(inputs, Pixels().width(), Pixels().height(), qRound(LegendHeight() * m_ratio)));
}

int TrackPreviewQt::LegendHeight() const {
  constexpr int kMethods = 3;
  return kMethods * fontMetrics().height() + 2 * kLegendMargin;
}

void TrackPreviewQt::Show(TrackPreview picture) {
  m_picture = std::move(picture);
  QString description = QString::fromStdString(m_picture.Trouble);
  for (const TrackCurve& curve : m_picture.Curves) {
    description += QString::fromStdString(curve.Text) + QLatin1Char('\n');
  }
  setAccessibleDescription(description);
  setToolTip(QString());
  Render();
  update();
}

void TrackPreviewQt::Render() {
  if (m_pixmap.size() != Pixels()) {
    m_pixmap = QPixmap(Pixels());
  }
  m_pixmap.setDevicePixelRatio(1.0);
  m_pixmap.fill(palette().color(QPalette::Base));
  QPainter painter(&m_pixmap);
  if (m_picture.Empty()) {
    RenderTrouble(painter);
  } else {
    RenderGrid(painter);
    if (m_picture.Curves.empty()) {
      RenderTrace(painter);
    } else {
      RenderCurves(painter);
      RenderLegend(painter);
    }
  }
  painter.end();
  m_pixmap.setDevicePixelRatio(m_ratio);
}

void TrackPreviewQt::RenderTrouble(QPainter& painter) const {
  painter.scale(m_ratio, m_ratio);
  painter.setFont(font());
  painter.setPen(palette().color(QPalette::Text));
  painter.drawText(rect(), static_cast<int>(Qt::AlignCenter) | Qt::TextWordWrap,
                   QString::fromStdString(m_picture.Trouble));
}

void TrackPreviewQt::RenderGrid(QPainter& painter) const {
  const int line = qMax(1, qRound(m_ratio));
  const auto fillLine = [&painter, line](int x, int y, int width, int height, const QColor& colour) {
    const int before = (line - 1) / 2;
    const bool upright = width == 0;
    painter.fillRect(upright ? QRect(x - before, y, line, height) : QRect(x, y - before, width, line),
                     colour);
  };
  const QSize pixels = Pixels();
  const QColor grid = GridColour(palette());
  for (const int column : m_picture.Columns) {
    fillLine(column, 0, 0, pixels.height(), grid);
  }
  for (const int row : m_picture.Rows) {
    fillLine(0, row, pixels.width(), 0, grid);
  }
  const QColor window = palette().color(QPalette::Active, QPalette::Window);
  for (const TrackReference& reference : m_picture.References) {
    fillLine(0, reference.Row, pixels.width(), 0, ShadeFor(window, FromRgb(reference.Rgb)));
  }
}

void TrackPreviewQt::RenderTrace(QPainter& painter) const {
  QVector<QLineF> strokes;
  for (const Stroke& stroke : m_picture.Strokes()) {
    strokes.append(ToQt(stroke));
  }
  // With seconds closer than the columns there is nothing to smooth, and much to draw.
  const bool smooth = m_picture.Scale.TimeScale >= 1.0;
  painter.setRenderHint(QPainter::Antialiasing, smooth);
  painter.translate(0.5, 0.5);
  painter.setPen(QPen(palette().color(QPalette::Text),
                      smooth ? kTraceWidth * m_ratio : qMax(1, qRound(m_ratio)), Qt::SolidLine,
                      Qt::RoundCap));
  painter.drawLines(strokes);
}

QPen TrackPreviewQt::CurvePen(TrackMethod method) const {
  const QColor window = palette().color(QPalette::Active, QPalette::Window);
  const bool dark = IsDark(palette().color(QPalette::Base));
  switch (method) {
    case TrackMethod::Sentence:
      return QPen(ShadeFor(window, dark ? QColor(0xF0, 0x9A, 0x4A) : QColor(0xB8, 0x4A, 0x00)), kTraceWidth,
                  Qt::DotLine);
    case TrackMethod::Clock:
      return QPen(ShadeFor(window, dark ? QColor(0x6A, 0xB8, 0xF0) : QColor(0x00, 0x5A, 0xA8)), kTraceWidth,
                  Qt::DashLine);
    case TrackMethod::Direction:
      break;
  }
  return QPen(palette().color(QPalette::Text), kMainWidth, Qt::SolidLine);
}

void TrackPreviewQt::RenderCurves(QPainter& painter) const {
  painter.setClipRect(QRect(QPoint(0, m_picture.LegendHeight), Pixels()));
  painter.setRenderHint(QPainter::Antialiasing);
  for (const TrackCurve& curve : m_picture.Curves) {
    QPen pen = CurvePen(curve.Method);
    pen.setWidthF(pen.widthF() * m_ratio);
    painter.setPen(pen);
    painter.drawPolyline(ToQt(curve.Line));
  }
  painter.setClipping(false);
}

void TrackPreviewQt::RenderLegend(QPainter& painter) const {
  constexpr int kSample = 34;  // [px]
  painter.scale(m_ratio, m_ratio);
  painter.fillRect(QRect(0, 0, width(), LegendHeight() - 1), palette().color(QPalette::Base));
  painter.setFont(font());
  const int line = fontMetrics().height();
  int top = kLegendMargin;
  for (const TrackCurve& curve : m_picture.Curves) {
    painter.setPen(CurvePen(curve.Method));
    painter.drawLine(QPointF(kLegendMargin, top + line / 2.0),
                     QPointF(kLegendMargin + kSample, top + line / 2.0));
    painter.setPen(palette().color(QPalette::Text));
    const QRect place(2 * kLegendMargin + kSample, top, width() - 3 * kLegendMargin - kSample, line);
    painter.drawText(
        place, static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter) | Qt::TextSingleLine,
        fontMetrics().elidedText(QString::fromStdString(curve.Text), Qt::ElideRight, place.width()));
    top += line;
  }
}

void TrackPreviewQt::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  if (m_pixmap.isNull()) {
    painter.fillRect(rect(), palette().color(QPalette::Base));
    return;
  }
  painter.drawPixmap(0, 0, m_pixmap);
  if (devicePixelRatioF() != m_ratio && m_resized) {
    QTimer::singleShot(0, this, [this] { m_resized(); });
  }
}

void TrackPreviewQt::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  if (m_resized) {
    m_resized();
  }
}

void TrackPreviewQt::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (!m_pixmap.isNull() && (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange ||
                             event->type() == QEvent::EnabledChange)) {
    Render();
    update();
  }
}

void TrackPreviewQt::mouseMoveEvent(QMouseEvent* event) {
  const QPointF at = event->position() * m_ratio;
  const QString text = QString::fromStdString(m_picture.ReadOut(at.x(), at.y()));
  setToolTip(text);
  QToolTip::showText(event->globalPosition().toPoint(), text, this);
}

}  // namespace veerwatch
