// Whole courses to a mark on the boat of the tests: "Sail the Course" holds the legs by her own polar, and
// somebody presses Enter at its prompts, or it tacks by itself.
#pragma once

#include <cstdint>

#include "instruments/BoatModel.h"
#include "settings/TrackMode.h"
#include "tack/CourseRun.h"
#include "tests/closedloop/Holding.h"

namespace veerwatch {

struct CourseCase {
  NamedMethod Method = NamedMethods().at(1);
  float Bandwidth = 60.0F;  ///< [s]
  BoatSettings Boat = HardBoat(Sea::Flat);
  TrackSide Side = TrackSide::True;
  double MarkOff = 0.0;   ///< the mark's direction off that of the wind [deg]: 0 straight to windward
  double Distance = 2.0;  ///< to it [nm]
  float Angle = 45.0F;    ///< true wind angle that is tracked before [deg relative]
  double WindRate = 1.0;  ///< wind sentences a second
  bool ByItself = false;  ///< with "Tack By Itself"; Enter is pressed for what is not turned so
  double ShiftAt = 0.0;   ///< the wind shifts then [s after the begin]; 0 for never
  double Shift = 0.0;     ///< by so much [deg]
  std::uint64_t Seed = 1;
};

struct CourseResult {
  bool Reached = false;
  CourseEnd End = CourseEnd::ByUser;
  int Tacks = 0;
  int Jibes = 0;
  double Hours = 0.0;     ///< that it took
  double Shortest = 0.0;  ///< that the polar needs in a steady wind without turns [h]
  double Nearest = 0.0;   ///< to the mark [nm]
  double Back = 0.0;      ///< farthest that a turn went the other way [deg, at least 0]
  double Astern = 0.0;    ///< seconds with the apparent wind on the side that is not held, outside of turns
};

CourseResult SailCourse(const CourseCase& what);

}  // namespace veerwatch
