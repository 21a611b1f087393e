// What stands in the history's chart, judged by its texts and its pixels.

#include <QImage>
#include <algorithm>
#include <cmath>

#include "history/HistoryTraces.h"
#include "tests/support/WaitQt.h"
#include "tests/ui/history/HistoryTester.h"

namespace veerwatch {
namespace {

using HistoryDrawing = HistoryTester;

TEST_F(HistoryDrawing, ItsClockFollowsAChangeOfTheTimeZone) {
  Load();
  Window->resize(800, 500);
  RecordHeading(180);  // up to 09:29:50
  Show();
  const auto lastTime = [this] {
    std::string last;
    for (const ChartTimeTick& tick : Chart().Picture().TimeTicks) {
      last = tick.Label.Text.empty() ? last : tick.Label.Text;
    }
    return last;
  };
  Chart().grab();
  ASSERT_EQ(lastTime(), "09:25");
  const int drawn = Chart().FullRedraws();
  Time.Offset = 5 * 3600 + 1800;
  Chart().Refresh();
  Chart().grab();
  EXPECT_EQ(lastTime(), "14:55");
  EXPECT_GT(Chart().FullRedraws(), drawn);
  EXPECT_EQ(Chart().Data().LastSlot(), 179);
}

/// Along a value that stays, each column of pixels is like the next, also where two slots meet.
TEST_F(HistoryDrawing, ASteadyLineIsEvenlyThick) {
  Load();
  Window->resize(900, 600);
  RecordHeading(180);
  Show();
  const QImage image = Chart().grab().toImage();
  const double ratio = image.devicePixelRatio();
  const StripChartPicture& picture = Chart().Picture();
  const ChartPanel& panel = picture.Panels[1];
  const auto heading = std::find_if(panel.Traces.begin(), panel.Traces.end(),
                                    [](const ChartTrace& trace) { return trace.Trace == 1; });
  ASSERT_NE(heading, panel.Traces.end());
  ASSERT_FALSE(heading->Past.Points.empty());
  const double y = heading->Past.Points.front().Y;
  std::vector<double> ticks;
  for (const ChartTimeTick& tick : picture.TimeTicks) {
    ticks.push_back(tick.X);
  }
  const QRgb colour = image.pixel(qRound(200 * ratio), qRound(y * ratio));
  int columns = 0;
  for (double x = panel.Plot.X + 2.0 * picture.SlotWidth; x < panel.Plot.Right() - 3.0 * picture.SlotWidth;
       x += 1.0) {
    if (std::any_of(ticks.begin(), ticks.end(), [x](double tick) { return std::fabs(tick - x) < 3.0; })) {
      continue;
    }
    ++columns;
    for (int aside = -3; aside <= 3; ++aside) {
      const int row = qRound((y + aside) * ratio);
      ASSERT_EQ(image.pixelColor(qRound(x * ratio), row), image.pixelColor(qRound(200 * ratio), row))
          << x << ", " << aside;
    }
  }
  EXPECT_GT(columns, 400);
  EXPECT_NE(colour, image.pixel(qRound(200 * ratio), qRound((y - 8.0) * ratio)));
}

TEST_F(HistoryDrawing, ALonelyValueIsADotOfFivePixels) {
  Load();
  Window->resize(900, 600);
  Window->SetValue("Boat Speed", 5.0F, "Kts");
  Time.Pass(100000);
  Chart().Refresh();
  Show();
  const QImage image = Chart().grab().toImage();
  const double ratio = image.devicePixelRatio();
  const ChartPanel& panel = Chart().Picture().Panels[2];
  const auto boat = std::find_if(panel.Traces.begin(), panel.Traces.end(),
                                 [](const ChartTrace& trace) { return trace.Trace == 0; });
  ASSERT_NE(boat, panel.Traces.end());
  ASSERT_EQ(boat->Past.Dots.size(), 1U);
  const Point middle = boat->Past.Dots.front().Middle;
  const auto like = [&](double x, double y) {
    return image.pixelColor(static_cast<int>(x * ratio), static_cast<int>(y * ratio)) ==
           image.pixelColor(static_cast<int>(middle.X * ratio), static_cast<int>(middle.Y * ratio));
  };
  EXPECT_TRUE(like(middle.X - 1.4, middle.Y - 0.5));
  EXPECT_TRUE(like(middle.X + 1.0, middle.Y + 0.8));
  EXPECT_FALSE(like(middle.X - 4.5, middle.Y));
  EXPECT_FALSE(like(middle.X + 4.5, middle.Y));
}

/// No value reaches the colour bar in front of it, at any size.
TEST_F(HistoryDrawing, TheValuesOfTheLegendStayOffTheirColourBars) {
  Load();
  Show();
  for (const HistoryTrace& trace : kHistoryTraces) {
    Window->SetValue(trace.Name, -129.5F, "deg");
  }
  for (const QSize size : {QSize(267, 267), QSize(480, 300), QSize(640, 480), QSize(900, 600),
                           QSize(1200, 700), QSize(1600, 900)}) {
    Window->resize(size);
    Chart().Refresh();
    const QImage image = Chart().Image(1.0);
    for (const ChartLegendEntry& entry : Chart().Picture().Legend) {
      const QColor back = image.pixelColor(1, 1);
      const int x = qCeil(entry.Swatch.Right()) + 1;
      for (int y = qCeil(entry.Value.Place.Y); y < qFloor(entry.Value.Place.Bottom()); ++y) {
        ASSERT_EQ(image.pixelColor(x, y), back)
            << size.width() << " x " << size.height() << ", " << entry.Name.Text << " at " << x << ", " << y;
      }
    }
  }
}

TEST_F(HistoryDrawing, TheMouseShowsTheValueUnderIt) {
  Load();
  Window->resize(800, 500);
  Record(1800, 10);
  Show();
  const QImage before = Chart().grab().toImage();
  const Box plot = Chart().Picture().Panels[1].Plot;
  QTest::mouseMove(&Chart(), QPoint(qRound(plot.X + plot.Width / 2.0), qRound(plot.Y + 20.0)));
  EXPECT_TRUE(WaitFor([&] { return Chart().grab().toImage() != before; }));
  QTest::mouseMove(&Chart(), QPoint(798, 3));
  EXPECT_TRUE(WaitFor([&] { return Chart().grab().toImage() == before; }));
}

}  // namespace
}  // namespace veerwatch
