// The line from a boat's instruments to the program: sentences can be late or get lost on it.
#pragma once

#include <algorithm>
#include <cstdint>
#include <deque>
#include <map>
#include <string>
#include <string_view>
#include <utility>

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

  /// What becomes of a line, without its end, on the way; `told` is the last line of the same kind that came
  /// unchanged. "" for nothing; several lines have their ends between them. Null for none of this.
  std::string (*Change)(const std::string& line, const std::string& told) = nullptr;

  /// Whole lines go in at the moment `now` [s].
  void Send(std::string_view lines, double now) {
    while (!lines.empty()) {
      const std::size_t end = lines.find('\n') + 1;
      const bool lost = m_random.Next() < m_settings.Drop || m_settings.Cut;
      const double late = m_settings.Delay + m_settings.Jitter * m_random.Next();
      const std::string line = lost ? std::string() : Changed(std::string(lines.substr(0, end)));
      if (!line.empty()) {
        m_last = std::max(m_last, now + late);
        m_underWay.push_back({m_last, line});
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

  std::string Changed(std::string line) {
    constexpr std::size_t kEnd = 2;
    constexpr std::size_t kKind = 6;
    std::string& told = m_told[line.substr(0, kKind)];
    if (Change == nullptr) {
      return told = std::move(line);
    }
    const std::string changed =
        Change(line.substr(0, line.size() - kEnd), told.substr(0, told.size() - kEnd));
    return changed.empty() ? changed : changed + "\r\n";
  }

  WireSettings m_settings;
  std::map<std::string, std::string> m_told;  ///< the last line of each kind
  SeededRandom m_random;
  std::deque<Late> m_underWay;
  double m_last = 0.0;
};

}  // namespace veerwatch
