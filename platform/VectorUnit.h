// The vector registers of the processor.
#pragma once

namespace veerwatch {

/// Clears the upper halves of the vector registers, where the processor has them; else nothing. While
/// somebody's drawing has left anything there, every ordinary instruction on numbers waits for it, and
/// sines and the like take more than ten times as long.
void ClearUpperHalves();

}  // namespace veerwatch
