// What the status bar says of a port, and the state of input and output, as values. Whoever shows them makes
// the texts with the functions below.
#pragma once

#include <string>

#include "settings/PortState.h"

namespace veerwatch {

/// One message of a port.
struct PortStatus {
  enum class What {
    Clear,  ///< nothing to say
    NotOpen,
    NoInputData,
    Simulate,
    SentenceError,
    ChecksumError,
    ReceiveError,
    LineEvent,
  };

  What Says = What::Clear;
  int Number = 0;  ///< of the port that is not open; code of the line event

  bool operator==(const PortStatus&) const = default;
};

/// Text of the input's panel: "Input Port 5 Not Open", "Checksum Error", "" for nothing, ...
std::string InputStatusText(const PortStatus& status);
/// Text of the output's panel: "Output Port 6 Not Open", ...
std::string OutputStatusText(const PortStatus& status);

}  // namespace veerwatch
