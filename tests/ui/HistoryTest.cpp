// How the main window feeds, shows and closes the history window.

#include <gmock/gmock.h>

#include "tests/support/WaitQt.h"
#include "tests/ui/MainWindowTester.h"

namespace veerwatch {
namespace {

class History : public MainWindowTester {
 public:
  ~History() override { Window.reset(); }

  /// The history window, null when it is not loaded.
  static frmHistory* Loaded() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      if (auto* window = dynamic_cast<frmHistory*>(widget)) {
        return window;
      }
    }
    return nullptr;
  }

  QAction& Menu() const { return Find<QAction>("mnuViewHistory"); }

  static const StripChartData::Trace& Trace(int number) {
    return Loaded()->Chart().Data().Traces().at(static_cast<std::size_t>(number) - 1);
  }
};

TEST_F(History, IsLoadedUnseenByTheFirstValue) {
  Start(kSimulated);
  EXPECT_EQ(Loaded(), nullptr);
  tmrNmea.Tick();
  ASSERT_NE(Loaded(), nullptr);
  EXPECT_FALSE(Loaded()->isVisible());
  EXPECT_FALSE(Menu().isChecked());
}

TEST_F(History, IsFedByTheRecordAndTheControlStep) {
  Start(kSimulated);
  tmrNmea.Tick(2);
  ASSERT_NE(Loaded(), nullptr);
  const auto shown = [this](const char* label) { return std::stof(Text(label)); };
  EXPECT_EQ(Trace(1).Newest.Value, shown("lblBoatSpeed"));
  EXPECT_EQ(Trace(1).Newest.Units(), "Kts");
  EXPECT_NEAR(Trace(2).Newest.Value, shown("lblHeading"), 0.51F);
  EXPECT_EQ(Trace(2).Newest.Units(), "M");
  EXPECT_EQ(Trace(3).Newest.Value, shown("lblTrueWindSpeed"));
  EXPECT_EQ(Trace(3).Newest.Units(), "Kts");
  EXPECT_NEAR(Trace(4).Newest.Value, shown("lblTrueWindAngle"), 0.51F);
  EXPECT_EQ(Trace(4).Newest.Units(), "M");
  EXPECT_EQ(Trace(5).Newest.Value, shown("lblAppWindSpeed"));
  EXPECT_EQ(Trace(5).Newest.Units(), "Kts");
  EXPECT_NEAR(Trace(6).Newest.Value, shown("lblAppWindAngle"), 0.51F);
  EXPECT_EQ(Trace(6).Newest.Units(), "R");
  EXPECT_EQ(Trace(7).Newest.Value, 275.0F);
  EXPECT_EQ(Trace(7).Newest.Units(), "deg");
}

TEST_F(History, TakesThePilotsBearingWithTwoDecimalsAndItsErrorWithOne) {
  Start(kSimulated);
  Window->m_fAutoPilot = 275.126F;
  tmrNmea.Tick();
  EXPECT_EQ(Trace(7).Newest.Value, 275.13F);
  Mode(7);
  Type("txtDesired(1)", "-38.77");
  Enter("txtDesired(1)");
  tmrNmea.Tick();
  ASSERT_NE(Trace(8).Newest.Slot, NewestValue::kNever);
  EXPECT_EQ(Trace(8).Newest.Units(), "deg");
  const float tenths = Trace(8).Newest.Value * 10.0F;
  EXPECT_NEAR(tenths, std::round(tenths), 1e-3F);
  EXPECT_EQ(Trace(8).Newest.Value, std::stof(Text("lblDelta(1)")));
}

TEST_F(History, TakesATextFromAnotherWindow) {
  Start(kSimulated);
  Window->HistorySample("Polar Speed", "7.3 deg");
  EXPECT_EQ(Trace(9).Newest.Value, 7.3F);
  EXPECT_EQ(Trace(9).Newest.Units(), "deg");
}

TEST_F(History, TheMenuShowsItAndTheTickFollows) {
  Start();
  EXPECT_TRUE(Menu().isEnabled());
  Menu().trigger();
  ASSERT_NE(Loaded(), nullptr);
  EXPECT_TRUE(Loaded()->isVisible());
  EXPECT_TRUE(Menu().isChecked());
  Menu().trigger();
  EXPECT_TRUE(Loaded()->isVisible());
  EXPECT_TRUE(Menu().isChecked());
  Loaded()->close();
  EXPECT_FALSE(Menu().isChecked());
  Menu().trigger();
  EXPECT_TRUE(Loaded()->isVisible());
}

TEST_F(History, WearsTheProgramsIcon) {
  Start();
  Menu().trigger();
  ASSERT_NE(Loaded(), nullptr);
  const QSize size(48, 48);
  const QImage icon = Loaded()->windowIcon().pixmap(size).toImage();
  ASSERT_FALSE(icon.isNull());
  EXPECT_EQ(icon, Window->windowIcon().pixmap(size).toImage());
}

TEST_F(History, OpensAgainWhenItWasOpen) {
  Start("[History Window]\nVisible=True\nWidth=7500\n");
  ASSERT_NE(Loaded(), nullptr);
  EXPECT_TRUE(Loaded()->isVisible());
  EXPECT_TRUE(WaitForEqual([] { return Loaded()->frameGeometry().width(); }, 500));
  EXPECT_TRUE(Menu().isChecked());
}

TEST_F(History, ACloseKeepsItsPlaceAndThatItWasOpen) {
  Start();
  Menu().trigger();
  const QSize around = Loaded()->frameGeometry().size() - Loaded()->size();
  Loaded()->move(60, 40);
  Loaded()->resize(QSize(500, 300) - around);
  QTest::qWait(0);
  Window->close();
  EXPECT_THAT(ReadProfile(),
              testing::AllOf(testing::HasSubstr("Visible=True\n"), testing::HasSubstr("Top=600\n"),
                             testing::HasSubstr("Left=900\n"), testing::HasSubstr("Height=4500\n"),
                             testing::HasSubstr("Width=7500\n"), testing::HasSubstr("[History Trace]\n")));
  EXPECT_FALSE(Loaded()->isVisible());
}

TEST_F(History, AHistoryThatWasNeverLoadedWritesNoPlace) {
  Start();
  Window->close();
  EXPECT_THAT(ReadProfile(), testing::HasSubstr("[History Window]\nVisible=False\n"));
  EXPECT_THAT(ReadProfile(), testing::Not(testing::HasSubstr("Width")));
  EXPECT_THAT(ReadProfile(), testing::Not(testing::HasSubstr("[History Trace]")));
}

TEST_F(History, OneThatOnlyRecordedWritesItsPlaceAndIsNotOpenAgain) {
  Start(kSimulated);
  tmrNmea.Tick();
  Window->close();
  EXPECT_THAT(ReadProfile(),
              testing::AllOf(testing::HasSubstr("Visible=False\n"), testing::HasSubstr("Width=4000\n")));
}

}  // namespace
}  // namespace veerwatch
