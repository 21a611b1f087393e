#include "polar/PolarDialect.h"

#include <gtest/gtest.h>

#include <sstream>

#include "polar/PolarFile.h"
#include "tests/support/PolarText.h"

namespace veerwatch {
namespace {

/// What a text becomes in the program's own format, or what was wrong with it.
std::string Converted(const std::string& text) {
  PolarTable table;
  std::istringstream stream(text);
  const auto trouble = PolarReadDialect(table, 0, stream);
  return trouble ? "ERROR " + *trouble : PolarText(table, 0);
}

constexpr const char* kPlain = "TWA\t6\t10\r\n40\t4.0\t5.5\r\n90\t6.0\t7.5\r\n";

TEST(PolarDialect, ReadsEverySeparator) {
  EXPECT_EQ(Converted("TWA\t6\t10\n40\t4\t5.5\n90\t6\t7.5\n"), kPlain);
  EXPECT_EQ(Converted("twa/tws;6;10\n40;4;5.5\n90;6;7.5\n"), kPlain);
  EXPECT_EQ(Converted("TWA\\TWS,6,10\n40,4,5.5\n90,6,7.5\n"), kPlain);
  EXPECT_EQ(Converted("twa  6 10\n 40   4 5.5\n90 6   7.5"), kPlain);
  EXPECT_EQ(Converted("\"TWA\", \"6\", \"10\"\n\"40\", 4, 5.5\n90, 6, 7.5\n"), kPlain);
}

TEST(PolarDialect, ReadsEveryLineEndAndAByteOrderMark) {
  EXPECT_EQ(Converted("\xEF\xBB\xBFTWA\t6\t10\r\n40\t4\t5.5\r\n90\t6\t7.5\r\n"), kPlain);
  EXPECT_EQ(Converted("TWA\t6\t10\r40\t4\t5.5\r90\t6\t7.5"), kPlain);
}

TEST(PolarDialect, ReadsCommasAsDecimalSignsBehindSemicolonsAndTabs) {
  EXPECT_EQ(Converted("TWA;6,0;10\n40;4,0;5,5\n90;6;7.5\n"), kPlain);
  EXPECT_EQ(Converted("TWA\t6\t10\n40\t4,0\t5,5\n90\t6,0\t7,5\n"), kPlain);
}

TEST(PolarDialect, PassesOverCommentsAndEmptyLines) {
  EXPECT_EQ(Converted("# a boat\n! made by hand\n// here\n\nTWA;6;10 # winds\n40;4;5.5\n  \n%\n90;6;7.5;;\n"),
            kPlain);
}

TEST(PolarDialect, SortsRowsAndColumns) { EXPECT_EQ(Converted("TWA;10;6\n90;7.5;6\n40;5.5;4\n"), kPlain); }

TEST(PolarDialect, FillsABlankCellBetweenItsNeighboursInTheRow) {
  EXPECT_EQ(Converted("TWA;6;8;12\n40;4;;7\n"), "TWA\t6\t8\t12\r\n40\t4.0\t5.0\t7.0\r\n");
}

TEST(PolarDialect, FillsABlankCellAtTheEndOfARowBetweenThoseAboveAndBelow) {
  EXPECT_EQ(Converted("TWA;6;8\n40;4;6\n60;5\n100;6;9\n"),
            "TWA\t6\t8\r\n40\t4.0\t6.0\r\n60\t5.0\t7.0\r\n100\t6.0\t9.0\r\n");
}

TEST(PolarDialect, FillsTheEdgesFromTheLowestAndTheHighestWind) {
  EXPECT_EQ(Converted("TWA;1;2;4\n52;;0.4;\n60;0.5;1;2\n"),
            "TWA\t1\t2\t4\r\n52\t0.2\t0.4\t0.4\r\n60\t0.5\t1.0\t2.0\r\n");
}

TEST(PolarDialect, TellsLineAndColumnOfWhatItCannotRead) {
  EXPECT_EQ(Converted("# x\nTWS;6;8\n"), "ERROR line 2, column 1: \"TWS\" where \"TWA\" should stand");
  EXPECT_EQ(Converted("TWA;6;x8\n"), "ERROR line 1, column 3: \"x8\" is no wind speed");
  EXPECT_EQ(Converted("TWA;6;8\n40;4;five\n"), "ERROR line 2, column 3: \"five\" is no boat speed");
  EXPECT_EQ(Converted("TWA,6,8\n40,4,5,5\n"), "ERROR line 2, column 4: more cells than the first line has");
  EXPECT_EQ(Converted("TWA;6\n\n200;4\n"), "ERROR line 3, column 1: \"200\" is no angle from 0 to 180");
  EXPECT_EQ(Converted("TWA;6\n40;4\n40;4\n"),
            "ERROR line 3, column 1: the angle 40 is there already, in line 2");
  EXPECT_EQ(Converted("TWA;6;6\n"), "ERROR line 1, column 3: the wind speed 6 is there already");
  EXPECT_EQ(Converted("TWA;6;8\n40;4;5\n50;;\n"), "ERROR line 3: a row without any boat speed");
  EXPECT_EQ(Converted("TWA\n40\n"), "ERROR line 1, column 2: no wind speeds");
  EXPECT_EQ(Converted("TWA;6;8\n"), "ERROR line 1: no rows behind the wind speeds");
  EXPECT_EQ(Converted(""), "ERROR line 1: no table");
  EXPECT_EQ(Converted("TWA;6\n40;nan\n"), "ERROR line 2, column 2: \"nan\" is no boat speed");
  EXPECT_EQ(Converted("TWA;6\n40;-1\n"), "ERROR line 2, column 2: \"-1\" is no boat speed");
}

TEST(PolarDialect, KeepsToTheSizeOfATable) {
  std::string wide = "TWA";
  for (int i = 1; i <= 51; ++i) {
    wide += ";" + std::to_string(i);
  }
  EXPECT_EQ(Converted(wide + "\n"), "ERROR line 1, column 52: more than 50 wind speeds");
  std::string tall = "TWA;6\n";
  for (int i = 0; i <= 200; ++i) {
    tall += std::to_string(i) + "e-1;5\n";
  }
  EXPECT_EQ(Converted(tall), "ERROR line 202: more than 200 rows");
}

TEST(PolarDialect, LeavesTheTableAloneWhenItFails) {
  PolarTable table = TableOf(kSmallPolar);
  std::istringstream stream("TWA;6;8\n40;4;5\n50;x;y\n");
  EXPECT_TRUE(PolarReadDialect(table, 0, stream).has_value());
  EXPECT_EQ(PolarText(table, 0), PolarText(TableOf(kSmallPolar), 0));
}

TEST(PolarDialect, SurvivesBytesOfAnyKind) {
  for (const char* start : {"", "TWA;6;8\n", "TWA\t6\t8\n40\t", "twa/tws "}) {
    std::string bytes = start;
    for (int i = 0; i < 30000; ++i) {
      bytes.push_back(static_cast<char>((i * 7919) >> 4));
    }
    EXPECT_EQ(Converted(bytes).rfind("ERROR ", 0), 0U);
  }
  EXPECT_EQ(Converted(std::string(9U << 20U, 'x')), "ERROR longer than 8 MiB");
}

}  // namespace
}  // namespace veerwatch
