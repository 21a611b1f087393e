// The desktop's style, with check boxes and round buttons that can be seen on any palette: Fusion draws their
// edges in a shade of the window, which is nothing on a dark one.
#pragma once

#include <QProxyStyle>

namespace veerwatch {

class OutlineStyleQt final : public QProxyStyle {
 public:
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

}  // namespace veerwatch
