#include "platform/ProgramReaderQt.h"

#include <utility>

namespace veerwatch {

ProgramReaderQt::ProgramReaderQt() {
  m_limit.setSingleShot(true);
  m_limit.setInterval(kLongest);
  m_process.setStandardInputFile(QProcess::nullDevice());
  m_process.setStandardErrorFile(QProcess::nullDevice());
  QObject::connect(&m_limit, &QTimer::timeout, &m_process, [this] { Stop(); });
  QObject::connect(&m_process, &QProcess::finished, &m_process, [this] {
    m_limit.stop();
    if (const Answer answer = std::exchange(m_answer, nullptr)) {
      answer(m_process.read(kMostPrinted).toStdString());
    }
  });
}

ProgramReaderQt::~ProgramReaderQt() { Stop(); }

void ProgramReaderQt::Stop() {
  m_answer = nullptr;
  m_limit.stop();
  if (m_process.state() != QProcess::NotRunning) {
    constexpr int kEndsWithin = 500;  // [ms]
    m_process.kill();
    m_process.waitForFinished(kEndsWithin);
  }
}

void ProgramReaderQt::Read(const std::string& program, const std::vector<std::string>& arguments,
                           Answer answer) {
  Stop();
  QStringList words;
  for (const std::string& each : arguments) {
    words << QString::fromStdString(each);
  }
  m_answer = std::move(answer);
  m_limit.start();
  m_process.start(QString::fromStdString(program), words, QIODevice::ReadOnly);
}

}  // namespace veerwatch
