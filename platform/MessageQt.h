// A message that is read while the program goes on.
#pragma once

#include <QMessageBox>
#include <string>

namespace veerwatch {

/// `text` with line breaks for its carriage returns and pictures for all other control characters.
QString MessageLines(std::string text);

/// Goes with the window that it belongs to.
class MessageQt final : public QMessageBox {
 public:
  /// Shows `text` in front of `window`, if there is one, in place of the same message that is still open.
  static void Show(const std::string& title, const std::string& text, QWidget* window);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  MessageQt(const QString& title, const QString& text, QWidget* window);
};

}  // namespace veerwatch
