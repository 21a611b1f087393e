#include "log/LogPace.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace veerwatch {
namespace {

/// When each of the lines is due [ms].
std::vector<std::int64_t> Due(const Endpoint& file, std::vector<std::string> lines) {
  LogPace pace(file);
  std::vector<std::int64_t> due;
  for (std::string& line : lines) {
    due.push_back(pace.Due(line));
  }
  return due;
}

Endpoint File(double speed = 1.0, double interval = 0.0) {
  Endpoint file;
  file.What = Endpoint::Kind::File;
  file.Speed = speed;
  file.Interval = interval;
  return file;
}

using List = std::vector<std::int64_t>;

TEST(LogPace, GoesByTheTimesOfTheLines) {
  const std::vector<std::string> lines{"1795252502.0 $A", "1795252502.25 $B", "1795252504.0 $C"};
  EXPECT_EQ(Due(File(), lines), List({0, 250, 2000}));
  EXPECT_EQ(Due(File(10.0), lines), List({0, 25, 200}));
}

TEST(LogPace, WaitsForNoTimeThatRunsBackwards) {
  EXPECT_EQ(Due(File(), {"1795252502.0 $A", "1795252400.0 $B", "1795252401.0 $C"}), List({0, 0, 1000}));
}

TEST(LogPace, LetsALineWithoutATimeFollowTheOneBefore) {
  EXPECT_EQ(Due(File(), {"1795252502.0 $A", "$IIMWV,045,R,10.5,N,A", "1795252503.0 $C"}), List({0, 0, 1000}));
}

TEST(LogPace, GoesByTheIntervalWhereThereAreNoTimes) {
  EXPECT_EQ(Due(File(1.0, 0.1), {"$A", "$B", "$C"}), List({0, 100, 200}));
  EXPECT_EQ(Due(File(2.0, 0.1), {"$A", "$B", "$C"}), List({0, 50, 100}));
}

TEST(LogPace, GivesEachWindASecondWhereThereIsNothing) {
  EXPECT_EQ(Due(File(), {"$IIHDG,1", "$IIMWV,045,R,10.5,N,A", "$IIHDG,1", "$IIMWV,045,R,10.5,N,A"}),
            List({0, 1000, 1000, 2000}));
}

TEST(LogPace, TakesTheTimeOffTheLine) {
  LogPace pace(File());
  std::string line = "1795252502.0 $A";
  pace.Due(line);
  EXPECT_EQ(line, "$A");
}

}  // namespace
}  // namespace veerwatch
