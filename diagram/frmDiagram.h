// The block diagram: instruments, computer and autopilot as a picture whose boxes are buttons and light up
// with what the system does. Made by app/OtherWindowsQt on first use, afterwards shown and hidden.
#pragma once

#include <QLabel>
#include <QPushButton>
#include <QWidget>
#include <utility>
#include <vector>

#include "diagram/BlockDiagram.h"
#include "diagram/DiagramObserver.h"
#include "diagram/DiagramState.h"

namespace veerwatch {

class frmDiagram final : public QWidget {
 public:
  /// Makes the window, hidden. `tells` outlives it.
  explicit frmDiagram(DiagramObserver& tells);

  /// Lights the boxes; nothing is drawn while nothing changes.
  void ShowState(const DiagramState& state);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void MakeControls();
  void ConnectButtons();
  /// How much larger than the diagram the window shows it: as large as fits.
  double Scale() const;
  QRectF Placed(const Box& area) const;
  void LayOut();
  void Dress();
  void Light(QPushButton& button, QLabel* label, const DiagramBoxState& state);
  QPushButton& Button(const char* name) const;
  DiagramAnchor Anchor(const QWidget& button) const;

  DiagramObserver& m_tells;
  const BlockDiagram m_diagram = BlockDiagramMade();
  const std::vector<Stroke> m_heads = ArrowHeads(m_diagram.lnArrowRight);
  std::vector<std::pair<QWidget*, Box>> m_placed;
  DiagramState m_state;
};

}  // namespace veerwatch
