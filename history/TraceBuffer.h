// The samples of one trace: a ring of slots of equal duration. StripChartData decides which slot a moment
// belongs to and owns one buffer per trace.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

namespace veerwatch {

/// What is measured: a speed, or an angle, which comes round at 360 degrees.
enum class TraceKind : std::int16_t { Speed = 0, Angle = 1 };

/// What happened in one slot. Not a number in an empty one.
struct TraceSlot {
  static constexpr float kNothing = std::numeric_limits<float>::quiet_NaN();

  float Latest = kNothing;
  /// Of an angle: on the turn of Latest, so that Low <= Latest <= High and they may leave the angle's usual
  /// range; at most 360 apart.
  float Low = kNothing;
  float High = kNothing;

  bool Empty() const { return Latest != Latest; }
};

class TraceBuffer {
 public:
  /// Forgets everything and makes `count` [1 and more] empty slots.
  void Resize(std::size_t count) { m_slots.assign(count, TraceSlot()); }

  std::size_t Size() const { return m_slots.size(); }

  /// The slot at a place of the ring [0, Size()).
  const TraceSlot& At(std::size_t place) const { return m_slots[place]; }

  /// Takes a value into the slot at `place`. Deliberate: a value that is not finite makes the whole slot a
  /// gap, whatever it held.
  void Add(std::size_t place, TraceKind kind, float value);

  void Clear(std::size_t place) { m_slots[place] = TraceSlot(); }

  /// Heap memory held [bytes].
  std::size_t Bytes() const { return m_slots.capacity() * sizeof(TraceSlot); }

 private:
  std::vector<TraceSlot> m_slots;
};

}  // namespace veerwatch
