#include "cli/CourseCommands.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>

#include "cli/Steering.h"
#include "tests/support/TemporaryFolder.h"

namespace veerwatch {
namespace {

class CourseCommands : public testing::Test {
 public:
  TemporaryFolder Folder;
  PolarTargetsOptions Options;

  CourseCommands() {
    WriteFile(Folder / "a.pol", "TWA\t5\t20\n45\t6\t6\n180\t6\t6\n");
    Options.File = (Folder / "a.pol").string();
    Options.Query = CourseQuery{145.0F, 100.0F, -45.0F, 12.0F};
  }

  std::string Targets(const std::string& input = "") const {
    std::istringstream in(input);
    std::ostringstream out;
    PolarTargetsCommand(Options, in, out);
    return out.str();
  }
  std::string Stopped(const std::string& input) const {
    try {
      Targets(input);
    } catch (const CommandError& error) {
      return error.what();
    }
    return "";
  }
};

TEST_F(CourseCommands, TargetsPrintsTheLegs) {
  EXPECT_EQ(Targets(),
            "direct 0.00 kn\n"
            "best 4.24 kn\n"
            "leg 1: heading 145.0 deg, speed 6.00 kn, along 4.24, cross 4.24, share 0.500\n"
            "leg 2: heading 55.0 deg, speed 6.00 kn, along 4.24, cross -4.24, share 0.500\n");
}

TEST_F(CourseCommands, TargetsPrintsTimesForARange) {
  Options.Range = 12.0F;
  EXPECT_EQ(Targets(),
            "direct 0.00 kn\n"
            "best 4.24 kn\n"
            "leg 1: heading 145.0 deg, speed 6.00 kn, along 4.24, cross 4.24, share 0.500, time 1:25\n"
            "leg 2: heading 55.0 deg, speed 6.00 kn, along 4.24, cross -4.24, share 0.500, time 1:25\n"
            "time 2:50\n");
  Options.Query->WindSpeedTrue = 0.0F;
  EXPECT_THAT(Targets(), testing::EndsWith("\ntime --:--\n"));
  EXPECT_EQ(Targets().find("nan"), std::string::npos);
}

TEST_F(CourseCommands, TargetsFollowsTheBoatSpeed) {
  Options.BoatSpeed = 3.0F;
  Options.Range = 12.0F;
  const std::string text = Targets();
  EXPECT_THAT(text, testing::HasSubstr("best 2.12 kn\n"));
  EXPECT_THAT(text, testing::HasSubstr("speed 3.00 kn, along 2.12, cross 2.12, share 0.500, time 2:50\n"));
  EXPECT_THAT(text, testing::EndsWith("\ntime 5:39\n"));
  // With the wind 20 degrees off the bow the polar has no speed to scale by.
  Options.Query = CourseQuery{120.0F, 100.0F, -20.0F, 12.0F};
  EXPECT_THAT(Targets(), testing::HasSubstr("best 4.24 kn\n"));
}

TEST_F(CourseCommands, TargetsWritesJson) {
  Options.Json = true;
  const auto object = nlohmann::json::parse(Targets());
  EXPECT_EQ(object.size(), 3U);
  EXPECT_EQ(object["direct"], 0.0);
  EXPECT_NEAR(object["best"].get<double>(), 4.2426407, 1e-5);
  ASSERT_EQ(object["legs"].size(), 2U);
  EXPECT_EQ(object["legs"][0].size(), 5U);
  EXPECT_EQ(object["legs"][0]["heading"], 145.0);
  EXPECT_EQ(object["legs"][1]["heading"], 55.0);
  EXPECT_EQ(object["legs"][1]["speed"], 6.0);
  EXPECT_NEAR(object["legs"][1]["along"].get<double>(), 4.2426407, 1e-5);
  EXPECT_NEAR(object["legs"][1]["cross"].get<double>(), -4.2426407, 1e-5);
  EXPECT_EQ(object["legs"][1]["share"], 0.5);
}

TEST_F(CourseCommands, TargetsWritesJsonHoursForARange) {
  Options.Json = true;
  Options.Range = 12.0F;
  auto object = nlohmann::json::parse(Targets());
  EXPECT_NEAR(object["hours"].get<double>(), 12.0 / 4.2426407, 1e-5);
  EXPECT_NEAR(object["legs"][0]["hours"].get<double>(), 6.0 / 4.2426407, 1e-5);
  Options.Query->WindSpeedTrue = 0.0F;
  object = nlohmann::json::parse(Targets());
  EXPECT_TRUE(object["hours"].is_null());
  EXPECT_TRUE(object["legs"][0]["hours"].is_null());
}

TEST_F(CourseCommands, TargetsIsTheSameStraightAndBestOnAFreeCourse) {
  Options.Json = true;
  Options.Query = CourseQuery{145.0F, 200.0F, -45.0F, 12.0F};
  const auto object = nlohmann::json::parse(Targets());
  EXPECT_EQ(object["direct"], 6.0);
  EXPECT_EQ(object["best"], 6.0);
  EXPECT_EQ(object["legs"][0]["share"], 1.0);
  EXPECT_EQ(object["legs"][0]["heading"], 200.0);
  EXPECT_EQ(object["legs"][1]["share"], 0.0);
}

TEST_F(CourseCommands, TargetsReadsQueries) {
  Options.Query.reset();
  Options.Json = true;
  std::istringstream lines(Targets("145 100 -45 12\n 145\t200 -45 12 \r\n"));
  std::string line;
  std::getline(lines, line);
  EXPECT_EQ(nlohmann::json::parse(line)["direct"], 0.0);
  std::getline(lines, line);
  EXPECT_EQ(nlohmann::json::parse(line)["direct"], 6.0);
  EXPECT_FALSE(std::getline(lines, line));
  Options.Json = false;
  EXPECT_THAT(Targets("145 100 -45 12\n145 200 -45 12\n"),
              testing::HasSubstr("share 0.500\n\ndirect 6.00 kn\n"));
  EXPECT_EQ(Targets(""), "");
}

TEST_F(CourseCommands, TargetsRefusesWhatIsNoQuery) {
  Options.Query.reset();
  for (const char* line :
       {"145 100 -45", "145 100 -45 12 1", "145 100 x 12", "145 100 nan 12", "", "1e99 0 0 0"}) {
    EXPECT_EQ(Stopped(std::string("145 100 -45 12\n") + line + "\n"),
              "line 2: no heading, bearing, wind angle and wind speed")
        << line;
  }
}

TEST_F(CourseCommands, TargetsTellsWhatIsWrongWithAFile) {
  Options.File = (Folder / "missing.pol").string();
  EXPECT_THAT(Stopped(""), testing::HasSubstr("missing.pol: "));
}

TEST_F(CourseCommands, TargetsReadsNoEndlessLine) {
  Options.Query.reset();
  EXPECT_EQ(Stopped("145 100 -45 12\n" + std::string(5000, ' ') + "145 100 -45 12\n"),
            "line 2: longer than 4096 characters");
}

TEST_F(CourseCommands, AreSmoothWhenAsked) {
  // In 10 kn between columns of 4, 8 and 12 kn: stepped 4 + (12 - 4) / 2, smooth 4 + (8 - 4) / 2 at 5 to 15.
  WriteFile(Folder / "s.pol", "TWA\t5\t15\t25\n40\t4\t8\t12\n180\t4\t8\t12\n");
  Options.File = (Folder / "s.pol").string();
  Options.Query = CourseQuery{145.0F, 200.0F, -45.0F, 10.0F};
  EXPECT_THAT(Targets(), testing::StartsWith("direct 8.00 kn\n"));
  Options.Smooth = true;
  EXPECT_THAT(Targets(), testing::StartsWith("direct 6.00 kn\n"));
  Options.BoatSpeed = 3.0F;
  EXPECT_THAT(Targets(), testing::StartsWith("direct 3.00 kn\n")) << "scaled by the smooth speed";
  std::ostringstream out;
  PolarBestCommand({Options.File, 10.0F, false}, out);
  EXPECT_THAT(out.str(), testing::EndsWith("downwind 180.0 deg, 8.00 kn\n"));
  out.str("");
  PolarBestCommand({Options.File, 10.0F, true}, out);
  EXPECT_THAT(out.str(), testing::EndsWith("downwind 180.0 deg, 6.00 kn\n"));
}

TEST_F(CourseCommands, BestPrintsBothAngles) {
  WriteFile(Folder / "b.pol", "TWA\t5\t20\n40\t6\t6\n90\t6\t6\n150\t8\t8\n180\t2\t2\n");
  std::ostringstream out;
  PolarBestCommand({(Folder / "b.pol").string(), 12.0F, false}, out);
  // 6 cos(40) and 8 cos(30).
  EXPECT_EQ(out.str(), "upwind 40.0 deg, 4.60 kn\ndownwind 150.0 deg, 6.93 kn\n");
  out.str("");
  PolarBestCommand({(Folder / "b.pol").string(), 0.0F, false}, out);
  EXPECT_EQ(out.str(), "upwind none\ndownwind none\n");
}

}  // namespace
}  // namespace veerwatch
