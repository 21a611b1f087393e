// What the levels look like, in the banner and in the list: colours from the palette that the window wears,
// and the sign.
#pragma once

#include <QColor>
#include <QPainter>
#include <QPalette>
#include <QRectF>
#include <QWidget>

#include "control/WatchNow.h"

namespace veerwatch {

/// The banner of a level. At night the levels differ in brightness, and by the width of the frame.
struct AlarmColoursQt {
  QColor Fill;
  QColor Text;
  QColor Frame;
  double FrameWidth = 0.0;  ///< as a share of the banner's height

  AlarmColoursQt(const QPalette& palette, Level level);
};

/// The sign of a level in `area`, with its outline filled by `fill` and the mark in `mark`.
void PaintAlarmSign(QPainter& painter, Level level, const QRectF& area, const QColor& fill,
                    const QColor& mark);

/// The sign as a control.
class AlarmSignQt final : public QWidget {
 public:
  AlarmSignQt(int pixels, QWidget* parent);
  void Show(Level level);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Level m_level = Level::Note;
};

}  // namespace veerwatch
