#include "history/ChartLegend.h"

#include <algorithm>
#include <cmath>

#include "history/TraceGroups.h"
#include "platform/Language.h"
#include "platform/NumberText.h"

namespace veerwatch {

namespace {

/// Slots without a sample after which a newest value counts as old.
constexpr std::int64_t kOldAfter = 2;
const char* const kNoValue = "\xE2\x80\x93";
/// The part of an entry that units may take.
constexpr double kLargestUnits = 1.0 / 3.0;
/// As wide as any value of an instrument.
const char* const kLongest = "-188.8";

// Parts of the text height.
constexpr double kTwoLineCell = 3.0;  // a cell of this height has the name above the value
constexpr double kNameRow = 1.2;
constexpr double kNameGap = 0.5;  // between a name and the value after it
constexpr double kUnitsGap = 0.35;
constexpr double kUnitsText = 0.9;
constexpr double kLargestValue = 3.2;    // above its name
constexpr double kLargestInLine = 1.15;  // after its name

/// What all entries of a legend share.
struct Columns {
  double Text;        ///< height of the names
  double Left;        ///< where names begin
  double Right;       ///< of the cells
  double Cell;        ///< height of the lowest one
  double UnitsWidth;  ///< of the longest units that fit, with the gap in front of them
  double ValueHeight = 0.0;
  double ValueRight = 0.0;

  double Width() const { return std::max(Right - Left, 1.0); }
};

double Swatch(double text) { return std::max(3.0, 0.3 * text); }

/// Text heights are whole pixels, as fonts are.
double WholePixels(double height) { return std::max(std::floor(height), 1.0); }

void TakeValue(const StripChartData& data, ChartLegendEntry& entry) {
  const StripChartData::Trace& trace = data.Traces()[static_cast<std::size_t>(entry.Trace)];
  const NewestValue& newest = trace.Newest;
  const bool none = newest.Slot == NewestValue::kNever || !std::isfinite(newest.Value);
  entry.Old = none || data.LastSlot() - newest.Slot >= kOldAfter;
  entry.Value.Text = none ? kNoValue : FormatNumber(newest.Value, "0.0");
  entry.Value.Align = PlacedText::Side::Right;
  entry.Name.Text = Tr(trace.Name);
  entry.Brief = Tr(ShortName(trace.Name));
  entry.Units.Text = UnitsText(trace.ShownUnits());
}

/// Leaves units out for which there is no room.
Columns Measured(double text, const TextMeasure& measure, std::vector<ChartLegendEntry>& legend) {
  const Box& first = legend.front().Cell;
  Columns columns{text, first.X + Swatch(text) + 0.5 * text, first.Right(), first.Height,
                  measure.Width(UnitsText("Kts"), kUnitsText * text)};
  for (ChartLegendEntry& entry : legend) {
    columns.Cell = std::min(columns.Cell, entry.Cell.Height);
    const double units = measure.Width(entry.Units.Text, kUnitsText * text);
    if (units > kLargestUnits * columns.Width()) {
      entry.Units.Text.clear();
    } else {
      columns.UnitsWidth = std::max(columns.UnitsWidth, units);
    }
  }
  columns.UnitsWidth += kUnitsGap * text;
  return columns;
}

/// Names above their values.
void PlaceInTwoLines(const Columns& columns, const TextMeasure& measure, ChartLegendEntry& entry) {
  const double top = entry.Cell.Y + 0.07 * entry.Cell.Height;
  if (measure.Width(entry.Name.Text, columns.Text) > columns.Width()) {
    entry.Name.Text = entry.Brief;
  }
  entry.Name.Height = columns.Text;
  entry.Name.Place = {columns.Left, top, columns.Width(), kNameRow * columns.Text};
  entry.Value.Place = {columns.Left, entry.Name.Place.Bottom(), columns.ValueRight - columns.Left,
                       0.86 * entry.Cell.Height - kNameRow * columns.Text};
}

/// Names, as long as they fit, in front of their values.
void PlaceInOneLine(const Columns& columns, double value, const TextMeasure& measure,
                    ChartLegendEntry& entry) {
  const double room = std::max(columns.ValueRight - value - columns.Left, 0.0);
  if (measure.Width(entry.Name.Text, columns.Text) + kNameGap * columns.Text > room) {
    entry.Name.Text = entry.Brief;
  }
  entry.Name.Height = std::min(columns.Text, 0.85 * columns.Cell);
  entry.Name.Place = {columns.Left, entry.Cell.Y, room, entry.Cell.Height};
  entry.Value.Place = {columns.ValueRight - value, entry.Cell.Y, value, entry.Cell.Height};
}

}  // namespace

double LegendLeastWidth(double text, const TextMeasure& measure) {
  return measure.Width(Tr("AWA") + " ", text) + measure.BoldWidth(kLongest, text) + 1.5 * text;
}

void ComposeLegend(const StripChartData& data, double text, const TextMeasure& measure,
                   std::vector<ChartLegendEntry>& legend) {
  if (legend.empty()) {
    return;
  }
  double brief = 0.0;
  for (ChartLegendEntry& entry : legend) {
    TakeValue(data, entry);
    brief = std::max(brief, measure.Width(entry.Brief, text));
  }
  Columns columns = Measured(text, measure, legend);
  const double longest = measure.BoldWidth(kLongest, 1.0);
  const bool twoLines = columns.Cell >= kTwoLineCell * text;
  bool units = true;
  if (twoLines) {
    columns.ValueHeight = WholePixels(std::min({0.86 * columns.Cell - kNameRow * text, kLargestValue * text,
                                                (columns.Width() - columns.UnitsWidth) / longest}));
    columns.ValueRight = columns.Left + longest * columns.ValueHeight;
  } else {
    const double free = columns.Width() - brief - kNameGap * text;
    columns.ValueHeight = WholePixels(std::min({0.85 * columns.Cell, kLargestInLine * text, free / longest}));
    units = longest * columns.ValueHeight + columns.UnitsWidth <= free;
    columns.ValueRight = units ? columns.Right - columns.UnitsWidth : columns.Right;
  }
  for (ChartLegendEntry& entry : legend) {
    entry.Swatch = {entry.Cell.X, entry.Cell.Y + 0.1 * entry.Cell.Height, Swatch(text),
                    0.8 * entry.Cell.Height};
    if (twoLines) {
      PlaceInTwoLines(columns, measure, entry);
    } else {
      PlaceInOneLine(columns, longest * columns.ValueHeight, measure, entry);
    }
    const double own = measure.BoldWidth(entry.Value.Text, 1.0);
    entry.Value.Height = std::min(columns.ValueHeight, WholePixels(entry.Value.Place.Width / own + 1e-9));
    const double unitsLeft = columns.ValueRight + kUnitsGap * text;
    entry.Units.Height = kUnitsText * text;
    entry.Units.Place = {unitsLeft, entry.Value.Place.Y, std::max(columns.Right - unitsLeft, 0.0),
                         entry.Value.Place.Height};
    if (!units) {
      entry.Units.Text.clear();
    }
  }
}

}  // namespace veerwatch
