// The surface of the polar plot: strokes what PolarScene worked out. The still part is kept as a picture, so
// that an update paints little more than the moving part.
#pragma once

#include <QPixmap>
#include <QWidget>
#include <functional>

#include "polar/PolarPaletteQt.h"
#include "polar/PolarScene.h"

namespace veerwatch {

class PolarCanvasQt final : public QWidget {
 public:
  explicit PolarCanvasQt(QWidget* parent);

  /// What to show; copies both and repaints.
  void Show(const PolarStill& still, PolarMoving moving);
  /// What moves is in half tone, or again as ever.
  void Fade(bool fade);

  /// Called with every press of the left button and every move of the mouse [px].
  std::function<void(QPointF)> Pressed;
  std::function<void(QPointF)> Moved;
  /// Called when the mouse leaves.
  std::function<void()> Left;
  /// Called when the size is another.
  std::function<void()> Resized;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void PaintStill(QPainter& painter) const;
  void PaintGrid(QPainter& painter) const;
  void PaintCurves(QPainter& painter) const;
  /// On plates, above every curve.
  void PaintLabels(QPainter& painter) const;
  void PaintKeys(QPainter& painter) const;
  void PaintMoving(QPainter& painter) const;
  void PaintHold(QPainter& painter, qreal size) const;
  void PaintTurn(QPainter& painter, qreal size) const;
  void PaintArrow(QPainter& painter, qreal size) const;
  void PaintBoat(QPainter& painter, qreal size) const;
  void PaintLegs(QPainter& painter, qreal size) const;
  void PaintLegend(QPainter& painter) const;

  PolarPaletteQt m_colours;  ///< of what stands still
  PolarPaletteQt m_moves;    ///< of what moves
  bool m_faded = false;
  PolarStill m_still;
  PolarMoving m_moving;
  QPixmap m_picture;             ///< the still part
  std::uint64_t m_pictured = 0;  ///< version of the still part in the picture, 0 for none
};

}  // namespace veerwatch
