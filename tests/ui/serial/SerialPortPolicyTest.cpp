// Every port's claims, on the serial port and a pty.

#include <fcntl.h>
#include <unistd.h>

#include <chrono>
#include <string>
#include <string_view>
#include <thread>

#include "tests/support/PortPolicy.h"
#include "tests/support/ShiftedClock.h"
#include "tests/ui/serial/SerialPortQtFixture.h"

namespace veerwatch {
namespace {

class PtyRig final : public PortRig {
 public:
  PtyRig() : m_filler(::open(m_pty.Device().c_str(), O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC)) {
    EXPECT_GE(m_filler, 0);
    m_profile.ProfileSet("Ports", "1", std::string_view(m_pty.Device()));
    EXPECT_TRUE(m_port.PortOpen(true)) << m_port.OpenFailure();
  }
  ~PtyRig() override { ::close(m_filler); }
  PtyRig(const PtyRig&) = delete;
  PtyRig& operator=(const PtyRig&) = delete;

  SerialPort& Port() override { return m_port; }

  std::string Arrive(std::string_view text) override {
    std::size_t taken = 0;
    for (int idle = 0; taken < text.size() && idle < 100;) {
      const std::size_t part = m_pty.Write(text.substr(taken));
      taken += part;
      idle = part == 0 ? idle + 1 : 0;
      if (taken < text.size()) {
        QCoreApplication::processEvents();
      }
    }
    return std::string(text.substr(0, taken));
  }

  bool Await(const std::function<bool()>& condition) override { return veerwatch::Await(condition); }

  const std::string& Heard() override {
    if (!m_stuck) {
      for (const char c : m_pty.Read()) {
        if (c != 'x') {
          m_heard += c;
        }
      }
    }
    return m_heard;
  }

  void Pass(int milliseconds) override {
    QTest::qWait(2 * EndpointPort::kLookAgain);
    m_clock.Shift += milliseconds;
    QTest::qWait(2 * EndpointPort::kLookAgain);
  }
  void StandStill(int milliseconds) override { m_clock.Shift += milliseconds; }
  void StopTheClock() { m_clock.Stop(); }

  /// Fills the terminal. The kernel moves what it holds in steps, so that room shows up again after the first
  /// filling.
  void Stick() override {
    m_stuck = true;
    for (int quiet = 0; quiet < 5; quiet = Fill() == 0 ? quiet + 1 : 0) {
      QTest::qWait(20);
    }
  }
  void Move() override { m_stuck = false; }

 private:
  /// Writes as much as the terminal takes [bytes].
  std::size_t Fill() const {
    std::size_t filled = 0;
    for (std::string part(64, 'x'); !part.empty();) {
      const ssize_t written = ::write(m_filler, part.data(), part.size());
      if (written > 0) {
        filled += static_cast<std::size_t>(written);
      } else {
        part.resize(part.size() / 2);
      }
    }
    return filled;
  }

  Pty m_pty;
  Profile m_profile;
  ShiftedClock m_clock;
  NamedPort m_port{m_profile, PortMaker(m_clock), DeviceIsThere};
  int m_filler;
  bool m_stuck = false;
  std::string m_heard;
};

TEST(SerialPortLeaves, SendsWhatIsStillInTheProgramWhileItCloses) {
  PtyRig rig;
  rig.Stick();
  rig.Port().Output(kFirst);
  rig.Move();
  // However long the reader takes.
  rig.StopTheClock();
  std::thread reader([&rig] {
    while (!rig.Heard().ends_with(kFirst)) {
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
  });
  rig.Port().PortOpen(false);
  reader.join();
  EXPECT_EQ(rig.Heard(), kFirst);
}

INSTANTIATE_TEST_SUITE_P(Serial, PortPolicy, testing::Values(PortRigKind{"Pty", &MakeRig<PtyRig>}),
                         PortRigName);

}  // namespace
}  // namespace veerwatch
