// A made-up day on the water for the history: tacks every forty minutes, gusts, a wind that veers slowly,
// steering noise, and an hour at noon without instruments. The same at every call.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "platform/Clock.h"

namespace veerwatch {

/// Seconds of the pause around the middle of the day.
inline constexpr int kSampleDayPause = 3600;

/// Calls `sample` with the nine values of each moment of the `seconds` [s] up to `end`, one moment every
/// `step` [s], as the history is fed.
void SampleDay(
    const Moment& end, int seconds, int step,
    const std::function<void(const Moment&, std::string_view name, const std::string& text)>& sample);

}  // namespace veerwatch
