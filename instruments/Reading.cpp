#include "instruments/Reading.h"

#include <algorithm>

namespace veerwatch {

Origin OriginOf(std::string_view line, std::int16_t port, const Moment& now) {
  constexpr std::size_t kTalker = 1;
  constexpr std::size_t kType = 3;
  Origin origin;
  origin.Port = port;
  origin.At = now;
  if (line.size() >= kType + origin.Sentence.size()) {
    std::copy_n(line.begin() + kTalker, origin.Talker.size(), origin.Talker.begin());
    std::copy_n(line.begin() + kType, origin.Sentence.size(), origin.Sentence.begin());
  }
  return origin;
}

}  // namespace veerwatch
