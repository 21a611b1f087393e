// One profile, one program: a lock of the kernel's that ends with the process, however that ends.
#pragma once

#include <filesystem>
#include <string>

namespace veerwatch {

class ProfileLock {
 public:
  /// Locks the file "<profile>.lock", which is made where it is missing; what stands in it and who left it
  /// there does not matter. The profile itself is locked too, so that the lock holds where no lock file can
  /// be made (a read-only or full disk, something of another kind under its name); where there is no profile
  /// either, its folder. `profile` is no link.
  explicit ProfileLock(const std::filesystem::path& profile);
  /// Gives the lock back and removes the lock file.
  ~ProfileLock();
  ProfileLock(const ProfileLock&) = delete;
  ProfileLock& operator=(const ProfileLock&) = delete;

  /// True when another process has the profile.
  bool HeldByAnother() const { return !m_heldFile.empty(); }
  /// What kept the lock file from being used, as one line that names it; "" when nothing did.
  const std::string& Trouble() const { return m_trouble; }
  /// The file or folder that another process has locked, empty when none has.
  const std::filesystem::path& HeldFile() const { return m_heldFile; }

 private:
  void LockTheFile();
  void LockInstead(const std::filesystem::path& profile);

  std::filesystem::path m_file;
  std::filesystem::path m_heldFile;
  std::string m_trouble;
  int m_lock = -1;     ///< the open lock file while it is locked
  int m_instead = -1;  ///< the open profile or folder while it is locked
};

}  // namespace veerwatch
