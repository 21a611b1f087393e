// The fields of one line of NMEA 0183.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace veerwatch {

/// Views into a line; it must outlive them.
///
///     $IIMWV,045,R,10.5,N,A*hh
///            1   2 3    4 5
class Fields {
 public:
  /// Fields that are kept; the rest of a line is only counted.
  static constexpr std::size_t kKept = 16;

  /// Splits `line` at its commas. The first must be the 7th character, else there are no fields. The last
  /// field ends at the first "*" after the last comma, or at the end of the line. Deliberate: a last field
  /// of one character in a line without any "*" is empty.
  explicit Fields(std::string_view line);

  /// Number of fields, those that are not kept included.
  std::size_t Count() const { return m_count; }

  /// Field `n` [1, kKept]; "" where the line has none.
  std::string_view operator[](std::size_t n) const { return m_fields[n - 1]; }

  /// Field `n` where the line has at least `least` fields and the field is not empty, else nothing.
  std::optional<std::string_view> Text(std::size_t n, std::size_t least) const {
    if (m_count < least || m_fields[n - 1].empty()) {
      return std::nullopt;
    }
    return m_fields[n - 1];
  }

 private:
  std::array<std::string_view, kKept> m_fields;
  std::size_t m_count = 0;
};

}  // namespace veerwatch
