#include "options/RecommendedQt.h"

#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <utility>

#include "platform/LanguageQt.h"

namespace veerwatch {

void RecommendedQt::Open(const RecommendedSeen& seen, QWidget& window, Answer answer) {
  auto* dialog = new RecommendedQt(seen, window);
  connect(dialog, &QDialog::accepted, &window,
          [dialog, answer = std::move(answer)] { answer(dialog->lstRecommended->Ticks()); });
  dialog->open();
}

RecommendedQt::RecommendedQt(const RecommendedSeen& seen, QWidget& window)
    : QDialog(&window), lstRecommended(new RecommendedListQt(this)) {
  setObjectName(QStringLiteral("dlgRecommended"));
  setWindowTitle(TrQ("Veerwatch - Recommended"));
  setAttribute(Qt::WA_DeleteOnClose);
  auto* all = new QVBoxLayout(this);
  auto* head = new QLabel(TrQ("What suits most boats. OK sets the ticked lines, nothing else."), this);
  head->setWordWrap(true);
  all->addWidget(head);
  lstRecommended->Show(seen, false);
  all->addWidget(lstRecommended, 1);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  QPushButton* tickAll = buttons->addButton(TrQ("&Tick All"), QDialogButtonBox::ActionRole);
  tickAll->setObjectName(QStringLiteral("cmdRecommendedAll"));
  buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("cmdRecommendedOk"));
  buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdRecommendedCancel"));
  all->addWidget(buttons);
  connect(tickAll, &QPushButton::clicked, this, [this] { lstRecommended->TickAll(); });
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  const QSize room = window.screen()->availableSize() * 9 / 10;
  resize(sizeHint().boundedTo(room));
}

}  // namespace veerwatch
