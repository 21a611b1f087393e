// A polar window on fakes, driven by object names and real events.
#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>
#include <QtTest/QTest>
#include <array>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "polar/frmPolar.h"
#include "tests/support/PictureQt.h"
#include "tests/support/PolarText.h"
#include "tests/support/QueuedDialogs.h"
#include "tests/support/TemporaryFolder.h"

namespace veerwatch {

/// Pixels within `radius` of `centre` that are nearly of `colour`.
inline int Count(const QImage& image, const Point& centre, int radius, const QColor& colour) {
  int count = 0;
  for (int y = -radius; y <= radius; ++y) {
    for (int x = -radius; x <= radius; ++x) {
      const QPoint at(static_cast<int>(centre.X) + x, static_cast<int>(centre.Y) + y);
      if (!image.rect().contains(at)) {
        continue;
      }
      const QColor pixel = image.pixelColor(at);
      constexpr int kNear = 70;
      count += std::abs(pixel.red() - colour.red()) < kNear &&
                       std::abs(pixel.green() - colour.green()) < kNear &&
                       std::abs(pixel.blue() - colour.blue()) < kNear
                   ? 1
                   : 0;
    }
  }
  return count;
}

class PolarWindowTester : public testing::Test, public PolarObserver {
 public:
  TemporaryFolder Program;
  Profile Store;
  QueuedDialogs Dialogs;
  std::unique_ptr<frmPolar> Window;
  std::vector<std::pair<std::string, std::string>> Values;  ///< told for the history
  std::vector<bool> Shown;                                  ///< told about the window
  /// New heading, heading and true wind angle of each turn that was asked for.
  std::vector<std::array<float, 3>> Turns;
  std::vector<TurnButton> Buttons;  ///< and the button of each
  int Rest = 0;                     ///< from one set of values that is shown to the next [ms]

  PolarWindowTester() { WriteFile(Program / kDefaultPolar, kSmallPolar); }

  void OnPolarValue(std::string_view channel, std::string_view value) override {
    Values.emplace_back(channel, value);
  }
  void OnPolarVisible(bool visible) override { Shown.push_back(visible); }
  void OnManoeuvre(TurnButton button, float newHeading, float heading, float windAngleTrue) override {
    Buttons.push_back(button);
    Turns.push_back({newHeading, heading, windAngleTrue});
  }

  void Make() {
    Window = std::make_unique<frmPolar>(PolarParts{Store, Dialogs, *this, {Program.Path(), {}}, Rest});
  }
  void Start() {
    Make();
    Window->show();
    Window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Window.get()));
  }

  template <class Control>
  Control& Find(const char* name) const {
    auto* control = Window->findChild<Control*>(QString::fromLatin1(name));
    if (control == nullptr) {
      throw std::runtime_error(std::string("no control ") + name);
    }
    return *control;
  }
  QWidget& Plot() const { return Find<QWidget>("pctPlot"); }
  bool Ticked(const char* item) const { return Find<QAction>(item).isChecked(); }
  const PolarSettings& Set() const { return Window->Model().Settings(); }

  /// Opens the item's menu and clicks on the item.
  void Choose(const char* item) const {
    auto& action = Find<QAction>(item);
    auto* menu = qobject_cast<QMenu*>(action.parent());
    ASSERT_NE(menu, nullptr) << item;
    menu->popup(Window->mapToGlobal(QPoint(10, 10)));
    ASSERT_TRUE(QTest::qWaitForWindowExposed(menu)) << item;
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(&action).center());
    ASSERT_FALSE(menu->isVisible()) << item;
  }

  /// Makes the plot a square of `size` [px].
  void Square(int size) const {
    Window->resize(Window->size() + QSize(size, size) - Plot().size());
    QApplication::processEvents();
    ASSERT_EQ(Plot().size(), QSize(size, size));
  }

  QImage Grab(const std::string& name) const {
    QApplication::processEvents();
    const QImage image = Window->grab().toImage();
    KeepPicture(image, QStringLiteral("polar-") + QString::fromStdString(name));
    return image;
  }
  /// The plot alone.
  QImage GrabPlot() const {
    QApplication::processEvents();
    return Plot().grab().toImage();
  }

  /// Turns the event loop until all is shown that may be by now.
  static void Settle() {
    QTimer later;
    later.setSingleShot(true);
    later.start(0);
    while (later.isActive()) {
      QApplication::processEvents();
    }
  }

  /// One set of values.
  void Sail(float angle, float wind, float boat, TrackMode mode = TrackMode::Track) const {
    Window->PolarUpdate(mode, true, 100.0F, boat, angle * 0.6F, wind + 4.0F, angle, wind, false, 0.0F, 0.0F);
    Settle();
  }
};

}  // namespace veerwatch
