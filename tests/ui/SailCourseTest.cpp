// "Course > Sail the Course" in the real windows.

#include <QAction>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QToolBar>
#include <cmath>
#include <stdexcept>
#include <string>

#include "platform/Angles.h"
#include "platform/NumberText.h"
#include "polar/frmPolar.h"
#include "tests/support/PictureQt.h"
#include "tests/support/Sentences.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/ui/MainWindowTester.h"

namespace veerwatch {
namespace {

/// A boat that is where her pilot is told to be, in a true wind from 145; by her polar she is best at 45 and
/// 150.
class SailCourse : public MainWindowTester {
 public:
  double MarkAt = 145.0;      ///< [deg]
  std::string Range = "2.0";  ///< [nm]; "" for a waypoint that is gone

  void StartTracking(const std::string& more = "") {
    WriteFile(
        m_polars / "cruiser.pol",
        "TWA\t6\t12\n30\t1\t1\n45\t6\t6\n60\t6.4\t6.4\n90\t7\t7\n120\t7\t7\n150\t6.5\t6.5\n180\t4\t4\n");
    Start(std::string(kOnPorts) + "[Track]\nBandwidth=60\n[Polar Data]\nFile 1=" +
          (m_polars / "cruiser.pol").string() + "\nCourse Waypoint=True\nCourse Waypoint Index=2\n" + more);
    Window->AutoPilotSet(100.0F);
    Click("optControl(2)");
    Sail(12);
    Mode(7);
    Sail(2);
    ASSERT_EQ(Window->m_eTrackMode, TrackMode::Track);
    Find<QAction>("mnuViewPolar").trigger();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Polar()));
    Sail(1);
  }

  void Sail(int seconds) {
    for (int second = 0; second < seconds; ++second) {
      const auto tenths = [](double angle) { return FormatNumber(FoldBearing(angle), "0.0"); };
      const auto heading = static_cast<double>(Window->m_fAutoPilot);
      NmeaPort.Receive(WithChecksum("$IIHVM,0.0,E") + "\r$GPVTG,,T," + tenths(heading) +
                       ",M,6.0,N,11.0,K,A\r");
      if (!Range.empty()) {
        NmeaPort.Receive("$GPRMB,A,1,R,1,2,1,N,1,E," + Range + "," + tenths(MarkAt) + ",5,V\r");
      }
      NmeaPort.Receive(Winds(tenths(145.0 - heading), tenths(145.0 - heading)));
      tmrNmea.Tick();
      if (TimerTack.Enabled()) {
        TimerTack.Tick();
      } else {
        Time.Pass(1000);
      }
    }
  }

  static QWidget& Polar() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      if (widget->objectName() == QStringLiteral("frmPolar")) {
        return *widget;
      }
    }
    throw std::runtime_error("no polar window");
  }
  template <class Control>
  static Control& InPolar(const char* name) {
    auto* control = Polar().findChild<Control*>(QString::fromLatin1(name));
    if (control == nullptr) {
      throw std::runtime_error(std::string("no control ") + name);
    }
    return *control;
  }
  static void Choose(const char* item) { InPolar<QAction>(item).trigger(); }
  static bool Ticked(const char* item) { return InPolar<QAction>(item).isChecked(); }
  static std::string Line() { return InPolar<QLabel>("lblSail").text().toStdString(); }
  static std::string Prompt() {
    auto& button = InPolar<QPushButton>("cmdSail");
    return button.isVisible() ? button.text().toStdString() : "";
  }
  std::string Status() const { return Text("StatusBar(1)"); }
  bool Turns() const {
    const auto* turn = Window->findChild<QDialog*>(QStringLiteral("frmTurn"));
    return turn != nullptr && turn->isVisible() && TimerTack.Enabled();
  }

 private:
  TemporaryFolder m_polars;
};

TEST_F(SailCourse, HoldsTheLegAndShowsIt) {
  StartTracking();
  EXPECT_FALSE(Ticked("mnuCourseSail"));
  EXPECT_FALSE(InPolar<QToolBar>("tbrSail").isVisible());
  Choose("mnuCourseSail");
  EXPECT_TRUE(Ticked("mnuCourseSail"));
  EXPECT_EQ(Line().substr(0, 25), "Starboard tack, 45 degree");
  EXPECT_TRUE(InPolar<QToolBar>("tbrSail").isVisible());
  EXPECT_EQ(Prompt(), "");
  KeepPicture(Polar().grab().toImage(), QStringLiteral("polar-sails"));
  Choose("mnuCourseSail");
  EXPECT_FALSE(Ticked("mnuCourseSail"));
  EXPECT_FALSE(InPolar<QToolBar>("tbrSail").isVisible());
  EXPECT_EQ(Window->m_eTrackMode, TrackMode::Track);
  EXPECT_EQ(Dialogs.Beeps, 0);
}

TEST_F(SailCourse, IsLegibleAndDarkAtNight) {
  StartTracking();
  Choose("mnuCourseSail");
  WearNightColours(true);
  QTest::qWait(0);
  const auto& bar = InPolar<QToolBar>("tbrSail");
  const auto& line = InPolar<QLabel>("lblSail");
  EXPECT_EQ(line.palette().color(QPalette::WindowText), Polar().palette().color(QPalette::WindowText));
  const QImage image = Polar().grab(bar.geometry()).toImage();
  KeepPicture(image, QStringLiteral("sail-night"));
  WearNightColours(false);
  int letters = 0;
  int blue = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QRgb pixel = image.pixel(x, y);
      letters += qRed(pixel) > 150 ? 1 : 0;
      blue += qBlue(pixel) > 130 ? 1 : 0;
    }
  }
  EXPECT_GE(letters, 100);
  EXPECT_EQ(blue, 0);
}

TEST_F(SailCourse, EnterTacksInEitherWindowWhileItIsPromptedFor) {
  for (const bool inPolar : {true, false}) {
    StartTracking();
    Choose("mnuCourseSail");
    QWidget& window = inPolar ? Polar() : *Window;
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_Return);
    EXPECT_FALSE(Turns()) << "nothing is prompted for";
    MarkAt = 191.0;
    Range = "0.5";
    Choose("mnuCourseSail");
    Sail(1);
    Choose("mnuCourseSail");
    Sail(2);
    EXPECT_EQ(Prompt(), "Tack now (Enter)");
    EXPECT_EQ(Status(), "Tack now (Enter)");
    KeepPicture(Window->grab().toImage(), QStringLiteral("main-sails-prompt"));
    EXPECT_EQ(Dialogs.Beeps, 1) << "once when it comes";
    KeepPicture(Polar().grab().toImage(), QStringLiteral("polar-sails-prompt"));
    QTest::keyClick(&window, inPolar ? Qt::Key_Return : Qt::Key_Enter);
    EXPECT_TRUE(Turns()) << inPolar;
    EXPECT_EQ(Prompt(), "");
    for (int second = 0; second < 100 && TimerTack.Enabled(); ++second) {
      Sail(1);
    }
    EXPECT_EQ(Window->m_eTrackMode, TrackMode::Track);
    Sail(5);
    EXPECT_TRUE(Ticked("mnuCourseSail"));
    EXPECT_NEAR(Window->DesiredAngle[2], -46.0F, 2.0F);
    Window.reset();
    MarkAt = 145.0;
    Range = "2.0";
    Dialogs.Beeps = 0;
  }
}

TEST_F(SailCourse, TheTurnToComeStandsOnThePlot) {
  StartTracking();
  MarkAt = 191.0;
  Sail(1);
  Choose("mnuCourseSail");
  Sail(3);
  ASSERT_EQ(Prompt(), "Tack now (Enter)");
  const auto* polar = dynamic_cast<frmPolar*>(&Polar());
  ASSERT_NE(polar, nullptr);
  const auto& turn = polar->Model().Hold().Turn;
  ASSERT_TRUE(turn.has_value());
  EXPECT_NEAR(turn->TrueFrom, 45.0, 1.0);
  EXPECT_NEAR(turn->TrueTo, -46.0, 1.5);
  EXPECT_EQ(turn->Text, "91 deg, 10 s");
  KeepPicture(Polar().grab().toImage(), QStringLiteral("polar-turn"));
  QTest::keyClick(&Polar(), Qt::Key_Return);
  Sail(4);
  EXPECT_LT(polar->Model().Hold().Turn->TrueFrom, 30.0) << "what is left of it";
  for (int second = 0; second < 100 && TimerTack.Enabled(); ++second) {
    Sail(1);
  }
  Sail(2);
  EXPECT_FALSE(polar->Model().Hold().Turn.has_value());
}

TEST_F(SailCourse, TheHeldAngleIsMarkedInEitherWind) {
  StartTracking();
  const auto* polar = dynamic_cast<frmPolar*>(&Polar());
  ASSERT_NE(polar, nullptr);
  EXPECT_NEAR(polar->Model().Hold().True.value_or(0.0F), 45.0F, 0.5F);
  EXPECT_NEAR(polar->Model().Hold().Apparent.value_or(0.0F), 26.0F, 2.0F);
  Click("optControl(1)");
  Sail(3);
  EXPECT_NEAR(polar->Model().Hold().Apparent.value_or(0.0F), 45.0F, 2.0F);
  EXPECT_TRUE(polar->Model().Hold().True.has_value());
}

TEST_F(SailCourse, LeavesAnEntryBoxItsEnter) {
  StartTracking();
  MarkAt = 191.0;
  Sail(1);
  Choose("mnuCourseSail");
  Sail(2);
  ASSERT_EQ(Prompt(), "Tack now (Enter)");
  Window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(Window.get()));
  Type("txtDesired(2)", "48");
  Enter("txtDesired(2)");
  EXPECT_FALSE(Turns());
  Sail(1);
  EXPECT_FALSE(Ticked("mnuCourseSail"));
  EXPECT_EQ(Status(), "Sail the Course ended: another angle was set");
  EXPECT_EQ(Line(), "Sail the Course ended: another angle was set");
}

TEST_F(SailCourse, TheButtonTacks) {
  StartTracking();
  MarkAt = 191.0;
  Sail(1);
  Choose("mnuCourseSail");
  Sail(1);
  QTest::mouseClick(&InPolar<QPushButton>("cmdSail"), Qt::LeftButton);
  EXPECT_TRUE(Turns());
}

TEST_F(SailCourse, TacksByItselfWhereThatIsTickedAndKeepsTheTick) {
  StartTracking();
  EXPECT_FALSE(Ticked("mnuCourseTack"));
  Choose("mnuCourseTack");
  EXPECT_TRUE(Ticked("mnuCourseTack"));
  MarkAt = 191.0;
  Sail(1);
  Choose("mnuCourseSail");
  Sail(12);
  EXPECT_TRUE(Turns());
  Dialogs.Answers = {true};
  Window->close();
  EXPECT_NE(ReadProfile().find("Tack By Itself=True"), std::string::npos);
}

TEST_F(SailCourse, SaysWhyItEndsAndWhyItDoesNotBegin) {
  StartTracking();
  Choose("mnuCourseSail");
  Range.clear();
  Sail(12);
  EXPECT_FALSE(Ticked("mnuCourseSail"));
  EXPECT_EQ(Status(), "Sail the Course ended: No Waypoint");
  EXPECT_EQ(Dialogs.Beeps, 1);
  Mode(5);
  Choose("mnuCourseSail");
  EXPECT_FALSE(Ticked("mnuCourseSail"));
  EXPECT_EQ(Line(), "No course to sail: Not in Track");
  EXPECT_EQ(Dialogs.Beeps, 1) << "the user sees it";
}

TEST_F(SailCourse, AModeEndsIt) {
  StartTracking();
  Choose("mnuCourseSail");
  Window->activateWindow();
  Mode(5);
  EXPECT_FALSE(Ticked("mnuCourseSail"));
  EXPECT_EQ(Status(), "Sail the Course ended: Not in Track");
}

TEST_F(SailCourse, AFarTurnIsAskedForOnceMore) {
  StartTracking();
  MarkAt = 265.0;
  Sail(1);
  Choose("mnuCourseSail");
  Sail(1);
  Dialogs.Answers = {false};
  QTest::keyClick(&Polar(), Qt::Key_Return);
  EXPECT_FALSE(Turns());
  Dialogs.Answers = {true};
  QTest::keyClick(&Polar(), Qt::Key_Return);
  EXPECT_TRUE(Turns());
}

}  // namespace
}  // namespace veerwatch
