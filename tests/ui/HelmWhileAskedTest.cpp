// While a question of another window is open, with the real dialogs: the boat is steered on, the main window
// answers its keys and buttons, and an alarm brings it to the front.

#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QTemporaryDir>
#include <ostream>

#include "platform/DialogsQt.h"
#include "platform/WindowDialogsQt.h"
#include "tests/support/WaitQt.h"
#include "tests/ui/MainWindowTester.h"

namespace veerwatch {
namespace {

class HelmWhileAsked : public MainWindowTester {
 public:
  class Dialogs& Asks() override {
    return m_real;
  }

  /// Tracks 30 degrees to starboard, with bearing 100.
  void StartTracking() {
    Start(kOnPorts);
    m_real.Window(Window.get());
    NmeaPort.Receive(Winds("30", "40"));
    Mode(7);
    ASSERT_EQ(Window->m_eTrackMode, TrackMode::Track);
  }

  /// A window of the program, made and shown by `command`.
  QWidget& Show(const char* command, const char* name) {
    Find<QAction>(command).trigger();
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (window->objectName() == QLatin1String(name)) {
        for (QMessageBox* message : window->findChildren<QMessageBox*>()) {
          message->close();  // no polar lies in the tests' folder
        }
        return *window;
      }
    }
    throw std::runtime_error(std::string("no window ") + name);
  }

  template <class Control>
  static Control& In(QWidget& window, const char* name) {
    auto* control = window.findChild<Control*>(QString::fromLatin1(name));
    if (control == nullptr) {
      throw std::runtime_error(std::string("no control ") + name);
    }
    return *control;
  }

  /// As the desktop hands a key to the main window: not at all where a question blocks it.
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const {
    QTest::keyClick(Window->windowHandle(), key, modifiers);
  }
  /// The sentences for the autopilot go on with every wind.
  void SteersOn() {
    PilotPort.TakeWritten();
    NmeaPort.Receive(Winds("30", "40"));
    EXPECT_NE(PilotPort.TakeWritten(), "");
  }

  void AlarmComesToTheFront() {
    NmeaPort.Receive(Winds("80", "90"));
    EXPECT_TRUE(WaitActive(*Window));
    EXPECT_EQ(Text("StatusBar(3)").rfind("Alarm Limit Exceeded", 0), 0U);
  }

  void KeysChangeTheMode() const {
    Window->activateWindow();
    ASSERT_TRUE(WaitActive(*Window));
    for (const auto& [key, mode] :
         {std::pair{Qt::Key_F5, TrackMode::Off}, std::pair{Qt::Key_F6, TrackMode::Setup},
          std::pair{Qt::Key_F8, TrackMode::Track}, std::pair{Qt::Key_F7, TrackMode::Manual}}) {
      Key(key);
      EXPECT_EQ(Window->m_eTrackMode, mode);
    }
  }

  void NudgesTurn() const {
    const float bearing = Window->m_fAutoPilot;
    Key(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(Window->m_fAutoPilot, bearing + 1.0F);
    Click("cmdAutoPilot(1)");
    Click("cmdAutoPilot(1)");
    EXPECT_EQ(Window->m_fAutoPilot, bearing - 1.0F);
    Key(Qt::Key_F8);
    const float wanted = Window->DesiredAngle[1];
    Key(Qt::Key_Left, Qt::AltModifier);
    EXPECT_NE(Window->DesiredAngle[1], wanted);
  }

  /// `window` asks, and everything goes on.
  void GoesOn(QWidget& window) {
    QWidget& question = FrontOf(window);
    ASSERT_NE(&question, &window) << "nothing is asked";
    question.activateWindow();
    ASSERT_TRUE(WaitActive(question));
    SteersOn();
    AlarmComesToTheFront();
    KeysChangeTheMode();
    NudgesTurn();
    SteersOn();
    EXPECT_EQ(&FrontOf(window), &question) << "the question waits";
    EXPECT_TRUE(question.isVisible());
    EXPECT_EQ(QApplication::activeModalWidget(), &question);
  }

 private:
  DialogsQt m_real;
};

/// A question that a command of a window asks.
struct AskingCommand {
  const char* Name;     ///< of the test
  const char* Command;  ///< object name
};

void PrintTo(const AskingCommand& command, std::ostream* stream) { *stream << command.Command; }

class HelmWhilePolarAsks : public HelmWhileAsked, public testing::WithParamInterface<AskingCommand> {};

TEST_P(HelmWhilePolarAsks, GoesOn) {
  StartTracking();
  QWidget& polar = Show("mnuViewPolar", "frmPolar");
  In<QAction>(polar, GetParam().Command).trigger();
  GoesOn(polar);
}

INSTANTIATE_TEST_SUITE_P(
    All, HelmWhilePolarAsks,
    testing::Values(AskingCommand{"Colour", "mnuOverlayColor"}, AskingCommand{"Open", "mnuOverlayFile1"},
                    AskingCommand{"OpenReference", "mnuOverlayFile2"}, AskingCommand{"SaveAs", "mnuSaveAs"},
                    AskingCommand{"Range", "mnuRangeCustom"}, AskingCommand{"Scaling", "mnuOverlayScale"},
                    AskingCommand{"TargetBearing", "mnuCourseTargetBearing"},
                    AskingCommand{"MotorSpeed", "mnuBoatMotorSpeed"}),
    [](const auto& test) { return test.param.Name; });

class HelmWhileHistoryAsks : public HelmWhileAsked, public testing::WithParamInterface<AskingCommand> {};

TEST_P(HelmWhileHistoryAsks, GoesOn) {
  StartTracking();
  QWidget& history = Show("mnuViewHistory", "frmHistory");
  In<QToolButton>(history, "cmdSettings").click();
  In<QAbstractButton>(history, GetParam().Command).click();
  GoesOn(history);
}

INSTANTIATE_TEST_SUITE_P(All, HelmWhileHistoryAsks,
                         testing::Values(AskingCommand{"Colour", "cmdColour(1)"},
                                         AskingCommand{"Picture", "cmdSavePicture"},
                                         AskingCommand{"Data", "cmdSaveData"}),
                         [](const auto& test) { return test.param.Name; });

TEST_F(HelmWhileAsked, GoesOnDuringTheSecondOfTwoQuestions) {
  StartTracking();
  QWidget& polar = Show("mnuViewPolar", "frmPolar");
  In<QAction>(polar, "mnuOverlayScale").trigger();
  auto& entry = *FrontOf(polar).findChild<QLineEdit*>();
  entry.setText(QStringLiteral("90"));
  QTest::keyClick(&entry, Qt::Key_Return);
  GoesOn(polar);
  QTest::keyClick(&FrontOf(polar), Qt::Key_Escape);
  EXPECT_EQ(&FrontOf(polar), &polar);
}

TEST_F(HelmWhileAsked, GoesOnWhileAnExportAsksWhetherItMayReplace) {
  const QTemporaryDir folder;
  std::ofstream(folder.filePath(QStringLiteral("old.csv")).toStdString()) << "old";
  StartTracking();
  QWidget& history = Show("mnuViewHistory", "frmHistory");
  In<QToolButton>(history, "cmdSettings").click();
  In<QAbstractButton>(history, "cmdSaveData").click();
  In<QLineEdit>(FrontOf(history), "fileNameEdit").setText(folder.filePath(QStringLiteral("old.csv")));
  QMetaObject::invokeMethod(&FrontOf(history), "accept");
  ASSERT_NE(qobject_cast<QMessageBox*>(&FrontOf(history)), nullptr);
  GoesOn(history);
}

TEST_F(HelmWhileAsked, GoesOnWhileTheOptionsTellOfAProblem) {
  StartTracking();
  QWidget& options = Show("mnuOptionsTrack", "frmOptions");
  In<QLineEdit>(options, "txtTrackBandwidth").setText(QStringLiteral("x"));
  In<QPushButton>(options, "cmdApply").click();
  auto* message = options.findChild<QMessageBox*>();
  ASSERT_NE(message, nullptr);
  ASSERT_TRUE(WaitActive(*message));
  SteersOn();
  AlarmComesToTheFront();
  KeysChangeTheMode();
  NudgesTurn();
  EXPECT_TRUE(message->isVisible());
}

TEST_F(HelmWhileAsked, ATurnInFrontOfTheWindowThatAsksCanBeEnded) {
  StartTracking();
  QWidget& polar = Show("mnuViewPolar", "frmPolar");
  Window->TackOpen(190.0F, 100.0F, 45.0F);
  auto& tack = Find<QDialog>("frmTack");
  static_cast<frmTack&>(tack).StayInFrontOf(polar);
  In<QAction>(polar, "mnuOverlayColor").trigger();
  ASSERT_TRUE(WaitFor([&] { return FrontOf(polar).isVisible(); }));
  QTest::keyClick(polar.windowHandle(), Qt::Key_Escape);
  EXPECT_NE(&FrontOf(polar), &polar);
  QTest::keyClick(tack.windowHandle(), Qt::Key_Escape);
  EXPECT_FALSE(tack.isVisible());
  EXPECT_NE(&FrontOf(polar), &polar);
}

TEST_F(HelmWhileAsked, TheQuestionOfTheMainWindowItselfComesFirst) {
  StartTracking();
  Window->close();
  QWidget& question = FrontOf(*Window);
  ASSERT_NE(&question, Window.get());
  SteersOn();
  NmeaPort.Receive(Winds("80", "90"));
  EXPECT_TRUE(WaitActive(question)) << "the window is where it should be behind it";
  NmeaPort.Receive(Winds("80", "90"));
  EXPECT_TRUE(WaitActive(question));
  Key(Qt::Key_F7);
  EXPECT_EQ(Window->m_eTrackMode, TrackMode::Track);
  QWidget& polar = Show("mnuViewPolar", "frmPolar");
  ASSERT_TRUE(WaitActive(polar));
  NmeaPort.Receive(Winds("80", "90"));
  EXPECT_TRUE(WaitActive(question)) << "with the question that has to be answered";
}

TEST_F(HelmWhileAsked, TheEndOfTheSessionTakesEveryQuestionAlong) {
  StartTracking();
  QWidget& polar = Show("mnuViewPolar", "frmPolar");
  In<QAction>(polar, "mnuOverlayColor").trigger();
  QWidget& colour = FrontOf(polar);
  Window->close();
  QWidget& question = FrontOf(*Window);
  ASSERT_TRUE(question.isVisible());
  Window->CloseUnasked();
  EXPECT_FALSE(Window->isVisible());
  EXPECT_FALSE(question.isVisible());
  EXPECT_FALSE(colour.isVisible());
  EXPECT_NE(ReadProfile().find("[Polar Window]"), std::string::npos);
}

TEST_F(HelmWhileAsked, AYesClosesAllWindows) {
  StartTracking();
  QWidget& polar = Show("mnuViewPolar", "frmPolar");
  In<QAction>(polar, "mnuOverlayColor").trigger();
  QWidget& colour = FrontOf(polar);
  EXPECT_FALSE(Window->close());
  auto* question = qobject_cast<QMessageBox*>(&FrontOf(*Window));
  ASSERT_NE(question, nullptr);
  QTest::mouseClick(question->button(QMessageBox::Yes), Qt::LeftButton);
  EXPECT_FALSE(Window->isVisible());
  EXPECT_FALSE(polar.isVisible());
  EXPECT_FALSE(colour.isVisible());
  EXPECT_FALSE(PilotPort.PortOpen());
}

}  // namespace
}  // namespace veerwatch
