// Every text that a window shows goes through the translation: the main window and the windows that it opens.
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QSet>
#include <string>

#include "history/frmHistory.h"
#include "tests/ui/MainWindowTester.h"
#include "tests/ui/TextWalk.h"

namespace veerwatch {
namespace {

class Translated : public MainWindowTester {
 public:
  TextWalk Walk;

  ~Translated() override { Window.reset(); }

  void Choose(const char* command) const { Find<QAction>(command).trigger(); }
  void Ticks(int count) {
    for (int i = 0; i < count; ++i) {
      Time.Pass(1000);
      tmrNmea.Tick();
    }
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

TEST_F(Translated, IsEveryTextOfTheOptions) {
  Start(kSimulated);
  Ticks(3);
  for (const char* page : {"mnuOptionsInput", "mnuOptionsData", "mnuOptionsOutput", "mnuOptionsTrack",
                           "mnuOptionsSimulate", "mnuOptionsWatch", "mnuHelpDiagram"}) {
    Choose(page);
    Ticks(1);
    Walk.LookAtAll();
  }
  EXPECT_EQ(Walk.Found(), "");
  EXPECT_GT(Walk.Looked(), 2000);
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
