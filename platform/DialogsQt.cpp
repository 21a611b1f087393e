#include "platform/DialogsQt.h"

#include <QApplication>
#include <QMessageBox>

namespace veerwatch {

bool DialogsQt::AskYesNo(const std::string& title, const std::string& text) {
  QString lines = QString::fromStdString(text);
  lines.replace(QLatin1Char('\r'), QLatin1Char('\n'));
  QMessageBox box(QMessageBox::Information, QString::fromStdString(title), lines,
                  QMessageBox::Yes | QMessageBox::No, m_window);
  box.setTextFormat(Qt::PlainText);
  box.setEscapeButton(QMessageBox::No);
  box.setDefaultButton(QMessageBox::No);
  return box.exec() == QMessageBox::Yes;
}

void DialogsQt::Beep() { QApplication::beep(); }

void DialogsQt::ToForeground() {
  // Behind an open question the window is where it should be.
  if (!m_window || m_window->isActiveWindow() || QApplication::activeModalWidget() != nullptr) {
    return;
  }
  m_window->setWindowState(m_window->windowState() & ~Qt::WindowMinimized);
  m_window->raise();
  m_window->activateWindow();
}

bool DialogsQt::IsForeground() const { return m_window && m_window->isActiveWindow(); }

}  // namespace veerwatch
