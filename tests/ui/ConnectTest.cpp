// The assistant "Connect Your Boat...": its pages on ports in memory.

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QKeySequence>
#include <QLabel>
#include <QListWidget>
#include <QMap>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <QtTest/QTest>
#include <memory>
#include <stdexcept>
#include <string>

#include "platform/ColoursQt.h"
#include "platform/LanguageQt.h"
#include "platform/PortNames.h"
#include "tests/support/PictureQt.h"
#include "tests/support/WaitQt.h"
#include "tests/ui/ConnectTester.h"
#include "tests/ui/DarkPalette.h"
#include "tests/ui/MainWindowTester.h"

namespace veerwatch {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;

class Connect : public ConnectTester {};

TEST_F(Connect, ShowsWhatComesAndTicksIt) {
  Open();
  EXPECT_EQ(Text("lblConnectPage"), "1 of 5: Instruments");
  EXPECT_EQ(Row(0), "USB serial (FTDI): searching the rate, now 4800 baud");
  HearAll();
  Look();
  EXPECT_EQ(Row(0), "USB serial (FTDI), 4800: MWV R 1/s, VHW 1/s, HDG 1/s, RMC 1/s");
  EXPECT_EQ(Row(1), "TCP 10110 on this computer: nothing comes");
  EXPECT_TRUE(Find<QListWidget>("lstConnect").item(1)->data(Qt::CheckStateRole).isNull()) << "no box";
  EXPECT_FALSE(Find<QListWidget>("lstConnect").item(1)->flags() & Qt::ItemIsUserCheckable);
  // The space bar takes the tick away and gives it back.
  auto& list = Find<QListWidget>("lstConnect");
  list.setFocus();
  list.setCurrentRow(0);
  QTest::keyClick(&list, Qt::Key_Space);
  Look();
  EXPECT_THAT(Text("lblConnectHint"), HasSubstr("Nothing is ticked"));
  QTest::keyClick(&list, Qt::Key_Space);
  Look();
  EXPECT_EQ(Text("lblConnectHint"), "");
}

TEST_F(Connect, EnterInTheBoxOfAPlaceListensToItAndStays) {
  Open();
  auto& place = Find<QLineEdit>("txtConnectHost");
  QTest::mouseClick(&place, Qt::LeftButton);
  QTest::keyClicks(&place, QStringLiteral("gate:1456"));
  QTest::keyClick(&place, Qt::Key_Return);
  EXPECT_EQ(Text("lblConnectPage"), "1 of 5: Instruments");
  EXPECT_EQ(Row(6), "TCP 1456 on gate: listening...");
}

TEST_F(Connect, WhatAnnouncesItselfJoinsTheList) {
  Open();
  Reader.Asked("=;e;IPv4;Gate;_nmea-0183._tcp;local;g.local;10.0.0.9;1456;\n");
  Look();
  EXPECT_EQ(Row(6), "Gate at 10.0.0.9 (NMEA 0183, announced): listening...");
}

TEST_F(Connect, WhatAnnouncesItselfTooLateOpensNothing) {
  Open();
  const std::size_t open = Rig.Ports.size();
  const char* announced = "=;e;IPv4;Gate;_nmea-0183._tcp;local;g.local;10.0.0.9;1456;\n";
  Window->reject();
  Reader.Asked(announced);
  EXPECT_EQ(Rig.Ports.size(), open);
  EXPECT_TRUE(WaitFor([this] { return Window == nullptr; }));
  Reader.Asked(announced);
  EXPECT_EQ(Rig.Ports.size(), open);
}

TEST_F(Connect, ShowsEachValueWithItsSentenceAndTakesAnother) {
  Open();
  HearAll();
  Next(1);
  EXPECT_EQ(Text("lblConnectPage"), "2 of 5: Values");
  EXPECT_THAT(Text("lblConnectWindApparent"), HasSubstr(" deg, 10.0 kn"));
  EXPECT_EQ(Text("lblConnectHeading"), "102 deg");
  EXPECT_EQ(Text("lblConnectMissingWaypoint"), "no waypoint: no courses to it");
  auto& heading = Find<QComboBox>("cmbConnectHeading");
  EXPECT_EQ(heading.count(), 3);
  EXPECT_EQ(heading.currentText(), "HDG 1/s");
  heading.setFocus();
  QTest::keyClick(&heading, Qt::Key_Down);
  EXPECT_EQ(heading.currentText(), "VHW 1/s");
  Hear(1);
  Look();
  EXPECT_EQ(Text("lblConnectHeading"), "101 deg");
}

TEST_F(Connect, SetsVaneLogAndCompassByAClick) {
  Open();
  HearAll();
  Next(1);
  Click("cmdConnectVane");
  Click("cmdConnectLog");
  Click("cmdConnectCompass");
  Hear(1);
  Look();
  EXPECT_THAT(Text("lblConnectVane"), HasSubstr("Wind angle offset 9 deg"));
  EXPECT_THAT(Text("lblConnectLog"), HasSubstr("Log factor 1.2"));
  Next(3);
  EXPECT_THAT(Find<QPlainTextEdit>("txtConnectWords").toPlainText().toStdString(),
              HasSubstr("Wind angle offset: +9 deg (now 0 deg)"));
}

TEST_F(Connect, AWrongPortOfThePilotIsSaidAndHoldsBack) {
  Open();
  HearAll();
  Next(2);
  EXPECT_EQ(Text("lblConnectPage"), "3 of 5: Autopilot");
  EXPECT_EQ(Text("lblConnectPilot"), "One port for both ways: the instruments and the autopilot.");
  EXPECT_THAT(Text("lblPilotSentences"), HasSubstr("$ECAPB,"));
  auto& port = *Find<QComboBox>("cmbConnectPilot").lineEdit();
  port.selectAll();
  QTest::keyClicks(&port, QStringLiteral("tcp://pilot:x"));
  EXPECT_THAT(Text("lblConnectPilot"), HasSubstr("\"x\" is no port"));
  QTest::keyClick(Window, Qt::Key_Return);
  EXPECT_EQ(Text("lblConnectPage"), "3 of 5: Autopilot");
  Look();
  EXPECT_FALSE(Find<QPushButton>("cmdConnectNext").isEnabled());
  port.selectAll();
  QTest::keyClicks(&port, QStringLiteral("tcp://pilot:2000"));
  Look();
  EXPECT_TRUE(Find<QPushButton>("cmdConnectNext").isEnabled());
  EXPECT_TRUE(Find<QPushButton>("cmdPilotTest").isEnabled());
}

TEST_F(Connect, EachPageOpensAtItsTop) {
  Open();
  Window->resize(500, 300);
  Next(3);
  EXPECT_EQ(Text("lblConnectPage"), "4 of 5: How it steers");
  QScrollBar* bar =
      dynamic_cast<QScrollArea*>(Window->findChild<QStackedWidget*>()->currentWidget())->verticalScrollBar();
  ASSERT_TRUE(WaitFor([bar] { return bar->maximum() > 0; }));
  bar->setValue(bar->maximum());
  Click("cmdConnectBack");
  Next(1);
  EXPECT_EQ(bar->value(), 0);
}

TEST_F(Connect, EachKeyOfAPageIsItsOwnInEveryLanguage) {
  for (const char* language : {"en", "de"}) {
    InstallLanguage(language);
    Open();
    for (int page = 0; page < 5; ++page) {
      QMap<QString, QString> keys;
      for (const QWidget* each : Window->findChildren<QWidget*>()) {
        const auto* button = dynamic_cast<const QAbstractButton*>(each);
        const auto* label = dynamic_cast<const QLabel*>(each);
        const bool buddy = label != nullptr && label->buddy() != nullptr;
        if (!each->isVisible() || (button == nullptr && !buddy)) {
          continue;
        }
        const QString text = button != nullptr ? button->text() : label->text();
        const QString key = QKeySequence::mnemonic(text).toString();
        EXPECT_TRUE(key.isEmpty() || !keys.contains(key))
            << language << ": " << text.toStdString() << " and " << keys.value(key).toStdString();
        keys.insert(key, text);
      }
      EXPECT_GT(keys.size(), 2);
      Next(page < 4 ? 1 : 0);
    }
    delete Window;
  }
  InstallLanguage("en");
}

TEST_F(Connect, TheTestOfThePilotUsesWhatIsChosenAndBringsEverythingBack) {
  Open();
  HearAll();
  Next(2);
  Click("cmdPilotTest");
  EXPECT_EQ(Text("lblConnectTest"), "Waiting for a heading and the wind...");
  EXPECT_EQ(PortDevice(Store, 5), "/dev/ttyUSB0?baud=4800");
  EXPECT_FALSE(Device().PortOpen()) << "the program itself needs it";
  Main.m_eTrackMode = TrackMode::Manual;
  Main.Answer.Mode = TrackMode::Manual;
  Main.Answer.Hand = PilotHand::User;
  Look();
  EXPECT_EQ(Text("lblConnectTest"), "No wind comes, and without it nothing is sent.");
  Main.Answer.InputStarted = true;
  Main.Answer.InputOpen = true;
  Main.Answer.OutputOpen = true;
  Main.Answer.Heading = 100.0F;
  Look();
  ASSERT_EQ(Dialogs.Questions.size(), 1U) << "the answer is No";
  EXPECT_THAT(Dialogs.Questions.back().Text, HasSubstr("10 degrees to starboard"));
  EXPECT_EQ(Store.Content(), "");
  EXPECT_TRUE(Device().PortOpen());
}

TEST_F(Connect, NothingIsWrittenBeforeSaveAndCancelLeavesEverything) {
  Open();
  HearAll();
  Next(4);
  EXPECT_EQ(Text("lblConnectPage"), "5 of 5: Ready");
  EXPECT_EQ(Find<QPushButton>("cmdConnectNext").text(), "Save and &go to Setup");
  EXPECT_THAT(Find<QPlainTextEdit>("txtConnectWords").toPlainText().toStdString(),
              AllOf(HasSubstr("Instruments\n\u2022 Port 5 leads to /dev/ttyUSB0?baud=4800\n"),
                    HasSubstr("Tracking method: Direction (now Sentence)\n")));
  ScriptedPort& device = Device();
  EXPECT_TRUE(device.PortOpen());
  QTest::keyClick(Window, Qt::Key_Escape);
  EXPECT_THAT(Main.Calls, IsEmpty());
  EXPECT_EQ(Store.Content(), "");
  EXPECT_EQ(Saved, 0);
  EXPECT_FALSE(Window->isVisible());
  EXPECT_FALSE(device.PortOpen());
}

TEST_F(Connect, SaveWritesWhatStoodThere) {
  Open();
  HearAll();
  Next(3);
  // The first of what is recommended is not wanted.
  QTest::keyClick(&Find<QCheckBox>("chkRecommended1"), Qt::Key_Space);
  Next(2);
  EXPECT_THAT(Main.Calls, testing::ElementsAre("Off 5 5", "Setup 5 5"));
  EXPECT_EQ(PortDevice(Store, 5), "/dev/ttyUSB0?baud=4800");
  EXPECT_EQ(Main.m_eTrackMethod, TrackMethod::Sentence);
  EXPECT_TRUE(Main.m_bWatchAct);
  EXPECT_EQ(Saved, 1);
  EXPECT_FALSE(Window && Window->isVisible());
}

TEST_F(Connect, GoesByKeysAlone) {
  Open();
  HearAll();
  const auto page = [this] { return QString::fromStdString(Text("lblConnectPage")); };
  const auto alt = [this](Qt::Key key) { QTest::keyClick(Window, key, Qt::AltModifier); };
  alt(Qt::Key_N);
  ASSERT_TRUE(WaitForEqual(page, QStringLiteral("2 of 5: Values")));
  QTest::keyClick(Window, Qt::Key_Tab);
  EXPECT_EQ(Window->focusWidget()->objectName(), "cmbConnectWindApparent");
  QTest::keyClick(Window, Qt::Key_Return);
  EXPECT_EQ(page(), "3 of 5: Autopilot");
  alt(Qt::Key_B);
  ASSERT_TRUE(WaitForEqual(page, QStringLiteral("2 of 5: Values")));
  for (const char* next : {"3 of 5: Autopilot", "4 of 5: How it steers", "5 of 5: Ready"}) {
    alt(Qt::Key_N);
    ASSERT_TRUE(WaitForEqual(page, QString::fromLatin1(next)));
  }
  alt(Qt::Key_G);
  EXPECT_TRUE(WaitForEqual([this] { return Saved; }, 1));
}

TEST_F(Connect, ShowsTheProgramWithoutABoat) {
  Open();
  QTest::keyClick(Window, Qt::Key_S, Qt::AltModifier);
  EXPECT_TRUE(WaitForEqual([this] { return Simulated; }, 1));
  EXPECT_FALSE(Window && Window->isVisible());
}

TEST_F(Connect, FitsASmallScreenAndIsRedAtNight) {
  WearNightColours(true);
  Open();
  HearAll();
  Window->resize(760, 440);
  for (int page = 0; page < 5; ++page) {
    EXPECT_LE(Window->minimumSizeHint().height(), 440) << page;
    EXPECT_LE(Window->minimumSizeHint().width(), 760) << page;
    const QImage picture = Window->grab().toImage();
    KeepPicture(picture, QStringLiteral("frmConnect-night-%1").arg(page));
    int bright = 0;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        const QRgb pixel = picture.pixel(x, y);
        bright += qBlue(pixel) > 130 || qBlue(pixel) > qRed(pixel) ? 1 : 0;
      }
    }
    EXPECT_EQ(bright, 0) << page;
    if (page < 4) {
      Next(1);
    }
  }
}

TEST_F(Connect, IsDarkOnADarkDesktop) {
  const QPalette palette = QApplication::palette();
  QApplication::setPalette(DarkPalette());
  Open();
  HearAll();
  for (int page = 0; page < 5; ++page) {
    const QImage picture = Window->grab().toImage();
    KeepPicture(picture, QStringLiteral("frmConnect-dark-%1").arg(page));
    EXPECT_GT(ContrastRatio(GroundOf(picture), Qt::white), 12.0) << page;
    if (page < 4) {
      Next(1);
    }
  }
  QApplication::setPalette(palette);
}

// In the main window

}  // namespace
}  // namespace veerwatch
