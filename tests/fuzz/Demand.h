// How a fuzz target says that something must hold.
#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace veerwatch {

/// Ends the program where `holds` is false, so that the fuzzer keeps the input.
inline void Demand(bool holds, const char* what = "") {
  if (!holds) {
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
  }
}

/// A text that a user sees holds no number that is none.
inline void DemandNumbers(std::string_view text) {
  Demand(text.find("nan") == std::string_view::npos && text.find("inf") == std::string_view::npos,
         "a number");
}

/// Takes values from the front of an input; zeros when it is used up.
class Bytes {
 public:
  Bytes(const std::uint8_t* data, std::size_t size) : m_data(data), m_size(size) {}

  std::uint8_t Byte() {
    if (m_size == 0) {
      return 0;
    }
    --m_size;
    return *m_data++;
  }

  /// A number from `low` to `high`, of 65,536 steps.
  float Number(double low, double high) {
    constexpr double kSteps = 65535.0;
    const int high8 = Byte();
    const int step = high8 * 256 + Byte();
    return static_cast<float>(low + (high - low) * step / kSteps);
  }

  std::string_view Rest() const { return {reinterpret_cast<const char*>(m_data), m_size}; }

 private:
  const std::uint8_t* m_data;
  std::size_t m_size;
};

}  // namespace veerwatch
