// The polar window as the main window keeps it.

#include "tests/ui/MainWindowTester.h"

namespace veerwatch {
namespace {

class PolarMain : public MainWindowTester {
 public:
  /// The polar window, null before it is made.
  static QWidget* Polar() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      if (widget->objectName() == QStringLiteral("frmPolar")) {
        return widget;
      }
    }
    return nullptr;
  }
  bool Ticked() const { return Find<QAction>("mnuViewPolar").isChecked(); }
};

TEST_F(PolarMain, OpensFromTheMenuAndIsTickedWhileItShows) {
  Start(kSimulated);
  EXPECT_TRUE(Find<QAction>("mnuViewPolar").isEnabled());
  EXPECT_FALSE(Ticked());
  EXPECT_EQ(Polar(), nullptr);
  Find<QAction>("mnuViewPolar").trigger();
  ASSERT_NE(Polar(), nullptr);
  EXPECT_TRUE(Polar()->isVisible());
  EXPECT_TRUE(Ticked());
  Find<QAction>("mnuViewPolar").trigger();
  EXPECT_TRUE(Polar()->isVisible()) << "choosing it again leaves it open";
  EXPECT_TRUE(Ticked());
  const QWidget* first = Polar();
  Polar()->close();
  EXPECT_FALSE(Ticked());
  EXPECT_TRUE(Window->isVisible());
  Find<QAction>("mnuViewPolar").trigger();
  EXPECT_EQ(Polar(), first) << "made once";
  EXPECT_TRUE(Ticked());
}

TEST_F(PolarMain, StartsBehindTheMainWindow) {
  Start(std::string(kSimulated) + "[Polar Window]\nVisible=True\n");
  Polar()->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(Polar()));
  Window->ShowInFront();
  EXPECT_TRUE(QTest::qWaitForWindowActive(Window.get()));
}

TEST_F(PolarMain, OpensAgainWhenTheProfileSaysSo) {
  Start(std::string(kSimulated) + "[Polar Window]\nVisible=True\n");
  ASSERT_NE(Polar(), nullptr);
  EXPECT_TRUE(Polar()->isVisible());
  EXPECT_TRUE(Ticked());
  Window->close();
  EXPECT_FALSE(Polar()->isVisible());
  EXPECT_NE(ReadProfile().find("Visible=True"), std::string::npos);
  EXPECT_NE(ReadProfile().find("Speed Range=10"), std::string::npos)
      << "stored before the profile is written";
  EXPECT_NE(ReadProfile().find("File 1=Fast Sled 60ft.pol"), std::string::npos);
}

TEST_F(PolarMain, KeepsWhatAHiddenWindowHasStored) {
  Start(kSimulated);
  Find<QAction>("mnuViewPolar").trigger();
  Polar()->findChild<QAction*>(QStringLiteral("mnuRange6"))->trigger();
  Polar()->close();
  Window->close();
  EXPECT_NE(ReadProfile().find("Speed Range=6"), std::string::npos);
  EXPECT_NE(ReadProfile().find("[Polar Window]"), std::string::npos);
  EXPECT_EQ(ReadProfile().find("Visible=True"), std::string::npos);
}

TEST_F(PolarMain, IsGivenEverySimulatedValue) {
  Start(std::string(kSimulated) + "[Polar Window]\nVisible=True\n[Polar Data]\nPlot Average=0\n");
  const auto* polar = dynamic_cast<frmPolar*>(Polar());
  ASSERT_NE(polar, nullptr);
  EXPECT_FALSE(polar->Model().Received());
  tmrNmea.Tick();
  ASSERT_TRUE(polar->Model().Received());
  EXPECT_NEAR(polar->Model().Values().BoatSpeed, 7.2F, 1e-3F);
  EXPECT_NEAR(polar->Model().Values().WindSpeedTrue, 14.0F, 1e-3F);
  EXPECT_NEAR(polar->Model().Values().Heading, 278.0F, 1e-2F);
  EXPECT_TRUE(polar->Model().Values().WaypointValid);
}

}  // namespace
}  // namespace veerwatch
