// Looks on at the helm for a report: how many sentences of each type came in the last ten minutes, and what
// the watch found in the last day. Of a sentence it keeps its type and nothing that stands in it. Of bounded
// size, whatever comes.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "helm/HelmObserver.h"
#include "platform/Clock.h"

namespace veerwatch {

class ReportLog final : private HelmObserver {
 public:
  /// Both outlive this.
  ReportLog(HelmObservers& observers, const Clock& clock) : m_clock(clock), m_told(observers.Join(*this)) {}

  /// A line for each type, as "WIMWV 600 lines, 2.0 a second, 598 used, 2 wrong"; those without one a
  /// sentence has not, as "other". None before anything came.
  std::vector<std::string> SentenceLines() const;

  /// A line for each condition that came or was over, as "2026-11-22 14:03:07 red No Wind 5 s".
  std::vector<std::string> WatchLines() const;

 private:
  static constexpr std::size_t kMinutes = 10;
  static constexpr std::size_t kMostTypes = 64;
  static constexpr std::size_t kMostEntries = 500;

  struct Counts {
    std::uint32_t Lines = 0;
    std::uint32_t Used = 0;
    std::uint32_t Wrong = 0;
  };
  using Address = std::array<char, 5>;  ///< talker and type
  struct Type {
    Address Name{};
    std::array<Counts, kMinutes> Minutes{};
  };
  struct Entry {
    std::int64_t Wall = 0;  ///< [ms since 1970 UTC]
    std::string Text;
  };

  void OnNmeaLine(std::string_view line, LineFault fault, bool used) override;
  void OnWatch(const WatchNow& watch) override;

  /// The type of that name, made where there is room, else that of all others.
  Type& Of(const Address& name);
  /// Empties the minutes that have begun since the latest line.
  void Turn(std::int64_t minute);
  void Note(const WatchNow& watch, const std::string& text);

  const Clock& m_clock;
  std::array<Type, kMostTypes> m_types{};
  std::size_t m_count = 1;  ///< of the types; the first is all others
  std::int64_t m_minute = 0;
  std::int64_t m_begun = 0;  ///< when the first line came [ms of the steady clock]
  bool m_any = false;
  std::deque<Entry> m_entries;  ///< the oldest first
  WatchNow m_watch;             ///< what was told last
  HelmObservers::Membership m_told;
};

/// "2026-11-22 14:03:07" in UTC. `wall` [ms since 1970 UTC].
std::string UtcText(std::int64_t wall);

}  // namespace veerwatch
