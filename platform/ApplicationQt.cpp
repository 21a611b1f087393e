#include "platform/ApplicationQt.h"

#include "platform/VectorUnit.h"

namespace veerwatch {

bool ApplicationQt::notify(QObject* receiver, QEvent* event) {
  ClearUpperHalves();
  return QApplication::notify(receiver, event);
}

}  // namespace veerwatch
