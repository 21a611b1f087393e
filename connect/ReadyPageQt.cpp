#include "connect/ReadyPageQt.h"

#include <QVBoxLayout>
#include <string>
#include <vector>

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
  std::string text;
  for (const std::string& line : Desk().Words()) {
    text += line + "\n";
  }
  txtConnectWords->setPlainText(text.empty() ? TrQ("Everything is so already; the settings are only saved.")
                                             : QString::fromStdString(text).trimmed());
}

}  // namespace veerwatch
