#include "app/ProfileDesk.h"

#include <algorithm>
#include <array>
#include <system_error>
#include <utility>

#include "app/WatchDiary.h"
#include "platform/AtomicFile.h"
#include "platform/Language.h"
#include "platform/VisibleText.h"

namespace veerwatch {

namespace {

constexpr const char* kEnding = ".ini";
constexpr std::size_t kMostListed = 100;
constexpr const char* kSection = "Profiles";
constexpr const char* kInUseKey = "In Use";

std::string Shown(const std::filesystem::path& path) { return VisibleText(path.string()); }

std::unique_ptr<ProfileLock> Locked(const std::filesystem::path& file) {
  std::error_code error;
  return std::make_unique<ProfileLock>(LinkTarget(file, error));
}

/// Whether the file holds settings of this program.
bool HoldsProfile(const std::filesystem::path& file) {
  Profile profile;
  if (!OtherKind(file).empty() || profile.Load(file) != Profile::LoadResult::Read) {
    return false;
  }
  const std::array<std::string_view, 4> sections{"Nmea", "Pilot", "Simulate", "Track"};
  return std::any_of(sections.begin(), sections.end(),
                     [&](std::string_view section) { return !profile.Keys(section).empty(); });
}

bool IsThere(const std::filesystem::path& file) {
  std::error_code error;
  return std::filesystem::symlink_status(file, error).type() != std::filesystem::file_type::not_found;
}

}  // namespace

bool IsProfileName(std::string_view name) {
  constexpr std::string_view kKept = "/\\:*?\"<>|";
  constexpr std::string_view kNoEnds = ". ";
  constexpr unsigned char kBlank = ' ';
  constexpr unsigned char kDelete = 0x7F;
  const auto first = [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; };
  const auto characters = static_cast<std::size_t>(std::count_if(name.begin(), name.end(), first));
  const bool plain = std::all_of(name.begin(), name.end(), [&](char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte >= kBlank && byte != kDelete && kKept.find(c) == std::string_view::npos;
  });
  return plain && characters >= 1 && characters <= ProfileDesk::kLongestName && VisibleText(name) == name &&
         kNoEnds.find(name.front()) == std::string_view::npos &&
         kNoEnds.find(name.back()) == std::string_view::npos;
}

std::filesystem::path ProfileInUse(const std::filesystem::path& first) {
  Profile profile;
  profile.Load(first);
  const std::string name = profile.Text(kSection, kInUseKey);
  const std::filesystem::path file = first.parent_path() / (name + kEnding);
  return IsProfileName(name) && HoldsProfile(file) ? file : first;
}

ProfileDesk::ProfileDesk(std::filesystem::path first)
    : m_first(std::move(first)), m_file(m_first), m_lock(Locked(m_first)) {}

void ProfileDesk::Resume() {
  m_remembers = true;
  if (const std::filesystem::path file = ProfileInUse(m_first); file != m_file) {
    m_file = file;
    m_lock = Locked(file);
  }
}

std::string ProfileDesk::NameOf(const std::filesystem::path& file) {
  return VisibleText(file.stem().string());
}

std::filesystem::path ProfileDesk::FileOf(const std::string& name) const {
  return name == FirstName() ? m_first : m_first.parent_path() / (name + kEnding);
}

std::vector<std::string> ProfileDesk::Names() const {
  std::vector<std::string> names;
  std::error_code error;
  std::filesystem::directory_iterator files(m_first.parent_path(), error);
  for (; !error && files != std::filesystem::directory_iterator() && names.size() < kMostListed;
       files.increment(error)) {
    const std::filesystem::path& file = files->path();
    const std::string name = file.stem().string();
    const bool listed = file.extension() == kEnding && IsProfileName(name) && file != m_first;
    if (listed && (file == m_file || HoldsProfile(file))) {
      names.push_back(name);
    }
  }
  std::sort(names.begin(), names.end());
  names.insert(names.begin(), FirstName());
  return names;
}

ProfileDesk::Trouble ProfileDesk::NewName(const std::string& name) const {
  if (!IsProfileName(name)) {
    return Tr(
        "That is no name for a profile: it has 1 to 40 characters, none of / \\ : * ? \" < > |, and no "
        "dot or blank at its ends.");
  }
  std::error_code error;
  std::filesystem::directory_iterator files(m_first.parent_path(), error);
  for (; !error && files != std::filesystem::directory_iterator(); files.increment(error)) {
    // On some disks large and small letters are the same.
    if (SameName(files->path().filename().string(), name + kEnding)) {
      return Filled(Tr("There is a file %1 already."), {Shown(files->path())});
    }
  }
  return std::nullopt;
}

ProfileDesk::Trouble ProfileDesk::Take(const std::string& name, Taken& taken) const {
  taken.File = FileOf(name);
  taken.Lock = Locked(taken.File);
  if (taken.Lock->HeldByAnother()) {
    return Filled(Tr("%1 is in use by another Veerwatch: it holds the lock on %2."),
                  {name, Shown(taken.Lock->HeldFile())});
  }
  return std::nullopt;
}

void ProfileDesk::Use(Taken taken) {
  m_file = std::move(taken.File);
  m_lock = std::move(taken.Lock);
  if (m_remembers) {
    Remember();
  }
}

void ProfileDesk::Remember() const {
  const std::unique_ptr<ProfileLock> lock = First() ? nullptr : Locked(m_first);
  Profile profile;
  if ((lock && lock->HeldByAnother()) || profile.Load(m_first) == Profile::LoadResult::Unreadable) {
    return;
  }
  const std::string name = First() ? "" : Name();
  if (profile.Text(kSection, kInUseKey) != name) {
    profile.ProfileSet(kSection, kInUseKey, name);
    profile.Commit(m_first);
  }
}

ProfileDesk::Trouble ProfileDesk::SaveAs(const std::string& name, const Profile& settings) {
  if (auto trouble = NewName(name)) {
    return trouble;
  }
  Taken taken;
  if (auto trouble = Take(name, taken)) {
    return trouble;
  }
  if (auto trouble = settings.Commit(taken.File)) {
    return trouble;
  }
  Use(std::move(taken));
  return std::nullopt;
}

ProfileDesk::Trouble ProfileDesk::Rename(const std::string& name, const std::string& wanted) {
  if (auto trouble = NewName(wanted)) {
    return trouble;
  }
  const bool inUse = name == Name();
  Taken before;
  if (!inUse) {
    if (auto trouble = Take(name, before)) {
      return trouble;
    }
  }
  Taken after;
  if (auto trouble = Take(wanted, after)) {
    return trouble;
  }
  std::error_code error;
  std::filesystem::rename(FileOf(name), after.File, error);
  if (error) {
    return Shown(FileOf(name)) + ": " + error.message();
  }
  // Of the one in use all of it is held, and written under the new name.
  std::error_code ignored;
  if (inUse) {
    std::filesystem::remove(WatchDiary::FileOf(FileOf(name)), ignored);
  } else {
    std::filesystem::rename(WatchDiary::FileOf(FileOf(name)), WatchDiary::FileOf(after.File), ignored);
  }
  if (inUse) {
    Use(std::move(after));
  }
  return std::nullopt;
}

ProfileDesk::Trouble ProfileDesk::Delete(const std::string& name) {
  Taken taken;
  if (auto trouble = Take(name, taken)) {
    return trouble;
  }
  std::error_code error;
  std::filesystem::remove(taken.File, error);
  std::error_code ignored;
  std::filesystem::remove(WatchDiary::FileOf(taken.File), ignored);
  return error ? Trouble(Shown(taken.File) + ": " + error.message()) : std::nullopt;
}

ProfileDesk::Trouble ProfileDesk::Ask(const std::string& name) {
  if (!IsThere(FileOf(name)) && name != FirstName()) {
    return Filled(Tr("There is no file %1 any more."), {Shown(FileOf(name))});
  }
  Stay();
  auto next = std::make_unique<Taken>();
  if (auto trouble = Take(name, *next)) {
    return trouble;
  }
  m_next = std::move(next);
  return std::nullopt;
}

bool ProfileDesk::Change() {
  const std::unique_ptr<Taken> next = std::move(m_next);
  if (!next) {
    return false;
  }
  Use(std::move(*next));
  return true;
}

}  // namespace veerwatch
