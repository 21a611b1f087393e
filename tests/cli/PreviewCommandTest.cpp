#include "cli/PreviewCommand.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <sstream>

#include "cli/Steering.h"
#include "tests/support/Sentences.h"
#include "tests/support/TemporaryFolder.h"

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

TEST(PreviewCommand, PrintsAPassForEachWindSentence) {
  PreviewOptions options{{40.0, 1.0, 10.0, 0.0, 1.0}, 1, false};
  options.Inputs.Rate = 3.0;
  EXPECT_EQ(Printed(options), "0 9.2\n0.333 8.448\n0.667 7.74144\n1 7.077888\n");
}

TEST(PreviewCommand, PrintsEachMethod) {
  PreviewOptions options{{40.0, 1.0, 10.0, 0.0, 3.0}, 1, false};
  options.Inputs.Method = TrackMethod::Clock;
  // The first pass has no time.
  EXPECT_EQ(Printed(options), "0 10\n1 9.2\n2 8.448\n3 7.74144\n");
  options.Inputs.Method = TrackMethod::Direction;
  // Three degrees a second at most.
  EXPECT_EQ(Printed(options), "0 10\n1 7\n2 4\n3 1\n");
}

/// A log of `seconds` winds, with compass and speed before each; the wind veers by ten degrees half-way.
std::string WindLog(int seconds) {
  std::string log;
  for (int i = 0; i < seconds; ++i) {
    log += WithChecksum("$IIHDG,100.0,,,,") + "\n" + WithChecksum("$IIVHW,,,100.0,M,6.0,N,,") + "\n" +
           WithChecksum(i < seconds / 2 ? "$IIMWV,040.0,R,14.0,N,A" : "$IIMWV,050.0,R,14.0,N,A") + "\n";
  }
  return log;
}

class LogPreview : public testing::Test {
 protected:
  LogPreview() {
    Options.Bandwidth = 20.0;
    Options.Damping = 4.0;
    Options.ProfileFile = (m_folder / "boat.ini").string();
    std::ofstream(*Options.ProfileFile) << "[Nmea]\nHeading=0\nBoat Speed=0\n";
  }
  std::string Print(const std::string& lines) {
    std::istringstream log(lines);
    std::ostringstream out;
    try {
      LogPreviewCommand(Options, log, out);
    } catch (const CommandError& error) {
      EXPECT_EQ(out.str(), "");
      return error.what();
    }
    return out.str();
  }

  LogPreviewOptions Options;

 private:
  TemporaryFolder m_folder;
};

TEST_F(LogPreview, PrintsTheErrorOfEachMethodAWind) {
  const std::string text = Print(WindLog(200));
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 200);
  EXPECT_TRUE(text.starts_with("0 0 0 0\n1 0 0 0\n")) << text.substr(0, 60);
  EXPECT_EQ(text, Print(WindLog(200)));
  std::istringstream last(text.substr(text.rfind('\n', text.size() - 2) + 1));
  double time = 0.0;
  double errors[3]{};
  last >> time >> errors[0] >> errors[1] >> errors[2];
  EXPECT_EQ(time, 199.0);
  for (const double error : errors) {
    EXPECT_NEAR(error, 0.0, 0.7) << "the shift is followed";
  }
}

TEST_F(LogPreview, PrintsTheFiguresOfEachOrOneMethod) {
  Options.Summary = true;
  const std::string all = Print(WindLog(200));
  EXPECT_THAT(all, testing::MatchesRegex("Sentence: mean .* deg/min\nClock: mean .* deg/min\n"
                                         "Direction: mean .* deg/min\n"));
  Options.Method = TrackMethod::Clock;
  const std::string one = Print(WindLog(200));
  EXPECT_TRUE(one.starts_with("Clock: mean ")) << one;
  EXPECT_NE(all.find(one), std::string::npos);
}

TEST_F(LogPreview, TakesBandwidthAndDampingOfTheProfileUnlessTheyAreNamed) {
  Options.Summary = true;
  Options.Bandwidth.reset();
  Options.Damping.reset();
  const std::string usual = Print(WindLog(200));
  std::ofstream(*Options.ProfileFile, std::ios::app) << "[Track]\nBandwidth=80\nDamping=1\n";
  const std::string ofProfile = Print(WindLog(200));
  Options.Bandwidth = 80.0;
  Options.Damping = 1.0;
  EXPECT_EQ(Print(WindLog(200)), ofProfile);
  Options.Bandwidth = 20.0;
  Options.Damping = 4.0;
  EXPECT_EQ(Print(WindLog(200)), usual);
  EXPECT_NE(usual, ofProfile);
}

TEST_F(LogPreview, TheRateSaysHowManyWindsOfTheLogAreASecond) {
  Options.Rate = 3.0;
  EXPECT_EQ(Print(WindLog(200)), "Two minutes of wind and heading are needed; 66 seconds are recorded");
  const std::string text = Print(WindLog(400));
  for (const char* time : {"\n0.334 ", "\n0.667 ", "\n1 ", "\n133 "}) {
    EXPECT_NE(text.find(time), std::string::npos) << time;
  }
}

TEST_F(LogPreview, BadInputsStopItWithOneLine) {
  EXPECT_EQ(Print("no sentence\n"), "Two minutes of wind and heading are needed; 0 seconds are recorded");
  Options.Lag = -1.0;
  EXPECT_EQ(Print(WindLog(200)), "Boat lag must be from 0 to 60 seconds");
  Options.Bandwidth = -5.0;
  EXPECT_EQ(Print(WindLog(200)), "Bandwidth must be above 0");
  Options.Bandwidth = 20.0;
  Options.Damping = -1.0;
  EXPECT_EQ(Print(WindLog(200)), "Damping must not be below 0");
  Options.Rate = 0.0;
  EXPECT_EQ(Print(WindLog(200)), "Rate must be from 0.1 to 100 wind sentences a second");
  Options.Rate = 1.0;
  Options.Damping = 4.0;
  Options.ProfileFile = "/nowhere/boat.ini";
  EXPECT_EQ(Print(WindLog(200)), "cannot read the profile /nowhere/boat.ini");
}

}  // namespace
}  // namespace veerwatch
