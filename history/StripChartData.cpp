#include "history/StripChartData.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <optional>

#include "platform/NumberText.h"

namespace veerwatch {

namespace {

/// How far `value` is above a whole multiple of `step` [0, step).
std::int64_t Above(std::int64_t value, std::int64_t step) {
  const std::int64_t rest = value % step;
  return rest < 0 ? rest + step : rest;
}

/// A sample's text at its first blank: the number, and the units behind it.
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

void StripChartData::Advance(const Moment& now) {
  // The first slot begins at a whole multiple of its duration on the wall clock, and so do those behind it
  // until the clock jumps.
  if (m_last == kNone) {
    Open(0, now.Steady - Above(now.Wall, m_slotTime), now, false);
    return;
  }
  const std::int64_t passed = now.Steady - m_seen.Steady;
  const bool jumped = passed < 0 || std::llabs(now.Wall - m_seen.Wall - passed) > kJump;
  const std::int64_t whole = std::max<std::int64_t>(now.Steady - m_lastBegin, 0) / m_slotTime;
  if (jumped) {
    constexpr std::int64_t kGap = 2;
    Open(m_last + std::max(whole, kGap), now.Steady, now, true);
  } else if (whole > 0) {
    Open(m_last + whole, m_lastBegin + whole * m_slotTime, now, false);
  } else {
    m_seen = now;
  }
}

void StripChartData::Open(std::int64_t slot, std::int64_t steadyBegin, const Moment& now, bool jumped) {
  const std::int64_t wall = now.Wall - (now.Steady - steadyBegin);
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
  m_lastBegin = steadyBegin;
  m_seen = now;
}

std::int64_t StripChartData::FirstSlot() const {
  return m_last == kNone ? kNone : std::max<std::int64_t>(0, m_last - SlotCount() + 1);
}

bool StripChartData::JumpedBefore(std::int64_t slot) const {
  return slot > FirstSlot() && std::llabs(Wall(slot) - Wall(slot - 1) - m_slotTime) > kJump;
}

std::size_t StripChartData::Bytes() const {
  std::size_t bytes = m_walls.capacity() * sizeof(std::int64_t);
  for (const Trace& trace : m_traces) {
    bytes += trace.Slots.Bytes();
  }
  return bytes;
}

}  // namespace veerwatch
