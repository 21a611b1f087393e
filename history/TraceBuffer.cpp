#include "history/TraceBuffer.h"

#include <algorithm>
#include <cmath>

namespace veerwatch {

namespace {

constexpr float kTurn = 360.0F;
constexpr float kHalfTurn = 180.0F;

/// Takes an angle that is within a turn of 0 into a slot that has some already.
void AddAngle(TraceSlot& slot, float value) {
  const float step = value - slot.Latest;
  if (step > kHalfTurn || step < -kHalfTurn) {
    // Counted by whole turns, everything in the slot moves onto the turn of the new value.
    const float turns = std::round(step / kTurn) * kTurn;
    slot.Low += turns;
    slot.High += turns;
  }
  slot.Low = std::min(slot.Low, value);
  slot.High = std::max(slot.High, value);
  if (slot.High - slot.Low > kTurn) {
    slot.Low = value - kHalfTurn;
    slot.High = value + kHalfTurn;
  }
  slot.Latest = value;
}

}  // namespace

void TraceBuffer::Add(std::size_t place, TraceKind kind, float value) {
  TraceSlot& slot = m_slots[place];
  if (!std::isfinite(value)) {
    slot = TraceSlot();
    return;
  }
  if (kind == TraceKind::Angle && (value > kTurn || value < -kTurn)) {
    value = std::remainder(value, kTurn);
  }
  if (slot.Empty()) {
    slot = {value, value, value};
  } else if (kind == TraceKind::Angle) {
    AddAngle(slot, value);
  } else {
    slot.Low = std::min(slot.Low, value);
    slot.High = std::max(slot.High, value);
    slot.Latest = value;
  }
}

}  // namespace veerwatch
