// Figures that are no more of now, in every window.

#include <gmock/gmock.h>

#include <QApplication>
#include <QImage>

#include "app/ThemeQt.h"
#include "tests/support/PictureQt.h"
#include "tests/ui/MainWindowTester.h"

namespace veerwatch {
namespace {

class Dimming : public MainWindowTester {
 public:
  void Second(const std::string& lines) {
    Time.Pass(1000);
    NmeaPort.Receive(lines);
    tmrNmea.Tick();
  }
  void Seconds(int seconds, const std::string& lines = kOthers) {
    for (int i = 0; i < seconds; ++i) {
      Second(lines);
    }
  }

  /// Everything has come, the true wind computed, the variation known.
  void StartSailing(const std::string& more = "") {
    Start("[Nmea]\nPort=3\nTrue Wind Average=0\nHeading=1\nBoat Speed=1\n[Pilot]\nPort=4\nBearing=100\n" +
          more);
    Window->resize(1160, 760);
    Seconds(3, kAll);
    Mode(7);
    Seconds(2, kAll);
  }

  /// The strongest difference to the card's colour that is drawn in a figure [0, 255].
  int Strength(const char* name) const {
    const QImage picture = Window->grab().toImage();
    const auto& label = Find<QWidget>(name);
    const QRect area(label.mapTo(Window.get(), QPoint(0, 0)), label.size());
    const int ground = qGray(picture.pixel(area.topLeft()));
    int most = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
      for (int x = area.left(); x <= area.right(); ++x) {
        most = std::max(most, std::abs(qGray(picture.pixel(x, y)) - ground));
      }
    }
    return most;
  }

  QWidget* Other(const char* name) const {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (window->objectName() == QLatin1String(name)) {
        return window;
      }
    }
    return nullptr;
  }

  static inline const std::string kOthers = "$GPRMC,1,A,1,N,1,E,7.2,97.0,1,3.0,W,A\r";
  static inline const std::string kAll = kOthers + "$WIMWV,30,R,10.0,N,A\r";
};

TEST_F(Dimming, AStaleFigureIsInHalfToneWithItsAgeBeneathIt) {
  StartSailing();
  const int bright = Strength("lblAppWindAngle");
  const int heading = Strength("lblHeading");
  EXPECT_GT(bright, 200);
  Seconds(4);
  EXPECT_EQ(Strength("lblAppWindAngle"), bright) << "four seconds old is of now";
  Seconds(3);
  EXPECT_LT(Strength("lblAppWindAngle"), bright * 4 / 5);
  EXPECT_LT(Strength("lblAppWindSpeed"), bright * 4 / 5);
  EXPECT_LT(Strength("lblDelta(1)"), bright * 4 / 5);
  EXPECT_EQ(Strength("lblHeading"), heading);
  EXPECT_EQ(Find<QLabel>("lblAppWindAngle").accessibleDescription(), "7 s old");
  EXPECT_EQ(Text("lblAppWindAngle"), "30") << "texts stay what they were";
  KeepPicture(Window->grab().toImage(), QStringLiteral("dimming-stale"));
  Seconds(6);
  EXPECT_EQ(Text("lblAppWindAngle"), "30") << "also lost ones";
  Seconds(2, kAll);
  EXPECT_EQ(Strength("lblAppWindAngle"), bright);
  EXPECT_EQ(Find<QLabel>("lblAppWindAngle").accessibleDescription(), "");
}

TEST_F(Dimming, WithBlankLostALostFigureIsBlank) {
  StartSailing("[Watch]\nBlank Lost=True\n");
  Seconds(9);
  EXPECT_EQ(Text("lblAppWindAngle"), "30");
  Seconds(2);
  for (const char* name : {"lblAppWindAngle", "lblAppWindSpeed", "lblTrueWindAngle", "lblTrueWindSpeed"}) {
    EXPECT_EQ(Text(name), "--") << name;
  }
  EXPECT_EQ(Text("lblHeading"), "100");
  EXPECT_THAT(Caption(), testing::HasSubstr("Wind --"));
  Seconds(2, kAll);
  EXPECT_EQ(Text("lblAppWindAngle"), "30");
}

TEST_F(Dimming, InOffEveryFigureIsInHalfTone) {
  StartSailing();
  const int bright = Strength("lblHeading");
  Mode(1);
  for (const char* name :
       {"lblHeading", "lblBoatSpeed", "lblAppWindAngle", "lblAppWindSpeed", "lblTrueWindSpeed"}) {
    EXPECT_LT(Strength(name), bright * 4 / 5) << name;
  }
  EXPECT_EQ(Text("lblHeading"), "100");
  EXPECT_THAT(Caption(), testing::EndsWith("(Off)"));
  Mode(3);
  Seconds(2, kAll);
  EXPECT_EQ(Strength("lblHeading"), bright);
}

TEST_F(Dimming, TheTitleTellsTheAgeOfItsWind) {
  StartSailing();
  EXPECT_THAT(Caption(), testing::MatchesRegex("Wind [NESW]+@[0-9.]+"));
  Seconds(7);
  EXPECT_THAT(Caption(), testing::MatchesRegex("Wind [NESW]+@[0-9.]+ \\(7 s old\\)"));
  Seconds(2, kAll);
  EXPECT_THAT(Caption(), testing::MatchesRegex("Wind [NESW]+@[0-9.]+"));
}

TEST_F(Dimming, AFigureStandsAboveItsAgeAtTheSmallestSize) {
  StartSailing();
  Seconds(6);
  Window->resize(Window->minimumSize());
  QTest::qWait(0);
  const auto& label = Find<QLabel>("lblHeading");
  Seconds(6, "$WIMWV,30,R,10.0,N,A\r");
  const QImage with = Find<QWidget>("lblHeading").grab().toImage();
  Find<QLabel>("lblHeading").setText(QStringLiteral("888"));
  const QImage other = Find<QWidget>("lblHeading").grab().toImage();
  EXPECT_FALSE(label.accessibleDescription().isEmpty());
  int differing = 0;
  for (int y = 0; y < with.height() / 2; ++y) {
    for (int x = 0; x < with.width(); ++x) {
      differing += with.pixel(x, y) != other.pixel(x, y) ? 1 : 0;
    }
  }
  EXPECT_GT(differing, 5) << "the upper half shows the figures";
}

TEST_F(Dimming, TheHeadingBesideTheBearingFollows) {
  StartSailing();
  EXPECT_TRUE(Enabled("lblPilotHeading"));
  Seconds(6, "$WIMWV,30,R,10.0,N,A\r");
  EXPECT_EQ(Text("lblPilotHeading"), "Heading 100");
  EXPECT_FALSE(Enabled("lblPilotHeading"));
}

/// Pixels that differ between two pictures.
int Differing(const QImage& a, const QImage& b) {
  int count = 0;
  for (int y = 0; y < std::min(a.height(), b.height()); ++y) {
    for (int x = 0; x < std::min(a.width(), b.width()); ++x) {
      count += a.pixel(x, y) != b.pixel(x, y) ? 1 : 0;
    }
  }
  return count;
}

/// How colourful the most colourful pixel is, blue left out.
int Colourful(const QImage& picture) {
  int most = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const QColor colour = picture.pixelColor(x, y);
      most = std::max(most, colour.saturation());
    }
  }
  return most;
}

TEST_F(Dimming, PolarHistoryAndDiagramFollow) {
  StartSailing("[Polar Data]\nCourse Waypoint=True\nCourse Waypoint Index=2\n");
  for (const char* command : {"mnuViewPolar", "mnuViewHistory", "mnuViewDiagram"}) {
    Find<QAction>(command).trigger();
  }
  Seconds(3, kAll);
  QTest::qWait(400);
  QWidget& polar = *Other("frmPolar");
  QWidget& history = *Other("frmHistory");
  auto* input = Other("frmDiagram")->findChild<QPushButton*>(QStringLiteral("cmdInput"));
  const QImage polarBefore = polar.grab().toImage();
  const QImage historyBefore = history.grab().toImage();
  const QColor lit = input->palette().color(QPalette::Button);
  Seconds(7);
  QTest::qWait(400);
  const QImage polarAfter = polar.grab().toImage();
  KeepPicture(polarBefore, QStringLiteral("dimming-polar-before"));
  KeepPicture(polarAfter, QStringLiteral("dimming-polar"));
  KeepPicture(history.grab().toImage(), QStringLiteral("dimming-history"));
  EXPECT_GT(Differing(polarBefore, polarAfter), 500);
  EXPECT_LT(Colourful(polarAfter), Colourful(polarBefore) / 2);
  EXPECT_NE(input->palette().color(QPalette::Button), lit);
  EXPECT_EQ(Other("frmDiagram")->findChild<QLabel*>(QStringLiteral("lblInputState"))->text(), "Running");
  EXPECT_GT(Differing(historyBefore, history.grab().toImage()), 50);
  Seconds(2, kAll);
  EXPECT_EQ(input->palette().color(QPalette::Button), lit);
}

}  // namespace
}  // namespace veerwatch
