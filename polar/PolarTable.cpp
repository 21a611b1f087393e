#include "polar/PolarTable.h"

#include <algorithm>
#include <cmath>

#include "instruments/MathLib.h"

namespace veerwatch {

namespace {

constexpr double kRadiansPerDegree = kPi / 180.0;

/// Boat and wind speed at `angle` between the two cells of a bracket.
PolarCell AtAngle(const RowBracket& bracket, float angle) {
  const PolarCell& lower = bracket.Lower;
  const PolarCell& upper = bracket.Upper;
  return {angle, Interpolate(angle, lower.Angle, upper.Angle, lower.WindSpeed, upper.WindSpeed),
          Interpolate(angle, lower.Angle, upper.Angle, lower.BoatSpeed, upper.BoatSpeed)};
}

/// The angle of a cell with a true angle in apparent wind [deg].
float ApparentAngle(const PolarCell& cell) {
  const double angle = static_cast<double>(cell.Angle) * kRadiansPerDegree;
  const double x =
      static_cast<double>(cell.BoatSpeed) + static_cast<double>(cell.WindSpeed) * std::cos(angle);
  const double y = static_cast<double>(cell.WindSpeed) * std::sin(angle);
  return ToSingle(Atan2(x, y) / kRadiansPerDegree);
}

}  // namespace

float Interpolate(float x, float x1, float x2, float y1, float y2) {
  if (x1 == x2 || y1 == y2) {
    return y1;
  }
  // At its ends the line is exact, and between them it stays between their heights: rounding would lead below
  // a speed of 0.
  if (x == x2) {
    return y2;
  }
  const double slope = (static_cast<double>(y2) - static_cast<double>(y1)) /
                       (static_cast<double>(x2) - static_cast<double>(x1));
  const float y =
      ToSingle(static_cast<double>(y1) + slope * (static_cast<double>(x) - static_cast<double>(x1)));
  const bool between = (x > x1) != (x > x2);
  return between ? std::clamp(y, std::min(y1, y2), std::max(y1, y2)) : y;
}

PolarTable::PolarTable()
    : m_values(static_cast<std::size_t>(kSlots * (kMostRows + 1) * (kMostColumns + 1))) {}

PolarCell PolarTable::PolarPoint(int slot, int row, int column) const {
  return {SeenAngle(slot, row, column), Value(slot, 0, column), Value(slot, row, column)};
}

PolarCell PolarTable::PolarPointAt(int slot, int row, const ColumnBracket& columns) const {
  return Seen({Value(slot, row, 0), columns.WindSpeed, SpeedBetween(slot, row, columns)});
}

float PolarTable::SpeedBetween(int slot, int row, const ColumnBracket& columns) const {
  const bool fromCalm = columns.Lower == 0;
  return Interpolate(columns.WindSpeed, fromCalm ? 0.0F : Value(slot, 0, columns.Lower),
                     Value(slot, 0, columns.Upper), fromCalm ? 0.0F : Value(slot, row, columns.Lower),
                     Value(slot, row, columns.Upper));
}

ColumnBracket PolarTable::PolarFindColumn(int slot, float windSpeed) const {
  const int columns = PolarColumns(slot);
  if (columns < 1) {
    return {};
  }
  if (windSpeed < Value(slot, 0, 1)) {
    return {0, 1, std::max(windSpeed, 0.0F)};
  }
  int upper = 1;
  while (upper < columns && Value(slot, 0, upper) < windSpeed) {
    ++upper;
  }
  return {std::max(upper - 1, 1), upper, std::min(windSpeed, Value(slot, 0, upper))};
}

PolarCell PolarTable::Seen(PolarCell cell) const {
  if (m_type == PlotType::ApparentWind) {
    cell.Angle = ApparentAngle(cell);
  }
  return cell;
}

float PolarTable::SeenAngle(int slot, int row, int column) const {
  if (m_type == PlotType::TrueWind) {
    return Value(slot, row, 0);
  }
  const int rows = PolarRows(slot);
  const int columns = PolarColumns(slot);
  if (row > rows || column > columns) {
    return ApparentAngle({Value(slot, row, 0), Value(slot, 0, column), Value(slot, row, column)});
  }
  std::vector<float>& angles = m_apparent[static_cast<std::size_t>(slot)];
  if (angles.empty()) {
    angles.reserve(static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns));
    for (int c = 1; c <= columns; ++c) {
      for (int r = 1; r <= rows; ++r) {
        angles.push_back(ApparentAngle({Value(slot, r, 0), Value(slot, 0, c), Value(slot, r, c)}));
      }
    }
  }
  return angles[static_cast<std::size_t>((column - 1) * rows + row - 1)];
}

RowBracket PolarTable::PolarFindRow(int slot, int column, float angle) const {
  float lower = SeenAngle(slot, 1, column);
  for (int row = 2; row <= PolarRows(slot); ++row) {
    const float upper = SeenAngle(slot, row, column);
    if (lower <= angle && angle <= upper) {
      return {row - 1, PolarPoint(slot, row - 1, column), PolarPoint(slot, row, column)};
    }
    lower = upper;
  }
  return {};
}

float PolarTable::PolarSpeed(int slot, float angle, float windSpeed) const {
  return m_smooth ? SmoothSpeed(slot, angle, windSpeed) : SteppedSpeed(slot, angle, windSpeed);
}

float PolarTable::SmoothSpeed(int slot, float angle, float windSpeed) const {
  const ColumnBracket columns = PolarFindColumn(slot, windSpeed);
  if (columns.Upper == 0) {
    return 0.0F;
  }
  for (int row = 1; row < PolarRows(slot); ++row) {
    const float lower = Value(slot, row, 0);
    const float upper = Value(slot, row + 1, 0);
    if (lower <= angle && angle <= upper) {
      return Interpolate(angle, lower, upper, SpeedBetween(slot, row, columns),
                         SpeedBetween(slot, row + 1, columns));
    }
  }
  return 0.0F;
}

bool PolarTable::OutsideRows(int slot, float angle) const {
  const int rows = PolarRows(slot);
  const int columns = PolarColumns(slot);
  return (angle < PolarPoint(slot, 1, 1).Angle && angle < PolarPoint(slot, 1, columns).Angle) ||
         (angle > PolarPoint(slot, rows, 1).Angle && angle > PolarPoint(slot, rows, columns).Angle);
}

float PolarTable::SteppedSpeed(int slot, float angle, float windSpeed) const {
  const int columns = PolarColumns(slot);
  if (PolarRows(slot) < 2 || columns < 1) {
    return 0.0F;
  }
  if (OutsideRows(slot, angle)) {
    return 0.0F;
  }

  // Rows stand at the same true angle in every column, so one search serves them all.
  int knownRow = 0;
  const auto bracketOf = [&](int column) -> RowBracket {
    if (m_type == PlotType::TrueWind && knownRow > 0) {
      return {knownRow, PolarPoint(slot, knownRow, column), PolarPoint(slot, knownRow + 1, column)};
    }
    const RowBracket bracket = PolarFindRow(slot, column, angle);
    knownRow = bracket.Row;
    return bracket;
  };

  int highest = columns;
  RowBracket upper = bracketOf(highest);
  while (upper.Row == 0) {
    // Rows at the same angles everywhere enclose it everywhere or nowhere.
    if (m_type == PlotType::TrueWind || --highest < 1) {
      return 0.0F;
    }
    upper = bracketOf(highest);
  }
  if (windSpeed >= upper.Lower.WindSpeed) {
    return AtAngle(upper, angle).BoatSpeed;
  }
  if (highest == 1) {
    return 0.0F;
  }

  // Most columns have a wind above the wanted one. Of those only the lowest that encloses the angle counts,
  // so the search for it goes upwards from the one below.
  const auto above = [&](int column) { return Value(slot, 0, column) > windSpeed; };
  RowBracket lower;
  int column = highest;
  while (lower.Row == 0 && --column >= 1) {
    lower = above(column) ? RowBracket() : bracketOf(column);
  }
  for (RowBracket passed; passed.Row == 0 && ++column < highest;) {
    passed = above(column) ? bracketOf(column) : RowBracket();
    if (passed.Row > 0) {
      upper.Lower.Angle = passed.Lower.Angle;
      upper.Lower.WindSpeed = passed.Lower.WindSpeed;
      upper.Upper.Angle = passed.Upper.Angle;
      upper.Upper.WindSpeed = passed.Upper.WindSpeed;
    }
  }
  const PolarCell over = AtAngle(upper, angle);
  if (lower.Row == 0) {
    return Interpolate(windSpeed, 0.0F, over.WindSpeed, 0.0F, over.BoatSpeed);
  }
  const PolarCell under = AtAngle(lower, angle);
  return Interpolate(windSpeed, under.WindSpeed, over.WindSpeed, under.BoatSpeed, over.BoatSpeed);
}

NearestCell PolarTable::PolarNearest(int slot, double x, double y, const PolarGeometry& geometry) const {
  NearestCell nearest;
  for (int row = 1; row <= PolarRows(slot); ++row) {
    for (int column = 1; column <= PolarColumns(slot); ++column) {
      const PolarCell cell = PolarPoint(slot, row, column);
      const double angle = static_cast<double>(cell.Angle) * kRadiansPerDegree;
      const double across = static_cast<double>(cell.BoatSpeed) * geometry.ScaleX * std::sin(angle);
      const double up = static_cast<double>(cell.BoatSpeed) * geometry.ScaleY * std::cos(angle);
      for (const float side : {1.0F, -1.0F}) {
        const double dx = x - (geometry.CentreX + static_cast<double>(side) * across);
        const double dy = y - (geometry.CentreY - up);
        const double distance = dx * dx + dy * dy;
        if (!nearest.Found || distance < nearest.SquaredDistance) {
          nearest = {{side * cell.Angle, cell.WindSpeed, cell.BoatSpeed}, distance, true};
        }
      }
    }
  }
  return nearest;
}

}  // namespace veerwatch
