// The rate of a serial line.

#include <termios.h>

#include <utility>

#include "tests/ui/serial/SerialPortQtFixture.h"

namespace veerwatch {
namespace {

class SerialPortBaud : public SerialPortQtTest {};

TEST_F(SerialPortBaud, IsWhatTheEndpointSays) {
  EXPECT_TRUE(m_port.PortOpen(true));
  const termios usual = m_pty.Settings();
  EXPECT_EQ(cfgetispeed(&usual), B4800);
  for (const auto& [text, speed] : std::initializer_list<std::pair<const char*, speed_t>>{
           {"?baud=9600", B9600}, {"?baud=38400", B38400}, {"?baud=115200", B115200}}) {
    m_port.PortOpen(false);
    Name(1, m_pty.Device() + text);
    EXPECT_TRUE(m_port.PortOpen(true)) << text;
    const termios settings = m_pty.Settings();
    EXPECT_EQ(cfgetispeed(&settings), speed) << text;
    EXPECT_EQ(cfgetospeed(&settings), speed) << text;
  }
}

TEST_F(SerialPortBaud, OfNoSuchNumberIsSaid) {
  Name(1, m_pty.Device() + "?baud=300");
  EXPECT_FALSE(m_port.PortOpen(true));
  EXPECT_EQ(m_port.OpenFailure(), m_pty.Device() +
                                      "?baud=300: \"300\" is no baud rate (4800, 9600, 19200, 38400, 57600, "
                                      "115200 or auto)");
}

}  // namespace
}  // namespace veerwatch
