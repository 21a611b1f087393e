// How the real program process starts: without a display, in another language, on odd profiles, under nohup.

#include <sys/stat.h>

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <utility>

#include "tests/e2e/RealPorts.h"

namespace veerwatch {
namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

using Start = RealPorts;

/// Around a program that finds no screen.
Surroundings WithoutDisplay() { return {{"QT_QPA_PLATFORM=xcb", "DISPLAY=", "WAYLAND_DISPLAY="}, {}}; }

TEST_F(Start, HelpAndVersionNeedNoDisplay) {
  for (const auto& [word, answer] : {std::pair{"--version", "Veerwatch "}, std::pair{"-v", "Veerwatch "},
                                     std::pair{"--help", "Usage: veerwatch "}, std::pair{"-h", "Usage: "}}) {
    m_program.emplace(VEERWATCH_PROGRAM, "");
    ASSERT_TRUE(m_program->Start({word}, WithoutDisplay()));
    EXPECT_EQ(m_program->AwaitEnd(), 0) << word;
    EXPECT_THAT(m_program->Said(), StartsWith(answer));
  }
}

TEST_F(Start, AMistakeOnTheCommandLineIsOneLineWithoutControlCharacters) {
  m_program.emplace(VEERWATCH_PROGRAM, "");
  ASSERT_TRUE(m_program->Start({"a\x1B[2J\n\xFF"}));
  EXPECT_EQ(m_program->AwaitEnd(), 2);
  EXPECT_THAT(m_program->Said(), testing::EndsWith("veerwatch: unexpected argument a\u241B[2J\u240A\uFFFD; "
                                                   "--help shows the known ones\n"));
}

/// How often `part` stands in `text`.
std::size_t Count(const std::string& text, const std::string& part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
    ++count;
  }
  return count;
}

TEST_F(Start, NamesInCapitalsAreFoundInEveryLanguage) {
  // In Turkish and Azerbaijani the small letter of "I" has no dot, in Lithuanian some keep theirs.
  for (const std::string language : {"tr_TR", "az_AZ", "lt_LT", "de_DE"}) {
    LaunchRemote("[SIMULATE]\nNMEA=True\n[PILOT]\nBEARING=123\n[VIEW]\nNIGHT COLOURS=True\n", [&] {
      const fs::path locales = fs::temp_directory_path() / "veerwatch-locales";
      fs::create_directories(locales);
      const std::string make = "localedef -c -i " + language + " -f UTF-8 '" +
                               (locales / (language + ".UTF-8")).string() + "' >/dev/null 2>&1";
      // It ends with 1 for a mere warning too.
      static_cast<void>(std::system(make.c_str()));
      EXPECT_TRUE(fs::exists(locales / (language + ".UTF-8") / "LC_CTYPE")) << make;
      Surroundings around;
      around.Environment.push_back("LOCPATH=" + locales.string());
      around.Environment.push_back("LC_ALL=" + language + ".UTF-8");
      return around;
    }());
    EXPECT_EQ(Text("txtAutoPilot"), "123.0") << language;
    m_program->Terminate();
    EXPECT_EQ(m_program->AwaitEnd(), 0) << m_program->Said();
    EXPECT_THAT(m_program->Profile(), HasSubstr("[PILOT]\nBEARING=123\n")) << language;
    for (const char* section : {"[Simulate]", "[Pilot]", "[View]"}) {
      EXPECT_EQ(Count(m_program->Profile(), section), 0U) << language << " " << section;
    }
  }
}

TEST_F(Start, APipeAsProfileIsNeitherOpenedNorReplaced) {
  m_program.emplace(VEERWATCH_REMOTE, "");
  const fs::path pipe = m_program->Folder() / "pi\x1Bpe.ini";
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  ASSERT_TRUE(m_program->Start({"--profile", pipe.string()}));
  ASSERT_TRUE(Says("ready")) << m_program->Said();
  m_program->Terminate();
  EXPECT_TRUE(m_program->AwaitEnd().has_value()) << "it waits for somebody who reads the pipe";
  EXPECT_TRUE(fs::is_fifo(pipe));
  EXPECT_THAT(m_program->Said(), HasSubstr("pi\u241Bpe.ini: it is a pipe\n"));
  EXPECT_THAT(m_program->Said(), Not(HasSubstr("\x1B")));
  EXPECT_THAT(m_program->Said(), Not(HasSubstr("put aside")));
}

TEST_F(Start, AProfileWhoseNameIsNoUtf8IsOpenedUnderItsOwnBytes) {
  m_program.emplace(VEERWATCH_REMOTE, "");
  const fs::path folder = m_program->Folder() / "b\xF6rd";
  fs::create_directory(folder);
  const fs::path profile = folder / "M\xF6we.ini";
  std::ofstream(profile) << "[Simulate]\nNmea=True\n[Pilot]\nBearing=123\n";
  ASSERT_TRUE(m_program->Start({"--profile", profile.string()}));
  ASSERT_TRUE(Says("ready")) << m_program->Said();
  EXPECT_EQ(Text("txtAutoPilot"), "123.0");
  m_program->Terminate();
  EXPECT_EQ(m_program->AwaitEnd(), 0) << m_program->Said();
  std::ostringstream kept;
  kept << std::ifstream(profile).rdbuf();
  EXPECT_THAT(kept.str(), HasSubstr("Sentence HDG=True\n"));
  for (const auto& entry : fs::directory_iterator(folder)) {
    const std::string name = entry.path().filename().string();
    EXPECT_TRUE(name == "M\xF6we.ini" || name == "M\xF6we.ini.watch") << "no other file was made: " << name;
  }
}

TEST_F(Start, AProgramInAFolderThatIsNoUtf8FindsItsProfile) {
  m_program.emplace(VEERWATCH_REMOTE, "");
  const fs::path folder = m_program->Folder() / "b\xF6rd";
  fs::create_directory(folder);
  fs::rename(m_program->Folder() / fs::path(VEERWATCH_REMOTE).filename(), folder / "remote");
  std::ofstream(folder / "Veerwatch.ini") << "[Simulate]\nNmea=True\n[Pilot]\nBearing=123\n";
  Child program;
  ASSERT_TRUE(program.Start({(folder / "remote").string()}, {"QT_QPA_PLATFORM=offscreen"}));
  EXPECT_TRUE(Await([&] { return program.Said().find("ready\n") != std::string::npos; })) << program.Said();
  program.Tell("text txtAutoPilot");
  EXPECT_TRUE(Await([&] { return program.Said().find("txtAutoPilot=123.0") != std::string::npos; }))
      << program.Said();
  program.Tell("quit");
  EXPECT_EQ(program.AwaitEnd(), 0);
}

TEST_F(Start, AHangUpThatIsIgnoredStaysIgnored) {
  std::signal(SIGHUP, SIG_IGN);  // as nohup does
  LaunchRemote("[Simulate]\nNmea=True\n");
  std::signal(SIGHUP, SIG_DFL);
  ::kill(m_program->Id(), SIGHUP);
  // Were it taken, it would come before what is asked later.
  EXPECT_EQ(Text("txtAutoPilot"), "40.0");
  EXPECT_EQ(Text("txtAutoPilot"), "40.0");
  EXPECT_TRUE(m_program->Runs());
  m_program->Terminate();
  EXPECT_EQ(m_program->AwaitEnd(), 0) << m_program->Said();
}

TEST_F(Start, AHangUpEndsItInOrder) {
  LaunchRemote("[Simulate]\nNmea=True\n");
  ::kill(m_program->Id(), SIGHUP);
  EXPECT_EQ(m_program->AwaitEnd(), 0) << m_program->Said();
  EXPECT_THAT(m_program->Profile(), HasSubstr("Sentence HDG=True\n"));
}

}  // namespace
}  // namespace veerwatch
