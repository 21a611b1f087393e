// The polar window through real events.

#include <gmock/gmock.h>

#include <QMouseEvent>
#include <cmath>

#include "tests/ui/PolarWindowTester.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;

class PolarWindow : public PolarWindowTester {};

/// The texts of a menu with their names; "-" for a separator.
std::vector<std::string> Items(const QMenu& menu) {
  std::vector<std::string> items;
  for (const QAction* action : menu.actions()) {
    items.push_back(action->objectName().toStdString() + "=" +
                    (action->isSeparator() ? "-" : action->text().toStdString()));
  }
  return items;
}

TEST_F(PolarWindow, HasItsCaptionAndItsMenus) {
  Start();
  EXPECT_EQ(Window->windowTitle(), QStringLiteral("Veerwatch - Polar"));
  std::vector<std::string> titles;
  for (const QAction* action : Window->menuBar()->actions()) {
    titles.push_back(action->text().toStdString());
  }
  EXPECT_THAT(titles, ElementsAre("Wind", "Range", "Polars", "Average", "Course", "Boat"));
  EXPECT_THAT(Items(Find<QMenu>("mnuWind")),
              ElementsAre("mnuWindApparent=Show Apparent Wind", "mnuWindTrue=Show True Wind",
                          "mnuSeparator1=-", "mnuPlotLabelWindSpeed=Show Wind Speed Label"));
  EXPECT_THAT(Items(Find<QMenu>("mnuRange")),
              ElementsAre("mnuRange6=  6 Kts", "mnuRange8=  8 Kts", "mnuRange10=10 Kts", "mnuRange12=12 Kts",
                          "mnuRangeFit=Fit", "mnuSeparator3=-", "mnuRangeCustom=Other..."));
  EXPECT_THAT(Items(Find<QMenu>("mnuPolars")),
              ElementsAre("mnuOverlayFile1=Open...", "mnuSaveAs=Save As...", "mnuSeparator4=-",
                          "mnuOverlayColor=Set Color...", "mnuOverlayScale=Set Scaling (100%)...",
                          "mnuOverlaySmooth=Smooth Between Winds", "mnuSeparartor5=-",
                          "mnuOverlayFile2=Show Reference..."));
  EXPECT_THAT(Items(Find<QMenu>("mnuAverage")),
              ElementsAre("mnuAverage0=  None", "mnuAverage2=  2 Sec", "mnuAverage4=  4 Sec",
                          "mnuAverage8=  8 Sec", "mnuAverage16=16 Sec", "mnuAverage32=32 Sec"));
  EXPECT_THAT(
      Items(Find<QMenu>("mnuCourse")),
      ElementsAre("mnuCourseWaypoint(0)=Use Target Bearing", "mnuCourseWaypoint(1)=Use Waypoint Brg",
                  "mnuCourseWaypoint(2)=Use Waypoint Rng, Brg", "mnuCourseTargetSeparator=-",
                  "mnuCourseTargetBearing=Set Target Bearing (0 M)...",
                  "mnuCourseScale=Scale Projected Times and Speeds by Current Boat Speed",
                  "mnuCourseSailSeparator=-", "mnuCourseSail=Sail the Course", "mnuCourseTack=Tack By Itself",
                  "mnuSeparator8=-", "mnuCourseLedger=Show Course Ledger"));
  EXPECT_THAT(Items(Find<QMenu>("mnuBoat")),
              ElementsAre("mnuBoatType(0)=Sail Only", "mnuBoatType(1)=Motor and Sail", "mnuSeparator7=-",
                          "mnuBoatMotorSpeed=Set Motor Only Speed to Target/Waypoint (3.0 Kts)..."));
  EXPECT_EQ(Find<QMenu>("mnuLedger").title(), QStringLiteral("Ledger"));
  EXPECT_THAT(Items(Find<QMenu>("mnuLedger")), ElementsAre("mnuLedgerHide=Hide Ledger"));
}

TEST_F(PolarWindow, TicksItsDefaults) {
  Start();
  for (const char* name : {"mnuWindTrue", "mnuRange10", "mnuAverage2", "mnuCourseScale", "mnuBoatType(0)"}) {
    EXPECT_TRUE(Ticked(name)) << name;
  }
  for (const char* name :
       {"mnuWindApparent", "mnuPlotLabelWindSpeed", "mnuRange6", "mnuRange8", "mnuRange12", "mnuRangeCustom",
        "mnuOverlayFile2", "mnuAverage0", "mnuAverage32", "mnuCourseWaypoint(0)", "mnuCourseWaypoint(1)",
        "mnuCourseWaypoint(2)", "mnuBoatType(1)"}) {
    EXPECT_FALSE(Ticked(name)) << name;
  }
}

TEST_F(PolarWindow, ChangesTheWindItShows) {
  Start();
  Choose("mnuWindApparent");
  EXPECT_EQ(Set().Type, PlotType::ApparentWind);
  EXPECT_TRUE(Ticked("mnuWindApparent"));
  EXPECT_FALSE(Ticked("mnuWindTrue"));
  Choose("mnuWindApparent");
  EXPECT_TRUE(Ticked("mnuWindApparent")) << "a second click leaves the tick";
  Choose("mnuWindTrue");
  EXPECT_EQ(Set().Type, PlotType::TrueWind);
  Choose("mnuPlotLabelWindSpeed");
  EXPECT_TRUE(Set().PlotLabelWindSpeed);
  Choose("mnuPlotLabelWindSpeed");
  EXPECT_FALSE(Set().PlotLabelWindSpeed);
}

TEST_F(PolarWindow, ChangesItsRange) {
  Start();
  const std::vector<std::pair<const char*, float>> ranges{
      {"mnuRange6", 6.0F}, {"mnuRange8", 8.0F}, {"mnuRange10", 10.0F}, {"mnuRange12", 12.0F}};
  for (const auto& [item, range] : ranges) {
    Choose(item);
    EXPECT_EQ(Set().SpeedRange, range);
    for (const auto& other : ranges) {
      EXPECT_EQ(Ticked(other.first), other.first == item) << item << " " << other.first;
    }
  }
  Dialogs.Texts = {"17", "zero"};
  Choose("mnuRangeCustom");
  EXPECT_EQ(Set().SpeedRange, 17.0F);
  EXPECT_TRUE(Ticked("mnuRangeCustom"));
  EXPECT_FALSE(Ticked("mnuRange12"));
  Choose("mnuRangeCustom");
  EXPECT_EQ(Set().SpeedRange, 17.0F);
  EXPECT_EQ(Dialogs.Presets.back(), "17");
  Choose("mnuRangeFit");
  EXPECT_EQ(Set().SpeedRange, 15.0F) << "the polar reaches 14 kn";
  EXPECT_TRUE(Ticked("mnuRangeCustom"));
}

TEST_F(PolarWindow, ChangesItsAverage) {
  Start();
  const std::vector<std::pair<const char*, float>> averages{{"mnuAverage0", 0.0F},   {"mnuAverage2", 2.0F},
                                                            {"mnuAverage4", 4.0F},   {"mnuAverage8", 8.0F},
                                                            {"mnuAverage16", 16.0F}, {"mnuAverage32", 32.0F}};
  for (const auto& [item, seconds] : averages) {
    Choose(item);
    EXPECT_EQ(Set().PlotAverage, seconds);
    for (const auto& other : averages) {
      EXPECT_EQ(Ticked(other.first), other.first == item);
    }
  }
}

TEST_F(PolarWindow, ChangesItsCourse) {
  Start();
  Choose("mnuCourseWaypoint(1)");
  EXPECT_TRUE(Set().CourseWaypoint);
  EXPECT_TRUE(Ticked("mnuCourseWaypoint(1)"));
  Choose("mnuCourseWaypoint(1)");
  EXPECT_FALSE(Set().CourseWaypoint);
  EXPECT_FALSE(Ticked("mnuCourseWaypoint(1)"));
  Choose("mnuCourseWaypoint(0)");
  Choose("mnuCourseWaypoint(2)");
  EXPECT_EQ(Set().CourseWaypointIndex, CourseSource::WaypointRange);
  EXPECT_FALSE(Ticked("mnuCourseWaypoint(0)"));
  EXPECT_TRUE(Ticked("mnuCourseWaypoint(2)"));
  Choose("mnuCourseScale");
  EXPECT_FALSE(Set().CourseScale);
  EXPECT_FALSE(Ticked("mnuCourseScale"));
  Dialogs.Texts = {"-45"};
  Choose("mnuCourseTargetBearing");
  EXPECT_EQ(Set().CourseTargetBearing, 315.0F);
  EXPECT_EQ(Find<QAction>("mnuCourseTargetBearing").text(), QStringLiteral("Set Target Bearing (315 M)..."));
}

TEST_F(PolarWindow, ChangesItsBoat) {
  Start();
  Choose("mnuBoatType(1)");
  EXPECT_EQ(Set().Boat, BoatType::MotorAndSail);
  EXPECT_TRUE(Ticked("mnuBoatType(1)"));
  EXPECT_FALSE(Ticked("mnuBoatType(0)"));
  Choose("mnuBoatType(0)");
  EXPECT_EQ(Set().Boat, BoatType::SailOnly);
  Dialogs.Texts = {"6.25"};
  Choose("mnuBoatMotorSpeed");
  EXPECT_EQ(Set().BoatMotorSpeed, 6.25F);
  EXPECT_EQ(Find<QAction>("mnuBoatMotorSpeed").text(),
            QStringLiteral("Set Motor Only Speed to Target/Waypoint (6.3 Kts)..."));
}

TEST_F(PolarWindow, OpensScalesAndSavesPolars) {
  WriteFile(Program / "r.pol", "TWA\t10\n60\t6\n120\t7\n");
  Start();
  Dialogs.Files = {(Program / "r.pol").string()};
  Choose("mnuOverlayFile2");
  EXPECT_EQ(Window->Model().PolarsShown(), 2);
  EXPECT_TRUE(Ticked("mnuOverlayFile2"));
  Dialogs.Texts = {"0.9"};
  Choose("mnuOverlayScale");
  EXPECT_EQ(Find<QAction>("mnuOverlayScale").text(), QStringLiteral("Set Scaling (90%)..."));
  EXPECT_FLOAT_EQ(Window->Model().Table().Value(0, 2, 2), 7.2F);
  Dialogs.Files = {(Program / "saved.pol").string()};
  Choose("mnuSaveAs");
  EXPECT_EQ(ReadFile(Program / "saved.pol").substr(0, 35), "TWA\t6\t10\t14\t20\r\n40\t3.6\t5.4\t6.3\t7.2\r");
  Dialogs.Files = {(Program / "r.pol").string()};
  Choose("mnuOverlayFile1");
  EXPECT_EQ(Set().SpeedFactor, 1.0F);
  EXPECT_EQ(Find<QAction>("mnuOverlayScale").text(), QStringLiteral("Set Scaling (100%)..."));
  EXPECT_EQ(Window->Model().PolarsShown(), 1);
  EXPECT_FALSE(Ticked("mnuOverlayFile2"));
  EXPECT_EQ(Window->Model().Table().Value(0, 1, 1), 6.0F);
  EXPECT_TRUE(Dialogs.Messages.empty());
}

TEST_F(PolarWindow, SmoothsBetweenWindsWhenTicked) {
  Store.ProfileSet("Polar Data", "Plot Average", 0.0F);
  Start();
  EXPECT_FALSE(Ticked("mnuOverlaySmooth"));
  Sail(80.0F, 8.0F, 6.5F);
  EXPECT_EQ(Values.back().second, "8.0 deg");
  Choose("mnuOverlaySmooth");
  EXPECT_TRUE(Ticked("mnuOverlaySmooth"));
  EXPECT_EQ(Window->Model().Readout().BoatPercent, "100%") << "without waiting for an update";
  Sail(80.0F, 8.0F, 6.5F);
  EXPECT_EQ(Values.back().second, "6.5 deg");
  Window->PolarStore();
  bool stored = false;
  Store.ProfileGet("Polar Data", "Smooth Between Winds", stored);
  EXPECT_TRUE(stored);
  Choose("mnuOverlaySmooth");
  EXPECT_FALSE(Ticked("mnuOverlaySmooth"));
}

TEST_F(PolarWindow, TellsAboutAMissingDefaultPolarAndGoesOn) {
  std::filesystem::remove(Program / kDefaultPolar);
  Start();
  ASSERT_EQ(Dialogs.Messages.size(), 1U);
  EXPECT_THAT(Dialogs.Messages[0].Text, testing::StartsWith("Polar File Error: "));
  Sail(80.0F, 20.0F, 9.0F);
  EXPECT_EQ(Values.back(), std::make_pair(std::string("Polar Speed"), std::string("0.0 deg")));
}

TEST_F(PolarWindow, TellsThePolarSpeedOnlyWhileItShows) {
  Make();
  Sail(80.0F, 20.0F, 9.0F);
  EXPECT_TRUE(Values.empty());
  Window->show();
  Sail(80.0F, 20.0F, 9.0F);
  ASSERT_EQ(Values.size(), 1U);
  EXPECT_EQ(Values[0], std::make_pair(std::string("Polar Speed"), std::string("11.0 deg")));
  Window->close();
  Sail(80.0F, 20.0F, 9.0F);
  EXPECT_EQ(Values.size(), 1U);
  EXPECT_THAT(Shown, ElementsAre(true, false));
}

TEST_F(PolarWindow, AveragesWhileItIsHidden) {
  Store.ProfileSet("Polar Data", "Plot Average", 4.0F);
  Make();
  Sail(80.0F, 20.0F, 8.0F);
  Sail(80.0F, 20.0F, 12.0F);
  Window->show();
  EXPECT_EQ(Window->Model().Values().BoatSpeed, 9.0F);
}

TEST_F(PolarWindow, StoresItsSettingsWhenItCloses) {
  Start();
  Choose("mnuRange12");
  Window->resize(640, 480);
  Window->close();
  EXPECT_FALSE(Window->isVisible());
  EXPECT_EQ(Store.Text("Polar Data", "Speed Range"), "12");
  EXPECT_EQ(Store.Text("Polar Data", "File 1"), "Fast Sled 60ft.pol");
  EXPECT_EQ(Store.Text("Polar Window", "Width"), "640");
  EXPECT_EQ(Store.Text("Polar Window", "Height"), "480");
  EXPECT_NE(Store.Text("Polar Window", "Top"), "");
  EXPECT_NE(Store.Text("Polar Window", "Left"), "");
}

TEST_F(PolarWindow, RecallsItsSettings) {
  Store.ProfileSet("Polar Data", "Speed Range", 8.0F);
  Store.ProfileSet("Polar Data", "Plot Type", std::int16_t{1});
  for (const auto& [key, value] :
       {std::pair{"Top", std::int16_t{60}}, std::pair{"Left", std::int16_t{70}},
        std::pair{"Height", std::int16_t{300}}, std::pair{"Width", std::int16_t{410}}}) {
    Store.ProfileSet("Polar Window", key, value);
  }
  Start();
  EXPECT_TRUE(Ticked("mnuRange8"));
  EXPECT_TRUE(Ticked("mnuWindApparent"));
  EXPECT_EQ(Window->size(), QSize(410, 300));
  EXPECT_EQ(Window->pos(), QPoint(70, 60));
  Window->PolarInit(false);
  EXPECT_TRUE(Ticked("mnuRange10"));
  EXPECT_TRUE(Ticked("mnuWindTrue"));
}

TEST_F(PolarWindow, StaysOnTheScreenWhenItsPlaceIsNot) {
  for (const auto& [key, value] :
       {std::pair{"Top", std::int16_t{-9000}}, std::pair{"Left", std::int16_t{-9000}},
        std::pair{"Height", std::int16_t{300}}, std::pair{"Width", std::int16_t{400}}}) {
    Store.ProfileSet("Polar Window", key, value);
  }
  Start();
  EXPECT_GT(Window->pos().x(), -1000);
  EXPECT_EQ(Window->size(), QSize(400, 300));
}

// Pixels

TEST_F(PolarWindow, DrawsEachCellWhereItBelongsInTheSpeedColour) {
  Store.ProfileSet("Polar Data", "Speed Range", 20.0F);
  Store.ProfileSet("Polar Data", "Speed Color", static_cast<float>(0x00C800));
  Start();
  Square(700);
  const QImage image = GrabPlot();
  const auto geometry = PlotGeometry(700.0, 700.0, 20.0);
  const PolarTable table = TableOf(kSmallPolar);
  for (int column = 1; column <= 4; ++column) {
    for (int row = 2; row <= 3; ++row) {
      for (const double side : {-1.0, 1.0}) {
        const Point at = PointAt(geometry, side * static_cast<double>(table.Value(0, row, 0)),
                                 static_cast<double>(table.Value(0, row, column)));
        EXPECT_GT(Count(image, at, 2, QColor(0, 0xC8, 0)), 2) << row << "," << column << " " << side;
      }
    }
  }
  // Between the curves there is none of it.
  EXPECT_EQ(Count(image, PointAt(geometry, 80.0, 2.0), 4, QColor(0, 0xC8, 0)), 0);
}

TEST_F(PolarWindow, PacksColoursBlueFirst) {
  Store.ProfileSet("Polar Data", "Speed Range", 20.0F);
  Start();
  Square(700);
  Dialogs.PickedColours = {0x0000E6U};
  Choose("mnuOverlayColor");
  EXPECT_EQ(Dialogs.Colours, std::vector<std::uint32_t>{0U});
  const Point cell = PointAt(PlotGeometry(700.0, 700.0, 20.0), 80.0, 11.0);
  EXPECT_GT(Count(GrabPlot(), cell, 2, QColor(0xE6, 0, 0)), 2) << "red";
}

TEST_F(PolarWindow, DrawsTheBoatAtItsPoint) {
  Store.ProfileSet("Polar Data", "Speed Range", 16.0F);
  Store.ProfileSet("Polar Data", "Plot Average", 0.0F);
  Start();
  Square(500);
  const auto geometry = PlotGeometry(500.0, 500.0, 16.0);
  const QColor boat = PolarPaletteQt(Window->palette()).Boat;
  const Point at = PointAt(geometry, -130.0, 12.5);
  EXPECT_EQ(Count(GrabPlot(), at, 8, boat), 0);
  Sail(-130.0F, 8.0F, 12.5F);
  EXPECT_GT(Count(GrabPlot(), at, 8, boat), 20);
  Choose("mnuWindApparent");
  EXPECT_EQ(Count(GrabPlot(), at, 8, boat), 0);
  EXPECT_GT(Count(GrabPlot(), PointAt(geometry, -78.0, 12.5), 8, boat), 20) << "now in apparent wind";
}

TEST_F(PolarWindow, DrawsTheCurveOfThePresentWind) {
  Store.ProfileSet("Polar Data", "Speed Range", 16.0F);
  Store.ProfileSet("Polar Data", "Plot Average", 0.0F);
  Start();
  Square(500);
  const auto geometry = PlotGeometry(500.0, 500.0, 16.0);
  const QColor wind = PolarPaletteQt(Window->palette()).Wind;
  // Half way between the winds of 14 and 20 kn.
  const Point at = PointAt(geometry, 120.0, 12.0);
  EXPECT_EQ(Count(GrabPlot(), at, 3, wind), 0);
  Sail(-60.0F, 17.0F, 5.0F);
  EXPECT_GT(Count(GrabPlot(), at, 3, wind), 5);
}

TEST_F(PolarWindow, DrawsTheLabelsOfTheGridAboveItsCurves) {
  // A curve along the ring of 10 kn.
  std::string round = "TWA\t10\n";
  for (int angle = 1; angle <= 180; ++angle) {
    round += std::to_string(angle) + "\t10\n";
  }
  WriteFile(Program / kDefaultPolar, round);
  Store.ProfileSet("Polar Data", "Speed Range", 16.0F);
  Store.ProfileSet("Polar Data", "Plot Average", 0.0F);
  Start();
  Square(500);
  Sail(-60.0F, 17.0F, 5.0F);
  const auto geometry = PlotGeometry(500.0, 500.0, 16.0);
  const QColor wind = PolarPaletteQt(Window->palette()).Wind;
  const QImage image = GrabPlot();
  EXPECT_GT(Count(image, PointAt(geometry, 45.0, 10.0), 3, wind), 5);
  int seen = 0;
  PolarScene scene(Window->Model());
  for (const PlotLabel& label : scene.Still(500, 500).Grid.Labels) {
    const Box& box = label.Place;
    const Point middle = box.Middle();
    if (std::abs(std::hypot(middle.X - 250.0, middle.Y - 250.0) - 10.0 * geometry.ScaleX) < 2.0) {
      ++seen;
      EXPECT_EQ(Count(image, middle, static_cast<int>(std::min(box.Width, box.Height) / 2.0) - 2, wind), 0)
          << label.Text;
    }
  }
  EXPECT_GT(seen, 0);
}

TEST_F(PolarWindow, NamesTheOldPolarInTheProfileWhenANewOneDoesNotLoad) {
  WriteFile(Program / "bad.pol", "speeds\t6\n30\t4\n");
  Start();
  Dialogs.Files = {(Program / "bad.pol").string()};
  Choose("mnuOverlayFile1");
  EXPECT_EQ(Dialogs.Messages.size(), 1U);
  Window->close();
  EXPECT_EQ(Store.Text("Polar Data", "File 1"), kDefaultPolar);
}

TEST_F(PolarWindow, DrawsTheReferenceInItsOwnColour) {
  std::string arc = "TWA\t10\n";
  for (int angle = 60; angle <= 120; angle += 3) {
    arc += std::to_string(angle) + "\t13\n";
  }
  WriteFile(Program / "r.pol", arc);
  Store.ProfileSet("Polar Data", "Speed Range", 16.0F);
  Start();
  Square(700);
  const auto geometry = PlotGeometry(700.0, 700.0, 16.0);
  const QColor reference = PolarPaletteQt(Window->palette()).Reference;
  const auto seen = [&] {
    const QImage image = GrabPlot();
    int count = 0;
    for (double angle = 62.0; angle < 88.0; angle += 1.0) {
      count += Count(image, PointAt(geometry, angle, 13.0), 1, reference) > 0 ? 1 : 0;
    }
    return count;
  };
  EXPECT_EQ(seen(), 0);
  Dialogs.Files = {(Program / "r.pol").string()};
  Choose("mnuOverlayFile2");
  const int dashes = seen();
  EXPECT_GT(dashes, 8);
  EXPECT_LT(dashes, 26) << "with gaps";
  Dialogs.Files = {(Program / kDefaultPolar).string()};
  Choose("mnuOverlayFile1");
  EXPECT_EQ(seen(), 0);
}

TEST_F(PolarWindow, DrawsItsCurvesInTheForegroundOfAnyPalette) {
  Store.ProfileSet("Polar Data", "Speed Range", 16.0F);
  Start();
  Square(700);
  const Point cell = PointAt(PlotGeometry(700.0, 700.0, 16.0), 80.0, 11.0);
  QPalette dark(QColor(0x2a, 0x2d, 0x31), QColor(0x1b, 0x1e, 0x22));
  dark.setColor(QPalette::WindowText, QColor(0xe6, 0xea, 0xee));
  Window->setPalette(dark);
  EXPECT_GT(Count(GrabPlot(), cell, 2, QColor(0xe6, 0xea, 0xee)), 2);
  QPalette light(QColor(0xee, 0xee, 0xee), QColor(0xef, 0xef, 0xef));
  light.setColor(QPalette::WindowText, QColor(0, 0, 0));
  Window->setPalette(light);
  EXPECT_GT(Count(GrabPlot(), cell, 2, QColor(0, 0, 0)), 2);
}

}  // namespace
}  // namespace veerwatch
