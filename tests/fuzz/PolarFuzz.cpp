// Any bytes as a polar file: loaded, saved, looked up, and asked for the best course. Twelve bytes in front
// choose how the table is seen and what is asked.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>

#include "polar/BestAngles.h"
#include "polar/CourseLedger.h"
#include "polar/CourseTargets.h"
#include "polar/PolarFile.h"
#include "tests/fuzz/Demand.h"

namespace {

using namespace veerwatch;

bool HasNegative(const PolarTable& table) {
  for (int row = 0; row <= table.PolarRows(0); ++row) {
    for (int column = 0; column <= table.PolarColumns(0); ++column) {
      if (row + column > 0 && table.Value(0, row, column) < 0.0F) {
        return true;
      }
    }
  }
  return false;
}

void DemandTable(const PolarTable& table) {
  Demand(table.PolarRows(0) >= 0 && table.PolarRows(0) <= PolarTable::kMostRows, "rows");
  Demand(table.PolarColumns(0) >= 0 && table.PolarColumns(0) <= PolarTable::kMostColumns, "columns");
  for (int row = 0; row <= table.PolarRows(0); ++row) {
    for (int column = 0; column <= table.PolarColumns(0); ++column) {
      Demand(std::isfinite(table.Value(0, row, column)), "a finite cell");
    }
  }
}

/// What is saved loads again, and saves the same.
void DemandRoundTrip(const PolarTable& table) {
  const std::string text = PolarText(table, 0);
  DemandNumbers(text);
  PolarTable again;
  std::istringstream stream(text);
  Demand(PolarRead(again, 0, 1.0F, stream).Loaded, "a saved table loads");
  Demand(PolarText(again, 0) == text, "a saved table stays");
}

void DemandLeg(const CourseLeg& leg) {
  Demand(leg.Heading >= 0.0F && leg.Heading < 360.0F, "a leg's heading");
  Demand(leg.Share >= 0.0F && leg.Share <= 1.0F, "a leg's share");
  Demand(std::isfinite(leg.Speed) && std::isfinite(leg.Along) && std::isfinite(leg.Cross), "a leg's speeds");
}

void DemandCourse(const PolarTable& table, Bytes& choice, unsigned options) {
  CourseQuery query;
  query.Heading = choice.Number(0.0, 360.0);
  query.TargetBearing = choice.Number(-400.0, 800.0);
  query.WindAngleTrue = choice.Number(-180.0, 180.0);
  query.WindSpeedTrue = choice.Number(0.0, 80.0);
  const CourseSolution solution = CourseTargets(table, query);
  DemandLeg(solution.Legs[0]);
  DemandLeg(solution.Legs[1]);
  Demand(std::fabs(solution.Legs[0].Share + solution.Legs[1].Share - 1.0F) < 1e-5F, "shares add to 1");
  Demand(std::isfinite(solution.Direct) && std::isfinite(solution.Best), "speeds made good");

  PolarSettings settings;
  settings.CourseWaypoint = true;
  settings.CourseWaypointIndex = static_cast<CourseSource>(options % 3U);
  settings.CourseScale = (options & 64U) != 0;
  settings.Boat = static_cast<BoatType>((options >> 7U) & 1U);
  const LedgerInput input{query, choice.Number(0.0, 60.0), choice.Number(0.0, 60.0),
                          choice.Number(0.0, 900.0)};
  const CourseSolution scaled = CourseScaled(solution, input.BoatSpeed, input.PolarSpeed);
  const LedgerContent content = CourseLedger(settings, input, scaled);
  for (const LedgerFigure& figure : content.Figures) {
    DemandNumbers(figure.Value);
  }
  for (const LedgerRow& row : content.Rows) {
    DemandNumbers(row.Angle);
    DemandNumbers(row.Speed);
  }
  DemandNumbers(content.Steer.Caption);
  Demand(content.SteerHeading >= 0.0F && content.SteerHeading < 360.0F, "the heading to steer");
  Demand(content.TackHeading >= 0.0F && content.TackHeading < 360.0F, "the other heading");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Bytes choice(data, size);
  const unsigned options = choice.Byte();
  const float factor = choice.Number(0.001, 10.0);
  const float angle = choice.Number(0.0, 180.0);
  const float wind = choice.Number(0.0, 80.0);
  Bytes course(data, size);
  std::istringstream stream{std::string(choice.Rest())};
  static PolarTable table;
  table.PolarRows(0) = 0;
  table.PolarColumns(0) = 0;
  const PolarLoadResult result = PolarRead(table, 0, factor, stream);
  Demand(!result.Loaded || result.Error.empty(), "no error where it loaded");
  DemandTable(table);
  // A table without columns has a first line that no file may have.
  if (result.Loaded && table.PolarColumns(0) > 0) {
    DemandRoundTrip(table);
  }
  const bool negative = HasNegative(table);
  for (const PlotType type : {PlotType::TrueWind, PlotType::ApparentWind}) {
    table.Type(type);
    for (const float at : {angle, 0.0F, 180.0F}) {
      const float speed = table.PolarSpeed(0, at, wind);
      Demand(std::isfinite(speed), "a finite speed");
      Demand(negative || type == PlotType::ApparentWind || speed >= 0.0F, "no negative speed");
    }
  }
  // The search takes most of the time: in one of eight.
  constexpr unsigned kSearch = 7;
  if ((options & kSearch) == kSearch) {
    table.Type((options & 8U) != 0 ? PlotType::ApparentWind : PlotType::TrueWind);
    DemandCourse(table, course, options);
  }
  return 0;
}
