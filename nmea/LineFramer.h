// Bytes to lines: a carriage return ends a line, a line feed is dropped wherever it stands.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

namespace veerwatch {

class LineFramer {
 public:
  /// Longest line that is kept [characters]; of a longer one the rest up to its carriage return is dropped.
  static constexpr std::size_t kLongestLine = 4096;

  /// Walks through `bytes` and hands each whole line to `onLine(std::string_view)`, and the first
  /// kLongestLine characters of a line that grows longer, once, to `onOverlong(std::string_view)`. What is
  /// left waits for the next call. The views last until the call returns, even when it calls Clear.
  template <class OnLine, class OnOverlong>
  void Feed(std::string_view bytes, OnLine&& onLine, OnOverlong&& onOverlong) {
    while (!bytes.empty()) {
      const std::size_t end = bytes.find('\r');
      const bool whole = end != std::string_view::npos;
      if (whole && m_buffer.empty() && !m_dropping) {
        // Most lines come in one piece and need no copy.
        const std::string_view line = WithoutFirstFeed(bytes.substr(0, end));
        if (line.size() <= kLongestLine && line.find('\n') == std::string_view::npos) {
          bytes.remove_prefix(end + 1);
          onLine(line);
          continue;
        }
      }
      const bool fits = Append(bytes.substr(0, end));
      if (!fits) {
        m_dropping = true;
        m_line.swap(m_buffer);
        m_buffer.clear();
        onOverlong(std::string_view(m_line));
      }
      if (!whole) {
        return;
      }
      bytes.remove_prefix(end + 1);
      if (m_dropping) {
        m_dropping = false;
        m_buffer.clear();
        continue;
      }
      m_line.swap(m_buffer);
      m_buffer.clear();
      onLine(std::string_view(m_line));
    }
  }

  /// Forgets the characters of the line that is not whole yet.
  void Clear() {
    m_buffer.clear();
    m_dropping = false;
  }

  /// The characters of the line that is not whole yet.
  std::string_view LineBuffer() const { return m_buffer; }

 private:
  static std::string_view WithoutFirstFeed(std::string_view bytes) {
    bytes.remove_prefix(!bytes.empty() && bytes.front() == '\n' ? 1 : 0);
    return bytes;
  }

  /// Appends `bytes` without their line feeds; false when the line grows too long by them.
  bool Append(std::string_view bytes) {
    while (!m_dropping && !bytes.empty()) {
      const std::size_t feed = std::min(bytes.find('\n'), bytes.size());
      const std::size_t room = kLongestLine - m_buffer.size();
      m_buffer.append(bytes.substr(0, std::min(feed, room)));
      if (feed > room) {
        return false;
      }
      bytes.remove_prefix(std::min(feed + 1, bytes.size()));
    }
    return true;
  }

  std::string m_buffer;
  std::string m_line;
  bool m_dropping = false;
};

}  // namespace veerwatch
