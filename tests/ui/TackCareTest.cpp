// When a turn may begin, what the dialog says before it does, and how it waits or ends when nothing carries
// it to the pilot.

#include <QTimer>

#include "tests/ui/TackTester.h"

namespace veerwatch {
namespace {

class TackCare : public TackTester {
 public:
  std::string Words() const { return Text("lblWords"); }
  std::string Note() const { return Text("lblNote"); }

  /// A course over ground, which is the heading of these profiles [deg magnetic].
  void Head(const std::string& heading) {
    NmeaPort.Receive("$GPVTG,," + std::string("T,") + heading + ",M,6.0,N,11.0,K,A\r");
  }

  /// With the heading of 100 and the wind at 45 known, a tack to 190 with the pilot at 105.
  void OpenKnown() {
    Start(kOnPorts);
    Head("100.0");
    Send();
    Window->AutoPilotSet(105.0F);
    Window->TackOpen(190.0F, 100.0F, 45.0F);
    ASSERT_EQ(Note(), "");
  }

  /// OK does not begin the turn.
  void OkAsks() {
    Click("cmdOk");
    EXPECT_FALSE(TimerTack.Enabled());
    EXPECT_TRUE(Open());
  }
};

TEST_F(TackCare, ATurnDoesNotBeginInOff) {
  Start(kOnPorts);
  Mode(1);
  Window->AutoPilotSet(100.0F);
  Window->TackOpen(190.0F, 100.0F, 45.0F);
  EXPECT_FALSE(Enabled("cmdOk"));
  EXPECT_EQ(Note(), "No turn in Off: press Setup first");
  EXPECT_EQ(Find<QWidget>("txtHeading").accessibleDescription().toStdString(), Note());
  QTest::keyClick(&Find<QLineEdit>("txtHeading"), Qt::Key_Return);
  EXPECT_FALSE(TimerTack.Enabled());
  EXPECT_EQ(Window->m_eTrackMode, TrackMode::Off);
  Mode(5);
  EXPECT_FALSE(Enabled("cmdOk"));
  EXPECT_EQ(Note(), "No turn: Input Stopped, press Setup first");
  Mode(3);
  EXPECT_TRUE(Enabled("cmdOk"));
  EXPECT_EQ(Note(), "");
}

TEST_F(TackCare, CarefulEntryRestoresAnEmptiedBox) {
  OpenKnown();
  const std::string rate = Entry("txtRate");
  for (const bool careful : {true, false}) {
    Window->m_bCarefulEntry = careful;
    Type("txtRate", "");
    Click("cmdOk");
    EXPECT_EQ(Entry("txtRate"), careful ? rate : "");
    Click("cmdCancel");
    Window->TackOpen(190.0F, 100.0F, 45.0F);
  }
}

TEST_F(TackCare, ATurnDoesNotBeginWhileThePilotPortIsNotOpen) {
  PilotPort.OpensOtherwise = false;
  Start(kOnPorts);
  Window->AutoPilotSet(100.0F);
  Window->TackOpen(190.0F, 100.0F, 45.0F);
  EXPECT_FALSE(Enabled("cmdOk"));
  EXPECT_EQ(Note(), "No turn: Output Port 4 Not Open");
  PilotPort.OpensOtherwise = true;
  tmrNmea.Tick(4);
  EXPECT_TRUE(Enabled("cmdOk"));
  EXPECT_EQ(Note(), "");
}

TEST_F(TackCare, OnOnePortForBothWaysItIsTheInputPortThatHasToBeOpen) {
  NmeaPort.OpensOtherwise = false;
  Start("[Nmea]\nPort=3\nTrue Wind=0\n[Pilot]\nPort=3\n");
  OpenTack();
  EXPECT_FALSE(Enabled("cmdOk"));
  EXPECT_EQ(Note(), "No turn: Input Port 3 Not Open");
}

TEST_F(TackCare, ATurnDoesNotBeginWithoutAWind) {
  Start(kOnPorts);
  tmrNmea.Tick(5);
  Window->AutoPilotSet(100.0F);
  Window->TackOpen(190.0F, 100.0F, 45.0F);
  EXPECT_FALSE(Enabled("cmdOk"));
  EXPECT_EQ(Note(), "No turn: No Wind");
  Send();
  tmrNmea.Tick();
  EXPECT_TRUE(Enabled("cmdOk"));
}

TEST_F(TackCare, TheSimulatedBoatNeedsNoPort) {
  NmeaPort.OpensOtherwise = PilotPort.OpensOtherwise = false;
  Start(kSimulated);
  tmrNmea.Tick();
  Window->TackOpen(178.0F, 278.0F, -50.0F);
  EXPECT_TRUE(Enabled("cmdOk"));
  Mode(1);
  EXPECT_FALSE(Enabled("cmdOk"));
}

struct Gap {
  const char* Name;
  std::function<void(TackTester&)> Begins;
  std::function<void(TackTester&)> Ends;
};

class TackGap : public TackCare, public testing::WithParamInterface<Gap> {};

TEST_P(TackGap, MakesTheTurnWaitSoThatThePilotHearsOfNoMoreThanTheRate) {
  Start(kOnPorts);
  RunTack();
  GetParam().Begins(*this);
  TimerTack.Tick(2);
  EXPECT_EQ(Note(), "");
  for (int second = 0; second < 10; ++second) {
    TimerTack.Tick();
    EXPECT_EQ(Window->m_fAutoPilot, 132.0F) << "which was sent last";
    EXPECT_EQ(Note(), "Waits: nothing leaves for the pilot");
  }
  GetParam().Ends(*this);
  PilotPort.TakeWritten();
  for (const char* bearing : {"132.0", "142.0", "152.0"}) {
    Send();
    EXPECT_NE(PilotPort.TakeWritten().find(std::string(",") + bearing + ",M"), std::string::npos) << bearing;
    TimerTack.Tick();
    EXPECT_EQ(Note(), "");
  }
  Seconds(7);
  EXPECT_FALSE(Open());
  EXPECT_EQ(Window->m_fAutoPilot, 207.0F);
}

INSTANTIATE_TEST_SUITE_P(Gaps, TackGap,
                         testing::Values(Gap{"InTheWind", [](auto&) {}, [](auto&) {}},
                                         Gap{"OfACable", [](auto& test) { test.PilotPort.Lose(); },
                                             [](auto& test) {
                                               for (int second = 0; second < 4; ++second) {
                                                 test.Send();
                                                 test.tmrNmea.Tick();
                                               }
                                             }},
                                         Gap{"OfAPilotThatTakesNothing",
                                             [](auto& test) { test.PilotPort.Stuck = true; },
                                             [](auto& test) { test.PilotPort.Stuck = false; }}),
                         [](const auto& gap) { return std::string(gap.param.Name); });

struct End {
  const char* Name;
  std::function<void(TackTester&)> Comes;
  const char* Text;
};

class TackEnd : public TackCare, public testing::WithParamInterface<End> {};

TEST_P(TackEnd, LeavesTheBearingThatWasSentLastAndSaysWhyForTenSeconds) {
  Start(kOnPorts);
  RunTack();
  TimerTack.Tick();
  EXPECT_EQ(Window->m_fAutoPilot, 142.0F) << "not sent yet";
  const std::string before = Text("StatusBar(1)");
  GetParam().Comes(*this);
  EXPECT_FALSE(Open());
  EXPECT_EQ(Window->m_fAutoPilot, 132.0F);
  EXPECT_EQ(Entry("txtAutoPilot"), "132.0");
  EXPECT_EQ(Text("StatusBar(1)"), std::string("Turn ended: ") + GetParam().Text);
  EXPECT_EQ(Dialogs.Beeps, 1);
  auto& notice = Find<QTimer>("tmrInstead");
  ASSERT_TRUE(notice.isActive());
  EXPECT_EQ(notice.interval(), 10000);
  notice.start(0);
  EXPECT_TRUE(QTest::qWaitFor([this] { return Text("StatusBar(1)").rfind("Manual", 0) == 0; }));
}

INSTANTIATE_TEST_SUITE_P(
    Ends, TackEnd,
    testing::Values(End{"Silence", [](auto& test) { test.tmrNmea.Tick(4); }, "No Input Data"},
                    End{"ALostWind",
                        [](auto& test) {
                          for (int second = 0; second < 5; ++second) {
                            test.NmeaPort.Receive("$IIHDG,100.0,,,,\r");
                            test.tmrNmea.Tick();
                          }
                        },
                        "No Wind"},
                    End{"TheInputStopped", [](auto& test) { test.Window->NmeaStop(); }, "Input Stopped"}),
    [](const auto& end) { return std::string(end.param.Name); });

TEST_F(TackCare, AHandOnThePilotEndsTheTurnWithoutAWord) {
  Start(kOnPorts);
  RunTack();
  Mode(3);
  EXPECT_EQ(Text("StatusBar(1)"), "Initialize");
  RunTack();
  Click("cmdAutoPilot(1)");
  EXPECT_EQ(Text("StatusBar(1)"), "Manual");
  RunTack();
  Window->close();
  EXPECT_EQ(Dialogs.Beeps, 0);
}

TEST_F(TackCare, SaysWhenTheBoatSwings) {
  Start(kOnPorts);
  Head("100.0");
  Window->AutoPilotSet(124.0F);
  Window->TackOpen(190.0F, 100.0F, 45.0F);
  EXPECT_EQ(Note(), "Bearing and heading are 24 degrees apart: wait until she is steady");
  EXPECT_TRUE(Enabled("cmdOk"));
  const QColor amber = Find<QLabel>("lblNote").palette().color(QPalette::WindowText);
  EXPECT_GT(amber.red(), amber.green());
  EXPECT_GT(amber.green(), amber.blue());
  Head("115.0");
  tmrNmea.Tick();
  EXPECT_EQ(Note(), "");
}

TEST_F(TackCare, WithinFiveDegreesOkBeginsWhatWasOpened) {
  OpenKnown();
  Head("105.0");
  Wind = "50";
  Send();
  Click("cmdOk");
  EXPECT_TRUE(TimerTack.Enabled());
  Seconds(1);
  EXPECT_EQ(Window->m_fAutoPilot, 115.0F);
}

TEST_F(TackCare, AHeadingThatHasMovedIsFilledAnewFirst) {
  OpenKnown();
  Head("94.5");
  OkAsks();
  EXPECT_EQ(Note().substr(0, Note().find('\n')), "Heading or wind moved, filled anew: OK once more");
  EXPECT_EQ(Words(), "101 degrees to starboard, through the wind");
  Click("cmdOk");
  ASSERT_TRUE(TimerTack.Enabled());
  Seconds(1);
  EXPECT_EQ(Window->m_fAutoPilot, 115.0F) << "where the pilot was, and ten degrees";
}

TEST_F(TackCare, AWindThatHasMovedMakesItAnotherKindOfTurn) {
  OpenKnown();
  Wind = "100";
  Send();
  OkAsks();
  EXPECT_EQ(Dialog()->windowTitle(), "Veerwatch - Steer");
  EXPECT_EQ(Words(), "90 degrees to starboard");
  Click("cmdOk");
  EXPECT_TRUE(TimerTack.Enabled());
}

TEST_F(TackCare, ABearingThatHasMovedDoesNotJumpBack) {
  OpenKnown();
  Window->AutoPilotSet(80.0F);
  OkAsks();
  Click("cmdOk");
  Seconds(1);
  EXPECT_EQ(Window->m_fAutoPilot, 90.0F);
}

TEST_F(TackCare, WhatTheUserHasTypedStaysWhenItIsFilledAnew) {
  OpenKnown();
  Type("txtHeading", "180");
  Type("txtRate", "4");
  Wind = "52";
  Send();
  OkAsks();
  EXPECT_EQ(Entry("txtHeading"), "180");
  EXPECT_EQ(Entry("txtRate"), "4");
  EXPECT_EQ(Words(), "85 degrees to starboard, through the wind");
}

TEST_F(TackCare, TheWordsFollowWhatIsTyped) {
  OpenKnown();
  EXPECT_EQ(Words(), "95 degrees to starboard, through the wind") << "with the overshoot of 5";
  Type("txtOvershoot", "0");
  EXPECT_EQ(Words(), "90 degrees to starboard, through the wind");
  Type("txtHeading", "90");
  EXPECT_EQ(Words(), "10 degrees to port");
}

TEST_F(TackCare, AsksOnceMoreWhereTheWindWillCrossUnsaid) {
  Start(kOnPorts);
  Window->AutoPilotSet(10.0F);
  Window->TackOpen(150.0F, 10.0F, 100.0F);
  EXPECT_EQ(Dialog()->windowTitle(), "Veerwatch - Steer");
  EXPECT_EQ(Words(), "140 degrees to starboard, through the wind");
  EXPECT_EQ(Note(), "");
  OkAsks();
  EXPECT_EQ(Note(), "The bow goes through the wind: OK once more?");
  Type("txtHeading", "160");
  EXPECT_EQ(Note(), "");
  OkAsks();
  EXPECT_EQ(Note(), "The bow goes through the wind: OK once more?") << "another turn";
  Click("cmdOk");
  EXPECT_TRUE(TimerTack.Enabled());
}

TEST_F(TackCare, TheLongestNoteFits) {
  Start(kOnPorts);
  Head("50.0");
  Send();
  Window->AutoPilotSet(150.0F);
  Window->TackOpen(60.0F, 80.0F, 45.0F);
  // The long way round, by the stern.
  Type("txtHeading", "250");
  OkAsks();
  const auto& note = Find<QLabel>("lblNote");
  EXPECT_EQ(note.text().count(QLatin1Char('\n')), 2) << Note();
  EXPECT_LE(note.heightForWidth(note.width()), note.height()) << Note();
}

}  // namespace
}  // namespace veerwatch
