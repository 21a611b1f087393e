#include "alarms/AlarmColoursQt.h"

#include <QFont>

#include "alarms/AlarmSign.h"
#include "draw/DrawQt.h"
#include "platform/ColoursQt.h"

namespace veerwatch {

namespace {

constexpr double kWideFrame = 0.1;
constexpr double kThinFrame = 0.05;
/// Height of the mark as a part of its room.
constexpr double kMarkShare = 0.72;

}  // namespace

AlarmColoursQt::AlarmColoursQt(const QPalette& palette, Level level) {
  const QColor window = palette.color(QPalette::Active, QPalette::Window);
  const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
  const bool night = IsNight(window);
  const bool dark = IsDark(window);
  switch (level) {
    case Level::Red:
      Fill = night ? QColor(0xff, 0x5a, 0x30) : QColor(0xb8, 0x14, 0x14);
      Text = night ? QColor(Qt::black) : QColor(Qt::white);
      Frame = night ? QColor(0xff, 0xa0, 0x80) : dark ? QColor(0xff, 0x8a, 0x80) : QColor(0x6a, 0x00, 0x00);
      FrameWidth = kWideFrame;
      break;
    case Level::Amber:
      Fill = night ? QColor(0x60, 0x0c, 0x06) : QColor(0xff, 0xb6, 0x2e);
      Text = night ? QColor(0xff, 0x9a, 0x78) : QColor(0x1c, 0x14, 0x04);
      Frame = night ? text : QColor(0x94, 0x54, 0x00);
      FrameWidth = kThinFrame;
      break;
    case Level::Note:
      Fill = night ? window : dark ? QColor(0x46, 0x4e, 0x56) : QColor(0x58, 0x60, 0x68);
      Text = night ? text : QColor(Qt::white);
      Frame = night ? Mixed(window, text, 0.4) : Fill;
      FrameWidth = kThinFrame;
      break;
  }
}

void PaintAlarmSign(QPainter& painter, Level level, const QRectF& area, const QColor& fill,
                    const QColor& mark) {
  const Box box = ToBox(area);
  painter.setPen(Qt::NoPen);
  painter.setBrush(fill);
  painter.drawPolygon(ToQt(AlarmSign(level, box)));
  const QRectF room = ToQt(AlarmSignMark(level, box));
  painter.setFont(Letters(painter.font(), room.height() * kMarkShare, QFont::Black));
  painter.setPen(mark);
  painter.drawText(room, Qt::AlignCenter, QString(QLatin1Char(AlarmSignLetter(level))));
}

AlarmSignQt::AlarmSignQt(int pixels, QWidget* parent) : QWidget(parent) { setFixedSize(pixels, pixels); }

void AlarmSignQt::Show(Level level) {
  m_level = level;
  update();
}

void AlarmSignQt::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const AlarmColoursQt colours(palette(), m_level);
  // A fill that is the window's would not be seen.
  const bool flat = colours.Fill == palette().color(QPalette::Window);
  PaintAlarmSign(painter, m_level, QRectF(rect()).adjusted(1.0, 1.0, -1.0, -1.0),
                 flat ? colours.Text : colours.Fill, flat ? colours.Fill : colours.Text);
}

}  // namespace veerwatch
