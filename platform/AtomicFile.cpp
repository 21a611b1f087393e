#include "platform/AtomicFile.h"

#include <cerrno>
#include <random>
#include <system_error>

#include "platform/Language.h"
#include "platform/VisibleText.h"

#ifdef _WIN32
#include <cstdio>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace veerwatch {

namespace {

/// A file of a name that nobody can foresee, in the folder of `target`.
std::filesystem::path NewName(const std::filesystem::path& target) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  constexpr int kLength = 16;
  std::random_device random;
  std::string name = "veerwatch-";
  for (int i = 0; i < kLength; ++i) {
    name.push_back(kDigits[random() % kDigits.size()]);
  }
  return target.parent_path() / (name + ".new");
}

#ifdef _WIN32

std::error_code WriteNew(std::filesystem::path& fresh, std::string_view content,
                         const std::filesystem::path& target) {
  fresh = NewName(target);
  std::FILE* file = ::_wfopen(fresh.c_str(), L"wbx");
  if (file == nullptr) {
    const std::error_code error(errno, std::generic_category());
    fresh.clear();
    return error;
  }
  const bool written = std::fwrite(content.data(), 1, content.size(), file) == content.size();
  const bool closed = std::fclose(file) == 0;
  return written && closed ? std::error_code() : std::make_error_code(std::errc::io_error);
}

#else

std::error_code LastError() { return {errno, std::generic_category()}; }

/// Writes and synchronises a file that nobody had before, `fresh`, in the folder of `target` and with the
/// permissions of `target`, where there is one. `fresh` is empty when no file was made.
std::error_code WriteNew(std::filesystem::path& fresh, std::string_view content,
                         const std::filesystem::path& target) {
  int descriptor = -1;
  do {
    fresh = NewName(target);
    descriptor = ::open(fresh.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0644);
  } while (descriptor < 0 && errno == EEXIST);
  if (descriptor < 0) {
    const std::error_code error = LastError();
    fresh.clear();
    return error;
  }
  std::error_code error;
  struct stat status {};
  if (::stat(target.c_str(), &status) == 0) {
    // Some file systems keep no permissions; the content matters more.
    static_cast<void>(::fchmod(descriptor, status.st_mode & 07777U));
  }
  while (!error && !content.empty()) {
    const ssize_t written = ::write(descriptor, content.data(), content.size());
    if (written >= 0) {
      content.remove_prefix(static_cast<std::size_t>(written));
    } else if (errno != EINTR) {
      error = LastError();
    }
  }
  if (!error && ::fsync(descriptor) != 0) {
    error = LastError();
  }
  if (::close(descriptor) != 0 && !error) {
    error = LastError();
  }
  return error;
}

#endif

std::string CannotWrite(const std::filesystem::path& file, std::string_view why) {
  return Filled(Tr("cannot write %1: %2"), {VisibleText(file.string()), why});
}

}  // namespace

std::string_view OtherKind(const std::filesystem::path& file) {
  using std::filesystem::file_type;
  std::error_code error;
  switch (std::filesystem::status(file, error).type()) {
    case file_type::none:
    case file_type::not_found:
    case file_type::regular:
      return "";
    case file_type::directory:
      return TrMark("it is a folder");
    case file_type::fifo:
      return TrMark("it is a pipe");
    case file_type::socket:
      return TrMark("it is a socket");
    case file_type::block:
    case file_type::character:
      return TrMark("it is a device");
    default:
      return TrMark("it is no plain file");
  }
}

std::filesystem::path LinkTarget(std::filesystem::path file, std::error_code& error) {
  constexpr int kMostLinks = 40;
  std::error_code none;
  for (int links = 0; std::filesystem::is_symlink(std::filesystem::symlink_status(file, none)); ++links) {
    if (links == kMostLinks) {
      error = std::make_error_code(std::errc::too_many_symbolic_link_levels);
      return file;
    }
    file = file.parent_path() / std::filesystem::read_symlink(file, none);
  }
  const std::filesystem::path canonical = std::filesystem::weakly_canonical(file, none);
  return none ? file : canonical;
}

std::optional<std::string> WriteAtomically(const std::filesystem::path& file, std::string_view content) {
  if (const std::string_view kind = OtherKind(file); !kind.empty()) {
    return CannotWrite(file, Tr(kind));
  }
  std::error_code error;
  const std::filesystem::path target = LinkTarget(file, error);
  if (error) {
    return CannotWrite(file, error.message());
  }
  if (target.has_parent_path()) {
    std::filesystem::create_directories(target.parent_path(), error);
  }
  std::filesystem::path fresh;
  error = WriteNew(fresh, content, target);
  if (!error) {
    std::filesystem::rename(fresh, target, error);
  }
  if (error) {
    std::error_code ignored;
    std::filesystem::remove(fresh, ignored);
    return CannotWrite(target, error.message());
  }
  return std::nullopt;
}

}  // namespace veerwatch
