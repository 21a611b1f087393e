// Message boxes, file and colour dialogs, beep and foreground on the real desktop.
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
  bool WarnYesNo(const std::string& title, const std::string& text) override;
  /// The message takes the place of the same one that is still open, and goes when its window is hidden.
  void Inform(const std::string& title, const std::string& text) override;
  std::optional<std::string> AskText(const std::string& title, const std::string& prompt,
                                     const std::string& preset) override;
  std::optional<std::string> OpenFile(const std::string& filter, const std::string& proposed) override;
  std::optional<std::string> SaveFile(const std::string& filter, const std::string& proposed) override;
  std::optional<std::string> ExportFile(const std::string& title, const std::string& filter,
                                        const std::string& proposed) override;
  std::optional<std::uint32_t> PickColour(std::uint32_t present) override;
  bool ShowPage(const std::string& file) override;
  void Beep() override;
  void ToForeground() override;
  bool IsForeground() const override;

 private:
  /// What a dialog belongs to: the window that the user works in, else the main window.
  QWidget* Parent() const;

  QPointer<QWidget> m_window;
};

}  // namespace veerwatch
