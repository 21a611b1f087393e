// The list of all that has to be said: since when, where its value comes from, what the program does about it
// and what the sailor can do. Opened by a click on the banner; it stays in front of the main window and
// blocks nothing. Whoever opens it shows it anew every second.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QString>
#include <QVBoxLayout>
#include <functional>
#include <vector>

#include "alarms/AlarmCentre.h"

namespace veerwatch {

class frmAlarms final : public QDialog {
 public:
  /// What its buttons do.
  struct Parts {
    std::function<void()> Acknowledge;
    std::function<void(bool mute)> Mute;
    std::function<void()> HideNotice;
  };

  frmAlarms(Parts parts, QWidget* main);

  /// One entry with its lines.
  struct Block {
    Level Rank = Level::Note;
    QString Text;
    QString Lines;
  };
  /// Shows the blocks, the worst first; `why` says what the latest sentence was made of, "" for nothing.
  void Show(const std::vector<Block>& blocks, const QString& why);
  void ShowButtons(bool toAcknowledge, bool muted, bool notices);

 private:
  class BlockQt;

  void MakeButtons(QVBoxLayout& all);

  Parts m_parts;
  QVBoxLayout* m_list;
  std::vector<BlockQt*> m_blocks;
  QLabel* lblNothing;
  QLabel* lblWhy;
  QPushButton* cmdAcknowledge;
  QPushButton* cmdMute;
  QPushButton* cmdNoticeHide;
  QPushButton* cmdClose;
};

}  // namespace veerwatch
