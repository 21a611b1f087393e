// Any bytes as a polar file: loaded, saved, looked up, and asked for the best course. The first 22 bytes
// choose how the table is seen and what is asked; after them the file begins.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>

#include "polar/CourseLedger.h"
#include "polar/CourseTargets.h"
#include "polar/PolarFile.h"
#include "tests/fuzz/Demand.h"

namespace {

using namespace veerwatch;

Landmark loads("a table that loads");
Landmark sails("a course that makes way");
Landmark tacks("a course on two legs");
Landmark apparent("two legs in the apparent wind");

/// What an input chooses and asks, all of its front.
struct Question {
  explicit Question(Bytes& bytes) {
    // The search takes most of the time: in one of eight.
    constexpr unsigned kOneOf = 8;
    const unsigned search = bytes.Byte();
    Searches = search % kOneOf == kOneOf - 1;
    SearchType = (search & kOneOf) != 0 ? PlotType::ApparentWind : PlotType::TrueWind;
    const unsigned options = bytes.Byte();
    Settings.CourseWaypoint = true;
    Settings.CourseWaypointIndex = static_cast<CourseSource>(options % 3U);
    Settings.CourseScale = (options & 64U) != 0;
    Settings.SmoothWinds = (options & 32U) != 0;
    Settings.Type = SearchType;
    Settings.Boat = static_cast<BoatType>((options >> 7U) & 1U);
    Settings.SpeedFactor = bytes.Number(0.001, 10.0);
    Angle = bytes.Number(0.0, 180.0);
    Wind = bytes.Number(0.0, 80.0);
    Input.Query.Heading = bytes.Number(0.0, 360.0);
    Input.Query.TargetBearing = bytes.Number(-400.0, 800.0);
    Input.Query.WindAngleTrue = bytes.Number(-180.0, 180.0);
    Input.Query.WindSpeedTrue = bytes.Number(0.0, 80.0);
    Input.BoatSpeed = bytes.Number(0.0, 60.0);
    Input.PolarSpeed = bytes.Number(0.0, 60.0);
    Input.WaypointRange = bytes.Number(0.0, 900.0);
  }

  bool Searches = false;
  PlotType SearchType = PlotType::TrueWind;
  PolarSettings Settings;
  float Angle = 0.0F;  ///< of the lookup
  float Wind = 0.0F;
  LedgerInput Input;
};

/// Angles and winds below 0 make no speed negative.
bool HasNegativeSpeed(const PolarTable& table) {
  for (int row = 1; row <= table.PolarRows(0); ++row) {
    for (int column = 1; column <= table.PolarColumns(0); ++column) {
      if (table.Value(0, row, column) < 0.0F) {
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

void DemandCourse(const PolarTable& table, const Question& question, bool negative) {
  const LedgerInput& input = question.Input;
  const CourseSolution solution = CourseTargets(table, input.Query);
  for (const CourseLeg& leg : solution.Legs) {
    DemandLeg(leg);
    Demand(negative || leg.Speed >= 0.0F, "no leg sailed backwards");
  }
  Demand(std::fabs(solution.Legs[0].Share + solution.Legs[1].Share - 1.0F) < 1e-5F, "shares add to 1");
  Demand(std::isfinite(solution.Direct) && std::isfinite(solution.Best), "speeds made good");
  Demand(negative || solution.Best >= solution.Direct, "no course slower than the straight one");
  if (solution.Best > 0.0F) {
    sails.Reach();
  }
  if (solution.Best > solution.Direct) {
    (table.Type() == PlotType::TrueWind ? tacks : apparent).Reach();
  }

  const CourseSolution scaled = CourseScaled(solution, input.BoatSpeed, input.PolarSpeed);
  const LedgerContent content = CourseLedger(question.Settings, input, scaled);
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
  Bytes bytes(data, size);
  const Question question(bytes);
  std::istringstream stream{std::string(bytes.Rest())};
  static PolarTable table;
  table.PolarRows(0) = 0;
  table.PolarColumns(0) = 0;
  const PolarLoadResult result = PolarRead(table, 0, question.Settings.SpeedFactor, stream);
  Demand(!result.Loaded || result.Error.empty(), "no error where it loaded");
  DemandTable(table);
  // A table without columns has a first line that no file may have.
  if (result.Loaded && table.PolarColumns(0) > 0) {
    loads.Reach();
    DemandRoundTrip(table);
  }
  const bool negative = HasNegativeSpeed(table);
  for (const PlotType type : {PlotType::TrueWind, PlotType::ApparentWind}) {
    table.Type(type);
    for (const bool smooth : {false, true}) {
      table.Smooth(smooth);
      for (const float at : {question.Angle, 0.0F, 180.0F}) {
        const float speed = table.PolarSpeed(0, at, question.Wind);
        Demand(std::isfinite(speed), "a finite speed");
        Demand(negative || speed >= 0.0F, "no negative speed");
      }
    }
  }
  if (question.Searches) {
    table.Type(question.SearchType);
    table.Smooth(question.Settings.SmoothWinds);
    DemandCourse(table, question, negative);
  }
  return 0;
}
