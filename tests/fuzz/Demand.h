// How a fuzz target says that something must hold, and that its inputs get to where it matters.
#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <vector>

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

/// A place that a target's inputs must get to, or its demands are never put to the test. The replay wants
/// each seed at one of them and each of them reached by a seed. Lives as long as the program.
class Landmark {
 public:
  explicit Landmark(const char* name) : m_name(name) { All().push_back(this); }
  Landmark(const Landmark&) = delete;
  Landmark& operator=(const Landmark&) = delete;

  void Reach() { ++m_count; }

  const char* Name() const { return m_name; }
  std::size_t Count() const { return m_count; }

  static std::vector<const Landmark*>& All() {
    static std::vector<const Landmark*> all;
    return all;
  }

 private:
  const char* m_name;
  std::size_t m_count = 0;
};

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
