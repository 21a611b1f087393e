// Message boxes, beep and foreground on the real desktop.
#pragma once

#include <QPointer>
#include <QWidget>
#include <string>

#include "platform/Dialogs.h"

namespace veerwatch {

class DialogsQt final : public Dialogs {
 public:
  /// The main window: parent of the message boxes, and the one that is brought to the foreground. Until it is
  /// set nothing is in the foreground.
  void Window(QWidget* window) { m_window = window; }

  /// Closing the box counts as No.
  bool AskYesNo(const std::string& title, const std::string& text) override;
  void Beep() override;
  void ToForeground() override;
  bool IsForeground() const override;

 private:
  QPointer<QWidget> m_window;
};

}  // namespace veerwatch
