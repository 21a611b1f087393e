// The sentences that leave for the pilot in one step, written one after the other into a buffer of fixed
// size. The pairs of files named like a sentence add theirs; nothing is allocated.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace veerwatch {

/// Checksum text of `sentence`, which begins with "$" and has no "*" yet: two upper-case hexadecimal digits.
std::string PilotChecksum(std::string_view sentence);

class PilotBundle {
 public:
  static constexpr std::size_t kMost = 5;  ///< sentences

  /// Forgets every sentence. Every view of them ends.
  void Clear() { m_size = m_count = 0; }

  /// Begins a sentence: `talker` of two characters, `type` of three.
  PilotBundle& Begin(std::string_view talker, std::string_view type);
  /// Adds a comma and a field, at most as long as the sentences of NMEA 0183 have them.
  PilotBundle& Field(std::string_view text);
  /// The same for each.
  template <class... Texts>
  PilotBundle& Fields(const Texts&... texts) {
    (Field(texts), ...);
    return *this;
  }
  /// Ends the sentence with its checksum and its line end.
  void End();

  std::size_t Count() const { return m_count; }
  /// Sentence `index` [0, Count()) without its line end.
  std::string_view Sentence(std::size_t index) const;
  /// All of them in their order, each with its line end; "" for none.
  std::string_view Text() const { return {m_text.data(), m_size}; }

 private:
  static constexpr std::size_t kLongest = 82;  ///< characters of a sentence with its line end

  void Add(std::string_view text);

  std::array<char, kMost * kLongest> m_text{};
  std::size_t m_size = 0;
  std::array<std::size_t, kMost + 1> m_begins{};  ///< where each begins, and where the last one ends
  std::size_t m_count = 0;
};

}  // namespace veerwatch
