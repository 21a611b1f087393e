#include "platform/DialogsQt.h"

#include <QAbstractButton>
#include <QApplication>
#include <QColorDialog>
#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QUrl>
#include <algorithm>
#include <string_view>

#include "platform/VisibleText.h"

namespace veerwatch {

namespace {

/// `text` with line breaks for its carriage returns and pictures for all other control characters.
QString Lines(std::string text) {
  std::replace(text.begin(), text.end(), '\r', '\n');
  QString lines;
  for (std::size_t at = 0; at <= text.size();) {
    const std::size_t end = std::min(text.find('\n', at), text.size());
    lines += (at > 0 ? QStringLiteral("\n") : QString()) +
             QString::fromStdString(VisibleText(std::string_view(text).substr(at, end - at)));
    at = end + 1;
  }
  return lines;
}

/// A message that is read while the program goes on. It goes with the window that it belongs to.
class MessageQt final : public QMessageBox {
 public:
  MessageQt(const QString& title, const QString& text, QWidget* parent)
      : QMessageBox(Warning, title, text, Ok, parent) {
    setTextFormat(Qt::PlainText);
    button(Ok)->setObjectName(QStringLiteral("cmdMessageOk"));
    setAttribute(Qt::WA_DeleteOnClose);
    setModal(false);
    if (parent != nullptr) {
      parent->installEventFilter(this);
    }
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched == parentWidget() && event->type() == QEvent::Hide && !event->spontaneous()) {
      close();
    }
    return QMessageBox::eventFilter(watched, event);
  }
};

bool YesNo(QMessageBox::Icon sign, const std::string& title, const std::string& text, QWidget* parent) {
  QMessageBox box(sign, QString::fromStdString(title), Lines(text), QMessageBox::Yes | QMessageBox::No,
                  parent);
  box.setTextFormat(Qt::PlainText);
  box.setEscapeButton(QMessageBox::No);
  box.setDefaultButton(QMessageBox::No);
  return box.exec() == QMessageBox::Yes;
}

/// Runs a file dialog that starts at `proposed`.
std::optional<std::string> ChooseFile(QFileDialog& dialog, const std::string& filter,
                                      const std::string& proposed) {
  const QStringList parts = QString::fromStdString(filter).split(QLatin1Char('|'));
  const QString& pattern = parts.last();
  const QString& description = parts.first();
  dialog.setNameFilter(description.contains(pattern) ? description
                                                     : QStringLiteral("%1 (%2)").arg(description, pattern));
  dialog.setDefaultSuffix(QFileInfo(pattern).suffix());
  const QFileInfo start(QString::fromStdString(proposed));
  dialog.setDirectory(start.absolutePath());
  dialog.selectFile(start.fileName());
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
    return std::nullopt;
  }
  return dialog.selectedFiles().first().toStdString();
}

constexpr int kByte = 0xFF;

}  // namespace

QWidget* DialogsQt::Parent() const {
  QWidget* active = QApplication::activeWindow();
  // A message is gone when the user has read it, so nothing belongs to it.
  while (dynamic_cast<MessageQt*>(active) != nullptr) {
    active = active->parentWidget();
  }
  return active != nullptr ? active : m_window.data();
}

bool DialogsQt::AskYesNo(const std::string& title, const std::string& text) {
  return YesNo(QMessageBox::Information, title, text, m_window);
}

bool DialogsQt::WarnYesNo(const std::string& title, const std::string& text) {
  return YesNo(QMessageBox::Warning, title, text, Parent());
}

void DialogsQt::Inform(const std::string& title, const std::string& text) {
  QWidget* parent = Parent();
  const QString lines = Lines(text);
  if (parent != nullptr) {
    for (QObject* child : parent->children()) {
      if (auto* before = dynamic_cast<MessageQt*>(child); before != nullptr && before->text() == lines) {
        before->close();
      }
    }
  }
  (new MessageQt(QString::fromStdString(title), lines, parent))->show();
}

std::optional<std::string> DialogsQt::AskText(const std::string& title, const std::string& prompt,
                                              const std::string& preset) {
  QInputDialog dialog(Parent());
  dialog.setWindowTitle(QString::fromStdString(title));
  dialog.setLabelText(QString::fromStdString(prompt));
  dialog.setTextValue(QString::fromStdString(preset));
  if (auto* label = dialog.findChild<QLabel*>()) {
    label->setWordWrap(true);
    label->setMinimumWidth(label->fontMetrics().averageCharWidth() * 48);
  }
  if (dialog.exec() != QDialog::Accepted) {
    return std::nullopt;
  }
  return dialog.textValue().toStdString();
}

std::optional<std::string> DialogsQt::OpenFile(const std::string& filter, const std::string& proposed) {
  QFileDialog dialog(Parent());
  dialog.setAcceptMode(QFileDialog::AcceptOpen);
  dialog.setFileMode(QFileDialog::ExistingFile);
  return ChooseFile(dialog, filter, proposed);
}

std::optional<std::string> DialogsQt::SaveFile(const std::string& filter, const std::string& proposed) {
  QFileDialog dialog(Parent());
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  return ChooseFile(dialog, filter, proposed);
}

std::optional<std::string> DialogsQt::ExportFile(const std::string& title, const std::string& filter,
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

std::optional<std::uint32_t> DialogsQt::PickColour(std::uint32_t present) {
  const auto part = [present](int shift) {
    return static_cast<int>(present >> static_cast<unsigned>(shift)) & kByte;
  };
  QColorDialog dialog(QColor(part(0), part(8), part(16)), Parent());
  if (dialog.exec() != QDialog::Accepted) {
    return std::nullopt;
  }
  const QColor colour = dialog.selectedColor();
  return static_cast<std::uint32_t>(colour.red() | colour.green() << 8 | colour.blue() << 16);
}

bool DialogsQt::ShowPage(const std::string& file) {
  return QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(file)));
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
