// Recorded sentences, line by line.
#pragma once

#include <cstddef>
#include <istream>
#include <string>

namespace veerwatch {

/// How the lines of a log end.
enum class LineEnds {
  Any,             ///< LF, CR or CR LF; the last line may lack one
  CarriageReturn,  ///< CR alone, as on the wire: line feeds vanish and an unfinished last line is dropped
};

class LogReader {
 public:
  /// Longest line that is kept [characters]; the rest of a longer one is dropped.
  static constexpr std::size_t kLongestLine = 1U << 20U;

  LogReader(std::istream& stream, LineEnds ends) : m_stream(stream), m_ends(ends) {}

  /// Reads the next line without its end; false after the last one.
  bool Next(std::string& line);

 private:
  int Take();

  std::istream& m_stream;
  LineEnds m_ends;
};

}  // namespace veerwatch
