#include "cli/CourseCommands.h"

#include <array>
#include <cmath>
#include <nlohmann/json.hpp>

#include "cli/PolarCommands.h"
#include "cli/Steering.h"
#include "cli/Trace.h"
#include "instruments/MathLib.h"
#include "platform/NumberText.h"
#include "polar/BestAngles.h"
#include "polar/CourseCaptions.h"

namespace veerwatch {

namespace {

using Json = nlohmann::ordered_json;
using Hours = std::optional<double>;

struct Answer {
  CourseSolution Solution;
  Hours Time;  ///< to the waypoint
  bool Timed = false;

  Hours LegTime(const CourseLeg& leg) const {
    return Time ? Hours(*Time * static_cast<double>(leg.Share)) : std::nullopt;
  }
};

Answer Solve(const PolarTable& table, const PolarTargetsOptions& options, const CourseQuery& query) {
  Answer answer{CourseTargets(table, query), std::nullopt, options.Range.has_value()};
  if (options.BoatSpeed) {
    const float angle = std::fabs(FoldRelative(static_cast<double>(query.WindAngleTrue)));
    const float polar = table.PolarSpeed(0, angle, query.WindSpeedTrue);
    answer.Solution = CourseScaled(answer.Solution, *options.BoatSpeed, polar);
  }
  if (options.Range) {
    answer.Time = HoursFor(*options.Range, answer.Solution.Best);
  }
  return answer;
}

void WriteText(const Answer& answer, std::ostream& out) {
  const auto speed = [](float value) { return FormatNumber(value, "0.00"); };
  out << "direct " << speed(answer.Solution.Direct) << " kn\n"
      << "best " << speed(answer.Solution.Best) << " kn\n";
  int number = 0;
  for (const CourseLeg& leg : answer.Solution.Legs) {
    out << "leg " << ++number << ": heading " << FormatNumber(leg.Heading, "0.0") << " deg, speed "
        << speed(leg.Speed) << " kn, along " << speed(leg.Along) << ", cross " << speed(leg.Cross)
        << ", share " << FormatNumber(leg.Share, "0.000");
    if (answer.Timed) {
      out << ", time " << FormatHours(answer.LegTime(leg));
    }
    out << '\n';
  }
  if (answer.Timed) {
    out << "time " << FormatHours(answer.Time) << '\n';
  }
}

void WriteJson(const Answer& answer, std::ostream& out) {
  const auto hours = [](const Hours& time) { return time ? Json(*time) : Json(nullptr); };
  Json object{{"direct", JsonNumber(answer.Solution.Direct)}, {"best", JsonNumber(answer.Solution.Best)}};
  object["legs"] = Json::array();
  for (const CourseLeg& leg : answer.Solution.Legs) {
    Json entry{{"heading", JsonNumber(leg.Heading)},
               {"speed", JsonNumber(leg.Speed)},
               {"along", JsonNumber(leg.Along)},
               {"cross", JsonNumber(leg.Cross)},
               {"share", JsonNumber(leg.Share)}};
    if (answer.Timed) {
      entry["hours"] = hours(answer.LegTime(leg));
    }
    object["legs"].push_back(std::move(entry));
  }
  if (answer.Timed) {
    object["hours"] = hours(answer.Time);
  }
  out << object.dump() << '\n';
}

}  // namespace

void PolarTargetsCommand(const PolarTargetsOptions& options, std::istream& in, std::ostream& out) {
  PolarTable table = LoadedPolar(options.File);
  table.Smooth(options.Smooth);
  const auto write = [&](const CourseQuery& query) {
    const Answer answer = Solve(table, options, query);
    options.Json ? WriteJson(answer, out) : WriteText(answer, out);
  };
  if (options.Query) {
    write(*options.Query);
    return;
  }
  std::string line;
  for (long number = 1; NextLine(in, number, line); ++number) {
    const auto values = LineNumbers(line, 4);
    if (values.empty()) {
      throw CommandError("line " + std::to_string(number) +
                         ": no heading, bearing, wind angle and wind speed");
    }
    if (number > 1 && !options.Json) {
      out << '\n';
    }
    write({values[0], values[1], values[2], values[3]});
  }
}

void PolarBestCommand(const PolarBestOptions& options, std::ostream& out) {
  PolarTable table = LoadedPolar(options.File);
  table.Smooth(options.Smooth);
  const BestAngles best = FindBestAngles(table, options.WindSpeed);
  const auto write = [&out](const char* name, const std::optional<BestAngle>& angle) {
    out << name << ' ';
    if (angle) {
      out << FormatNumber(angle->Angle, "0.0") << " deg, " << FormatNumber(angle->MadeGood, "0.00")
          << " kn\n";
    } else {
      out << "none\n";
    }
  };
  write("upwind", best.Upwind);
  write("downwind", best.Downwind);
}

}  // namespace veerwatch
