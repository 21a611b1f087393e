// Bundles of two sentences each, for the tests of what leaves a port.
#pragma once

namespace veerwatch {

inline constexpr const char* kFirst = "$ECAPB,1*00\r\n$ECHSC,1*00\r\n";
inline constexpr const char* kSecond = "$ECAPB,2*00\r\n$ECHSC,2*00\r\n";
inline constexpr const char* kThird = "$ECAPB,3*00\r\n$ECHSC,3*00\r\n";

}  // namespace veerwatch
