// A timer that the test ticks by hand.
#pragma once

#include <functional>
#include <utility>

#include "platform/Timer.h"

namespace veerwatch {

class HandTimer final : public Timer {
 public:
  HandTimer() = default;
  /// `onTick` is where the ticks go.
  explicit HandTimer(std::function<void()> onTick) : OnTick(std::move(onTick)) {}

  std::function<void()> OnTick;
  int Milliseconds = 0;  ///< the interval that was set
  int Starts = 0;        ///< how often it was enabled

  /// `ticks` periods pass; a stopped timer does not tick.
  void Tick(int ticks = 1) {
    for (int i = 0; i < ticks && m_enabled; ++i) {
      if (OnTick) {
        OnTick();
      }
    }
  }

  void Interval(int milliseconds) override { Milliseconds = milliseconds; }
  void Enabled(bool enabled) override {
    Starts += enabled ? 1 : 0;
    m_enabled = enabled;
  }
  bool Enabled() const override { return m_enabled; }

 private:
  bool m_enabled = false;
};

}  // namespace veerwatch
