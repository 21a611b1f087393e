#include "cli/PolarCommands.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "cli/Steering.h"
#include "tests/support/PolarText.h"
#include "tests/support/TemporaryFolder.h"

namespace veerwatch {
namespace {

class PolarCommands : public testing::Test {
 public:
  TemporaryFolder Folder;

  PolarCommands() { WriteFile(Folder / "a.pol", kSmallPolar); }

  std::string File(const char* name) const { return (Folder / name).string(); }

  static std::string Speeds(const PolarSpeedOptions& options, const std::string& input = "") {
    std::istringstream in(input);
    std::ostringstream out;
    PolarSpeedCommand(options, in, out);
    return out.str();
  }

  /// The text with which a command stops.
  template <class Command>
  static std::string Stopped(Command command) {
    try {
      command();
    } catch (const CommandError& error) {
      return error.what();
    }
    return "";
  }
};

TEST_F(PolarCommands, SpeedPrintsTheNumberAlone) {
  EXPECT_EQ(Speeds({File("a.pol"), 1.0F, false, 80.0F, 20.0F}), "11\n");
  EXPECT_EQ(Speeds({File("a.pol"), 0.5F, false, -80.0F, 20.0F}), "5.5\n");
  EXPECT_EQ(Speeds({File("a.pol"), 1.0F, false, 20.0F, 20.0F}), "0\n");
}

TEST_F(PolarCommands, SpeedSeesApparentAngles) {
  PolarTable table = TableOf(kSmallPolar);
  table.Type(PlotType::ApparentWind);
  const float expected = table.PolarSpeed(0, 60.0F, 20.0F);
  EXPECT_FLOAT_EQ(std::stof(Speeds({File("a.pol"), 1.0F, true, 60.0F, 20.0F})), expected);
}

TEST_F(PolarCommands, SpeedIsSmoothWhenAsked) {
  PolarSpeedOptions options{File("a.pol"), 1.0F, false, 80.0F, 8.0F};
  EXPECT_EQ(Speeds(options), "8\n");
  options.Smooth = true;
  EXPECT_EQ(Speeds(options), "6.5\n");
}

TEST_F(PolarCommands, SpeedReadsNoEndlessLine) {
  const std::string line(4096, ' ');
  EXPECT_EQ(Speeds({File("a.pol"), 1.0F, false, {}, {}}, line.substr(5) + "80 20\n"), "11\n");
  EXPECT_EQ(Stopped([&] {
              Speeds({File("a.pol"), 1.0F, false, {}, {}}, "80 20\n" + line + "80 20\n");
            }),
            "line 2: longer than 4096 characters");
}

TEST_F(PolarCommands, SpeedReadsPairs) {
  EXPECT_EQ(Speeds({File("a.pol"), 1.0F, false, {}, {}}, "80 20\n\t-120\t17 \r\n180 30"), "11\n12\n9\n");
  EXPECT_EQ(Speeds({File("a.pol"), 1.0F, false, {}, {}}, ""), "");
  for (const char* line : {"80\n", "80 x\n", "80 20 5\n", "\n", "nan 20\n"}) {
    EXPECT_EQ(Stopped([&] {
                Speeds({File("a.pol"), 1.0F, false, {}, {}}, std::string("80 20\n") + line);
              }),
              "line 2: no angle and wind speed")
        << line;
  }
}

TEST_F(PolarCommands, TellWhatIsWrongWithAFile) {
  WriteFile(Folder / "bad.pol", "twa\t6\n");
  WriteFile(Folder / "cut.pol", "TWA\t6\n90\t5");
  std::ostringstream out;
  EXPECT_EQ(Stopped([&] { PolarCheckCommand(File("bad.pol"), out); }),
            File("bad.pol") + ": Polar File Error: No TWA Data");
  EXPECT_EQ(Stopped([&] { PolarCheckCommand(File("cut.pol"), out); }),
            File("cut.pol") + ": the last line has no line end");
  EXPECT_THAT(Stopped([&] {
                Speeds({File("none.pol"), 1.0F, false, 80.0F, 20.0F});
              }),
              testing::StartsWith(File("none.pol") + ": Polar File Error: "));
  EXPECT_EQ(out.str(), "");
}

TEST_F(PolarCommands, CheckTellsRowsColumnsAndRanges) {
  std::ostringstream out;
  PolarCheckCommand(File("a.pol"), out);
  EXPECT_EQ(out.str(),
            "rows 4\ncolumns 4\nangles 40 to 180 deg\nwind speeds 6 to 20 kn\nboat speeds 3 to 14 kn\n");
}

TEST_F(PolarCommands, CheckTellsWhenTheOrderIsWrong) {
  WriteFile(Folder / "b.pol", "TWA\t10\t6\n90\t5\t4\n90\t5\t4\n");
  std::ostringstream out;
  PolarCheckCommand(File("b.pol"), out);
  EXPECT_THAT(out.str(), testing::HasSubstr("angles are not in ascending order\n"));
  EXPECT_THAT(out.str(), testing::HasSubstr("wind speeds are not in ascending order\n"));
  WriteFile(Folder / "c.pol", "TWA\n");
  WriteFile(Folder / "d.pol", "TWA\t6\n");
  std::ostringstream empty;
  PolarCheckCommand(File("d.pol"), empty);
  EXPECT_THAT(empty.str(), testing::HasSubstr("rows 0\ncolumns 1\nangles 0 to 0 deg\n"));
}

TEST_F(PolarCommands, ConvertWritesWhatThisProgramOpens) {
  WriteFile(Folder / "in.csv", "twa/tws;6;8\n60;5,25;6\n40;4;\n");
  std::ostringstream notes;
  PolarConvertCommand(File("in.csv"), File("out.pol"), notes);
  EXPECT_EQ(ReadFile(Folder / "out.pol"), "TWA\t6\t8\r\n40\t4.0\t4.0\r\n60\t5.3\t6.0\r\n");
  EXPECT_EQ(notes.str(), "");
  std::ostringstream out;
  PolarCheckCommand(File("out.pol"), out);
  EXPECT_THAT(out.str(), testing::StartsWith("rows 2\ncolumns 2\n"));
}

TEST_F(PolarCommands, ConvertKeepsDecimalsAndTellsWhatItLeavesOut) {
  WriteFile(Folder / "half.csv", "TWA;6;6.2\n40.5;4;5\n");
  std::ostringstream notes;
  PolarConvertCommand(File("half.csv"), File("out.pol"), notes);
  EXPECT_EQ(ReadFile(Folder / "out.pol"), "TWA\t6\t6.2\r\n40.5\t4.0\t5.0\r\n");
  EXPECT_EQ(notes.str(), "");
  std::string wide = "TWA";
  for (int wind = 0; wind <= 60; ++wind) {
    wide += ";" + std::to_string(wind);
  }
  WriteFile(Folder / "wide.csv", wide + "\n40;5\n90;6\n");
  PolarConvertCommand(File("wide.csv"), File("out.pol"), notes);
  EXPECT_EQ(notes.str(), "veerwatch-cli: " + File("wide.csv") + ": of 61 wind speeds 50 are kept\n");
  std::ostringstream out;
  PolarCheckCommand(File("out.pol"), out);
  EXPECT_THAT(out.str(), testing::HasSubstr("columns 50\nangles 40 to 90 deg\nwind speeds 0 to 60 kn\n"));
}

TEST_F(PolarCommands, ConvertReadsNothingOfAnyLength) {
  std::ostringstream notes;
  WriteFile(Folder / "large.csv", std::string((8U << 20U) + 1, 'x'));
  EXPECT_EQ(Stopped([&] { PolarConvertCommand(File("large.csv"), File("out.pol"), notes); }),
            "cannot read " + File("large.csv") + ": larger than 8 MiB");
  EXPECT_EQ(Stopped([&] { PolarConvertCommand("/dev/zero", File("out.pol"), notes); }),
            "cannot read /dev/zero: not a file");
  EXPECT_FALSE(std::filesystem::exists(Folder / "out.pol"));
}

TEST_F(PolarCommands, CheckNamesTheWindsAtWhichSpeedsFall) {
  const auto falls = [&](const char* text) {
    WriteFile(Folder / "f.pol", text);
    std::ostringstream out;
    PolarCheckCommand(File("f.pol"), out);
    const std::size_t at = out.str().find("boat speeds fall");
    return at == std::string::npos ? "" : out.str().substr(at);
  };
  EXPECT_EQ(
      falls("TWA\t10\t20\t40\t60\n40\t5\t6\t0.1\t0.5\n90\t6\t8\t9\t0.4\n150\t5\t9\t11\t0.9\n"),
      "boat speeds fall at 40 kn: slower than in less wind at 1 of 3 angles, at 40 deg 0.1 after 6 kn\n"
      "boat speeds fall at 60 kn: slower than in less wind at 3 of 3 angles, at 90 deg 0.4 after 9 kn\n");
  // A little slower upwind in strong wind is how boats sail; so is no speed at all at 0 degrees.
  EXPECT_EQ(falls("TWA\t10\t20\n0\t0\t0\n40\t6\t5.8\n90\t6\t7\n"), "");
  EXPECT_EQ(
      falls("TWA\t10\t20\n0\t0\t0\n40\t6\t5.8\n90\t7\t6.9\n"),
      "boat speeds fall at 20 kn: slower than in less wind at 2 of 3 angles, at 40 deg 5.8 after 6 kn\n");
  EXPECT_EQ(falls(kSmallPolar), "");
}

TEST_F(PolarCommands, ConvertTellsWhatItCannotReadOrWrite) {
  WriteFile(Folder / "bad.csv", "twa;6;8\n40;4;x\n");
  std::ostringstream notes;
  EXPECT_EQ(Stopped([&] { PolarConvertCommand(File("bad.csv"), File("out.pol"), notes); }),
            File("bad.csv") + ": line 2, column 3: \"x\" is no boat speed");
  EXPECT_EQ(Stopped([&] { PolarConvertCommand(File("none"), File("out.pol"), notes); }),
            "cannot read " + File("none") + ": No such file or directory");
  EXPECT_EQ(Stopped([&] { PolarConvertCommand(Folder.Path().string(), File("out.pol"), notes); }),
            "cannot read " + Folder.Path().string() + ": not a file");
  EXPECT_FALSE(std::filesystem::exists(Folder / "out.pol"));
  EXPECT_THAT(Stopped([&] { PolarConvertCommand(File("a.pol"), File("a.pol/x.pol"), notes); }),
              testing::StartsWith("cannot write "));
}

}  // namespace
}  // namespace veerwatch
