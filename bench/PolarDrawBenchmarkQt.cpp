// veerwatch-bench-ui: how long the polar window takes to draw, without a display.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>

#include "bench/NoDialogs.h"
#include "platform/Dialogs.h"
#include "polar/PolarObserver.h"
#include "polar/frmPolar.h"

namespace veerwatch {

namespace {

constexpr int kSize = 800;  // [px]

/// A window with a plot of kSize by kSize that has the default polar, its labels and values.
class Plot {
 public:
  Plot() {
    m_profile.ProfileSet("Polar Data", "Plot Label WindSpeed", true);
    m_profile.ProfileSet("Polar Data", "Speed Range", 18.0F);
    m_window = std::make_unique<frmPolar>(
        PolarParts{m_profile, m_dialogs, m_observer, {VEERWATCH_POLAR_FOLDER, {}}});
    m_canvas = m_window->centralWidget();
    m_window->show();
    m_window->resize(m_window->size() + QSize(kSize, kSize) - m_canvas->size());
    QApplication::processEvents();
    Update(7.0F);
  }

  bool Right() const {
    return m_canvas->size() == QSize(kSize, kSize) && m_window->Model().Table().PolarRows(0) > 0;
  }

  void Update(float boatSpeed) {
    m_window->PolarUpdate(TrackMode::Track, true, 100.0F, boatSpeed, 40.0F, 14.0F, 62.0F, 11.0F, false, 0.0F,
                          0.0F);
  }
  /// Changes what the still part of the plot shows.
  void Renew() { m_window->findChild<QAction*>(QStringLiteral("mnuWindTrue"))->trigger(); }

  void Paint() { m_canvas->render(&m_image, QPoint(), QRegion(), QWidget::DrawChildren); }

 private:
  Profile m_profile;
  NoDialogs m_dialogs;
  PolarObserver m_observer;
  std::unique_ptr<frmPolar> m_window;
  QWidget* m_canvas;
  QImage m_image{kSize, kSize, QImage::Format_ARGB32_Premultiplied};
};

/// Geometry, grid, curves, labels and legend anew.
void PolarDrawWhole(benchmark::State& state) {
  Plot plot;
  if (!plot.Right()) {
    state.SkipWithError("no plot of the right size");
    return;
  }
  for (auto _ : state) {
    plot.Renew();
    plot.Paint();
  }
}
BENCHMARK(PolarDrawWhole)->Unit(benchmark::kMillisecond);

/// An update that moves the boat's point.
void PolarDrawBoat(benchmark::State& state) {
  Plot plot;
  if (!plot.Right()) {
    state.SkipWithError("no plot of the right size");
    return;
  }
  float speed = 6.0F;
  for (auto _ : state) {
    speed = speed > 9.0F ? 6.0F : speed + 0.1F;
    plot.Update(speed);
    plot.Paint();
  }
}
BENCHMARK(PolarDrawBoat)->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace veerwatch
