// Reads what programs of the computer print. One that still runs ends with this.
#pragma once

#include <QProcess>
#include <QTimer>

#include "platform/ProgramReader.h"

namespace veerwatch {

class ProgramReaderQt final : public ProgramReader {
 public:
  static constexpr int kLongest = 8000;            ///< [ms]
  static constexpr qint64 kMostPrinted = 1 << 18;  ///< [bytes]

  ProgramReaderQt();
  ~ProgramReaderQt() override;

  void Read(const std::string& program, const std::vector<std::string>& arguments, Answer answer) override;

 private:
  void Stop();

  QProcess m_process;
  QTimer m_limit;
  Answer m_answer;
};

}  // namespace veerwatch
