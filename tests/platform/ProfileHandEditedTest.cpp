// Profiles that went through a user's editor.

#include <gtest/gtest.h>

#include <string>

#include "platform/Profile.h"
#include "tests/support/TemporaryFolder.h"

namespace veerwatch {
namespace {

constexpr const char* kMarked = "\xEF\xBB\xBF[Pilot]\nPort=4\n";

Profile Loaded(const TemporaryFolder& folder, const std::string& content) {
  WriteFile(folder / "Veerwatch.ini", content);
  Profile profile;
  EXPECT_EQ(profile.Load(folder / "Veerwatch.ini"), Profile::LoadResult::Read);
  return profile;
}

TEST(ProfileHandEdited, AByteOrderMarkHidesNoSection) {
  const TemporaryFolder folder;
  EXPECT_EQ(Loaded(folder, kMarked).Text("Pilot", "Port"), "4");
}

TEST(ProfileHandEdited, AByteOrderMarkStaysAndNoSecondSectionIsWritten) {
  const TemporaryFolder folder;
  Profile profile = Loaded(folder, kMarked);
  profile.ProfileSet("Pilot", "Port", std::string_view("5"));
  EXPECT_EQ(profile.Content(), "\xEF\xBB\xBF[Pilot]\nPort=5\n");
}

TEST(ProfileHandEdited, AValueWithQuotesAtItsEndsReadsBackWithThem) {
  for (const char* value : {"\"north\"", "'north'", "\"\"", " north", "north ", "\"north", "north'"}) {
    Profile profile;
    profile.ProfileSet("Polar", "File", std::string_view(value));
    EXPECT_EQ(profile.Text("Polar", "File"), value);
    profile.ProfileSet("Polar", "File", std::string_view(value));
    EXPECT_EQ(profile.Text("Polar", "File"), value) << "set again";
  }
}

TEST(ProfileHandEdited, AValueWithoutQuotesAtItsEndsIsWrittenAsItIs) {
  Profile profile;
  profile.ProfileSet("Polar", "File", std::string_view("a \"b\" c"));
  EXPECT_EQ(profile.Content(), "[Polar]\nFile=a \"b\" c\n");
}

}  // namespace
}  // namespace veerwatch
