// The block diagram and the about box as the main window opens them.

#include <QApplication>
#include <QScreen>
#include <QTabWidget>

#include "tests/support/PictureQt.h"
#include "tests/ui/DarkPalette.h"
#include "tests/ui/MainWindowTester.h"

namespace veerwatch {
namespace {

class Diagram : public MainWindowTester {
 public:
  static QWidget* TopLevel(const char* name) {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      if (widget->objectName() == QLatin1String(name)) {
        return widget;
      }
    }
    return nullptr;
  }
  static bool Shows(const char* name) { return TopLevel(name) != nullptr && TopLevel(name)->isVisible(); }

  void Open() const { Find<QAction>("mnuViewDiagram").trigger(); }
  bool Ticked(const char* command) const { return Find<QAction>(command).isChecked(); }

  static QPushButton& Button(const char* name) {
    return *TopLevel("frmDiagram")->findChild<QPushButton*>(QLatin1String(name));
  }
  static void Press(const char* name) { QTest::mouseClick(&Button(name), Qt::LeftButton); }
  static std::string State(const char* name) {
    return TopLevel("frmDiagram")->findChild<QLabel*>(QLatin1String(name))->text().toStdString();
  }
  static QColor Fill(const char* name) {
    const QPushButton& button = Button(name);
    return TopLevel("frmDiagram")
        ->grab()
        .toImage()
        .pixelColor(button.mapTo(TopLevel("frmDiagram"), QPoint(button.width() / 2, 6)));
  }
};

TEST_F(Diagram, OpensFromViewAndFromHelpAndIsTickedWhileItShows) {
  Start(kOnPorts);
  EXPECT_EQ(TopLevel("frmDiagram"), nullptr);
  for (const char* command : {"mnuViewDiagram", "mnuHelpDiagram", "mnuViewDiagram"}) {
    Find<QAction>(command).trigger();
    EXPECT_TRUE(Shows("frmDiagram")) << command;
    EXPECT_TRUE(Ticked("mnuViewDiagram"));
    Find<QAction>(command).trigger();
    EXPECT_TRUE(Shows("frmDiagram")) << "choosing it again leaves it open";
    EXPECT_TRUE(Ticked("mnuViewDiagram"));
    TopLevel("frmDiagram")->close();
    EXPECT_FALSE(Ticked("mnuViewDiagram"));
  }
  EXPECT_EQ(TopLevel("frmDiagram")->windowTitle(), "Veerwatch - Block Diagram");
}

TEST_F(Diagram, ShowsItsButtonsAndLabels) {
  Start(kOnPorts);
  Open();
  for (const auto& [name, caption, toolTip] : std::vector<std::array<const char*, 3>>{
           {"cmdInput", "Input", "NMEA 0183 Data"},
           {"cmdOutput", "Output", "Output Options"},
           {"cmdControl", "Control Loop", "Apparent or True Angle Tracking Options"},
           {"cmdPolar", "Polar Plot", "Performance Polar Plot"},
           {"cmdHistory", "History Plot", "Strip Chart Recorder"}}) {
    EXPECT_EQ(Button(name).text(), QLatin1String(caption));
    EXPECT_EQ(Button(name).toolTip(), QLatin1String(toolTip));
    EXPECT_TRUE(Button(name).isVisible());
  }
  for (const QLabel* label : TopLevel("frmDiagram")->findChildren<QLabel*>()) {
    EXPECT_GE(label->width(), label->fontMetrics().horizontalAdvance(label->text()))
        << label->text().toStdString();
  }
}

TEST_F(Diagram, ThePolarButtonShowsThePolarAndTicksItsCommand) {
  Start(kOnPorts);
  Open();
  Press("cmdPolar");
  EXPECT_TRUE(Shows("frmPolar"));
  EXPECT_TRUE(Ticked("mnuViewPolar"));
  Press("cmdPolar");
  EXPECT_TRUE(Shows("frmPolar"));
  EXPECT_TRUE(Ticked("mnuViewPolar"));
  TopLevel("frmPolar")->close();
  Press("cmdPolar");
  EXPECT_TRUE(Shows("frmPolar"));
}

TEST_F(Diagram, TheHistoryButtonShowsTheHistoryAndThenItsPopUp) {
  Start(kOnPorts);
  Open();
  Press("cmdHistory");
  EXPECT_TRUE(Shows("frmHistory"));
  EXPECT_TRUE(Ticked("mnuViewHistory"));
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  Press("cmdHistory");
  QWidget* popup = QApplication::activePopupWidget();
  ASSERT_NE(popup, nullptr);
  EXPECT_EQ(popup->objectName(), "frmConfigPopup");
  popup->close();
  TopLevel("frmHistory")->close();
  Press("cmdHistory");
  EXPECT_TRUE(Shows("frmHistory"));
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "shown again, without the pop-up";
}

TEST_F(Diagram, ThreeButtonsOpenTheOptionsOnTheirTabs) {
  Start(kOnPorts);
  Open();
  for (const auto& [button, tab] : {std::pair{"cmdInput", 0}, std::pair{"cmdOutput", 2},
                                    std::pair{"cmdControl", 1}, std::pair{"cmdInput", 0}}) {
    for (const char* state : {"hidden", "shown"}) {
      Press(button);
      EXPECT_TRUE(Shows("frmOptions")) << button << " " << state;
      EXPECT_FALSE(TopLevel("frmOptions")->isModal());
      EXPECT_EQ(TopLevel("frmOptions")->findChild<QTabWidget*>()->currentIndex(), tab) << button;
    }
    QTest::keyClick(TopLevel("frmOptions"), Qt::Key_Escape);
    EXPECT_FALSE(Shows("frmOptions"));
  }
}

TEST_F(Diagram, TheOptionsOpenBelowTheMiddleOfTheButtonWhereTheScreenHasRoom) {
  Start(kOnPorts);
  Open();
  QWidget* diagram = TopLevel("frmDiagram");
  Press("cmdInput");
  QWidget* options = TopLevel("frmOptions");
  const QRect screen = diagram->screen()->availableGeometry();
  const QSize size = options->frameGeometry().size();
  const QSize frame = diagram->frameGeometry().size() - diagram->size();
  diagram->resize(diagram->minimumSize());
  diagram->move(screen.topLeft());
  for (const char* name : {"cmdInput", "cmdControl", "cmdOutput"}) {
    Press(name);
    const QRect button = Button(name).geometry();
    const QPoint wanted = diagram->pos() + QPoint(frame.width(), frame.height()) +
                          QPoint(button.x() + qRound(button.width() / 2.0), button.bottom() + 1);
    EXPECT_EQ(options->pos().x(), std::min(wanted.x(), screen.x() + screen.width() - size.width())) << name;
    EXPECT_EQ(options->pos().y(), std::min(wanted.y(), screen.y() + screen.height() - size.height())) << name;
  }
  diagram->move(screen.bottomRight());
  Press("cmdInput");
  EXPECT_EQ(options->frameGeometry().right(), screen.right());
  EXPECT_EQ(options->frameGeometry().bottom(), screen.bottom());
}

TEST_F(Diagram, TheOptionsAppearOnTheScreenWithTheirFrame) {
  Start(kOnPorts);
  Mode(5);
  NmeaPort.Receive(Winds("45", "50"));
  QWidget* options = TopLevel("frmOptions");
  ASSERT_NE(options, nullptr) << "not shown yet";
  Open();
  QWidget* diagram = TopLevel("frmDiagram");
  const QSize frame = diagram->frameGeometry().size() - diagram->size();
  ASSERT_GT(frame.height(), 0) << "a desktop with frames";
  FirstPlace first;
  options->installEventFilter(&first);
  const QRect screen = diagram->screen()->availableGeometry();
  diagram->move(screen.bottomRight());
  Press("cmdInput");
  const QPoint corner(screen.right() + 1 - options->width() - frame.width(),
                      screen.bottom() + 1 - options->height() - frame.height());
  EXPECT_EQ(first.At, corner);
  EXPECT_EQ(options->pos(), corner);
}

TEST_F(Diagram, ClosingItClearsItsTickOnlyAndLeavesWhatItOpened) {
  Start(kOnPorts);
  Open();
  Press("cmdPolar");
  Press("cmdHistory");
  TopLevel("frmDiagram")->close();
  EXPECT_FALSE(Ticked("mnuViewDiagram"));
  EXPECT_TRUE(Ticked("mnuViewPolar"));
  EXPECT_TRUE(Ticked("mnuViewHistory"));
  EXPECT_TRUE(Shows("frmPolar"));
  EXPECT_TRUE(Shows("frmHistory"));
}

TEST_F(Diagram, GoesWithTheMainWindow) {
  Start(kOnPorts);
  Open();
  Find<QAction>("mnuHelpAbout").trigger();
  Window->close();
  EXPECT_FALSE(Shows("frmDiagram"));
  EXPECT_FALSE(Shows("frmAbout"));
}

TEST_F(Diagram, LightsUpWithInputModeAndOutput) {
  Start(kOnPorts);
  Open();
  EXPECT_EQ(State("lblInputState"), "Running");
  EXPECT_EQ(State("lblControlState"), "Setup");
  EXPECT_EQ(State("lblOutputState"), "Open");
  const QColor good = Fill("cmdInput");
  EXPECT_EQ(Fill("cmdOutput"), good);
  Mode(7);
  EXPECT_EQ(State("lblControlState"), "Track");
  EXPECT_EQ(Fill("cmdControl"), good);
  Mode(5);
  EXPECT_EQ(State("lblControlState"), "Manual");
  EXPECT_NE(Fill("cmdControl"), good);
  tmrNmea.Tick(4);
  EXPECT_EQ(State("lblInputState"), "No Input Data");
  const QColor trouble = Fill("cmdInput");
  EXPECT_NE(trouble, good);
  NmeaPort.Receive(Winds("45", "50"));
  tmrNmea.Tick();
  EXPECT_EQ(State("lblInputState"), "Running");
  PilotPort.OpensOtherwise = false;
  PilotPort.Lose();
  tmrNmea.Tick();
  EXPECT_EQ(State("lblOutputState"), "Not Open");
  EXPECT_EQ(Fill("cmdOutput"), trouble);
  Mode(1);
  EXPECT_EQ(State("lblInputState"), "Stopped");
  EXPECT_EQ(State("lblControlState"), "Off");
  EXPECT_EQ(State("lblOutputState"), "Stopped");
  EXPECT_EQ(Fill("cmdOutput"), Fill("cmdPolar")) << "dark";
}

TEST_F(Diagram, ShowsASimulation) {
  Start(kSimulated);
  Open();
  EXPECT_EQ(State("lblInputState"), "Simulate");
  EXPECT_EQ(State("lblControlState"), "Manual");
  EXPECT_EQ(State("lblOutputState"), "Simulate");
}

TEST_F(Diagram, OnePortBothWaysIsOneOutput) {
  Start("[Nmea]\nPort=3\n[Pilot]\nPort=3\n");
  Open();
  EXPECT_EQ(State("lblOutputState"), "Open");
  NmeaPort.OpensOtherwise = false;
  NmeaPort.Lose();
  tmrNmea.Tick();
  EXPECT_EQ(State("lblInputState"), "Not Open");
  EXPECT_EQ(State("lblOutputState"), "Not Open");
}

TEST_F(Diagram, LooksAsItShouldInBothPalettes) {
  const QPalette before = QApplication::palette();
  for (const char* shade : {"light", "dark"}) {
    if (std::string(shade) == "dark") {
      QApplication::setPalette(DarkPalette());
    }
    Start(kOnPorts);
    Mode(7);
    Open();
    Find<QAction>("mnuHelpAbout").trigger();
    QWidget* diagram = TopLevel("frmDiagram");
    KeepPicture(diagram->grab().toImage(), QStringLiteral("diagram-%1").arg(QLatin1String(shade)));
    KeepPicture(TopLevel("frmAbout")->grab().toImage(), QStringLiteral("about-%1").arg(QLatin1String(shade)));
    tmrNmea.Tick(4);
    Mode(5);
    diagram->resize(diagram->minimumSize());
    KeepPicture(diagram->grab().toImage(), QStringLiteral("diagram-%1-small").arg(QLatin1String(shade)));
    for (const QLabel* label : diagram->findChildren<QLabel*>()) {
      EXPECT_GE(label->width(), label->fontMetrics().horizontalAdvance(label->text()))
          << shade << " " << label->text().toStdString();
    }
    const QColor corner = diagram->grab().toImage().pixelColor(2, 2);
    EXPECT_EQ(corner.lightness() < 128, std::string(shade) == "dark");
    Window->close();
    Window.reset();
  }
  QApplication::setPalette(before);
}

TEST_F(Diagram, TheAboutBoxSaysWhatTheProgramIs) {
  Start(kOnPorts);
  EXPECT_EQ(TopLevel("frmAbout"), nullptr);
  Find<QAction>("mnuHelpAbout").trigger();
  QWidget* about = TopLevel("frmAbout");
  ASSERT_TRUE(Shows("frmAbout"));
  const auto text = [about](const char* name) {
    return about->findChild<QLabel*>(QLatin1String(name))->text().toStdString();
  };
  EXPECT_EQ(about->windowTitle(), "About Veerwatch");
  EXPECT_EQ(text("lblTitle"), "Veerwatch");
  EXPECT_EQ(text("lblDescription").substr(0, 8), "Version ");
  EXPECT_NE(text("lblDescription")
                .find("\nControl Loop for Tracking Apparent or True Wind Angle.\n"
                      "         a) Input - NMEA 1984 Wind & Speed Instruments\n"
                      "         b) Output - NMEA 1984 AutoPilot"),
            std::string::npos);
  const std::string notice = text("lblDisclaimer");
  EXPECT_EQ(std::count(notice.begin(), notice.end(), '\n'), 3);
  EXPECT_FALSE(about->findChild<QLabel*>(QStringLiteral("picIcon"))->pixmap(Qt::ReturnByValue).isNull());
  QTest::keyClick(about, Qt::Key_Escape);
  EXPECT_FALSE(Shows("frmAbout"));
  Find<QAction>("mnuHelpAbout").trigger();
  QTest::mouseClick(about->findChild<QPushButton*>(QStringLiteral("cmdOk")), Qt::LeftButton);
  EXPECT_FALSE(Shows("frmAbout"));
}

}  // namespace
}  // namespace veerwatch
