#include "polar/PolarDialect.h"

#include <gtest/gtest.h>

#include "polar/PolarFile.h"
#include "tests/support/PolarText.h"

namespace veerwatch {
namespace {

/// What a text becomes in the program's own format, or what was wrong with it.
std::string Converted(const std::string& text) {
  PolarTable table;
  const DialectResult result = PolarReadDialect(table, 0, text);
  return result.Error.empty() ? PolarText(table, 0, PolarHeads::Exact) : "ERROR " + result.Error;
}

constexpr const char* kPlain = "TWA\t6\t10\r\n40\t4.0\t5.5\r\n90\t6.0\t7.5\r\n";

TEST(PolarDialect, ReadsEverySeparator) {
  EXPECT_EQ(Converted("TWA\t6\t10\n40\t4\t5.5\n90\t6\t7.5\n"), kPlain);
  EXPECT_EQ(Converted("twa/tws;6;10\n40;4;5.5\n90;6;7.5\n"), kPlain);
  EXPECT_EQ(Converted("TWA\\TWS,6,10\n40,4,5.5\n90,6,7.5\n"), kPlain);
  EXPECT_EQ(Converted("twa  6 10\n 40   4 5.5\n90 6   7.5"), kPlain);
  EXPECT_EQ(Converted("\"TWA\" , \"6\" , \"10\" \n 40 , \" 4 \" , 5.5 \n90, 6, 7.5\n"), kPlain);
  EXPECT_EQ(Converted("\"TWA\", \"6\", \"10\"\n\"40\", 4, 5.5\n90, 6, 7.5\n"), kPlain);
}

TEST(PolarDialect, ReadsEveryLineEndAndAByteOrderMark) {
  EXPECT_EQ(Converted("\xEF\xBB\xBFTWA\t6\t10\r\n40\t4\t5.5\r\n90\t6\t7.5\r\n"), kPlain);
  EXPECT_EQ(Converted("TWA\t6\t10\r40\t4\t5.5\r90\t6\t7.5"), kPlain);
}

TEST(PolarDialect, ReadsCommasAsDecimalSignsAfterSemicolonsAndTabs) {
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
  EXPECT_EQ(Converted("\tTWA\t6\n40\t4\n"), "ERROR line 1, column 1: \"\" where \"TWA\" should stand");
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

TEST(PolarDialect, KeepsDecimalsOfAnglesAndWinds) {
  EXPECT_EQ(Converted("TWA;6,25;8,2\n40,5;4;5,25\n41;5;6\n"),
            "TWA\t6.25\t8.2\r\n40.5\t4.0\t5.3\r\n41\t5.0\t6.0\r\n");
  EXPECT_EQ(Converted("TWA;6;6.2\n40;4;5\n"), "TWA\t6\t6.2\r\n40\t4.0\t5.0\r\n") << "two winds";
}

/// A first line of `count` winds: 1, 2, 3, ...
std::string Winds(int count) {
  std::string line = "TWA";
  for (int i = 1; i <= count; ++i) {
    line += ";" + std::to_string(i);
  }
  return line;
}

TEST(PolarDialect, ThinsMoreWindsThanATableHas) {
  for (const int count : {50, 51, 61, 99, 100, 500}) {
    std::string text = Winds(count) + "\n40";
    for (int i = 1; i <= count; ++i) {
      text += ";" + std::to_string(i) + "e-1";
    }
    PolarTable table;
    const DialectResult result = PolarReadDialect(table, 0, text);
    EXPECT_EQ(result.Error, "");
    EXPECT_EQ(result.Note, count == 50 ? "" : "of " + std::to_string(count) + " wind speeds 50 are kept");
    ASSERT_EQ(table.PolarColumns(0), 50) << count;
    EXPECT_EQ(table.Value(0, 0, 1), 1.0F);
    EXPECT_EQ(table.Value(0, 0, 50), static_cast<float>(count));
    const float step = static_cast<float>(count - 1) / 49.0F;
    for (int column = 1; column <= 50; ++column) {
      EXPECT_NEAR(table.Value(0, 0, column), 1.0F + step * static_cast<float>(column - 1), 0.51F);
      EXPECT_TRUE(column == 1 || table.Value(0, 0, column) > table.Value(0, 0, column - 1));
      EXPECT_FLOAT_EQ(table.Value(0, 1, column), table.Value(0, 0, column) / 10.0F) << "its own speed";
    }
  }
}

TEST(PolarDialect, FillsFromTheWindsThatItLeavesOut) {
  // Of 99 winds every second is left out; only 2 and 98 have a speed.
  std::string text = Winds(99) + "\n40;;2";
  text.append(95, ';');
  text += ";98;\n";
  PolarTable table;
  EXPECT_EQ(PolarReadDialect(table, 0, text).Error, "");
  EXPECT_FLOAT_EQ(table.Value(0, 1, 2), 3.0F);
}

TEST(PolarDialect, TellsOfAFirstLineOfSeparatorsAlone) {
  EXPECT_EQ(Converted(";\n40;5\n"), "ERROR line 1, column 1: \"\" where \"TWA\" should stand");
  EXPECT_EQ(Converted(",,,\n"), "ERROR line 1, column 1: \"\" where \"TWA\" should stand");
  EXPECT_EQ(Converted("TWA;6\n;\n40;5\n"), "TWA\t6\r\n40\t5.0\r\n");
}

TEST(PolarDialect, KeepsToTheSizeOfATable) {
  EXPECT_EQ(Converted(Winds(501) + "\n"), "ERROR line 1, column 502: more than 500 wind speeds");
  std::string tall = "TWA;6\n";
  for (int i = 0; i <= 200; ++i) {
    tall += std::to_string(i) + "e-1;5\n";
  }
  EXPECT_EQ(Converted(tall), "ERROR line 202: more than 200 rows");
}

TEST(PolarDialect, LeavesTheTableAloneWhenItFails) {
  PolarTable table = TableOf(kSmallPolar);
  EXPECT_NE(PolarReadDialect(table, 0, "TWA;6;8\n40;4;5\n50;x;y\n").Error, "");
  EXPECT_NE(PolarReadDialect(table, 0, "TWA;6;8\n40;4;5\n50;;\n").Error, "");
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
}

}  // namespace
}  // namespace veerwatch
