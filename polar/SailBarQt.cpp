#include "polar/SailBarQt.h"

#include <QEvent>
#include <QHBoxLayout>

#include "draw/DrawQt.h"
#include "platform/LanguageQt.h"

namespace veerwatch {

namespace {

constexpr int kTextHeight = 18;    // [px]
constexpr int kPromptHeight = 22;  // [px]
constexpr int kMargin = 6;         // [px]

QFont Letters(const QWidget& widget, int height, bool bold) {
  QFont letters = widget.font();
  letters.setPixelSize(height);
  letters.setBold(bold);
  return letters;
}

/// The style's own lines would dazzle at night.
class Unpainted final : public QObject {
 public:
  using QObject::QObject;
  bool eventFilter(QObject* /*watched*/, QEvent* event) override { return event->type() == QEvent::Paint; }
};

}  // namespace

SailBarQt::SailBarQt(QMainWindow& window)
    : QToolBar(&window),
      lblSail(new QLabel(this)),
      cmdSail(new TurnButtonQt(QStringLiteral("cmdSail"), QString(), this)) {
  setObjectName(QStringLiteral("tbrSail"));
  setWindowTitle(TrQ("Sail the Course"));
  setMovable(false);
  setContextMenuPolicy(Qt::PreventContextMenu);
  installEventFilter(new Unpainted(this));
  lblSail->setObjectName(QStringLiteral("lblSail"));
  lblSail->setFont(Letters(*this, kTextHeight, false));
  lblSail->setWordWrap(true);
  lblSail->setContentsMargins(kMargin, 0, kMargin, 0);
  lblSail->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  cmdSail->setFont(Letters(*this, kPromptHeight, true));
  cmdSail->setFocusPolicy(Qt::NoFocus);
  cmdSail->setToolTip(TrQ("Turn to the other leg now (Enter)"));
  connect(cmdSail, &QPushButton::clicked, this, [this] { Turn(); });
  auto* both = new QWidget(this);
  auto* row = new QHBoxLayout(both);
  row->setContentsMargins(0, 0, kMargin, 0);
  row->addWidget(lblSail, 1);
  row->addWidget(cmdSail);
  cmdSail->hide();
  constexpr int kLines = 2;
  both->setFixedHeight(kLines * lblSail->fontMetrics().lineSpacing() + 2 * kMargin);
  cmdSail->setFixedHeight(both->height() - kMargin);
  addWidget(both);
  window.addToolBar(Qt::BottomToolBarArea, this);
  hide();
}

void SailBarQt::Show(const SailView& sails) {
  const QString line = ToQt(sails.Line);
  if (lblSail->text() != line) {
    lblSail->setText(line);
  }
  const bool prompts = !sails.Prompt.Caption.empty();
  if (prompts) {
    cmdSail->Show(sails.Prompt);
    constexpr int kRoom = 3 * kMargin;
    cmdSail->setFixedWidth(cmdSail->fontMetrics().horizontalAdvance(cmdSail->text()) + kRoom);
  }
  cmdSail->setVisible(prompts);
  setVisible(!sails.Line.empty());
}

}  // namespace veerwatch
