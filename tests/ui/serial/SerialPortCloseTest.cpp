// What a closed port leaves for the next time.

#include <chrono>
#include <thread>

#include "tests/ui/serial/SerialPortQtFixture.h"

namespace veerwatch {
namespace {

TEST_F(SerialPortQtTest, WhatWasUnreadAtTheCloseIsNotReadLater) {
  ASSERT_TRUE(m_port.PortOpen(true));
  PassAMark();
  m_owner.Text.clear();
  // In the driver, as no event loop runs.
  ASSERT_EQ(m_pty.Write("old"), 3U);
  std::this_thread::sleep_for(std::chrono::milliseconds(20));
  m_port.PortOpen(false);
  ASSERT_TRUE(m_port.PortOpen(true));
  ASSERT_EQ(m_pty.Write("new"), 3U);
  ASSERT_TRUE(Await([&] { return m_owner.Text.ends_with("new"); }));
  EXPECT_EQ(m_owner.Text, "new");
}

}  // namespace
}  // namespace veerwatch
