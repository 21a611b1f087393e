// What the test of the pilot says: what it will do, what it does, and what came of it.
#pragma once

#include <string>

#include "control/PilotTest.h"
#include "control/TrackAdvice.h"

namespace veerwatch {

/// The question before it.
std::string PilotTestQuestion();

/// What happens in a stage.
std::string PilotTestStage(PilotTest::Stage stage);

/// The result in words and numbers, a line each.
std::string PilotTestWords(const PilotTestResult& result);

/// The lag as the boxes of the Tracking tab show it [s], to a tenth; "" where none was measured.
std::string PilotTestLag(const PilotTestResult& result);

/// What the tracking is best set to with that pilot, where its lag was measured; `conditions` has the rest.
std::string PilotTestAdvice(const PilotTestResult& result, TrackConditions conditions);

}  // namespace veerwatch
