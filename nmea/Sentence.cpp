#include "nmea/Sentence.h"

#include "nmea/Checksum.h"

namespace veerwatch {

namespace {

char Capital(char digit) {
  return digit >= 'a' && digit <= 'f' ? static_cast<char>(digit - 'a' + 'A') : digit;
}

}  // namespace

Frame CheckFrame(std::string_view line, const FrameRules& rules) {
  if (line.empty() || line.front() != '$') {
    return Frame::NoDollar;
  }
  constexpr std::size_t kTail = 3;  // "*hh"
  if (line.size() <= kTail || line[line.size() - kTail] != '*') {
    return rules.Checksum == ChecksumRule::Require ? Frame::WrongChecksum : Frame::Good;
  }
  const auto expected = ChecksumText(Checksum(line.substr(1, line.size() - kTail - 1)));
  const std::string_view digits = line.substr(line.size() - 2);
  const bool own = digits[0] == expected[0] && digits[1] == expected[1];
  const bool small =
      rules.LowerCase && Capital(digits[0]) == expected[0] && Capital(digits[1]) == expected[1];
  return own || small ? Frame::Good : Frame::WrongChecksum;
}

}  // namespace veerwatch
