// The readout of the cell that is near the mouse: its angle and speeds with their captions, on a plate beside
// the mouse. It comes with a press and where the mouse rests, stays while the mouse stays, and goes with it.
#pragma once

#include <QLabel>
#include <QTimer>
#include <functional>
#include <optional>

#include "polar/PolarModel.h"

namespace veerwatch {

class MouseReadoutQt final : public QLabel {
 public:
  explicit MouseReadoutQt(QWidget* plot);

  /// Finds the cell near a point of the plot [px].
  std::function<std::optional<PolarMouse>(QPointF)> Find;

  /// The left button was pressed, the mouse moved, and left.
  void Press(QPointF at);
  void Move(QPointF at);
  void Leave();
  /// The plot was drawn again, with text of `textHeight` [px]: what is read out follows it.
  void Follow(double textHeight);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  struct Texts;
  Texts Measure() const;
  void ReadOut(QPointF at);
  /// For a cell of the own polar or of the reference.
  void Colour(bool reference);
  /// Beside `at`, inside of the plot.
  void Place(QPointF at);

  QString m_captions;
  double m_textHeight = 14.0;  ///< [px]
  QPointF m_at;                ///< where it reads out
  QPointF m_mouse;
  QTimer m_rest;  ///< runs from a move until the mouse rests
};

}  // namespace veerwatch
