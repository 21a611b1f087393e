// The questions of one window on real widgets, each modal to this window alone.
#pragma once

#include <QDialog>
#include <QEvent>
#include <QMessageBox>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <string>

#include "platform/Dialogs.h"

namespace veerwatch {

/// What stands in front of `window`: the last of the modal dialogs on it, else the window.
QWidget& FrontOf(QWidget& window);

/// Shows `window` in front of all others, ready to be worked in.
void BringToFront(QWidget& window);

/// The window is taken from the screen, by the program and not by the desktop.
inline bool IsHidden(const QEvent& event) { return event.type() == QEvent::Hide && !event.spontaneous(); }

class WindowDialogsQt final : public QObject, public WindowDialogs {
 public:
  explicit WindowDialogsQt(QWidget& window);
  ~WindowDialogsQt() override;

  void AskYesNo(const std::string& title, const std::string& text, YesNo answer) override;
  void WarnYesNo(const std::string& title, const std::string& text, YesNo answer) override;
  void Inform(const std::string& title, const std::string& text) override;
  void AskText(const std::string& title, const std::string& prompt, const std::string& preset,
               Text answer) override;
  void OpenFile(const std::string& filter, const std::string& proposed, Text answer) override;
  void SaveFile(const std::string& filter, const std::string& proposed, Text answer) override;
  void ExportFile(const std::string& title, const std::string& filter, const std::string& proposed,
                  Text answer) override;
  void PickColour(std::uint32_t present, Colour answer) override;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  /// True while a question is open, which then comes to the front.
  bool Busy();
  /// Opens `dialog`; `told` is given its result when the user has closed it.
  void Open(QDialog* dialog, std::function<void(int result)> told);
  void Withdraw();
  void Ask(QMessageBox::Icon sign, const std::string& title, const std::string& text, YesNo answer);

  QPointer<QWidget> m_window;
  QPointer<QDialog> m_open;
};

}  // namespace veerwatch
