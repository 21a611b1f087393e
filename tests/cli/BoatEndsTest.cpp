// The simulated boat's ends on real sockets and pseudo terminals.
#include "cli/BoatEnds.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "cli/Steering.h"
#include "tests/support/TemporaryFolder.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

bool Soon(const std::function<bool()>& condition) {
  for (int tries = 0; tries < 2000; ++tries) {
    if (condition()) {
      return true;
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
  }
  return false;
}

std::string ReadAll(int descriptor) {
  std::string text;
  std::array<char, 4096> part{};
  for (;;) {
    const ssize_t read = ::read(descriptor, part.data(), part.size());
    if (read <= 0) {
      return text;
    }
    text.append(part.data(), static_cast<std::size_t>(read));
  }
}

/// A program that connects.
class Client {
 public:
  explicit Client(std::uint16_t port) : m_socket(::socket(AF_INET, SOCK_STREAM, 0)) {
    sockaddr_in where{};
    where.sin_family = AF_INET;
    where.sin_port = htons(port);
    where.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    const auto* address = reinterpret_cast<const sockaddr*>(&where);
    EXPECT_EQ(::connect(m_socket.Number(), address, sizeof where), 0);
    ::fcntl(m_socket.Number(), F_SETFL, O_NONBLOCK);
  }
  std::string Read() const { return ReadAll(m_socket.Number()); }
  void Write(std::string_view text) const {
    while (!text.empty()) {
      const ssize_t written = ::send(m_socket.Number(), text.data(), text.size(), MSG_NOSIGNAL);
      if (written <= 0) {
        return;
      }
      text.remove_prefix(static_cast<std::size_t>(written));
    }
  }
  void Close() { m_socket = Descriptor(); }

 private:
  Descriptor m_socket;
};

class BoatTcp : public testing::Test {
 protected:
  void Take() {
    m_end.Take([this](std::string_view line) { m_lines.emplace_back(line); });
  }
  bool Has(std::size_t clients) {
    return Soon([&] {
      Take();
      return m_end.Clients() == clients;
    });
  }

  BoatTcpEnd m_end{"127.0.0.1", 0};
  std::vector<std::string> m_lines;
};

TEST_F(BoatTcp, EveryClientHearsEveryLine) {
  Client one(m_end.Port());
  Client two(m_end.Port());
  ASSERT_TRUE(Has(2));
  m_end.Send("$A\r\n$B\r\n");
  std::string heard;
  EXPECT_TRUE(Soon([&] { return (heard += one.Read()) == "$A\r\n$B\r\n"; }));
  heard.clear();
  EXPECT_TRUE(Soon([&] { return (heard += two.Read()) == "$A\r\n$B\r\n"; }));
  EXPECT_EQ(m_end.Name(), "tcp://127.0.0.1:" + std::to_string(m_end.Port()));
}

TEST_F(BoatTcp, PiecesOfTwoClientsAreNotMixed) {
  Client one(m_end.Port());
  Client two(m_end.Port());
  ASSERT_TRUE(Has(2));
  one.Write("$ON");
  two.Write("$TWO\r\n$T");
  ASSERT_TRUE(Soon([&] {
    Take();
    return m_lines.size() == 1;
  }));
  one.Write("E\r\n");
  ASSERT_TRUE(Soon([&] {
    Take();
    return m_lines.size() == 2;
  }));
  EXPECT_THAT(m_lines, ElementsAre("$TWO", "$ONE"));
}

TEST_F(BoatTcp, WhoDoesNotReadHoldsNobodyUpAndMissesWholeLines) {
  Client lazy(m_end.Port());
  Client keen(m_end.Port());
  ASSERT_TRUE(Has(2));
  const std::string line = "$" + std::string(997, 'x') + "\r\n";
  constexpr std::size_t kLines = 20000;  // more than any buffer of the system holds
  std::size_t heard = 0;
  for (std::size_t i = 0; i < kLines; ++i) {
    m_end.Send(line);
    heard += keen.Read().size();
  }
  EXPECT_TRUE(Soon([&] {
    m_end.Send("");
    heard += keen.Read().size();
    return heard == kLines * line.size();
  })) << heard;
  std::string late;
  Soon([&] {
    m_end.Send("");
    const std::string more = lazy.Read();
    late += more;
    return more.empty() && !late.empty();
  });
  EXPECT_LT(late.size(), kLines * line.size());
  EXPECT_EQ(late.size() % line.size(), 0U) << "no half line";
}

TEST_F(BoatTcp, AnEndlessLineIsCutAndTheNextOneIsHeard) {
  Client client(m_end.Port());
  ASSERT_TRUE(Has(1));
  std::thread sends([&] { client.Write(std::string(60000, 'x') + "\r\n$GOOD\r\n"); });
  EXPECT_TRUE(Soon([&] {
    Take();
    return m_lines == std::vector<std::string>{"$GOOD"};
  }));
  sends.join();
}

TEST_F(BoatTcp, WhoGoesAwayIsForgottenAndOthersStay) {
  Client stays(m_end.Port());
  {
    Client goes(m_end.Port());
    ASSERT_TRUE(Has(2));
  }
  EXPECT_TRUE(Has(1));
  m_end.Send("$A\r\n");
  EXPECT_TRUE(Soon([&] { return stays.Read() == "$A\r\n"; }));
}

TEST_F(BoatTcp, TheSeventeenthIsSentAway) {
  std::vector<std::unique_ptr<Client>> clients;
  for (int i = 0; i < 20; ++i) {
    clients.push_back(std::make_unique<Client>(m_end.Port()));
    Take();
  }
  ASSERT_TRUE(Has(16));
  clients.front()->Close();
  EXPECT_TRUE(Has(15));
}

TEST_F(BoatTcp, ATakenPortIsSaid) {
  const std::string where = "tcp://127.0.0.1:" + std::to_string(m_end.Port());
  try {
    OpenBoatEnd(where);
    ADD_FAILURE() << "opened";
  } catch (const CommandError& error) {
    EXPECT_THAT(error.what(), testing::StartsWith("cannot listen on " + where + ": "));
  }
}

TEST(BoatEnds, WhatIsNoEndIsSaid) {
  for (const char* text : {"", "tcp://", "tcp://127.0.0.1:0", "tcp://127.0.0.1:x", "udp://:10110",
                           "/dev/null", "file:///a", "tcp://127.0.0.1:1, tcp://127.0.0.1:2"}) {
    EXPECT_THROW(OpenBoatEnd(text), CommandError) << text;
  }
}

TEST(BoatEnds, APseudoTerminalHasALinkWhileItIsThere) {
  const TemporaryFolder folder;
  const std::string link = folder / "boat";
  std::vector<std::string> lines;
  {
    BoatPtyEnd end(link);
    EXPECT_EQ(end.Name(), link);
    EXPECT_THROW(BoatPtyEnd{link}, CommandError);
    EXPECT_TRUE(std::filesystem::exists(link)) << "the second one has left it alone";
    const Descriptor line(::open(link.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK));
    end.Send("$A\r\n");
    EXPECT_TRUE(Soon([&] { return ReadAll(line.Number()) == "$A\r\n"; }));
    ASSERT_EQ(::write(line.Number(), "$B\r\n", 4), 4);
    EXPECT_TRUE(Soon([&] {
      end.Take([&](std::string_view told) { lines.emplace_back(told); });
      return !lines.empty();
    }));
  }
  EXPECT_THAT(lines, ElementsAre("$B"));
  EXPECT_FALSE(std::filesystem::is_symlink(link));
}

TEST(BoatEnds, APseudoTerminalThatNobodyReadsKeepsTheNewest) {
  BoatPtyEnd end("");
  for (int i = 0; i < 5000; ++i) {
    end.Send("$OLD,0123456789012345678901234567890123456789\r\n");
  }
  end.Send("$NEW\r\n");
  const Descriptor line(::open(end.Name().c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK));
  std::string heard;
  EXPECT_TRUE(Soon([&] { return (heard += ReadAll(line.Number())).ends_with("$NEW\r\n"); }));
  EXPECT_LT(heard.size(), 20000U);
}

}  // namespace
}  // namespace veerwatch
