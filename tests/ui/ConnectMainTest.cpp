// The assistant "Connect Your Boat..." beside the main window: the row that offers it, its ports, its help.

#include <gmock/gmock.h>

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTextBlock>
#include <QTextBrowser>
#include <QToolBar>
#include <QtTest/QTest>
#include <algorithm>
#include <string>

#include "connect/frmConnect.h"
#include "platform/PortNames.h"
#include "tests/connect/ListenRig.h"
#include "tests/support/WaitQt.h"
#include "tests/ui/MainWindowTester.h"

namespace veerwatch {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

class ConnectMain : public MainWindowTester {
 public:
  ListenRig Rig;
  bool Listens = true;

  NamedPort::Maker Ports() override { return Listens ? Rig.Maker() : NamedPort::Maker(); }
  QToolBar* Offer() const { return Window->findChild<QToolBar*>(QStringLiteral("tbrConnect")); }
  frmConnect* Assistant() const {
    auto* found = Window->findChild<frmConnect*>();
    return found != nullptr && found->isVisible() ? found : nullptr;
  }
};

TEST_F(ConnectMain, IsOfferedInARowOnlyWhereNoProfileLies) {
  Start();
  ASSERT_NE(Offer(), nullptr);
  EXPECT_GE(Offer()->y(), Find<QToolBar>("tbrTrack").geometry().bottom()) << "under the mode bar";
  Click("cmdConnectOffer");
  EXPECT_NE(Assistant(), nullptr);
  Assistant()->reject();
  const int cards = Find<QWidget>("InstrumentPanel").height();
  Click("cmdConnectOfferClose");
  QTest::qWait(50);
  EXPECT_EQ(Offer(), nullptr);
  EXPECT_GT(Find<QWidget>("InstrumentPanel").height(), cards);
  EXPECT_TRUE(Find<QAction>("mnuHelpConnect").isEnabled());
}

TEST_F(ConnectMain, IsNotOfferedWithAProfileAndStandsInTheMenu) {
  Start(kOnPorts);
  EXPECT_EQ(Offer(), nullptr);
  Find<QAction>("mnuHelpConnect").trigger();
  EXPECT_NE(Assistant(), nullptr);
}

TEST_F(ConnectMain, TheHelpKeyOpensTheManualAtThePage) {
  Start(kOnPorts);
  Find<QAction>("mnuHelpConnect").trigger();
  for (const char* heading : {"1. Instruments", "2. Values", "3. Autopilot"}) {
    QTest::keyClick(Assistant(), Qt::Key_F1);
    const auto windows = QApplication::topLevelWidgets();
    const auto book = std::find_if(windows.begin(), windows.end(), [](const QWidget* window) {
      return window->objectName() == QLatin1String("frmManual");
    });
    ASSERT_NE(book, windows.end());
    // Small, so that the last headings can stand at its top, too.
    (*book)->resize(400, 250);
    QTest::keyClick(Assistant(), Qt::Key_F1);
    const QTextBrowser& pages = *(*book)->findChild<QTextBrowser*>();
    EXPECT_TRUE(WaitFor([&pages, heading] {
      return pages.cursorForPosition(QPoint(30, 2)).block().text() == QLatin1String(heading);
    })) << heading;
    Assistant()->findChild<QPushButton*>(QStringLiteral("cmdConnectNext"))->click();
  }
}

TEST_F(ConnectMain, WithoutPortsToListenToThereIsNone) {
  Listens = false;
  Start();
  EXPECT_EQ(Offer(), nullptr);
  EXPECT_FALSE(Find<QAction>("mnuHelpConnect").isEnabled());
}

TEST_F(ConnectMain, WhatTheProgramReadsFromStaysOpenAndIsSaidToBeInUse) {
  Start(std::string(kOnPorts) + "[Ports]\n3=/dev/ttyUSB0\n");
  Find<QAction>("mnuHelpConnect").trigger();
  ASSERT_NE(Assistant(), nullptr);
  EXPECT_TRUE(NmeaPort.PortOpen());
  NmeaPort.Receive(Winds("40", "60"));
  EXPECT_TRUE(WaitFor([this] {
    return Assistant()
        ->findChild<QListWidget*>(QStringLiteral("lstConnect"))
        ->item(0)
        ->text()
        .startsWith(QStringLiteral("Port 3 (/dev/ttyUSB0): in use now: MWV R"));
  }));
  Assistant()->reject();
  EXPECT_TRUE(NmeaPort.PortOpen());
}

TEST_F(ConnectMain, NoBoxComesUpOnTheWayThroughThePages) {
  Start();
  Click("cmdConnectOffer");
  auto* next = Assistant()->findChild<QPushButton*>(QStringLiteral("cmdConnectNext"));
  for (int page = 1; page < 5; ++page) {
    QTest::mouseClick(next, Qt::LeftButton);
  }
  EXPECT_EQ(Assistant()->findChild<QLabel*>(QStringLiteral("lblConnectPage"))->text(), "5 of 5: Ready");
  EXPECT_THAT(Dialogs.Messages, IsEmpty()) << "there is no polar file here";
}

TEST_F(ConnectMain, TheSimulatedBoatSailsAtOnce) {
  Start();
  Click("cmdConnectOffer");
  QTest::mouseClick(Assistant()->findChild<QPushButton*>(QStringLiteral("cmdConnectSimulate")),
                    Qt::LeftButton);
  EXPECT_TRUE(Window->m_bSimulate);
  EXPECT_EQ(Window->m_eSimulateModel, SimulateModel::Boat);
  EXPECT_EQ(Window->m_eTrackMode, TrackMode::Manual);
  EXPECT_EQ(Assistant(), nullptr);
}

TEST_F(ConnectMain, ThePortsOfTheAssistantAreInTheProfileAfterSave) {
  Start("[Ports]\n1=/dev/old\n[Nmea]\nPort=1\n[Pilot]\nPort=1\n");
  NamePort(Store, 2, "/dev/new");
  Window->KeepSettings();
  EXPECT_THAT(ReadProfile(), HasSubstr("[Ports]\n1=/dev/old\n2=/dev/new\n"));
  // What is edited in the file meanwhile stays.
  WriteProfile("[Ports]\n1=/dev/edited\n2=/dev/new\n");
  Window->KeepSettings();
  EXPECT_THAT(ReadProfile(), HasSubstr("[Ports]\n1=/dev/edited\n2=/dev/new\n"));
}

TEST_F(ConnectMain, TheCloseCancelsIt) {
  Start(kOnPorts);
  Find<QAction>("mnuHelpConnect").trigger();
  const std::size_t open = Rig.Ports.size();
  EXPECT_GT(open, 0U);
  Window->close();
  EXPECT_EQ(Assistant(), nullptr);
}

}  // namespace
}  // namespace veerwatch
