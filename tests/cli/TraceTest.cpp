#include "cli/Trace.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>

#include "cli/Replay.h"
#include "cli/Simulate.h"
#include "tests/support/Sentences.h"
#include "tests/support/TemporaryFolder.h"

namespace veerwatch {

namespace {

using nlohmann::json;

std::vector<json> Trace(const std::string& log, ReplayOptions options = {}) {
  options.Steer.Trace = true;
  std::istringstream stream(log);
  std::ostringstream out;
  std::ostringstream notes;
  Replay(options, stream, out, notes);
  std::vector<json> objects;
  std::istringstream lines(out.str());
  for (std::string line; std::getline(lines, line);) {
    objects.push_back(json::parse(line));
  }
  return objects;
}

const std::string kSail =
    "$IIVTG,,T,100.0,M,6.0,N,,K\n"
    "$IIMWV,045.0,R,12.0,N,A\n"
    "$IIMWV,050.0,R,12.0,N,A\n";

TEST(Trace, HasTheKeysOfALine) {
  const std::vector<json> objects = Trace(kSail);
  ASSERT_EQ(objects.size(), 3U);
  for (const char* key :
       {"line", "status", "used", "error", "apb", "record", "autopilot", "desired", "delta", "integral"}) {
    EXPECT_TRUE(objects[0].contains(key)) << key;
  }
  EXPECT_EQ(objects[0].size(), 10U);
  EXPECT_EQ(objects[0]["record"].size(), 22U);
}

TEST(Trace, HasEverySentenceOfAStep) {
  const TemporaryFolder folder;
  std::ofstream(folder / "boat.ini") << "[Pilot]\nProfile=APB and RMB\n";
  ReplayOptions options;
  options.Steer.ProfileFile = (folder / "boat.ini").string();
  options.Steer.Mode = TrackMode::Manual;
  const std::vector<json> objects = Trace(WithChecksum("$IIHVM,5.0,E") + "\n" + kSail, options);
  ASSERT_EQ(objects.size(), 4U);
  EXPECT_EQ(objects[2]["apb"], WithChecksum("$ECAPB,A,A,0.00,R,N,V,V,040.0,M,1,040.0,M,040.0,M") + "\n" +
                                   WithChecksum("$ECRMB,A,0.00,R,,1,,,,,10.0,045.0,,V"));
}

TEST(Trace, ShowsNullWhereNoControlStepRan) {
  const std::vector<json> objects = Trace(kSail);
  EXPECT_TRUE(objects[0]["delta"].is_null());
  EXPECT_TRUE(objects[0]["apb"].is_null());
  EXPECT_EQ(objects[1]["delta"][0], 0.0);
  EXPECT_EQ(objects[1]["apb"], "$ECAPB,A,A,0.00,R,N,V,V,040.0,M,1,040.0,M,040.0,M*01");
}

TEST(Trace, WritesSinglesAsTheirShortestText) {
  const std::vector<json> objects = Trace("$IIVTG,,T,100.1,M,6.2,N,,K");
  EXPECT_EQ(objects[0]["record"]["Heading"].dump(), "100.1");
  EXPECT_EQ(objects[0]["record"]["BoatSpeed"].dump(), "6.2");
}

TEST(Trace, WritesBytesAsCodePointsAndControlCharactersAsPictures) {
  const std::vector<json> objects = Trace("\xA0\xff\t\x1B[2J\x7F\x9B");
  const std::string shown = "\u00A0\u00FF\t\u241B[2J\u2421\u241B[";
  EXPECT_EQ(objects[0]["line"], shown);
  EXPECT_EQ(objects[0]["error"], "Sentence Error - " + shown);
  EXPECT_EQ(objects[0]["status"], "Sentence Error");
}

TEST(Replay, HoldsInTrackWhatWasSailedInSetup) {
  ReplayOptions options;
  options.SetupSteps = 1;
  const std::vector<json> objects = Trace(kSail, options);
  EXPECT_TRUE(objects[1]["apb"].is_null());
  EXPECT_EQ(objects[1]["desired"][0], 45.0);
  EXPECT_EQ(objects[2]["desired"][0], 45.0);
  EXPECT_EQ(objects[2]["delta"][0], 5.0);
  // 40 + 5 * (0.2 * 64 / 65), and the accumulator after it: 5 * (0.2 / 65).
  EXPECT_NEAR(objects[2]["autopilot"].get<double>(), 40.984615, 1e-5);
  EXPECT_NEAR(objects[2]["integral"].get<double>(), 0.0153846, 1e-6);
}

TEST(Replay, SendsNothingInSetup) {
  ReplayOptions options;
  options.Steer.Mode = TrackMode::Setup;
  std::istringstream stream(kSail);
  std::ostringstream out;
  std::ostringstream notes;
  Replay(options, stream, out, notes);
  EXPECT_EQ(out.str(), "");
}

TEST(Replay, EndsSentencesByCarriageReturnAndLineFeed) {
  ReplayOptions options;
  options.Steer.Mode = TrackMode::Manual;
  std::istringstream stream(kSail);
  std::ostringstream out;
  std::ostringstream notes;
  Replay(options, stream, out, notes);
  const std::string sentence = "$ECAPB,A,A,0.00,R,N,V,V,040.0,M,1,040.0,M,040.0,M*01\r\n";
  EXPECT_EQ(out.str(), sentence + sentence);
}

TEST(Simulate, WritesALineATickAndRepeatsWithTheSameSeed) {
  SimulateOptions options;
  options.Ticks = 12;
  std::ostringstream first;
  std::ostringstream second;
  std::ostringstream other;
  Simulate(options, first);
  Simulate(options, second);
  options.Seed = 2;
  Simulate(options, other);
  const std::string text = first.str();
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 13);
  EXPECT_EQ(text, second.str());
  EXPECT_NE(text, other.str());
}

TEST(Simulate, TraceHasNoKeysOfALine) {
  SimulateOptions options;
  options.Ticks = 1;
  options.Steer.Trace = true;
  std::ostringstream out;
  Simulate(options, out);
  const json object = json::parse(out.str());
  EXPECT_FALSE(object.contains("line"));
  EXPECT_FALSE(object.contains("status"));
  EXPECT_EQ(object.size(), 6U);
}

TEST(Steering, RefusesTrackWithoutFiniteGains) {
  SteeringOptions options;
  Steering steering(options, false, 0);
  steering.Start();
  const_cast<Settings&>(steering.Set()).m_fTrackBandwidth = 0.0F;
  EXPECT_THROW(steering.EnterMode(), CommandError);
}

}  // namespace

}  // namespace veerwatch
