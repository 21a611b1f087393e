// Every text that comes when something is done or goes wrong goes through the translation: questions,
// messages, turns, alarms, notices, verdicts.
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QListWidget>
#include <QMenu>
#include <cmath>
#include <optional>
#include <string>

#include "app/ProfileDesk.h"
#include "platform/Angles.h"
#include "platform/NumberText.h"
#include "tests/support/Sentences.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/ui/MainWindowTester.h"
#include "tests/ui/OptionsTester.h"
#include "tests/ui/PolarLedgerTester.h"
#include "tests/ui/PolarWindowTester.h"
#include "tests/ui/TextWalk.h"

namespace veerwatch {
namespace {

/// A boat that is where her pilot is told to be, less an offset, in a true wind from 145; by her polar she is
/// best at 45 and 150.
class TranslatedActs : public MainWindowTester {
 public:
  TextWalk Walk;
  bool Wind = true;
  bool Heading = true;
  bool Follows = true;
  double WindFrom = 145.0;
  double MarkAt = 145.0;      ///< [deg]
  std::string Range = "2.0";  ///< [nm]; "" for no waypoint
  double Offset = 8.0;        ///< by which the pilot's compass shows more

  TranslatedActs() {
    Walk.Allow("cruiser");
    Walk.Allow("pol");
  }
  ~TranslatedActs() override { Window.reset(); }

  void Choose(const char* command) const { Find<QAction>(command).trigger(); }

  void StartTracking(const std::string& more = "") {
    WriteFile(
        m_files / "cruiser.pol",
        "TWA\t6\t12\n30\t1\t1\n45\t6\t6\n60\t6.4\t6.4\n90\t7\t7\n120\t7\t7\n150\t6.5\t6.5\n180\t4\t4\n");
    Start(std::string(kOnPorts) + "[Track]\nBandwidth=60\n[Polar Data]\nFile 1=" +
          (m_files / "cruiser.pol").string() + "\nCourse Waypoint=True\nCourse Waypoint Index=2\n" + more);
    Window->AutoPilotSet(108.0F);
    Click("optControl(2)");
    Sail(12);
    Mode(7);
    Sail(2);
    ASSERT_EQ(Window->m_eTrackMode, TrackMode::Track);
  }

  /// Seconds in which the instruments send, a turn makes its steps, and everything is looked at.
  void Sail(int seconds) {
    for (int second = 0; second < seconds; ++second) {
      const auto tenths = [](double angle) { return FormatNumber(FoldBearing(angle), "0.0"); };
      if (Follows) {
        m_heading = static_cast<double>(Window->m_fAutoPilot) - Offset;
      }
      if (Heading) {
        NmeaPort.Receive(WithChecksum("$IIHVM,0.0,E") + "\r$GPVTG,,T," + tenths(m_heading) +
                         ",M,6.0,N,11.0,K,A\r");
        if (!Range.empty()) {
          NmeaPort.Receive("$GPRMB,A,1,R,1,2,1,N,1,E," + Range + "," + tenths(MarkAt) + ",5,V\r");
        }
      }
      if (Wind) {
        NmeaPort.Receive(Winds(tenths(WindFrom - m_heading), tenths(WindFrom - m_heading)));
      }
      tmrNmea.Tick();
      if (TimerTack.Enabled()) {
        TimerTack.Tick();
      } else {
        Time.Pass(1000);
      }
      Walk.LookAtAll();
    }
  }
  void Key(Qt::Key key) const { QTest::keyClick(Window.get(), key, Qt::ControlModifier); }
  template <class Control>
  static Control& Anywhere(const char* name) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (auto* control = window->findChild<Control*>(QLatin1String(name))) {
        return *control;
      }
    }
    throw std::runtime_error(std::string("no control ") + name);
  }
  void ExpectNothingBare() {
    Walk.LookAt(Dialogs);
    EXPECT_EQ(Walk.Found(), "");
  }

 protected:
  TemporaryFolder m_files;

 private:
  double m_heading = 100.0;
};

TEST_F(TranslatedActs, ATurnByItsKeyToItsEnd) {
  StartTracking();
  Key(Qt::Key_T);
  ASSERT_TRUE(TimerTack.Enabled());
  Walk.LookAtAll();
  for (int second = 0; second < 60 && TimerTack.Enabled(); ++second) {
    Sail(1);
  }
  Key(Qt::Key_J);
  Sail(3);
  Heading = false;
  Sail(10);
  ExpectNothingBare();
}

TEST_F(TranslatedActs, ATurnThatIsAskedAboutOrRefused) {
  WindFrom = 180.0;
  StartTracking();
  Key(Qt::Key_T);
  ASSERT_FALSE(Dialogs.Warnings.empty());
  for (const int mode : {5, 3, 1}) {
    Mode(mode);
    Key(Qt::Key_T);
    Walk.LookAtAll();
    Key(Qt::Key_J);
    Sail(1);
  }
  ExpectNothingBare();
}

TEST_F(TranslatedActs, ATurnOfTheDialog) {
  StartTracking();
  Window->TackOpen(190.0F, 100.0F, 45.0F);
  Walk.LookAtAll();
  auto& list = Find<QListWidget>("lstTack");
  for (int row = 0; row < list.count(); ++row) {
    list.setCurrentRow(row);
    Walk.LookAtAll();
  }
  for (const char* heading : {"x", "100", "101", "280", "359.9"}) {
    Type("txtHeading", heading);
    Sail(1);
  }
  Type("txtHeading", "190");
  Click("cmdOk");
  Sail(3);
  Wind = false;
  Sail(8);
  ExpectNothingBare();
}

TEST_F(TranslatedActs, ACourseThatIsSailed) {
  Offset = 0.0;
  StartTracking();
  Choose("mnuViewPolar");
  Sail(2);
  Anywhere<QAction>("mnuCourseSail").trigger();
  Sail(3);
  MarkAt = 191.0;
  Range = "0.5";
  Anywhere<QAction>("mnuCourseSail").trigger();
  Sail(1);
  Anywhere<QAction>("mnuCourseSail").trigger();
  Sail(2);
  EXPECT_TRUE(Anywhere<QPushButton>("cmdSail").isVisible()) << "it prompts";
  Sail(12);
  Range.clear();
  Sail(15);
  Mode(5);
  Anywhere<QAction>("mnuCourseSail").trigger();
  Sail(1);
  ExpectNothingBare();
}

TEST_F(TranslatedActs, WhatTheWatchFinds) {
  StartTracking(
      "[Watch]\nAct=True\n[Wind]\nAngle Guard=True\nShift Alarm=True\nShift Limit=10\nShift Lasts=5\n");
  Choose("mnuViewAlarms");
  Follows = false;
  WindFrom += 40.0;
  Sail(40);
  Heading = false;
  Sail(15);
  Wind = false;
  Sail(15);
  PilotPort.Lose();
  Sail(3);
  NmeaPort.Lose();
  Sail(3);
  ExpectNothingBare();
}

TEST_F(TranslatedActs, WhatTheWindMenuDoes) {
  StartTracking("[Wind]\nDodge Keys=True\nSide By Itself=True\n");
  for (const char* each : {"mnuWindGuard", "mnuWindShift", "mnuWindPolar", "mnuWindLast"}) {
    Choose(each);
    Sail(2);
  }
  Key(Qt::Key_Left);
  Sail(2);
  Key(Qt::Key_Up);
  Sail(2);
  Type("txtDesired(2)", "80");
  Enter("txtDesired(2)");
  Sail(2);
  Choose("mnuWindLimits");
  Walk.LookAtAll();
  ExpectNothingBare();
}

TEST_F(TranslatedActs, QuestionsOfTheMainWindow) {
  StartTracking("[View]\nCareful Entry=True\n");
  Type("txtDesired(2)", "-120");
  Enter("txtDesired(2)");
  ASSERT_FALSE(Dialogs.Warnings.empty());
  Window->close();
  ASSERT_FALSE(Dialogs.Questions.empty());
  Window->m_sProfileFile = "/dev/null/1/2.ini";
  Window->KeepSettings();
  Sail(1);
  Mode(3);
  for (const std::string& file :
       {std::string(), (m_files / "none/1.2").string(), (m_files / "1.2").string()}) {
    Dialogs.Files = {file};
    Choose("mnuFileRecord");
    Sail(1);
  }
  Dialogs.Files = {m_files.Path().string()};
  Choose("mnuHelpReport");
  Choose("mnuFileDefault");
  Sail(1);
  ExpectNothingBare();
}

TEST_F(TranslatedActs, WhatThePilotIsNotSent) {
  StartTracking("[Pilot]\nProfile=True APB\nCadence=5\n");
  Choose("mnuOptionsOutput");
  auto& profile = Anywhere<QComboBox>("cmbPilotProfile");
  for (int i = 0; i < profile.count(); ++i) {
    profile.setCurrentIndex(i);
    Sail(1);
  }
  Start(std::string(kOnPorts) + "[Pilot]\nProfile=True APB\n");
  NmeaPort.Receive("$GPVTG,,T,100.0,M,6.0,N,11.0,K,A\r" + Winds("30", "40"));
  Mode(5);
  NmeaPort.Receive(Winds("31", "41"));
  Walk.LookAtAll();
  ExpectNothingBare();
}

TEST_F(TranslatedActs, TheTestOfThePilot) {
  for (const bool follows : {true, false}) {
    Window.reset();
    Follows = true;
    StartTracking();
    Mode(5);
    Sail(10);
    Choose("mnuOptionsOutput");
    Dialogs.Answers = {true};
    Anywhere<QPushButton>("cmdPilotTest").click();
    Follows = follows;
    Sail(12);
    Follows = false;
    Sail(90);
  }
  Mode(3);
  Anywhere<QPushButton>("cmdPilotTest").click();
  ExpectNothingBare();
}

TEST_F(TranslatedActs, TheProfiles) {
  WriteFile(m_files / "1.ini", "[Simulate]\nNmea=True\n");
  WriteFile(m_files / "2.ini", "[Track]\nBandwidth=33\n");
  ProfileDesk desk(m_files / "1.ini");
  MainWindowParts parts{NmeaPort, PilotPort, tmrNmea, tmrUnload, TimerTack,
                        Time,     Random,    Asks(),  Store,     desk.File().string()};
  parts.Profiles = &desk;
  Window = std::make_unique<frmMain>(parts);
  Window->Form_Load();
  Window->show();
  Dialogs.Texts = {"a/b", "2", "3", "2"};
  Dialogs.Answers = {false, true};
  Find<QMenu>("mnuFileProfiles").popup(QPoint());
  Walk.LookAtAll();
  for (const char* each : {"mnuFileProfilesSaveAs", "mnuFileProfilesSaveAs", "mnuFileProfilesRename(2)",
                           "mnuFileProfilesSaveAs", "mnuFileProfilesDelete(3)"}) {
    if (auto* action = Window->findChild<QAction*>(QLatin1String(each))) {
      action->trigger();
      QTest::qWait(1);
    }
  }
  EXPECT_FALSE(Dialogs.Messages.empty());
  EXPECT_FALSE(Dialogs.Warnings.empty());
  ExpectNothingBare();
}

/// The dialog of the options, where a port leads, and what is refused.
class TranslatedOptions : public OptionsTester {
 public:
  TextWalk Walk;
};

TEST_F(TranslatedOptions, TheDevicesAndTheMistakesOfAnEndpoint) {
  Walk.Allow("file");
  Finder.Plugged = {{"/dev/ttyUSB0", "1234", "5678"}, {"/dev/ttyS0", "", ""}};
  Main.m_iNmeaPort = 1;
  NamePort(Store, 1, "/dev/ttyS5");
  Start(frmOptions::Input);
  Click("cmdNmeaDevice");
  for (const char* text :
       {"", "x", "/dev/ttyUSB0", "/dev/ttyUSB0?baud=38", "/dev/ttyS5", "tcp://", "tcp://1:x", "tcp://1",
        "udp://:0", "file:", "file:///1/2", "tcp://1:2,", "tcp-listen://:1", "/dev/ttyS0, /dev/ttyS0"}) {
    Find<QLineEdit>("txtDevice").setText(QLatin1String(text));
    Walk.LookAtAll();
  }
  EXPECT_EQ(Walk.Found(), "");
}

TEST_F(TranslatedOptions, WhatIsNotTaken) {
  Start(frmOptions::Input);
  Type("txtNmeaPort", "/dev/ttyS0");
  Click("cmdApply");
  for (const OptionBox& box : kOptionBoxes) {
    if (auto* entry = Window->findChild<QLineEdit*>(QLatin1String(box.Name))) {
      entry->setText(QStringLiteral("1x"));
    }
  }
  Click("cmdApply");
  Walk.LookAt(Dialogs);
  Walk.LookAtAll();
  EXPECT_FALSE(Dialogs.Messages.empty());
  EXPECT_EQ(Walk.Found(), "");
}

/// The polar window's menus and what they ask.
class TranslatedPolar : public PolarWindowTester {
 public:
  TextWalk Walk;
};

TEST_F(TranslatedPolar, WhatItAsksAndRefuses) {
  Walk.Allow("pol");
  Walk.Allow("Fast");
  Walk.Allow("Sled");
  Walk.Allow("ft");
  Start();
  WriteFile(Program / "1.pol", "nothing\n");
  for (QAction* action : Window->findChildren<QAction*>()) {
    if (!action->objectName().startsWith(QLatin1String("mnu")) || action->menu() != nullptr) {
      continue;
    }
    Dialogs.Answers = {true};
    Dialogs.Texts = {"x"};
    Dialogs.Files = {(Program / "1.pol").string()};
    action->trigger();
    Dialogs.Files = {(Program / "none.2").string()};
    Dialogs.Texts = {"-7"};
    Dialogs.Answers = {false};
    action->trigger();
    Walk.LookAtAll();
  }
  Walk.LookAt(Dialogs);
  EXPECT_GT(Dialogs.Questions.size() + Dialogs.Messages.size(), 5U);
  EXPECT_EQ(Walk.Found(), "");
}

/// What the polar window says of a course.
class TranslatedLedger : public PolarLedgerTester {
 public:
  TextWalk Walk;
};

TEST_F(TranslatedLedger, TheFiguresAndTheTurnsOfEachSource) {
  for (const char* word : {"pol", "Fast", "Sled", "ft"}) {
    Walk.Allow(word);
  }
  StartTo(100.0F);
  for (const char* source : {"mnuCourseWaypoint(0)", "mnuCourseWaypoint(1)", "mnuCourseWaypoint(2)"}) {
    Choose(source);
    for (const float wind : {-35.0F, 35.0F, 10.0F, -170.0F, 170.0F}) {
      Moment moment;
      moment.WindAngle = wind;
      At(moment);
      Walk.LookAtAll();
      for (const LedgerFigure& figure : Ledger().Content().Figures) {
        Walk.Look("a figure's heading", figure.Heading);
        Walk.Look("a figure", figure.Value);
      }
    }
  }
  EXPECT_EQ(Walk.Found(), "");
}

}  // namespace
}  // namespace veerwatch
