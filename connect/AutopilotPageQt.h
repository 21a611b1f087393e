// The assistant's page "Autopilot": where its port leads, what it is sent, the sentences that would leave,
// and the test of the pilot with what is chosen, before anything is written.
#pragma once

#include <QComboBox>
#include <functional>
#include <string>

#include "connect/ConnectPageQt.h"
#include "options/PilotFrameQt.h"
#include "platform/LanguageQt.h"

namespace veerwatch {

class AutopilotPageQt final : public ConnectPageQt {
 public:
  AutopilotPageQt(ConnectDesk& desk, QWidget* parent);

  QString Title() const override { return TrQ("Autopilot"); }
  void Enter() override;
  void Refresh() override;
  void Leave() override;
  bool Blocks() const override;

  /// Called when the pilot may be tested now: asks, tests, and says its verdict by Verdict().
  void Test(std::function<void()> handler) { m_test = std::move(handler); }
  /// The test is over, with that verdict.
  void Verdict(const std::string& words);

 private:
  void ShowPorts();
  void cmdPilotTest_Click();
  void EndTrial(const QString& text);

  std::function<void()> m_test;
  bool m_asked = false;  ///< the trial runs, and the test was begun
  QComboBox* cmbConnectPilot;
  QLabel* lblConnectPilot;
  PilotFrameQt* m_frame;
  QLabel* lblConnectTest;
};

}  // namespace veerwatch
