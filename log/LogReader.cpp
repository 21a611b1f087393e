#include "log/LogReader.h"

#include <streambuf>

namespace veerwatch {

namespace {

constexpr int kEnd = std::char_traits<char>::eof();

}  // namespace

int LogReader::Take() { return m_stream.rdbuf()->sbumpc(); }

bool LogReader::Next(std::string& line) {
  line.clear();
  const bool any = m_ends == LineEnds::Any;
  int c = Take();
  const bool atEnd = c == kEnd;
  for (; c != kEnd && c != '\r' && !(any && c == '\n'); c = Take()) {
    if (c != '\n' && line.size() < kLongestLine) {
      line.push_back(static_cast<char>(c));
    }
  }
  if (any && c == '\r' && m_stream.rdbuf()->sgetc() == '\n') {
    Take();
  }
  return any ? !atEnd : c != kEnd;
}

}  // namespace veerwatch
