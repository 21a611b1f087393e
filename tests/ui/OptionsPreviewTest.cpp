// The preview of the Tracking tab: when it is drawn, its numbers and its size.

#include <QImage>

#include "tests/ui/OptionsTester.h"

namespace veerwatch {
namespace {

class OptionsPreview : public OptionsTester {};

TEST_F(OptionsPreview, TheResponseStandsInFiguresBeneathItsPlot) {
  Start(frmOptions::Tracking);
  Type("txtTrackBandwidth", "40");
  Type("txtTrackDamping", "1");
  Type("txtTrackNoise", "0");
  Type("txtTrackTime", "2");
  Click("cmdApply");
  EXPECT_EQ(Text("lblTrackFigures"), "This run: overshoot 0.00 deg, not settled, steady state 8.10 deg rms");
  const auto& figures = Find<QLabel>("lblTrackFigures");
  const auto& plot = Find<QWidget>("pctTrack");
  EXPECT_GT(figures.mapTo(Window.get(), QPoint()).y(),
            plot.mapTo(Window.get(), QPoint(0, plot.height())).y());
  Type("txtTrackTime", "x");
  Click("cmdApply");
  EXPECT_EQ(Text("lblTrackFigures"), "");
}

TEST_F(OptionsPreview, NumbersStandBesideAndBeneathThePlot) {
  Start(frmOptions::Tracking);
  auto& plot = Find<QWidget>("pctTrack");
  auto& around = *plot.parentWidget();
  const auto inked = [&around](const QRect& place) {
    const QImage image = around.grab(place).toImage();
    const QRgb ground = image.pixel(0, 0);
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        if (image.pixel(x, y) != ground) {
          return true;
        }
      }
    }
    return false;
  };
  const QRect left(0, 0, plot.x(), around.height());
  const QRect beneath(0, plot.y() + plot.height(), around.width(),
                      around.height() - plot.y() - plot.height());
  EXPECT_TRUE(inked(left));
  EXPECT_TRUE(inked(beneath));
  Type("txtTrackMin", "x");
  Click("cmdApply");
  EXPECT_FALSE(inked(left));
  EXPECT_FALSE(inked(beneath));
}

TEST_F(OptionsPreview, ThePreviewIsDrawnByTheTabAndByApply) {
  Start(frmOptions::Input);
  auto& plot = Find<TrackPreviewQt>("pctTrack");
  Tab(frmOptions::Tracking);
  EXPECT_FALSE(plot.Picture().Trace.empty());
  EXPECT_EQ(plot.Picture().Scale.TimeEnd, 120.0);
  Type("txtTrackTime", "60");
  EXPECT_EQ(plot.Picture().Scale.TimeEnd, 120.0);
  Click("cmdApply");
  EXPECT_EQ(plot.Picture().Scale.TimeEnd, 60.0);
  Type("txtTrackMax", "20");
  Tab(frmOptions::Input);
  Tab(frmOptions::Tracking);
  EXPECT_EQ(plot.Picture().Scale.BearingMax, 20.0);
}

TEST_F(OptionsPreview, ThePreviewFollowsItsSize) {
  Start(frmOptions::Tracking);
  auto& plot = Find<TrackPreviewQt>("pctTrack");
  const int before = plot.Picture().Width;
  Window->resize(Window->size() + QSize(100, 50));
  ASSERT_TRUE(QTest::qWaitFor([&] { return plot.Picture().Width != before; }));
  EXPECT_NEAR(plot.Picture().Width, before + 100, 1);
}

}  // namespace
}  // namespace veerwatch
