// A model of the polar window with a small polar of its own and dialogs that are answered beforehand.
#pragma once

#include "polar/PolarModel.h"

#include <gtest/gtest.h>

#include <memory>

#include "polar/PolarQuestions.h"
#include "tests/support/PolarText.h"
#include "tests/support/QueuedDialogs.h"
#include "tests/support/TemporaryFolder.h"

namespace veerwatch {

class PolarModelTest : public testing::Test {
 public:
  TemporaryFolder Program;
  QueuedDialogs Dialogs;
  PolarModel Model{{Program.Path(), {}}};
  std::unique_ptr<WindowDialogs> Asks = Dialogs.OfWindow();
  int Changes = 0;  ///< how often the model has taken an answer
  PolarQuestions Questions{Model, *Asks, [this] { ++Changes; }};

  PolarModelTest() {
    WriteFile(Program / kDefaultPolar, kSmallPolar);
    Model.Reset(nullptr);
    EXPECT_TRUE(Model.Load(PolarModel::kMain).Loaded);
  }

  /// Asks with `ask` and says whether the model took an answer.
  template <class... Arguments>
  bool Took(void (PolarQuestions::*ask)(Arguments...), Arguments... arguments) {
    const int before = Changes;
    (Questions.*ask)(arguments...);
    return Changes > before;
  }

  static PolarValues Sailing(float angle, float wind, float boat) {
    return {true, 90.0F, boat, angle / 2.0F, wind + 3.0F, angle, wind, false, 0.0F, 0.0F};
  }
};

}  // namespace veerwatch
