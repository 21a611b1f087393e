// An options dialog on fakes, driven by object names and real events.
#pragma once

#include <gmock/gmock.h>

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QtTest/QTest>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "options/frmOptions.h"
#include "tests/support/FakeMainWindow.h"
#include "tests/support/FixedRandom.h"
#include "tests/support/HandClock.h"
#include "tests/support/ListedPorts.h"
#include "tests/support/QueuedDialogs.h"
#include "tests/support/SetPorts.h"

namespace veerwatch {

class OptionsTester : public testing::Test {
 public:
  FakeMainWindow Main;
  SetPorts Ports;
  QueuedDialogs Dialogs;
  FixedRandom Random;
  Profile Store;
  ListedPorts Finder;
  HandClock Time;
  WindRecorder Recorded{Main.Tells, Main.Instruments};
  std::unique_ptr<frmOptions> Window;

  void Make() {
    Window = std::make_unique<frmOptions>(
        frmOptions::Parts{Main, Ports, Dialogs, Random, Recorded, Store, &Finder, Time});
  }

  /// Makes the dialog and shows it on a tab.
  void Start(int tab) {
    Make();
    Show(tab);
  }
  void Show(int tab) const {
    Window->TabSelect(tab);
    Window->ShowCenter();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Window.get()));
  }

  // The helm tells.

  void InputIs(InputState state) {
    Main.Tells.Tell([state](HelmObserver& told) { told.OnInputState(state); });
  }
  void OutputIs(OutputState state) {
    Main.Tells.Tell([state](HelmObserver& told) { told.OnOutputState(state); });
  }
  /// A line was received.
  void Receive(std::string_view line, bool used, LineFault fault = LineFault::None) {
    Main.Tells.Tell([=](HelmObserver& told) { told.OnNmeaLine(line, fault, used); });
  }
  /// A sentence to the autopilot was built.
  void Send(std::string_view sentence) {
    Main.Tells.Tell([=](HelmObserver& told) { told.OnPilotData(sentence); });
  }

  template <class Control>
  Control& Find(const std::string& name) const {
    auto* control = Window->findChild<Control*>(QString::fromStdString(name));
    if (control == nullptr) {
      throw std::runtime_error("no control " + name);
    }
    return *control;
  }

  /// Clicks on the caption of a tab.
  void Tab(int index) const {
    auto* bar = Find<QTabWidget>("SSTab").tabBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(index).center());
    ASSERT_EQ(Find<QTabWidget>("SSTab").currentIndex(), index);
  }
  void Click(const std::string& name) const {
    auto& control = Find<QWidget>(name);
    // A check box and an option answer on their left side.
    QTest::mouseClick(&control, Qt::LeftButton, {}, QPoint(8, control.height() / 2));
  }
  /// Clicks into a box and types over all that stands in it.
  void Type(const std::string& box, const std::string& text) const {
    auto& line = Find<QLineEdit>(box);
    QTest::mouseClick(&line, Qt::LeftButton);
    QTest::keyClick(&line, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&line, Qt::Key_Delete);
    QTest::keyClicks(&line, QString::fromStdString(text));
  }
  std::string Entry(const std::string& box) const { return Find<QLineEdit>(box).text().toStdString(); }
  std::string Text(const std::string& label) const { return Find<QLabel>(label).text().toStdString(); }
  bool Bold() const { return Find<QPushButton>("cmdApply").font().bold(); }

  /// The lines of a live list, from the oldest on.
  std::vector<std::string> Lines(const std::string& list) const {
    const QAbstractItemModel& model = *Find<LiveListQt>(list).model();
    std::vector<std::string> lines;
    for (int row = 0; row < model.rowCount(); ++row) {
      lines.push_back(model.index(row, 0).data().toString().toStdString());
    }
    return lines;
  }
  bool Highlighted(const std::string& list, int row) const {
    return Find<LiveListQt>(list).model()->index(row, 0).data(LiveListModelQt::kHighlighted).toBool();
  }
};

}  // namespace veerwatch
