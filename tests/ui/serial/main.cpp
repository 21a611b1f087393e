// Runs the tests of the serial port with an event loop and no windows.
#include <gtest/gtest.h>

#include <QCoreApplication>

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const QCoreApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
