#include "options/TrackPreviewQt.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <QToolTip>
#include <cstdlib>

#include "draw/DrawQt.h"
#include "platform/ColoursQt.h"

namespace veerwatch {

namespace {

constexpr qreal kTraceWidth = 1.4;

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
  setAccessibleName(QStringLiteral("Tracking Responce"));
  setAttribute(Qt::WA_OpaquePaintEvent);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setMouseTracking(true);
}

void TrackPreviewQt::Draw(const TrackPreviewTexts& texts) {
  m_ratio = devicePixelRatioF();
  m_picture = TrackPreviewDraw(texts, qRound(width() * m_ratio), qRound(height() * m_ratio), m_random);
  setAccessibleDescription(QString::fromStdString(m_picture.Trouble));
  setToolTip(QString());
  Render();
  update();
}

void TrackPreviewQt::Render() {
  const QSize pixels(qRound(width() * m_ratio), qRound(height() * m_ratio));
  if (m_pixmap.size() != pixels) {
    m_pixmap = QPixmap(pixels);
  }
  m_pixmap.setDevicePixelRatio(1.0);
  m_pixmap.fill(palette().color(QPalette::Base));
  QPainter painter(&m_pixmap);
  const QColor foreground = palette().color(QPalette::Text);
  if (m_picture.Trace.empty()) {
    painter.scale(m_ratio, m_ratio);
    painter.setFont(font());
    painter.setPen(foreground);
    painter.drawText(rect(), static_cast<int>(Qt::AlignCenter) | Qt::TextWordWrap,
                     QString::fromStdString(m_picture.Trouble));
    painter.end();
    m_pixmap.setDevicePixelRatio(m_ratio);
    return;
  }

  const int line = qMax(1, qRound(m_ratio));
  const auto fillLine = [&painter, line](int x, int y, int width, int height, const QColor& colour) {
    const int before = (line - 1) / 2;
    const bool upright = width == 0;
    painter.fillRect(upright ? QRect(x - before, y, line, height) : QRect(x, y - before, width, line),
                     colour);
  };
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

  QVector<QLineF> strokes;
  for (const Stroke& stroke : m_picture.Strokes()) {
    strokes.append(ToQt(stroke));
  }
  // With seconds closer than the columns there is nothing to smooth, and much to draw.
  const bool smooth = m_picture.Scale.TimeScale >= 1.0;
  painter.setRenderHint(QPainter::Antialiasing, smooth);
  painter.translate(0.5, 0.5);
  painter.setPen(QPen(foreground, smooth ? kTraceWidth * m_ratio : line, Qt::SolidLine, Qt::RoundCap));
  painter.drawLines(strokes);
  painter.end();
  m_pixmap.setDevicePixelRatio(m_ratio);
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
