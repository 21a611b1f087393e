#include "polar/PolarFile.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cmath>
#include <csignal>
#include <sstream>

#include "tests/support/PolarText.h"
#include "tests/support/TemporaryFolder.h"

namespace veerwatch {
namespace {

constexpr const char* kNoTwa = "Polar File Error: No TWA Data";
constexpr const char* kMismatch = "Polar File Error: Number of Columns Mismatch";

TEST(PolarReadCell, EndsAtTabLineFeedAndEndOfFile) {
  std::istringstream stream("TWA\t6\r\n30");
  std::string text;
  EXPECT_EQ(PolarReadCell(stream, text), CellEnd::Tab);
  EXPECT_EQ(text, "TWA");
  EXPECT_EQ(PolarReadCell(stream, text), CellEnd::LineFeed);
  EXPECT_EQ(text, "6\r");
  EXPECT_EQ(PolarReadCell(stream, text), CellEnd::EndOfFile);
  EXPECT_EQ(text, "30");
}

TEST(PolarLoad, ReadsRowsAndColumns) {
  PolarTable table;
  const PolarLoadResult result = ReadText(table, "TWA\t6\t8.5\r\n30\t3.1\t 4\r\n60.5\t5\t6 kn\r\n", 1);
  EXPECT_TRUE(result.Loaded);
  EXPECT_EQ(result.Error, "");
  EXPECT_EQ(table.PolarRows(1), 2);
  EXPECT_EQ(table.PolarColumns(1), 2);
  EXPECT_EQ(table.Value(1, 0, 2), 8.5F);
  EXPECT_EQ(table.Value(1, 2, 0), 60.5F);
  EXPECT_EQ(table.Value(1, 1, 1), 3.1F);
  EXPECT_EQ(table.Value(1, 1, 2), 4.0F);
  EXPECT_EQ(table.Value(1, 2, 2), 6.0F);
  EXPECT_EQ(table.PolarRows(0), 0);
}

TEST(PolarLoad, ScalesBoatSpeedsAlone) {
  PolarTable table;
  EXPECT_TRUE(ReadText(table, "TWA\t6\n30\t4\n", 0, 0.5F).Loaded);
  EXPECT_EQ(table.Value(0, 0, 1), 6.0F);
  EXPECT_EQ(table.Value(0, 1, 0), 30.0F);
  EXPECT_EQ(table.Value(0, 1, 1), 2.0F);
}

TEST(PolarLoad, WantsTheCornerInCapitals) {
  PolarTable table;
  for (const char* text : {"twa\t6\n30\t4\n", "TWA \t6\n", "TWA\r\n", "\xEF\xBB\xBFTWA\t6\n", "", "\n",
                           "6\t8\n", "TWA/TWS\t6\n30\t4\n"}) {
    const PolarLoadResult result = ReadText(table, text);
    EXPECT_FALSE(result.Loaded);
    EXPECT_EQ(result.Error, kNoTwa) << text;
  }
}

TEST(PolarLoad, IsFalseWithoutATextWhenTheLastLineHasNoEnd) {
  PolarTable table;
  const PolarLoadResult result = ReadText(table, "TWA\t6\t8\n30\t3\t4\n60\t5\t6");
  EXPECT_FALSE(result.Loaded);
  EXPECT_EQ(result.Error, "");
  EXPECT_EQ(table.PolarRows(0), 1);
  EXPECT_EQ(table.Value(0, 2, 2), 6.0F) << "the values are stored all the same";
}

TEST(PolarLoad, IsFalseWithoutATextAfterALastTab) {
  PolarTable table;
  const PolarLoadResult result = ReadText(table, "TWA\t6\n30\t");
  EXPECT_FALSE(result.Loaded);
  EXPECT_EQ(result.Error, "");
  EXPECT_EQ(table.PolarRows(0), 0);
  EXPECT_EQ(table.PolarColumns(0), 1);
}

TEST(PolarLoad, KeepsTheRowsInFrontOfALineOfAnotherLength) {
  PolarTable table;
  for (const char* line : {"60\t5\n", "60\t5\t6\t7\n", "\n", "60\n"}) {
    const PolarLoadResult result = ReadText(table, std::string("TWA\t6\t8\n30\t3\t4\n") + line);
    EXPECT_FALSE(result.Loaded);
    EXPECT_EQ(result.Error, kMismatch) << line;
    EXPECT_EQ(table.PolarRows(0), 1);
    EXPECT_EQ(table.PolarColumns(0), 2);
  }
}

TEST(PolarLoad, KeepsTheCountsOfBeforeWhenTheHeaderFails) {
  PolarTable table = TableOf(kSmallPolar);
  EXPECT_EQ(ReadText(table, "no polar\n").Error, kNoTwa);
  EXPECT_EQ(table.PolarRows(0), 4);
  EXPECT_EQ(table.PolarColumns(0), 4);
  EXPECT_EQ(table.PolarSpeed(0, 80.0F, 20.0F), 11.0F);
}

std::string Table(int rows, int columns) {
  std::ostringstream text;
  text << "TWA";
  for (int column = 1; column <= columns; ++column) {
    text << '\t' << column;
  }
  for (int row = 1; row <= rows; ++row) {
    text << '\n' << row;
    for (int column = 1; column <= columns; ++column) {
      text << '\t' << 5;
    }
  }
  return text.str() + "\n";
}

TEST(PolarLoad, LeavesThePolarOfBeforeWholeWhenTheHeaderIsNot) {
  for (const std::string& text : {std::string("TWA\t1\t2"), Table(3, 51), std::string("no polar\n")}) {
    PolarTable table = TableOf(kSmallPolar);
    EXPECT_FALSE(ReadText(table, text).Replaced);
    EXPECT_EQ(table.Value(0, 0, 1), 6.0F) << "a wind speed";
    EXPECT_EQ(table.PolarSpeed(0, 80.0F, 20.0F), 11.0F);
  }
}

TEST(PolarLoad, SaysWhetherTheSlotIsOfThatFile) {
  PolarTable table;
  EXPECT_TRUE(ReadText(table, kSmallPolar).Replaced);
  EXPECT_TRUE(ReadText(table, "TWA\t6\n30\t4\n40\t4\t5\n").Replaced) << "in part";
  EXPECT_TRUE(ReadText(table, "TWA\t6\n30\t4").Replaced);
  EXPECT_FALSE(PolarLoad(table, 0, 1.0F, "/nowhere/at/all.pol").Replaced);
}

TEST(PolarLoad, TakesOddNumbersForWhatTheyBeginWith) {
  const PolarTable table =
      TableOf("TWA\t1\t2\t3\t4\t5\n30\tnan\t1e40\t-2.5\tx\t1.2.3\n60\tinf\t\t+4\t.5\t7,5\n");
  EXPECT_EQ(table.Value(0, 1, 1), 0.0F);
  EXPECT_EQ(table.Value(0, 1, 2), 1.0F);
  EXPECT_EQ(table.Value(0, 1, 3), -2.5F);
  EXPECT_EQ(table.Value(0, 1, 4), 0.0F);
  EXPECT_EQ(table.Value(0, 1, 5), 1.2F);
  EXPECT_EQ(table.Value(0, 2, 1), 0.0F);
  EXPECT_EQ(table.Value(0, 2, 2), 0.0F);
  EXPECT_EQ(table.Value(0, 2, 3), 4.0F);
  EXPECT_EQ(table.Value(0, 2, 4), 0.5F);
  EXPECT_EQ(table.Value(0, 2, 5), 7.0F);
}

TEST(PolarLoad, NeverStoresWhatIsNotFinite) {
  PolarTable table;
  EXPECT_TRUE(ReadText(table, "TWA\t6\n30\t" + std::string(38, '9') + "\n60\t" + std::string(400, '9') + "\n",
                       0, 1e30F)
                  .Loaded);
  EXPECT_TRUE(std::isfinite(table.Value(0, 1, 1)));
  EXPECT_TRUE(std::isfinite(table.Value(0, 2, 1)));
}

TEST(PolarLoad, TakesTheLargestTable) {
  const PolarTable table = TableOf(Table(200, 50));
  EXPECT_EQ(table.PolarRows(0), 200);
  EXPECT_EQ(table.PolarColumns(0), 50);
}

TEST(PolarLoad, SaysSoWhenATableIsTooLarge) {
  PolarTable table;
  const PolarLoadResult rows = ReadText(table, Table(201, 50));
  EXPECT_FALSE(rows.Loaded);
  EXPECT_EQ(rows.Error.rfind("Polar File Error: ", 0), 0U);
  EXPECT_GT(rows.Error.size(), std::string("Polar File Error: ").size());
  EXPECT_EQ(table.PolarRows(0), 200);

  PolarTable other = TableOf(kSmallPolar);
  const PolarLoadResult columns = ReadText(other, Table(3, 51));
  EXPECT_FALSE(columns.Loaded);
  EXPECT_EQ(columns.Error.rfind("Polar File Error: ", 0), 0U);
  EXPECT_EQ(other.PolarColumns(0), 4);
}

TEST(PolarLoad, SurvivesBytesOfAnyKind) {
  std::string bytes = "TWA\t6\n";
  for (int i = 0; i < 20000; ++i) {
    bytes.push_back(static_cast<char>((i * 7919) >> 3));
  }
  PolarTable table;
  EXPECT_FALSE(ReadText(table, bytes).Loaded);
  EXPECT_EQ(ReadText(table, std::string(100000, '\0')).Error, kNoTwa);
}

/// A stream of `size` bytes that nobody has to keep.
class LongStream final : public std::streambuf {
 public:
  LongStream(std::string pattern, std::size_t size) : m_pattern(std::move(pattern)), m_left(size) {}

 protected:
  int_type underflow() override {
    if (m_left == 0) {
      return traits_type::eof();
    }
    m_left -= std::min(m_left, m_pattern.size());
    setg(m_pattern.data(), m_pattern.data(), m_pattern.data() + m_pattern.size());
    return traits_type::to_int_type(m_pattern.front());
  }

 private:
  std::string m_pattern;
  std::size_t m_left;
};

constexpr std::size_t kHundredMegabytes = 100U << 20U;

TEST(PolarLoad, SurvivesAHundredMegabytesInOneLine) {
  LongStream bytes(std::string(1U << 16U, 'x'), kHundredMegabytes);
  std::istream stream(&bytes);
  PolarTable table;
  EXPECT_EQ(PolarRead(table, 0, 1.0F, stream).Error, kNoTwa);
}

TEST(PolarLoad, EndsEarlyInALineOfEndlessCells) {
  LongStream bytes("TWA\t" + std::string(1U << 16U, '\t'), kHundredMegabytes);
  std::istream stream(&bytes);
  PolarTable table;
  EXPECT_FALSE(PolarRead(table, 0, 1.0F, stream).Loaded);
}

/// What a load of a file tells; the table of before has to stay as it was.
std::string Refused(const std::filesystem::path& file) {
  PolarTable table = TableOf(kSmallPolar);
  const PolarLoadResult result = PolarLoad(table, 0, 1.0F, file);
  EXPECT_FALSE(result.Loaded);
  EXPECT_EQ(PolarText(table, 0), PolarText(TableOf(kSmallPolar), 0));
  return result.Error;
}

TEST(PolarLoad, RefusesAFileBeyondATableBeforeAnythingIsStored) {
  const TemporaryFolder folder;
  WriteFile(folder / "a.pol", Table(201, 3));
  EXPECT_EQ(Refused(folder / "a.pol"), "Polar File Error: more than 200 angles");
  WriteFile(folder / "a.pol", Table(3, 51));
  EXPECT_EQ(Refused(folder / "a.pol"), "Polar File Error: more than 50 wind speeds");
  WriteFile(folder / "a.pol", Table(2, 3) + "90" + std::string(51, '\t') + "\n");
  EXPECT_EQ(Refused(folder / "a.pol"), "Polar File Error: more than 50 wind speeds");
  WriteFile(folder / "a.pol", "x" + Table(201, 51));
  EXPECT_EQ(Refused(folder / "a.pol"), kNoTwa);
  WriteFile(folder / "a.pol", Table(200, 50));
  PolarTable table;
  EXPECT_TRUE(PolarLoad(table, 0, 1.0F, folder / "a.pol").Loaded);
}

TEST(PolarLoad, RefusesAtOnceWhatIsTooLargeOrNoFile) {
  const TemporaryFolder folder;
  const std::string start = "TWA\t6\n30\t4\n60\t5";
  WriteFile(folder / "a.pol", start + std::string(kLargestPolar - start.size() - 1, ' ') + "\n");
  PolarTable table;
  EXPECT_TRUE(PolarLoad(table, 0, 1.0F, folder / "a.pol").Loaded) << "the largest one";
  WriteFile(folder / "a.pol", start + std::string(kLargestPolar - start.size(), ' ') + "\n");
  EXPECT_EQ(Refused(folder / "a.pol"), "Polar File Error: larger than 1 MiB");
  // 40 GB that take no room on the disk, after a good beginning.
  ASSERT_EQ(::truncate((folder / "a.pol").c_str(), off_t{40} << 30), 0);
  EXPECT_EQ(Refused(folder / "a.pol"), "Polar File Error: larger than 1 MiB");
  ASSERT_EQ(::mkfifo((folder / "pipe.pol").c_str(), 0600), 0);
  EXPECT_EQ(Refused(folder / "pipe.pol"), "Polar File Error: not a file");
  EXPECT_EQ(Refused("/dev/zero"), "Polar File Error: not a file");
}

TEST(PolarLoad, TellsWhyAFileCannotBeRead) {
  const TemporaryFolder folder;
  PolarTable table;
  for (const auto& path : {folder / "missing.pol", folder.Path(), std::filesystem::path()}) {
    const PolarLoadResult result = PolarLoad(table, 0, 1.0F, path);
    EXPECT_FALSE(result.Loaded);
    EXPECT_EQ(result.Error.rfind("Polar File Error: ", 0), 0U) << result.Error;
    EXPECT_GT(result.Error.size(), std::string("Polar File Error: ").size());
  }
}

TEST(PolarLoad, TellsWhenAReadFailsHalfWay) {
  // Opens like a file; reading its first bytes is refused.
  if (::access("/proc/self/mem", R_OK) != 0) {
    GTEST_SKIP() << "no such file here";
  }
  PolarTable table;
  const PolarLoadResult result = PolarLoad(table, 0, 1.0F, "/proc/self/mem");
  EXPECT_FALSE(result.Loaded);
  EXPECT_EQ(result.Error.rfind("Polar File Error: ", 0), 0U) << result.Error;
}

TEST(PolarSave, WritesWholeHeadsAndSpeedsWithOneDecimal) {
  const PolarTable table = TableOf("TWA\t6\t8.4\n30\t3.14\t4\n90.5\t5.25\t6\n");
  EXPECT_EQ(PolarText(table, 0), "TWA\t6\t8\r\n30\t3.1\t4.0\r\n91\t5.3\t6.0\r\n");
}

TEST(PolarSave, WritesHeadsAsTheyAreWhenAsked) {
  const PolarTable table = TableOf("TWA\t6\t8.4\n30\t3.14\t4\n90.5\t5.25\t6\n");
  EXPECT_EQ(PolarText(table, 0, PolarHeads::Exact), "TWA\t6\t8.4\r\n30\t3.1\t4.0\r\n90.5\t5.3\t6.0\r\n");
}

TEST(PolarSave, ComesBackAsItWas) {
  const TemporaryFolder folder;
  const PolarTable table = TableOf("TWA\t6\t8\n30\t3.1\t4\n90\t5.2\t16.9\n");
  ASSERT_EQ(PolarSave(table, 0, folder / "a.pol"), std::nullopt);
  PolarTable again;
  ASSERT_TRUE(PolarLoad(again, 2, 1.0F, folder / "a.pol").Loaded);
  ASSERT_EQ(again.PolarRows(2), table.PolarRows(0));
  ASSERT_EQ(again.PolarColumns(2), table.PolarColumns(0));
  for (int row = 0; row <= 2; ++row) {
    for (int column = 0; column <= 2; ++column) {
      EXPECT_EQ(again.Value(2, row, column), table.Value(0, row, column)) << row << "," << column;
    }
  }
}

TEST(PolarSave, KeepsTheScaledSpeeds) {
  const TemporaryFolder folder;
  PolarTable table;
  ASSERT_TRUE(ReadText(table, "TWA\t10\n90\t8\n120\t9.5\n", 0, 0.9F).Loaded);
  ASSERT_EQ(PolarSave(table, 0, folder / "a.pol"), std::nullopt);
  EXPECT_EQ(ReadFile(folder / "a.pol"), "TWA\t10\r\n90\t7.2\r\n120\t8.6\r\n");
}

TEST(PolarSave, LeavesTheOldFileWholeWhenTheDiskIsFull) {
  const TemporaryFolder folder;
  WriteFile(folder / "a.pol", "old");
  const PolarTable table = TableOf(Table(200, 50));
  // A limit on the size of files stands for the full disk.
  struct rlimit before {};
  ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  struct rlimit small = before;
  small.rlim_cur = 512;
  ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
  const auto failure = PolarSave(table, 0, folder / "a.pol");
  ::setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, handler);
  ASSERT_TRUE(failure.has_value());
  EXPECT_NE(failure->find("a.pol"), std::string::npos) << *failure;
  EXPECT_EQ(ReadFile(folder / "a.pol"), "old");
  EXPECT_EQ(folder.Names(), std::vector<std::string>{"a.pol"});
}

TEST(PolarSave, TellsWhenAFolderStandsThere) {
  const TemporaryFolder folder;
  EXPECT_TRUE(PolarSave(TableOf(kSmallPolar), 0, folder.Path()).has_value());
}

}  // namespace
}  // namespace veerwatch
