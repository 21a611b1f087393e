#include "platform/CommandRunnerQt.h"

#include <QStringList>
#include <cstdio>

#include "platform/VisibleText.h"

namespace veerwatch {

CommandRunnerQt::CommandRunnerQt() {
  // It has no output that anybody reads.
  m_process.setStandardOutputFile(QProcess::nullDevice());
  m_process.setStandardErrorFile(QProcess::nullDevice());
  m_process.setStandardInputFile(QProcess::nullDevice());
  QObject::connect(&m_process, &QProcess::errorOccurred, &m_process, [this](QProcess::ProcessError error) {
    if (error == QProcess::FailedToStart && m_failed != m_process.program()) {
      m_failed = m_process.program();
      std::fprintf(stderr, "Alarm Command: %s cannot be started\n",
                   VisibleText(m_failed.toStdString()).c_str());
    }
  });
}

CommandRunnerQt::~CommandRunnerQt() {
  constexpr int kEndsWithin = 1000;  // [ms]
  m_process.kill();
  m_process.waitForFinished(kEndsWithin);
}

bool CommandRunnerQt::Run(const std::string& command, const std::string& text) {
  QStringList parts = QProcess::splitCommand(QString::fromStdString(command));
  if (parts.isEmpty() || m_process.state() != QProcess::NotRunning) {
    return false;
  }
  m_process.setProgram(parts.takeFirst());
  parts.append(QString::fromStdString(text));
  m_process.setArguments(parts);
  m_process.start(QIODevice::NotOpen);
  return true;
}

}  // namespace veerwatch
