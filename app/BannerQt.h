// The line across the main window that says what is wrong, the worst first. Hidden while all is well; its
// room stays, so that no card moves.
#pragma once

#include <QAbstractButton>

#include "control/WatchNow.h"

namespace veerwatch {

class BannerQt final : public QAbstractButton {
 public:
  explicit BannerQt(QWidget* parent);

  /// Shows `text`, and how many `more` there are; "" hides the line.
  void Show(Level level, const QString& text, int more);

  QSize minimumSizeHint() const override { return {0, 0}; }
  QSize sizeHint() const override { return {0, 0}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Level m_level = Level::Note;
  QString m_first;
  QString m_more;
};

}  // namespace veerwatch
