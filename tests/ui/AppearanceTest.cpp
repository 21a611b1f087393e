// What the main window looks like, judged by its pixels. Each grab is kept as a picture in the folder that
// the tests run in.

#include <QApplication>
#include <QImage>
#include <algorithm>
#include <cmath>
#include <cstdlib>

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
    image.save(QStringLiteral("veerwatch-%1.png").arg(QString::fromStdString(name)));
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

/// Contrast ratio of two colours, 1 to 21. Source: WCAG 2, relative luminance.
double Contrast(const QColor& a, const QColor& b) {
  const auto luminance = [](const QColor& colour) {
    const auto channel = [](double part) {
      return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * channel(colour.redF()) + 0.7152 * channel(colour.greenF()) +
           0.0722 * channel(colour.blueF());
  };
  const double one = luminance(a) + 0.05;
  const double other = luminance(b) + 0.05;
  return std::max(one, other) / std::min(one, other);
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

TEST_F(Appearance, ColoursAreLegibleInBothPalettes) {
  for (const QPalette& palette : {QApplication::palette(), DarkPalette()}) {
    const ThemeQt theme(palette);
    EXPECT_GE(Contrast(theme.Text, theme.Card), 7.0);
    EXPECT_GE(Contrast(theme.Caption, theme.Card), 4.5);
    EXPECT_GE(Contrast(theme.Dimmed, theme.Card), 4.5) << "what does not answer stays legible";
    EXPECT_GE(Contrast(theme.Port.Text, theme.Port.Fill), 4.5);
    EXPECT_GE(Contrast(theme.Starboard.Text, theme.Starboard.Fill), 4.5);
    EXPECT_GT(theme.Port.Fill.red(), theme.Port.Fill.green());
    EXPECT_GT(theme.Starboard.Fill.green(), theme.Starboard.Fill.red());
    for (const TrackMode mode : {TrackMode::Off, TrackMode::Setup, TrackMode::Manual, TrackMode::Track}) {
      EXPECT_GE(Contrast(theme.Mode(mode).Text, theme.Mode(mode).Fill), 4.5) << static_cast<int>(mode);
    }
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

INSTANTIATE_TEST_SUITE_P(Shades, AppearanceInPalette, testing::Values("light", "dark"));

}  // namespace
}  // namespace veerwatch
