// The caret of entry boxes at night: red like the text. Qt draws it as the opposite of what is behind it,
// which is white on black.
#pragma once

#include <QObject>

namespace veerwatch {

class NightCaretQt final : public QObject {
 public:
  /// Whether the carets of every entry box of the program are red from now on.
  void Wear(bool night);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool m_painting = false;
};

}  // namespace veerwatch
