// What a port has to send: at most one bundle of sentences on its way and the newest one after it. However
// slow the line and whether or not anybody reads, nothing old piles up, and bundles leave whole and in order.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace veerwatch {

class OutputSlot {
 public:
  /// A bundle that waits for longer is forgotten [ms]; many times what one takes at 4800 baud.
  static constexpr std::int64_t kFreshTime = 2000;

  /// The way out.
  class Line {
   public:
    virtual ~Line() = default;
    /// True while anything that it took has not left, where it can tell.
    virtual bool Leaving() = 0;
    /// Takes characters from the front of `text`, as many as it has room for at this moment, and sends them
    /// in its own time. Returns how many it took; 0 while it takes none. Never blocks.
    virtual std::size_t Write(std::string_view text) = 0;
  };

  explicit OutputSlot(Line& line) : m_line(line) {}

  /// Writes the bundle at `now` [ms, steady], or keeps it in place of the one that waits. An empty one is
  /// nothing.
  void Put(std::string_view bundle, std::int64_t now);

  /// To be called when the line may take more: writes the rest of the bundle on its way, and when that has
  /// left the one that waits, unless it has become too old at `now` [ms, steady].
  void Pump(std::int64_t now);

  /// True while a bundle, or the rest of one, waits for the line.
  bool Waiting() const { return !m_rest.empty() || !m_newest.empty(); }

  /// True while anything of a bundle that the line began to take has not left.
  bool OnItsWay() const { return !m_rest.empty() || m_line.Leaving(); }

  /// How many bundles the line took, to their last character.
  std::uint64_t Written() const { return m_written; }

  /// Forgets the bundle that waits. What is on its way goes on.
  void Withdraw() { m_newest.clear(); }

  /// Forgets the bundle that waits and the rest of the one on its way.
  void Clear();

 private:
  /// The line took so many characters of the rest.
  void Took(std::size_t characters);

  Line& m_line;
  std::string m_newest;        ///< waits
  std::int64_t m_putTime = 0;  ///< of the newest [ms, steady]
  std::string m_leaving;       ///< what is being written
  std::string_view m_rest;     ///< of it, not taken yet
  std::uint64_t m_written = 0;
};

}  // namespace veerwatch
