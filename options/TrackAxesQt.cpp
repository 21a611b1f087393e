#include "options/TrackAxesQt.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>
#include <cmath>

#include "options/TrackAxis.h"

namespace veerwatch {

namespace {

constexpr int kGap = 4;  // [px] between a number and the plot
constexpr const char* kWidestBearing = "-00.00";
constexpr const char* kWidestTime = "00000";

}  // namespace

TrackAxesQt::TrackAxesQt(TrackPreviewQt& plot, QWidget* parent) : QWidget(parent), m_plot(plot) {
  auto* room = new QHBoxLayout(this);
  room->addWidget(&plot);
  MakeRoom();
}

void TrackAxesQt::MakeRoom() {
  const QFontMetrics metrics(font());
  layout()->setContentsMargins(
      metrics.horizontalAdvance(QLatin1String(kWidestBearing)) + kGap, metrics.height() / 2,
      metrics.horizontalAdvance(QLatin1String(kWidestTime)) / 2, metrics.height() + kGap);
}

void TrackAxesQt::paintEvent(QPaintEvent* /*event*/) {
  const TrackPreview& picture = m_plot.Picture();
  if (picture.Empty()) {
    return;
  }
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::WindowText));
  const QFontMetrics metrics(font());
  const QRect plot = m_plot.geometry();
  const TrackScale& scale = picture.Scale;
  const double ratio = static_cast<double>(picture.Width) / plot.width();  // plot units per pixel

  const double line = 1.5 * metrics.height() * ratio;
  for (const TrackNumber& number :
       TrackNumbers(scale.BearingMin, scale.BearingMax, line / std::fabs(scale.BearingScale))) {
    const int y = plot.top() + qRound(scale.BearingRow(number.Value) / ratio);
    const QRect place(0, y - metrics.height() / 2, plot.left() - kGap, metrics.height());
    painter.drawText(place, static_cast<int>(Qt::AlignRight | Qt::AlignVCenter) | Qt::TextSingleLine,
                     metrics.elidedText(QString::fromStdString(number.Text), Qt::ElideRight, place.width()));
  }
  const int width = metrics.horizontalAdvance(QLatin1String(kWidestTime));
  for (const TrackNumber& number :
       TrackNumbers(scale.TimeStart, scale.TimeEnd, 1.5 * width * ratio / scale.TimeScale)) {
    const int x = plot.left() + qRound(scale.TimeColumn(number.Value) / ratio);
    const QRect place(x - width, plot.bottom() + 1 + kGap, 2 * width, metrics.height());
    painter.drawText(place, static_cast<int>(Qt::AlignCenter) | Qt::TextSingleLine,
                     QString::fromStdString(number.Text));
  }
}

void TrackAxesQt::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange) {
    MakeRoom();
  }
}

}  // namespace veerwatch
