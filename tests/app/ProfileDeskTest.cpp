#include "app/ProfileDesk.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "tests/support/TemporaryFolder.h"

namespace veerwatch {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

/// Another open lock file counts as another program's, in this process too.
class LockedElsewhere {
 public:
  explicit LockedElsewhere(const fs::path& profile) : m_file(profile) {
    m_file += ".lock";
    m_descriptor = ::open(m_file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
    EXPECT_EQ(::flock(m_descriptor, LOCK_EX | LOCK_NB), 0);
  }
  ~LockedElsewhere() { ::close(m_descriptor); }
  LockedElsewhere(const LockedElsewhere&) = delete;
  LockedElsewhere& operator=(const LockedElsewhere&) = delete;

 private:
  fs::path m_file;
  int m_descriptor;
};

class Desk : public testing::Test {
 protected:
  Desk() { WriteFile(File("Veerwatch"), "[Track]\nBandwidth=20\n"); }

  fs::path File(const std::string& name) const { return m_folder / (name + ".ini"); }
  void Put(const std::string& name, const std::string& content = "[Track]\nBandwidth=30\n") const {
    WriteFile(File(name), content);
  }
  Profile Settings() const {
    Profile profile;
    profile.ProfileSet("Track", "Bandwidth", "55");
    return profile;
  }

  TemporaryFolder m_folder;
  ProfileDesk m_desk{m_folder / "Veerwatch.ini"};
};

TEST_F(Desk, BeginsWithTheFirst) {
  EXPECT_TRUE(m_desk.First());
  EXPECT_EQ(m_desk.Name(), "Veerwatch");
  EXPECT_FALSE(m_desk.Lock().HeldByAnother());
  EXPECT_THAT(m_desk.Names(), ElementsAre("Veerwatch"));
}

TEST_F(Desk, TakesTheOneThatWasInUseLast) {
  m_desk.Resume();
  EXPECT_TRUE(m_desk.First());
  ASSERT_EQ(m_desk.SaveAs("Charter", Settings()), std::nullopt);
  ASSERT_EQ(m_desk.Rename("Charter", "Club"), std::nullopt);
  EXPECT_THAT(ReadFile(File("Veerwatch")), HasSubstr("[Profiles]\nIn Use=Club\n"));
  EXPECT_EQ(ProfileInUse(File("Veerwatch")), File("Club"));
  {
    ProfileDesk second(File("Veerwatch"));
    second.Resume();
    EXPECT_EQ(second.File(), File("Club"));
    EXPECT_EQ(second.FirstName(), "Veerwatch");
  }
  ASSERT_EQ(m_desk.Ask("Veerwatch"), std::nullopt);
  ASSERT_TRUE(m_desk.Change());
  EXPECT_EQ(ProfileInUse(File("Veerwatch")), File("Veerwatch"));
}

TEST_F(Desk, WhatWasInUseAndIsGoneOrNoProfileIsNotTaken) {
  for (const std::string name : {"Gone", "../Club", "", ".", "desktop", "folder"}) {
    Put("desktop", "[Desktop Entry]\nName=x\n");
    fs::create_directory(m_folder / "folder.ini");
    Put("Veerwatch", "[Track]\nBandwidth=20\n[Profiles]\nIn Use=" + name + "\n");
    EXPECT_EQ(ProfileInUse(File("Veerwatch")), File("Veerwatch")) << name;
  }
}

TEST_F(Desk, KeepsNothingOfWhatIsChosenWhereAFileWasAskedFor) {
  ASSERT_EQ(m_desk.SaveAs("Charter", Settings()), std::nullopt);
  EXPECT_EQ(ReadFile(File("Veerwatch")), "[Track]\nBandwidth=20\n");
}

TEST_F(Desk, WritesNothingIntoAFirstOneThatAnotherProgramHas) {
  m_desk.Resume();
  ASSERT_EQ(m_desk.SaveAs("Charter", Settings()), std::nullopt);
  const std::string before = ReadFile(File("Veerwatch"));
  const LockedElsewhere other(File("Veerwatch"));
  EXPECT_EQ(m_desk.Rename("Charter", "Club"), std::nullopt);
  EXPECT_EQ(ReadFile(File("Veerwatch")), before);
}

TEST_F(Desk, ListsWhatHoldsAProfileInOrder) {
  Put("Club");
  Put("Charter");
  Put("Another", "[Simulate]\nNmea=True\n");
  Put("desktop", "[Desktop Entry]\nName=x\n");
  Put("empty", "");
  WriteFile(m_folder / "notes.txt", "[Track]\nBandwidth=1\n");
  WriteFile(m_folder / ".hidden.ini", "[Track]\nBandwidth=1\n");
  fs::create_directory(m_folder / "folder.ini");
  EXPECT_THAT(m_desk.Names(), ElementsAre("Veerwatch", "Another", "Charter", "Club"));
}

TEST_F(Desk, SavesAsANewOneAndUsesIt) {
  EXPECT_EQ(m_desk.SaveAs("Charter", Settings()), std::nullopt);
  EXPECT_EQ(m_desk.Name(), "Charter");
  EXPECT_FALSE(m_desk.First());
  EXPECT_EQ(ReadFile(File("Charter")), "[Track]\nBandwidth=55\n");
  EXPECT_EQ(ReadFile(File("Veerwatch")), "[Track]\nBandwidth=20\n") << "as it was";
  EXPECT_TRUE(fs::exists(m_folder / "Charter.ini.lock"));
  EXPECT_FALSE(fs::exists(m_folder / "Veerwatch.ini.lock")) << "others may have it now";
}

TEST_F(Desk, ABadNameIsSaidAndNothingIsWritten) {
  for (const std::string name :
       {"",    " ",  ".",  "..", "a/b", "a\\b", "c:",        "what?", "a*",   "\"a\"",       "<a>",
        "a|b", " a", "a ", ".a", "a.",  "a\nb", "a\x1b[31m", "a\x7f", "\xff", "../Veerwatch"}) {
    const auto trouble = m_desk.SaveAs(name, Settings());
    ASSERT_TRUE(trouble) << name;
    EXPECT_THAT(*trouble, HasSubstr("no name for a profile")) << name;
  }
  EXPECT_TRUE(m_desk.SaveAs(std::string(41, 'a'), Settings()));
  EXPECT_TRUE(IsProfileName(std::string(40, 'a')));
  EXPECT_TRUE(IsProfileName("Mary & Jane's Åland 27"));
  EXPECT_TRUE(m_desk.First());
  EXPECT_THAT(m_folder.Names(), testing::UnorderedElementsAre("Veerwatch.ini", "Veerwatch.ini.lock"));
}

TEST_F(Desk, ANameThatIsThereIsSaidAndNothingIsOverwritten) {
  Put("Charter");
  WriteFile(m_folder / "other.ini", "[Desktop Entry]\nName=x\n");
  fs::create_symlink("nowhere", File("link"));
  for (const std::string name : {"Charter", "charter", "CHARTER", "Veerwatch", "other", "link"}) {
    const auto trouble = m_desk.SaveAs(name, Settings());
    ASSERT_TRUE(trouble) << name;
    EXPECT_THAT(*trouble, HasSubstr(" already")) << name;
  }
  EXPECT_EQ(ReadFile(File("Charter")), "[Track]\nBandwidth=30\n");
  EXPECT_EQ(ReadFile(m_folder / "other.ini"), "[Desktop Entry]\nName=x\n");
}

TEST_F(Desk, ChangesToAnother) {
  Put("Charter");
  EXPECT_FALSE(m_desk.Change());
  EXPECT_EQ(m_desk.Ask("Charter"), std::nullopt);
  EXPECT_TRUE(m_desk.Asked());
  EXPECT_TRUE(m_desk.First()) << "not before Change()";
  EXPECT_TRUE(fs::exists(m_folder / "Charter.ini.lock")) << "nobody else gets it meanwhile";
  EXPECT_TRUE(m_desk.Change());
  EXPECT_EQ(m_desk.Name(), "Charter");
  EXPECT_FALSE(m_desk.Change());
  EXPECT_EQ(m_desk.Ask("Veerwatch"), std::nullopt);
  EXPECT_TRUE(m_desk.Change());
  EXPECT_TRUE(m_desk.First());
}

TEST_F(Desk, WhoStaysGivesBackWhatWasAskedFor) {
  Put("Charter");
  ASSERT_EQ(m_desk.Ask("Charter"), std::nullopt);
  m_desk.Stay();
  EXPECT_FALSE(m_desk.Change());
  EXPECT_FALSE(fs::exists(m_folder / "Charter.ini.lock"));
}

TEST_F(Desk, OneThatHasGoneIsSaid) {
  const auto trouble = m_desk.Ask("Charter");
  ASSERT_TRUE(trouble);
  EXPECT_THAT(*trouble, HasSubstr("There is no file"));
  EXPECT_FALSE(m_desk.Change());
}

TEST_F(Desk, WhatAnotherProgramHasIsLeftAlone) {
  Put("Charter");
  const LockedElsewhere other(File("Charter"));
  for (const auto& trouble :
       {m_desk.Ask("Charter"), m_desk.Rename("Charter", "Club"), m_desk.Delete("Charter")}) {
    ASSERT_TRUE(trouble);
    EXPECT_THAT(*trouble, HasSubstr("Charter is in use by another Veerwatch"));
  }
  EXPECT_FALSE(m_desk.Change());
  EXPECT_TRUE(fs::exists(File("Charter")));
  EXPECT_TRUE(m_desk.First());
}

TEST_F(Desk, RenamesOneThatIsNotInUse) {
  Put("Charter");
  EXPECT_EQ(m_desk.Rename("Charter", "Club"), std::nullopt);
  EXPECT_THAT(m_desk.Names(), ElementsAre("Veerwatch", "Club"));
  EXPECT_EQ(ReadFile(File("Club")), "[Track]\nBandwidth=30\n");
  EXPECT_TRUE(m_desk.First());
  EXPECT_TRUE(m_desk.Rename("Club", "Veerwatch"));
  EXPECT_TRUE(m_desk.Rename("Club", "a/b"));
  EXPECT_TRUE(fs::exists(File("Club")));
}

TEST_F(Desk, RenamesTheOneInUse) {
  ASSERT_EQ(m_desk.SaveAs("Charter", Settings()), std::nullopt);
  EXPECT_EQ(m_desk.Rename("Charter", "Club"), std::nullopt);
  EXPECT_EQ(m_desk.Name(), "Club");
  EXPECT_EQ(m_desk.File(), File("Club"));
  EXPECT_FALSE(fs::exists(File("Charter")));
  EXPECT_FALSE(fs::exists(m_folder / "Charter.ini.lock"));
  EXPECT_TRUE(fs::exists(m_folder / "Club.ini.lock"));
}

TEST_F(Desk, DeletesOne) {
  Put("Charter");
  EXPECT_EQ(m_desk.Delete("Charter"), std::nullopt);
  EXPECT_THAT(m_folder.Names(), testing::UnorderedElementsAre("Veerwatch.ini", "Veerwatch.ini.lock"));
}

TEST_F(Desk, AFolderThatCannotBeWrittenChangesNothing) {
  if (::geteuid() == 0) {
    // Root writes everywhere, but not into a folder that is a file.
    const TemporaryFolder gone;
    ProfileDesk lost(gone.Path() / "sub" / "Veerwatch.ini");
    WriteFile(gone.Path() / "sub", "a file where the folder should be");
    EXPECT_TRUE(lost.SaveAs("Charter", Settings()));
    EXPECT_TRUE(lost.First());
    return;
  }
  Put("Charter");
  fs::permissions(m_folder.Path(), fs::perms::owner_read | fs::perms::owner_exec);
  EXPECT_TRUE(m_desk.SaveAs("Club", Settings()));
  EXPECT_TRUE(m_desk.Rename("Charter", "Club"));
  EXPECT_TRUE(m_desk.Delete("Charter"));
  EXPECT_TRUE(m_desk.First());
  EXPECT_TRUE(fs::exists(File("Charter")));
}

}  // namespace
}  // namespace veerwatch
