// A box for one entry, as every window of the program has it: what is typed takes the place of what stands
// there, and the frame tells when it does not hold yet.
#pragma once

#include <QLineEdit>
#include <QString>

namespace veerwatch {

/// A click or Tab into the box selects all that stands in it. Only who has begun to type places the cursor by
/// a click: a figure that is typed never lands behind another one. A text that does not hold yet has an amber
/// frame.
class EntryLineQt : public QLineEdit {
 public:
  explicit EntryLineQt(QWidget* parent) : QLineEdit(parent) {}

  /// Shows what holds, in place of whatever was typed.
  void Show(const QString& text);
  /// What stands in the box holds from now on.
  void Take() { Show(text()); }
  /// Drops what was typed and not taken.
  void Forget() { Show(m_shown); }
  /// Whether the text was typed, or differs from what holds.
  bool Edited() const { return isModified() || text() != m_shown; }

 protected:
  /// Ctrl with an arrow belongs to the window, where it has a use for it.
  bool event(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QString m_shown;  ///< what holds
};

}  // namespace veerwatch
