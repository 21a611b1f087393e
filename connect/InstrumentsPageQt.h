// The assistant's page "Instruments": what was found, what each brings, and a tick for those to be used.
#pragma once

#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <functional>

#include "connect/ConnectPageQt.h"
#include "platform/LanguageQt.h"

namespace veerwatch {

class InstrumentsPageQt final : public ConnectPageQt {
 public:
  InstrumentsPageQt(ConnectDesk& desk, QWidget* parent);

  QString Title() const override { return TrQ("Instruments"); }
  void Refresh() override;
  QString Hint() const override;

  /// Called when somebody wants to see the program without a boat.
  void Simulate(std::function<void()> handler) { m_simulate = std::move(handler); }
  /// Called when the search begins anew.
  void Again(std::function<void()> handler) { m_again = std::move(handler); }

  QListWidget* lstConnect;
  QLineEdit* txtConnectHost;
  QPushButton* cmdConnectListen;
  QPushButton* cmdConnectAgain;
  QPushButton* cmdConnectSimulate;

 private:
  void ShowRow(int index);

  std::function<void()> m_simulate;
  std::function<void()> m_again;
};

}  // namespace veerwatch
