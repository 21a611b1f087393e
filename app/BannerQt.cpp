#include "app/BannerQt.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>

#include "alarms/AlarmColoursQt.h"
#include "platform/LanguageQt.h"

namespace veerwatch {

namespace {

constexpr qreal kRadius = 8.0;
/// Height of the sign, and the gap around it, as parts of the height.
constexpr qreal kSignShare = 0.66;
constexpr qreal kGapShare = 0.28;

}  // namespace

BannerQt::BannerQt(QWidget* parent) : QAbstractButton(parent) {
  setObjectName(QStringLiteral("Banner"));
  setToolTip(TrQ("What it is, what the program does, what you can do; a click acknowledges it"));
  setCursor(Qt::PointingHandCursor);
  setFocusPolicy(Qt::TabFocus);
  hide();
}

void BannerQt::Show(Level level, const QString& text, int more) {
  const QString behind = more > 0 ? TrQ(" +%1 more").arg(more) : QString();
  if (level == m_level && text == m_first && behind == m_more) {
    return;
  }
  m_level = level;
  m_first = text;
  m_more = behind;
  setText(text + behind);
  setAccessibleName(this->text());
  setVisible(!text.isEmpty());
  update();
}

void BannerQt::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const AlarmColoursQt colours(palette(), m_level);
  const qreal frame = std::max(1.0, height() * colours.FrameWidth) * (hasFocus() ? 2.0 : 1.0);
  painter.setPen(QPen(colours.Frame, frame));
  painter.setBrush(colours.Fill);
  painter.drawRoundedRect(QRectF(rect()).adjusted(frame / 2.0, frame / 2.0, -frame / 2.0, -frame / 2.0),
                          kRadius, kRadius);

  const qreal sign = height() * kSignShare;
  const qreal gap = height() * kGapShare;
  PaintAlarmSign(painter, m_level, {gap, (height() - sign) / 2.0, sign, sign}, colours.Text, colours.Fill);

  QFont letters = font();
  letters.setBold(true);
  painter.setFont(letters);
  painter.setPen(colours.Text);
  const QFontMetricsF metrics(letters);
  const qreal left = 2.0 * gap + sign;
  const qreal behind = metrics.horizontalAdvance(m_more);
  const qreal room = std::max(0.0, width() - left - gap - behind);
  const QString first = metrics.elidedText(m_first, Qt::ElideRight, room);
  const qreal base = (height() + metrics.capHeight()) / 2.0;
  painter.drawText(QPointF(left, base), first);
  painter.drawText(QPointF(left + metrics.horizontalAdvance(first), base), m_more);
}

}  // namespace veerwatch
