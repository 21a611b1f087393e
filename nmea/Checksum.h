// The checksum of an NMEA 0183 sentence.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace veerwatch {

/// Exclusive or of the byte values of `text` [0, 255]. Source: NMEA 0183, sentence structure.
inline std::uint8_t Checksum(std::string_view text) {
  unsigned sum = 0;
  for (const char c : text) {
    sum ^= static_cast<unsigned char>(c);
  }
  return static_cast<std::uint8_t>(sum);
}

/// A checksum as two upper-case hexadecimal digits.
inline std::array<char, 2> ChecksumText(std::uint8_t checksum) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  return {kDigits[checksum >> 4U], kDigits[checksum & 15U]};
}

}  // namespace veerwatch
