#include "history/StripChartData.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

#include "platform/NumberText.h"

namespace veerwatch {

namespace {

/// The whole multiple of `step` that `value` has reached.
std::int64_t Whole(std::int64_t value, std::int64_t step) {
  const std::int64_t rest = value % step;
  return value - (rest < 0 ? rest + step : rest);
}

/// A sample's text at its first blank: the number, and the units after it.
struct SampleParts {
  std::string_view Number;
  std::string_view Units;
};

SampleParts Split(std::string_view text) {
  const std::size_t begin = text.find_first_not_of(' ');
  if (begin != 0) {
    // No number in front of the first blank.
    return {{}, begin == std::string_view::npos ? std::string_view{} : text.substr(begin)};
  }
  const std::size_t blank = std::min(text.find(' '), text.size());
  const std::size_t units = std::min(text.find_first_not_of(' ', blank), text.size());
  return {text.substr(0, blank), text.substr(units)};
}

}  // namespace

void NewestValue::Units(std::string_view units) {
  m_length = static_cast<std::uint8_t>(std::min(units.size(), m_units.size()));
  std::copy_n(units.data(), m_length, m_units.data());
}

void StripChartData::TraceCountSet(int count) {
  const std::size_t traces = static_cast<std::size_t>(std::max(count, 0));
  m_traces.assign(std::min(traces, kMostTraces), Trace());
  Forget();
}

void StripChartData::TraceDefine(int number, std::string_view name, TraceKind kind, std::string_view units) {
  if (number < 1 || static_cast<std::size_t>(number) > m_traces.size()) {
    return;
  }
  Trace& trace = m_traces[static_cast<std::size_t>(number) - 1];
  trace.Name = name;
  trace.Kind = kind;
  trace.Units = units;
}

void StripChartData::SampleBufferSet(int seconds, double count) {
  if (seconds < 1 || !(count >= 1.0) || count > static_cast<double>(kMostSlots)) {
    return;
  }
  constexpr std::int64_t kMillisecondsPerSecond = 1000;
  m_slotTime = seconds * kMillisecondsPerSecond;
  m_walls.assign(static_cast<std::size_t>(count), 0);
  Forget();
}

void StripChartData::Forget() {
  m_last = kNone;
  m_marks.clear();
  for (Trace& trace : m_traces) {
    trace.Slots.Resize(m_walls.size());
    trace.Newest = NewestValue();
  }
}

bool StripChartData::SampleAdd(std::string_view name, std::string_view text, const Moment& now) {
  const auto found = std::find_if(m_traces.begin(), m_traces.end(),
                                  [name](const Trace& trace) { return trace.Name == name; });
  if (found == m_traces.end()) {
    return false;
  }
  const SampleParts parts = Split(text);
  const float value = StrictNumber(parts.Number).value_or(TraceSlot::kNothing);
  Advance(now);
  found->Slots.Add(Place(m_last), found->Kind, value);
  found->Newest.Value = value;
  found->Newest.Slot = m_last;
  found->Newest.Units(parts.Units);
  return true;
}

void StripChartData::MarkAdd(std::string_view text, const Moment& now) {
  if (m_last == kNone) {
    return;
  }
  Advance(now);
  const bool full = m_marks.size() >= kMostMarks;
  const std::int64_t oldest = full ? m_marks.front().Slot + 1 : FirstSlot();
  std::erase_if(m_marks, [oldest](const Mark& mark) { return mark.Slot < oldest; });
  m_marks.push_back({m_last, std::string(text)});
}

void StripChartData::Advance(const Moment& now) {
  const std::int64_t wall = Whole(now.Wall, m_slotTime);
  if (m_last == kNone) {
    Open(0, wall, false);
  } else if (Jumped(now)) {
    constexpr std::int64_t kGap = 2;
    // What had passed of the newest slot, and what the steady clock counted since.
    const std::int64_t passed =
        m_seen.Wall - Wall(m_last) + std::max<std::int64_t>(now.Steady - m_seen.Steady, 0);
    Open(m_last + std::max(passed / m_slotTime, kGap), wall, true);
  } else if (wall > Wall(m_last)) {
    Open(m_last + (wall - Wall(m_last)) / m_slotTime, wall, false);
  }
  m_seen = now;
}

bool StripChartData::Jumped(const Moment& now) const {
  const std::int64_t passed = now.Steady - m_seen.Steady;
  // A clock that is set back again and again by a little does not hold the newest slot open.
  return passed < 0 || std::llabs(now.Wall - m_seen.Wall - passed) > kJump || Wall(m_last) - now.Wall > kJump;
}

void StripChartData::Open(std::int64_t slot, std::int64_t wall, bool jumped) {
  const std::int64_t lastWall = m_last == kNone ? wall : Wall(m_last);
  for (std::int64_t skipped = std::max(m_last + 1, slot - SlotCount() + 1); skipped <= slot; ++skipped) {
    const std::size_t place = Place(skipped);
    for (Trace& trace : m_traces) {
      trace.Slots.Clear(place);
    }
    m_walls[place] = jumped && skipped < slot ? lastWall + (skipped - m_last) * m_slotTime
                                              : wall - (slot - skipped) * m_slotTime;
  }
  m_last = slot;
}

std::int64_t StripChartData::FirstSlot() const {
  return m_last == kNone ? kNone : std::max<std::int64_t>(0, m_last - SlotCount() + 1);
}

bool StripChartData::JumpedBefore(std::int64_t slot) const {
  return slot > FirstSlot() && Wall(slot) - Wall(slot - 1) != m_slotTime;
}

std::size_t StripChartData::Bytes() const {
  std::size_t bytes = m_walls.capacity() * sizeof(std::int64_t);
  for (const Trace& trace : m_traces) {
    bytes += trace.Slots.Bytes();
  }
  return bytes;
}

}  // namespace veerwatch
