// A running program and what it says; and a running copy of a built program in a folder of its own, with a
// profile beside it.
#pragma once

#include <sys/types.h>

#include <chrono>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace veerwatch {

/// Looks again and again until the condition holds; false when it does not within half a minute.
inline bool Await(const std::function<bool()>& condition) {
  const auto limit = std::chrono::steady_clock::now() + std::chrono::seconds(30);
  while (!condition()) {
    if (std::chrono::steady_clock::now() > limit) {
      return false;
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
  }
  return true;
}

class Child {
 public:
  Child() = default;
  /// Ends what still runs, the hard way.
  ~Child();
  Child(const Child&) = delete;
  Child& operator=(const Child&) = delete;

  /// Starts the program that the first word names. `environment` is added to that of the test, or takes its
  /// place where the names are equal: "NAME=VALUE". Once.
  bool Start(std::vector<std::string> words, std::vector<std::string> environment = {});

  /// Writes a line to its standard input.
  void Tell(const std::string& line);

  /// All that it has said on standard output and standard error so far.
  const std::string& Said();

  /// Sends SIGTERM.
  void Terminate() const;
  /// Sends SIGKILL.
  void Kill() const;
  pid_t Id() const { return m_pid; }

  /// True while it runs.
  bool Runs();

  /// Waits for the end: its exit status, or minus the signal that ended it; nothing while it goes on running.
  std::optional<int> AwaitEnd();

 private:
  pid_t m_pid = -1;
  int m_input = -1;
  int m_output = -1;
  std::string m_said;
  std::optional<int> m_end;
};

/// What may be different around a process.
struct Surroundings {
  std::vector<std::string> Environment{"QT_QPA_PLATFORM=offscreen"};
  std::vector<std::string> Through;  ///< a command that starts it in its own place
};

class Process : public Child {
 public:
  /// Puts `program` and the profile into a new temporary folder.
  Process(const std::filesystem::path& program, const std::string& profile);
  /// The same program in the folder, and with the profile, of `other`, which outlives it.
  explicit Process(const Process* other);
  /// Ends what still runs, the hard way, and removes its own folder.
  ~Process();
  Process(const Process&) = delete;
  Process& operator=(const Process&) = delete;

  const std::filesystem::path& Folder() const { return m_folder; }
  /// The profile as it lies there now.
  std::string Profile() const;

  /// Starts it, offscreen if nothing else is said. Once.
  bool Start(const std::vector<std::string>& arguments = {}, const Surroundings& around = {});

 private:
  std::filesystem::path m_folder;
  bool m_owns = true;  ///< the folder
  std::filesystem::path m_program;
};

}  // namespace veerwatch
