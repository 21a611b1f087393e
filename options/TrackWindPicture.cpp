#include "options/TrackWindPicture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "platform/Language.h"
#include "platform/NumberText.h"

namespace veerwatch {

namespace {

constexpr std::int64_t kSlot = 10000;  // [ms]
constexpr double kMillisecondsPerSecond = 1000.0;
constexpr double kGridTime = 100.0;                                                 // [s]
constexpr double kLost = 20.0;                                                      // [deg] root mean square
constexpr std::array<double, 7> kRanges{5.0, 10.0, 15.0, 30.0, 60.0, 90.0, 180.0};  // [deg]

/// The mean error of a slot, at its middle.
struct Slot {
  double Time = 0.0;   // [s]
  double Error = 0.0;  // [deg]
};

std::vector<Slot> SlotsOf(const TrackWindRun& run, const std::vector<WindSample>& winds) {
  std::vector<Slot> slots;
  const std::int64_t start = winds.front().Moment;
  for (std::size_t i = 0; i < winds.size();) {
    const std::int64_t slot = (winds[i].Moment - start) / kSlot;
    double sum = 0.0;
    int count = 0;
    for (; i < winds.size() && (winds[i].Moment - start) / kSlot == slot; ++i, ++count) {
      sum += run.Errors[i];
    }
    const std::int64_t middle = slot * kSlot + kSlot / 2;  // [ms]
    slots.push_back({static_cast<double>(middle) / kMillisecondsPerSecond, sum / count});
  }
  return slots;
}

/// One of the methods, as it is drawn.
struct Run {
  bool Lost = false;  // it does not hold the wind
  std::vector<Slot> Slots;
};

/// The least range that takes in every run, or those that hold where any does: one that swings about would
/// leave the others flat.
double RangeFor(const std::vector<Run>& runs) {
  const bool allLost = std::all_of(runs.begin(), runs.end(), [](const Run& run) { return run.Lost; });
  double largest = 0.0;
  for (const Run& run : runs) {
    if (run.Lost && !allLost) {
      continue;
    }
    for (const Slot& slot : run.Slots) {
      largest = std::max(largest, std::fabs(slot.Error));
    }
  }
  for (const double range : kRanges) {
    if (largest <= range) {
      return range;
    }
  }
  return kRanges.back();
}

Polyline LineOf(const std::vector<Slot>& slots, const TrackScale& scale) {
  Polyline line;
  for (const Slot& slot : slots) {
    line.push_back({slot.Time * scale.TimeScale,
                    (slot.Error - scale.BearingMin) * scale.BearingScale + scale.BearingOrigin});
  }
  return line;
}

/// The numbers in the boxes.
struct Numbers {
  Settings Tuning;
  double Lag = 0.0;
};

/// Reads the boxes; gives the line about the first that is no number, or "".
std::string Read(const TrackWindInputs& inputs, Numbers& numbers) {
  numbers.Tuning = inputs.Tuning;
  const std::array<std::pair<const char*, const std::string&>, 3> boxes{
      {{TrMark("Bandwidth"), inputs.Bandwidth},
       {TrMark("Damping"), inputs.Damping},
       {TrMark("Boat lag"), inputs.Lag}}};
  for (const auto& [name, text] : boxes) {
    if (!StrictNumber(text)) {
      return Filled(Tr("%1 is not a number"), {Tr(name)});
    }
  }
  numbers.Tuning.m_fTrackBandwidth = *StrictNumber(inputs.Bandwidth);
  numbers.Tuning.m_fTrackDamping = *StrictNumber(inputs.Damping);
  numbers.Lag = *StrictDouble(inputs.Lag);
  return TrackWindTrouble(inputs.Winds, numbers.Lag);
}

}  // namespace

TrackPreview TrackWindDraw(const TrackWindInputs& inputs, int width, int height, int legendHeight) {
  TrackPreview preview;
  preview.Width = width;
  preview.Height = height;
  if (width < 2 || height - legendHeight < 2) {
    return preview;
  }
  Numbers numbers;
  preview.Trouble = Read(inputs, numbers);
  if (!preview.Trouble.empty()) {
    return preview;
  }
  std::vector<Run> runs;
  for (const TrackMethod method : {TrackMethod::Sentence, TrackMethod::Clock, TrackMethod::Direction}) {
    const auto run = TrackWindRunOf(numbers.Tuning, method, numbers.Lag, inputs.Winds);
    if (!run) {
      preview.Trouble = Tr("Bandwidth or damping allow no tracking");
      preview.Curves.clear();
      return preview;
    }
    preview.Curves.push_back({method, run->Text(), {}});
    runs.push_back({run->RootMeanSquare > kLost, SlotsOf(*run, inputs.Winds)});
  }
  TrackScale& scale = preview.Scale;
  const double range = RangeFor(runs);
  scale.TimeEnd =
      static_cast<double>(inputs.Winds.back().Moment - inputs.Winds.front().Moment) / kMillisecondsPerSecond;
  scale.TimeScale = (width - 1) / scale.TimeEnd;
  scale.BearingMin = -range;
  scale.BearingMax = range;
  scale.BearingOrigin = height - 1;
  scale.BearingScale = -(height - 1 - legendHeight) / (2.0 * range);
  preview.LegendHeight = legendHeight;
  for (std::size_t i = 0; i < runs.size(); ++i) {
    preview.Curves[i].Line = LineOf(runs[i].Slots, scale);
  }
  preview.Columns = TrackGridColumns(scale, kGridTime);
  preview.Rows = TrackGridRows(scale, -range, range > 30.0 ? 30.0 : range > 15.0 ? 10.0 : 5.0);
  for (TrackReference& reference : preview.References) {
    reference.Row = scale.BearingRow(reference.Bearing);
  }
  return preview;
}

}  // namespace veerwatch
