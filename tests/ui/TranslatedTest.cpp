// Every text that a window shows goes through the translation: the main window and the windows that it opens.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTabWidget>
#include <QToolBar>
#include <stdexcept>
#include <string>

#include "history/frmHistory.h"
#include "tests/connect/ListenRig.h"
#include "tests/ui/MainWindowTester.h"
#include "tests/ui/TextWalk.h"

namespace veerwatch {
namespace {

class Translated : public MainWindowTester {
 public:
  TextWalk Walk;
  ListenRig Rig;

  ~Translated() override { Window.reset(); }

  NamedPort::Maker Ports() override { return Rig.Maker(); }

  void Choose(const char* command) const { Find<QAction>(command).trigger(); }
  void Ticks(int count) {
    for (int i = 0; i < count; ++i) {
      Time.Pass(1000);
      tmrNmea.Tick();
    }
  }
  template <class Control>
  static Control& Anywhere(const char* name) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (auto* control = window->findChild<Control*>(QLatin1String(name))) {
        return *control;
      }
    }
    throw std::runtime_error(std::string("no control ") + name);
  }
  /// What the chart has drawn: it keeps that as a picture, which has no texts any more.
  void LookAtChart() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      auto* history = dynamic_cast<frmHistory*>(window);
      if (history == nullptr) {
        continue;
      }
      const StripChartPicture& picture = history->Chart().Picture();
      for (const ChartPanel& panel : picture.Panels) {
        for (const ChartAxis& axis : panel.Axes) {
          Walk.Look("an axis' title", axis.Title.Text);
          Walk.Look("an axis' units", axis.Units.Text);
        }
      }
      for (const ChartLegendEntry& entry : picture.Legend) {
        Walk.Look("a name of the legend", entry.Name.Text);
        Walk.Look("a unit of the legend", entry.Units.Text);
      }
      for (const ChartMark& mark : picture.Marks) {
        Walk.Look("a mark", mark.Text.Text);
      }
      EXPECT_FALSE(picture.Legend.empty());
    }
  }
};

TEST_F(Translated, IsEveryTextOfTheMainWindowInEveryMode) {
  Start(kSimulated);
  Ticks(70);
  for (const int mode : {1, 3, 5, 7}) {
    Mode(mode);
    Ticks(2);
    Walk.LookAtAll();
  }
  EXPECT_EQ(Walk.Found(), "");
  EXPECT_GT(Walk.Looked(), 1000);
}

TEST_F(Translated, IsTheLineForWhoeverIsNew) {
  Start();
  EXPECT_NO_THROW(Anywhere<QToolBar>("tbrConnect"));
  Walk.LookAtAll();
  EXPECT_EQ(Walk.Found(), "");
}

TEST_F(Translated, IsEveryTextOfTheOptions) {
  Start(kSimulated);
  Ticks(3);
  Choose("mnuOptionsInput");
  auto& tabs = Anywhere<QTabWidget>("SSTab");
  for (int tab = 0; tab < tabs.count(); ++tab) {
    tabs.setCurrentIndex(tab);
    Ticks(1);
    Walk.LookAtAll();
  }
  EXPECT_EQ(Walk.Found(), "");
  EXPECT_GT(Walk.Looked(), 3000);
}

TEST_F(Translated, IsWhatThePreviewSaysOfItsBoxes) {
  Start(kSimulated);
  Choose("mnuOptionsTrack");
  for (const char* box :
       {"txtTrackMin", "txtTrackMax", "txtTrackBandwidth", "txtTrackDamping", "txtTrackOffset",
        "txtTrackNoise", "txtTrackTime", "txtTrackLag", "txtTrackAlarmAverage"}) {
    auto& entry = Anywhere<QLineEdit>(box);
    const QString before = entry.text();
    for (const char* text : {"", "x", "0", "-1", "0.0001", "99999", "3000000"}) {
      entry.setText(QLatin1String(text));
      QTest::qWait(1);
      Walk.LookAtAll();
    }
    entry.setText(before);
  }
  for (const char* each : {"chkTrackOnMyWind", "cmdTrackSuggest"}) {
    Anywhere<QAbstractButton>(each).click();
    Ticks(2);
    Walk.LookAtAll();
  }
  auto& method = Anywhere<QComboBox>("cmbTrackMethod");
  for (int i = 0; i < method.count(); ++i) {
    method.setCurrentIndex(i);
    Walk.LookAtAll();
  }
  EXPECT_EQ(Walk.Found(), "");
}

TEST_F(Translated, IsWhatIsSaidOfLinesThatAreDamaged) {
  Start(kOnPorts);
  Choose("mnuOptionsInput");
  for (const char* line : {"+++\r", "$IIMWV,30,R,5,N,A*00\r", "$IIMWV,x,R,5,N,A\r", "$IIMWV,30,R,5,M,A\r",
                           "$IIMWV,30,R,5,K,A\r", "$IIHDT,90,T\r", "!1\r"}) {
    NmeaPort.Receive(line);
    Ticks(1);
    Walk.LookAtAll();
  }
  for (const int event : {CommEvent::kBreak, CommEvent::kFrame, CommEvent::kOverrun, CommEvent::kRxOver,
                          CommEvent::kRxParity}) {
    NmeaPort.LineErrorsWaiting = {event};
    Ticks(1);
    Walk.LookAtAll();
  }
  EXPECT_EQ(Walk.Found(), "");
}

TEST_F(Translated, IsThePopupOfTheHistoryAndWhatItSaves) {
  Start(std::string(kSimulated) + "[History Window]\nVisible=True\n");
  Ticks(30);
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (auto* history = dynamic_cast<frmHistory*>(window)) {
      history->ConfigurePopup();
    }
  }
  Walk.LookAtAll();
  for (const char* each : {"cmdSavePicture", "cmdSaveData", "cmdDefaults"}) {
    Dialogs.Files = {"/dev/null/1"};
    Anywhere<QAbstractButton>(each).click();
    Walk.LookAtAll();
  }
  Walk.LookAt(Dialogs);
  EXPECT_EQ(Dialogs.FileQuestions.size(), 2U);
  EXPECT_EQ(Walk.Found(), "");
}

TEST_F(Translated, IsTheManualsWindow) {
  Start(kSimulated);
  Choose("mnuHelpHere");
  Walk.LookAtAll();
  EXPECT_NO_THROW(Anywhere<QWidget>("txtManual"));
  EXPECT_EQ(Walk.Found(), "");
}

TEST_F(Translated, IsEveryTextOfPolarHistoryAndDiagram) {
  Start(std::string(kSimulated) +
        "[Polar Window]\nVisible=True\n[Polar Data]\nCourse Waypoint=True\nCourse Waypoint Index=2\n"
        "[History Window]\nVisible=True\n");
  Ticks(3);
  Mode(5);
  Ticks(20);
  Mode(7);
  Ticks(20);
  Choose("mnuViewDiagram");
  Choose("mnuHelpAbout");
  Walk.LookAtAll();
  LookAtChart();
  EXPECT_EQ(Walk.Found(), "");
  EXPECT_GT(Walk.Looked(), 700);
}

TEST_F(Translated, IsEveryTextOfTheDialogs) {
  Start(kOnPorts);
  Choose("mnuViewAlarms");
  Choose("mnuWindLimits");
  Choose("mnuOptionsRecommended");
  Choose("mnuHelpManual");
  Walk.LookAtAll();
  EXPECT_EQ(Walk.Found(), "");
  EXPECT_GT(Walk.Looked(), 500);
}

TEST_F(Translated, IsWhatIsSaidOfALostPort) {
  NmeaPort.OpensOtherwise = false;
  PilotPort.OpensOtherwise = false;
  Start(kOnPorts);
  Choose("mnuViewAlarms");
  Ticks(10);
  Walk.LookAtAll();
  EXPECT_EQ(Walk.Found(), "");
}

}  // namespace
}  // namespace veerwatch
