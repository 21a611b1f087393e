#include "cli/PreviewCommand.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "cli/Steering.h"

namespace veerwatch {
namespace {

std::string Printed(const PreviewOptions& options) {
  std::ostringstream out;
  PreviewCommand(options, out);
  return out.str();
}

/// The text with which the command stops; nothing may have been printed.
std::string Stopped(const TrackResponseInputs& inputs) {
  std::ostringstream out;
  try {
    PreviewCommand({inputs, 1, false}, out);
  } catch (const CommandError& error) {
    EXPECT_EQ(out.str(), "");
    return error.what();
  }
  return "";
}

TEST(PreviewCommand, PrintsTimeAndBearingOfEverySecond) {
  EXPECT_EQ(Printed({{40.0, 1.0, 10.0, 0.0, 4.0}, 1, false}),
            "0 9.2\n1 8.448\n2 7.74144\n3 7.077888\n4 6.455034\n");
}

TEST(PreviewCommand, SameSeedGivesTheSameOutput) {
  const TrackResponseInputs inputs{30.0, 1.0, 10.0, 1.0, 120.0};
  EXPECT_EQ(Printed({inputs, 5, false}), Printed({inputs, 5, false}));
  EXPECT_NE(Printed({inputs, 5, false}), Printed({inputs, 6, false}));
  EXPECT_EQ(Printed({inputs, 5, true}), Printed({inputs, 5, true}));
  EXPECT_NE(Printed({inputs, 5, true}), Printed({inputs, 6, true}));
}

TEST(PreviewCommand, SummaryTellsOvershootSettlingTimeAndSteadyState) {
  // Worked out in exact fractions: 1.42941910760, from second 56 on, 0.41531647317.
  EXPECT_EQ(Printed({{30.0, 1.0, 10.0, 0.0, 120.0}, 1, true}),
            "overshoot 1.4294192 deg\nsettling time 56 s\nsteady state 0.41531646 deg rms\n");
  EXPECT_EQ(Printed({{30.0, 1.0, -10.0, 0.0, 120.0}, 1, true}),
            "overshoot 1.4294192 deg\nsettling time 56 s\nsteady state 0.41531646 deg rms\n");
}

TEST(PreviewCommand, SummaryTellsWhatDoesNotSettle) {
  EXPECT_EQ(Printed({{30.0, 0.0, 4.0, 1.0, 60.0}, 1, true}),
            "overshoot 0 deg\nnot settled\nsteady state 4 deg rms\n");
}

TEST(PreviewCommand, BadInputsStopItWithOneLine) {
  EXPECT_EQ(Stopped({0.0, 1.0, 10.0, 1.0, 120.0}), "Bandwidth must not be 0");
  EXPECT_EQ(Stopped({1e-310, 1.0, 10.0, 1.0, 120.0}), "Bandwidth is too small");
  EXPECT_EQ(Stopped({30.0, 1.0, 1e7, 1.0, 120.0}), "Offset must be within 1000000 degrees");
  EXPECT_EQ(Stopped({30.0, 1.0, 10.0, -1e7, 120.0}), "Noise must be within 1000000 degrees");
  EXPECT_EQ(Stopped({30.0, 1.0, 10.0, 1.0, 0.0}), "Time must be above 0");
  EXPECT_EQ(Stopped({30.0, 1.0, 10.0, 1.0, -5.0}), "Time must be above 0");
  EXPECT_EQ(Stopped({30.0, 1.0, 10.0, 1.0, 1e9}), "Time must be at most 1000000 seconds");
}

TEST(PreviewCommand, RefusesWhatTheOptionsWouldNotTake) {
  EXPECT_EQ(Stopped({-30.0, 1.0, 10.0, 1.0, 120.0}), "Bandwidth must be above 0");
  EXPECT_EQ(Stopped({1e-50, 0.0, 10.0, 1.0, 120.0}), "Bandwidth must be above 0") << "0 as a single";
  EXPECT_EQ(Stopped({30.0, -0.5, 10.0, 1.0, 120.0}), "Damping must not be below 0");
  EXPECT_EQ(Stopped({30.0, 0.0, 10.0, 1.0, 120.0}), "");
}

TEST(PreviewCommand, ResponseBeyondASingleStopsIt) {
  const std::string grows = "Bandwidth: the response grows beyond all numbers";
  EXPECT_EQ(Stopped({0.01, 1.0, 10.0, 1.0, 1000.0}), grows);
  // About 320 times as much each second: beyond a single after 16, within a double.
  EXPECT_EQ(Stopped({0.01, 1.0, 10.0, 0.0, 30.0}), grows);
  EXPECT_EQ(Stopped({0.01, 1.0, 10.0, 0.0, 5.0}), "");
}

}  // namespace
}  // namespace veerwatch
