#include "connect/AutopilotPageQt.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <utility>

#include "options/OptionControlsQt.h"
#include "platform/Language.h"

namespace veerwatch {

AutopilotPageQt::AutopilotPageQt(ConnectDesk& desk, QWidget* parent)
    : ConnectPageQt("pagConnectAutopilot", desk, parent),
      cmbConnectPilot(new QComboBox(this)),
      lblConnectPilot(NewLines("lblConnectPilot")),
      m_frame(new PilotFrameQt(this)),
      lblConnectTest(NewLines("lblConnectTest")) {
  NameControl(*cmbConnectPilot, "cmbConnectPilot",
              TrMark("The device or endpoint of the autopilot; choose one or type it"));
  cmbConnectPilot->setEditable(true);
  cmbConnectPilot->setInsertPolicy(QComboBox::NoInsert);
  constexpr int kCharacters = 24;
  cmbConnectPilot->setMinimumContentsLength(kCharacters);
  cmbConnectPilot->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  m_frame->cmdPilotTest->setAutoDefault(false);
  auto* port = new QHBoxLayout;
  port->addWidget(NewCaption(TrMark("P&ort:"), cmbConnectPilot, this));
  port->addWidget(cmbConnectPilot, 1);
  auto* rows = new QVBoxLayout(this);
  rows->addLayout(port);
  rows->addWidget(lblConnectPilot);
  rows->addWidget(m_frame);
  rows->addWidget(lblConnectTest);
  rows->addStretch();
  connect(cmbConnectPilot, &QComboBox::editTextChanged, this, [this](const QString& text) {
    EndTrial({});
    Desk().SetPilotPort(text.toStdString());
    Refresh();
  });
  m_frame->Changed([this](QWidget*) {
    EndTrial({});
    m_frame->Read(Desk().PilotForm());
    Refresh();
  });
  connect(m_frame->cmdPilotTest, &QPushButton::clicked, this, [this] { cmdPilotTest_Click(); });
}

void AutopilotPageQt::Enter() {
  // Of a copy, as each control that changes is read at once.
  m_frame->Show(OptionsForm(Desk().PilotForm()));
  ShowPorts();
  Refresh();
}

void AutopilotPageQt::ShowPorts() {
  const QSignalBlocker quiet(cmbConnectPilot);
  const std::string present = Desk().PilotPort();
  cmbConnectPilot->clear();
  for (const std::string& each : Desk().PilotPorts()) {
    cmbConnectPilot->addItem(QString::fromStdString(each));
  }
  cmbConnectPilot->setEditText(QString::fromStdString(present));
}

void AutopilotPageQt::Refresh() {
  const std::string wrong = Desk().PilotPortWrong(cmbConnectPilot->currentText().toStdString());
  const std::string words = wrong.empty() ? Desk().PilotPortWords() : wrong;
  lblConnectPilot->setText(QString::fromStdString(words));
  lblConnectPilot->setVisible(!words.empty());
  m_frame->Preview(Desk().Preview());
  m_frame->cmdPilotTest->setEnabled(wrong.empty() && !Desk().Trial().Runs());
  if (!Desk().Trial().Runs() || m_asked) {
    return;
  }
  const std::string waits = Desk().Trial().Tick();
  lblConnectTest->setText(QString::fromStdString(waits));
  if (waits.empty()) {
    m_asked = true;
    m_test();
  }
}

bool AutopilotPageQt::Blocks() const {
  const std::string text = cmbConnectPilot->currentText().toStdString();
  return !text.empty() && !Desk().PilotPortWrong(text).empty();
}

void AutopilotPageQt::cmdPilotTest_Click() {
  const std::string why = Desk().Trial().Hindrance();
  if (!why.empty()) {
    lblConnectTest->setText(QString::fromStdString(why));
    return;
  }
  m_asked = false;
  Desk().TrialBegin();
  Refresh();
}

void AutopilotPageQt::Verdict(const std::string& words) { EndTrial(QString::fromStdString(words)); }

void AutopilotPageQt::EndTrial(const QString& text) {
  Desk().TrialEnd();
  m_asked = false;
  lblConnectTest->setText(text);
}

void AutopilotPageQt::Leave() {
  if (Desk().Trial().Runs()) {
    EndTrial({});
  }
}

}  // namespace veerwatch
