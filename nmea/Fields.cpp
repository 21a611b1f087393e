#include "nmea/Fields.h"

#include <algorithm>

namespace veerwatch {

Fields::Fields(std::string_view line) {
  constexpr std::size_t kFirstComma = 6;
  const auto* const head = line.data();
  if (line.size() <= kFirstComma || std::find(head, head + kFirstComma + 1, ',') != head + kFirstComma) {
    return;
  }
  std::size_t start = kFirstComma + 1;
  for (std::size_t at = start; at < line.size(); ++at) {
    if (line[at] == ',') {
      if (m_count < kKept) {
        m_fields[m_count] = line.substr(start, at - start);
      }
      ++m_count;
      start = at + 1;
    }
  }
  std::string_view last = line.substr(start);
  const std::size_t star = last.find('*');
  if (star != std::string_view::npos) {
    last = last.substr(0, star);
  } else if (last.size() == 1 && line.find('*') == std::string_view::npos) {
    last = {};
  }
  if (m_count < kKept) {
    m_fields[m_count] = last;
  }
  ++m_count;
}

}  // namespace veerwatch
