// Ports of which the test says whether they are open.
#pragma once

#include "options/OptionsStore.h"

namespace veerwatch {

class SetPorts final : public OptionsPorts {
 public:
  bool Nmea = false;
  bool Pilot = false;

  bool NmeaPortOpen() const override { return Nmea; }
  bool PilotPortOpen() const override { return Pilot; }
};

}  // namespace veerwatch
