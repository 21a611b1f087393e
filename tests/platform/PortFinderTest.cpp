#include "platform/PortFinder.h"

#include <gtest/gtest.h>

#include "tests/support/TemporaryFolder.h"

namespace veerwatch {
namespace {

TEST(LastingName, IsTheFirstLinkThatLeadsToTheDevice) {
  const TemporaryFolder folder;
  WriteFile(folder / "ttyUSB0", "");
  WriteFile(folder / "ttyUSB1", "");
  const std::filesystem::path links = folder / "by-id";
  std::filesystem::create_directory(links);
  std::filesystem::create_symlink("../ttyUSB1", links / "usb-b");
  std::filesystem::create_symlink("../ttyUSB1", links / "usb-c");
  std::filesystem::create_symlink("../gone", links / "usb-a");
  EXPECT_EQ(LastingName((folder / "ttyUSB1").string(), links), (links / "usb-b").string());
  EXPECT_EQ(LastingName((folder / "ttyUSB0").string(), links), (folder / "ttyUSB0").string());
}

TEST(LastingName, IsTheDeviceWhereThereAreNoLinks) {
  const TemporaryFolder folder;
  EXPECT_EQ(LastingName("/dev/ttyUSB0", folder / "none"), "/dev/ttyUSB0");
}

}  // namespace
}  // namespace veerwatch
