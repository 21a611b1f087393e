// The manoeuvre dialog as the main window opens it.
#pragma once

#include <QDialog>
#include <QListWidget>
#include <QProgressBar>
#include <vector>

#include "tests/ui/MainWindowTester.h"

namespace veerwatch {

class TackTester : public MainWindowTester {
 public:
  std::string Wind = "45";  ///< true wind angle of what Send() lets arrive [deg relative]

  /// The dialog, null before it is made.
  QDialog* Dialog() const { return Window->findChild<QDialog*>(QStringLiteral("frmTack")); }
  bool Open() const { return Dialog() != nullptr && Dialog()->isVisible(); }

  /// A tack to 190, from 100 with the wind at 45 and the pilot 12 degrees off the compass.
  void OpenTack() const {
    Window->AutoPilotSet(112.0F);
    Window->TackOpen(190.0F, 100.0F, 45.0F);
  }

  /// A wind that runs one control step, and so takes the bearing to the pilot.
  void Send() { NmeaPort.Receive(Winds("45", Wind)); }

  /// Seconds of a turn, with a wind in each.
  void Seconds(int seconds) {
    for (int second = 0; second < seconds; ++second) {
      Send();
      TimerTack.Tick();
    }
  }

  /// That tack after two seconds, at a heading of 120, which the pilot has heard of.
  void RunTack() {
    OpenTack();
    Click("cmdOk");
    Seconds(2);
    Send();
    ASSERT_EQ(Window->m_fAutoPilot, 132.0F);
    ASSERT_TRUE(TimerTack.Enabled());
  }

  std::vector<std::string> Steps() const {
    std::vector<std::string> steps;
    const auto& list = Find<QListWidget>("lstTack");
    for (int row = 0; row < list.count(); ++row) {
      steps.push_back(list.item(row)->text().toStdString());
    }
    return steps;
  }
};

}  // namespace veerwatch
