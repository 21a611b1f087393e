// The clocks of this process, which a test may set: what is linked with SteppedClock.cpp, the libraries that
// it uses included, reads them in place of the computer's own.
#pragma once

namespace veerwatch {

/// Sets the wall clock forward, or back with seconds below 0.
void StepWallClock(long long seconds);

/// Sets the steady clock forward, as a sleep does on systems where it counts the time asleep. Never back.
void StepSteadyClock(long long seconds);

}  // namespace veerwatch
