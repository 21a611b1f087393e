// Looks on at the helm for a report: how many sentences of each type came in the last ten minutes. Of a
// sentence it keeps its type and nothing that stands in it. Of bounded size, whatever comes.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
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

 private:
  static constexpr std::size_t kMinutes = 10;
  static constexpr std::size_t kMostTypes = 64;

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

  void OnNmeaLine(std::string_view line, LineFault fault, bool used) override;

  /// The type of that name, made where there is room, else that of all others.
  Type& Of(const Address& name);
  /// Empties the minutes that have begun since the latest line.
  void Turn(std::int64_t minute);

  const Clock& m_clock;
  std::array<Type, kMostTypes> m_types{};
  std::size_t m_count = 1;  ///< of the types; the first is all others
  std::int64_t m_minute = 0;
  std::int64_t m_begun = 0;  ///< when the first line came [ms of the steady clock]
  bool m_any = false;
  HelmObservers::Membership m_told;
};

}  // namespace veerwatch
