// What the manoeuvre dialog shows, takes and keeps.

#include "tests/ui/TackTester.h"

namespace veerwatch {
namespace {

class TackDialog : public TackTester {};

TEST_F(TackDialog, IsMadeAtTheFirstOpeningAndStaysBesideTheMainWindow) {
  Start(kOnPorts);
  EXPECT_EQ(Dialog(), nullptr);
  OpenTack();
  const QDialog* first = Dialog();
  ASSERT_TRUE(Open());
  EXPECT_FALSE(first->isModal());
  EXPECT_FALSE(TimerTack.Enabled());
  EXPECT_EQ(TimerTack.Milliseconds, 1000);
  Click("cmdCancel");
  EXPECT_FALSE(Open());
  OpenTack();
  EXPECT_EQ(Dialog(), first);
  EXPECT_TRUE(Open());
}

struct Texts {
  float NewHeading;
  float Wind;
  const char* Word;
  std::vector<std::string> Steps;
  const char* Overshoot;
  const char* Rate;
};

void PrintTo(const Texts& texts, std::ostream* out) { *out << texts.Word; }

class TackDialogKind : public TackTester, public testing::WithParamInterface<Texts> {};

TEST_P(TackDialogKind, ShowsItsTexts) {
  Start(kOnPorts);
  Window->TackOpen(GetParam().NewHeading, 100.0F, GetParam().Wind);
  const std::string word = GetParam().Word;
  EXPECT_EQ(Dialog()->windowTitle().toStdString(), "Veerwatch - " + word);
  EXPECT_EQ(Find<QLabel>("lblPrompt").text().remove('&').toStdString(), word + " to new heading:");
  EXPECT_EQ(Steps(), GetParam().Steps);
  EXPECT_EQ(Entry("txtOvershoot"), GetParam().Overshoot);
  EXPECT_EQ(Entry("txtRate"), GetParam().Rate);
  EXPECT_EQ(Find<QLabel>("lblOvershoot").text().remove('&'), "Overshoot");
  EXPECT_EQ(Find<QLabel>("lblRate").text().remove('&'), "Rate of Change (deg/sec)");
  EXPECT_FALSE(Find<QProgressBar>("ProgressBarTack").isVisible());
}

const std::vector<std::string> kSteerSteps{"1) Set tracking mode to Manual", "2) Limit the rate of change"};
const std::vector<std::string> kTurnSteps{"1) Set tracking mode to Manual", "2) Overshoot the heading",
                                          "3) Limit the rate of change"};

INSTANTIATE_TEST_SUITE_P(Kinds, TackDialogKind,
                         testing::Values(Texts{120.4F, 45.0F, "Steer", kSteerSteps, "0", "5"},
                                         Texts{190.0F, 45.0F, "Tack", kTurnSteps, "5", "10"},
                                         Texts{190.0F, -135.0F, "Jibe", kTurnSteps, "0", "5"}),
                         [](const auto& kind) { return std::string(kind.param.Word); });

TEST_F(TackDialog, ShowsTheNewHeadingInWholeDegrees) {
  Start(kOnPorts);
  Window->TackOpen(120.5F, 100.0F, 45.0F);
  EXPECT_EQ(Entry("txtHeading"), "121");
}

TEST_F(TackDialog, OpensForNothingThatIsNotFinite) {
  Start(kOnPorts);
  Window->TackOpen(std::numeric_limits<float>::quiet_NaN(), 100.0F, 45.0F);
  EXPECT_FALSE(Open());
  OpenTack();
  Window->TackOpen(10.0F, std::numeric_limits<float>::infinity(), 45.0F);
  EXPECT_EQ(Entry("txtHeading"), "190");
}

TEST_F(TackDialog, OkGoesToManualAndTurnsThePilotSecondBySecond) {
  Start(kOnPorts);
  Mode(7);
  OpenTack();
  Click("cmdOk");
  EXPECT_EQ(Window->m_eTrackMode, TrackMode::Manual);
  EXPECT_TRUE(TimerTack.Enabled());
  for (const char* name : {"cmdOk", "txtOvershoot", "txtRate"}) {
    EXPECT_FALSE(Enabled(name)) << name;
  }
  EXPECT_TRUE(Enabled("cmdCancel"));
  const auto& bar = Find<QProgressBar>("ProgressBarTack");
  EXPECT_TRUE(bar.isVisible());
  EXPECT_EQ(bar.minimum(), 0);
  EXPECT_EQ(bar.maximum(), 95) << "90 and an overshoot of 5";
  EXPECT_EQ(bar.value(), 0);
  EXPECT_EQ(Window->m_fAutoPilot, 112.0F) << "nothing happens before the first second";
  for (int second = 1; second <= 9; ++second) {
    Seconds(1);
    EXPECT_EQ(Window->m_fAutoPilot, 112.0F + 10.0F * static_cast<float>(second));
    EXPECT_EQ(Entry("txtHeading"), std::to_string(100 + 10 * second));
    EXPECT_EQ(Entry("txtAutoPilot"), std::to_string(112 + 10 * second) + ".0");
    EXPECT_EQ(bar.value(), 10 * second);
  }
  EXPECT_TRUE(Open());
  Seconds(1);
  EXPECT_EQ(Window->m_fAutoPilot, 207.0F);
  EXPECT_EQ(Entry("txtAutoPilot"), "207.0");
  EXPECT_EQ(bar.value(), 95);
  EXPECT_FALSE(Open());
  EXPECT_FALSE(TimerTack.Enabled());
  EXPECT_EQ(Window->m_eTrackMode, TrackMode::Manual) << "stays with the pilot on the new heading";
  EXPECT_TRUE(QTest::qWaitForWindowActive(Window.get()));
}

TEST_F(TackDialog, EnterBeginsTheTurnAndASecondEnterDoesNotStopIt) {
  Start(kOnPorts);
  OpenTack();
  QTest::keyClick(&Find<QLineEdit>("txtHeading"), Qt::Key_Return);
  EXPECT_TRUE(TimerTack.Enabled());
  Seconds(1);
  QTest::keyClick(Dialog()->focusWidget() != nullptr ? Dialog()->focusWidget() : Dialog(), Qt::Key_Return);
  QTest::keyClick(&Find<QPushButton>("cmdCancel"), Qt::Key_Return);
  EXPECT_TRUE(TimerTack.Enabled());
  EXPECT_EQ(Window->m_fAutoPilot, 122.0F);
}

TEST_F(TackDialog, CancelEscapeAndTheFrameStopTheTurnWhereItIs) {
  Start(kOnPorts);
  const std::vector<std::function<void()>> ways{[&] { Click("cmdCancel"); },
                                                [&] { QTest::keyClick(Dialog(), Qt::Key_Escape); },
                                                [&] { Dialog()->close(); }};
  for (const auto& way : ways) {
    RunTack();
    way();
    EXPECT_FALSE(Open());
    EXPECT_FALSE(TimerTack.Enabled());
    Seconds(3);
    EXPECT_EQ(Window->m_fAutoPilot, 132.0F);
    EXPECT_EQ(Window->m_eTrackMode, TrackMode::Manual);
  }
}

TEST_F(TackDialog, CancelBeforeOkChangesNothing) {
  Start(kOnPorts);
  OpenTack();
  Type("txtRate", "3");
  QTest::keyClick(Dialog(), Qt::Key_Escape);
  EXPECT_EQ(Window->m_eTrackMode, TrackMode::Setup);
  EXPECT_EQ(Window->m_fAutoPilot, 112.0F);
  OpenTack();
  EXPECT_EQ(Entry("txtRate"), "10") << "only OK keeps what was typed";
}

TEST_F(TackDialog, OpeningAgainStopsTheTurnAndAnswersAgain) {
  Start(kOnPorts);
  RunTack();
  Wind = "25";
  Send();
  Window->TackOpen(130.0F, 120.0F, 25.0F);
  EXPECT_FALSE(TimerTack.Enabled());
  Seconds(1);
  EXPECT_EQ(Window->m_fAutoPilot, 132.0F);
  for (const char* name : {"cmdOk", "txtOvershoot", "txtRate"}) {
    EXPECT_TRUE(Enabled(name)) << name;
  }
  EXPECT_FALSE(Find<QProgressBar>("ProgressBarTack").isVisible());
  EXPECT_EQ(Dialog()->windowTitle(), "Veerwatch - Steer");
  EXPECT_EQ(Entry("txtHeading"), "130");
  Click("cmdOk");
  Seconds(2);
  EXPECT_EQ(Window->m_fAutoPilot, 142.0F);
  EXPECT_FALSE(Open());
}

TEST_F(TackDialog, TheTypedHeadingCountsFolded) {
  Start(kOnPorts);
  OpenTack();
  Type("txtHeading", "-240 or so");
  Type("txtOvershoot", "0");
  Click("cmdOk");
  Seconds(2);
  EXPECT_EQ(Window->m_fAutoPilot, 132.0F);
  EXPECT_FALSE(Open());
}

TEST_F(TackDialog, ATextThatIsNoHeadingLeavesTheOneThatWasAskedFor) {
  Start(kOnPorts);
  for (const char* text :
       {"", "nan", "inf", "port", "1e99999", "-", "999999999999999999999999999999999999999999"}) {
    OpenTack();
    Type("txtHeading", text);
    Type("txtOvershoot", "0");
    Type("txtRate", "50");
    Click("cmdOk");
    if (std::string(text) == "1e99999") {
      Seconds(2);
      EXPECT_EQ(Window->m_fAutoPilot, 13.0F) << "a heading of 1, and the pilot's 12 on top";
    } else {
      Seconds(2);
      EXPECT_EQ(Window->m_fAutoPilot, 202.0F) << text;
    }
    EXPECT_FALSE(Open()) << text;
  }
}

TEST_F(TackDialog, AnOvershootThatIsNoNumberIsNoneAndARateTen) {
  Start(kOnPorts);
  for (const char* text : {"", "nan", "-inf", "fast", "9999999999999999999999999999999999999999999"}) {
    OpenTack();
    Type("txtOvershoot", text);
    Type("txtRate", text);
    Click("cmdOk");
    EXPECT_EQ(Find<QProgressBar>("ProgressBarTack").maximum(), 90) << text;
    Seconds(1);
    EXPECT_EQ(Window->m_fAutoPilot, 122.0F) << text;
    Seconds(8);
    EXPECT_EQ(Window->m_fAutoPilot, 202.0F) << text;
    EXPECT_FALSE(Open()) << text;
  }
}

TEST_F(TackDialog, ARateOfZeroInTheProfileTurnsTenDegreesASecond) {
  Start(std::string(kOnPorts) + "[Tack Data]\nRate 2=0\nOvershoot 2=0\n");
  OpenTack();
  EXPECT_EQ(Entry("txtRate"), "0");
  Click("cmdOk");
  Seconds(1);
  EXPECT_EQ(Window->m_fAutoPilot, 122.0F);
}

TEST_F(TackDialog, AChangeOf170At20DegreesASecondTakesNineSeconds) {
  Start(std::string(kOnPorts) + "[Tack Data]\nRate 1=20\n");
  Window->AutoPilotSet(100.0F);
  Window->TackOpen(270.0F, 100.0F, 90.0F);
  Click("cmdOk");
  Click("cmdOk");  // through the wind, which it had to ask about
  Seconds(8);
  EXPECT_TRUE(Open());
  EXPECT_EQ(Window->m_fAutoPilot, 260.0F);
  Seconds(1);
  EXPECT_FALSE(Open());
  EXPECT_EQ(Window->m_fAutoPilot, 270.0F);
}

TEST_F(TackDialog, TurnsThroughNorth) {
  Start(kOnPorts);
  Window->AutoPilotSet(350.0F);
  Window->TackOpen(10.0F, 350.0F, 60.0F);
  Click("cmdOk");
  EXPECT_EQ(Find<QProgressBar>("ProgressBarTack").maximum(), 20);
  Seconds(2);
  EXPECT_EQ(Entry("txtAutoPilot"), "0.0");
  Seconds(2);
  EXPECT_EQ(Window->m_fAutoPilot, 10.0F);
  EXPECT_FALSE(Open());
}

TEST_F(TackDialog, NoChangeEndsAtTheFirstSecondWithABarThatHasALength) {
  Start(kOnPorts);
  Window->TackOpen(100.0F, 100.0F, 45.0F);
  Click("cmdOk");
  EXPECT_EQ(Find<QProgressBar>("ProgressBarTack").maximum(), 1);
  Seconds(1);
  EXPECT_FALSE(Open());
  EXPECT_EQ(Window->m_fAutoPilot, 100.0F);
}

TEST_F(TackDialog, KeepsItsSettingsByKindForTheNextStart) {
  Start(std::string(kOnPorts) + "[Tack Data]\nRate 3=2.5\nOvershoot 3=7\n");
  Window->TackOpen(190.0F, 100.0F, -135.0F);
  EXPECT_EQ(Entry("txtRate"), "2.5");
  EXPECT_EQ(Entry("txtOvershoot"), "7");
  OpenTack();
  Type("txtRate", "12.5");
  Type("txtOvershoot", "8");
  Click("cmdOk");
  EXPECT_TRUE(Window->close());
  EXPECT_NE(ReadProfile().find("[Tack Data]\nRate 3=2.5\nOvershoot 3=7\nRate 1=5\nOvershoot 1=0\n"
                               "Rate 2=12.5\nOvershoot 2=8\n"),
            std::string::npos)
      << ReadProfile();
  Start();
  OpenTack();
  EXPECT_EQ(Entry("txtRate"), "12.5");
  EXPECT_EQ(Entry("txtOvershoot"), "8");
  Window->TackOpen(120.0F, 100.0F, 45.0F);
  EXPECT_EQ(Entry("txtRate"), "5");
}

TEST_F(TackDialog, WritesNothingWhenItWasNeverOpened) {
  Start(kOnPorts);
  Window->close();
  EXPECT_EQ(ReadProfile().find("[Tack Data]"), std::string::npos);
}

TEST_F(TackDialog, SailsAWholeTackInTheSimulator) {
  Start(kSimulated);
  tmrNmea.Tick();
  ASSERT_EQ(Text("lblHeading"), "278");
  ASSERT_EQ(Text("lblTrueWindAngle"), "-50");
  // The same wind on the other bow: 100 degrees to port.
  Window->TackOpen(178.0F, 278.0F, -50.0F);
  EXPECT_EQ(Dialog()->windowTitle(), "Veerwatch - Tack");
  Click("cmdOk");
  int seconds = 0;
  float pilot = 275.0F;
  while (TimerTack.Enabled() && seconds < 100) {
    TimerTack.Tick();
    EXPECT_LE(pilot - Window->m_fAutoPilot, 10.0F);
    EXPECT_GT(pilot, Window->m_fAutoPilot) << "always to port";
    pilot = Window->m_fAutoPilot;
    tmrNmea.Tick();
    ++seconds;
  }
  EXPECT_EQ(seconds, 11) << "100 and 5 past it at 10 a second";
  EXPECT_FALSE(Open());
  EXPECT_EQ(Window->m_fAutoPilot, 170.0F);
  EXPECT_EQ(Text("lblHeading"), "173");
  EXPECT_EQ(Text("lblTrueWindAngle"), "55");
  EXPECT_EQ(Window->m_eTrackMode, TrackMode::Manual);
  tmrNmea.Tick(5);
  EXPECT_EQ(Text("lblHeading"), "173");
}

TEST_F(TackDialog, SendsEveryBearingOfTheTurnToThePilot) {
  Start(kOnPorts);
  OpenTack();
  Click("cmdOk");
  for (const char* bearing : {"122.0", "132.0", "142.0"}) {
    TimerTack.Tick();
    PilotPort.TakeWritten();
    NmeaPort.Receive(Winds("45", "50"));
    EXPECT_NE(PilotPort.TakeWritten().find(std::string(",") + bearing + ",M"), std::string::npos) << bearing;
  }
}

}  // namespace
}  // namespace veerwatch
