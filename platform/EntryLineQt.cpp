#include "platform/EntryLineQt.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "platform/ColoursQt.h"

namespace veerwatch {

namespace {

/// Width of the frame as a part of the box's height, and its bounds [px].
constexpr double kFrameShare = 0.06;
constexpr double kLeastFrame = 2.0;
constexpr double kMostFrame = 5.0;

}  // namespace

void EntryLineQt::Show(const QString& text) {
  m_shown = text;
  if (this->text() != text) {
    const bool selected = hasSelectedText();
    setText(text);
    if (selected) {
      selectAll();
    }
  }
  setModified(false);
  update();
}

bool EntryLineQt::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool arrow = key->key() == Qt::Key_Left || key->key() == Qt::Key_Right || key->key() == Qt::Key_Up;
    if (arrow && (key->modifiers() & Qt::KeyboardModifierMask & ~Qt::KeypadModifier) == Qt::ControlModifier) {
      event->ignore();
      return true;
    }
  }
  return QLineEdit::event(event);
}

void EntryLineQt::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  if (event->reason() != Qt::PopupFocusReason && !Edited()) {
    selectAll();
  }
}

void EntryLineQt::mouseReleaseEvent(QMouseEvent* event) {
  QLineEdit::mouseReleaseEvent(event);
  if (event->button() == Qt::LeftButton && !hasSelectedText() && !Edited()) {
    selectAll();
  }
}

void EntryLineQt::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  if (!isEnabled() || !Edited()) {
    return;
  }
  const qreal width = std::clamp(height() * kFrameShare, kLeastFrame, kMostFrame);
  const qreal inside = width / 2.0;
  QPainter painter(this);
  painter.setPen(
      QPen(AmberEdge(palette().color(QPalette::Window)), width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(QRectF(rect()).adjusted(inside, inside, -inside, -inside));
}

}  // namespace veerwatch
