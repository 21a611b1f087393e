#include "app/ProfileLocation.h"

#include <gtest/gtest.h>

namespace veerwatch {
namespace {

constexpr bool kWritable = true;

TEST(ProfileLocation, IsBesideTheProgram) {
  EXPECT_EQ(ProfileLocation("/boat/build", "/usr/local/bin", "/home/me/.config", kWritable),
            "/boat/build/Veerwatch.ini");
}

TEST(ProfileLocation, OfAnInstalledCopyIsTheUsersFolder) {
  EXPECT_EQ(ProfileLocation("/usr/local/bin", "/usr/local/bin", "/home/me/.config", kWritable),
            "/home/me/.config/veerwatch/Veerwatch.ini");
}

TEST(ProfileLocation, KnowsTheInstallFolderInAnySpelling) {
  EXPECT_EQ(ProfileLocation("/usr/local/bin", "/usr/local/./share/../bin/", "/home/me/.config", kWritable),
            "/home/me/.config/veerwatch/Veerwatch.ini");
}

TEST(ProfileLocation, OfAFolderThatCannotBeWrittenIsTheUsersFolder) {
  EXPECT_EQ(ProfileLocation("/media/disc", "/usr/local/bin", "/home/me/.config", !kWritable),
            "/home/me/.config/veerwatch/Veerwatch.ini");
}

TEST(ProfileLocation, IsNotMovedByAFolderOfASimilarName) {
  EXPECT_EQ(ProfileLocation("/usr/local/bin2", "/usr/local/bin", "/c", kWritable),
            "/usr/local/bin2/Veerwatch.ini");
}

}  // namespace
}  // namespace veerwatch
