// A device that goes away and comes back.

#include <filesystem>
#include <string>
#include <utility>

#include "tests/ui/serial/SerialPortQtFixture.h"

namespace veerwatch {
namespace {

using testing::IsEmpty;

using SerialPortHangUp = SerialPortQtTest;

TEST_F(SerialPortHangUp, ClosesOnAHangUpAndSaysSoOnce) {
  ASSERT_TRUE(m_port.PortOpen(true));
  PassAMark();
  m_owner.Codes.clear();
  m_pty.HangUp();
  ASSERT_TRUE(Await([&] { return m_owner.Lost > 0; }));
  EXPECT_FALSE(m_owner.OpenWhenLost);
  EXPECT_FALSE(m_port.PortOpen());
  EXPECT_EQ(m_port.CommPort(), 1);
  // Nothing keeps the loop busy after it.
  EXPECT_LT(BusyTurns(), 10);
  EXPECT_EQ(m_owner.Lost, 1);
  EXPECT_THAT(m_owner.Codes, IsEmpty());
}

TEST_F(SerialPortHangUp, SaysNothingOfAHangUpAfterItsOwnClosing) {
  ASSERT_TRUE(m_port.PortOpen(true));
  PassAMark();
  m_pty.HangUp();
  m_port.PortOpen(false);
  for (int turn = 0; turn < 1000; ++turn) {
    QCoreApplication::processEvents();
  }
  EXPECT_EQ(m_owner.Lost, 0);
}

TEST_F(SerialPortHangUp, DoesNotOpenWhereTheOtherEndIsGone) {
  m_pty.HangUp();
  EXPECT_FALSE(m_port.PortOpen(true));
  EXPECT_FALSE(m_port.PortOpen());
}

TEST_F(SerialPortHangUp, SurvivesAHangUpWhileSending) {
  ASSERT_TRUE(m_port.PortOpen(true));
  const std::string filler(60, 'x');
  for (int i = 0; i < 5000; ++i) {
    m_port.Output(filler + "\r\n");
    QCoreApplication::processEvents();
  }
  m_pty.HangUp();
  m_port.Output("into the void\r\n");
  ASSERT_TRUE(Await([&] { return m_owner.Lost > 0; }));
  EXPECT_EQ(m_owner.Lost, 1);
  EXPECT_FALSE(m_port.PortOpen());
  m_port.Output("into the void\r\n");
  m_port.PollLineErrors();
}

TEST_F(SerialPortHangUp, OpensAgainOnTheDeviceThatCameBack) {
  const std::string link = FileName("instruments");
  std::filesystem::create_symlink(m_pty.Device(), link);
  Name(3, link);
  m_port.CommPort(3);
  ASSERT_TRUE(m_port.PortOpen(true));
  m_pty.HangUp();
  ASSERT_TRUE(Await([&] { return m_owner.Lost > 0; }));
  EXPECT_FALSE(m_port.PortOpen(true));

  Pty back;
  std::filesystem::remove(link);
  std::filesystem::create_symlink(back.Device(), link);
  ASSERT_TRUE(m_port.PortOpen(true));
  back.Write("here again");
  ASSERT_TRUE(Await([&] { return m_owner.Text == "here again"; }));
  m_port.Output("and out\r\n");
  std::string sent;
  ASSERT_TRUE(Await([&] { return (sent += back.Read()).size() >= 9; }));
  EXPECT_EQ(sent, "and out\r\n");
  EXPECT_EQ(m_owner.Lost, 1);
}

TEST_F(SerialPortHangUp, OpensFromInsideItsOwnLoss) {
  class Reopener : public SerialPort::Events {
   public:
    Reopener(SerialPort& port, Profile& profile, std::string device)
        : m_port(port), m_profile(profile), m_device(std::move(device)) {}
    void OnComm(int) override { m_port.Input(Text); }
    void OnPortLost() override {
      m_profile.ProfileSet("Ports", "1", std::string_view(m_device));
      Opened = m_port.PortOpen(true);
    }
    bool Opened = false;
    std::string Text;

   private:
    SerialPort& m_port;
    Profile& m_profile;
    std::string m_device;
  };
  Pty other;
  Reopener reopener(m_port, m_profile, other.Device());
  const SerialPort::Connection connection = m_port.Connect(reopener);
  ASSERT_TRUE(m_port.PortOpen(true));
  m_pty.HangUp();
  ASSERT_TRUE(Await([&] { return reopener.Opened; }));
  other.Write("other");
  EXPECT_TRUE(Await([&] { return reopener.Text == "other"; }));
}

}  // namespace
}  // namespace veerwatch
