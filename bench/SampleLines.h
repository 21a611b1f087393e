// Sentences to measure with.
#pragma once

#include <string>

namespace veerwatch {

/// `lines` sentences of a boat under sail, ended by CR LF and with checksums: every second one a wind
/// sentence, the others HDG, VHW, VTG, RMC, RMB and a type that nobody decodes, with values that change from
/// line to line.
std::string SampleLines(int lines);

/// One whole wind sentence with a relative angle, as on the wire.
std::string WindLine();

}  // namespace veerwatch
