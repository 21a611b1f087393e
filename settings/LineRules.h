// What is asked of a received line. The numbers are the indexes of the names in the profile. Standard library
// only.
#pragma once

#include <cstdint>

namespace veerwatch {

/// Of a sentence without a checksum.
enum class ChecksumRule : std::int32_t { AcceptMissing = 0, Require = 1 };

/// Of a sentence (MWV, RMC, RMB) that says itself, by the status "V", that it does not hold.
enum class InvalidRule : std::int32_t {
  Use = 0,     ///< what it holds is used
  Ignore = 1,  ///< it counts as one without a value
};

/// Of a line that begins with "!", as those of other ships' transponders do.
enum class ForeignRule : std::int32_t {
  Error = 0,  ///< it is a sentence error
  List = 1,   ///< it is only listed
};

}  // namespace veerwatch
