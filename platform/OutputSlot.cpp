#include "platform/OutputSlot.h"

namespace veerwatch {

void OutputSlot::Put(std::string_view sentence) {
  if (sentence.empty()) {
    return;
  }
  m_newest.assign(sentence);
  Pump();
}

void OutputSlot::Pump() {
  if (!m_newest.empty() && !m_line.Busy()) {
    m_leaving.swap(m_newest);
    m_newest.clear();
    ++m_written;
    m_line.Write(m_leaving);
  }
}

}  // namespace veerwatch
