#include "nmea/PortStatus.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace veerwatch {
namespace {

using What = PortStatus::What;

TEST(PortStatus, NamesTheStatesOfTheInput) {
  EXPECT_EQ(InputStateText(InputState::Stopped), "Stopped");
  EXPECT_EQ(InputStateText(InputState::Running), "Running");
  EXPECT_EQ(InputStateText(InputState::NoData), "No Input Data");
  EXPECT_EQ(InputStateText(InputState::Simulate), "Simulate");
}

TEST(PortStatus, NamesTheStatesOfTheOutput) {
  EXPECT_EQ(OutputStateText(OutputState::None), "");
  EXPECT_EQ(OutputStateText(OutputState::Running), "Running");
  EXPECT_EQ(OutputStateText(OutputState::Simulate), "Simulate");
}

TEST(PortStatus, NamesThePortThatIsNotOpen) {
  EXPECT_EQ(InputStatusText({What::NotOpen, 5}), "Input Port 5 Not Open");
  EXPECT_EQ(OutputStatusText({What::NotOpen, 12}), "Output Port 12 Not Open");
}

TEST(PortStatus, SaysTheSameOfBothPortsOtherwise) {
  for (const auto& [status, text] :
       std::vector<std::pair<PortStatus, const char*>>{{{}, ""},
                                                       {{What::Clear}, ""},
                                                       {{What::NoInputData}, "No Input Data"},
                                                       {{What::Simulate}, "Simulate"},
                                                       {{What::SentenceError}, "Sentence Error"},
                                                       {{What::ChecksumError}, "Checksum Error"},
                                                       {{What::ReceiveError}, "Receive Error"},
                                                       {{What::LineEvent, 1004}, "Framing Error"},
                                                       {{What::LineEvent, 1010}, "Event 1010"}}) {
    EXPECT_EQ(InputStatusText(status), text);
    EXPECT_EQ(OutputStatusText(status), text);
  }
}

TEST(PortStatus, IsEqualOnlyWithItsNumber) {
  EXPECT_EQ((PortStatus{What::NotOpen, 5}), (PortStatus{What::NotOpen, 5}));
  EXPECT_NE((PortStatus{What::NotOpen, 5}), (PortStatus{What::NotOpen, 6}));
  EXPECT_NE((PortStatus{What::NotOpen, 5}), (PortStatus{What::LineEvent, 5}));
}

}  // namespace
}  // namespace veerwatch
