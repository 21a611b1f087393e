#include "cli/WindReport.h"

#include <gtest/gtest.h>

#include <sstream>

#include "cli/Replay.h"

namespace veerwatch {
namespace {

std::string Notes(const std::string& log) {
  std::istringstream stream(log);
  std::ostringstream out;
  std::ostringstream notes;
  ReplayOptions options;
  options.Steer.Mode = TrackMode::Manual;
  Replay(options, stream, out, notes);
  EXPECT_EQ(out.str().empty(), !notes.str().empty());
  return notes.str();
}

TEST(WindReport, IsSilentWhereTheWindIsUsed) {
  EXPECT_EQ(Notes("$IIVTG,,T,100.0,M,6.0,N,,K\n$IIMWV,045.0,R,12.0,N,A\n"), "");
}

TEST(WindReport, SaysThatThereIsNoWind) {
  EXPECT_EQ(Notes("$IIVTG,,T,100.0,M,6.0,N,,K\n"),
            "veerwatch-cli: no usable wind in 1 line: no wind sentence\n");
  EXPECT_EQ(Notes(""), "veerwatch-cli: no usable wind in 0 lines: no wind sentence\n");
}

TEST(WindReport, CountsTheReasons) {
  EXPECT_EQ(
      Notes("$IIMWV,045.0,R,6.0,M,A\n$IIMWV,046.0,R,6.0,M,A\n$IIMWV,,R,,N,A\n$IIMWV,050.0,T,9.0,N,A\n"
            "$IIMWV,045.0,R,12.0,N,A*00\nIIMWV\n"),
      "veerwatch-cli: no usable wind in 6 lines: 2 winds in another unit than knots, 1 winds without angle, "
      "reference, speed or unit, 1 winds with a true wind, which is computed instead, 1 with a wrong "
      "checksum, 1 that is no sentence\n");
}

TEST(WindReport, SaysThatTheTrueWindLacksABoatSpeed) {
  EXPECT_EQ(
      Notes("$IIMWV,045.0,R,12.0,N,A\n$IIMWV,046.0,R,12.0,N,A\n"),
      "veerwatch-cli: no usable wind in 2 lines: 2 winds but no boat speed to compute the true wind from\n");
}

}  // namespace
}  // namespace veerwatch
