// What the main window shows: values, panels, caption and alarm.

#include <gmock/gmock.h>

#include <QDoubleSpinBox>
#include <vector>

#include "tests/support/PictureQt.h"
#include "tests/ui/MainWindowTester.h"

namespace veerwatch {
namespace {

const QColor kAlarmColour(255, 128, 128);

class MainWindowStatus : public MainWindowTester {
 public:
  QColor DeltaColour(int index) const {
    const auto& label = Find<QLabel>(QStringLiteral("lblDelta(%1)").arg(index).toLatin1().constData());
    return label.palette().color(label.backgroundRole());
  }
  QColor WindowColour() const { return Window->palette().color(QPalette::Window); }
};

TEST_F(MainWindowStatus, ValuesStandInTheirFormats) {
  Start(kOnPorts);
  NmeaPort.Receive("$GPRMC,1,A,1,N,1,E,7.25,271.5,1,3.0,E,A\r$GPRMB,A,1,R,1,2,1,N,1,E,12.5,182.5,5,V\r" +
                   Winds("-30.5", "178.6"));
  EXPECT_EQ(Text("lblHeading"), "269");
  EXPECT_EQ(Text("lblBoatSpeed"), "7.3");
  EXPECT_EQ(Text("lblWaypointBearing"), "180") << "182.5 true, less 3 of variation: 179.5";
  EXPECT_EQ(Text("lblAppWindAngle"), "-31");
  EXPECT_EQ(Text("lblAppWindSpeed"), "10.0");
  EXPECT_EQ(Text("lblTrueWindAngle"), "179");
  EXPECT_EQ(Text("lblTrueWindSpeed"), "8.0");
  EXPECT_EQ(Text("lblDelta(1)"), "0.0");
}

TEST_F(MainWindowStatus, TheSimulatorShowsItsBoat) {
  Start(kSimulated);
  tmrNmea.Tick();
  EXPECT_EQ(Text("lblHeading"), "278");
  EXPECT_EQ(Text("lblBoatSpeed"), "7.2");
  EXPECT_EQ(Text("lblWaypointBearing"), "268");
  EXPECT_EQ(Text("lblTrueWindAngle"), "-50");
  EXPECT_EQ(Text("lblTrueWindSpeed"), "14.0");
  // 14 knots from 50 degrees on the bow and 7.2 knots of boat speed.
  EXPECT_EQ(Text("lblAppWindAngle"), "-34");
  EXPECT_EQ(Text("lblAppWindSpeed"), "19.4");
  EXPECT_EQ(Entry("txtDesired(1)"), "-34");
  EXPECT_EQ(Entry("txtDesired(2)"), "-50");
}

TEST_F(MainWindowStatus, ANewStartOfTheInputBlanksTheSevenValues) {
  Start(kSimulated);
  tmrNmea.Tick();
  Mode(3);
  for (const char* label : {"lblHeading", "lblBoatSpeed", "lblWaypointBearing", "lblAppWindAngle",
                            "lblAppWindSpeed", "lblTrueWindAngle", "lblTrueWindSpeed"}) {
    EXPECT_EQ(Text(label), "") << label;
  }
  EXPECT_EQ(Text("lblDelta(1)"), "0.0");
}

TEST_F(MainWindowStatus, StartsInSetupAndInManualWhenSimulating) {
  Start(kOnPorts);
  EXPECT_EQ(Window->m_eTrackMode, TrackMode::Setup);
  EXPECT_EQ(Text("StatusBar(1)"), "Initialize");
  EXPECT_EQ(Text("StatusBar(2)"), "");
  EXPECT_EQ(Text("StatusBar(3)"), "");
  EXPECT_TRUE(NmeaPort.PortOpen());
  EXPECT_TRUE(PilotPort.PortOpen());
  EXPECT_EQ(NmeaPort.OpenedNumbers, std::vector<int>{3});
  EXPECT_EQ(PilotPort.OpenedNumbers, std::vector<int>{4});
  EXPECT_EQ(tmrNmea.Milliseconds, 1000);
  EXPECT_EQ(Caption(), "Veerwatch");
  Window->m_bSimulate = true;
  WriteProfile(kSimulated);
  Window->ProfileRecall(true);
  EXPECT_EQ(Window->m_eTrackMode, TrackMode::Manual);
  EXPECT_EQ(Text("StatusBar(1)"), "Manual");
  EXPECT_EQ(Text("StatusBar(2)"), "Simulate");
  EXPECT_EQ(Text("StatusBar(3)"), "Simulate");
}

TEST_F(MainWindowStatus, BesideTheBearingStandHeadingAndTheAgeOfTheSentence) {
  Start(kOnPorts);
  NmeaPort.Receive("$GPVTG,,T,271.0,M,6.0,N,11.0,K,A\r" + Winds("30", "40"));
  EXPECT_EQ(Text("lblPilotSent"), "") << "in Setup nothing is sent";
  EXPECT_EQ(Text("lblPilotHeading"), "");
  for (const int mode : {5, 7}) {
    Mode(mode);
    Time.Pass(5000);
    NmeaPort.Receive(Winds("30", "40"));
    EXPECT_THAT(Text("lblPilotHeading"), testing::StartsWith("Heading 271"));
    EXPECT_EQ(Text("lblPilotSent"), "sent now");
    Time.Pass(3000);
    tmrNmea.Tick();
    EXPECT_EQ(Text("lblPilotSent"), "sent 3 s ago");
    // What was gone counts from its second sentence.
    for (const char* heading : {"271.6", "271.8", "272.0"}) {
      NmeaPort.Receive("$GPVTG,,T," + std::string(heading) + ",M,6.0,N,11.0,K,A\r");
    }
    tmrNmea.Tick();
    EXPECT_EQ(Text("lblPilotHeading"), "Heading 272");
    NmeaPort.Receive("$GPVTG,,T,271.0,M,6.0,N,11.0,K,A\r");
  }
  Mode(1);
  EXPECT_EQ(Text("lblPilotSent"), "");
}

TEST_F(MainWindowStatus, UnderTheBearingStandsWhetherTheBoatFollowsIt) {
  Start(kOnPorts);
  Window->resize(1160, 760);
  const auto sail = [this](int seconds, const std::string& heading) {
    for (int i = 0; i < seconds; ++i) {
      Time.Pass(1000);
      NmeaPort.Receive("$GPVTG,,T," + heading + ",M,6.0,N,11.0,K,A\r" +
                       Winds(std::to_string(30 + i % 3), "40"));
      tmrNmea.Tick();
    }
  };
  const auto keep = [this](const char* name) {
    QTest::qWait(0);
    KeepPicture(Window->grab().toImage(), QStringLiteral("follows-") + QLatin1String(name));
  };
  sail(3, "100.0");
  EXPECT_EQ(Text("lblPilotFollows"), "") << "in Setup nothing is sent";
  Mode(5);
  EXPECT_EQ(Text("lblPilotFollows"), "Pilot: Unknown");
  Type("txtAutoPilot", "105");
  Enter("txtAutoPilot");
  sail(400, "100.0");
  EXPECT_EQ(Text("lblPilotFollows"), "Pilot: Follows, offset +5");
  keep("light");
  Type("txtAutoPilot", "200");
  Enter("txtAutoPilot");
  sail(20, "100.0");
  EXPECT_EQ(Text("lblPilotFollows"), "Pilot: Does not follow");
  const auto& label = Find<QLabel>("lblPilotFollows");
  for (const bool night : {false, true}) {
    WearNightColours(night);
    keep(night ? "not-night" : "not-light");
    EXPECT_GE(label.width(),
              label.fontMetrics().horizontalAdvance(QStringLiteral("Pilot: Turns the wrong way")));
  }
  WearNightColours(false);
  Window->resize(Window->minimumSize());
  keep("small");
  Mode(1);
  EXPECT_EQ(Text("lblPilotFollows"), "");
}

TEST_F(MainWindowStatus, TheBearingThatIsSentIsAsBrightInTrackAsInManual) {
  Start(kOnPorts);
  NmeaPort.Receive(Winds("30", "40"));
  const auto colour = [&] {
    const auto& box = Find<QLineEdit>("txtAutoPilot");
    return box.palette().color(box.isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::Text);
  };
  Mode(5);
  const QColor bright = colour();
  Mode(7);
  EXPECT_EQ(colour(), bright);
  Mode(1);
  EXPECT_NE(colour(), bright);
}

TEST_F(MainWindowStatus, TheFrameStandsAroundTheCardThatSteers) {
  Start(kOnPorts);
  NmeaPort.Receive(Winds("30", "40"));
  Window->resize(1160, 760);
  QTest::qWait(0);
  Find<QRadioButton>("optControl(2)").click();
  const auto framedCards = [&] {
    auto& panel = Find<QWidget>("InstrumentPanel");
    const PanelLayout layout = LayPanel(panel.width(), panel.height());
    const QImage picture = panel.grab().toImage();
    std::vector<bool> framed;
    for (const Box& card : {layout.Winds[0].Card, layout.Winds[1].Card, layout.AutoPilot.Card}) {
      const int middle = static_cast<int>(card.X + card.Width / 2.0);
      const int top = static_cast<int>(card.Y);
      framed.push_back(picture.pixel(middle, top + 3) != picture.pixel(middle, top + 8));
    }
    return framed;
  };
  Mode(3);
  EXPECT_EQ(framedCards(), (std::vector<bool>{false, false, false}));
  Mode(5);
  EXPECT_EQ(framedCards(), (std::vector<bool>{false, false, true}));
  Mode(7);
  EXPECT_EQ(framedCards(), (std::vector<bool>{false, true, false}));
  Find<QRadioButton>("optControl(1)").click();
  EXPECT_EQ(framedCards(), (std::vector<bool>{true, false, false}));
}

TEST_F(MainWindowStatus, TheMakingOfTheWindowTouchesNoPort) {
  Make();
  EXPECT_TRUE(NmeaPort.OpenedNumbers.empty());
  EXPECT_TRUE(PilotPort.OpenedNumbers.empty());
  EXPECT_FALSE(tmrNmea.Enabled());
}

TEST_F(MainWindowStatus, ThePilotPanelNamesTheMode) {
  Start(kOnPorts);
  Mode(5);
  EXPECT_EQ(Text("StatusBar(1)"), "Manual");
  Mode(7);
  EXPECT_EQ(Text("StatusBar(1)"), "Tracking Apparent Wind");
  Click("optControl(2)");
  EXPECT_EQ(Text("StatusBar(1)"), "Tracking True Wind");
  Mode(1);
  EXPECT_EQ(Text("StatusBar(1)"), "Off");
  EXPECT_FALSE(NmeaPort.PortOpen());
  EXPECT_FALSE(PilotPort.PortOpen());
}

TEST_F(MainWindowStatus, ThePilotPanelSaysThatTheInputIsStopped) {
  Start(kOnPorts);
  Mode(1);
  Mode(5);
  EXPECT_EQ(Text("StatusBar(1)"), "Manual, Input Stopped");
  Mode(7);
  EXPECT_EQ(Text("StatusBar(1)"), "Tracking Apparent Wind, Input Stopped");
  Mode(3);
  Mode(5);
  EXPECT_EQ(Text("StatusBar(1)"), "Manual");
}

TEST_F(MainWindowStatus, ThePilotPanelSaysThatAWindIsLost) {
  Start(kOnPorts);
  NmeaPort.Receive(Winds("30", "40"));
  Mode(7);
  EXPECT_EQ(Text("StatusBar(1)"), "Tracking Apparent Wind");
  const auto seconds = [&](int count, const std::string& sentence) {
    for (int i = 0; i < count; ++i) {
      NmeaPort.Receive(sentence);
      tmrNmea.Tick();
    }
  };
  seconds(10, Winds("30", "40"));
  EXPECT_EQ(Text("StatusBar(1)"), "Tracking Apparent Wind");
  // A wind instrument without a wind.
  seconds(3, "$WIMWV,,R,,N,V\r");
  EXPECT_EQ(Text("StatusBar(1)"), "Tracking Apparent Wind");
  seconds(1, "$WIMWV,,R,,N,V\r");
  EXPECT_EQ(Text("StatusBar(1)"), "Tracking Apparent Wind, No Wind");
  EXPECT_EQ(Text("StatusBar(2)"), "") << "something comes in";
  seconds(1, Winds("30", "40"));
  EXPECT_EQ(Text("StatusBar(1)"), "Tracking Apparent Wind");
  // Half of the wind is none.
  seconds(5, "$WIMWV,30,R,10,N,A\r");
  EXPECT_EQ(Text("StatusBar(1)"), "Tracking Apparent Wind, No Wind");
  Mode(3);
  EXPECT_EQ(Text("StatusBar(1)"), "Initialize");
}

TEST_F(MainWindowStatus, AnAlarmComesToTheForegroundAtEachPassUnlessAnotherWindowIsTypedIn) {
  Start(kOnPorts);
  NmeaPort.Receive(Winds("30", "40"));
  Mode(7);
  Find<QLineEdit>("txtDesired(1)").setFocus();
  QWidget other;
  QLineEdit box(&other);
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  box.clearFocus();
  NmeaPort.Receive("$WIMWV,50,R,10,N,A\r");
  EXPECT_EQ(Dialogs.Foregrounds, 1);
  EXPECT_NE(Window->focusWidget(), &Find<QLineEdit>("txtDesired(1)")) << "nothing is typed into it";
  NmeaPort.Receive("$WIMWV,50,R,10,N,A\r");
  EXPECT_EQ(Dialogs.Foregrounds, 2);
  box.setFocus();
  NmeaPort.Receive("$WIMWV,50,R,10,N,A\r");
  EXPECT_EQ(Dialogs.Foregrounds, 2) << "what is typed goes on";
  EXPECT_EQ(Dialogs.Beeps, 3);
  box.setReadOnly(true);
  NmeaPort.Receive("$WIMWV,50,R,10,N,A\r");
  EXPECT_EQ(Dialogs.Foregrounds, 3) << "nothing is typed into a text to read";
  QDoubleSpinBox number(&other);
  number.show();
  number.setFocus();
  NmeaPort.Receive("$WIMWV,50,R,10,N,A\r");
  EXPECT_EQ(Dialogs.Foregrounds, 3) << "a box for a number is typed into as well";
}

TEST_F(MainWindowStatus, AnAlarmForgetsWhatCameIntoABoxOfTheWindowBehind) {
  Start(kOnPorts);
  NmeaPort.Receive(Winds("30", "40"));
  Mode(7);
  Find<QLineEdit>("txtDesired(1)").setFocus();
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  Find<QLineEdit>("txtDesired(1)").insert(QStringLiteral("5"));
  NmeaPort.Receive("$WIMWV,50,R,10,N,A\r");
  EXPECT_EQ(Entry("txtDesired(1)"), "30");
  EXPECT_NE(Window->focusWidget(), &Find<QLineEdit>("txtDesired(1)"));
  EXPECT_EQ(Window->DesiredAngle[1], 30.0F);
}

TEST_F(MainWindowStatus, TheModesToolTipTellsABandwidthThatSwings) {
  const auto tip = [this] { return Find<QLabel>("StatusBar(1)").toolTip().toStdString(); };
  const auto sail = [this](int milliseconds) {
    for (int sentence = 0; sentence < 30000 / milliseconds; ++sentence) {
      Time.Pass(milliseconds);
      NmeaPort.Receive("$WIMWV,40.0,R,10.0,N,A\r");
      if (Time.Time.Steady % 1000 == 0) {
        tmrNmea.Tick();
      }
    }
  };
  Start(std::string(kOnPorts) + "[Track]\nMethod=Sentence\nBandwidth=50\n");
  NmeaPort.Receive(Winds("40.0", "60.0"));
  sail(1000);
  EXPECT_EQ(tip(), "Pilot Status");
  sail(200);
  EXPECT_EQ(tip(), "Pilot Status\n5 wind sentences a second: this bandwidth swings; choose Clock");
  Mode(5);
  Window->m_fTrackBandwidth = 200.0F;
  tmrNmea.Tick();
  EXPECT_EQ(tip(), "Pilot Status");
  Mode(7);
  Window->m_fTrackBandwidth = 20.0F;
  tmrNmea.Tick();
  EXPECT_EQ(tip(), "Pilot Status") << "200 is what tracks";
  Mode(1);
  tmrNmea.Tick();
  EXPECT_EQ(tip(), "Pilot Status") << "nothing is steered";
}

TEST_F(MainWindowStatus, ARefusedTrackStaysInItsModeWithAReason) {
  Start(kOnPorts);
  Mode(5);
  Window->m_fTrackBandwidth = 0.0F;
  Mode(7);
  EXPECT_EQ(Window->m_eTrackMode, TrackMode::Manual);
  EXPECT_TRUE(Find<QAction>("tbrTrack(5)").isChecked());
  EXPECT_FALSE(Find<QAction>("tbrTrack(7)").isChecked());
  EXPECT_TRUE(Enabled("txtAutoPilot"));
  EXPECT_EQ(Text("StatusBar(1)"), "Track needs a bandwidth above 0 and a usable damping");
  tmrNmea.Tick(6);
  EXPECT_EQ(Text("StatusBar(1)"), "Track needs a bandwidth above 0 and a usable damping") << "wind or not";
  Mode(5);
  EXPECT_EQ(Text("StatusBar(1)"), "Manual, No Wind");
}

TEST_F(MainWindowStatus, ThePanelsShowThePortsTroubles) {
  NmeaPort.OpensOtherwise = false;
  PilotPort.OpensOtherwise = false;
  Start(kOnPorts);
  EXPECT_EQ(Text("StatusBar(2)"), "Input Port 3 Not Open");
  EXPECT_EQ(Text("StatusBar(3)"), "Output Port 4 Not Open");
  tmrNmea.Tick(4);
  EXPECT_EQ(Text("StatusBar(2)"), "No Input Data");
}

TEST_F(MainWindowStatus, ThePanelsShowLineErrors) {
  Start(kOnPorts);
  NmeaPort.Raise(CommEvent::kFrame);
  PilotPort.Raise(CommEvent::kBreak);
  EXPECT_EQ(Text("StatusBar(2)"), "Framing Error");
  EXPECT_EQ(Text("StatusBar(3)"), "Break Signal Received");
  NmeaPort.Receive("no sentence\r");
  EXPECT_EQ(Text("StatusBar(2)"), "Sentence Error");
  PilotPort.Receive("anything");
  EXPECT_EQ(Text("StatusBar(3)"), "Receive Error");
}

TEST_F(MainWindowStatus, TheCaptionNamesTheProgramOnlyInTheForeground) {
  Start(kSimulated);
  Dialogs.Foreground = true;
  tmrNmea.Tick();
  EXPECT_EQ(Caption(), "Veerwatch - Wind SW@14.0");
  Dialogs.Foreground = false;
  EXPECT_EQ(Caption(), "Veerwatch - Wind SW@14.0") << "until the next wind";
  tmrNmea.Tick();
  EXPECT_EQ(Caption(), "Wind SW@14.0");
}

TEST_F(MainWindowStatus, TheCaptionHasNoLeadingZero) {
  Start(std::string(kSimulated) + "[Simulate]\n");
  Window->m_fSimulateTrueWindSpeed = 0.5F;
  tmrNmea.Tick();
  EXPECT_EQ(Caption(), "Wind SW@.5");
}

TEST_F(MainWindowStatus, AnAlarmCallsAtEveryPassAndColoursTheTrackedSideAlone) {
  Start(kOnPorts);
  NmeaPort.Receive(Winds("30", "40"));
  Mode(7);
  NmeaPort.Receive("$WIMWV,35,R,10,N,A\r");
  EXPECT_EQ(Dialogs.Beeps, 0) << "the limit itself is no alarm";
  NmeaPort.Receive("$WIMWV,35.5,R,10,N,A\r");
  EXPECT_EQ(Dialogs.Beeps, 1);
  EXPECT_EQ(Dialogs.Foregrounds, 1);
  EXPECT_EQ(DeltaColour(1), kAlarmColour);
  EXPECT_EQ(DeltaColour(2), WindowColour());
  EXPECT_EQ(Text("lblDelta(1)"), "5.5");
  EXPECT_EQ(Text("StatusBar(3)"), "Alarm Limit Exceeded 6");
  NmeaPort.Receive("$WIMWV,17.6,R,10,N,A\r");
  EXPECT_EQ(Dialogs.Beeps, 2);
  EXPECT_EQ(Dialogs.Foregrounds, 2);
  EXPECT_EQ(Text("StatusBar(3)"), "Alarm Limit Exceeded -12");
  NmeaPort.Receive("$WIMWV,30,R,10,N,A\r");
  EXPECT_EQ(Dialogs.Beeps, 2);
  EXPECT_EQ(DeltaColour(1), WindowColour());
  EXPECT_EQ(DeltaColour(2), WindowColour());
  EXPECT_EQ(Text("StatusBar(3)"), "");
}

TEST_F(MainWindowStatus, LeavingTrackWithdrawsTheAlarm) {
  Start(kOnPorts);
  Click("optControl(2)");
  NmeaPort.Receive(Winds("30", "40"));
  Mode(7);
  NmeaPort.Receive("$WIMWV,60,T,8,N,A\r");
  EXPECT_EQ(DeltaColour(2), kAlarmColour);
  EXPECT_EQ(DeltaColour(1), WindowColour());
  Mode(5);
  EXPECT_EQ(DeltaColour(2), WindowColour());
  EXPECT_EQ(Text("StatusBar(3)"), "");
}

TEST_F(MainWindowStatus, TheSideThatTheProgramChoosesShowsInItsOption) {
  Start("[Nmea]\nTrue Wind=1\nBoat Speed=0\n[Pilot]\nPort=6\n[Watch]\nAct=True\n");
  const auto second = [this](const std::string& lines) {
    NmeaPort.Receive("$WIMWV,45,R,10,N,A\r" + lines);
    Time.Pass(1000);
    tmrNmea.Tick();
  };
  for (int i = 0; i < 3; ++i) {
    second("$IIVHW,,T,,M,6.0,N,,K\r");
  }
  Click("optControl(2)");
  Mode(7);
  EXPECT_TRUE(Find<QRadioButton>("optControl(2)").isChecked());
  for (int i = 0; i < 6; ++i) {
    second("");
  }
  EXPECT_TRUE(Find<QRadioButton>("optControl(1)").isChecked());
  EXPECT_EQ(Text("StatusBar(1)"), "Tracking Apparent Wind");
}

TEST_F(MainWindowStatus, ALongTextNeverWidensTheWindow) {
  Start(kOnPorts);
  Window->resize(640, 400);
  const QSize before = Window->size();
  Find<QLabel>("StatusBar(1)").setText(QString(5000, QChar('W')));
  Find<QLabel>("lblHeading").setText(QString(500, QChar('8')));
  Find<QLineEdit>("txtAutoPilot").setText(QString(5000, QChar('9')));
  QTest::qWait(0);
  EXPECT_EQ(Window->size(), before);
  EXPECT_LE(Window->minimumSizeHint().width(), 640);
  EXPECT_FALSE(Window->grab().isNull());
}

}  // namespace
}  // namespace veerwatch
