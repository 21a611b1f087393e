#include "app/ProfileLocation.h"

#include <gtest/gtest.h>

namespace veerwatch {
namespace {

constexpr bool kInstalled = true;
constexpr bool kWritable = true;

TEST(ProfileLocation, IsBesideTheProgram) {
  EXPECT_EQ(ProfileLocation("/boat/build", !kInstalled, "/home/me/.config", kWritable),
            "/boat/build/Veerwatch.ini");
}

TEST(ProfileLocation, OfAnInstalledCopyIsTheUsersFolder) {
  EXPECT_EQ(ProfileLocation("/usr/local/bin", kInstalled, "/home/me/.config", kWritable),
            "/home/me/.config/veerwatch/Veerwatch.ini");
}

TEST(ProfileLocation, OfAFolderThatCannotBeWrittenIsTheUsersFolder) {
  EXPECT_EQ(ProfileLocation("/media/disc", !kInstalled, "/home/me/.config", !kWritable),
            "/home/me/.config/veerwatch/Veerwatch.ini");
}

}  // namespace
}  // namespace veerwatch
