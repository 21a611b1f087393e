// What another program of the computer prints. ProgramReaderQt is the real one; tests answer in its place.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace veerwatch {

class ProgramReader {
 public:
  using Answer = std::function<void(const std::string& printed)>;

  virtual ~ProgramReader() = default;
  /// Starts `program` with `arguments`, returns at once, and calls `answer` with what it has printed when it
  /// ends. Never called for one that is not there, or takes longer than a few seconds; the next call drops
  /// the answer of the one before. No shell reads anything.
  virtual void Read(const std::string& program, const std::vector<std::string>& arguments, Answer answer) = 0;
};

}  // namespace veerwatch
