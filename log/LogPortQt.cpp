#include "log/LogPortQt.h"

#include <algorithm>
#include <filesystem>
#include <limits>
#include <system_error>

#include "platform/Language.h"

namespace veerwatch {

LogPortQt::LogPortQt(const Endpoint& file, const Clock& clock)
    : SocketPortQt(clock), m_file(file), m_clock(clock), m_pace(file) {
  m_due.setSingleShot(true);
  m_due.setTimerType(Qt::PreciseTimer);
  QObject::connect(&m_due, &QTimer::timeout, &Context(), [this] { Arrived(); });
}

LogPortQt::~LogPortQt() { PortOpen(false); }

bool LogPortQt::OpenEndpoint(std::string& failure) {
  std::error_code error;
  // A pipe would let the window wait for whoever writes into it.
  if (!std::filesystem::is_regular_file(m_file.Path, error)) {
    failure = m_file.Text + ": " +
              (std::filesystem::exists(m_file.Path, error) ? Tr("no file") : Tr("no such file"));
    return false;
  }
  m_stream = std::ifstream(m_file.Path, std::ios::binary);
  if (!m_stream) {
    failure = Filled(Tr("%1: cannot be read"), {m_file.Text});
    return false;
  }
  m_atEnd = false;
  Begin();
  m_waits = Next();
  Await();
  return true;
}

void LogPortQt::Begin() {
  m_reader.emplace(m_stream, LineEnds::Any);
  m_pace = LogPace(m_file);
  m_start = m_clock.Now().Steady;
  m_lines = 0;
}

bool LogPortQt::Next() {
  if (!m_reader->Next(m_line)) {
    // A log without a line would begin again for ever.
    if (!m_file.Loop || m_lines == 0) {
      m_atEnd = true;
      return false;
    }
    m_stream.clear();
    m_stream.seekg(0);
    Begin();
    // The last line has its time, too.
    constexpr int kPause = 1000;  // [ms]
    m_start += kPause;
    if (!m_reader->Next(m_line)) {
      m_atEnd = true;
      return false;
    }
  }
  ++m_lines;
  m_lineDue = m_start + m_pace.Due(m_line);
  return true;
}

void LogPortQt::Await() {
  if (m_waits) {
    const std::int64_t left = m_lineDue - m_clock.Now().Steady;
    m_due.start(static_cast<int>(std::clamp<std::int64_t>(left, 0, std::numeric_limits<int>::max())));
  }
}

void LogPortQt::CloseEndpoint() {
  m_due.stop();
  m_stream.close();
  m_reader.reset();
  m_waits = false;
  m_atEnd = false;
  Forget();
}

void LogPortQt::Fetch() {
  const std::int64_t now = m_clock.Now().Steady;
  while (m_waits && m_lineDue <= now && Room() > m_line.size() + 2) {
    m_line += "\r\n";
    Take(m_line);
    m_waits = Next();
  }
  Await();
}

}  // namespace veerwatch
