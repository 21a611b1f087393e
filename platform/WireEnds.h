// Line ends of the network and of files as those of a serial line: whatever ends a line there, it ends with
// CR LF here.
#pragma once

#include <string>
#include <string_view>

namespace veerwatch {

class WireEnds {
 public:
  /// Appends `bytes`, which may be cut anywhere, to `text`; a line feed without a carriage return before it
  /// gets one.
  void Add(std::string_view bytes, std::string& text) {
    for (const char c : bytes) {
      if (c == '\n' && m_before != '\r') {
        text += '\r';
      }
      text += c;
      m_before = c;
    }
  }

  /// What comes next is no continuation of what came before.
  void Restart() { m_before = '\0'; }

 private:
  char m_before = '\0';
};

}  // namespace veerwatch
