#include "platform/MessageQt.h"

#include <QAbstractButton>
#include <QEvent>
#include <algorithm>
#include <string_view>

#include "platform/VisibleText.h"
#include "platform/WindowDialogsQt.h"

namespace veerwatch {

QString MessageLines(std::string text) {
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

MessageQt::MessageQt(const QString& title, const QString& text, QWidget* window)
    : QMessageBox(Warning, title, text, Ok, window) {
  setTextFormat(Qt::PlainText);
  button(Ok)->setObjectName(QStringLiteral("cmdMessageOk"));
  setAttribute(Qt::WA_DeleteOnClose);
  setModal(false);
  if (window != nullptr) {
    window->installEventFilter(this);
  }
}

void MessageQt::Show(const std::string& title, const std::string& text, QWidget* window) {
  const QString lines = MessageLines(text);
  if (window != nullptr) {
    for (QObject* child : window->children()) {
      if (auto* before = dynamic_cast<MessageQt*>(child); before != nullptr && before->text() == lines) {
        before->close();
      }
    }
  }
  (new MessageQt(QString::fromStdString(title), lines, window))->show();
}

bool MessageQt::eventFilter(QObject* watched, QEvent* event) {
  if (watched == parentWidget() && IsHidden(*event)) {
    close();
  }
  return QMessageBox::eventFilter(watched, event);
}

}  // namespace veerwatch
