#include "platform/PortFailure.h"

#ifndef _WIN32
#include <dirent.h>
#include <grp.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

#include <algorithm>
#include <array>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "platform/Language.h"
#include "platform/VisibleText.h"

namespace veerwatch {

namespace fs = std::filesystem;

std::string DevicePath(std::string device) {
#ifndef _WIN32
  if (device.find('/') == std::string::npos) {
    device.insert(0, "/dev/");
  }
#endif
  return device;
}

#ifdef _WIN32

std::string PortFailure(std::string device, const std::string& reason) {
  return VisibleText(device + ": " + reason);
}

#else

namespace {

/// Open files of other programs to look at, at most; a few microseconds each.
constexpr int kMostLooks = 10'000;
constexpr std::size_t kLongestPath = 4096;

/// The number of a process as its folder in /proc is called.
std::optional<pid_t> ProcessNumber(std::string_view name) {
  pid_t number = 0;
  const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), number);
  return error == std::errc() && end == name.data() + name.size() && number > 0 ? std::optional(number)
                                                                                : std::nullopt;
}

/// What a process is called; "" where there is none of that number.
std::string ProgramName(pid_t process) {
  std::string name;
  std::getline(std::ifstream("/proc/" + std::to_string(process) + "/comm"), name);
  return name;
}

using Folder = std::unique_ptr<DIR, int (*)(DIR*)>;

/// Calls `look` with the name of each entry of `path` until it returns false.
template <class Look>
void ForEntries(const std::string& path, Look&& look) {
  const Folder folder(::opendir(path.c_str()), ::closedir);
  while (folder) {
    const dirent* entry = ::readdir(folder.get());
    if (entry == nullptr || !look(static_cast<const char*>(entry->d_name), ::dirfd(folder.get()))) {
      return;
    }
  }
}

/// Whether the process whose folder is `process` has `device` open. Each look takes one of `looks`.
bool HasOpen(const std::string& process, const std::string& device, int& looks) {
  bool found = false;
  ForEntries(process + "/fd", [&](const char* name, int folder) {
    std::array<char, kLongestPath> target{};
    const ssize_t length = ::readlinkat(folder, name, target.data(), target.size());
    found = length > 0 && device == std::string_view(target.data(), static_cast<std::size_t>(length));
    return !found && --looks > 0;
  });
  return found;
}

/// The process that has `device` open, among those whose open files may be seen; the newest first.
std::optional<pid_t> UserByFiles(const std::string& device) {
  std::vector<pid_t> processes;
  ForEntries("/proc", [&processes](const char* name, int) {
    if (const auto number = ProcessNumber(name)) {
      processes.push_back(*number);
    }
    return true;
  });
  std::sort(processes.rbegin(), processes.rend());
  int looks = kMostLooks;
  for (const pid_t process : processes) {
    if (HasOpen("/proc/" + std::to_string(process), device, looks)) {
      return process;
    }
    if (looks <= 0) {
      break;
    }
  }
  return std::nullopt;
}

/// The process that holds the lock file of `device`.
std::optional<pid_t> UserByLock(const std::string& device) {
  std::string name = fs::path(device).lexically_relative("/dev").string();
  std::replace(name.begin(), name.end(), '/', '_');
  for (const char* folder : {"/var/lock", "/run/lock", "/run/lock/lockdev", "/tmp"}) {
    const fs::path lock = fs::path(folder) / ("LCK.." + name);
    std::error_code error;
    pid_t process = 0;
    if (fs::is_regular_file(fs::symlink_status(lock, error)) && std::ifstream(lock) >> process &&
        process > 0) {
      return process;
    }
  }
  return std::nullopt;
}

std::string InUse(const std::string& device) {
  constexpr const char* kByItself = TrMark("in use by this program's other port");
  int looks = kMostLooks;
  if (HasOpen("/proc/self", device, looks)) {
    return kByItself;
  }
  for (const auto& find : {UserByLock, UserByFiles}) {
    const std::optional<pid_t> process = find(device);
    if (process == ::getpid()) {
      return kByItself;
    }
    const std::string name = process ? ProgramName(*process) : "";
    if (!name.empty()) {
      return Filled(Tr("in use by another program, %1"), {name});
    }
  }
  return Tr("in use by another program");
}

std::string NoPermission(const fs::path& device) {
  struct stat status {};
  constexpr mode_t kGroupMay = S_IRGRP | S_IWGRP;
  if (::stat(device.c_str(), &status) == 0 && (status.st_mode & kGroupMay) == kGroupMay &&
      status.st_gid != 0) {
    const group* owners = ::getgrgid(status.st_gid);
    if (owners != nullptr) {
      return Filled(Tr("no permission, add yourself to the group %1"), {owners->gr_name});
    }
  }
  return Tr("no permission, add yourself to the group dialout");
}

}  // namespace

std::string PortFailure(std::string device, const std::string& reason) {
  device = DevicePath(std::move(device));
  const auto because = [&device](const std::string& text) { return VisibleText(device + ": " + text); };
  std::error_code error;
  const fs::path file = fs::canonical(device, error);
  if (error) {
    return because(error == std::errc::no_such_file_or_directory ? Tr("no such device") : error.message());
  }
  if (!fs::is_character_file(file, error) || error) {
    return because(Tr("not a serial device"));
  }
  if (::access(file.c_str(), R_OK | W_OK) != 0) {
    return because(NoPermission(file));
  }
  return because(reason.empty() ? InUse(file.string()) : reason);
}

#endif

}  // namespace veerwatch
