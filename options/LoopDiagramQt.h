// The picture `pctDiagram` of the control loop on the Diagram tab, scaled to the room it gets.
#pragma once

#include <QWidget>

#include "options/LoopDiagram.h"

namespace veerwatch {

class LoopDiagramQt final : public QWidget {
 public:
  explicit LoopDiagramQt(QWidget* parent);

  /// How much larger than the diagram its picture is: as large as fits.
  double Scale() const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  /// The largest letters, up to the diagram's own, with which every text fits into its box, sized in
  /// parts of a pixel.
  QFont FittingLetters() const;
  /// The size at which the diagram's letters are `textHeight` pixels high.
  QSize SizeFor(qreal textHeight) const;

  const LoopDiagram m_diagram = LoopDiagramMade();
  const std::vector<Stroke> m_heads = ArrowHeads(m_diagram.lnArrow);
};

}  // namespace veerwatch
