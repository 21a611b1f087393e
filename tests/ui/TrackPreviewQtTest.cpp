// The plot of the loop's response and the diagram of the loop as widgets. Each grab is kept as a picture
// beside the test program.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QTest>
#include <cstdlib>

#include "options/LoopDiagramQt.h"
#include "options/TrackPreviewQt.h"
#include "platform/ColoursQt.h"
#include "tests/support/FixedRandom.h"
#include "tests/support/PictureQt.h"
#include "tests/ui/DarkPalette.h"

namespace veerwatch {
namespace {

TrackPreviewTexts Texts() { return {"40", "1", "10", "0", "120", "-5", "15"}; }

QPalette Shade(bool dark) { return dark ? DarkPalette() : QApplication::palette(); }

QImage Grabbed(QWidget& widget, const char* name, bool dark) {
  const QImage image = widget.grab().toImage();
  KeepPicture(image,
              QStringLiteral("%1-%2").arg(QLatin1String(name), QLatin1String(dark ? "dark" : "light")));
  return image;
}

/// A plot of 241 x 201 that is shown, 2 columns a second and 10 rows a degree.
class TrackPreviewWidget : public testing::Test {
 public:
  TrackPreviewWidget() {
    Plot.resize(241, 201);
    Plot.Resized([this] { ++Resizes; });
    Plot.show();
    QApplication::processEvents();
  }

  SeededRandom Random{1};
  TrackPreviewQt Plot{Random, nullptr};
  int Resizes = 0;
};

TEST_F(TrackPreviewWidget, IsFoundByItsName) { EXPECT_EQ(Plot.objectName(), "pctTrack"); }

TEST_F(TrackPreviewWidget, TellsWhenItGetsItsSizeAndEachNewOne) {
  EXPECT_EQ(Resizes, 1);
  Plot.resize(300, 201);
  QApplication::processEvents();
  EXPECT_EQ(Resizes, 2);
}

/// Half an hour with shifts and gusts, two winds a second.
TrackWindInputs HalfHour() {
  TrackWindInputs inputs{Settings(), "20", "4", "6", {}};
  SeededRandom random(5);
  double shift = 0.0;
  for (int i = 0; i < 3600; ++i) {
    shift += (random.Next() - 0.5) * 1.6 - shift * 0.01;
    WindSample wind;
    wind.Moment = i * 500;
    wind.Direction = static_cast<float>(200.0 + shift + (random.Next() - 0.5) * 6.0);
    wind.Speed = 12.0F;
    inputs.Winds.push_back(wind);
  }
  return inputs;
}

TEST_F(TrackPreviewWidget, PaintsACurveForEachMethodBeneathItsLegend) {
  Plot.resize(560, 260);
  for (const bool dark : {false, true}) {
    Plot.setPalette(Shade(dark));
    Plot.Draw(HalfHour());
    ASSERT_EQ(Plot.Picture().Curves.size(), 3U) << Plot.Picture().Trouble;
    const QImage image = Grabbed(Plot, "track-wind", dark);
    const QColor base = Plot.palette().color(QPalette::Base);
    // Grid and reference lines end at the legend.
    EXPECT_EQ(image.pixelColor(540, 2), base);
    const int legend = Plot.Picture().LegendHeight;
    std::vector<QColor> samples;
    for (int line = 0; line < 3; ++line) {
      QColor darkest = base;
      const int middle = 4 + (2 * line + 1) * (legend - 8) / 6;
      for (int x = 6; x < 36; ++x) {
        for (int y = middle - 1; y <= middle + 1; ++y) {
          if (Contrast(image.pixelColor(x, y), base) > Contrast(darkest, base)) {
            darkest = image.pixelColor(x, y);
          }
        }
      }
      EXPECT_GE(Contrast(darkest, base), 3.0) << line;
      samples.push_back(darkest);
    }
    EXPECT_NE(samples[0], samples[1]);
    EXPECT_NE(samples[1], samples[2]);
  }
}

TEST_F(TrackPreviewWidget, PaintsGridReferencesAndTrace) {
  for (const bool dark : {false, true}) {
    Plot.setPalette(Shade(dark));
    Plot.Draw(Texts());
    const QImage image = Grabbed(Plot, "track-preview", dark);
    ASSERT_EQ(image.size(), QSize(241, 201));
    const QColor base = Plot.palette().color(QPalette::Base);
    const QColor text = Plot.palette().color(QPalette::Text);
    const QColor grid = image.pixelColor(100, 5);
    EXPECT_GT(std::abs(qGray(grid.rgb()) - qGray(base.rgb())), 40);
    EXPECT_GT(std::abs(qGray(grid.rgb()) - qGray(text.rgb())), 60);
    EXPECT_EQ(image.pixelColor(105, 0), grid);
    EXPECT_EQ(image.pixelColor(105, 200), grid);
    EXPECT_EQ(image.pixelColor(240, 5), grid);
    EXPECT_EQ(image.pixelColor(105, 5), base);
    EXPECT_EQ(image.pixelColor(5, 140), QColor(255, 0, 0));
    EXPECT_EQ(image.pixelColor(5, 150), QColor(0, 255, 0));
    EXPECT_EQ(image.pixelColor(5, 160), QColor(255, 0, 0));
    // The points of 1 and 2 seconds.
    EXPECT_EQ(image.pixelColor(2, 66), text);
    EXPECT_EQ(image.pixelColor(4, 73), text);
  }
}

TEST_F(TrackPreviewWidget, HasNoBlueAndLittleGreenAtNight) {
  Plot.setPalette(NightPalette());
  Plot.Draw(Texts());
  const QImage image = Grabbed(Plot, "track-preview-night", true);
  EXPECT_GT(image.pixelColor(5, 150).red(), image.pixelColor(5, 140).red());
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QColor colour = image.pixelColor(x, y);
      ASSERT_LE(colour.green() * 2, colour.red()) << x << ", " << y;
      ASSERT_LE(colour.blue() * 2, colour.red()) << x << ", " << y;
    }
  }
}

TEST_F(TrackPreviewWidget, ExposureShowsTheSamePictureAndTakesNoRandomNumber) {
  FixedRandom random({0.1, 0.9, 0.3});
  TrackPreviewQt plot(random, nullptr);
  plot.resize(241, 201);
  plot.show();
  TrackPreviewTexts texts = Texts();
  texts.Noise = "3";
  plot.Draw(texts);
  const QImage before = plot.grab().toImage();
  const std::size_t draws = random.Draws;
  EXPECT_EQ(draws, 121U);
  plot.hide();
  plot.show();
  plot.repaint();
  plot.setPalette(Shade(true));
  plot.setPalette(QPalette());
  EXPECT_EQ(plot.grab().toImage(), before);
  EXPECT_EQ(random.Draws, draws);
}

TEST_F(TrackPreviewWidget, RedrawHasAnotherNoise) {
  TrackPreviewTexts texts = Texts();
  texts.Noise = "3";
  Plot.Draw(texts);
  const QImage first = Plot.grab().toImage();
  Plot.Draw(texts);
  EXPECT_NE(Plot.grab().toImage(), first);
}

TEST_F(TrackPreviewWidget, MouseTellsTimeAndBearing) {
  Plot.Draw(Texts());
  QTest::mouseMove(&Plot, QPoint(25, 150));
  EXPECT_EQ(Plot.toolTip(), "time=12.5, bearing=0");
  QTest::mouseMove(&Plot, QPoint(240, 1));
  EXPECT_EQ(Plot.toolTip(), "time=120, bearing=14.9");
}

TEST_F(TrackPreviewWidget, WhatCannotBeDrawnIsOneLineAndNoToolTip) {
  for (const bool dark : {false, true}) {
    Plot.setPalette(Shade(dark));
    TrackPreviewTexts texts = Texts();
    texts.Time = "1e9";
    Plot.Draw(texts);
    const QImage image = Grabbed(Plot, "track-preview-trouble", dark);
    const QColor base = Plot.palette().color(QPalette::Base);
    EXPECT_EQ(Plot.accessibleDescription(), "Time must be at most 1000000 seconds");
    EXPECT_EQ(image.pixelColor(0, 100), base);
    EXPECT_EQ(image.pixelColor(120, 20), base);
    int letters = 0;
    for (int x = 0; x < image.width(); ++x) {
      for (int y = 85; y < 116; ++y) {
        letters += image.pixelColor(x, y) == base ? 0 : 1;
      }
    }
    EXPECT_GT(letters, 200);
    QTest::mouseMove(&Plot, dark ? QPoint(25, 150) : QPoint(30, 120));
    EXPECT_EQ(Plot.toolTip(), "");
  }
}

TEST_F(TrackPreviewWidget, LongRunIsDrawnToo) {
  TrackPreviewTexts texts = Texts();
  texts.Time = "100000";
  texts.Min = "-5000";
  texts.Max = "5000";
  Plot.Draw(texts);
  EXPECT_EQ(Plot.Picture().Trouble, "");
  const QImage image = Grabbed(Plot, "track-preview-long", false);
  EXPECT_EQ(image.pixelColor(50, 50), image.pixelColor(60, 180));
  EXPECT_NE(image.pixelColor(50, 50), Plot.palette().color(QPalette::Base));
}

TEST(LoopDiagramWidget, ShowsTheLoopAtAnySizeAndShade) {
  LoopDiagramQt diagram(nullptr);
  EXPECT_EQ(diagram.objectName(), "pctDiagram");
  const LoopDiagram numbers = LoopDiagramMade();
  for (const bool dark : {false, true}) {
    diagram.setPalette(Shade(dark));
    for (const QSize& size : {diagram.sizeHint(), QSize(900, 600), QSize(400, 400)}) {
      diagram.resize(size);
      const QImage image =
          Grabbed(diagram, qPrintable(QStringLiteral("loop-diagram-%1").arg(size.width())), dark);
      const double scale = diagram.Scale();
      EXPECT_LE(numbers.Width * scale, size.width() + 0.01);
      EXPECT_LE(numbers.Height * scale, size.height() + 0.01);
      // The tip of every arrow is drawn in the colour of the text.
      const QColor text = diagram.palette().color(QPalette::Text);
      for (const DiagramArrow& arrow : numbers.lnArrow) {
        constexpr double kInside = 4.0 / 3.0;
        const bool right = arrow.Tag == "Right";
        const double x = right ? arrow.Way.To.X - kInside : arrow.Way.From.X;
        const double y = right ? arrow.Way.To.Y : arrow.Way.From.Y + kInside;
        const QPoint tip(static_cast<int>((size.width() - numbers.Width * scale) / 2.0 + x * scale),
                         static_cast<int>((size.height() - numbers.Height * scale) / 2.0 + y * scale));
        EXPECT_LT(std::abs(qGray(image.pixel(tip)) - qGray(text.rgb())), 110) << x << ", " << y;
      }
    }
  }
}

TEST(LoopDiagramWidget, GrowsWithTheFont) {
  LoopDiagramQt diagram(nullptr);
  const QSize before = diagram.sizeHint();
  QFont font = diagram.font();
  font.setPixelSize(QFontInfo(font).pixelSize() * 2);
  diagram.setFont(font);
  EXPECT_NEAR(diagram.sizeHint().width(), before.width() * 2, 2);
  EXPECT_LT(diagram.minimumSizeHint().width(), diagram.sizeHint().width());
}

}  // namespace
}  // namespace veerwatch
