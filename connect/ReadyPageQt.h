// The assistant's page "Ready": what will be written, in words.
#pragma once

#include <QPlainTextEdit>

#include "connect/ConnectPageQt.h"
#include "platform/LanguageQt.h"

namespace veerwatch {

class ReadyPageQt final : public ConnectPageQt {
 public:
  ReadyPageQt(ConnectDesk& desk, QWidget* parent);

  QString Title() const override { return TrQ("Ready"); }
  void Enter() override;

 private:
  QPlainTextEdit* txtConnectWords;
};

}  // namespace veerwatch
