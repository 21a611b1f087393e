// Commands with a method of tracking that needs a heading.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <sstream>
#include <string>

#include "cli/Replay.h"
#include "cli/Simulate.h"
#include "tests/support/Sentences.h"
#include "tests/support/TemporaryFolder.h"

namespace veerwatch {
namespace {

class CommandMethods : public testing::TestWithParam<const char*> {
 protected:
  std::string Profile() {
    const std::string file = (m_folder / "method.ini").string();
    std::ofstream(file) << "[Track]\nMethod=" << GetParam()
                        << "\n[Nmea]\nHeading=0\nBoat Speed=0\n[Pilot]\nBearing=100\n";
    return file;
  }

  TemporaryFolder m_folder;
};

INSTANTIATE_TEST_SUITE_P(Methods, CommandMethods, testing::Values("Clock", "Direction"),
                         [](const auto& method) { return std::string(method.param); });

TEST_P(CommandMethods, SimulateTracksAsSoonAsThereIsAHeading) {
  SimulateOptions options;
  options.Steer.ProfileFile = Profile();
  options.Ticks = 60;
  std::ostringstream out;
  Simulate(options, out);
  const std::string text = out.str();
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 61);
}

TEST_P(CommandMethods, AReplayWithoutTimesCountsASecondForEachWindOfTheTrackedSide) {
  // The wind veers by 10 degrees; the bearing follows within its largest rate a sentence.
  ReplayOptions options;
  options.Steer.ProfileFile = Profile();
  options.Steer.Side = TrackSide::Apparent;
  std::string lines;
  for (int i = 0; i < 60; ++i) {
    lines += WithChecksum("$IIHDG,100.0,,,,") + "\n" + WithChecksum("$IIVHW,,,100.0,M,6.0,N,,") + "\n";
    lines += WithChecksum(i < 20 ? "$IIMWV,040.0,R,14.0,N,A" : "$IIMWV,050.0,R,14.0,N,A") + "\n";
  }
  std::istringstream log(lines);
  std::ostringstream out;
  std::ostringstream notes;
  Replay(options, log, out, notes);
  EXPECT_EQ(notes.str(), "");
  std::istringstream sentences(out.str());
  double before = 100.0;
  double largest = 0.0;
  for (std::string sentence; std::getline(sentences, sentence);) {
    const double bearing = std::stod(sentence.substr(sentence.find(",M,") - 5, 5));
    largest = std::max(largest, bearing - before);
    before = bearing;
  }
  EXPECT_GT(before, 103.0);
  EXPECT_GT(largest, 0.2);
  EXPECT_LE(largest, 3.01);
}

}  // namespace
}  // namespace veerwatch
