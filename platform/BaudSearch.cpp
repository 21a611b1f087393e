#include "platform/BaudSearch.h"

#include <iterator>

#include "platform/Endpoint.h"

namespace veerwatch {

int BaudSearch::Rate() const { return kBaudRates[m_rate]; }

void BaudSearch::Forget() {
  m_line.clear();
  m_lastGood.reset();
}

void BaudSearch::Restart(Time now) {
  m_heard = false;
  Begin(now);
}

void BaudSearch::Begin(Time now) {
  m_found = false;
  m_begun = now;
  Forget();
}

void BaudSearch::Take(std::string& text, Time now) {
  m_heard = m_heard || !text.empty();
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\r' && text[i] != '\n') {
      if (m_line.size() < kLongestLine) {
        m_line.push_back(text[i]);
      }
      continue;
    }
    const bool good = m_good(m_line);
    m_line.clear();
    if (!good) {
      continue;
    }
    if (m_lastGood && now - *m_lastGood <= kTogether) {
      m_found = true;
      Forget();
      text.erase(0, i + 1);
      return;
    }
    m_lastGood = now;
  }
  text.clear();
}

bool BaudSearch::Tick(Time now) {
  if (m_found || now - m_begun < kEach) {
    return false;
  }
  m_rate = (m_rate + 1) % std::size(kBaudRates);
  Begin(now);
  return true;
}

}  // namespace veerwatch
