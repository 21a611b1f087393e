// Runs the window tests with one application for all of them.

#include <gtest/gtest.h>

#include "platform/ApplicationQt.h"

int main(int argc, char* argv[]) {
  testing::InitGoogleTest(&argc, argv);
  // Also where the tests are only listed.
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  veerwatch::ApplicationQt application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  return RUN_ALL_TESTS();
}
