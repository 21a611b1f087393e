// The lines of a live list: the newest 101 of the chosen type. While it pauses they stand still, and those
// that come wait.
#pragma once

#include <deque>
#include <set>
#include <string>
#include <string_view>

namespace veerwatch {

/// The type of the sentence in a line, whatever stands before it: "MWV" of "Decode Error - $WIMWV,0". Of a
/// maker's own sentence it is the whole address, "PGRME". "" for a line without a sentence.
std::string_view LiveLineType(std::string_view line);

class LiveLines {
 public:
  struct Line {
    std::string Text;
    bool Highlighted = false;
  };

  /// More lines than this are not kept. Deliberate: the oldest goes when there are more than 100 before a
  /// line is added, so that 101 stand in the list.
  static constexpr std::size_t kMost = 101;
  /// So many types are told apart; a line of a further one is listed all the same.
  static constexpr std::size_t kMostTypes = 64;

  /// Remembers the type of a line; true when it is a new one.
  bool NoteType(std::string_view text);
  /// The types that were noted, in the order of the alphabet. Clear leaves them.
  const std::set<std::string, std::less<>>& Types() const { return m_types; }

  /// Lists a type only, "" for all. Lines of other types go from the list, and do not come back.
  void Type(std::string_view type);
  bool Wants(std::string_view text) const { return m_type.empty() || LiveLineType(text) == m_type; }

  /// Lines that come while it pauses wait; afterwards they stand after the others.
  void Pause(bool paused);
  bool Paused() const { return m_paused; }
  void Wait(std::string_view text, bool highlighted) { Put(m_waiting, {std::string(text), highlighted}); }

  bool Full() const { return m_lines.size() >= kMost; }
  void RemoveOldest() { m_lines.pop_front(); }
  void Append(std::string_view text, bool highlighted) {
    m_lines.push_back({std::string(text), highlighted});
  }
  /// Those that wait go, too.
  void Clear();

  std::size_t Count() const { return m_lines.size(); }
  /// From the oldest, 0, to the newest.
  const Line& At(std::size_t index) const { return m_lines[index]; }
  /// Length of the longest line [characters].
  std::size_t Longest() const;

 private:
  static void Put(std::deque<Line>& lines, Line line);

  std::deque<Line> m_lines;
  std::deque<Line> m_waiting;
  std::set<std::string, std::less<>> m_types;
  std::string m_type;
  bool m_paused = false;
};

}  // namespace veerwatch
