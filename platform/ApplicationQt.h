// The toolkit's application, as the program and the tests of its windows run it.
#pragma once

#include <QApplication>

namespace veerwatch {

class ApplicationQt final : public QApplication {
 public:
  /// Both outlive it.
  ApplicationQt(int& argc, char** argv);

  /// Every event finds the vector registers clean: Qt's drawing leaves its traces in them, and whatever is
  /// computed after a repaint, for the autopilot too, would wait for those.
  bool notify(QObject* receiver, QEvent* event) override;
};

}  // namespace veerwatch
