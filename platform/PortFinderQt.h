// The serial ports that the system tells of.
#pragma once

#include "platform/PortFinder.h"

namespace veerwatch {

class PortFinderQt final : public PortFinder {
 public:
  std::vector<FoundPort> Found() const override;
};

}  // namespace veerwatch
