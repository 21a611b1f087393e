// Messages, beep and foreground on the real desktop; WindowDialogsQt asks the questions.
#pragma once

#include <QPointer>
#include <QWidget>
#include <memory>
#include <string>

#include "platform/Dialogs.h"

namespace veerwatch {

class DialogsQt final : public Dialogs {
 public:
  /// The main window: the one that is brought to the foreground, and that messages belong to while no window
  /// is active. Until it is set nothing is in the foreground.
  void Window(QWidget* window) { m_window = window; }

  std::unique_ptr<WindowDialogs> Of(QWidget& window) override;
  void Inform(const std::string& title, const std::string& text) override;
  bool ShowPage(const std::string& file) override;
  void Beep() override;
  void ToForeground() override;
  bool IsForeground() const override;

 private:
  QPointer<QWidget> m_window;
};

}  // namespace veerwatch
