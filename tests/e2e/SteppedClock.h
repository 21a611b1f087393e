// The clocks of this process, which a test may set: what is linked with SteppedClock.cpp, the libraries that
// it uses included, reads them in place of the computer's own.
#pragma once

namespace veerwatch {

/// Sets the wall clock forward, or back with seconds below 0.
void StepWallClock(long long seconds);

/// Sets the steady clocks forward, as a sleep does on systems where they count the time asleep. Never back.
void StepSteadyClock(long long seconds);

/// Sets only that steady clock forward that goes on during sleep, as a sleep does here. Never back.
void StepBootClock(long long seconds);

}  // namespace veerwatch
