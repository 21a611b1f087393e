// Options > Output > "Test Pilot...": asks, turns the boat, says what came of it, and gives the pilot back.

#include <gmock/gmock.h>

#include <QApplication>
#include <QDialog>
#include <cmath>

#include "options/frmOptions.h"
#include "platform/ColoursQt.h"
#include "tests/support/PictureQt.h"
#include "tests/ui/DarkPalette.h"
#include "tests/ui/MainWindowTester.h"

namespace veerwatch {
namespace {

using testing::HasSubstr;

class PilotTestWindow : public MainWindowTester {
 public:
  ~PilotTestWindow() override {
    WearNightColours(false);
    QApplication::setPalette(m_palette);
  }

  /// On 100 degrees in Manual, with a pilot of a lag of 4 s whose compass shows 5 degrees more.
  void StartInManual() {
    Start(std::string(kOnPorts) + "[Track]\nMethod=Clock\n");
    Sail(3);
    Mode(5);
    Type("txtAutoPilot", "105");
    Enter("txtAutoPilot");
    Sail(10);
    Find<QAction>("mnuOptionsOutput").trigger();
  }

  void Sail(int seconds) {
    for (int i = 0; i < seconds; ++i) {
      Time.Pass(1000);
      if (Pilots) {
        m_heading +=
            std::remainder(static_cast<double>(Window->m_fAutoPilot) - 5.0 - m_heading, 360.0) * m_gain;
      }
      if (Heading) {
        NmeaPort.Receive("$GPVTG,,T," + std::to_string(m_heading) + ",M,6.0,N,11.0,K,A\r");
      }
      if (Wind) {
        NmeaPort.Receive(Winds(std::to_string(30 + m_angle++ % 3), "40"));
      }
      tmrNmea.Tick();
    }
  }

  frmOptions& Options() const {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (auto* options = dynamic_cast<frmOptions*>(window); options != nullptr && options->isVisible()) {
        return *options;
      }
    }
    throw std::runtime_error("no options");
  }
  QPushButton& Button() const { return *Options().findChild<QPushButton*>(QStringLiteral("cmdPilotTest")); }
  QDialog* Open() const { return Options().findChild<QDialog*>(QStringLiteral("PilotTest")); }
  std::string Said(const char* label = "lblPilotTest") const {
    return Open()->findChild<QLabel*>(QLatin1String(label))->text().toStdString();
  }
  void Press(const char* button) const {
    QTest::mouseClick(Open()->findChild<QPushButton*>(QLatin1String(button)), Qt::LeftButton);
    QTest::qWait(0);
  }
  void Begin() {
    Dialogs.Answers = {true};
    QTest::mouseClick(&Button(), Qt::LeftButton);
    QTest::qWait(0);
  }
  /// The bearing of the latest sentence that left.
  std::string Sent() const { return PilotPort.Written.empty() ? "" : PilotPort.Written.back().substr(24, 5); }

  bool Pilots = true;
  bool Heading = true;
  bool Wind = true;

 private:
  QPalette m_palette = QApplication::palette();
  double m_heading = 100.0;
  double m_gain = 1.0 - std::exp(-1.0 / 4.0);
  int m_angle = 0;
};

TEST_F(PilotTestWindow, AsksAndTurnsTheBoatAndSaysWhatCameOfIt) {
  StartInManual();
  Begin();
  ASSERT_EQ(Dialogs.Questions.size(), 1U);
  EXPECT_THAT(Dialogs.Questions[0].Text, HasSubstr("10 degrees to starboard"));
  ASSERT_NE(Open(), nullptr);
  EXPECT_THAT(Said(), HasSubstr("Listens"));
  Sail(12);
  EXPECT_EQ(Window->m_fAutoPilot, 115.0F);
  EXPECT_EQ(Sent(), "115.0");
  Sail(40);
  EXPECT_EQ(Window->m_fAutoPilot, 105.0F);
  Sail(42);
  EXPECT_EQ(Sent(), "105.0");
  EXPECT_THAT(Said(), HasSubstr("Follows: "));
  EXPECT_THAT(Said(), HasSubstr("She made 10 of 10 degrees."));
  EXPECT_THAT(Said(), HasSubstr("Offset: the pilot's compass shows 5 degrees more."));
  EXPECT_THAT(Said(), HasSubstr("Rate of turn: up to 1."));
  EXPECT_THAT(Said("lblPilotTestAdvice"), HasSubstr("60 s keep the rudder calm"));
  EXPECT_EQ(Window->Now().Hand, PilotHand::User);
  KeepPicture(Open()->grab().toImage(), QStringLiteral("pilot-test-done"));
  Press("cmdPilotTestTake");
  EXPECT_EQ(Open(), nullptr);
  const double lag = Options().findChild<QLineEdit*>(QStringLiteral("txtTrackLag"))->text().toDouble();
  EXPECT_NEAR(lag, 4.0, 1.5);
  EXPECT_EQ(Options().findChild<QLineEdit*>(QStringLiteral("txtTrackBandwidth"))->text(),
            QStringLiteral("60"));
  EXPECT_NE(Window->m_fTrackBandwidth, 60.0F) << "only Apply stores it";
  EXPECT_EQ(Options().findChild<QTabWidget*>(QStringLiteral("SSTab"))->currentIndex(), frmOptions::Tracking);
}

TEST_F(PilotTestWindow, InAnyOtherModeItSaysWhyNot) {
  StartInManual();
  for (const int mode : {1, 3, 7}) {
    Mode(mode);
    Sail(3);
    Dialogs.Messages.clear();
    QTest::mouseClick(&Button(), Qt::LeftButton);
    ASSERT_EQ(Dialogs.Messages.size(), 1U) << mode;
    EXPECT_THAT(Dialogs.Messages[0].Text, HasSubstr("in Manual only")) << mode;
  }
  EXPECT_TRUE(Dialogs.Questions.empty());
  EXPECT_EQ(Open(), nullptr);
}

TEST_F(PilotTestWindow, WithoutWindOrHeadingItSaysWhyNot) {
  StartInManual();
  Heading = false;
  Sail(8);
  QTest::mouseClick(&Button(), Qt::LeftButton);
  Heading = true;
  Wind = false;
  Sail(8);
  QTest::mouseClick(&Button(), Qt::LeftButton);
  ASSERT_EQ(Dialogs.Messages.size(), 2U);
  EXPECT_THAT(Dialogs.Messages[0].Text, HasSubstr("No heading"));
  EXPECT_THAT(Dialogs.Messages[1].Text, HasSubstr("No wind"));
}

TEST_F(PilotTestWindow, WithAPilotThatTakesNoBearingItSaysSo) {
  StartInManual();
  Window->m_ePilotProfile = PilotProfile::Wind;
  QTest::mouseClick(&Button(), Qt::LeftButton);
  ASSERT_EQ(Dialogs.Messages.size(), 1U);
  EXPECT_THAT(Dialogs.Messages[0].Text, HasSubstr("takes no bearing"));
}

TEST_F(PilotTestWindow, NoLeavesEverythingAsItIs) {
  StartInManual();
  QTest::mouseClick(&Button(), Qt::LeftButton);
  EXPECT_EQ(Dialogs.Questions.size(), 1U);
  EXPECT_EQ(Open(), nullptr);
  EXPECT_EQ(Window->Now().Hand, PilotHand::User);
}

TEST_F(PilotTestWindow, CancelSendsTheBearingOfBeforeAtOnce) {
  StartInManual();
  Begin();
  Sail(15);
  ASSERT_EQ(Sent(), "115.0");
  Press("cmdPilotTestCancel");
  EXPECT_EQ(Window->m_fAutoPilot, 105.0F);
  EXPECT_EQ(Sent(), "105.0");
  EXPECT_EQ(Window->Now().Hand, PilotHand::User);
  EXPECT_EQ(Open(), nullptr);
}

TEST_F(PilotTestWindow, SoDoesALostHeadingAndALostWind) {
  for (const bool wind : {false, true}) {
    StartInManual();
    Begin();
    Sail(15);
    ASSERT_EQ(Sent(), "115.0");
    (wind ? Wind : Heading) = false;
    Sail(7);
    EXPECT_EQ(Window->m_fAutoPilot, 105.0F);
    EXPECT_EQ(Sent(), "105.0");
    EXPECT_EQ(Said(), wind ? "The test has ended: No Wind" : "The test has ended: No Heading");
    EXPECT_EQ(Window->Now().Hand, PilotHand::User);
    Press("cmdPilotTestCancel");
    Heading = true;
    Wind = true;
    Options().close();
    QTest::qWait(0);
  }
}

TEST_F(PilotTestWindow, WhoeverElseTakesThePilotEndsIt) {
  StartInManual();
  Begin();
  Sail(15);
  Type("txtAutoPilot", "90");
  Enter("txtAutoPilot");
  EXPECT_EQ(Window->m_fAutoPilot, 90.0F) << "what was typed holds";
  EXPECT_THAT(Said(), HasSubstr("Somebody else took the pilot"));
  Sail(60);
  EXPECT_EQ(Window->m_fAutoPilot, 90.0F);
  Press("cmdPilotTestCancel");
  EXPECT_EQ(Window->m_fAutoPilot, 90.0F);
  for (const int mode : {3, 7}) {
    Mode(5);
    Sail(30);
    Begin();
    Sail(15);
    ASSERT_EQ(Window->m_fAutoPilot, 100.0F);
    Mode(mode);
    EXPECT_NEAR(Window->m_fAutoPilot, 90.0F, mode == 7 ? 0.5 : 0.0) << mode;
    EXPECT_THAT(Said(), HasSubstr("Somebody else took the pilot")) << mode;
    Press("cmdPilotTestCancel");
    Mode(5);
    Type("txtAutoPilot", "90");
    Enter("txtAutoPilot");
  }
}

TEST_F(PilotTestWindow, ATurnThatBeginsEndsIt) {
  StartInManual();
  Begin();
  Sail(15);
  Window->TurnBegins();
  EXPECT_THAT(Said(), HasSubstr("Somebody else took the pilot"));
  EXPECT_EQ(Window->m_fAutoPilot, 105.0F);
  EXPECT_EQ(Window->Now().Hand, PilotHand::Turn) << "the other one";
  QTest::mouseClick(&Button(), Qt::LeftButton);
}

TEST_F(PilotTestWindow, EndsWithTheOptions) {
  StartInManual();
  Begin();
  Sail(15);
  Options().hide();
  QTest::qWait(0);
  EXPECT_EQ(Window->m_fAutoPilot, 105.0F);
  EXPECT_EQ(Sent(), "105.0");
}

TEST_F(PilotTestWindow, ABoatThatStaysIsToldWithTheBearingOfBefore) {
  StartInManual();
  Begin();
  Pilots = false;
  Sail(53);
  EXPECT_THAT(Said(), HasSubstr("Does not follow: "));
  EXPECT_EQ(Sent(), "105.0");
  EXPECT_FALSE(Open()->findChild<QPushButton*>(QStringLiteral("cmdPilotTestTake"))->isEnabled());
}

TEST_F(PilotTestWindow, LooksWellInEveryLight) {
  StartInManual();
  Begin();
  const auto keep = [this](const char* name) {
    QTest::qWait(0);
    KeepPicture(Open()->grab().toImage(), QStringLiteral("pilot-test-") + QLatin1String(name));
    KeepPicture(Options().grab().toImage(), QStringLiteral("pilot-test-options-") + QLatin1String(name));
  };
  Sail(30);
  keep("light");
  Sail(70);
  QApplication::setPalette(DarkPalette());
  keep("dark");
  WearNightColours(true);
  keep("night");
  const auto* said = Open()->findChild<QLabel*>(QStringLiteral("lblPilotTest"));
  EXPECT_GE(said->height(), said->heightForWidth(said->width()));
}

}  // namespace
}  // namespace veerwatch
