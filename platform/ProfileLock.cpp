#include "platform/ProfileLock.h"

#include <cerrno>
#include <string_view>
#include <system_error>

#include "platform/AtomicFile.h"
#include "platform/VisibleText.h"

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <share.h>
#include <sys/stat.h>
#else
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace veerwatch {

ProfileLock::ProfileLock(const std::filesystem::path& profile) : m_file(profile) {
  m_file += ".lock";
  LockTheFile();
  if (!HeldByAnother()) {
    LockInstead(profile);
  }
}

#ifdef _WIN32

void ProfileLock::LockTheFile() {
  const errno_t error = ::_wsopen_s(&m_lock, m_file.c_str(), _O_RDWR | _O_CREAT | _O_NOINHERIT | _O_TEMPORARY,
                                    _SH_DENYRW, _S_IREAD | _S_IWRITE);
  if (error == EACCES) {
    m_heldFile = m_file;
  } else if (error != 0) {
    m_trouble = VisibleText(m_file.string()) + ": " + std::generic_category().message(error);
  }
}

void ProfileLock::LockInstead(const std::filesystem::path&) {}

ProfileLock::~ProfileLock() {
  if (m_lock >= 0) {
    ::_close(m_lock);
  }
}

#else

namespace {

/// How every file is opened that somebody else may have put there.
constexpr int kCarefully = O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY;

enum class Try { Locked, Held, Failed };

/// Failed leaves the reason in errno.
Try TryLock(int descriptor) {
  int result = 0;
  do {
    result = ::flock(descriptor, LOCK_EX | LOCK_NB);
  } while (result != 0 && errno == EINTR);
  if (result == 0) {
    return Try::Locked;
  }
  return errno == EWOULDBLOCK ? Try::Held : Try::Failed;
}

/// The open lock file, -1 with the reason in errno.
int OpenLockFile(const std::filesystem::path& file) {
  const int descriptor = ::open(file.c_str(), O_RDWR | O_CREAT | kCarefully, 0644);
  if (descriptor >= 0) {
    return descriptor;
  }
  // One that another user left behind, or that lies on a read-only disk, can be locked all the same.
  const int reason = errno;
  const int readable = ::open(file.c_str(), O_RDONLY | kCarefully);
  if (readable < 0) {
    errno = reason;
  }
  return readable;
}

/// Whether the open file still is the one of that name.
bool StillNamed(int descriptor, const std::filesystem::path& file) {
  struct stat open {};
  struct stat named {};
  return ::fstat(descriptor, &open) == 0 && ::lstat(file.c_str(), &named) == 0 &&
         open.st_dev == named.st_dev && open.st_ino == named.st_ino;
}

}  // namespace

void ProfileLock::LockTheFile() {
  for (;;) {
    const std::string_view kind = OtherKind(m_file);
    if (!kind.empty()) {
      m_trouble = VisibleText(m_file.string()) + ": " + std::string(kind);
      return;
    }
    const int descriptor = OpenLockFile(m_file);
    const Try result = descriptor < 0 ? Try::Failed : TryLock(descriptor);
    const int reason = errno;
    if (result == Try::Locked && StillNamed(descriptor, m_file)) {
      m_lock = descriptor;
      return;
    }
    if (result == Try::Held) {
      m_heldFile = m_file;
    } else if (result == Try::Failed) {
      m_trouble = VisibleText(m_file.string()) + ": " + std::generic_category().message(reason);
    }
    if (descriptor >= 0) {
      ::close(descriptor);
    }
    if (result != Try::Locked) {
      return;
    }
    // Whoever had it has just removed it; the next one has a file of its own.
  }
}

void ProfileLock::LockInstead(const std::filesystem::path& profile) {
  std::error_code none;
  const bool there = std::filesystem::is_regular_file(profile, none);
  if (!there && m_lock >= 0) {
    return;
  }
  const std::filesystem::path folder = profile.has_parent_path() ? profile.parent_path() : ".";
  const std::filesystem::path& instead = there ? profile : folder;
  const int descriptor = ::open(instead.c_str(), O_RDONLY | kCarefully | (there ? 0 : O_DIRECTORY));
  if (descriptor < 0) {
    return;
  }
  const Try result = TryLock(descriptor);
  if (result == Try::Locked) {
    m_instead = descriptor;
    return;
  }
  if (result == Try::Held) {
    m_heldFile = instead;
  }
  ::close(descriptor);
}

ProfileLock::~ProfileLock() {
  if (m_lock >= 0) {
    // In this order nobody can lock a file that is about to lose its name and take it for the one that
    // counts.
    if (StillNamed(m_lock, m_file)) {
      ::unlink(m_file.c_str());
    }
    ::close(m_lock);
  }
  if (m_instead >= 0) {
    ::close(m_instead);
  }
}

#endif

}  // namespace veerwatch
