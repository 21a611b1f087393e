// Serial ports that a test plugs in and out.
#pragma once

#include <vector>

#include "platform/PortFinder.h"

namespace veerwatch {

class ListedPorts final : public PortFinder {
 public:
  std::vector<FoundPort> Plugged;

  std::vector<FoundPort> Found() const override { return Plugged; }
};

}  // namespace veerwatch
