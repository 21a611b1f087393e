// How long ago the latest sentence left for the pilot. The main window asks at every sentence and every
// second.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace veerwatch {

class SentAge {
 public:
  /// `sent` sentences have left by `steady` [ms of the steady clock].
  void Look(std::uint64_t sent, std::int64_t steady);

  /// Since the latest one [s], whole; nothing while none has left since the first look.
  std::optional<std::int64_t> Seconds() const;

  /// "sent now", "sent 3 s ago" or "nothing sent".
  std::string Text() const;

  /// None has left for so long that the pilot may have given up waiting.
  bool Late() const;

 private:
  std::optional<std::uint64_t> m_sent;
  std::optional<std::int64_t> m_left;
  std::int64_t m_now = 0;
};

}  // namespace veerwatch
