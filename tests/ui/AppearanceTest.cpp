// What the main window looks like, judged by its pixels. Each grab is kept as a picture beside
// the test program.

#include <QApplication>
#include <QImage>
#include <algorithm>
#include <cstdlib>

#include "tests/support/PictureQt.h"
#include "tests/ui/DarkPalette.h"
#include "tests/ui/MainWindowTester.h"

namespace veerwatch {
namespace {

class Appearance : public MainWindowTester {
 public:
  ~Appearance() override { QApplication::setPalette(m_palette); }

  QImage Grab(const std::string& name) const {
    QTest::qWait(0);
    const QImage image = Window->grab().toImage();
    KeepPicture(image, QStringLiteral("main-") + QString::fromStdString(name));
    return image;
  }

 private:
  QPalette m_palette = QApplication::palette();
};

/// Height [px] of what is drawn in `label` on the flat ground around it.
int DrawnHeight(const QWidget& window, const QWidget& label, const QImage& image) {
  const QRect area(label.mapTo(&window, QPoint(0, 0)), label.size());
  const QRgb ground = image.pixel(area.topLeft());
  int top = area.bottom();
  int bottom = area.top() - 1;
  for (int y = area.top(); y <= area.bottom(); ++y) {
    for (int x = area.left(); x <= area.right(); ++x) {
      if (std::abs(qGray(image.pixel(x, y)) - qGray(ground)) > 60) {
        top = std::min(top, y);
        bottom = std::max(bottom, y);
      }
    }
  }
  return bottom - top + 1;
}

TEST_F(Appearance, FiguresAreAtLeast48PixelsHighAtTheDefaultSize) {
  Start(kSimulated);
  Window->resize(1160, 760);
  tmrNmea.Tick();
  const QImage image = Grab("default");
  for (const char* name : {"lblHeading", "lblBoatSpeed", "lblWaypointBearing", "lblAppWindAngle",
                           "lblAppWindSpeed", "lblTrueWindAngle", "lblTrueWindSpeed", "lblDelta(1)"}) {
    EXPECT_GE(DrawnHeight(*Window, Find<QWidget>(name), image), 48) << name;
  }
}

TEST_F(Appearance, FiguresStayLargeOnASmallScreen) {
  Start(kSimulated);
  Window->resize(1024, 600);
  tmrNmea.Tick();
  const QImage image = Grab("small");
  for (const char* name : {"lblHeading", "lblBoatSpeed", "lblAppWindAngle", "lblTrueWindAngle"}) {
    EXPECT_GE(DrawnHeight(*Window, Find<QWidget>(name), image), 48) << name;
  }
}

TEST_F(Appearance, TheModeBarReachesFromCardToCardAtAnyWidth) {
  Start(kSimulated);
  auto& bar = Find<QToolBar>("tbrTrack");
  for (int width = 321; width < 1500; width += 59) {
    Window->resize(width, 760);
    QTest::qWait(0);
    const QWidget* first = bar.widgetForAction(&Find<QAction>("tbrTrack(1)"));
    const QWidget* last = bar.widgetForAction(&Find<QAction>("tbrTrack(7)"));
    ASSERT_TRUE(last->isVisible()) << width;
    EXPECT_EQ(bar.width() - last->geometry().right() - 1, first->geometry().left()) << width;
  }
}

/// Columns [px] of `image` in `area` from the first to the last that differ from its upper left pixel, and
/// the widest gap between two of them.
struct Drawn {
  int First = -1;
  int Last = -1;
  int WidestGap = 0;
};

Drawn ColumnsOf(const QImage& image, const QRect& area) {
  Drawn drawn;
  for (int x = area.left(); x <= area.right(); ++x) {
    bool any = false;
    for (int y = area.top(); y <= area.bottom() && !any; ++y) {
      any = std::abs(qGray(image.pixel(x, y)) - qGray(image.pixel(area.topLeft()))) > 60;
    }
    if (any) {
      drawn.WidestGap = drawn.First < 0 ? 0 : std::max(drawn.WidestGap, x - drawn.Last - 1);
      drawn.First = drawn.First < 0 ? x : drawn.First;
      drawn.Last = x;
    }
  }
  return drawn;
}

TEST_F(Appearance, AnIconStandsAwayFromItsWord) {
  Start(kSimulated);
  Window->resize(1160, 760);
  const QImage image = Grab("icons");
  auto& bar = Find<QToolBar>("tbrTrack");
  for (const char* name : {"tbrTrack(1)", "tbrTrack(3)", "tbrTrack(5)"}) {
    const QWidget* button = bar.widgetForAction(&Find<QAction>(name));
    const QRect inside =
        QRect(button->mapTo(Window.get(), QPoint(0, 0)), button->size()).adjusted(8, 8, -8, -8);
    EXPECT_GE(ColumnsOf(image, inside).WidestGap, 8) << name;
  }
}

TEST_F(Appearance, BothNudgesOfAPairHaveLettersOfOneSize) {
  Start(kSimulated);
  for (const QSize& size : {QSize(1160, 760), QSize(640, 400), QSize(480, 900)}) {
    Window->resize(size);
    QTest::qWait(0);
    for (const std::string pair : {"cmdAutoPilot", "cmdDesiredApp", "cmdDesiredTrue"}) {
      const auto& port = Find<QWidget>((pair + "(1)").c_str());
      const auto& starboard = Find<QWidget>((pair + "(2)").c_str());
      EXPECT_EQ(port.font().pixelSize(), starboard.font().pixelSize()) << pair << size.width();
      const QFontMetricsF metrics(starboard.font());
      EXPECT_LT(metrics.horizontalAdvance(QStringLiteral("To Starboard")) + 2.0 * metrics.capHeight(),
                starboard.width())
          << pair << size.width();
    }
  }
}

TEST_F(Appearance, TheAlarmsFigureIsWholeInANarrowWindow) {
  Start(kSimulated);
  tmrNmea.Tick(3);
  Mode(7);
  Type("txtDesired(1)", "-170");
  Enter("txtDesired(1)");
  tmrNmea.Tick();
  const auto& alarm = Find<QLabel>("StatusBar(3)");
  ASSERT_TRUE(alarm.text().startsWith(QStringLiteral("Alarm Limit Exceeded ")));
  for (const int width : {600, 520, 440}) {
    Window->resize(width, 760);
    QTest::qWait(0);
    for (const char* name : {"StatusBar(1)", "StatusBar(3)"}) {
      const auto& panel = Find<QLabel>(name);
      EXPECT_GE(panel.contentsRect().width(), panel.fontMetrics().horizontalAdvance(panel.text()))
          << name << " at " << width;
    }
    EXPECT_LE(alarm.geometry().right(), width);
  }
}

TEST_F(Appearance, FollowsAChangeOfThePalette) {
  Start(kSimulated);
  const QImage light = Grab("before");
  QApplication::setPalette(DarkPalette());
  const QImage dark = Grab("after");
  const QPoint card = Find<QWidget>("lblHeading").mapTo(Window.get(), QPoint(0, 0));
  EXPECT_GT(qGray(light.pixel(card)), 200);
  EXPECT_LT(qGray(dark.pixel(card)), 80);
}

TEST_F(Appearance, AChangingValueLeavesItsFiguresInPlace) {
  Start(kOnPorts);
  const auto& label = Find<QLabel>("lblHeading");
  const QRect before = label.geometry();
  NmeaPort.Receive("$GPRMC,1,A,1,N,1,E,7.25,271.5,1,3.0,E,A\r");
  NmeaPort.Receive("$GPRMC,1,A,1,N,1,E,111.25,4.5,1,3.0,E,A\r");
  QTest::qWait(0);
  EXPECT_EQ(label.geometry(), before);
}

class AppearanceInPalette : public Appearance, public testing::WithParamInterface<const char*> {};

TEST_P(AppearanceInPalette, Modes) {
  const std::string shade = GetParam();
  if (shade == "dark") {
    QApplication::setPalette(DarkPalette());
  }
  Start(kSimulated);
  tmrNmea.Tick(3);
  for (const int mode : {5, 7, 3, 1}) {
    Mode(mode);
    tmrNmea.Tick();
    const QImage image = Grab(shade + "-mode" + std::to_string(mode));
    auto& bar = Find<QToolBar>("tbrTrack");
    for (const int other : {1, 3, 5, 7}) {
      QWidget* button = bar.widgetForAction(
          &Find<QAction>(QStringLiteral("tbrTrack(%1)").arg(other).toLatin1().constData()));
      const QColor ground = image.pixelColor(button->mapTo(Window.get(), QPoint(button->width() / 2, 5)));
      const ThemeQt theme(Window->palette());
      EXPECT_EQ(ground, other == mode ? theme.Mode(static_cast<TrackMode>(mode)).Fill : theme.Card);
    }
  }
  Mode(3);
  tmrNmea.Tick(2);
  Mode(7);
  Type("txtDesired(1)", "-60");
  Enter("txtDesired(1)");
  tmrNmea.Tick();
  const QImage alarm = Grab(shade + "-alarm");
  const auto& delta = Find<QLabel>("lblDelta(1)");
  EXPECT_EQ(alarm.pixelColor(delta.mapTo(Window.get(), QPoint(delta.width() / 2, 4))), QColor(255, 128, 128));
  Window->m_fTrackBandwidth = 0.0F;
  Mode(5);
  Mode(7);
  Click("optControl(2)");
  Window->m_fTrackBandwidth = 0.0F;
  Mode(7);
  EXPECT_EQ(Window->m_eTrackMode, TrackMode::Manual);
  Window->resize(1024, 600);
  Grab(shade + "-1024x600");
  Window->resize(640, 400);
  Grab(shade + "-640x400");
  Window->resize(320, 220);
  Grab(shade + "-320x220");
  Window->resize(480, 900);
  Grab(shade + "-480x900");
  Window->resize(1600, 500);
  Grab(shade + "-1600x500");
}

INSTANTIATE_TEST_SUITE_P(Shades, AppearanceInPalette, testing::Values("light", "dark"),
                         [](const auto& shade) { return std::string(shade.param); });

}  // namespace
}  // namespace veerwatch
