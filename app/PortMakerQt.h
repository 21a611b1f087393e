// The one place that knows which port belongs to which kind of endpoint.
#pragma once

#include "platform/Clock.h"
#include "platform/NamedPort.h"

namespace veerwatch {

/// Makes the real ports; `clock` outlives them.
NamedPort::Maker PortMaker(const Clock& clock);

}  // namespace veerwatch
