// A tack from the course ledger to its other leg, in the simulator.

#include <QWindow>

#include "tests/support/TemporaryFolder.h"
#include "tests/support/WaitQt.h"
#include "tests/ui/TackTester.h"

namespace veerwatch {
namespace {

class PolarTack : public TackTester {
 public:
  TemporaryFolder Polars;

  /// In the simulator with the wind from 228 magnetic, which is where the course leads.
  void StartToWindward() {
    WriteFile(Polars / "a.pol", "TWA\t5\t20\n45\t6\t6\n180\t6\t6\n");
    Start(std::string(kSimulated) +
          "[Polar Window]\nVisible=True\n[Polar Data]\nPlot Average=0\nCourse Waypoint=True\n"
          "Course Waypoint Index=0\nCourse Target Bearing=228\nFile 1=" +
          (Polars / "a.pol").string() + "\n");
    tmrNmea.Tick(3);
    ASSERT_TRUE(WaitFor([] { return Button("cmdTack").isVisible(); }));
  }

  static QPushButton& Button(const char* name) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (auto* button = window->findChild<QPushButton*>(QString::fromLatin1(name))) {
        return *button;
      }
    }
    throw std::runtime_error("no button");
  }
  float Heading() const { return std::stof(Text("lblHeading")); }
};

TEST_F(PolarTack, OpensTheDialogForTheLegToSailNow) {
  StartToWindward();
  // The port tack leg heads for 273, and the boat for 278.
  EXPECT_EQ(Button("cmdSteer").text(), QStringLiteral("< Steer -5"));
  QTest::mouseClick(&Button("cmdSteer"), Qt::LeftButton);
  ASSERT_TRUE(Open());
  EXPECT_EQ(Dialog()->windowTitle(), QStringLiteral("Veerwatch - Steer"));
  EXPECT_EQ(Entry("txtHeading"), "273");
}

TEST_F(PolarTack, TurnsTheBoatToTheOtherLeg) {
  StartToWindward();
  EXPECT_EQ(Button("cmdTack").text(), QStringLiteral("<< Tack"));
  QTest::mouseClick(&Button("cmdTack"), Qt::LeftButton);
  ASSERT_TRUE(Open());
  EXPECT_EQ(Dialog()->windowTitle(), QStringLiteral("Veerwatch - Tack"));
  EXPECT_EQ(Entry("txtHeading"), "183");
  Click("cmdOk");
  for (int second = 0; second < 60 && TimerTack.Enabled(); ++second) {
    TimerTack.Tick();
    tmrNmea.Tick();
  }
  EXPECT_FALSE(TimerTack.Enabled());
  EXPECT_FALSE(Open());
  tmrNmea.Tick(40);
  // 5 degrees beyond 183, to port; the pilot is 3 degrees off the compass.
  EXPECT_EQ(Window->m_fAutoPilot, 175.0F);
  EXPECT_NEAR(Heading(), 178.0F, 1.0F);
  EXPECT_TRUE(WaitForEqual([] { return Button("cmdTack").text(); }, QStringLiteral("Tack >>")));
  EXPECT_TRUE(WaitForEqual([] { return Button("cmdSteer").text(); }, QStringLiteral("Steer +5 >")));
}

TEST_F(PolarTack, TheDialogStaysInFrontOfTheWindowThatOpenedIt) {
  StartToWindward();
  QWidget* polar = Button("cmdTack").window();
  QTest::mouseClick(&Button("cmdTack"), Qt::LeftButton);
  ASSERT_TRUE(Open());
  EXPECT_EQ(Dialog()->windowHandle()->transientParent(), polar->windowHandle());
  polar->close();
  EXPECT_TRUE(Open());
  EXPECT_EQ(Dialog()->windowHandle()->transientParent(), Window->windowHandle());
}

TEST_F(PolarTack, ACourseThatHasMovedGivesTheDialogItsNewHeading) {
  StartToWindward();
  QTest::mouseClick(&Button("cmdTack"), Qt::LeftButton);
  ASSERT_EQ(Entry("txtHeading"), "183");
  const std::string words = Text("lblWords");
  Window->m_fSimulateTrueWindAngle += 30.0F;
  tmrNmea.Tick(2);
  Click("cmdOk");
  EXPECT_FALSE(TimerTack.Enabled());
  EXPECT_EQ(Entry("txtHeading"), "213");
  EXPECT_NE(Text("lblWords"), words);
  Click("cmdOk");
  EXPECT_TRUE(TimerTack.Enabled());
}

}  // namespace
}  // namespace veerwatch
