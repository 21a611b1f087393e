// A program that is started for an alarm, such as one that switches a buzzer. CommandRunnerQt is the real
// one; tests write down what is run.
#pragma once

#include <string>

namespace veerwatch {

class CommandRunner {
 public:
  virtual ~CommandRunner() = default;
  /// Starts `command`, a program with its own arguments, with `text` as one more, and returns at once. No
  /// shell reads either. False, and nothing is started, while the last one has not ended, or for an empty
  /// command.
  virtual bool Run(const std::string& command, const std::string& text) = 0;
};

}  // namespace veerwatch
