#include "platform/OutlineStyleQt.h"

#include <QPainter>
#include <QStyleOption>

#include "platform/ColoursQt.h"

namespace veerwatch {

void OutlineStyleQt::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                   const QWidget* widget) const {
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  const bool round = element == PE_IndicatorRadioButton;
  // The one with the focus has an edge that can be seen.
  const bool entry = element == PE_FrameLineEdit && IsDark(option->palette.color(QPalette::Window)) &&
                     !option->state.testFlag(State_HasFocus);
  if ((!round && !entry && element != PE_IndicatorCheckBox) ||
      baseStyle()->name() != QLatin1String("fusion")) {
    return;
  }
  constexpr qreal kShare = 0.4;
  // 3 is what a sign needs without which a control is not seen (WCAG 2, 1.4.11); a round line covers its
  // pixels in part.
  constexpr double kEdgeContrast = 4.0;
  const QPalette& palette = option->palette;
  painter->save();
  painter->setPen(
      Legible(palette.color(QPalette::Base), palette.color(QPalette::Text), kShare, kEdgeContrast));
  painter->setBrush(Qt::NoBrush);
  // The middle of a line of one pixel.
  constexpr qreal kHalf = 0.5;
  const QRectF edge = QRectF(option->rect).adjusted(kHalf, kHalf, -kHalf, -kHalf);
  painter->setRenderHint(QPainter::Antialiasing);
  if (round) {
    painter->drawEllipse(edge);
  } else {
    painter->drawRect(edge);
  }
  painter->restore();
}

}  // namespace veerwatch
