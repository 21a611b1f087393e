#include "platform/OutputSlot.h"

#include <algorithm>

namespace veerwatch {

void OutputSlot::Put(std::string_view bundle, std::int64_t now) {
  if (bundle.empty()) {
    return;
  }
  m_newest.assign(bundle);
  m_putTime = now;
  Pump(now);
}

void OutputSlot::Pump(std::int64_t now) {
  if (now - m_putTime > kFreshTime) {
    m_newest.clear();
  }
  if (!m_rest.empty()) {
    Took(m_line.Write(m_rest));
  }
  if (!m_newest.empty() && !OnItsWay()) {
    const std::size_t taken = m_line.Write(m_newest);
    if (taken > 0) {
      m_leaving.swap(m_newest);
      m_newest.clear();
      m_rest = m_leaving;
      Took(taken);
    }
  }
}

void OutputSlot::Clear() {
  m_newest.clear();
  m_rest = {};
}

void OutputSlot::Took(std::size_t characters) {
  m_rest.remove_prefix(std::min(characters, m_rest.size()));
  m_written += m_rest.empty() ? 1 : 0;
}

}  // namespace veerwatch
