// The line from a boat's instruments to the program: sentences can be late or get lost on it.
#pragma once

#include <algorithm>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>

#include "platform/Random.h"

namespace veerwatch {

struct WireSettings {
  double Delay = 0.0;   ///< every sentence comes that much later [s]
  double Jitter = 0.0;  ///< and up to this much more; sentences never overtake each other [s]
  double Drop = 0.0;    ///< part of the sentences that get lost [0, 1]
  bool Cut = false;     ///< nothing gets through
  bool Held = false;    ///< nothing gets through for now; all of it comes at once afterwards
};

class Wire {
 public:
  explicit Wire(std::uint64_t seed) : m_random(seed) {}

  WireSettings& Set() { return m_settings; }

  /// Whole lines go in at the moment `now` [s].
  void Send(std::string_view lines, double now) {
    while (!lines.empty()) {
      const std::size_t end = lines.find('\n') + 1;
      const bool lost = m_random.Next() < m_settings.Drop || m_settings.Cut;
      const double late = m_settings.Delay + m_settings.Jitter * m_random.Next();
      if (!lost) {
        m_last = std::max(m_last, now + late);
        m_underWay.push_back({m_last, std::string(lines.substr(0, end))});
      }
      lines.remove_prefix(end);
    }
  }

  /// What comes out until the moment `now`.
  std::string Arrived(double now) {
    std::string arrived;
    while (!m_settings.Held && !m_underWay.empty() && m_underWay.front().Due <= now) {
      arrived.append(m_underWay.front().Line);
      m_underWay.pop_front();
    }
    return arrived;
  }

 private:
  struct Late {
    double Due = 0.0;
    std::string Line;
  };

  WireSettings m_settings;
  SeededRandom m_random;
  std::deque<Late> m_underWay;
  double m_last = 0.0;
};

}  // namespace veerwatch
