#include "platform/ApplicationQt.h"

#include "platform/OutlineStyleQt.h"
#include "platform/VectorUnit.h"

namespace veerwatch {

ApplicationQt::ApplicationQt(int& argc, char** argv) : QApplication(argc, argv) {
  // The application owns it.
  setStyle(new OutlineStyleQt);
}

bool ApplicationQt::notify(QObject* receiver, QEvent* event) {
  ClearUpperHalves();
  return QApplication::notify(receiver, event);
}

}  // namespace veerwatch
