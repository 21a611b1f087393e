// A history window on fakes: clocks set by hand, dialogs answered beforehand, a profile in memory.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>
#include <QtTest/QTest>
#include <memory>
#include <stdexcept>
#include <string>

#include "bench/SampleDay.h"
#include "history/HistoryTraces.h"
#include "history/frmHistory.h"
#include "tests/support/HandClock.h"
#include "tests/support/QueuedDialogs.h"

namespace veerwatch {

class HistoryTester : public testing::Test {
 public:
  HandClock Time;
  QueuedDialogs Dialogs;
  Profile Store;
  std::unique_ptr<frmHistory> Window;

  void Load() { Window = std::make_unique<frmHistory>(frmHistory::Parts{Time, Dialogs, Store}); }

  void Show() {
    Window->show();
    Window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Window.get()));
  }

  StripChart& Chart() { return Window->Chart(); }

  /// Records the made-up day, or the last part of it [s], up to now.
  void Record(int seconds, int step) {
    const Moment end = Time.Time;
    SampleDay(end, seconds, step, [this](const Moment& now, std::string_view name, const std::string& text) {
      Time.Time = now;
      Chart().SampleAdd(name, text);
    });
    Time.Time = end;
    Chart().Refresh();
  }

  /// One value of the heading every ten seconds, `count` times; the time stays at the last one.
  void RecordHeading(int count, float value = 90.0F) {
    for (int i = 0; i < count; ++i) {
      if (i > 0) {
        Time.Pass(10000);
      }
      Window->SetValue("Heading", value, "M");
    }
    Chart().Refresh();
  }

  /// A control by name, in the window or in the pop-up.
  template <class Control>
  Control& Find(const char* name) const {
    auto* control = Window->findChild<Control*>(QString::fromLatin1(name));
    if (control == nullptr) {
      throw std::runtime_error(std::string("no control ") + name);
    }
    return *control;
  }

  const StripChartData::Trace& Trace(const std::string& name) {
    for (const StripChartData::Trace& trace : Chart().Data().Traces()) {
      if (trace.Name == name) {
        return trace;
      }
    }
    throw std::runtime_error("no trace " + name);
  }

  /// The legend's entry of a trace that is shown.
  const ChartLegendEntry& Entry(const std::string& trace) {
    for (const ChartLegendEntry& entry : Chart().Picture().Legend) {
      if (Chart().Data().Traces()[static_cast<std::size_t>(entry.Trace)].Name == trace) {
        return entry;
      }
    }
    throw std::runtime_error("no entry " + trace);
  }

  std::string PathIn(const char* name) const { return m_folder.filePath(QLatin1String(name)).toStdString(); }

 private:
  QTemporaryDir m_folder;
};

}  // namespace veerwatch
