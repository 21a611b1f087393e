// The real timer, driven by the event loop.
#pragma once

#include <QString>
#include <QTimer>
#include <functional>
#include <utility>

#include "platform/Timer.h"

namespace veerwatch {

class TimerQt final : public Timer {
 public:
  /// A precise one ticks within a millisecond, and never early; others may be a twentieth off.
  explicit TimerQt(const QString& name, Qt::TimerType precision = Qt::CoarseTimer);

  /// Where the ticks go from now on.
  void Ticks(std::function<void()> handler) { m_handler = std::move(handler); }

  void Interval(int milliseconds) override { m_timer.setInterval(milliseconds); }
  void Enabled(bool enabled) override;
  bool Enabled() const override { return m_timer.isActive(); }

 private:
  QTimer m_timer;
  std::function<void()> m_handler;
};

}  // namespace veerwatch
