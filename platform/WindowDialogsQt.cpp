#include "platform/WindowDialogsQt.h"

#include <QColorDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLabel>
#include <QRegularExpression>
#include <QStandardPaths>
#include <utility>

#include "platform/FileDialogQt.h"
#include "platform/MessageQt.h"

namespace veerwatch {

namespace {

constexpr int kByte = 0xFF;

/// Starts a file dialog at `proposed` with a filter of a description and a pattern.
void Propose(QFileDialog& dialog, const std::string& filter, const std::string& proposed) {
  const QStringList parts = QString::fromStdString(filter).split(QLatin1Char('|'));
  const QString& pattern = parts.last();
  const QString& description = parts.first();
  dialog.setNameFilter(description.contains(pattern) ? description
                                                     : QStringLiteral("%1 (%2)").arg(description, pattern));
  dialog.setDefaultSuffix(QFileInfo(pattern).suffix());
  const QFileInfo start(QString::fromStdString(proposed));
  dialog.setDirectory(start.absolutePath());
  dialog.selectFile(start.fileName());
}

/// Hands over the file that was chosen in `dialog`.
std::function<void(int)> Chosen(const QFileDialog* dialog, WindowDialogs::Text answer) {
  return [dialog, answer = std::move(answer)](int result) {
    const QStringList files = dialog->selectedFiles();
    const bool chosen = result == QDialog::Accepted && !files.isEmpty();
    answer(chosen ? std::optional(files.constFirst().toStdString()) : std::nullopt);
  };
}

}  // namespace

QWidget& FrontOf(QWidget& window) {
  for (QDialog* dialog : window.findChildren<QDialog*>(QString(), Qt::FindDirectChildrenOnly)) {
    if (dialog->isVisible() && dialog->isModal()) {
      return FrontOf(*dialog);
    }
  }
  return window;
}

void BringToFront(QWidget& window) {
  window.raise();
  window.activateWindow();
}

WindowDialogsQt::WindowDialogsQt(QWidget& window) : m_window(&window) { window.installEventFilter(this); }

WindowDialogsQt::~WindowDialogsQt() { Withdraw(); }

bool WindowDialogsQt::eventFilter(QObject* watched, QEvent* event) {
  if (watched == m_window && IsHidden(*event)) {
    Withdraw();
  }
  return QObject::eventFilter(watched, event);
}

bool WindowDialogsQt::Busy() {
  if (m_open) {
    BringToFront(FrontOf(*m_open));
  }
  return !m_open.isNull();
}

void WindowDialogsQt::Open(QDialog* dialog, std::function<void(int)> told) {
  m_open = dialog;
  connect(dialog, &QDialog::finished, this, [this, dialog, told = std::move(told)](int result) {
    // The answer may ask the next question.
    m_open.clear();
    dialog->deleteLater();
    told(result);
  });
  dialog->open();
}

void WindowDialogsQt::Withdraw() {
  if (m_open) {
    m_open->disconnect(this);
    m_open->hide();
    // It ends with its window: the toolkit may stand in a menu or a box of it.
    m_open.clear();
  }
}

void WindowDialogsQt::Ask(QMessageBox::Icon sign, const std::string& title, const std::string& text,
                          YesNo answer) {
  if (Busy()) {
    return;
  }
  auto* box = new QMessageBox(sign, QString::fromStdString(title), MessageLines(text),
                              QMessageBox::Yes | QMessageBox::No, m_window);
  box->setTextFormat(Qt::PlainText);
  box->setEscapeButton(QMessageBox::No);
  box->setDefaultButton(QMessageBox::No);
  Open(box, [answer = std::move(answer)](int result) { answer(result == QMessageBox::Yes); });
}

void WindowDialogsQt::AskYesNo(const std::string& title, const std::string& text, YesNo answer) {
  Ask(QMessageBox::Information, title, text, std::move(answer));
}

void WindowDialogsQt::WarnYesNo(const std::string& title, const std::string& text, YesNo answer) {
  Ask(QMessageBox::Warning, title, text, std::move(answer));
}

void WindowDialogsQt::Inform(const std::string& title, const std::string& text) {
  MessageQt::Show(title, text, m_window);
}

void WindowDialogsQt::AskText(const std::string& title, const std::string& prompt, const std::string& preset,
                              Text answer) {
  if (Busy()) {
    return;
  }
  auto* dialog = new QInputDialog(m_window);
  dialog->setWindowTitle(QString::fromStdString(title));
  dialog->setLabelText(QString::fromStdString(prompt));
  dialog->setTextValue(QString::fromStdString(preset));
  if (auto* label = dialog->findChild<QLabel*>()) {
    label->setWordWrap(true);
    label->setMinimumWidth(label->fontMetrics().averageCharWidth() * 48);
  }
  Open(dialog, [dialog, answer = std::move(answer)](int result) {
    answer(result == QDialog::Accepted ? std::optional(dialog->textValue().toStdString()) : std::nullopt);
  });
}

void WindowDialogsQt::OpenFile(const std::string& filter, const std::string& proposed, Text answer) {
  if (Busy()) {
    return;
  }
  auto* dialog = new FileDialogQt(m_window);
  dialog->setAcceptMode(QFileDialog::AcceptOpen);
  dialog->setFileMode(QFileDialog::ExistingFile);
  Propose(*dialog, filter, proposed);
  Open(dialog, Chosen(dialog, std::move(answer)));
}

void WindowDialogsQt::SaveFile(const std::string& filter, const std::string& proposed, Text answer) {
  if (Busy()) {
    return;
  }
  auto* dialog = new FileDialogQt(m_window);
  dialog->setAcceptMode(QFileDialog::AcceptSave);
  dialog->setFileMode(QFileDialog::AnyFile);
  dialog->setOption(QFileDialog::DontConfirmOverwrite);
  Propose(*dialog, filter, proposed);
  Open(dialog, Chosen(dialog, std::move(answer)));
}

void WindowDialogsQt::ExportFile(const std::string& title, const std::string& filter,
                                 const std::string& proposed, Text answer) {
  if (Busy()) {
    return;
  }
  const QString kinds = QString::fromStdString(filter);
  auto* dialog = new FileDialogQt(m_window);
  dialog->setWindowTitle(QString::fromStdString(title));
  dialog->setDirectory(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  dialog->setNameFilter(kinds);
  dialog->setAcceptMode(QFileDialog::AcceptSave);
  dialog->selectFile(QString::fromStdString(proposed));
  static const QRegularExpression ending(QStringLiteral("\\*\\.(\\w+)"));
  dialog->setDefaultSuffix(ending.match(kinds).captured(1));
  Open(dialog, Chosen(dialog, std::move(answer)));
}

void WindowDialogsQt::PickColour(std::uint32_t present, Colour answer) {
  if (Busy()) {
    return;
  }
  const auto part = [present](int shift) {
    return static_cast<int>(present >> static_cast<unsigned>(shift)) & kByte;
  };
  auto* dialog = new QColorDialog(QColor(part(0), part(8), part(16)), m_window);
  Open(dialog, [dialog, answer = std::move(answer)](int result) {
    const QColor colour = dialog->selectedColor();
    answer(result == QDialog::Accepted ? std::optional(static_cast<std::uint32_t>(
                                             colour.red() | colour.green() << 8 | colour.blue() << 16))
                                       : std::nullopt);
  });
}

}  // namespace veerwatch
