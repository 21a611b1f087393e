// The whole lines of what arrives in pieces, so that several sources can be merged without cutting into a
// line.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace veerwatch {

class WholeLines {
 public:
  /// A line that grows longer ends here, and its rest is dropped [characters]. Longer than any that is read.
  static constexpr std::size_t kLongest = 5000;

  /// Takes `bytes`, and appends the lines that are whole by now to `text`, each with its carriage return.
  void Add(std::string_view bytes, std::string& text) {
    for (const char c : bytes) {
      if (c == '\n') {
        continue;
      }
      if (m_dropping) {
        m_dropping = c != '\r';
        continue;
      }
      m_line += c;
      if (c == '\r') {
        text += m_line;
        m_line.clear();
      } else if (m_line.size() >= kLongest) {
        text.append(m_line).append(1, '\r');
        m_line.clear();
        m_dropping = true;
      }
    }
  }

  /// Forgets the line that is not whole yet.
  void Clear() {
    m_line.clear();
    m_dropping = false;
  }

 private:
  std::string m_line;
  bool m_dropping = false;
};

}  // namespace veerwatch
