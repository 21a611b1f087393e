// A main window on fakes, driven by object names and real events.
#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QtTest/QTest>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>

#include "app/frmMain.h"
#include "platform/NamedPort.h"
#include "tests/support/FakeSounder.h"
#include "tests/support/FixedRandom.h"
#include "tests/support/HandClock.h"
#include "tests/support/HandTimer.h"
#include "tests/support/QueuedDialogs.h"
#include "tests/support/ScriptedPort.h"

namespace veerwatch {

class MainWindowTester : public testing::Test {
 public:
  ScriptedPort NmeaPort;
  ScriptedPort PilotPort;
  HandTimer tmrNmea;
  HandTimer tmrUnload;
  HandTimer TimerTack;
  HandClock Time;
  FixedRandom Random;
  FakeSounder Tone;
  FakeRunner Buzzer;
  QueuedDialogs Dialogs;
  Profile Store;
  std::unique_ptr<frmMain> Window;

  std::string ProfileFile() const { return m_folder.filePath("Veerwatch.ini").toStdString(); }

  void WriteProfile(const std::string& content) const { std::ofstream(ProfileFile()) << content; }

  std::string ReadProfile() const {
    std::ostringstream content;
    content << std::ifstream(ProfileFile()).rdbuf();
    return content.str();
  }

  /// What the window asks through.
  virtual class Dialogs& Asks() { return Dialogs; }

  /// What makes the ports that the assistant listens to; none here.
  virtual NamedPort::Maker Ports() { return {}; }

  /// Makes the window without loading it.
  void Make() {
    Window = std::make_unique<frmMain>(MainWindowParts{NmeaPort,
                                                       PilotPort,
                                                       tmrNmea,
                                                       tmrUnload,
                                                       TimerTack,
                                                       Time,
                                                       Random,
                                                       Asks(),
                                                       Store,
                                                       ProfileFile(),
                                                       {},
                                                       {},
                                                       &Tone,
                                                       &Buzzer,
                                                       nullptr,
                                                       nullptr,
                                                       nullptr,
                                                       Ports()});
    tmrNmea.OnTick = [this] { Window->tmrNmea_Timer(); };
    tmrUnload.OnTick = [this] { Window->tmrUnload_Timer(); };
    TimerTack.OnTick = [this] {
      Time.Pass(TimerTack.Milliseconds);
      Window->TimerTack_Timer();
    };
  }

  /// Makes, loads and shows the window with a profile of that content.
  void Start(const std::string& profile = "") {
    if (!profile.empty()) {
      WriteProfile(profile);
    }
    Make();
    Window->Form_Load();
    Window->show();
    Window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Window.get()));
  }

  template <class Control>
  Control& Find(const char* name) const {
    auto* control = Window->findChild<Control*>(QString::fromLatin1(name));
    if (control == nullptr) {
      throw std::runtime_error(std::string("no control ") + name);
    }
    return *control;
  }

  std::string Text(const char* label) const { return Find<QLabel>(label).text().toStdString(); }
  std::string Entry(const char* box) const { return Find<QLineEdit>(box).text().toStdString(); }
  std::string Caption() const { return Window->windowTitle().toStdString(); }
  bool Enabled(const char* name) const { return Find<QWidget>(name).isEnabled(); }

  /// Presses the mode's button in the bar.
  void Mode(int index) const {
    auto& bar = Find<QToolBar>("tbrTrack");
    auto& action = Find<QAction>(QStringLiteral("tbrTrack(%1)").arg(index).toLatin1().constData());
    QTest::mouseClick(bar.widgetForAction(&action), Qt::LeftButton);
  }
  void Click(const char* button) const { QTest::mouseClick(&Find<QWidget>(button), Qt::LeftButton); }

  /// Types over all that stands in a box, as a user who clicks into it.
  void Type(const char* box, const char* text) const {
    auto& line = Find<QLineEdit>(box);
    QTest::mouseClick(&line, Qt::LeftButton);
    QTest::keyClick(&line, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&line, Qt::Key_Delete);
    QTest::keyClicks(&line, QString::fromLatin1(text));
  }
  void Enter(const char* box) const { QTest::keyClick(&Find<QLineEdit>(box), Qt::Key_Return); }

 private:
  QTemporaryDir m_folder;
};

/// Where a window stands when it appears.
class FirstPlace final : public QObject {
 public:
  QPoint At;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Show) {
      At = static_cast<QWidget*>(watched)->pos();
    }
    return false;
  }
};

/// A profile for real ports, one each way, with true wind from a sensor and no smoothing: what a sentence
/// says is what the record holds.
inline constexpr const char* kOnPorts =
    "[Nmea]\nPort=3\nTrue Wind=0\nTrue Wind Average=0\n[Pilot]\nPort=4\nBearing=100\n";

/// Both winds [deg relative], at 10 and 8 knots: the second sentence runs one control step, or each does once
/// both winds are known.
inline std::string Winds(const std::string& apparent, const std::string& trueWind) {
  return "$WIMWV," + apparent + ",R,10.0,N,A\r$WIMWV," + trueWind + ",T,8.0,N,A\r";
}

/// A profile that simulates without noise: heading 275 + 3, true wind from 225, so -50 on the bow.
inline constexpr const char* kSimulated =
    "[Pilot]\nBearing=275\n"
    "[Simulate]\nNmea=True\nBoat Speed=7.2\nCompass Offset=3\nNoise Angle=0\nNoise Speed=0\n"
    "True Wind Angle=225\nTrue Wind Speed=14\nVariation=-3\nWaypoint Bearing=268\nWaypoint Range=12\n";

}  // namespace veerwatch
