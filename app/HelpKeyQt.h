// F1 in every window of the program, also in a dialog that other windows wait for.
#pragma once

#include <QObject>
#include <QWidget>
#include <functional>

namespace veerwatch {

/// Hears the key in front of every control and calls back with the window or dialog that it was pressed in.
class HelpKeyQt final : public QObject {
 public:
  explicit HelpKeyQt(std::function<void(const QWidget&)> pressed);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::function<void(const QWidget&)> m_pressed;
};

}  // namespace veerwatch
