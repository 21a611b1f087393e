#include "platform/PortFailure.h"

#include <gtest/gtest.h>

#ifndef _WIN32
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <thread>

#include "tests/support/TemporaryFolder.h"

namespace veerwatch {
namespace {

TEST(PortFailure, SaysThatThereIsNoSuchDevice) {
  EXPECT_EQ(PortFailure("/dev/none-of-that-name", ""), "/dev/none-of-that-name: no such device");
  EXPECT_EQ(PortFailure("none-of-that-name", "any"), "/dev/none-of-that-name: no such device");
}

TEST(PortFailure, SaysThatAFileIsNoDevice) {
  const TemporaryFolder folder;
  const std::string file = (folder.Path() / "port").string();
  std::ofstream(file) << "x";
  EXPECT_EQ(PortFailure(file, ""), file + ": not a serial device");
}

TEST(PortFailure, GivesTheSystemsReasonWhereItKnowsNoBetter) {
  EXPECT_EQ(PortFailure("/dev/null", "Input/output error"), "/dev/null: Input/output error");
}

/// A pseudo terminal that a child process called `name` has open while this lives.
class TakenTerminal {
 public:
  explicit TakenTerminal(const std::string& program) {
    m_master = ::posix_openpt(O_RDWR | O_NOCTTY);
    ::grantpt(m_master);
    ::unlockpt(m_master);
    m_name = ::ptsname(m_master);
    m_child = ::fork();
    if (m_child == 0) {
      ::open(m_name.c_str(), O_RDWR | O_NOCTTY);
      ::execl(program.c_str(), program.c_str(), "60", nullptr);
      ::_exit(1);
    }
  }
  ~TakenTerminal() {
    ::kill(m_child, SIGKILL);
    ::waitpid(m_child, nullptr, 0);
    ::close(m_master);
  }
  TakenTerminal(const TakenTerminal&) = delete;
  TakenTerminal& operator=(const TakenTerminal&) = delete;

  const std::string& Name() const { return m_name; }

 private:
  int m_master = -1;
  pid_t m_child = -1;
  std::string m_name;
};

TEST(PortFailure, NamesTheProgramThatHasTheDevice) {
  const TakenTerminal terminal("/bin/sleep");
  const std::string wanted = terminal.Name() + ": in use by another program, sleep";
  std::string said;
  for (int i = 0; i < 200 && said != wanted; ++i) {
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
    said = PortFailure(terminal.Name(), "");
  }
  EXPECT_EQ(said, wanted);
}

TEST(PortFailure, LooksNoLongerThanAMoment) {
  const std::clock_t start = std::clock();
  for (int i = 0; i < 10; ++i) {
    PortFailure("/dev/full", "");
  }
  EXPECT_LT(std::clock() - start, 2 * CLOCKS_PER_SEC) << "time of the processor, under sanitizers";
}

TEST(PortFailure, TellsThisProgramsOtherPort) {
  const int file = ::open("/dev/full", O_RDWR);
  ASSERT_GE(file, 0);
  EXPECT_EQ(PortFailure("/dev/full", ""), "/dev/full: in use by this program's other port");
  ::close(file);
}

/// What somebody else is told about a device of root's that only `group` may open, by the permissions `mode`;
/// in front of it stands the device.
std::string SaidToAnother(gid_t group, mode_t mode) {
  const int master = ::posix_openpt(O_RDWR | O_NOCTTY);
  ::grantpt(master);
  ::unlockpt(master);
  const std::string name = ::ptsname(master);
  EXPECT_EQ(::chown(name.c_str(), 0, group), 0);
  EXPECT_EQ(::chmod(name.c_str(), mode), 0);
  int ends[2];
  EXPECT_EQ(::pipe(ends), 0);
  const pid_t child = ::fork();
  if (child == 0) {
    constexpr uid_t kNobody = 65534;
    if (::setgid(kNobody) == 0 && ::setuid(kNobody) == 0) {
      const std::string said = PortFailure(name, "");
      static_cast<void>(::write(ends[1], said.data(), said.size()));
    }
    ::_exit(0);
  }
  ::close(ends[1]);
  std::string said(200, '\0');
  said.resize(static_cast<std::size_t>(std::max<ssize_t>(0, ::read(ends[0], said.data(), said.size()))));
  ::waitpid(child, nullptr, 0);
  ::close(ends[0]);
  ::close(master);
  EXPECT_EQ(said.substr(0, name.size()), name);
  return said.substr(std::min(name.size(), said.size()));
}

TEST(PortFailure, NamesTheGroupThatMayOpenTheDevice) {
  if (::geteuid() != 0) {
    GTEST_SKIP() << "needs another user's eyes";
  }
  constexpr gid_t kTerminals = 5;
  constexpr gid_t kDialout = 20;
  EXPECT_EQ(SaidToAnother(kDialout, 0660), ": no permission, add yourself to the group dialout");
  EXPECT_EQ(SaidToAnother(kTerminals, 0660), ": no permission, add yourself to the group tty");
}

TEST(PortFailure, NamesTheUsualGroupWhereTheDevicesOwnMayNotReadAndWrite) {
  if (::geteuid() != 0) {
    GTEST_SKIP() << "needs another user's eyes";
  }
  constexpr gid_t kTerminals = 5;
  EXPECT_EQ(SaidToAnother(kTerminals, 0620), ": no permission, add yourself to the group dialout");
  EXPECT_EQ(SaidToAnother(0, 0660), ": no permission, add yourself to the group dialout");
}

TEST(PortFailure, ShowsControlCharactersAsPictures) {
  EXPECT_EQ(PortFailure("/dev/no\x1Bwhere", ""), "/dev/no\u241Bwhere: no such device");
}

}  // namespace
}  // namespace veerwatch
#endif
