// A port on an endpoint in memory, open, with an owner and a clock in the hands of the test.
#pragma once

#include "platform/EndpointPort.h"

#include <gtest/gtest.h>

#include "tests/support/HandClock.h"
#include "tests/support/MemoryEndpoint.h"
#include "tests/support/PortOwner.h"

namespace veerwatch {

class EndpointPortTest : public testing::Test {
 protected:
  EndpointPortTest() { m_port.PortOpen(true); }

  HandClock m_clock;
  MemoryEndpoint m_port{m_clock};
  PortOwner m_owner{m_port};
};

}  // namespace veerwatch
