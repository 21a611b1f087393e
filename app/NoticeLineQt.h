// The line under the mode bar that shows the notices; hidden while there are none.
#pragma once

#include <QFrame>

#include "alarms/AlarmCentre.h"
#include "app/PanelControlsQt.h"

class QToolButton;

namespace veerwatch {

class NoticeLineQt final : public QFrame {
 public:
  explicit NoticeLineQt(QWidget* parent);

  /// What `kind` has to say now; "" when nothing more.
  void Set(AlarmKind kind, const std::string& text);
  void Theme(const ThemeQt& theme);
  /// Height of the text [px].
  void TextHeight(int pixels);

 private:
  void ShowLine();

  AlarmCentre m_notices;
  CaptionQt* m_lblNotice;
  QToolButton* m_cmdNoticeHide;
};

}  // namespace veerwatch
