// Both real programs: "veerwatch-cli boat" serves a boat, and Veerwatch steers her over one link for both
// ways.
#include <gtest/gtest.h>
#include <sys/socket.h>

#include <cmath>
#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>

#include "platform/NumberText.h"
#include "tests/e2e/Process.h"
#include "tests/e2e/Sockets.h"
#include "tests/support/TemporaryFolder.h"

namespace veerwatch {
namespace {

class ServedBoat : public testing::Test {
 protected:
  /// The boat at `where`, whose pilot reads `reads`, and the program on that port.
  void Sail(const std::string& listen, const std::string& port, const std::string& reads) {
    ASSERT_TRUE(m_boat.Start({VEERWATCH_CLI, "boat", "--listen", listen, "--rate", "2", "--reads", reads}));
    ASSERT_TRUE(Await([this] { return m_boat.Said().find("Listening on ") != std::string::npos; }))
        << m_boat.Said();
    m_program.emplace(VEERWATCH_REMOTE,
                      "[Nmea]\nPort=1\nHeading=0\nBoat Speed=0\n[Pilot]\nPort=1\n[Ports]\n1=" + port + "\n");
    ASSERT_TRUE(m_program->Start());
    ASSERT_TRUE(Await([this] { return Heading().has_value(); })) << m_program->Said();
    m_program->Tell("click tbrTrack(5)");
    m_program->Tell("type txtAutoPilot 110");
  }

  /// What the label showed last, "" before.
  std::string Text(const std::string& label) {
    m_program->Tell("text " + label);
    const std::string begins = "text " + label + "=";
    const std::string& said = m_program->Said();
    const std::size_t at = said.rfind(begins);
    return at == std::string::npos
               ? ""
               : said.substr(at + begins.size(), said.find('\n', at) - at - begins.size());
  }
  std::optional<double> Heading() {
    const auto heading = StrictDouble(Text("lblHeading"));
    return heading ? std::optional(*heading) : std::nullopt;
  }
  bool Comes(double heading) {
    return Await([&] { return std::fabs(std::remainder(Heading().value_or(0.0) - heading, 360.0)) < 6.0; });
  }

  Child m_boat;
  std::optional<Process> m_program;
};

TEST_F(ServedBoat, IsSteeredOverTcp) {
  const std::string number = Loop(SOCK_STREAM).Port();
  Sail("tcp://127.0.0.1:" + number, "tcp://127.0.0.1:" + number, "all");
  EXPECT_TRUE(Comes(110.0)) << Text("lblHeading");
  EXPECT_TRUE(Await([this] { return Text("lblPilotFollows").find("Follows") != std::string::npos; }))
      << Text("lblPilotFollows");
}

TEST_F(ServedBoat, IsSteeredOverAPseudoTerminal) {
  const TemporaryFolder folder;
  const std::string link = folder / "boat";
  Sail("pty:" + link, link, "apb");
  EXPECT_TRUE(Comes(110.0)) << Text("lblHeading");
  m_boat.Terminate();
  EXPECT_EQ(m_boat.AwaitEnd(), 0);
  EXPECT_FALSE(std::filesystem::is_symlink(link)) << "it goes with the boat";
}

TEST_F(ServedBoat, APilotThatReadsSomethingElseIsFound) {
  const std::string number = Loop(SOCK_STREAM).Port();
  Sail("tcp://127.0.0.1:" + number, "tcp://127.0.0.1:" + number, "hsc");
  EXPECT_TRUE(Await([this] { return Text("lblPilotFollows").find("Does not follow") != std::string::npos; }))
      << Text("lblPilotFollows");
  EXPECT_FALSE(std::fabs(std::remainder(Heading().value_or(110.0) - 110.0, 360.0)) < 20.0)
      << Text("lblHeading");
}

}  // namespace
}  // namespace veerwatch
