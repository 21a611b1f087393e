// The rate of a serial line.

#include <termios.h>

#include <string>
#include <utility>

#include "tests/ui/serial/SerialPortQtFixture.h"

namespace veerwatch {
namespace {

class SerialPortBaud : public SerialPortQtTest {};

TEST_F(SerialPortBaud, IsWhatTheEndpointSays) {
  EXPECT_TRUE(m_port.PortOpen(true));
  const termios usual = m_pty.Settings();
  EXPECT_EQ(cfgetispeed(&usual), B4800);
  EXPECT_EQ(m_port.BaudRate(), 4800);
  for (const auto& [text, speed] : std::initializer_list<std::pair<const char*, speed_t>>{
           {"?baud=9600", B9600}, {"?baud=38400", B38400}, {"?baud=115200", B115200}}) {
    m_port.PortOpen(false);
    Name(1, m_pty.Device() + text);
    EXPECT_TRUE(m_port.PortOpen(true)) << text;
    const termios settings = m_pty.Settings();
    EXPECT_EQ(cfgetispeed(&settings), speed) << text;
    EXPECT_EQ(cfgetospeed(&settings), speed) << text;
    EXPECT_EQ("?baud=" + std::to_string(m_port.BaudRate().value_or(0)), text);
  }
}

TEST_F(SerialPortBaud, IsFoundOutByTwoGoodLines) {
  Name(1, m_pty.Device() + "?baud=auto");
  ASSERT_TRUE(m_port.PortOpen(true));
  EXPECT_EQ(m_port.Trouble(), m_pty.Device() + ": searching the rate, now 4800 baud");
  const auto speed = [this] {
    const termios settings = m_pty.Settings();
    return cfgetispeed(&settings);
  };
  EXPECT_EQ(speed(), B4800);
  m_port.Output("$ECAPB*hh\r\n");
  m_pty.Write("noise\r\n$IIHDM,100.0,M*00\r\n");
  ASSERT_TRUE(Await([&] { return speed() == B9600; })) << "nothing good came at 4800";
  m_pty.Write("$IIHDM,100.0,M*23\r\n$IIHDM,100.0,M*23\r\n$IIHDM,200.0,M*20\r\n");
  ASSERT_TRUE(Await([&] { return !m_owner.Text.empty(); }));
  EXPECT_EQ(m_owner.Text, "\n$IIHDM,200.0,M*20\r\n") << "nothing of what settled the rate is passed on";
  EXPECT_EQ(speed(), B9600);
  EXPECT_EQ(m_port.Trouble(), m_pty.Device() + ": found 9600 baud");
  EXPECT_EQ(m_port.BaudRate(), 9600);
  EXPECT_EQ(m_port.Sent(), 0U) << "a bundle of the search is too old by now";
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
