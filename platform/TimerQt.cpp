#include "platform/TimerQt.h"

namespace veerwatch {

TimerQt::TimerQt(const QString& name, Qt::TimerType precision) {
  m_timer.setTimerType(precision);
  m_timer.setObjectName(name);
  QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] {
    if (m_handler) {
      m_handler();
    }
  });
}

void TimerQt::Enabled(bool enabled) {
  if (enabled) {
    m_timer.start();
  } else {
    m_timer.stop();
  }
}

}  // namespace veerwatch
