#include "platform/DialogsQt.h"

#include <QApplication>
#include <QDesktopServices>
#include <QUrl>

#include "platform/MessageQt.h"
#include "platform/WindowDialogsQt.h"

namespace veerwatch {

std::unique_ptr<WindowDialogs> DialogsQt::Of(QWidget& window) {
  return std::make_unique<WindowDialogsQt>(window);
}

void DialogsQt::Inform(const std::string& title, const std::string& text) {
  QWidget* active = QApplication::activeWindow();
  // A message is gone when the user has read it, so nothing belongs to it.
  while (dynamic_cast<MessageQt*>(active) != nullptr) {
    active = active->parentWidget();
  }
  MessageQt::Show(title, text, active != nullptr ? active : m_window.data());
}

bool DialogsQt::ShowPage(const std::string& file) {
  return QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(file)));
}

void DialogsQt::Beep() { QApplication::beep(); }

void DialogsQt::ToForeground() {
  if (!m_window) {
    return;
  }
  QWidget& front = FrontOf(*m_window);
  if (front.isActiveWindow()) {
    return;
  }
  m_window->setWindowState(m_window->windowState() & ~Qt::WindowMinimized);
  m_window->raise();
  BringToFront(front);
}

bool DialogsQt::IsForeground() const { return m_window && m_window->isActiveWindow(); }

}  // namespace veerwatch
