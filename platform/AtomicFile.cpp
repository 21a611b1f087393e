#include "platform/AtomicFile.h"

#include <cerrno>
#include <system_error>

#ifdef _WIN32
#include <fstream>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace veerwatch {

namespace {

#ifdef _WIN32

std::error_code WriteNew(const std::filesystem::path& file, std::string_view content,
                         const std::filesystem::path&) {
  std::ofstream stream(file, std::ios::binary | std::ios::trunc);
  stream.write(content.data(), static_cast<std::streamsize>(content.size()));
  stream.close();
  return stream.good() ? std::error_code() : std::make_error_code(std::errc::io_error);
}

#else

std::error_code LastError() { return {errno, std::generic_category()}; }

/// Writes and synchronises a new file that has the permissions of `old`, where there is an old one.
std::error_code WriteNew(const std::filesystem::path& file, std::string_view content,
                         const std::filesystem::path& old) {
  const int descriptor = ::open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
  if (descriptor < 0) {
    return LastError();
  }
  std::error_code error;
  struct stat status {};
  if (::stat(old.c_str(), &status) == 0) {
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

}  // namespace

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
  std::error_code error;
  std::filesystem::path target = LinkTarget(file, error);
  if (error) {
    return "cannot write " + file.string() + ": " + error.message();
  }
  if (target.has_parent_path()) {
    std::filesystem::create_directories(target.parent_path(), error);
  }
  std::filesystem::path fresh = target;
  fresh += ".new";
  error = WriteNew(fresh, content, target);
  if (!error) {
    std::filesystem::rename(fresh, target, error);
  }
  if (error) {
    std::error_code ignored;
    std::filesystem::remove(fresh, ignored);
    return "cannot write " + target.string() + ": " + error.message();
  }
  return std::nullopt;
}

}  // namespace veerwatch
