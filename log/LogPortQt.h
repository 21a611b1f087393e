// A port on a recorded log, which it plays at its own pace. What is sent to it goes nowhere.
#pragma once

#include <QTimer>
#include <cstdint>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>

#include "log/LogPace.h"
#include "log/LogReader.h"
#include "platform/Language.h"
#include "platform/SocketPortQt.h"

namespace veerwatch {

class LogPortQt final : public SocketPortQt {
 public:
  /// `file` is one of Endpoint::Kind::File; `clock` outlives the port.
  LogPortQt(const Endpoint& file, const Clock& clock);
  ~LogPortQt() override;

  std::string Trouble() const override {
    return m_atEnd ? Filled(Tr("%1: the log is at its end"), {m_file.Text}) : "";
  }

 private:
  bool OpenEndpoint(std::string& failure) override;
  void CloseEndpoint() override;
  void Fetch() override;
  bool Leaving() override { return false; }
  std::size_t Write(std::string_view /*text*/) override { return 0; }
  void SendFor(int /*milliseconds*/) override {}

  void Begin();
  /// Reads the next line, from the front again where it is to; false at the end.
  bool Next();
  /// Waits for the next line to be due.
  void Await();

  const Endpoint m_file;
  const Clock& m_clock;
  QTimer m_due;
  std::ifstream m_stream;
  std::optional<LogReader> m_reader;
  LogPace m_pace;
  std::string m_line;        ///< the next one
  bool m_waits = false;      ///< there is one
  std::int64_t m_start = 0;  ///< [ms of the steady clock]
  std::int64_t m_lineDue = 0;
  int m_lines = 0;  ///< since the log began
  bool m_atEnd = false;
};

}  // namespace veerwatch
