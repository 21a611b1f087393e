// Files that are read at once. Whoever opens what a user names asks here, so that a file of any size, a
// device or a pipe is refused before anything is read.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace veerwatch {

struct WholeFile {
  std::string Bytes;
  std::string Error;  ///< what keeps the file from being read, in a few words; "" when it was read
};

/// Reads a regular file of at most `most` bytes, a whole number of MiB. Anything else is not opened.
WholeFile ReadWholeFile(const std::filesystem::path& file, std::uintmax_t most);

}  // namespace veerwatch
