// "File > Record Input..." of the real program process.

#include <sys/resource.h>

#include <csignal>
#include <cstdint>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include "tests/e2e/RealPorts.h"
#include "tests/e2e/Sockets.h"
#include "tests/support/TemporaryFolder.h"

namespace veerwatch {
namespace {

using testing::HasSubstr;

class RecordInput : public RealPorts {
 protected:
  /// Answers the command with that file.
  void Record(const std::string& name) {
    Click("mnuFileRecord");
    m_program->Tell("type fileNameEdit " + (Folder / name).string());
    ASSERT_TRUE(Says("typed fileNameEdit")) << m_program->Said();
  }
  std::vector<std::string> Lines(const std::string& name) const {
    std::vector<std::string> lines;
    std::istringstream file(ReadFile(Folder / name));
    for (std::string line; std::getline(file, line);) {
      lines.push_back(line);
    }
    return lines;
  }

  TemporaryFolder Folder;
};

/// A sentence without its line end.
std::string Bare(const std::string& sentence) { return sentence.substr(0, sentence.find('\r')); }

TEST_F(RecordInput, HoldsEachLineWithItsTimeAndEndpointAndPlaysThemAgain) {
  const std::uint16_t gateway = Loop(SOCK_DGRAM).Number();
  LaunchRemote(ProfileText(
      1, 2, "1=" + In.Device() + ", udp://:" + std::to_string(gateway) + "\r\n2=" + Out.Device() + "\r\n"));
  Record("sail.nmea");
  WriteAll(In, ApparentWind("040"));
  ASSERT_TRUE(AwaitText("lblAppWindAngle", "40"));
  SendDatagram(gateway, TrueWind("060"));
  ASSERT_TRUE(AwaitText("lblTrueWindAngle", "60"));
  Click("mnuFileRecord");
  const std::vector<std::string> lines = Lines("sail.nmea");
  ASSERT_EQ(lines.size(), 2U);
  const std::string time = R"(20\d\d-\d\d-\d\dT\d\d:\d\d:\d\d\.\d\d\dZ )";
  std::smatch part;
  ASSERT_TRUE(std::regex_match(lines[0], part, std::regex("1 " + time + "(.*)"))) << lines[0];
  EXPECT_EQ(part[1], Bare(ApparentWind("040")));
  ASSERT_TRUE(std::regex_match(lines[1], part, std::regex("2 " + time + "(.*)"))) << lines[1];
  EXPECT_EQ(part[1], Bare(TrueWind("060")));
  ExpectOrderlyEnd();

  LaunchRemote(ProfileText(1, 2, "1=file://" + (Folder / "sail.nmea").string() + "\r\n2=none\r\n"));
  EXPECT_TRUE(AwaitText("lblAppWindAngle", "40"));
  EXPECT_TRUE(AwaitText("lblTrueWindAngle", "60"));
  ExpectOrderlyEnd();
}

TEST_F(RecordInput, AFullDiskEndsItAndTheProgramSteersOn) {
  // What a full disk refuses is refused by a limit here, whose signal nobody handles.
  std::signal(SIGXFSZ, SIG_IGN);
  Sail();
  Record("sail.nmea");
  WriteAll(In, ApparentWind("040"));
  ASSERT_TRUE(Pilots.Hears(Pilot("100.0")));
  rlimit before{};
  const rlimit none{20, RLIM_INFINITY};
  ASSERT_EQ(::prlimit(m_program->Id(), RLIMIT_FSIZE, &none, &before), 0);
  EXPECT_TRUE(
      Await([this] { return Text("Banner").find("The recording has ended: ") != std::string::npos; }));
  EXPECT_THAT(Text("Banner"), HasSubstr("sail.nmea: File too large"));
  ASSERT_EQ(::prlimit(m_program->Id(), RLIMIT_FSIZE, &before, nullptr), 0);
  WriteAll(In, ApparentWind("041"));
  EXPECT_TRUE(Pilots.Hears(Pilot("100.0")));
  EXPECT_TRUE(AwaitText("lblAppWindAngle", "41"));
  ExpectOrderlyEnd();
  std::signal(SIGXFSZ, SIG_DFL);
}

}  // namespace
}  // namespace veerwatch
