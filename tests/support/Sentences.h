// Sentences for tests.
#pragma once

#include <string>
#include <string_view>

namespace veerwatch {

/// `body`, which begins with "$" and has no "*", with its checksum after it.
inline std::string WithChecksum(std::string_view body) {
  unsigned sum = 0;
  for (const char c : body.substr(1)) {
    sum ^= static_cast<unsigned char>(c);
  }
  const char* digits = "0123456789ABCDEF";
  return std::string(body) + "*" + digits[sum / 16U] + digits[sum % 16U];
}

}  // namespace veerwatch
