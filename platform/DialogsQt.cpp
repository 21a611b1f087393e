#include "platform/DialogsQt.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QMessageBox>
#include <QRegularExpression>
#include <QStandardPaths>

namespace veerwatch {

namespace {

QString Lines(const std::string& text) {
  return QString::fromStdString(text).replace(QLatin1Char('\r'), QLatin1Char('\n'));
}

}  // namespace

QWidget* DialogsQt::Parent() const {
  QWidget* active = QApplication::activeWindow();
  return active != nullptr ? active : m_window.data();
}

bool DialogsQt::AskYesNo(const std::string& title, const std::string& text) {
  QMessageBox box(QMessageBox::Information, QString::fromStdString(title), Lines(text),
                  QMessageBox::Yes | QMessageBox::No, m_window);
  box.setTextFormat(Qt::PlainText);
  box.setEscapeButton(QMessageBox::No);
  box.setDefaultButton(QMessageBox::No);
  return box.exec() == QMessageBox::Yes;
}

void DialogsQt::Inform(const std::string& title, const std::string& text) {
  QMessageBox box(QMessageBox::Information, QString::fromStdString(title), Lines(text), QMessageBox::Ok,
                  Parent());
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

std::optional<std::string> DialogsQt::SaveFile(const std::string& title, const std::string& filter,
                                               const std::string& proposed) {
  const QString kinds = QString::fromStdString(filter);
  QFileDialog dialog(Parent(), QString::fromStdString(title),
                     QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation), kinds);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.selectFile(QString::fromStdString(proposed));
  static const QRegularExpression ending(QStringLiteral("\\*\\.(\\w+)"));
  dialog.setDefaultSuffix(ending.match(kinds).captured(1));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
    return std::nullopt;
  }
  return dialog.selectedFiles().constFirst().toStdString();
}

std::optional<std::uint32_t> DialogsQt::PickColour(std::uint32_t bgr) {
  constexpr auto byte = [](std::uint32_t colour, unsigned shift) {
    return static_cast<int>(colour >> shift & 0xFFU);
  };
  const QColor picked = QColorDialog::getColor(QColor(byte(bgr, 0), byte(bgr, 8), byte(bgr, 16)), Parent());
  if (!picked.isValid()) {
    return std::nullopt;
  }
  return static_cast<std::uint32_t>(picked.red()) | static_cast<std::uint32_t>(picked.green()) << 8U |
         static_cast<std::uint32_t>(picked.blue()) << 16U;
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
