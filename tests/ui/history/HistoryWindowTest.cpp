// The history window and its chart, driven by real events.

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFile>
#include <QFrame>
#include <QImage>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>

#include "tests/support/WaitQt.h"
#include "tests/ui/history/HistoryTester.h"

namespace veerwatch {
namespace {

class HistoryWindow : public HistoryTester {
 public:
  /// Moves the shown window so that its frame is there.
  void PlaceFrame(const QRect& frame) {
    const QSize around = Window->frameGeometry().size() - Window->size();
    Window->move(frame.topLeft());
    Window->resize(frame.size() - around);
    ASSERT_TRUE(WaitForEqual([this] { return Window->frameGeometry(); }, frame));
  }

  std::string Stored(const char* key) const { return Store.Text("History Window", key); }
};

// Place

TEST_F(HistoryWindow, WithoutAProfileStandsAtTheDefaultPlace) {
  Load();
  EXPECT_EQ(Window->pos(), QPoint(0, 0));
  EXPECT_EQ(Window->size(), QSize(267, 267));
  EXPECT_FALSE(Window->isVisible());
}

TEST_F(HistoryWindow, AWindowThatNobodyMovedKeepsItsTwips) {
  Load();
  Show();
  Window->Unload();
  EXPECT_EQ(Stored("Top"), "0");
  EXPECT_EQ(Stored("Left"), "0");
  EXPECT_EQ(Stored("Height"), "4000");
  EXPECT_EQ(Stored("Width"), "4000");
}

TEST_F(HistoryWindow, TheSizeInTheProfileIsThatOfTheFrame) {
  Store.ProfileSet("History Window", "Height", 6000.0F);
  Store.ProfileSet("History Window", "Width", 7500.0F);
  Load();
  Show();
  EXPECT_TRUE(WaitForEqual([this] { return Window->frameGeometry(); }, QRect(0, 0, 500, 400)));
}

TEST_F(HistoryWindow, TakesItsPlaceFromTheProfile) {
  Store.ProfileSet("History Window", "Top", 300.0F);
  Store.ProfileSet("History Window", "Left", 450.0F);
  Store.ProfileSet("History Window", "Height", 6000.0F);
  Load();
  EXPECT_EQ(Window->pos(), QPoint(30, 20));
  EXPECT_EQ(Window->size(), QSize(267, 400));
}

TEST_F(HistoryWindow, PutsItsPlaceIntoTheProfile) {
  Load();
  Show();
  PlaceFrame({40, 50, 500, 360});
  Window->Unload();
  EXPECT_EQ(Stored("Top"), "750");
  EXPECT_EQ(Stored("Left"), "600");
  EXPECT_EQ(Stored("Height"), "5400");
  EXPECT_EQ(Stored("Width"), "7500");
}

TEST_F(HistoryWindow, MinimisedOrMaximisedAtTheEndKeepsThePlaceOfBefore) {
  Load();
  Show();
  for (const Qt::WindowState state : {Qt::WindowMaximized, Qt::WindowMinimized, Qt::WindowFullScreen}) {
    Window->showNormal();
    PlaceFrame({40 + static_cast<int>(state), 50, 500, 360});
    const auto& settles = *Window->findChild<QTimer*>(QStringLiteral("tmrPlace"));
    ASSERT_TRUE(WaitFor([&] { return !settles.isActive(); }));
    Window->setWindowState(state);
    ASSERT_TRUE(WaitFor([&] { return Window->windowState().testFlag(state) && !settles.isActive(); }));
    Window->Unload();
    EXPECT_EQ(Stored("Left"), std::to_string((40 + static_cast<int>(state)) * 15));
    EXPECT_EQ(Stored("Top"), "750");
    EXPECT_EQ(Stored("Height"), "5400");
    EXPECT_EQ(Stored("Width"), "7500");
  }
}

TEST_F(HistoryWindow, AWindowThatWasNeverSeenKeepsThePlaceOfTheProfile) {
  Store.ProfileSet("History Window", "Left", 90000.0F);
  Load();
  Window->Unload();
  EXPECT_EQ(Stored("Left"), "90000");
  EXPECT_EQ(Stored("Width"), "4000");
}

TEST_F(HistoryWindow, DamagedPlacesAreDefaults) {
  Store.ProfileSet("History Window", "Top", "here");
  Store.ProfileSet("History Window", "Left", "1e30");
  Store.ProfileSet("History Window", "Height", "-4");
  Store.ProfileSet("History Window", "Width", "");
  Load();
  EXPECT_EQ(Window->pos(), QPoint(0, 0));
  EXPECT_EQ(Window->size(), QSize(267, 267));
}

TEST_F(HistoryWindow, APlaceOffEveryScreenIsBroughtBack) {
  Store.ProfileSet("History Window", "Top", -60000.0F);
  Store.ProfileSet("History Window", "Left", 600000.0F);
  Load();
  Show();
  const QRect screen = Window->screen()->availableGeometry();
  EXPECT_TRUE(screen.contains(Window->frameGeometry()));
}

TEST_F(HistoryWindow, TheChartFillsItBelowTheLine) {
  Load();
  Show();
  for (const QSize size : {QSize(267, 267), QSize(640, 400), QSize(1200, 600)}) {
    Window->resize(size);
    EXPECT_EQ(Chart().geometry(), QRect(0, 2, size.width(), size.height() - 2));
    EXPECT_EQ(Find<QFrame>("linTop").width(), size.width());
    EXPECT_EQ(Find<QFrame>("linTop").y(), 0);
  }
}

// Values

TEST_F(HistoryWindow, AValueReachesTheChartWithOneDecimalAndItsUnits) {
  Load();
  Window->SetValue("Boat Speed", 5.25F, "Kts");
  Window->SetValue("True Wind Angle", -44.04F, "M");
  EXPECT_EQ(Trace("Boat Speed").Newest.Value, 5.3F);
  EXPECT_EQ(Trace("Boat Speed").Newest.Units(), "Kts");
  EXPECT_EQ(Trace("True Wind Angle").Newest.Value, -44.0F);
  EXPECT_EQ(Trace("True Wind Angle").Newest.Units(), "M");
  EXPECT_EQ(Trace("True Wind Angle").Units, "R");
}

TEST_F(HistoryWindow, AnUnknownNameDoesNoHarm) {
  Load();
  Show();
  Window->SetValue("Depth", 5.0F, "m");
  Chart().SampleAdd("", "");
  EXPECT_EQ(Chart().Data().LastSlot(), Chart().Picture().Panels.empty() ? -1 : 0);
  for (const StripChartData::Trace& trace : Chart().Data().Traces()) {
    EXPECT_EQ(trace.Newest.Slot, NewestValue::kNever);
  }
}

TEST_F(HistoryWindow, RecordsUnseenAndDrawsNothingThen) {
  Load();
  RecordHeading(20);
  QTest::qWait(0);
  EXPECT_EQ(Chart().Data().LastSlot(), 19);
  EXPECT_EQ(Chart().FullRedraws(), 0);
}

TEST_F(HistoryWindow, AnotherValueInTheSlotDrawsOnlyWhatChanges) {
  Load();
  Record(3600, 10);
  Show();
  const auto heading = [this] { return Entry("Heading").Value.Text; };
  Chart().grab();
  const int drawn = Chart().FullRedraws();
  ASSERT_GE(drawn, 1);
  const std::string before = heading();
  const float value = Trace("Heading").Newest.Value;
  Window->SetValue("Heading", value + (value > 28.0F ? -0.1F : 0.1F), "M");
  EXPECT_TRUE(WaitFor([&] { return heading() != before; }));
  Chart().grab();
  EXPECT_EQ(Chart().FullRedraws(), drawn);
}

TEST_F(HistoryWindow, ClosedByItsFrameItHidesSavesAndGoesOnRecording) {
  Load();
  std::vector<bool> seen;
  Window->VisibleChanged([&seen](bool visible) { seen.push_back(visible); });
  Show();
  PlaceFrame({30, 30, 450, 300});
  RecordHeading(3);
  EXPECT_TRUE(Window->close());
  EXPECT_FALSE(Window->isVisible());
  EXPECT_EQ(seen, (std::vector<bool>{true, false}));
  EXPECT_EQ(Stored("Width"), "6750");
  EXPECT_FALSE(Store.Text("History Trace", "Span").empty());
  Time.Pass(10000);
  Window->SetValue("Heading", 91.0F, "M");
  EXPECT_EQ(Chart().Data().LastSlot(), 3);
}

// The configuration pop-up

TEST_F(HistoryWindow, ThePopupOpensAtHalfTheSumOfLengthAndBegin) {
  Load();
  Show();
  Window->setGeometry(10, 10, 300, 242);
  Window->ConfigurePopup();
  auto& popup = Find<QFrame>("frmConfigPopup");
  EXPECT_TRUE(popup.isVisible());
  // Half of 300 px, and half of 240 px and 2 px, from the chart's corner.
  const QPoint placed = popup.pos();
  popup.close();
  Chart().ConfigPopupShow(150, 121, 16, 3, 2);
  EXPECT_EQ(popup.pos(), placed);
  // What the platform draws around a window moves it by a little.
  EXPECT_LE((placed - Chart().mapToGlobal(QPoint(150, 121))).manhattanLength(), 4);
}

TEST_F(HistoryWindow, ThePopupOpensByMouseAndButtonToo) {
  Load();
  Show();
  QContextMenuEvent menu(QContextMenuEvent::Mouse, QPoint(50, 50), Chart().mapToGlobal(QPoint(50, 50)));
  QApplication::sendEvent(&Chart(), &menu);
  auto& popup = Find<QFrame>("frmConfigPopup");
  EXPECT_TRUE(popup.isVisible());
  popup.close();
  QTest::mouseClick(&Find<QToolButton>("cmdSettings"), Qt::LeftButton);
  EXPECT_TRUE(popup.isVisible());
  QTest::keyClick(&popup, Qt::Key_Escape);
  EXPECT_FALSE(popup.isVisible());
}

TEST_F(HistoryWindow, ThePopupHidesAndShowsTraces) {
  Load();
  Record(600, 10);
  Show();
  Window->ConfigurePopup();
  auto& box = Find<QCheckBox>("chkTrace(2)");
  EXPECT_EQ(box.text(), "Heading");
  EXPECT_TRUE(box.isChecked());
  box.click();
  EXPECT_FALSE(Chart().Settings().Traces[1].Shown);
  EXPECT_EQ(Chart().Picture().Legend.size(), kHistoryTraces.size() - 1);
  box.click();
  EXPECT_EQ(Chart().Picture().Legend.size(), kHistoryTraces.size());
}

TEST_F(HistoryWindow, ThePopupChangesAColour) {
  Load();
  Record(600, 10);
  Show();
  Window->ConfigurePopup();
  Dialogs.PickedColours = {0x0020FFU};  // red 255, green 32, blue 0
  QTest::mouseClick(&Find<QToolButton>("cmdColour(1)"), Qt::LeftButton);
  EXPECT_EQ(Dialogs.Colours.size(), 1U);
  EXPECT_EQ(Chart().Settings().Traces[0].Colour, 0xFF2000U);
  EXPECT_TRUE(Find<QFrame>("frmConfigPopup").isVisible());
  QTest::mouseClick(&Find<QToolButton>("cmdColour(1)"), Qt::LeftButton);
  EXPECT_EQ(Dialogs.Colours.back(), 0x0020FFU);
  EXPECT_EQ(Chart().Settings().Traces[0].Colour, 0xFF2000U);  // cancelled
  Find<QFrame>("frmConfigPopup").close();
  const QImage image = Chart().Image(1.0);
  const Box swatch = Entry("Boat Speed").Swatch;
  EXPECT_EQ(image.pixelColor(qRound(swatch.X + swatch.Width / 2.0), qRound(swatch.Y + swatch.Height / 2.0)),
            QColor(255, 32, 0));
}

TEST_F(HistoryWindow, ThePopupChangesTheSpan) {
  Load();
  Record(600, 10);
  Show();
  Window->ConfigurePopup();
  auto& span = Find<QComboBox>("cmbSpan");
  EXPECT_EQ(span.currentText(), "30 minutes");
  EXPECT_EQ(span.itemText(0), "10 minutes");
  EXPECT_EQ(span.itemText(span.count() - 1), "24 hours");
  QTest::keyClick(&span, Qt::Key_End);
  EXPECT_EQ(Chart().Settings().Span, 86400);
}

TEST_F(HistoryWindow, ThePopupFixesAScale) {
  Load();
  Record(600, 10);
  Show();
  Window->ConfigurePopup();
  auto& low = Find<QDoubleSpinBox>("txtScaleLow(3)");
  auto& high = Find<QDoubleSpinBox>("txtScaleHigh(3)");
  EXPECT_FALSE(low.isEnabled());
  Find<QCheckBox>("chkAutomatic(3)").click();
  ASSERT_TRUE(low.isEnabled());
  low.setValue(4.0);
  high.setValue(9.0);
  const ValueScale scale = Chart().Picture().Panels[2].Axes[0].Scale;
  EXPECT_EQ(scale.Low, 4.0);
  EXPECT_EQ(scale.High, 9.0);
  low.setValue(10.0);  // makes no scale with 9
  EXPECT_EQ(Chart().Settings().Scales[2], (ScaleChoice{false, 4.0F, 9.0F}));
  high.setValue(12.0);
  EXPECT_EQ(Chart().Settings().Scales[2], (ScaleChoice{false, 10.0F, 12.0F}));
}

TEST_F(HistoryWindow, ThePopupGoesBackToTheDefaults) {
  Load();
  Show();
  Window->ConfigurePopup();
  Find<QCheckBox>("chkTrace(5)").click();
  Find<QComboBox>("cmbSpan").setCurrentIndex(5);
  QTest::mouseClick(&Find<QPushButton>("cmdDefaults"), Qt::LeftButton);
  EXPECT_TRUE(WaitFor([this] { return Chart().Settings().Traces[4].Shown; }));
  EXPECT_EQ(Chart().Settings().Span, 1800);
}

TEST_F(HistoryWindow, TheChoicesGoRoundThroughTheProfile) {
  Load();
  Show();
  Window->ConfigurePopup();
  Find<QCheckBox>("chkTrace(9)").click();
  Find<QComboBox>("cmbSpan").setCurrentIndex(0);
  Find<QCheckBox>("chkAutomatic(4)").click();
  Find<QFrame>("frmConfigPopup").close();
  Window->Unload();
  Window.reset();
  Load();
  EXPECT_FALSE(Chart().Settings().Traces[8].Shown);
  EXPECT_TRUE(Chart().Settings().Traces[7].Shown);
  EXPECT_EQ(Chart().Settings().Span, 600);
  EXPECT_EQ(Chart().Settings().Scales[3], (ScaleChoice{false, 0.0F, 360.0F}));
}

TEST_F(HistoryWindow, ADamagedSectionGivesTheDefaultsForWhatIsDamaged) {
  Store.ProfileSet("History Trace", "Heading Shown", "???");
  Store.ProfileSet("History Trace", "Polar Speed Shown", "False");
  Store.ProfileSet("History Trace", "Span", "-1");
  Store.ProfileSet("History Trace", "Scale 2 Low", "9e9");
  Load();
  EXPECT_TRUE(Chart().Settings().Traces[1].Shown);
  EXPECT_FALSE(Chart().Settings().Traces[8].Shown);
  EXPECT_EQ(Chart().Settings().Span, 1800);
  EXPECT_EQ(Chart().Settings().Scales[1], (ScaleChoice{true, -180.0F, 180.0F}));
}

TEST_F(HistoryWindow, RecordsWhileItAsksForAColour) {
  Load();
  Record(600, 10);
  Show();
  Window->ConfigurePopup();
  Dialogs.Later = true;
  Dialogs.PickedColours = {0x0020FFU};
  Find<QToolButton>("cmdColour(1)").click();
  EXPECT_FALSE(Find<QFrame>("frmConfigPopup").isVisible());
  RecordHeading(2);
  Dialogs.Answer();
  EXPECT_EQ(Chart().Settings().Traces[0].Colour, 0xFF2000U);
  EXPECT_TRUE(Find<QFrame>("frmConfigPopup").isVisible());
  Find<QFrame>("frmConfigPopup").close();
}

TEST_F(HistoryWindow, MayEndWhileItAsks) {
  Load();
  Show();
  Window->ConfigurePopup();
  Dialogs.Later = true;
  Dialogs.Files = {PathIn("chart.csv")};
  Find<QPushButton>("cmdSaveData").click();
  ASSERT_TRUE(Dialogs.Open());
  Window.reset();
  EXPECT_FALSE(Dialogs.Open());
}

// Saving

TEST_F(HistoryWindow, SavesWhatItHoldsAtTheAnswer) {
  Load();
  RecordHeading(2, 90.0F);
  Show();
  Window->ConfigurePopup();
  Dialogs.Later = true;
  Dialogs.Files = {PathIn("chart.csv")};
  Find<QPushButton>("cmdSaveData").click();
  Time.Pass(10000);
  RecordHeading(1, 95.0F);
  Dialogs.Answer();
  QFile written(QString::fromStdString(PathIn("chart.csv")));
  ASSERT_TRUE(written.open(QIODevice::ReadOnly));
  EXPECT_EQ(written.readAll().count('\n'), 4);
}

TEST_F(HistoryWindow, SavesAPicture) {
  Load();
  Window->resize(640, 402);
  Record(600, 10);
  Show();
  Window->ConfigurePopup();
  const std::string file = PathIn("chart.png");
  Dialogs.Files = {file};
  QTest::mouseClick(&Find<QPushButton>("cmdSavePicture"), Qt::LeftButton);
  ASSERT_EQ(Dialogs.FileQuestions.size(), 1U);
  EXPECT_EQ(Dialogs.FileQuestions[0].Proposed, "history-2026-03-31-0900.png");
  const QImage image(QString::fromStdString(file));
  EXPECT_EQ(image.size(), QSize(1280, 800));
  EXPECT_TRUE(Dialogs.Messages.empty());
}

TEST_F(HistoryWindow, SavesTheData) {
  Load();
  RecordHeading(2, 90.0F);
  Show();
  Window->ConfigurePopup();
  const std::string file = PathIn("chart.csv");
  Dialogs.Files = {file};
  QTest::mouseClick(&Find<QPushButton>("cmdSaveData"), Qt::LeftButton);
  QFile written(QString::fromStdString(file));
  ASSERT_TRUE(written.open(QIODevice::ReadOnly));
  EXPECT_EQ(written.readAll().toStdString(),
            "Time (UTC),Boat Speed [Kts],Heading [M],True Wind Speed [Kts],True Wind Angle [R],"
            "App Wind Speed [Kts],App Wind Angle [R],Pilot Heading [Deg],Pilot Delta [Deg],Polar Speed [Kts],"
            "Boat Speed Lowest [Kts],Boat Speed Highest [Kts],Heading Lowest [M],Heading Highest [M],"
            "True Wind Speed Lowest [Kts],True Wind Speed Highest [Kts],True Wind Angle Lowest [R],"
            "True Wind Angle Highest [R],App Wind Speed Lowest [Kts],App Wind Speed Highest [Kts],"
            "App Wind Angle Lowest [R],App Wind Angle Highest [R],Pilot Heading Lowest [Deg],"
            "Pilot Heading Highest [Deg],Pilot Delta Lowest [Deg],Pilot Delta Highest [Deg],"
            "Polar Speed Lowest [Kts],Polar Speed Highest [Kts]\n"
            "2026-03-31T09:00:00Z,,90,,,,,,,,,,90,90,,,,,,,,,,,,,,\n"
            "2026-03-31T09:00:10Z,,90,,,,,,,,,,90,90,,,,,,,,,,,,,,\n");
}

TEST_F(HistoryWindow, SaysWhyASaveFailed) {
  Load();
  Show();
  for (const char* button : {"cmdSavePicture", "cmdSaveData"}) {
    Window->ConfigurePopup();
    // A file stands where the folder should.
    QFile(QString::fromStdString(PathIn("taken"))).open(QIODevice::WriteOnly);
    Dialogs.Files = {PathIn("taken") + "/chart"};
    QTest::mouseClick(&Find<QPushButton>(button), Qt::LeftButton);
  }
  ASSERT_EQ(Dialogs.Messages.size(), 2U);
  EXPECT_EQ(Dialogs.Messages[0].Title, "Veerwatch - History");
  EXPECT_TRUE(Dialogs.Messages[0].Text.starts_with("The picture was not saved:\r"));
  EXPECT_TRUE(Dialogs.Messages[1].Text.starts_with("The data were not saved:\r"));
  EXPECT_NE(Dialogs.Messages[1].Text.find("taken"), std::string::npos);
}

TEST_F(HistoryWindow, ACancelledSaveWritesAndSaysNothing) {
  Load();
  Show();
  Window->ConfigurePopup();
  QTest::mouseClick(&Find<QPushButton>("cmdSaveData"), Qt::LeftButton);
  EXPECT_EQ(Dialogs.FileQuestions.size(), 1U);
  EXPECT_TRUE(Dialogs.Messages.empty());
}

}  // namespace
}  // namespace veerwatch
