// The steps that follow a fresh wind: the same after a wind sentence and after a simulator tick, in an order
// of their own each. Deliberate: an enabled wind sentence that brings no wind runs them too.
#pragma once

namespace veerwatch {

class FollowUp {
 public:
  virtual ~FollowUp() = default;
  /// One pass of the control loop over the record.
  virtual void ControlStep() = 0;
  /// Hands the record and the tracking mode to the polar window.
  virtual void PolarUpdate() = 0;
};

}  // namespace veerwatch
