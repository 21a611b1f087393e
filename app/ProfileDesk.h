// The profiles that lie beside each other, and the one that is in use: lists, takes, copies, renames and
// deletes them. Each has a file of its own, NAME.ini, in the folder of the first, and nobody touches one that
// another program has.
#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Profile.h"
#include "platform/ProfileLock.h"

namespace veerwatch {

class ProfileDesk {
 public:
  /// What went wrong, in words for the user; nothing when all is done.
  using Trouble = std::optional<std::string>;

  static constexpr std::size_t kLongestName = 40;  ///< characters

  /// Takes the profile `first`, whether it is there or not.
  explicit ProfileDesk(std::filesystem::path first);

  /// Takes the profile that was in use last instead, and from now on remembers the one in use.
  void Resume();

  /// The lock on the profile in use.
  const ProfileLock& Lock() const { return *m_lock; }
  /// The file of the profile in use.
  const std::filesystem::path& File() const { return m_file; }
  /// Name of the profile in use, UTF-8.
  std::string Name() const { return NameOf(m_file); }
  std::string FirstName() const { return NameOf(m_first); }
  bool First() const { return m_file == m_first; }

  /// All of them, the first one in front of the others, those in the order of their letters. A file that
  /// holds no profile is none.
  std::vector<std::string> Names() const;

  // Each changes nothing when it returns trouble.

  /// Writes `settings` as the new profile `name` and takes it into use.
  Trouble SaveAs(const std::string& name, const Profile& settings);
  /// Gives a profile that is not the first, in use or not, another name.
  Trouble Rename(const std::string& name, const std::string& wanted);
  /// Removes a profile that is neither the first nor in use.
  Trouble Delete(const std::string& name);

  /// Locks the profile `name`, for Change(). Only one is asked for at a time.
  Trouble Ask(const std::string& name);
  /// Gives back what was asked for.
  void Stay() { m_next.reset(); }
  bool Asked() const { return m_next != nullptr; }
  /// Takes what was asked for into use; false when nothing was.
  bool Change();

 private:
  /// A file and the lock on it.
  struct Taken {
    std::filesystem::path File;
    std::unique_ptr<ProfileLock> Lock;
  };

  static std::string NameOf(const std::filesystem::path& file);
  std::filesystem::path FileOf(const std::string& name) const;
  /// Why nothing new can have that name.
  Trouble NewName(const std::string& name) const;
  /// Locks a profile that is not in use here.
  Trouble Take(const std::string& name, Taken& taken) const;
  /// What is taken is in use from now on.
  void Use(Taken taken);
  /// Has the first one name the one in use. Where that cannot be, the next start begins with another one.
  void Remember() const;

  std::filesystem::path m_first;
  bool m_remembers = false;
  std::filesystem::path m_file;
  std::unique_ptr<ProfileLock> m_lock;
  std::unique_ptr<Taken> m_next;
};

/// The profile that was in use last, as `first` names it; `first` itself where that is not there any more.
std::filesystem::path ProfileInUse(const std::filesystem::path& first);

/// Whether a profile can have that name: 1 to ProfileDesk::kLongestName characters of UTF-8, none of them a
/// control character or one that a file system keeps for itself, without a dot or a blank at its ends.
bool IsProfileName(std::string_view name);

}  // namespace veerwatch
