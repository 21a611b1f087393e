#include "polar/PacedQt.h"

#include <utility>

namespace veerwatch {

PacedQt::PacedQt(int rest, std::function<void()> work) : m_rest(rest), m_work(std::move(work)) {
  m_timer.setSingleShot(true);
  QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { Now(); });
}

void PacedQt::Wish() {
  m_wished = true;
  if (!m_timer.isActive()) {
    m_timer.start(0);
  }
}

void PacedQt::Now() {
  if (std::exchange(m_wished, false)) {
    m_work();
    m_timer.start(m_rest);
  }
}

}  // namespace veerwatch
