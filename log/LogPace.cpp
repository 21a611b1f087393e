#include "log/LogPace.h"

#include <algorithm>

#include "log/LineTime.h"
#include "nmea/SentenceTable.h"

namespace veerwatch {

std::int64_t LogPace::Due(std::string& line) {
  constexpr double kMilliseconds = 1000.0;
  const std::optional<std::int64_t> time = TakeLineTime(line);
  const SentenceKind* kind = FindSentence(line);
  if (time) {
    m_due += m_time ? static_cast<double>(std::max<std::int64_t>(*time - *m_time, 0)) / m_speed : 0.0;
    m_time = time;
  } else if (m_interval > 0.0) {
    m_due += m_first ? 0.0 : m_interval * kMilliseconds / m_speed;
  } else if (!m_time && kind != nullptr && kind->IsWind) {
    m_due += kMilliseconds / m_speed;
  }
  m_first = false;
  return static_cast<std::int64_t>(m_due);
}

}  // namespace veerwatch
