// What came of a stream of lines: which sentences, how often, and how many that were none.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "nmea/LineFault.h"
#include "platform/Clock.h"

namespace veerwatch {

class HeardLines {
 public:
  /// For so long lines are remembered to be compared [ms], and so many at most.
  static constexpr std::int64_t kRemembers = 5000;
  static constexpr std::size_t kMostRemembered = 500;
  static constexpr std::size_t kMostKinds = 40;  ///< of sentences that are told apart

  /// Takes a line that came at `now`; `fault` is None also for a line that begins with "!".
  void Take(std::string_view line, LineFault fault, const Moment& now);

  long Sentences() const { return m_sentences; }
  /// Those that the program reads.
  long Known() const { return m_known; }
  long Faults() const { return m_faults; }

  /// As "MWV R 2/s, HDG 5/s, VHW 1/s, 3 errors", in the order in which they came first, a wind with its
  /// reference. `now` ends the time for sentences that came too seldom to measure their pace.
  std::string Words(const Moment& now) const;
  /// A line for each sentence with its talker, as "II MWV R: 2/s".
  std::string Details(const Moment& now) const;

  /// The different lines of the latest seconds, as numbers to be compared.
  std::set<std::size_t> Different() const;

 private:
  struct Kind {
    std::string Name;
    long Count = 0;
    std::int64_t First = 0;  ///< [ms, steady]
    std::int64_t Last = 0;
  };
  using Kinds = std::vector<Kind>;

  static void Count(Kinds& kinds, const std::string& name, const Moment& now);

  Kinds m_kinds;    ///< by type, as "MWV R"
  Kinds m_talkers;  ///< by talker and type, as "II MWV R"
  long m_sentences = 0;
  long m_known = 0;
  long m_faults = 0;
  struct Remembered {
    std::size_t Hash;
    std::int64_t At;  ///< [ms, steady]
  };
  std::deque<Remembered> m_remembered;
};

/// Whether two that brought these lines bring the same: at least three different ones, and four fifths of
/// those of the one with fewer.
bool BringSame(const std::set<std::size_t>& some, const std::set<std::size_t>& others);

/// How often something comes, as "2/s" or "0.5/s": `count` of them between `first` and `last`, and at `now`
/// [ms, steady].
std::string PaceText(long count, std::int64_t first, std::int64_t last, std::int64_t now);

}  // namespace veerwatch
