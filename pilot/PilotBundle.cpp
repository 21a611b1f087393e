#include "pilot/PilotBundle.h"

#include <algorithm>
#include <cassert>

#include "nmea/Checksum.h"

namespace veerwatch {

namespace {

constexpr std::string_view kLineEnd = "\r\n";

}  // namespace

std::string PilotChecksum(std::string_view sentence) {
  const auto digits = ChecksumText(Checksum(sentence.substr(1)));
  return {digits[0], digits[1]};
}

void PilotBundle::Add(std::string_view text) {
  assert(m_size + text.size() <= m_text.size());
  const std::size_t fits = std::min(text.size(), m_text.size() - m_size);
  std::copy_n(text.begin(), fits, m_text.begin() + static_cast<std::ptrdiff_t>(m_size));
  m_size += fits;
}

PilotBundle& PilotBundle::Begin(std::string_view talker, std::string_view type) {
  assert(m_count < kMost);
  Add("$");
  Add(talker);
  Add(type);
  return *this;
}

PilotBundle& PilotBundle::Field(std::string_view text) {
  Add(",");
  Add(text);
  return *this;
}

void PilotBundle::End() {
  const std::string checksum = PilotChecksum(Text().substr(m_begins[m_count]));
  Add("*");
  Add(checksum);
  Add(kLineEnd);
  ++m_count;
  m_begins[m_count] = m_size;
}

std::string_view PilotBundle::Sentence(std::size_t index) const {
  assert(index < m_count);
  const std::size_t begin = m_begins[index];
  return Text().substr(begin, m_begins[index + 1] - begin - kLineEnd.size());
}

}  // namespace veerwatch
