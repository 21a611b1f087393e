#include "nmea/Sentence.h"

#include "nmea/Checksum.h"

namespace veerwatch {

Frame CheckFrame(std::string_view line) {
  if (line.empty() || line.front() != '$') {
    return Frame::NoDollar;
  }
  constexpr std::size_t kTail = 3;  // "*hh"
  if (line.size() <= kTail || line[line.size() - kTail] != '*') {
    return Frame::Good;
  }
  const auto expected = ChecksumText(Checksum(line.substr(1, line.size() - kTail - 1)));
  const std::string_view digits = line.substr(line.size() - 2);
  return digits[0] == expected[0] && digits[1] == expected[1] ? Frame::Good : Frame::WrongChecksum;
}

}  // namespace veerwatch
