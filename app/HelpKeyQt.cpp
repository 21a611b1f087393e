#include "app/HelpKeyQt.h"

#include <QApplication>
#include <QKeyEvent>
#include <utility>

namespace veerwatch {

HelpKeyQt::HelpKeyQt(std::function<void(const QWidget&)> pressed) : m_pressed(std::move(pressed)) {
  qApp->installEventFilter(this);
}

bool HelpKeyQt::eventFilter(QObject* watched, QEvent* event) {
  const bool offered = event->type() == QEvent::ShortcutOverride;
  if (!offered && event->type() != QEvent::KeyPress) {
    return false;
  }
  const auto* key = static_cast<const QKeyEvent*>(event);
  const auto* control = qobject_cast<const QWidget*>(watched);
  if (control == nullptr || key->key() != Qt::Key_F1 || key->modifiers() != Qt::NoModifier) {
    return false;
  }
  if (offered) {
    // No shortcut takes it.
    event->accept();
  } else {
    m_pressed(*control->window());
  }
  return true;
}

}  // namespace veerwatch
