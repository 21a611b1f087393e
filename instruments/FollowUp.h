// The steps that follow a fresh wind: the same after a wind sentence and after a simulator tick, in an order
// of their own each. Deliberate: an enabled wind sentence that brings no wind runs them too.
#pragma once

#include "platform/Clock.h"

namespace veerwatch {

class FollowUp {
 public:
  virtual ~FollowUp() = default;
  /// One pass of the control loop over the record, for a wind that came at `now`.
  virtual void ControlStep(const Moment& now) = 0;
  /// Hands the record and the tracking mode to the polar window.
  virtual void PolarUpdate() = 0;
};

}  // namespace veerwatch
