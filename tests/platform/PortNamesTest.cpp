#include "platform/PortNames.h"

#include <gmock/gmock.h>

#include <string>

#include "platform/Profile.h"
#include "tests/support/TemporaryFolder.h"

namespace veerwatch {
namespace {

#ifndef _WIN32
TEST(PortDevice, IsTheSystemsOwnNameWithoutAnEntry) {
  const Profile profile;
  EXPECT_EQ(PortDevice(profile, 1), "/dev/ttyS0");
  EXPECT_EQ(PortDevice(profile, 5), "/dev/ttyS4");
  EXPECT_EQ(PortDevice(profile, 32767), "/dev/ttyS32766");
}

TEST(PortDevice, IsTheSystemsOwnNameForAnEmptyEntryAndForAnotherNumbersEntry) {
  Profile profile;
  profile.ProfileSet("Ports", "5", "");
  profile.ProfileSet("Ports", "50", "/dev/pts/7");
  EXPECT_EQ(PortDevice(profile, 5), "/dev/ttyS4");
}
#endif

TEST(PortDevice, IsTheProfilesEntryUnderTheNumber) {
  Profile profile;
  profile.ProfileSet("Ports", "5", "/dev/pts/3");
  profile.ProfileSet("ports", "6", "/dev/serial/by-id/usb-one");
  EXPECT_EQ(PortDevice(profile, 5), "/dev/pts/3");
  EXPECT_EQ(PortDevice(profile, 6), "/dev/serial/by-id/usb-one");
}

TEST(PortDevice, TakesAPathWithBlanksAndOneLongerThanAnyOtherValue) {
  const TemporaryFolder folder;
  const std::string path = "/dev/serial/by-id/usb-" + std::string(120, 'x') + "-if00-port0";
  WriteFile(folder / "p.ini", "[Ports]\n5=\"/dev/my port\"\n6=" + path + "\n");
  Profile profile;
  profile.Load(folder / "p.ini");
  EXPECT_EQ(PortDevice(profile, 5), "/dev/my port");
  EXPECT_EQ(PortDevice(profile, 6), path);
}

TEST(PortEntries, AreThoseThatNameSomethingUnderANumber) {
  const TemporaryFolder folder;
  WriteFile(folder / "p.ini",
            "[Other]\n4=x\n[ports]\n; 8=no\n12=udp://:10110\n2=/dev/ttyUSB0\n2=second\n3=\n0=x\n"
            "32768=x\n1.5=x\n07=x\nname=x\nno equals\n[Next]\n5=x\n");
  Profile profile;
  profile.Load(folder / "p.ini");
  std::vector<std::string> entries;
  for (const PortEntry& entry : PortEntries(profile)) {
    entries.push_back(std::to_string(entry.Number) + "=" + entry.Endpoints);
  }
  EXPECT_THAT(entries, testing::ElementsAre("2=/dev/ttyUSB0", "12=udp://:10110"));
  EXPECT_THAT(PortEntries(Profile()), testing::IsEmpty());
}

TEST(PortEntries, ANumberIsNamedAnew) {
  Profile profile;
  profile.ProfileSet("Ports", "1", "/dev/ttyUSB0");
  NamePort(profile, 1, "tcp://boat:10110");
  NamePort(profile, 2, "/dev/ttyUSB1");
  EXPECT_EQ(profile.Content(), "[Ports]\n1=tcp://boat:10110\n2=/dev/ttyUSB1\n");
}

}  // namespace
}  // namespace veerwatch
