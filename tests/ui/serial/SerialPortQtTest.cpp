#include "platform/SerialPortQt.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEventLoop>
#include <QTemporaryDir>
#include <QTest>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "tests/support/Pty.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int kLimit = 30000;  // [ms], for anything that must happen

bool Await(const std::function<bool()>& condition) { return QTest::qWaitFor(condition, kLimit); }

/// How many of a thousand turns of the event loop found anything to do.
int BusyTurns() {
  int busy = 0;
  for (int turn = 0; turn < 1000; ++turn) {
    busy += QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents) ? 1 : 0;
  }
  return busy;
}

/// Reads what is offered and keeps a record of all events.
class Owner : public SerialPort::Events {
 public:
  explicit Owner(SerialPort& port) : Port(port) { port.Connect(this); }

  void OnComm(int commEvent) override {
    Codes.push_back(commEvent);
    if (commEvent != CommEvent::kReceive) {
      return;
    }
    if (Handle) {
      Handle();
    } else {
      Read();
    }
  }
  void OnPortLost() override {
    ++Lost;
    OpenWhenLost = Port.PortOpen();
  }
  void Read() {
    Port.Input(m_input);
    Text += m_input;
  }

  SerialPort& Port;
  std::function<void()> Handle;
  std::vector<int> Codes;
  std::string Text;
  int Lost = 0;
  bool OpenWhenLost = false;

 private:
  std::string m_input;
};

class SerialPortQtTest : public testing::Test {
 protected:
  SerialPortQtTest() : m_port(m_profile), m_owner(m_port) {
    Name(1, m_pty.Device());
    m_port.CommPort(1);
  }

  void Name(int number, const std::string& device) {
    m_profile.ProfileSet("Ports", std::to_string(number), std::string_view(device));
  }

  std::string FileName(const char* name) const { return m_folder.filePath(name).toStdString(); }

  /// Turns the event loop until the pty hands a mark from the port's own side through: everything that was
  /// under way before has been handled then.
  void PassAMark() {
    const std::size_t before = m_owner.Text.size();
    ASSERT_EQ(m_pty.Write("|"), 1U);
    ASSERT_TRUE(Await([&] { return m_owner.Text.size() > before && m_owner.Text.back() == '|'; }));
    m_owner.Text.pop_back();
  }

  QTemporaryDir m_folder;
  Pty m_pty;
  Profile m_profile;
  SerialPortQt m_port;
  Owner m_owner;
};

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

TEST_F(SerialPortQtTest, SendsAWholeSentence) {
  ASSERT_TRUE(m_port.PortOpen(true));
  m_port.Output("$ECAPB,one*00\r\n");
  std::string sent;
  ASSERT_TRUE(Await([&] { return (sent += m_pty.Read()).size() >= 15; }));
  EXPECT_EQ(sent, "$ECAPB,one*00\r\n");
}

TEST_F(SerialPortQtTest, SendsNothingWhileItIsClosed) {
  m_port.Output("lost\r\n");
  ASSERT_TRUE(m_port.PortOpen(true));
  m_port.Output("sent\r\n");
  std::string sent;
  ASSERT_TRUE(Await([&] { return (sent += m_pty.Read()).size() >= 6; }));
  EXPECT_EQ(sent, "sent\r\n");
}

TEST_F(SerialPortQtTest, SendsTheFirstAndTheNewestOfABurst) {
  ASSERT_TRUE(m_port.PortOpen(true));
  for (int i = 0; i < 1000; ++i) {
    m_port.Output("sentence " + std::to_string(i) + "\r\n");
  }
  std::string sent;
  ASSERT_TRUE(Await([&] { return (sent += m_pty.Read()).ends_with("sentence 999\r\n"); }));
  EXPECT_EQ(sent, "sentence 0\r\nsentence 999\r\n");
}

TEST_F(SerialPortQtTest, SendsWholeSentencesAndTheNewestLastWhenNobodyReadForLong) {
  ASSERT_TRUE(m_port.PortOpen(true));
  constexpr int kSentences = 20'000;
  const std::string filler(60, 'x');
  const auto sentence = [&](int i) { return "$" + std::to_string(i) + "," + filler + "\r\n"; };
  for (int i = 0; i < kSentences; ++i) {
    m_port.Output(sentence(i));
    QCoreApplication::processEvents();
  }
  ASSERT_TRUE(m_port.PortOpen());
  std::string sent;
  ASSERT_TRUE(Await([&] { return (sent += m_pty.Read()).ends_with(sentence(kSentences - 1)); }));
  // The terminal itself held the older ones; none behind it waited in the port but the newest.
  EXPECT_LT(sent.size(), 200'000U);
  int last = -1;
  std::size_t at = 0;
  while (at < sent.size()) {
    const int number = std::atoi(sent.c_str() + at + 1);
    const std::string whole = sentence(number);
    ASSERT_EQ(sent.substr(at, whole.size()), whole);
    ASSERT_GT(number, last);
    last = number;
    at += whole.size();
  }
  EXPECT_EQ(last, kSentences - 1);
  EXPECT_THAT(m_owner.Codes, IsEmpty());
  EXPECT_EQ(m_owner.Lost, 0);
}

TEST_F(SerialPortQtTest, LetsTheSentenceOnItsWayLeaveWholeWhenItCloses) {
  ASSERT_TRUE(m_port.PortOpen(true));
  m_port.Output("first\r\n");
  m_port.Output("second\r\n");
  m_port.PortOpen(false);
  EXPECT_EQ(m_pty.Read(), "first\r\n");
}

TEST_F(SerialPortQtTest, DropsWhatIsUnsentWhenItCloses) {
  ASSERT_TRUE(m_port.PortOpen(true));
  for (int i = 0; i < 5000; ++i) {
    m_port.Output("an old sentence of some length, number " + std::to_string(i) + "\r\n");
    QCoreApplication::processEvents();
  }
  m_port.PortOpen(false);
  m_pty.Read();
  ASSERT_TRUE(m_port.PortOpen(true));
  m_port.Output("new\r\n");
  std::string sent;
  ASSERT_TRUE(Await([&] { return (sent += m_pty.Read()).size() >= 5; }));
  EXPECT_EQ(sent, "new\r\n");
}

TEST_F(SerialPortQtTest, ClosesOnAHangUpAndSaysSoOnce) {
  ASSERT_TRUE(m_port.PortOpen(true));
  PassAMark();
  m_owner.Codes.clear();
  m_pty.HangUp();
  ASSERT_TRUE(Await([&] { return m_owner.Lost > 0; }));
  EXPECT_FALSE(m_owner.OpenWhenLost);
  EXPECT_FALSE(m_port.PortOpen());
  EXPECT_EQ(m_port.CommPort(), 1);
  // Nothing keeps the loop busy behind it.
  EXPECT_LT(BusyTurns(), 10);
  EXPECT_EQ(m_owner.Lost, 1);
  EXPECT_THAT(m_owner.Codes, IsEmpty());
}

TEST_F(SerialPortQtTest, SaysNothingOfAHangUpBehindItsOwnClosing) {
  ASSERT_TRUE(m_port.PortOpen(true));
  PassAMark();
  m_pty.HangUp();
  m_port.PortOpen(false);
  for (int turn = 0; turn < 1000; ++turn) {
    QCoreApplication::processEvents();
  }
  EXPECT_EQ(m_owner.Lost, 0);
}

TEST_F(SerialPortQtTest, DoesNotOpenWhereTheOtherEndIsGone) {
  m_pty.HangUp();
  EXPECT_FALSE(m_port.PortOpen(true));
  EXPECT_FALSE(m_port.PortOpen());
}

TEST_F(SerialPortQtTest, SurvivesAHangUpWhileSending) {
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

TEST_F(SerialPortQtTest, OpensAgainOnTheDeviceThatCameBack) {
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

TEST_F(SerialPortQtTest, OpensFromInsideItsOwnLoss) {
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
  m_port.Connect(&reopener);
  ASSERT_TRUE(m_port.PortOpen(true));
  m_pty.HangUp();
  ASSERT_TRUE(Await([&] { return reopener.Opened; }));
  other.Write("other");
  EXPECT_TRUE(Await([&] { return reopener.Text == "other"; }));
}

TEST_F(SerialPortQtTest, ClosesFromInsideAnEvent) {
  m_owner.Handle = [&] { m_port.PortOpen(false); };
  ASSERT_TRUE(m_port.PortOpen(true));
  m_pty.Write("x");
  ASSERT_TRUE(Await([&] { return !m_port.PortOpen(); }));
  EXPECT_THAT(m_owner.Codes, ElementsAre(CommEvent::kReceive));
}

TEST_F(SerialPortQtTest, WorksWithoutAnybodyListening) {
  m_port.Connect(nullptr);
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

TEST_F(SerialPortQtTest, DoesNotOpenADeviceThatAnotherPortHolds) {
  SerialPortQt second(m_profile);
  second.CommPort(1);
  ASSERT_TRUE(m_port.PortOpen(true));
  EXPECT_FALSE(second.PortOpen(true));

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
  SerialPortQt second(m_profile);
  Owner secondOwner(second);
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

/// Counters that a test turns by hand.
class HandCounters : public LineErrorCounters {
 public:
  explicit HandCounters(LineErrorCounts& counts) : m_counts(counts) {}
  std::optional<LineErrorCounts> Read() override { return m_counts; }

 private:
  LineErrorCounts& m_counts;
};

class SerialPortQtLineErrors : public SerialPortQtTest {
 protected:
  SerialPortQtLineErrors()
      : m_counting(m_profile,
                   [this](const QSerialPort&) { return std::make_unique<HandCounters>(m_counts); }),
        m_listener(m_counting) {
    m_counting.CommPort(1);
  }

  LineErrorCounts m_counts{.Break = 3, .Frame = 1, .Overrun = 4, .Parity = 1, .BufferOverrun = 5};
  SerialPortQt m_counting;
  Owner m_listener;
};

TEST_F(SerialPortQtLineErrors, AreRaisedWhenAskedFor) {
  ASSERT_TRUE(m_counting.PortOpen(true));
  m_counting.PollLineErrors();
  EXPECT_THAT(m_listener.Codes, IsEmpty());
  m_counts.Frame += 2;
  m_counting.PollLineErrors();
  EXPECT_THAT(m_listener.Codes, ElementsAre(CommEvent::kFrame));
  m_counting.PollLineErrors();
  EXPECT_THAT(m_listener.Codes, ElementsAre(CommEvent::kFrame));
}

TEST_F(SerialPortQtLineErrors, AreRaisedBehindAReceiveEvent) {
  ASSERT_TRUE(m_counting.PortOpen(true));
  ++m_counts.Break;
  ++m_counts.BufferOverrun;
  m_pty.Write("x");
  ASSERT_TRUE(Await([&] { return m_listener.Codes.size() >= 3; }));
  EXPECT_THAT(m_listener.Codes, ElementsAre(CommEvent::kReceive, CommEvent::kBreak, CommEvent::kRxOver));
}

TEST_F(SerialPortQtLineErrors, OfTheTimeWhenThePortWasClosedAreNotRaised) {
  ASSERT_TRUE(m_counting.PortOpen(true));
  m_counting.PortOpen(false);
  ++m_counts.Overrun;
  m_counting.PollLineErrors();
  ASSERT_TRUE(m_counting.PortOpen(true));
  m_counting.PollLineErrors();
  EXPECT_THAT(m_listener.Codes, IsEmpty());
  ++m_counts.Parity;
  m_counting.PollLineErrors();
  EXPECT_THAT(m_listener.Codes, ElementsAre(CommEvent::kRxParity));
}

}  // namespace
}  // namespace veerwatch

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const QCoreApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
