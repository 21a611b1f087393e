// The plot `pctTrack` on the Tracking tab: the loop's response, or the methods on the recorded wind. The
// options dialog says when it is drawn and with what; under the mouse it tells time and bearing.
#pragma once

#include <QPen>
#include <QPixmap>
#include <QWidget>
#include <functional>

#include "options/TrackPreview.h"
#include "options/TrackWindPicture.h"

namespace veerwatch {

class TrackPreviewQt final : public QWidget {
 public:
  /// `random` gives the noise and outlives the plot.
  TrackPreviewQt(RandomSource& random, QWidget* parent);

  /// Computes and draws the plot for its present size. A plot unit is a pixel of the screen. What is exposed
  /// later shows the same picture.
  void Draw(const TrackPreviewTexts& texts);
  /// The same of the methods on the wind that was recorded.
  void Draw(const TrackWindInputs& inputs);
  /// Called when the plot has another size or stands on a screen of another scale, so that it is drawn again.
  void Resized(std::function<void()> handler) { m_resized = std::move(handler); }

  /// What is drawn now.
  const TrackPreview& Picture() const { return m_picture; }

  QSize sizeHint() const override { return {480, 240}; }
  QSize minimumSizeHint() const override { return {160, 80}; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  QSize Pixels() const { return {qRound(width() * m_ratio), qRound(height() * m_ratio)}; }
  int LegendHeight() const;
  void Show(TrackPreview picture);
  void Render();
  void RenderTrouble(QPainter& painter) const;
  void RenderGrid(QPainter& painter) const;
  void RenderTrace(QPainter& painter) const;
  void RenderCurves(QPainter& painter) const;
  void RenderLegend(QPainter& painter) const;
  QPen CurvePen(TrackMethod method) const;

  RandomSource& m_random;
  std::function<void()> m_resized;
  TrackPreview m_picture;
  QPixmap m_pixmap;
  qreal m_ratio = 1.0;  ///< of the picture, pixels of the screen per unit of the widget
};

}  // namespace veerwatch
