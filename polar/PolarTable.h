// The boat's performance polars in memory: boat speed by true wind angle and true wind speed, and the lookup
// of a speed between the cells. Filled by polar/PolarFile.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace veerwatch {

/// In which wind the lookups and the plot see the polar.
enum class PlotType : std::int16_t { TrueWind = 0, ApparentWind = 1 };

/// One cell as the plot and the lookup see it.
struct PolarCell {
  float Angle = 0.0F;      ///< [deg, [0, 180]]: true or, with PlotType::ApparentWind, apparent wind angle
  float WindSpeed = 0.0F;  ///< true wind speed [kn]
  float BoatSpeed = 0.0F;  ///< [kn], scaled
};

/// Where an angle lies within one column.
struct RowBracket {
  int Row = 0;  ///< the lower row, 0 for no bracket
  PolarCell Lower;
  PolarCell Upper;
};

/// The two neighbouring columns that a wind lies between.
struct ColumnBracket {
  int Lower = 0;           ///< 0 below the first column, whose speeds then start from 0 at no wind
  int Upper = 0;           ///< 0 for a table without columns
  float WindSpeed = 0.0F;  ///< the wind, at most that of the last column [kn]
};

/// The cell of a plot that is nearest to a position.
struct NearestCell {
  PolarCell Cell;                ///< its angle is negative on the port side
  double SquaredDistance = 0.0;  ///< [px squared]
  bool Found = false;            ///< false for an empty table
};

/// Where a plot stands.
struct PolarGeometry {
  double CentreX = 0.0;  ///< [px]
  double CentreY = 0.0;  ///< [px], downwards
  double ScaleX = 1.0;   ///< [px per kn]
  double ScaleY = 1.0;   ///< [px per kn]
};

/// y at `x` on the line through (x1, y1) and (x2, y2), not clamped; y1 where x1 equals x2 or y1 equals y2.
float Interpolate(float x, float x1, float x2, float y1, float y2);

class PolarTable {
 public:
  static constexpr int kSlots = 3;  ///< 0 the boat's own polar, 1 the reference, 2 spare
  static constexpr int kMostRows = 200;
  static constexpr int kMostColumns = 50;

  PolarTable();

  /// Value at [slot][row][column], row 0 to kMostRows and column 0 to kMostColumns. Row 0 holds the true wind
  /// speeds [kn], column 0 the true wind angles [deg], the others boat speeds [kn].
  /// The reference is for writing at once: no lookup comes in between.
  float& Value(int slot, int row, int column) {
    Forget(slot);
    return m_values[Index(slot, row, column)];
  }
  float Value(int slot, int row, int column) const { return m_values[Index(slot, row, column)]; }

  /// Rows and columns of a slot, besides row and column 0.
  std::int16_t& PolarRows(int slot) {
    Forget(slot);
    return m_rows[static_cast<std::size_t>(slot)];
  }
  std::int16_t PolarRows(int slot) const { return m_rows[static_cast<std::size_t>(slot)]; }
  std::int16_t& PolarColumns(int slot) {
    Forget(slot);
    return m_columns[static_cast<std::size_t>(slot)];
  }
  std::int16_t PolarColumns(int slot) const { return m_columns[static_cast<std::size_t>(slot)]; }

  PlotType Type() const { return m_type; }
  void Type(PlotType type) { m_type = type; }

  /// One cell, row and column at least 1.
  PolarCell PolarPoint(int slot, int row, int column) const;

  /// How PolarSpeed leads from column to column; false at first.
  bool Smooth() const { return m_smooth; }
  void Smooth(bool smooth) { m_smooth = smooth; }

  /// The point of a row between two columns, its boat speed on the straight line between theirs.
  PolarCell PolarPointAt(int slot, int row, const ColumnBracket& columns) const;

  /// The first column whose wind is `windSpeed` [kn] or more, and the one before it.
  ColumnBracket PolarFindColumn(int slot, float windSpeed) const;

  /// The first pair of neighbouring rows of a column whose angles enclose `angle` [deg], both ends included.
  RowBracket PolarFindRow(int slot, int column, float angle) const;

  /// Boat speed [kn] at `angle` [deg, [0, 180]] and `windSpeed` [kn]; 0 where the table says nothing. Above
  /// the highest wind speed that column's own speed; below the lowest column that encloses the angle the
  /// speed falls in a line to 0 at no wind, or is 0 at once where that is column 1. Deliberate: when the
  /// lookup steps down past columns whose wind is above the wanted one, the angles and the wind of the upper
  /// bracket follow, its two boat speeds stay those of the highest column.
  ///
  /// Smooth lies on the straight lines between the two rows and the two neighbouring columns instead, and
  /// below the first column, also a single one, on the line from 0 at no wind. Its angles are true wind
  /// angles, in whichever wind the table is seen. A cell of 0 counts as the speed that it is.
  float PolarSpeed(int slot, float angle, float windSpeed) const;

  /// The cell of either side of the plot that is nearest to (`x`, `y`) [px]; the first one wins a tie.
  NearestCell PolarNearest(int slot, double x, double y, const PolarGeometry& geometry) const;

 private:
  /// A cell with a true angle as lookups and plot see it.
  PolarCell Seen(PolarCell cell) const;
  /// The angle of a cell as they see it [deg].
  float SeenAngle(int slot, int row, int column) const;
  void Forget(int slot) { m_apparent[static_cast<std::size_t>(slot)].clear(); }
  /// Whether the angle lies before the first row, or after the last one, of the outer columns.
  bool OutsideRows(int slot, float angle) const;
  float SteppedSpeed(int slot, float angle, float windSpeed) const;
  float SmoothSpeed(int slot, float angle, float windSpeed) const;
  /// Boat speed of a row between two columns [kn].
  float SpeedBetween(int slot, int row, const ColumnBracket& columns) const;

  static std::size_t Index(int slot, int row, int column) {
    const int cell = (slot * (kMostRows + 1) + row) * (kMostColumns + 1) + column;
    return static_cast<std::size_t>(cell);
  }

  std::vector<float> m_values;
  /// Apparent wind angles of the cells in use [deg], column by column; empty until they are asked for.
  mutable std::array<std::vector<float>, kSlots> m_apparent;
  std::array<std::int16_t, kSlots> m_rows{};
  std::array<std::int16_t, kSlots> m_columns{};
  PlotType m_type = PlotType::TrueWind;
  bool m_smooth = false;
};

}  // namespace veerwatch
