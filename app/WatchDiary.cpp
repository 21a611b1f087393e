#include "app/WatchDiary.h"

#include <algorithm>
#include <fstream>
#include <ios>
#include <string_view>
#include <system_error>

#include "platform/AtomicFile.h"
#include "platform/WholeFile.h"

namespace veerwatch {

namespace {

constexpr std::int64_t kDay = 24LL * 3600 * 1000;   // [ms]
constexpr std::uintmax_t kLargestFile = 1U << 20U;  // [bytes]

/// What the file holds, the oldest first, of the last day. Of a clock that was set back since, more.
std::vector<WatchEntry> EntriesOf(const std::filesystem::path& file, std::int64_t now) {
  const WholeFile whole = ReadWholeFile(file, kLargestFile);
  std::vector<WatchEntry> entries;
  std::string_view rest = whole.Bytes;
  while (!rest.empty()) {
    const std::size_t end = rest.find('\n');
    // Of the last line a power cut may have left a part that looks whole.
    const auto entry = end == std::string_view::npos ? std::nullopt : ReadWatchEntry(rest.substr(0, end));
    if (entry && now - entry->Wall <= kDay) {
      entries.push_back(*entry);
    }
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  }
  return entries;
}

}  // namespace

std::filesystem::path WatchDiary::FileOf(const std::filesystem::path& profile) {
  std::filesystem::path file = profile;
  file += ".watch";
  return file;
}

void WatchDiary::Keep(const std::filesystem::path& profile) {
  m_file = FileOf(profile);
  const std::vector<WatchEntry> before = EntriesOf(m_file, m_clock.Now().Wall);
  m_entries.insert(m_entries.begin(), before.begin(), before.end());
  Shorten();
  std::error_code error;
  m_inFile = std::filesystem::exists(m_file, error) ? kMostInFile : 0;
  m_unsaved = m_entries.size();
}

void WatchDiary::Save() {
  if (m_file.empty() || m_unsaved == 0) {
    return;
  }
  const bool anew = m_inFile + m_unsaved > kMostInFile;
  std::string lines;
  for (std::size_t i = anew ? 0 : m_entries.size() - m_unsaved; i < m_entries.size(); ++i) {
    lines += WatchEntryLine(m_entries[i]) + "\n";
  }
  if (anew) {
    WriteAtomically(m_file, lines);
    m_inFile = m_entries.size();
  } else if (OtherKind(m_file).empty()) {
    std::ofstream(m_file, std::ios::binary | std::ios::app) << lines;
    m_inFile += m_unsaved;
  }
  m_unsaved = 0;
}

void WatchDiary::OnWatch(const WatchNow& watch) {
  for (const Standing& one : m_watch.Conditions()) {
    if (watch.Find(one.What) == nullptr) {
      Note({watch.At.Wall, true, one});
    }
  }
  for (const Standing& one : watch.Conditions()) {
    if (m_watch.Find(one.What) == nullptr) {
      Note({watch.At.Wall, false, one});
    }
  }
  m_watch = watch;
}

void WatchDiary::Note(const WatchEntry& entry) {
  m_entries.push_back(entry);
  ++m_unsaved;
  Shorten();
}

void WatchDiary::Shorten() {
  while (m_entries.size() > kMostEntries) {
    m_entries.pop_front();
  }
  m_unsaved = std::min(m_unsaved, m_entries.size());
}

std::vector<std::string> WatchDiary::Lines() const {
  std::vector<std::string> lines;
  const std::int64_t now = m_clock.Now().Wall;
  for (const WatchEntry& entry : m_entries) {
    if (now - entry.Wall <= kDay) {
      lines.push_back(WatchEntryText(entry));
    }
  }
  return lines;
}

std::vector<std::string> WatchLinesOf(const std::filesystem::path& profile, std::int64_t now) {
  std::vector<std::string> lines;
  for (const WatchEntry& entry : EntriesOf(WatchDiary::FileOf(profile), now)) {
    lines.push_back(WatchEntryText(entry));
  }
  return lines;
}

}  // namespace veerwatch
