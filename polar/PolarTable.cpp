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
  return Seen({Value(slot, row, 0), Value(slot, 0, column), Value(slot, row, column)});
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
    const double angle = static_cast<double>(cell.Angle) * kRadiansPerDegree;
    const double x =
        static_cast<double>(cell.BoatSpeed) + static_cast<double>(cell.WindSpeed) * std::cos(angle);
    const double y = static_cast<double>(cell.WindSpeed) * std::sin(angle);
    cell.Angle = ToSingle(Atan2(x, y) / kRadiansPerDegree);
  }
  return cell;
}

RowBracket PolarTable::PolarFindRow(int slot, int column, float angle) const {
  PolarCell lower = PolarPoint(slot, 1, column);
  for (int row = 2; row <= PolarRows(slot); ++row) {
    const PolarCell upper = PolarPoint(slot, row, column);
    if (lower.Angle <= angle && angle <= upper.Angle) {
      return {row - 1, lower, upper};
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

float PolarTable::SteppedSpeed(int slot, float angle, float windSpeed) const {
  const int rows = PolarRows(slot);
  const int columns = PolarColumns(slot);
  if (rows < 2 || columns < 1) {
    return 0.0F;
  }
  if (angle < PolarPoint(slot, 1, 1).Angle && angle < PolarPoint(slot, 1, columns).Angle) {
    return 0.0F;
  }
  if (angle > PolarPoint(slot, rows, 1).Angle && angle > PolarPoint(slot, rows, columns).Angle) {
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

  int column = columns;
  RowBracket upper = bracketOf(column);
  while (upper.Row == 0) {
    // Rows at the same angles everywhere enclose it everywhere or nowhere.
    if (m_type == PlotType::TrueWind || --column < 1) {
      return 0.0F;
    }
    upper = bracketOf(column);
  }
  const float upperWind = upper.Lower.WindSpeed;
  if (windSpeed >= upperWind) {
    return AtAngle(upper, angle).BoatSpeed;
  }
  if (column == 1) {
    return 0.0F;
  }

  for (--column; column >= 1; --column) {
    const RowBracket lower = bracketOf(column);
    if (lower.Row == 0) {
      continue;
    }
    if (lower.Lower.WindSpeed <= windSpeed) {
      const PolarCell below = AtAngle(lower, angle);
      const PolarCell above = AtAngle(upper, angle);
      return Interpolate(windSpeed, below.WindSpeed, above.WindSpeed, below.BoatSpeed, above.BoatSpeed);
    }
    upper.Lower.Angle = lower.Lower.Angle;
    upper.Lower.WindSpeed = lower.Lower.WindSpeed;
    upper.Upper.Angle = lower.Upper.Angle;
    upper.Upper.WindSpeed = lower.Upper.WindSpeed;
  }
  const PolarCell above = AtAngle(upper, angle);
  return Interpolate(windSpeed, 0.0F, above.WindSpeed, 0.0F, above.BoatSpeed);
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
