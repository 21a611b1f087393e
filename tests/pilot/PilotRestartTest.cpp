// What a start of the pilot's output leaves of the time before.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "pilot/PilotOutput.h"
#include "tests/support/RecordingView.h"
#include "tests/support/ScriptedPort.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;

TEST(PilotRestart, TriesTheClosedPortAgainAtTheFourthTickFromTheStart) {
  Settings settings;
  settings.m_iNmeaPort = 5;
  settings.m_iPilotPort = 6;
  RecordingView view;
  ScriptedPort nmeaPort;
  ScriptedPort pilotPort;
  pilotPort.OpensOtherwise = false;
  PilotOutput pilot{settings, nmeaPort, pilotPort, view};
  const auto tick = [&pilot](int times) {
    for (int i = 0; i < times; ++i) {
      pilot.Tick();
    }
  };
  pilot.PilotStart();
  tick(3);
  pilot.PilotStop();
  pilot.PilotStart();
  EXPECT_THAT(pilotPort.OpenedNumbers, ElementsAre(6, 6)) << "at each start";
  tick(3);
  EXPECT_THAT(pilotPort.OpenedNumbers, ElementsAre(6, 6));
  tick(1);
  EXPECT_THAT(pilotPort.OpenedNumbers, ElementsAre(6, 6, 6));
  // A start of what runs already does not put the next try off.
  tick(3);
  pilot.PilotStart();
  EXPECT_THAT(pilotPort.OpenedNumbers, ElementsAre(6, 6, 6, 6));
  tick(1);
  EXPECT_THAT(pilotPort.OpenedNumbers, ElementsAre(6, 6, 6, 6, 6));
}

}  // namespace
}  // namespace veerwatch
