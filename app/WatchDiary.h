// What the watch found in the last day, also before the program was started: kept in a file beside the
// profile, of which nothing counts that is not understood. Of bounded size, whatever comes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <filesystem>
#include <string>
#include <vector>

#include "app/WatchEntry.h"
#include "helm/HelmObserver.h"
#include "platform/Clock.h"

namespace veerwatch {

class WatchDiary final : private HelmObserver {
 public:
  /// Both outlive this. Without a file until Keep().
  WatchDiary(HelmObservers& observers, const Clock& clock) : m_clock(clock), m_told(observers.Join(*this)) {}

  /// The file that belongs to a profile.
  static std::filesystem::path FileOf(const std::filesystem::path& profile);

  /// Takes in what stands in the profile's file, and keeps what comes in it from now on.
  void Keep(const std::filesystem::path& profile);

  /// Adds to the file what came since the last time. Where it cannot be written it stays as it is.
  void Save();

  /// A line for each condition that came or was over, the oldest first (WatchEntryText).
  std::vector<std::string> Lines() const;

 private:
  static constexpr std::size_t kMostEntries = 500;
  static constexpr std::size_t kMostInFile = 4 * kMostEntries;  ///< lines; then it is written anew

  void OnWatch(const WatchNow& watch) override;
  void Note(const WatchEntry& entry);
  /// Drops the oldest of more than are kept.
  void Shorten();

  const Clock& m_clock;
  std::deque<WatchEntry> m_entries;  ///< the oldest first
  std::size_t m_unsaved = 0;         ///< of them, the newest, not yet in the file
  std::filesystem::path m_file;
  std::size_t m_inFile = 0;  ///< lines of the file
  WatchNow m_watch;          ///< what was told last
  HelmObservers::Membership m_told;
};

/// The lines of the profile's file that are of the last day, as WatchDiary::Lines; `now` [ms since 1970 UTC].
std::vector<std::string> WatchLinesOf(const std::filesystem::path& profile, std::int64_t now);

}  // namespace veerwatch
