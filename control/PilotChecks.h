// Whether the pilot can hear. Looked at once a second, and told of each sentence that is built.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

namespace veerwatch {

/// Sentences that do not leave.
class OutputCheck {
 public:
  /// A sentence of `bytes` characters was built at `moment` [ms of the steady clock].
  void Built(std::size_t bytes, std::int64_t moment);
  /// The port at `moment`: whether it is open, how many sentences have left in all, and what its line
  /// carries [baud], nullopt where nothing bounds it.
  void Look(bool open, std::uint64_t left, std::optional<int> baudRate, std::int64_t moment);
  void Forget() { *this = OutputCheck(); }
  /// The port is not open, or none has left for 4 s although some were built.
  bool Lost() const { return m_lost; }
  /// More was built in ten seconds than the line carries.
  bool Full() const { return m_full; }

 private:
  std::uint64_t m_left = 0;
  std::optional<std::int64_t> m_waits;   ///< the first that was built since one has left
  std::optional<std::int64_t> m_window;  ///< counts since then
  std::size_t m_bytes = 0;
  bool m_lost = false;
  bool m_full = false;
};

}  // namespace veerwatch
