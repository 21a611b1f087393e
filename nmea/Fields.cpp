#include "nmea/Fields.h"

namespace veerwatch {

Fields::Fields(std::string_view line) {
  constexpr std::size_t kFirstComma = 6;
  if (line.find(',') != kFirstComma) {
    return;
  }
  std::size_t start = kFirstComma + 1;
  for (std::size_t comma = line.find(',', start); comma != std::string_view::npos;
       comma = line.find(',', start)) {
    if (m_count < kKept) {
      m_fields[m_count] = line.substr(start, comma - start);
    }
    ++m_count;
    start = comma + 1;
  }
  std::string_view last = line.substr(start);
  const std::size_t star = last.find('*');
  if (star != std::string_view::npos) {
    last = last.substr(0, star);
  } else if (last.size() == 1) {
    last = {};
  }
  if (m_count < kKept) {
    m_fields[m_count] = last;
  }
  ++m_count;
}

}  // namespace veerwatch
