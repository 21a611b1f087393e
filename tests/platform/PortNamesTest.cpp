#include "platform/PortNames.h"

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace veerwatch
