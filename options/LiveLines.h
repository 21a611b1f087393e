// The lines of a live list: the newest 101.
#pragma once

#include <deque>
#include <string>
#include <string_view>

namespace veerwatch {

class LiveLines {
 public:
  struct Line {
    std::string Text;
    bool Highlighted = false;
  };

  /// More lines than this are not kept. Deliberate: the oldest goes when there are more than 100 before a
  /// line is added, so that 101 stand in the list.
  static constexpr std::size_t kMost = 101;

  bool Full() const { return m_lines.size() >= kMost; }
  void RemoveOldest() { m_lines.pop_front(); }
  void Append(std::string_view text, bool highlighted) {
    m_lines.push_back({std::string(text), highlighted});
  }
  void Clear() { m_lines.clear(); }

  std::size_t Count() const { return m_lines.size(); }
  /// From the oldest, 0, to the newest.
  const Line& At(std::size_t index) const { return m_lines[index]; }

 private:
  std::deque<Line> m_lines;
};

}  // namespace veerwatch
