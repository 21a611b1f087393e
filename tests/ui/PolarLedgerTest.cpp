// The course ledger on the polar window, through real events.

#include <gmock/gmock.h>

#include <QContextMenuEvent>
#include <QTimer>
#include <cmath>

#include "tests/support/PictureQt.h"
#include "tests/support/WaitQt.h"
#include "tests/ui/DarkPalette.h"
#include "tests/ui/PolarLedgerTester.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;

constexpr QColor kGreen(128, 255, 128);
constexpr QColor kRed(255, 128, 128);

class PolarLedger : public PolarLedgerTester {};

TEST_F(PolarLedger, IsHiddenByDefault) {
  Start();
  At({});
  EXPECT_FALSE(Shows());
  EXPECT_TRUE(Find<QAction>("mnuCourseLedger").isEnabled());
  EXPECT_EQ(Label().text(), QStringLiteral("Steer -100 >"));
  EXPECT_EQ(Steer().text(), QStringLiteral("Steer -100 >"));
  EXPECT_EQ(Tack().text(), QStringLiteral("Tack"));
}

TEST_F(PolarLedger, HasItsTitleAndItsToolTip) {
  StartTo(100.0F);
  EXPECT_EQ(Ledger().windowTitle(), QStringLiteral("Tack Ledger"));
  EXPECT_EQ(Ledger().toolTip(), QStringLiteral("You can drag this ledger to a different location"));
}

TEST_F(PolarLedger, ComesAndGoesWithTheCourse) {
  Start();
  At({});
  Choose("mnuCourseWaypoint(1)");
  EXPECT_TRUE(Shows()) << "at once";
  Choose("mnuCourseWaypoint(1)");
  EXPECT_FALSE(Shows());
  At({});
  EXPECT_FALSE(Shows());
}

TEST_F(PolarLedger, NeedsAHeadingAndForAWaypointTheWaypoint) {
  StartTo(100.0F, CourseSource::WaypointBearing);
  EXPECT_FALSE(Shows()) << "nothing received yet";
  At({});
  EXPECT_TRUE(Shows());
  Moment without;
  without.HeadingValid = false;
  At(without);
  EXPECT_FALSE(Shows());
  At({});
  without = {};
  without.WaypointValid = false;
  At(without);
  EXPECT_FALSE(Shows());
  Choose("mnuCourseWaypoint(0)");
  At(without);
  EXPECT_TRUE(Shows()) << "a target bearing needs no waypoint";
}

TEST_F(PolarLedger, OffersNoTurnOfLongAgoWhenTheWindowOpensAgain) {
  StartTo(100.0F);
  At({});
  ASSERT_TRUE(Shows());
  Window->close();
  Moment later;
  later.Heading = 250.0F;
  later.WindAngle = 120.0F;
  At(later);
  Window->show();
  EXPECT_FALSE(Shows());
  At(later);
  EXPECT_TRUE(Shows());
  EXPECT_EQ(Figures()[0], "Heading (M)=250");
}

TEST_F(PolarLedger, ShowsTheFiguresOfItsSource) {
  StartTo(100.0F);
  At({});
  EXPECT_THAT(Figures(), ElementsAre("Heading (M)=135", "Stb (M)=55 (50%)", "Prt (M)=145 (50%)",
                                     "Target (M)=100", "Target (Kts)=4.2"));
  Choose("mnuCourseWaypoint(1)");
  EXPECT_EQ(Figures().size(), 7U);
  Choose("mnuCourseWaypoint(2)");
  EXPECT_THAT(Figures(), ElementsAre("Heading (M)=135", "Stb (M)=55 (1:25)", "Prt (M)=145 (1:25)",
                                     "Target (M)=100", "Target (Kts)=4.2", "Wpt (M)=100", "Wpt (Kts)=4.2",
                                     "Wpt (Rng)=12.0", "Wpt (h:m)=2:50"));
  Choose("mnuBoatType(1)");
  EXPECT_EQ(Figures().back(), "Wpt (h:m)=2:50 (motor 4:00)");
  Dialogs.Texts = {"6"};
  Choose("mnuBoatMotorSpeed");
  EXPECT_EQ(Figures().back(), "Wpt (h:m)=2:50 (motor 2:00)");
}

TEST_F(PolarLedger, FollowsTheBoatSpeedWhileCourseScaleIsTicked) {
  StartTo(100.0F, CourseSource::WaypointRange);
  Moment slow;
  slow.Heading = 145.0F;
  slow.WindAngle = -45.0F;
  slow.BoatSpeed = 3.0F;
  At(slow);
  EXPECT_EQ(Figures().back(), "Wpt (h:m)=5:39");
  Choose("mnuCourseScale");
  EXPECT_EQ(Figures().back(), "Wpt (h:m)=2:50");
}

TEST_F(PolarLedger, SteersTheSameInEitherPlotWhenSmooth) {
  WriteFile(Program / kDefaultPolar, kSmallPolar);
  StartTo(100.0F);
  Moment moment;
  moment.WindSpeed = 8.0F;
  At(moment);
  const auto stepped = Figures();
  Choose("mnuWindApparent");
  ASSERT_NE(Figures(), stepped) << "looked up by the apparent wind";
  Choose("mnuOverlaySmooth");
  const auto smooth = Figures();
  Choose("mnuWindTrue");
  EXPECT_EQ(Figures(), smooth);
  Choose("mnuOverlaySmooth");
  EXPECT_EQ(Figures(), stepped) << "no solution of before is kept";
}

TEST_F(PolarLedger, UsesTheAverages) {
  Store.ProfileSet("Polar Data", "Plot Average", 2.0F);
  StartTo(100.0F);
  At({});
  Moment later;
  later.Heading = 155.0F;
  At(later);
  EXPECT_EQ(Figures()[0], "Heading (M)=145");
}

TEST_F(PolarLedger, WritesATurnOfThreeDigitsOut) {
  StartTo(100.0F);
  Moment moment;
  moment.Heading = 295.0F;
  moment.WindAngle = 165.0F;
  At(moment);
  const auto& rows = Ledger().Content().Rows;
  EXPECT_EQ(rows[1].Angle, "+165");
  QFont letters(Ledger().font());
  letters.setPixelSize(qRound(Ledger().Layout().Text));
  const QFontMetricsF metrics(letters);
  ASSERT_EQ(Ledger().Layout().Rows.size(), 6U);
  for (const char* text : {"+165", "-165", "+180"}) {
    EXPECT_LE(metrics.horizontalAdvance(QLatin1String(text)), Ledger().Layout().Rows[1].Angle.Width) << text;
  }
}

TEST_F(PolarLedger, DrawsTheTargetBearing) {
  Store.ProfileSet("Polar Data", "Speed Range", 10.0F);
  StartTo(10.0F);
  Window->resize(1000, 740);
  Moment moment;
  moment.Heading = 60.0F;
  moment.WindAngle = 40.0F;
  At(moment);
  // The wind comes from 100, so on the way to 10 it is abeam to starboard.
  const QImage image = GrabPlot();
  const PolarGeometry geometry = PlotGeometry(Plot().width(), Plot().height(), 10.0);
  const QColor target = PolarPaletteQt(Window->palette()).Target;
  const auto on = [&](double angle) {
    int points = 0;
    for (double speed = 6.5; speed < 9.0; speed += 0.05) {
      const Point at = PointAt(geometry, angle, speed);
      points += image.pixelColor(static_cast<int>(at.X), static_cast<int>(at.Y)) == target ? 1 : 0;
    }
    return points;
  };
  EXPECT_GT(on(90.0), 12) << "of 50, in dashes";
  EXPECT_LT(on(90.0), 40);
  EXPECT_EQ(on(-90.0), 0);
}

// The turns

TEST_F(PolarLedger, SaysTheTurnInTheColourOfItsSide) {
  StartTo(100.0F);
  for (const bool dark : {false, true}) {
    if (dark) {
      Window->setPalette(DarkPalette());
    }
    const auto expect = [&](const char* caption, const QColor& back) {
      EXPECT_EQ(Steer().text().toStdString(), caption);
      EXPECT_EQ(Label().text().toStdString(), caption);
      EXPECT_EQ(Steer().palette().color(QPalette::Button), back) << caption;
      EXPECT_EQ(Label().palette().color(QPalette::Window), back) << caption;
      EXPECT_GT(ContrastRatio(Steer().palette().color(QPalette::ButtonText), back), 7.0) << caption;
      EXPECT_GT(ContrastRatio(Label().palette().color(QPalette::WindowText), back), 7.0) << caption;
    };
    Moment moment;
    At(moment);
    expect("Steer +10 >", kGreen);
    moment.Heading = 157.0F;
    moment.WindAngle = -57.0F;
    At(moment);
    expect("< Steer -12", kRed);
    moment.Heading = 145.0F;
    moment.WindAngle = -45.0F;
    At(moment);
    expect("Steer 0", Window->palette().color(QPalette::Window));
  }
}

TEST_F(PolarLedger, ChangesItsColoursWithThePalette) {
  StartTo(100.0F);
  Moment moment;
  moment.Heading = 145.0F;
  moment.WindAngle = -45.0F;
  At(moment);
  Window->setPalette(DarkPalette());
  EXPECT_EQ(Label().palette().color(QPalette::Window), QColor(0x1b, 0x1e, 0x22));
  EXPECT_EQ(Steer().palette().color(QPalette::Button), QColor(0x1b, 0x1e, 0x22));
}

TEST_F(PolarLedger, OffersATackOrAJibeToTheOtherLeg) {
  StartTo(100.0F);
  const auto expect = [&](float heading, float windAngle, const char* caption, const QColor& back) {
    Moment moment;
    moment.Heading = heading;
    moment.WindAngle = windAngle;
    At(moment);
    EXPECT_EQ(Tack().text().toStdString(), caption);
    EXPECT_EQ(Tack().palette().color(QPalette::Button), back) << caption;
    EXPECT_TRUE(Tack().isEnabled()) << caption;
  };
  expect(145.0F, -45.0F, "<< Tack", kRed);
  expect(55.0F, 45.0F, "Tack >>", kGreen);
  expect(220.0F, -120.0F, "Jibe >>", kGreen);
  expect(340.0F, 120.0F, "<< Jibe", kRed);
}

TEST_F(PolarLedger, AsksForATurnFromThePresentHeadingAndTheAveragedWind) {
  Store.ProfileSet("Polar Data", "Plot Average", 16.0F);
  StartTo(100.0F);
  At({});
  At({.Heading = 167.0F, .WindAngle = -67.0F});
  Click(Tack());
  ASSERT_EQ(Turns.size(), 1U);
  EXPECT_EQ(Turns[0][1], 167.0F);
  EXPECT_NEAR(Turns[0][2], -37.0F, 0.5F) << "a sixteenth of the way";
}

TEST_F(PolarLedger, HasNothingToTackToOnAStraightCourse) {
  StartTo(200.0F);
  At({});
  EXPECT_TRUE(Shows());
  EXPECT_FALSE(Tack().isEnabled());
  EXPECT_EQ(Tack().palette().color(QPalette::Button), Window->palette().color(QPalette::Window));
  Click(Tack());
  EXPECT_TRUE(Turns.empty());
}

TEST_F(PolarLedger, AsksForTheTurnsOfItsButtons) {
  StartTo(100.0F);
  At({});
  Click(Steer());
  Click(Tack());
  EXPECT_THAT(Turns, ElementsAre(std::array{145.0F, 135.0F, -35.0F}, std::array{55.0F, 135.0F, -35.0F}));
  EXPECT_THAT(Buttons, ElementsAre(TurnButton::Steer, TurnButton::Tack));
}

// The panel

TEST_F(PolarLedger, IsDraggedByItsGround) {
  StartTo(100.0F);
  At({});
  const QPoint home = Ledger().pos();
  Drag({-120, -90});
  EXPECT_EQ(Ledger().pos(), home + QPoint(-120, -90));
  QTest::mouseMove(&Ledger(), QPoint(60, 60));
  EXPECT_EQ(Ledger().pos(), home + QPoint(-120, -90)) << "released";
  At({});
  EXPECT_EQ(Ledger().pos(), home + QPoint(-120, -90)) << "stays there";
  QTest::mousePress(&Ledger(), Qt::RightButton, {}, QPoint(20, 8));
  QTest::mouseMove(&Ledger(), QPoint(40, 40));
  QTest::mouseRelease(&Ledger(), Qt::RightButton, {}, QPoint(40, 40));
  EXPECT_EQ(Ledger().pos(), home + QPoint(-120, -90)) << "only with the left button";
}

TEST_F(PolarLedger, StaysInsideTheWindow) {
  StartTo(100.0F, CourseSource::WaypointRange);
  At({});
  EXPECT_TRUE(Inside());
  Drag({5000, 5000});
  EXPECT_TRUE(Inside());
  EXPECT_EQ(Ledger().geometry().bottomRight(), Plot().rect().bottomRight());
  Window->resize(620, 480);
  QApplication::processEvents();
  EXPECT_TRUE(Inside()) << "the window became smaller";
  Drag({-5000, -5000});
  EXPECT_EQ(Ledger().pos(), QPoint(0, 0));
}

TEST_F(PolarLedger, FitsIntoWindowsOfAnySize) {
  StartTo(100.0F, CourseSource::WaypointRange);
  Choose("mnuBoatType(1)");
  At({});
  for (const QSize& size : {QSize(220, 180), QSize(400, 300), QSize(300, 900), QSize(700, 700),
                            QSize(900, 500), QSize(1000, 740), QSize(500, 640), QSize(1600, 1100)}) {
    Window->resize(size);
    QApplication::processEvents();
    EXPECT_TRUE(Inside()) << size.width() << "x" << size.height();
    EXPECT_TRUE(Plot().rect().contains(Label().geometry())) << size.width() << "x" << size.height();
    Grab("ledger-" + std::to_string(size.width()));
  }
}

TEST_F(PolarLedger, IsHiddenByItsOwnMenuAndShownByThatOfTheCourse) {
  StartTo(100.0F);
  At({});
  auto& menu = Find<QMenu>("mnuLedger");
  QContextMenuEvent asked(QContextMenuEvent::Mouse, QPoint(20, 30), Ledger().mapToGlobal(QPoint(20, 30)));
  QApplication::sendEvent(&Ledger(), &asked);
  ASSERT_TRUE(menu.isVisible());
  QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(&Find<QAction>("mnuLedgerHide")).center());
  EXPECT_FALSE(Shows());
  At({});
  EXPECT_FALSE(Shows()) << "stays hidden";
  Choose("mnuCourseLedger");
  EXPECT_TRUE(Shows());
}

TEST_F(PolarLedger, KeepsTheMouseFromThePlotBeneath) {
  StartTo(100.0F);
  At({});
  QTest::mousePress(&Ledger(), Qt::LeftButton, {}, QPoint(20, 8));
  EXPECT_FALSE(Find<QLabel>("lblMouse").isVisible());
}

// Pixels

int Near(const QImage& image, const Point& centre, const QColor& colour) {
  int count = 0;
  for (int y = -2; y <= 2; ++y) {
    for (int x = -2; x <= 2; ++x) {
      const QColor pixel = image.pixelColor(static_cast<int>(centre.X) + x, static_cast<int>(centre.Y) + y);
      count += std::abs(pixel.red() - colour.red()) + std::abs(pixel.green() - colour.green()) +
                           std::abs(pixel.blue() - colour.blue()) <
                       90
                   ? 1
                   : 0;
    }
  }
  return count;
}

TEST_F(PolarLedger, DrawsTheLegsWithArrowHeads) {
  Store.ProfileSet("Polar Data", "Course Scale", false);
  StartTo(100.0F);
  Square(700);
  Moment moment;
  moment.WindAngle = -45.0F;
  moment.Heading = 145.0F;
  moment.BoatSpeed = 2.0F;
  At(moment);
  // Out of the way.
  Drag({5000, 5000});
  const QImage image = GrabPlot();
  const auto geometry = PlotGeometry(700.0, 700.0, 10.0);
  const PolarPaletteQt colours(Window->palette());
  for (const double side : {-1.0, 1.0}) {
    const QColor colour = side < 0.0 ? colours.PortTack : colours.StarboardTack;
    EXPECT_GT(Near(image, PointAt(geometry, side * 45.0, 5.2), colour), 4) << side;
    const LegArrow arrow = MakeLegArrow(geometry, side * 45.0, 6.0);
    for (const Stroke& stroke : {arrow.HeadLeft, arrow.HeadRight}) {
      const Point middle{(stroke.From.X + stroke.To.X) / 2.0, (stroke.From.Y + stroke.To.Y) / 2.0};
      EXPECT_GT(Near(image, middle, colour), 4) << side;
    }
    EXPECT_EQ(Near(image, PointAt(geometry, side * 45.0, 7.0), colour), 0) << side;
  }
  Choose("mnuCourseWaypoint(0)");
  EXPECT_EQ(Near(GrabPlot(), PointAt(geometry, 45.0, 5.2), colours.StarboardTack), 0);
}

TEST_F(PolarLedger, LooksTheSameInTheDark) {
  StartTo(100.0F, CourseSource::WaypointRange);
  Choose("mnuRange8");
  Window->setPalette(DarkPalette());
  At({});
  const QImage image = Grab("ledger-dark");
  const QPoint ground = Ledger().mapTo(Window.get(), QPoint(Ledger().width() / 2, 4));
  EXPECT_EQ(image.pixelColor(ground), QColor(0x1b, 0x1e, 0x22));
}

}  // namespace
}  // namespace veerwatch
