// What a port has to send: at most one sentence on its way and the newest one behind it. However slow the
// line and whether or not anybody reads, nothing old piles up, and sentences leave whole and in order.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace veerwatch {

class OutputSlot {
 public:
  /// The way out. It takes a sentence at once and sends it in its own time.
  class Line {
   public:
    virtual ~Line() = default;
    /// True while anything that was written before has not left.
    virtual bool Busy() = 0;
    /// May come back with Pump() before it has ended.
    virtual void Write(std::string_view sentence) = 0;
  };

  explicit OutputSlot(Line& line) : m_line(line) {}

  /// Writes the sentence, or keeps it in place of the one that waits while the line is busy. An empty one is
  /// nothing.
  void Put(std::string_view sentence);

  /// To be called when the line may have become free.
  void Pump();

  /// True while a sentence waits for the line.
  bool Waiting() const { return !m_newest.empty(); }

  /// How many sentences were written; one that waits is not among them.
  std::uint64_t Written() const { return m_written; }

  /// Forgets the sentence that waits.
  void Clear() { m_newest.clear(); }

 private:
  Line& m_line;
  std::string m_newest;   ///< waits
  std::string m_leaving;  ///< what is being written
  std::uint64_t m_written = 0;
};

}  // namespace veerwatch
