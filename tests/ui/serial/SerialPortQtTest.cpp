// Opening and closing, reading, and two ports at a time.

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/ui/serial/SerialPortQtFixture.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(SerialPortQtTest, IsClosedUntilItIsOpened) {
  EXPECT_FALSE(m_port.PortOpen());
  EXPECT_TRUE(m_port.PortOpen(false));
  EXPECT_TRUE(m_port.PortOpen(true));
  EXPECT_TRUE(m_port.PortOpen());
  EXPECT_TRUE(m_port.PortOpen(true));
  EXPECT_TRUE(m_port.PortOpen(false));
  EXPECT_FALSE(m_port.PortOpen());
}

TEST_F(SerialPortQtTest, RunsAt4800BaudWithEightDataBitsAndNoParity) {
  ASSERT_TRUE(m_port.PortOpen(true));
  const termios settings = m_pty.Settings();
  EXPECT_EQ(cfgetospeed(&settings), static_cast<speed_t>(B4800));
  EXPECT_EQ(cfgetispeed(&settings), static_cast<speed_t>(B4800));
  EXPECT_EQ(settings.c_cflag & CSIZE, static_cast<tcflag_t>(CS8));
  EXPECT_EQ(settings.c_cflag & (PARENB | CSTOPB | CRTSCTS), 0U);
  EXPECT_EQ(settings.c_iflag & (IXON | IXOFF | ICRNL | INLCR | ISTRIP), 0U);
  EXPECT_EQ(settings.c_lflag & (ICANON | ECHO | ISIG), 0U);
  EXPECT_EQ(settings.c_oflag & OPOST, 0U);
}

TEST_F(SerialPortQtTest, KeepsItsNumberWhileItIsOpen) {
  ASSERT_TRUE(m_port.PortOpen(true));
  m_port.CommPort(2);
  EXPECT_EQ(m_port.CommPort(), 1);
  m_port.PortOpen(false);
  m_port.CommPort(2);
  EXPECT_EQ(m_port.CommPort(), 2);
}

TEST_F(SerialPortQtTest, RaisesAReceiveEventForCharactersThatArrive) {
  ASSERT_TRUE(m_port.PortOpen(true));
  m_pty.Write("$IIHDG,045.0,,,,*00\r\n");
  ASSERT_TRUE(Await([&] { return m_owner.Text.size() >= 21; }));
  EXPECT_EQ(m_owner.Text, "$IIHDG,045.0,,,,*00\r\n");
  EXPECT_THAT(m_owner.Codes, testing::Each(CommEvent::kReceive));
}

TEST_F(SerialPortQtTest, JoinsWhatArrivesInPieces) {
  ASSERT_TRUE(m_port.PortOpen(true));
  std::string all;
  for (const char* piece : {"$II", "MWV,04", "5,R", ",10.5,N,A\r", "\n"}) {
    const std::size_t before = m_owner.Codes.size();
    m_pty.Write(piece);
    all += piece;
    ASSERT_TRUE(Await([&] { return m_owner.Text.size() == all.size(); }));
    EXPECT_GT(m_owner.Codes.size(), before);
  }
  EXPECT_EQ(m_owner.Text, all);
}

TEST_F(SerialPortQtTest, PassesEveryByteValue) {
  ASSERT_TRUE(m_port.PortOpen(true));
  std::string bytes;
  for (int value = 0; value < 256; ++value) {
    bytes.push_back(static_cast<char>(value));
  }
  ASSERT_EQ(m_pty.Write(bytes), bytes.size());
  ASSERT_TRUE(Await([&] { return m_owner.Text.size() >= bytes.size(); }));
  EXPECT_EQ(m_owner.Text, bytes);

  m_port.Output(bytes);
  std::string sent;
  ASSERT_TRUE(Await([&] {
    sent += m_pty.Read();
    return sent.size() >= bytes.size();
  }));
  EXPECT_EQ(sent, bytes);
}

TEST_F(SerialPortQtTest, GivesNothingWhenNothingWaits) {
  std::string text = "old";
  m_port.Input(text);
  EXPECT_EQ(text, "");
  ASSERT_TRUE(m_port.PortOpen(true));
  text = "old";
  m_port.Input(text);
  EXPECT_EQ(text, "");
}

TEST_F(SerialPortQtTest, RaisesNothingFromInsideACall) {
  bool inside = false;
  bool raisedInside = false;
  m_owner.Handle = [&] {
    raisedInside = raisedInside || inside;
    m_owner.Read();
  };
  m_pty.Write("waits already");
  inside = true;
  ASSERT_TRUE(m_port.PortOpen(true));
  m_port.Output("out\r\n");
  m_port.PollLineErrors();
  inside = false;
  ASSERT_TRUE(Await([&] { return m_owner.Text == "waits already"; }));
  EXPECT_FALSE(raisedInside);
}

TEST_F(SerialPortQtTest, DropsWhatIsUnreadWhenItCloses) {
  bool offered = false;
  m_owner.Handle = [&] { offered = true; };
  ASSERT_TRUE(m_port.PortOpen(true));
  m_pty.Write("old");
  ASSERT_TRUE(Await([&] { return offered; }));
  m_port.PortOpen(false);
  std::string text;
  m_port.Input(text);
  EXPECT_EQ(text, "");

  m_owner.Handle = nullptr;
  ASSERT_TRUE(m_port.PortOpen(true));
  m_pty.Write("new");
  ASSERT_TRUE(Await([&] { return m_owner.Text.size() >= 3; }));
  EXPECT_EQ(m_owner.Text, "new");
}

TEST_F(SerialPortQtTest, OffersAgainWhatTheOwnerLeftUnread) {
  int refusals = 0;
  m_owner.Handle = [&] {
    if (++refusals > 3) {
      m_owner.Read();
    }
  };
  ASSERT_TRUE(m_port.PortOpen(true));
  m_pty.Write("patience");
  ASSERT_TRUE(Await([&] { return m_owner.Text == "patience"; }));
  EXPECT_EQ(refusals, 4);
}

TEST_F(SerialPortQtTest, OffersWhatArrivedDuringAnEventThatTurnsTheLoop) {
  int depth = 0;
  int deepest = 0;
  m_owner.Handle = [&] {
    deepest = std::max(deepest, ++depth);
    if (depth == 1 && deepest == 1) {
      m_owner.Read();
      m_pty.Write("second");
      EXPECT_TRUE(Await([&] { return deepest == 2; }));
    } else if (depth == 1) {
      m_owner.Read();
    }
    --depth;
  };
  ASSERT_TRUE(m_port.PortOpen(true));
  m_pty.Write("first,");
  ASSERT_TRUE(Await([&] { return m_owner.Text == "first,second"; }));
  EXPECT_EQ(deepest, 2);
}

TEST_F(SerialPortQtTest, HoldsNoMoreThanItsBufferWhileNothingIsReadAndLosesNothingOfIt) {
  bool refuse = true;
  m_owner.Handle = [&] {
    if (!refuse) {
      m_owner.Read();
    }
  };
  ASSERT_TRUE(m_port.PortOpen(true));
  // Far more than the port and the terminal hold between them, until nobody takes anything for a hundred
  // turns.
  std::string written;
  int idle = 0;
  while (idle < 100 && written.size() < 4'000'000) {
    const std::string next = std::to_string(written.size()) + ",";
    const std::size_t taken = m_pty.Write(next);
    written += next.substr(0, taken);
    idle = taken == 0 ? idle + 1 : 0;
    QCoreApplication::processEvents();
  }
  EXPECT_LT(written.size(), 400'000U);
  EXPECT_GT(written.size(), 64'000U);
  EXPECT_LT(BusyTurns(), 10);
  refuse = false;
  ASSERT_TRUE(Await([&] { return m_owner.Text.size() >= written.size(); }));
  EXPECT_EQ(m_owner.Text, written);
}

TEST_F(SerialPortQtTest, ClosesFromInsideAnEvent) {
  m_owner.Handle = [&] { m_port.PortOpen(false); };
  ASSERT_TRUE(m_port.PortOpen(true));
  m_pty.Write("x");
  ASSERT_TRUE(Await([&] { return !m_port.PortOpen(); }));
  EXPECT_THAT(m_owner.Codes, ElementsAre(CommEvent::kReceive));
}

TEST_F(SerialPortQtTest, WorksWithoutAnybodyListening) {
  { const PortOwner passing(m_port); }
  ASSERT_TRUE(m_port.PortOpen(true));
  m_pty.Write("x");
  m_pty.HangUp();
  EXPECT_TRUE(Await([&] { return !m_port.PortOpen(); }));
}

TEST_F(SerialPortQtTest, DoesNotOpenWhatIsNoSerialDevice) {
  const std::string file = FileName("file");
  ::close(::open(file.c_str(), O_CREAT | O_WRONLY, 0600));
  const std::string fifo = FileName("fifo");
  ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
  const std::string dangling = FileName("dangling");
  std::filesystem::create_symlink(FileName("nowhere"), dangling);
  const std::string loop = FileName("loop");
  std::filesystem::create_symlink(loop, loop);
  const std::vector<std::string> devices = {FileName("nowhere"),
                                            file,
                                            fifo,
                                            dangling,
                                            loop,
                                            m_folder.path().toStdString(),
                                            "/",
                                            "/dev/null",
                                            "/dev/zero",
                                            "no such port",
                                            "COM1",
                                            "../../..",
                                            file + "/below",
                                            std::string(3000, 'x'),
                                            std::string(3000, '/'),
                                            "\xff\xfe\x80 noise"};
  for (const std::string& device : devices) {
    Name(1, device);
    EXPECT_FALSE(m_port.PortOpen(true)) << device;
    EXPECT_FALSE(m_port.PortOpen()) << device;
  }
  EXPECT_EQ(std::filesystem::file_size(file), 0U);
  Name(1, m_pty.Device());
  EXPECT_TRUE(m_port.PortOpen(true));
  EXPECT_THAT(m_owner.Codes, IsEmpty());
  EXPECT_EQ(m_owner.Lost, 0);
}

TEST_F(SerialPortQtTest, SaysWhyItDoesNotOpenUntilItDoes) {
  Name(2, "/dev/none-of-that-name");
  m_port.CommPort(2);
  EXPECT_FALSE(m_port.PortOpen(true));
  EXPECT_EQ(m_port.OpenFailure(), "/dev/none-of-that-name: no such device");
  m_port.CommPort(999);
  EXPECT_FALSE(m_port.PortOpen(true));
  EXPECT_EQ(m_port.OpenFailure(),
            "/dev/ttyS998: no such device; [Ports] in the profile names the device of port 999");
  m_port.CommPort(1);
  EXPECT_TRUE(m_port.PortOpen(true));
  EXPECT_EQ(m_port.OpenFailure(), "");
}

TEST_F(SerialPortQtTest, DoesNotOpenADeviceThatAnotherPortHolds) {
  NamedPort second(m_profile, PortMaker(m_clock), DeviceIsThere);
  second.CommPort(1);
  ASSERT_TRUE(m_port.PortOpen(true));
  EXPECT_FALSE(second.PortOpen(true));
  EXPECT_EQ(second.OpenFailure(), m_pty.Device() + ": in use by this program's other port");

  const std::string link = FileName("link");
  std::filesystem::create_symlink(m_pty.Device(), link);
  Name(2, link);
  second.CommPort(2);
  EXPECT_FALSE(second.PortOpen(true));

  m_pty.Write("still mine");
  EXPECT_TRUE(Await([&] { return m_owner.Text == "still mine"; }));
  m_port.PortOpen(false);
  EXPECT_TRUE(second.PortOpen(true));
}

TEST_F(SerialPortQtTest, KeepsTwoPortsApart) {
  Pty otherPty;
  Name(2, otherPty.Device());
  NamedPort second(m_profile, PortMaker(m_clock), DeviceIsThere);
  PortOwner secondOwner(second);
  second.CommPort(2);
  ASSERT_TRUE(m_port.PortOpen(true));
  ASSERT_TRUE(second.PortOpen(true));
  m_pty.Write("one");
  otherPty.Write("two");
  m_port.Output("to one\r\n");
  second.Output("to two\r\n");
  std::string toOne;
  std::string toTwo;
  ASSERT_TRUE(Await([&] {
    toOne += m_pty.Read();
    toTwo += otherPty.Read();
    return m_owner.Text.size() >= 3 && secondOwner.Text.size() >= 3 && toOne.size() >= 8 && toTwo.size() >= 8;
  }));
  EXPECT_EQ(m_owner.Text, "one");
  EXPECT_EQ(secondOwner.Text, "two");
  EXPECT_EQ(toOne, "to one\r\n");
  EXPECT_EQ(toTwo, "to two\r\n");

  otherPty.HangUp();
  ASSERT_TRUE(Await([&] { return secondOwner.Lost > 0; }));
  EXPECT_EQ(m_owner.Lost, 0);
  m_pty.Write("!");
  EXPECT_TRUE(Await([&] { return m_owner.Text == "one!"; }));
}

}  // namespace
}  // namespace veerwatch
