// Starts programs of the computer. One that still runs ends with this.
#pragma once

#include <QProcess>

#include "platform/CommandRunner.h"

namespace veerwatch {

class CommandRunnerQt final : public CommandRunner {
 public:
  CommandRunnerQt();
  ~CommandRunnerQt() override;

  /// A program that cannot be started is said on standard error, once for each command.
  bool Run(const std::string& command, const std::string& text) override;

 private:
  QProcess m_process;
  QString m_failed;  ///< the command that could not be started
};

}  // namespace veerwatch
