// What a strip chart has recorded: named traces of one ring of slots, the wall clock of every slot and the
// newest value of every trace. Without a window and without a clock: every sample comes with its moment. Used
// by the widget StripChart, which draws it, and by the text of "Save data...".
//
// Slots begin at whole multiples of their duration on the wall clock. They are numbered from 0 on and only
// ever forwards; slot numbers are what the rest of the chart calculates with. When a clock jumps (the wall
// clock against the steady one, or the steady one backwards), the sample opens a new slot, as far after the
// one before as the steady clock counted, and one at least stays empty in front of it. So no slot is ever
// written again after a later one, and none holds values from before and after the jump. Deliberate: when the
// clock is set back, a later slot has the time of an earlier one.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "history/TraceBuffer.h"
#include "platform/Clock.h"

namespace veerwatch {

/// The newest value of a trace, as it was fed.
class NewestValue {
 public:
  static constexpr std::int64_t kNever = -1;

  float Value = TraceSlot::kNothing;  ///< not a number when the newest sample had none
  std::int64_t Slot = kNever;         ///< the slot it went to

  /// The units, cut to what fits: the first 15 bytes.
  std::string_view Units() const { return {m_units.data(), m_length}; }
  void Units(std::string_view units);

 private:
  std::array<char, 15> m_units{};
  std::uint8_t m_length = 0;
};

class StripChartData {
 public:
  struct Trace {
    std::string Name;
    std::string Units;  ///< at set-up
    TraceKind Kind = TraceKind::Speed;
    TraceBuffer Slots;
    NewestValue Newest;

    /// The units of the newest value, those of the set-up before the first one.
    std::string_view ShownUnits() const { return Newest.Units().empty() ? Units : Newest.Units(); }
  };

  /// What happened, to be read beside the traces.
  struct Mark {
    std::int64_t Slot = 0;
    std::string Text;
  };

  static constexpr std::size_t kMostMarks = 1000;
  static constexpr std::int64_t kNone = -1;       ///< the slot when nothing was recorded
  static constexpr std::int64_t kJump = 2000;     ///< a difference of the clocks [ms] above this is a jump
  static constexpr std::size_t kMostTraces = 64;  ///< numbers above are ignored
  static constexpr std::size_t kMostSlots = 1U << 20U;

  /// Makes `count` [0, kMostTraces] traces without a name, and forgets everything.
  void TraceCountSet(int count);

  /// Names trace `number` [1, count]; any other number is ignored.
  void TraceDefine(int number, std::string_view name, TraceKind kind, std::string_view units);

  /// Slots of `seconds` [s, 1 and more], `count` [1, kMostSlots] of them per trace; forgets all samples.
  /// Anything out of range is ignored.
  void SampleBufferSet(int seconds, double count);

  /// Takes a sample: `text` is a number, a blank and the units. A text that begins with no number that is
  /// finite leaves a gap. False for a name that no trace has; nothing is recorded then. Allocates nothing.
  bool SampleAdd(std::string_view name, std::string_view text, const Moment& now);

  /// Takes a mark for a moment; nothing before the first sample. The oldest go where there are too many, or
  /// their slot is no longer held.
  void MarkAdd(std::string_view text, const Moment& now);
  const std::vector<Mark>& Marks() const { return m_marks; }

  /// Goes on to the slot of a moment without a sample.
  void Advance(const Moment& now);

  const std::vector<Trace>& Traces() const { return m_traces; }

  std::int64_t SlotMilliseconds() const { return m_slotTime; }
  std::int64_t SlotCount() const { return static_cast<std::int64_t>(m_walls.size()); }
  /// The newest slot, kNone before the first sample.
  std::int64_t LastSlot() const { return m_last; }
  /// The oldest slot that is still held; kNone before the first sample.
  std::int64_t FirstSlot() const;
  /// The place in the rings of a slot in [FirstSlot(), LastSlot()].
  std::size_t Place(std::int64_t slot) const { return static_cast<std::size_t>(slot) % m_walls.size(); }
  /// The wall clock at the beginning of a slot in [FirstSlot(), LastSlot()] [ms since 1970 UTC], a whole
  /// multiple of SlotMilliseconds().
  std::int64_t Wall(std::int64_t slot) const { return m_walls[Place(slot)]; }
  /// Whether a slot does not follow the one before it on the wall clock, which jumped between them.
  bool JumpedBefore(std::int64_t slot) const;

  /// Heap memory held by the samples [bytes].
  std::size_t Bytes() const;

 private:
  bool Jumped(const Moment& now) const;
  void Open(std::int64_t slot, std::int64_t wall, bool jumped);
  void Forget();

  std::vector<Trace> m_traces;
  std::vector<Mark> m_marks;  ///< the oldest first
  std::vector<std::int64_t> m_walls = std::vector<std::int64_t>(1, 0);
  std::int64_t m_slotTime = 10000;
  std::int64_t m_last = kNone;
  Moment m_seen;  ///< the latest moment
};

}  // namespace veerwatch
