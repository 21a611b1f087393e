// The whole lines of a stream of the network, with the ends of a serial line.
#pragma once

#include <string>
#include <string_view>

#include "platform/WholeLines.h"
#include "platform/WireEnds.h"

namespace veerwatch {

class WireLines {
 public:
  /// Takes `bytes`, which may be cut anywhere, and appends the lines that are whole by now to `text`, each
  /// with its carriage return.
  void Add(std::string_view bytes, std::string& text) {
    m_part.clear();
    m_ends.Add(bytes, m_part);
    m_lines.Add(m_part, text);
  }

  /// What comes next is another stream: the line that is not whole yet will never be.
  void Clear() {
    m_ends.Restart();
    m_lines.Clear();
  }

 private:
  WireEnds m_ends;
  WholeLines m_lines;
  std::string m_part;  ///< keeps its room
};

}  // namespace veerwatch
