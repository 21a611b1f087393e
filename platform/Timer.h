// A periodic timer as the core sees it. TimerQt is the real one; tests tick by hand.
#pragma once

namespace veerwatch {

class Timer {
 public:
  virtual ~Timer() = default;
  /// Time between ticks [ms], above 0.
  virtual void Interval(int milliseconds) = 0;
  /// Starts (again) or stops the ticks; whoever made the timer has said where they go.
  virtual void Enabled(bool enabled) = 0;
  virtual bool Enabled() const = 0;
};

}  // namespace veerwatch
