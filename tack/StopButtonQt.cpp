#include "tack/StopButtonQt.h"

#include <QPainter>

#include "alarms/AlarmColoursQt.h"
#include "platform/LanguageQt.h"

namespace veerwatch {

StopButtonQt::StopButtonQt(int pixels, QWidget* parent) : QPushButton(TrQ("Stop"), parent) {
  setObjectName(QStringLiteral("cmdStop"));
  setToolTip(TrQ("End the turn here and leave the pilot where it is (Escape)"));
  setAutoDefault(false);
  setFocusPolicy(Qt::NoFocus);
  QFont letters = font();
  letters.setPixelSize(pixels);
  letters.setBold(true);
  setFont(letters);
}

void StopButtonQt::paintEvent(QPaintEvent* /*event*/) {
  constexpr qreal kRadius = 8.0;
  constexpr qreal kPressed = 5.0;
  constexpr qreal kFrame = 2.0;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const AlarmColoursQt colours(palette(), Level::Red);
  const qreal frame = isDown() ? kPressed : kFrame;
  painter.setPen(QPen(colours.Frame, frame));
  painter.setBrush(colours.Fill);
  const qreal edge = frame / 2.0;
  painter.drawRoundedRect(QRectF(rect()).adjusted(edge, edge, -edge, -edge), kRadius, kRadius);
  painter.setPen(colours.Text);
  painter.drawText(rect(), Qt::AlignCenter, text());
}

}  // namespace veerwatch
