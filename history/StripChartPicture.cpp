#include "history/StripChartPicture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "history/ClockText.h"
#include "platform/Language.h"
#include "platform/NumberText.h"

namespace veerwatch {

namespace {

constexpr std::int64_t kMillisecondsPerSecond = 1000;
/// Columns are not narrower than this [px].
constexpr double kLeastColumn = 1.0;

// Parts of the text height.
constexpr double kEdge = 0.55;      // around everything
constexpr double kPanelGap = 0.45;  // between panels
constexpr double kTitleRow = 1.55;  // above a plot
constexpr double kTimeRow = 1.75;   // below the last plot
constexpr double kTickText = 0.92;  // height of a tick's text
constexpr double kTickRoom = 2.1;   // height per tick of a value axis

double TextFor(const ChartView& view) {
  constexpr double kPerWidth = 1.0 / 62.0;
  constexpr double kPerHeight = 1.0 / 40.0;
  constexpr double kMost = 22.0;
  return std::clamp(std::min(view.Width * kPerWidth, view.Height * kPerHeight), view.LeastTextHeight,
                    std::max(view.LeastTextHeight, kMost));
}

std::string ValueText(float value) { return FormatNumber(value, "0.0"); }

/// The lowest and the highest value of a column after its latest one; nothing where they are the same.
std::string EdgesText(const ValueScale& scale, const TraceBucket& bucket) {
  if (ValueText(bucket.Low) == ValueText(bucket.High)) {
    return "";
  }
  // A turn whose edges have the same tenth.
  constexpr float kAllRound = 359.95F;
  if (scale.Circular() && bucket.High - bucket.Low > kAllRound) {
    return Tr(" (all round)");
  }
  const auto named = [&scale](float edge) {
    const double least = scale.Kind == ScaleKind::Relative ? -180.0 : 0.0;
    return ValueText(scale.Circular() ? static_cast<float>(OnTurnAbove(static_cast<double>(edge), least))
                                      : edge);
  };
  return Filled(Tr(" (%1 to %2)"), {named(bucket.Low), named(bucket.High)});
}

/// The wall clock where a slot begins, that of slots which are not held worked out from those which are.
std::int64_t WallAt(const StripChartData& data, std::int64_t slot) {
  const std::int64_t held = std::clamp(slot, data.FirstSlot(), data.LastSlot());
  return data.Wall(held) + (slot - held) * data.SlotMilliseconds();
}

/// Directions have their axis at the right of the panel that they share.
bool AtRight(const ChartPanel& panel, const ChartAxis& axis) { return axis.ScaleIndex != panel.Group; }

/// One axis per scale in use; the panel's own at the left, that of directions at the right.
void MakeAxes(const ChartSubject& subject, ChartPanel& panel) {
  panel.Axes.clear();
  for (const ChartTrace& drawn : panel.Traces) {
    const auto at = static_cast<std::size_t>(drawn.Trace);
    const TraceGroup& group = subject.Groups[at];
    if (std::any_of(panel.Axes.begin(), panel.Axes.end(),
                    [&group](const ChartAxis& axis) { return axis.ScaleIndex == group.Scale; })) {
      continue;
    }
    ChartAxis axis;
    axis.ScaleIndex = group.Scale;
    axis.Scale.Kind = group.Kind;
    const std::string& title = AtRight(panel, axis) ? subject.Data.Traces()[at].Name
                                                    : subject.Titles[static_cast<std::size_t>(panel.Group)];
    axis.Title.Text = Tr(title);
    if (axis.Scale.Kind == ScaleKind::Linear) {
      axis.Units.Text = UnitsText(subject.Data.Traces()[at].ShownUnits());
    }
    panel.Axes.push_back(axis);
  }
  std::sort(panel.Axes.begin(), panel.Axes.end(),
            [](const ChartAxis& a, const ChartAxis& b) { return a.ScaleIndex < b.ScaleIndex; });
}

/// The scale that the user chose for an axis, or the one that what shows needs.
ValueScale ScaleOf(const ChartSubject& subject, const ChartPanel& panel, const ChartAxis& axis, int ticks) {
  const ScaleChoice& choice = subject.Settings.Scales[static_cast<std::size_t>(axis.ScaleIndex)];
  if (!choice.Automatic) {
    return FixedScale(axis.Scale.Kind, static_cast<double>(choice.Low), static_cast<double>(choice.High),
                      ticks);
  }
  std::vector<ValueInterval> shown;
  for (const ChartTrace& drawn : panel.Traces) {
    if (subject.Groups[static_cast<std::size_t>(drawn.Trace)].Scale == axis.ScaleIndex) {
      for (const TraceBucket& bucket : drawn.Buckets) {
        shown.push_back({static_cast<double>(bucket.Low), static_cast<double>(bucket.High)});
      }
    }
  }
  return AutomaticScale(axis.Scale.Kind, shown, ticks);
}

}  // namespace

std::int64_t SlotsOfSpan(const StripChartData& data, int span) {
  return std::max<std::int64_t>(1, span * kMillisecondsPerSecond / data.SlotMilliseconds());
}

void StripChartPicture::Compose(const ChartSubject& subject, const ChartView& view,
                                const TextMeasure& measure) {
  UtcOffset = view.UtcOffset;
  LayOut(subject, view, measure);
  for (ChartPanel& panel : Panels) {
    ComposePanel(subject, panel, measure);
  }
  ComposeTime(subject.Data, measure);
  ComposeMarks(subject, measure);
}

void StripChartPicture::ChoosePanels(const ChartSubject& subject) {
  std::size_t used = 0;
  for (std::size_t group = 0; group < subject.Titles.size(); ++group) {
    std::vector<int> shown;
    for (std::size_t i = 0; i < subject.Groups.size(); ++i) {
      if (subject.Groups[i].Group == static_cast<int>(group) && subject.Settings.Traces[i].Shown) {
        shown.push_back(static_cast<int>(i));
      }
    }
    if (shown.empty()) {
      continue;
    }
    if (Panels.size() <= used) {
      Panels.emplace_back();
    }
    ChartPanel& panel = Panels[used++];
    panel.Group = static_cast<int>(group);
    panel.Traces.resize(shown.size());
    for (std::size_t i = 0; i < shown.size(); ++i) {
      panel.Traces[i].Trace = shown[i];
    }
  }
  Panels.resize(used);
}

bool StripChartPicture::ShowsDirections(const ChartSubject& subject) const {
  const auto direction = [&subject](const ChartTrace& drawn) {
    return subject.Groups[static_cast<std::size_t>(drawn.Trace)].Kind == ScaleKind::Compass;
  };
  return std::any_of(Panels.begin(), Panels.end(), [&direction](const ChartPanel& panel) {
    return std::any_of(panel.Traces.begin(), panel.Traces.end(), direction);
  });
}

void StripChartPicture::LayOut(const ChartSubject& subject, const ChartView& view,
                               const TextMeasure& measure) {
  TextHeight = TextFor(view);
  const double text = TextHeight;
  Legend.clear();
  ChoosePanels(subject);

  const double tick = kTickText * text;
  const double left = measure.Width("-1800", tick) + 0.7 * text;
  const double right = ShowsDirections(subject) ? measure.Width("3600", tick) + 0.9 * text : 0.7 * text;
  constexpr double kLegendShare = 0.19;
  const double legend = std::max(view.Width * kLegendShare, LegendLeastWidth(text, measure));
  PlotArea.X = left;
  PlotArea.Width = std::max(view.Width - left - right - legend, 1.0);
  const double edge = kEdge * text;
  const double bottom = std::max(view.Height - kTimeRow * text, edge + 1.0);
  TimeArea = {PlotArea.X, bottom, PlotArea.Width, kTimeRow * text};
  const double legendLeft = PlotArea.Right() + right;
  StackPanels(edge, bottom, {legendLeft, 0.0, std::max(view.Width - legendLeft - 0.3 * text, 1.0), 0.0});
  ComposeLegend(subject.Data, text, measure, Legend);
  PlotArea.Y = Panels.empty() ? edge : Panels.front().Plot.Y;
  PlotArea.Height = std::max(bottom - PlotArea.Y, 1.0);

  const std::int64_t span = SlotsOfSpan(subject.Data, subject.Settings.Span);
  SlotWidth = PlotArea.Width / static_cast<double>(span);
  PerBucket =
      std::max<std::int64_t>(1, static_cast<std::int64_t>(std::ceil(kLeastColumn / SlotWidth - 1e-9)));
  // Whole columns, so that they stay what they are while the time goes on.
  EndSlot = (view.EndSlot + PerBucket - 1) / PerBucket * PerBucket;
  LiveSlot = subject.Data.LastSlot() < EndSlot ? subject.Data.LastSlot() / PerBucket * PerBucket : EndSlot;
}

void StripChartPicture::StackPanels(double top, double bottom, const Box& legend) {
  const auto share = [](const ChartPanel& panel) {
    constexpr double kLeastShare = 2.0;
    return std::max(static_cast<double>(panel.Traces.size()), kLeastShare);
  };
  double sum = 0.0;
  for (const ChartPanel& panel : Panels) {
    sum += share(panel);
  }
  const double gap = kPanelGap * TextHeight;
  const double gaps = gap * static_cast<double>(Panels.empty() ? 0 : Panels.size() - 1);
  const double room = std::max(bottom - top - gaps, 0.0);
  for (ChartPanel& panel : Panels) {
    const double height = room * share(panel) / sum;
    const double title = std::min(kTitleRow * TextHeight, height / 2.0);
    panel.Plot = {PlotArea.X, top + title, PlotArea.Width, std::max(height - title, 1.0)};
    PlaceLegendCells(panel, {legend.X, top, legend.Width, height});
    top += height + gap;
  }
}

void StripChartPicture::PlaceLegendCells(const ChartPanel& panel, const Box& box) {
  constexpr double kLargestCell = 6.0;
  const double height =
      std::min(box.Height / static_cast<double>(panel.Traces.size()), kLargestCell * TextHeight);
  double top = box.Y;
  for (const ChartTrace& drawn : panel.Traces) {
    ChartLegendEntry entry;
    entry.Trace = drawn.Trace;
    entry.Cell = {box.X, top, box.Width, height};
    Legend.push_back(entry);
    top += height;
  }
}

void StripChartPicture::ComposePanel(const ChartSubject& subject, ChartPanel& panel,
                                     const TextMeasure& measure) const {
  GatherTraces(subject, panel);
  MakeAxes(subject, panel);
  const int ticks = std::max(2, static_cast<int>(panel.Plot.Height / (kTickRoom * TextHeight)));
  for (ChartAxis& axis : panel.Axes) {
    axis.Scale = ScaleOf(subject, panel, axis, ticks);
    PlaceTitle(panel, measure, axis);
    PlaceTicks(panel, measure, axis);
  }
  // Both titles share a row: the right one goes where they would meet.
  if (panel.Axes.size() > 1 && measure.BoldWidth(panel.Axes[0].Title.Text, TextHeight) +
                                       measure.Width(panel.Axes[1].Title.Text, TextHeight) + TextHeight >
                                   panel.Plot.Width) {
    panel.Axes[1].Title.Text.clear();
  }
  for (ChartTrace& drawn : panel.Traces) {
    const int scale = subject.Groups[static_cast<std::size_t>(drawn.Trace)].Scale;
    for (const ChartAxis& axis : panel.Axes) {
      if (axis.ScaleIndex == scale) {
        drawn.Frame.Scale = axis.Scale;
      }
    }
    std::size_t live = drawn.Buckets.size();
    if (live > 0 && drawn.Buckets.back().Slot >= LiveSlot) {
      --live;
    }
    TraceBuckets(drawn.Frame, drawn.Buckets, 0, live, drawn.Past);
    TraceBuckets(drawn.Frame, drawn.Buckets, live, drawn.Buckets.size(), drawn.Live);
  }
}

void StripChartPicture::GatherTraces(const ChartSubject& subject, ChartPanel& panel) const {
  const std::int64_t firstSlot = EndSlot - SlotsOfSpan(subject.Data, subject.Settings.Span);
  for (ChartTrace& drawn : panel.Traces) {
    drawn.Frame.Plot = panel.Plot;
    drawn.Frame.EndSlot = EndSlot;
    drawn.Frame.SlotWidth = SlotWidth;
    drawn.Frame.PerBucket = PerBucket;
    GatherBuckets(subject.Data, subject.Data.Traces()[static_cast<std::size_t>(drawn.Trace)], firstSlot,
                  EndSlot - 1, PerBucket, drawn.Buckets);
  }
}

void StripChartPicture::PlaceTitle(const ChartPanel& panel, const TextMeasure& measure,
                                   ChartAxis& axis) const {
  const double text = TextHeight;
  const Box& plot = panel.Plot;
  const double height = kTitleRow * text;
  axis.Title.Height = text;
  axis.Title.Align = AtRight(panel, axis) ? PlacedText::Side::Right : PlacedText::Side::Left;
  axis.Title.Place = {plot.X, plot.Y - height, plot.Width, height};
  const double unitsLeft = plot.X + measure.BoldWidth(axis.Title.Text, text) + 0.5 * text;
  axis.Units.Height = 0.9 * text;
  axis.Units.Place = {unitsLeft, axis.Title.Place.Y, std::max(plot.Right() - unitsLeft, 0.0), height};
}

void StripChartPicture::PlaceTicks(const ChartPanel& panel, const TextMeasure& measure,
                                   ChartAxis& axis) const {
  const bool right = AtRight(panel, axis);
  const double height = 1.3 * TextHeight;
  const double gap = 0.35 * TextHeight;
  const Box& plot = panel.Plot;
  for (const ValueTick& tick : Ticks(axis.Scale)) {
    const double y =
        plot.Bottom() - (tick.Value - axis.Scale.Low) / (axis.Scale.High - axis.Scale.Low) * plot.Height;
    PlacedText label;
    label.Text = tick.Text;
    label.Height = kTickText * TextHeight;
    label.Align = right ? PlacedText::Side::Left : PlacedText::Side::Right;
    label.Place = right ? Box{plot.Right() + gap, y - height / 2.0,
                              measure.Width(tick.Text, label.Height) + 1.0, height}
                        : Box{0.0, y - height / 2.0, plot.X - gap, height};
    axis.Labels.push_back(label);
    axis.TickY.push_back(y);
  }
}

void StripChartPicture::ComposeMarks(const ChartSubject& subject, const TextMeasure& measure) {
  Marks.clear();
  if (!subject.Settings.Marks || Panels.empty()) {
    return;
  }
  constexpr int kRows = 4;
  constexpr double kRow = 1.25;  // heights of the text
  const double gap = TextHeight / 3.0;
  std::array<double, kRows> free{};  // labels of a row may begin here
  for (const StripChartData::Mark& one : subject.Data.Marks()) {
    ChartMark mark;
    mark.X = PlotArea.Right() - static_cast<double>(EndSlot - one.Slot) * SlotWidth;
    if (mark.X < PlotArea.X || mark.X > PlotArea.Right()) {
      continue;
    }
    const double width = measure.Width(one.Text, TextHeight);
    const double left = std::min(mark.X + gap, PlotArea.Right() - width);
    const auto row = std::find_if(free.begin(), free.end(), [left](double from) { return from <= left; });
    if (row != free.end()) {
      *row = left + width + gap;
      const auto down = static_cast<double>(row - free.begin()) * kRow * TextHeight;
      mark.Text = {one.Text, {left, PlotArea.Y + down, width, kRow * TextHeight}, TextHeight};
    }
    Marks.push_back(std::move(mark));
  }
}

void StripChartPicture::ComposeTime(const StripChartData& data, const TextMeasure& measure) {
  TimeTicks.clear();
  Jumps.clear();
  if (data.LastSlot() == StripChartData::kNone || Panels.empty()) {
    return;
  }
  const double text = TextHeight;
  const double height = kTickText * text;
  const double labelWidth = measure.Width("00:00", height);
  const double slotSeconds = static_cast<double>(data.SlotMilliseconds()) / kMillisecondsPerSecond;
  const std::int64_t step =
      TimeStep(std::max(60.0, (labelWidth + 1.6 * text) / SlotWidth * slotSeconds)) * kMillisecondsPerSecond;
  const std::int64_t offset = UtcOffset * kMillisecondsPerSecond;
  const std::int64_t first = EndSlot - static_cast<std::int64_t>(std::lround(PlotArea.Width / SlotWidth));
  double free = 0.0;  // labels may begin here

  for (std::int64_t begin = first; begin < EndSlot;) {
    // The slots up to the next jump share a straight clock.
    std::int64_t end = begin + 1;
    while (end < EndSlot && !(end > data.FirstSlot() && end <= data.LastSlot() && data.JumpedBefore(end))) {
      ++end;
    }
    const double beginX = PlotArea.Right() - static_cast<double>(EndSlot - begin) * SlotWidth;
    if (begin != first) {
      Jumps.push_back(beginX);
    }
    const std::int64_t beginWall = WallAt(data, begin);
    const std::int64_t endWall = beginWall + (end - begin) * data.SlotMilliseconds();
    std::int64_t wall = (beginWall + offset) / step * step - offset;
    for (wall += wall < beginWall ? step : 0; wall < endWall; wall += step) {
      ChartTimeTick tick;
      tick.X = beginX + static_cast<double>(wall - beginWall) / static_cast<double>(data.SlotMilliseconds()) *
                            SlotWidth;
      const double left = tick.X - labelWidth / 2.0;
      if (left >= free && left + labelWidth <= TimeArea.Right() + 2.0 * text) {
        tick.Label.Text = ClockText(wall, UtcOffset);
        tick.Label.Height = height;
        tick.Label.Align = PlacedText::Side::Middle;
        tick.Label.Place = {left, TimeArea.Y, labelWidth, TimeArea.Height};
        free = left + labelWidth + 0.5 * text;
      }
      TimeTicks.push_back(tick);
    }
    begin = end;
  }
}

std::optional<ChartReading> StripChartPicture::ReadAt(const ChartSubject& subject, double x, double y) const {
  const auto panel = std::find_if(Panels.begin(), Panels.end(),
                                  [&](const ChartPanel& each) { return each.Plot.Contains(x, y); });
  if (panel == Panels.end() || subject.Data.LastSlot() == StripChartData::kNone) {
    return std::nullopt;
  }
  const double fromEnd = (panel->Plot.Right() - x) / SlotWidth;
  const std::int64_t slot = EndSlot - 1 - static_cast<std::int64_t>(std::floor(fromEnd));
  const std::int64_t bucket = slot / PerBucket * PerBucket;
  if (slot < subject.Data.FirstSlot() || slot > subject.Data.LastSlot()) {
    return std::nullopt;
  }
  ChartReading reading;
  reading.Panel = static_cast<std::size_t>(panel - Panels.begin());
  reading.Time = ClockTextSeconds(subject.Data.Wall(std::max(bucket, subject.Data.FirstSlot())), UtcOffset);
  double nearest = 0.0;
  for (const ChartTrace& drawn : panel->Traces) {
    const auto found =
        std::lower_bound(drawn.Buckets.begin(), drawn.Buckets.end(), bucket,
                         [](const TraceBucket& each, std::int64_t at) { return each.Slot < at; });
    if (found == drawn.Buckets.end() || found->Slot != bucket) {
      continue;
    }
    const StripChartData::Trace& trace = subject.Data.Traces()[static_cast<std::size_t>(drawn.Trace)];
    reading.X = drawn.Frame.X(static_cast<double>(bucket) + static_cast<double>(PerBucket) / 2.0);
    const double value = static_cast<double>(found->Latest);
    ChartReading::Value shown;
    shown.Trace = drawn.Trace;
    const ValueScale& scale = drawn.Frame.Scale;
    shown.Y = std::clamp(drawn.Frame.Y(scale.Circular() ? OnTurnAbove(value, scale.Low) : value),
                         panel->Plot.Y, panel->Plot.Bottom());
    shown.Text = Tr(trace.Name) + " " + ValueText(found->Latest);
    if (!trace.ShownUnits().empty()) {
      shown.Text.append(1, ' ').append(UnitsText(trace.ShownUnits()));
    }
    shown.Text += EdgesText(scale, *found);
    const double distance = std::fabs(shown.Y - y);
    if (reading.Values.empty() || distance < nearest) {
      nearest = distance;
      reading.Nearest = reading.Values.size();
    }
    reading.Values.push_back(shown);
  }
  if (reading.Values.empty()) {
    return std::nullopt;
  }
  return reading;
}

}  // namespace veerwatch
