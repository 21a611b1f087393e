// Where everything stands in the course ledger's panel, and where the panel stands on the plot. Plain numbers
// [px], origin at the upper left; LedgerPanelQt strokes them.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "draw/TextMeasure.h"
#include "polar/CourseLedger.h"
#include "polar/PolarGrid.h"

namespace veerwatch {

/// Widths that the texts take [px].
struct LedgerTexts {
  double Height = 11.0;     ///< of the text
  double Caption = 0.0;     ///< the widest column heading
  double LegValue = 0.0;    ///< a heading with its share or time
  double Value = 0.0;       ///< any other figure
  double LongValue = 0.0;   ///< the time under sail with that under motor; 0 for none
  double Label = 0.0;       ///< the widest row label
  double Number = 0.0;      ///< an angle or a speed of a row
  std::size_t Figures = 0;  ///< how many there are: 5, 7 or 9
  bool Rows = true;         ///< false leaves the rows out
  bool operator==(const LedgerTexts&) const = default;
};

/// The widths for `content` in text of `height`. A column has room
/// for whatever usually comes to stand in it, so that the ledger keeps its size while the figures change, and
/// for what stands in it now.
LedgerTexts MeasureLedger(const LedgerContent& content, double height, bool rows, const TextMeasure& measure);

struct LedgerFigurePlace {
  Box Heading;
  Box Value;
};

struct LedgerRowPlace {
  Box Sample;  ///< of the row's colour
  Box Label;
  Box Angle;
  Box Speed;
};

struct LedgerLayout {
  double Width = 0.0;
  double Height = 0.0;
  double Text = 0.0;  ///< height of the text
  Box Title;
  std::vector<LedgerFigurePlace> Figures;
  std::vector<LedgerRowPlace> Rows;  ///< six, or none
  std::vector<Stroke> Separators;    ///< between the rows
  Box Steer;
  Box Tack;
};

/// Title, figures in two columns, rows with lines between them, buttons.
LedgerLayout LayLedger(const LedgerTexts& texts);

/// Height of the ledger's text on a plot of `width` by `height`.
double LedgerTextHeight(double width, double height);

/// Whether `layout` leaves enough of a plot of `width` by `height` to be seen.
bool LedgerFits(const LedgerLayout& layout, double width, double height);

/// The upper left corner of a panel that nobody has moved: at the lower right, or at the middle below where
/// the legend has the corners.
Point LedgerHome(const Box& panel, double width, double height, bool legendInCorners);

/// Where a plate of `width` by `height` stands ahead of the boat, in the sector where none sails, clear of
/// the labels of the grid where it can.
Box SteerPlace(const PolarGeometry& geometry, const std::vector<PlotLabel>& labels, double width,
               double height);

/// The place nearest to that of `panel` at which it lies inside of `width` by `height`; the upper left corner
/// for one that is larger.
Point KeepInside(const Box& panel, double width, double height);

}  // namespace veerwatch
