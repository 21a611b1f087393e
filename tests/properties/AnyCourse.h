// Random polars and questions for the properties of courses.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>

#include "polar/CourseTargets.h"
#include "polar/PolarTable.h"
#include "tests/properties/Bearings.h"
#include "tests/properties/Dice.h"

namespace veerwatch {

/// How many polars a property is tried with.
inline constexpr int kPolars = 150;

/// Headings are whole degrees and the wind is a whole number of degrees and an eighth or more, which singles
/// hold exactly: turning costs no rounding, and on no leg does the wind come from dead ahead or astern, which
/// has no side to be mirrored to.
class AnyCourse : public testing::Test {
 protected:
  PolarTable Polar() {
    PolarTable table;
    const int rows = Whole(3, 12);
    const int columns = Whole(2, 5);
    table.PolarRows(0) = static_cast<std::int16_t>(rows);
    table.PolarColumns(0) = static_cast<std::int16_t>(columns);
    for (int column = 1; column <= columns; ++column) {
      table.Value(0, 0, column) = static_cast<float>(4 * column);
    }
    for (int row = 1; row <= rows; ++row) {
      table.Value(0, row, 0) = static_cast<float>(row < rows ? 180 / rows * row - Whole(0, 10) : 180);
      for (int column = 1; column <= columns; ++column) {
        table.Value(0, row, column) = Part(2.0, 10.0);
      }
    }
    return table;
  }

  CourseQuery Query() {
    CourseQuery query;
    query.Heading = static_cast<float>(Whole(0, 359));
    query.TargetBearing = static_cast<float>(Whole(0, 359));
    const float wind = static_cast<float>(Whole(0, 179)) + static_cast<float>(Whole(1, 7)) / 8.0F;
    query.WindAngleTrue = Whole(0, 1) == 0 ? wind : -wind;
    query.WindSpeedTrue = Part(3.0, 23.0);
    return query;
  }

  int Whole(int least, int most) { return m_dice.Within(least, most); }
  float Part(double least, double most) { return static_cast<float>(least + (most - least) * m_dice.Part()); }

 private:
  Dice m_dice{12};
};

}  // namespace veerwatch
