// The real program, spoken to through its remote control, with all of its windows open.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>

#include "tests/e2e/Process.h"

namespace veerwatch {

class Sailor {
 public:
  /// Starts it, and ends this program when that one does not start.
  explicit Sailor(const std::string& profile) : m_program(VEERWATCH_REMOTE, profile) {
    if (!m_program.Start() || Answer().empty()) {
      std::fprintf(stderr, "the program does not start: %s\n", m_program.Said().c_str());
      std::exit(1);
    }
  }

  pid_t Id() const { return m_program.Id(); }
  bool Runs() { return m_program.Runs(); }

  /// The answer to a command; nothing when none came.
  std::string Ask(const std::string& command) {
    m_program.Tell(command);
    return Answer();
  }

  void Do(const std::string& command) {
    const std::string answer = Ask(command);
    if (answer.empty() || answer.starts_with("no ")) {
      std::fprintf(stderr, "%s: %s\n", command.c_str(), answer.c_str());
      std::exit(1);
    }
  }

  /// Opens every window that the profile has not opened, and goes to Setup.
  void OpenWindows() {
    for (const char* command : {"click mnuCourseLedger", "click mnuViewDiagram", "click mnuOptionsInput",
                                "click optNmeaListOn", "click tbrTrack(5)"}) {
      Do(command);
    }
  }

  /// Its exit status. It is switched off first, as it asks while it tracks.
  std::optional<int> Close() {
    Ask("click tbrTrack(1)");
    m_program.Tell("quit");
    return m_program.AwaitEnd();
  }

 private:
  /// The next line that is an answer, and no remark of the toolkit; nothing when none comes.
  std::string Answer() {
    while (Await([this] { return m_program.Said().find('\n', m_read) != std::string::npos; })) {
      const std::size_t end = m_program.Said().find('\n', m_read);
      const std::string line = m_program.Said().substr(m_read, end - m_read);
      m_read = end + 1;
      for (const std::string_view word : {"ready", "clicked ", "typed ", "delays ", "no "}) {
        if (line.starts_with(word)) {
          return line;
        }
      }
    }
    return {};
  }

  Process m_program;
  std::size_t m_read = 0;
};

}  // namespace veerwatch
