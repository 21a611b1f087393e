#include "connect/ReadyPageQt.h"

#include <QVBoxLayout>
#include <string>

#include "connect/PlanWords.h"
#include "options/OptionControlsQt.h"
#include "platform/Language.h"

namespace veerwatch {

ReadyPageQt::ReadyPageQt(ConnectDesk& desk, QWidget* parent)
    : ConnectPageQt("pagConnectReady", desk, parent), txtConnectWords(new QPlainTextEdit(this)) {
  NameControl(*txtConnectWords, "txtConnectWords", TrMark("What will be written"));
  txtConnectWords->setReadOnly(true);
  txtConnectWords->setTabChangesFocus(true);
  constexpr int kLines = 6;
  txtConnectWords->setMinimumHeight(kLines * fontMetrics().lineSpacing());
  auto* caption =
      NewCaption(TrMark("Th&is will be written. Nothing has changed before."), txtConnectWords, this);
  caption->setWordWrap(true);
  auto* rows = new QVBoxLayout(this);
  rows->addWidget(caption);
  rows->addWidget(txtConnectWords, 1);
}

void ReadyPageQt::Enter() {
  const std::string text = PlanText(Desk().Words());
  txtConnectWords->setPlainText(text.empty() ? TrQ("Everything is so already; the settings are only saved.")
                                             : QString::fromStdString(text));
}

}  // namespace veerwatch
