// "File > Profiles" in the main window.
#include <gmock/gmock.h>

#include <QMenu>
#include <QToolBar>
#include <optional>
#include <string>

#include "app/ProfileDesk.h"
#include "app/SessionQt.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/WaitQt.h"
#include "tests/ui/MainWindowTester.h"

namespace veerwatch {
namespace {

using testing::HasSubstr;

class ProfilesMenu : public MainWindowTester {
 public:
  ProfilesMenu() {
    WriteFile(m_files / "Home.ini", "[Track]\nBandwidth=20\n[Simulate]\nNmea=True\n");
    WriteFile(m_files / "Charter.ini", "[Track]\nBandwidth=33\n");
  }
  ~ProfilesMenu() override { Window.reset(); }

 protected:
  void Open() {
    m_desk.emplace(m_files / "Home.ini");
    MainWindowParts parts{NmeaPort, PilotPort, tmrNmea, tmrUnload, TimerTack,
                          Time,     Random,    Asks(),  Store,     m_desk->File().string()};
    parts.Profiles = &*m_desk;
    Window = std::make_unique<frmMain>(parts);
    Window->Form_Load();
    Window->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(Window.get()));
  }
  QAction* Command(const char* name) const { return Window->findChild<QAction*>(QString::fromUtf8(name)); }
  void Choose(const char* name) const {
    QAction* action = Command(name);
    ASSERT_NE(action, nullptr) << name;
    action->trigger();
    QTest::qWait(1);
  }
  std::string Content(const char* name) const { return ReadFile(m_files / name); }

  TemporaryFolder m_files;
  std::optional<ProfileDesk> m_desk;
};

TEST_F(ProfilesMenu, ListsThemAndTicksTheOneInUse) {
  Open();
  ASSERT_NE(Command("mnuFileProfile(Home)"), nullptr);
  EXPECT_TRUE(Command("mnuFileProfile(Home)")->isChecked());
  EXPECT_FALSE(Command("mnuFileProfile(Charter)")->isChecked());
  WriteFile(m_files / "Club.ini", "[Track]\nBandwidth=44\n");
  Find<QMenu>("mnuFileProfiles").popup(QPoint());
  EXPECT_NE(Command("mnuFileProfile(Club)"), nullptr) << "as the folder is when it opens";
  EXPECT_EQ(Command("mnuFileProfilesDelete(Home)"), nullptr) << "the first one stays";
}

TEST_F(ProfilesMenu, IsNotThereWithoutADesk) {
  Start();
  EXPECT_FALSE(Find<QMenu>("mnuFileProfiles").menuAction()->isVisible());
}

TEST_F(ProfilesMenu, SavesAsANewOneWhichThenStandsInTheTitle) {
  Open();
  EXPECT_EQ(Caption().find("Racer"), std::string::npos);
  Window->m_fTrackBandwidth = 77.0F;
  Dialogs.Texts = {"Racer"};
  Choose("mnuFileProfilesSaveAs");
  EXPECT_THAT(Content("Racer.ini"), HasSubstr("Bandwidth=77"));
  EXPECT_EQ(Content("Home.ini"), "[Track]\nBandwidth=20\n[Simulate]\nNmea=True\n") << "as it was";
  EXPECT_THAT(Caption(), HasSubstr(" - Racer"));
  EXPECT_EQ(Window->m_eTrackMode, TrackMode::Manual) << "nothing else has changed";
  Window->m_fTrackBandwidth = 78.0F;
  Window->KeepSettings();
  EXPECT_THAT(Content("Racer.ini"), HasSubstr("Bandwidth=78"));
  EXPECT_EQ(Content("Home.ini"), "[Track]\nBandwidth=20\n[Simulate]\nNmea=True\n");
  EXPECT_TRUE(Dialogs.Messages.empty());
}

TEST_F(ProfilesMenu, SaysABadNameAndOneThatIsThere) {
  Open();
  Dialogs.Texts = {"a/b", "charter", std::nullopt};
  Choose("mnuFileProfilesSaveAs");
  Choose("mnuFileProfilesSaveAs");
  Choose("mnuFileProfilesSaveAs");
  ASSERT_EQ(Dialogs.Messages.size(), 2U);
  EXPECT_THAT(Dialogs.Messages[0].Text, HasSubstr("no name for a profile"));
  EXPECT_THAT(Dialogs.Messages[1].Text, HasSubstr("already"));
  EXPECT_TRUE(m_desk->First());
}

TEST_F(ProfilesMenu, ChoosingOneWritesAndClosesTheOneInUse) {
  Open();
  Window->m_fTrackBandwidth = 21.0F;
  Choose("mnuFileProfile(Charter)");
  EXPECT_TRUE(WaitFor([&] { return !Window->isVisible(); }));
  EXPECT_THAT(Content("Home.ini"), HasSubstr("Bandwidth=21"));
  EXPECT_FALSE(NmeaPort.PortOpen());
  EXPECT_TRUE(m_desk->Change());
  EXPECT_EQ(m_desk->Name(), "Charter");
}

TEST_F(ProfilesMenu, ANewOneBeginsOff) {
  Open();
  Window.reset();
  m_desk.emplace(m_files / "Home.ini");
  MainWindowParts parts{NmeaPort, PilotPort, tmrNmea, tmrUnload, TimerTack,
                        Time,     Random,    Asks(),  Store,     m_desk->File().string()};
  parts.Profiles = &*m_desk;
  Window = std::make_unique<frmMain>(parts);
  Window->Form_Load(true);
  EXPECT_EQ(Window->m_eTrackMode, TrackMode::Off) << "though it simulates";
  EXPECT_FALSE(NmeaPort.PortOpen());
}

TEST_F(ProfilesMenu, WhileTrackingItAsksAsTheCloseDoesAndANoStays) {
  Open();
  tmrNmea.Tick();
  Window->TrackSetTrack();
  ASSERT_EQ(Window->m_eTrackMode, TrackMode::Track);
  Dialogs.Answers = {false, true};
  Choose("mnuFileProfile(Charter)");
  ASSERT_EQ(Dialogs.Questions.size(), 1U);
  EXPECT_THAT(Dialogs.Questions[0].Text, HasSubstr("Do you wish to stop tracking?"));
  EXPECT_TRUE(Window->isVisible());
  EXPECT_EQ(Window->m_eTrackMode, TrackMode::Track);
  EXPECT_FALSE(m_desk->Asked());
  EXPECT_TRUE(Command("mnuFileProfile(Home)")->isChecked());
  Choose("mnuFileProfile(Charter)");
  EXPECT_TRUE(WaitFor([&] { return !Window->isVisible(); }));
  EXPECT_TRUE(m_desk->Asked());
}

TEST_F(ProfilesMenu, TheNextSessionStartsTheOneInUse) {
  Open();
  const QStringList started{QStringLiteral("veerwatch"), QStringLiteral("--profile"),
                            QStringLiteral("Home.ini")};
  EXPECT_EQ(RestartWords(started, *m_desk), started);
  ASSERT_EQ(m_desk->Ask("Charter"), std::nullopt);
  ASSERT_TRUE(m_desk->Change());
  const QStringList words = RestartWords(started, *m_desk);
  EXPECT_EQ(words.last().toStdString(), (m_files / "Charter.ini").string());
  EXPECT_EQ(words.size(), started.size() + 2);
}

TEST_F(ProfilesMenu, AnExitIsNoChange) {
  Open();
  tmrNmea.Tick();
  Window->TrackSetTrack();
  Dialogs.Later = true;
  Choose("mnuFileProfile(Charter)");
  ASSERT_TRUE(m_desk->Asked());
  Window->CloseUnasked();
  EXPECT_FALSE(m_desk->Asked());
  EXPECT_FALSE(Window->isVisible());
}

TEST_F(ProfilesMenu, WhatCannotBeSavedStaysInUse) {
  Open();
  std::filesystem::remove(m_files / "Home.ini");
  std::filesystem::create_directory(m_files / "Home.ini");
  Choose("mnuFileProfile(Charter)");
  ASSERT_EQ(Dialogs.Messages.size(), 1U);
  EXPECT_THAT(Dialogs.Messages[0].Text, HasSubstr("could not be saved, so they stay in use"));
  EXPECT_TRUE(Window->isVisible());
  EXPECT_FALSE(m_desk->Asked());
}

TEST_F(ProfilesMenu, RenamesTheOneInUseAndDeletesAnother) {
  Open();
  Dialogs.Texts = {"Racer", "Fast & Wet"};
  Choose("mnuFileProfilesSaveAs");
  Choose("mnuFileProfilesRename(Racer)");
  EXPECT_THAT(Caption(), HasSubstr(" - Fast & Wet"));
  ASSERT_NE(Command("mnuFileProfile(Fast & Wet)"), nullptr);
  EXPECT_EQ(Command("mnuFileProfile(Fast & Wet)")->text(), QStringLiteral("Fast && Wet"));
  Dialogs.Answers = {false, true};
  Choose("mnuFileProfilesDelete(Charter)");
  EXPECT_TRUE(std::filesystem::exists(m_files / "Charter.ini"));
  Choose("mnuFileProfilesDelete(Charter)");
  EXPECT_FALSE(std::filesystem::exists(m_files / "Charter.ini"));
  EXPECT_EQ(Command("mnuFileProfile(Charter)"), nullptr);
}

}  // namespace
}  // namespace veerwatch
