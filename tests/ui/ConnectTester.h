// The assistant "Connect Your Boat..." on ports in memory, driven by object names and real events.
#pragma once

#include <gtest/gtest.h>

#include <QLabel>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QtTest/QTest>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "app/ThemeQt.h"
#include "connect/frmConnect.h"
#include "platform/ProgramReader.h"
#include "tests/connect/ListenRig.h"
#include "tests/support/FakeMainWindow.h"
#include "tests/support/ListedPorts.h"
#include "tests/support/QueuedDialogs.h"
#include "tests/support/WaitQt.h"

namespace veerwatch {

class NoReader final : public ProgramReader {
 public:
  Answer Asked;
  void Read(const std::string& /*program*/, const std::vector<std::string>& /*arguments*/,
            Answer answer) override {
    Asked = std::move(answer);
  }
};

class ConnectTester : public testing::Test {
 public:
  ListenRig Rig;
  FakeMainWindow Main;
  QueuedDialogs Dialogs;
  Profile Store;
  ListedPorts Finder;
  NoReader Reader;
  int Saved = 0;
  int Simulated = 0;
  QWidget Ground;
  QPointer<frmConnect> Window;

  ~ConnectTester() override { WearNightColours(false); }

  void Open() {
    Finder.Plugged = {{"/dev/ttyUSB0", "FTDI", ""}};
    Main.m_eTrackMode = TrackMode::Setup;
    Window = new frmConnect({{Main,
                              Store,
                              Rig.Time,
                              &Finder,
                              Rig.Maker(),
                              [](const std::string&) { return false; },
                              {[] { return false; }, [](bool) {}}},
                             Dialogs,
                             &Reader,
                             true,
                             [this] { ++Saved; },
                             [this] { ++Simulated; }},
                            &Ground);
    Ground.show();
    Window->show();
    Window->activateWindow();
    ASSERT_TRUE(WaitActive(*Window));
  }

  template <class Control>
  Control& Find(const char* name) const {
    auto* control = Window->findChild<Control*>(QLatin1String(name));
    if (control == nullptr) {
      throw std::runtime_error(std::string("no control ") + name);
    }
    return *control;
  }
  std::string Text(const char* label) const { return Find<QLabel>(label).text().toStdString(); }
  std::string Row(int row) const { return Find<QListWidget>("lstConnect").item(row)->text().toStdString(); }
  void Click(const char* button) const { QTest::mouseClick(&Find<QPushButton>(button), Qt::LeftButton); }
  ScriptedPort& Device() { return *Rig.Ports.at("/dev/ttyUSB0?baud=auto"); }

  /// So many seconds of wind, speed, heading and position on the device.
  void Hear(int seconds) {
    for (int second = 0; second < seconds; ++second) {
      const std::string digit = std::to_string(m_heard++ % 10);
      for (const std::string& body :
           {"IIMWV,35" + digit + ",R,10,N,A", "IIVHW,,T,101,M,5." + digit + ",N,,",
            "HCHDG,10" + digit + ",,,3,E", "GPRMC,,A,,,,,6." + digit + ",108,,3,E"}) {
        Device().Receive(Sentence(body));
      }
      Rig.Time.Pass(1000);
    }
  }
  /// The window looks again.
  void Look() const {
    QMetaObject::invokeMethod(Window->findChild<QTimer*>(QStringLiteral("tmrConnect")), "timeout",
                              Qt::DirectConnection);
  }
  void HearAll() {
    Hear(10);
    Look();
    EXPECT_EQ(Find<QListWidget>("lstConnect").item(0)->checkState(), Qt::Checked);
    Hear(3);
  }
  void Next(int times) const {
    for (int i = 0; i < times; ++i) {
      Click("cmdConnectNext");
    }
  }

 private:
  int m_heard = 0;
};

}  // namespace veerwatch
