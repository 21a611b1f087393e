#include "options/OptionControlsQt.h"

#include <QEvent>
#include <QFontMetrics>
#include <QScreen>

#include "options/OptionTips.h"
#include "platform/LanguageQt.h"

namespace veerwatch {

namespace {

constexpr const char* kWidestNumber = "-00000.00";
/// Part of the screen that a page takes without scrolling.
constexpr double kScreenShare = 0.9;

}  // namespace

void NameControl(QWidget& control, const char* name, const char* hint) {
  control.setObjectName(QLatin1String(name));
  control.setAccessibleDescription(TrQ(hint));
  ShowTip(control);
}

void ShowTip(QWidget& control) {
  control.setToolTip(QString::fromStdString(
      OptionTipText(control.objectName().toStdString(), control.accessibleDescription().toStdString())));
}

OptionEntryQt::OptionEntryQt(const char* name, const char* hint, QWidget* parent) : EntryLineQt(parent) {
  NameControl(*this, name, hint);
  setAlignment(Qt::AlignRight);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize OptionEntryQt::sizeHint() const {
  const QSize one = QLineEdit::minimumSizeHint();
  const QFontMetrics metrics(font());
  return {one.width() - metrics.maxWidth() + metrics.horizontalAdvance(QLatin1String(kWidestNumber)),
          QLineEdit::sizeHint().height()};
}

void ShowEntries(const std::vector<BoundEntry>& entries, const OptionsForm& form) {
  for (const BoundEntry& entry : entries) {
    entry.Box->Show(QString::fromStdString(form.*entry.Text));
  }
}

void ReadEntries(const std::vector<BoundEntry>& entries, OptionsForm& form) {
  for (const BoundEntry& entry : entries) {
    form.*entry.Text = entry.Box->text().toStdString();
  }
}

OptionResultQt::OptionResultQt(const char* name, const char* hint, QWidget* parent) : QLabel(parent) {
  NameControl(*this, name, hint);
  setAccessibleName(TrQ(hint));
  setTextFormat(Qt::PlainText);
  setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  setFrameStyle(static_cast<int>(QFrame::StyledPanel) | static_cast<int>(QFrame::Sunken));
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize OptionResultQt::sizeHint() const {
  const QFontMetrics metrics(font());
  return {metrics.horizontalAdvance(QLatin1String(kWidestNumber)) + metrics.height() / 2,
          QLabel::sizeHint().height()};
}

QLabel* NewCaption(const char* text, QWidget* control, QWidget* parent) {
  auto* caption = new QLabel(TrQ(text), parent);
  caption->setBuddy(control);
  control->setAccessibleName(TrQ(text).remove(QLatin1Char('&')).remove(QLatin1Char(':')));
  return caption;
}

QLabel* NewText(const char* text, QWidget* parent) {
  auto* label = new QLabel(TrQ(text), parent);
  label->setTextFormat(Qt::PlainText);
  return label;
}

OptionPageQt::OptionPageQt(QWidget* content, QWidget* parent) : QScrollArea(parent) {
  setFrameShape(QFrame::NoFrame);
  setWidgetResizable(true);
  setFocusPolicy(Qt::NoFocus);
  setWidget(content);
  content->installEventFilter(this);
  content->setAutoFillBackground(false);
  viewport()->setAutoFillBackground(false);
}

QSize OptionPageQt::minimumSizeHint() const {
  const QSize whole = widget()->minimumSizeHint();
  return screen() != nullptr ? whole.boundedTo(screen()->availableSize() * kScreenShare) : whole;
}

bool OptionPageQt::eventFilter(QObject* watched, QEvent* event) {
  if (watched == widget() && event->type() == QEvent::LayoutRequest) {
    updateGeometry();
  }
  return QScrollArea::eventFilter(watched, event);
}

}  // namespace veerwatch
