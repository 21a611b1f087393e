#include "platform/NightCaretQt.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLineEdit>
#include <QPainter>
#include <utility>

namespace veerwatch {

void NightCaretQt::Wear(bool night) {
  QCoreApplication::instance()->removeEventFilter(this);
  if (night) {
    QCoreApplication::instance()->installEventFilter(this);
  }
}

bool NightCaretQt::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::Paint || m_painting) {
    return false;
  }
  auto* box = dynamic_cast<QLineEdit*>(watched);
  if (box == nullptr || !box->hasFocus()) {
    return false;
  }
  m_painting = true;
  watched->event(event);
  m_painting = false;
  // Whatever is brighter than the text there becomes the text's colour; the rest stays.
  QPainter painter(box);
  painter.setCompositionMode(QPainter::CompositionMode_Darken);
  painter.fillRect(box->inputMethodQuery(Qt::ImCursorRectangle).toRect(),
                   box->palette().color(QPalette::Text));
  return true;
}

}  // namespace veerwatch
