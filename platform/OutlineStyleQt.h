// The desktop's style, with check boxes, round buttons and, in a dark window, entry boxes whose edges can be
// seen: Fusion draws them in a shade of the window, which is nothing on a dark one.
#pragma once

#include <QProxyStyle>

namespace veerwatch {

class OutlineStyleQt final : public QProxyStyle {
 public:
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

}  // namespace veerwatch
