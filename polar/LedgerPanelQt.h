// The panel of the course ledger on the plot: figures, rows, and the buttons that turn the boat. It is moved
// by dragging and never leaves its parent.
#pragma once

#include <QFrame>
#include <functional>
#include <optional>

#include "polar/CourseLedger.h"
#include "polar/LedgerLayout.h"
#include "polar/PolarPaletteQt.h"
#include "polar/TurnButtonQt.h"

namespace veerwatch {

class LedgerPanelQt final : public QFrame {
 public:
  explicit LedgerPanelQt(QWidget* parent);

  /// What to show, the next time that the parent is painted; somebody else makes the panel visible.
  void Show(const LedgerContent& content);
  /// In half tone: the course is no more of now.
  void Fade(bool fade);
  /// Fits the size to the parent's and to what is shown.
  void Fit();
  /// Puts it where it has been dragged to, or where nobody minds it. `legendInCorners` is where the plot's
  /// legend stands.
  void Place(bool legendInCorners);

  const LedgerContent& Content() const { return m_content; }
  const LedgerLayout& Layout() const { return m_layout; }
  /// Nobody has dragged it.
  bool AtHome() const { return !m_dragged; }

  std::function<void()> Steer;             ///< cmdSteer was clicked
  std::function<void()> Tack;              ///< cmdTack was clicked
  std::function<void(QPoint)> MenuWanted;  ///< at a point of the screen

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  /// What the size depends on.
  struct Shape {
    QSize Parent;
    QFont Letters;
    LedgerTexts Texts;
    bool operator==(const Shape&) const = default;
  };
  LedgerTexts Measure(double height, bool rows) const;
  /// Moves the upper left corner as near to `at` as the parent allows.
  void MoveTo(const Point& at);
  void Dress();
  QColor ColourOf(LedgerSubject subject) const;
  void PaintFigures(QPainter& painter) const;
  void PaintRows(QPainter& painter) const;

  PolarPaletteQt m_colours;
  bool m_faded = false;
  LedgerContent m_content;
  Shape m_shape;
  LedgerLayout m_layout;
  TurnButtonQt* cmdSteer;
  TurnButtonQt* cmdTack;
  std::optional<QPoint> m_grab;  ///< where the panel is held
  bool m_dragged = false;
};

}  // namespace veerwatch
