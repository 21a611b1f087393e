// Two hands never steer: whatever takes the pilot ends a manoeuvre that runs, and leaves the bearing alone.

#include <QShortcut>
#include <functional>

#include "tests/ui/TackTester.h"

namespace veerwatch {
namespace {

struct Hand {
  const char* Name;
  std::function<void(TackTester&)> Takes;
  float Bearing;  ///< where the other hand leaves the pilot
};

void PrintTo(const Hand& hand, std::ostream* out) { *out << hand.Name; }

class TackOtherHand : public TackTester, public testing::WithParamInterface<Hand> {};

TEST_P(TackOtherHand, EndsTheTurnAtOnceAndLeavesTheBearingAlone) {
  Start(kOnPorts);
  NmeaPort.Receive(Winds("45", "50"));
  RunTack();
  GetParam().Takes(*this);
  EXPECT_FALSE(TimerTack.Enabled());
  EXPECT_FALSE(Open());
  EXPECT_EQ(Window->m_fAutoPilot, GetParam().Bearing);
  Window->TimerTack_Timer();
  TimerTack.Tick(20);
  EXPECT_EQ(Window->m_fAutoPilot, GetParam().Bearing);
}

void TypeBearing(TackTester& test, const char* text) {
  test.Type("txtAutoPilot", text);
  test.Enter("txtAutoPilot");
}

INSTANTIATE_TEST_SUITE_P(
    Hands, TackOtherHand,
    testing::Values(
        Hand{"Off", [](auto& test) { test.Mode(1); }, 132.0F},
        Hand{"Setup", [](auto& test) { test.Mode(3); }, 132.0F},
        Hand{"Track", [](auto& test) { test.Mode(7); }, 132.0F},
        Hand{"OffByKey", [](auto& test) { QTest::keyClick(test.Window.get(), Qt::Key_F5); }, 132.0F},
        Hand{"SetupByKey", [](auto& test) { QTest::keyClick(test.Window.get(), Qt::Key_F6); }, 132.0F},
        Hand{"TrackByKey", [](auto& test) { QTest::keyClick(test.Window.get(), Qt::Key_F8); }, 132.0F},
        Hand{"OffFromAnotherWindow", [](auto& test) { test.Window->TrackSetOff(); }, 132.0F},
        Hand{"ATypedBearing", [](auto& test) { TypeBearing(test, "200.5"); }, 200.5F},
        Hand{"TheSameBearingTyped", [](auto& test) { TypeBearing(test, "132"); }, 132.0F},
        Hand{"ATypedBearingThatIsLeft",
             [](auto& test) {
               test.Type("txtAutoPilot", "90");
               QTest::keyClick(&test.template Find<QLineEdit>("txtAutoPilot"), Qt::Key_Tab);
             },
             90.0F},
        Hand{"ANudgeToPort", [](auto& test) { test.Click("cmdAutoPilot(1)"); }, 131.0F},
        Hand{"ANudgeToStarboard", [](auto& test) { test.Click("cmdAutoPilot(2)"); }, 133.0F},
        Hand{"ANudgeByKey",
             [](auto& test) { QTest::keyClick(test.Window.get(), Qt::Key_Left, Qt::AltModifier); }, 131.0F},
        Hand{"ASteeringChangeInTrack",
             [](auto& test) {
               test.Mode(7);
               test.Window->TrackSteerTo(3.0F);
             },
             135.0F},
        Hand{"Silence", [](auto& test) { test.tmrNmea.Tick(4); }, 132.0F},
        Hand{"ALostWind",
             [](auto& test) {
               for (int second = 0; second < 5; ++second) {
                 test.NmeaPort.Receive("$IIHDG,100.0,,,,\r");
                 test.tmrNmea.Tick();
               }
             },
             132.0F},
        Hand{"TheInputStopped", [](auto& test) { test.Window->NmeaStop(); }, 132.0F},
        Hand{"TheDefaults", [](auto& test) { test.template Find<QAction>("mnuFileDefault").trigger(); },
             40.0F},
        Hand{"TheProfile", [](auto& test) { test.Window->ProfileRecall(true); }, 100.0F},
        Hand{"TheClose", [](auto& test) { EXPECT_TRUE(test.Window->close()); }, 132.0F},
        Hand{"TheEndOfTheSession", [](auto& test) { test.Window->CloseUnasked(); }, 132.0F}),
    [](const auto& hand) { return std::string(hand.param.Name); });

class TackHands : public TackTester {};

TEST_F(TackHands, ACloseThatWaitsEndsTheTurnToo) {
  Start(kOnPorts);
  NmeaPort.Receive(Winds("30", "40"));
  Mode(7);
  RunTack();
  // A wind that is being handled while the window closes.
  bool closed = true;
  const auto inside = QObject::connect(Window.get(), &QWidget::windowTitleChanged, Window.get(),
                                       [&] { closed = Window->close(); });
  NmeaPort.Receive("$WIHVM,1,E\r$GPRMC,1,A,1,N,1,E,7,90,1,3.0,E,A\r" + Winds("35", "44"));
  QObject::disconnect(inside);
  ASSERT_FALSE(closed) << "the close was to come while the wind is handled";
  EXPECT_FALSE(TimerTack.Enabled());
  TimerTack.Tick();
  EXPECT_EQ(Window->m_fAutoPilot, 132.0F);
  tmrUnload.Tick();
  EXPECT_FALSE(Window->isVisible());
}

TEST_F(TackHands, WhatTakesNotThePilotLeavesTheTurn) {
  Start(kOnPorts);
  RunTack();
  Mode(5);
  Window->m_fTrackBandwidth = 0.0F;
  Mode(7);
  EXPECT_EQ(Window->m_eTrackMode, TrackMode::Manual) << "refused";
  QTest::mouseClick(&Find<QLineEdit>("txtAutoPilot"), Qt::LeftButton);
  QTest::keyClick(&Find<QLineEdit>("txtAutoPilot"), Qt::Key_Tab);
  Click("optControl(2)");
  Type("txtDesired(2)", "50");
  Enter("txtDesired(2)");
  Window->TrackSteerTo(5.0F);
  tmrNmea.Tick(3);
  NmeaPort.Receive(Winds("45", "50"));
  tmrNmea.Tick(3);
  Find<QAction>("mnuViewHistory").trigger();
  EXPECT_TRUE(Open());
  TimerTack.Tick();
  EXPECT_EQ(Window->m_fAutoPilot, 142.0F);
}

TEST_F(TackHands, ABearingThatIsBeingTypedIsLeftAloneByTheTurn) {
  Start(kOnPorts);
  RunTack();
  Type("txtAutoPilot", "20");
  TimerTack.Tick();
  EXPECT_EQ(Entry("txtAutoPilot"), "20");
  EXPECT_EQ(Window->m_fAutoPilot, 142.0F);
  Enter("txtAutoPilot");
  EXPECT_EQ(Window->m_fAutoPilot, 20.0F);
  EXPECT_FALSE(Open());
}

TEST_F(TackHands, BeforeOkNobodyIsInTheWay) {
  Start(kOnPorts);
  OpenTack();
  Mode(7);
  Mode(3);
  TypeBearing(*this, "150");
  tmrNmea.Tick(4);
  EXPECT_TRUE(Open());
  EXPECT_EQ(Window->m_fAutoPilot, 150.0F);
}

TEST_F(TackHands, AnAlarmLeavesTheDialogInFront) {
  Start(kOnPorts);
  NmeaPort.Receive(Winds("30", "40"));
  Mode(7);
  OpenTack();
  ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == Dialog(); }));
  Find<QPushButton>("cmdCancel").setFocus();
  NmeaPort.Receive("$WIMWV,50,R,10,N,A\r");
  EXPECT_EQ(Dialogs.Beeps, 1);
  EXPECT_EQ(Dialogs.Foregrounds, 0);
  Window->activateWindow();
  ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == Window.get(); }));
  NmeaPort.Receive("$WIMWV,50,R,10,N,A\r");
  EXPECT_EQ(Dialogs.Foregrounds, 1);
}

TEST_F(TackHands, InTheSimulatorTheTurnGoesOn) {
  Start(kSimulated);
  Window->TackOpen(178.0F, 278.0F, -50.0F);
  Click("cmdOk");
  for (int second = 0; second < 5; ++second) {
    tmrNmea.Tick();
    TimerTack.Tick();
  }
  EXPECT_TRUE(Open());
  EXPECT_EQ(Window->m_fAutoPilot, 225.0F);
}

TEST_F(TackHands, TheEndOfAnotherTurnLeavesTheBearing) {
  Start(kOnPorts);
  NmeaPort.Receive(Winds("45", "50"));
  RunTack();
  Click("cmdCancel");
  Window->TurnBegins();
  Window->AutoPilotSet(200.0F);
  // The wind is lost.
  tmrNmea.Tick(8);
  EXPECT_EQ(Window->Now().Hand, PilotHand::User) << "it is over";
  EXPECT_EQ(Window->m_fAutoPilot, 200.0F);
}

}  // namespace
}  // namespace veerwatch
