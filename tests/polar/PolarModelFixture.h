// A model of the polar window with a small polar of its own and dialogs that are answered beforehand.
#pragma once

#include "polar/PolarModel.h"

#include <gtest/gtest.h>

#include "tests/support/PolarText.h"
#include "tests/support/QueuedDialogs.h"
#include "tests/support/TemporaryFolder.h"

namespace veerwatch {

class PolarModelTest : public testing::Test {
 public:
  TemporaryFolder Program;
  QueuedDialogs Dialogs;
  PolarModel Model{{Program.Path(), {}}};

  PolarModelTest() {
    WriteFile(Program / kDefaultPolar, kSmallPolar);
    Model.Reset(nullptr);
    EXPECT_TRUE(Model.Load(PolarModel::kMain).Loaded);
  }

  static PolarValues Sailing(float angle, float wind, float boat) {
    return {true, 90.0F, boat, angle / 2.0F, wind + 3.0F, angle, wind, false, 0.0F, 0.0F};
  }
};

}  // namespace veerwatch
