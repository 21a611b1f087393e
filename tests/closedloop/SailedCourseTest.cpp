// Courses to a mark, on the boat of the tests.

#include "tests/closedloop/SailedCourse.h"

#include <gtest/gtest.h>

#include <string>

namespace veerwatch {
namespace {

/// Sails it and wants her at the mark, in at most `most` times the time that a steady wind would take.
CourseResult Reaches(const std::string& name, const CourseCase& what, double most) {
  const CourseResult one = SailCourse(what);
  EXPECT_TRUE(one.Reached) << name << ", ended as " << static_cast<int>(one.End);
  EXPECT_LE(one.Nearest, CourseRun::kReached) << name;
  EXPECT_LE(one.Hours, most * one.Shortest) << name;
  EXPECT_LE(one.Back, 10.0) << name << ": no turn goes the other way";
  return one;
}

TEST(SailedCourse, ReachesAMarkStraightToWindward) {
  for (const bool byItself : {false, true}) {
    for (const double wind : {7.0, 12.0, 18.0}) {
      for (const TrackSide side : {TrackSide::True, TrackSide::Apparent}) {
        CourseCase what;
        what.ByItself = byItself;
        what.Boat.WindSpeed = wind;
        what.Side = side;
        const std::string name = std::to_string(static_cast<int>(wind)) + " kn, to windward, " +
                                 (side == TrackSide::True ? "true" : "apparent") +
                                 (byItself ? ", by itself" : ", Enter");
        const CourseResult one = Reaches(name, what, 1.3);
        EXPECT_GE(one.Tacks, 1) << name;
        EXPECT_LE(one.Tacks, 4) << name;
        EXPECT_EQ(one.Jibes, 0) << name;
      }
    }
  }
}

TEST(SailedCourse, ReachesAMarkStraightToLeeward) {
  for (const double wind : {7.0, 12.0, 18.0}) {
    CourseCase what;
    what.MarkOff = 180.0;
    what.Angle = 140.0F;
    what.Boat.WindSpeed = wind;
    const std::string name = std::to_string(static_cast<int>(wind)) + " kn, to leeward";
    const CourseResult one = Reaches(name, what, 1.2);
    EXPECT_GE(one.Jibes, 1) << name;
    EXPECT_LE(one.Jibes, 4) << name;
    EXPECT_EQ(one.Tacks, 0) << name;
  }
}

TEST(SailedCourse, ReachesItThroughShiftsAndGustsWithEachMethod) {
  for (const NamedMethod& method : NamedMethods()) {
    for (const double shift : {-20.0, 20.0}) {
      for (const double off : {0.0, 180.0}) {
        CourseCase what;
        what.Method = method;
        what.MarkOff = off;
        what.Angle = off == 0.0 ? -45.0F : -140.0F;
        what.ShiftAt = 300.0;
        what.Shift = shift;
        what.Seed = 7;
        Reaches(std::string(method.Name) + ", shift " + std::to_string(static_cast<int>(shift)) +
                    (off == 0.0 ? ", to windward" : ", to leeward"),
                what, 1.6);
      }
    }
  }
}

TEST(SailedCourse, SailsStraightAcrossTheWindWithoutATurn) {
  CourseCase what;
  what.MarkOff = -90.0;
  what.Angle = 90.0F;
  const CourseResult one = Reaches("across", what, 1.1);
  EXPECT_EQ(one.Tacks + one.Jibes, 0);
}

TEST(SailedCourse, TurnsAtOnceWhereSheBeginsBeyondTheLine) {
  CourseCase what;
  what.MarkOff = 60.0;
  const CourseResult one = Reaches("beyond the line", what, 1.2);
  EXPECT_EQ(one.Tacks, 1);
}

}  // namespace
}  // namespace veerwatch
