// "Help > Save Report...".
#include <gmock/gmock.h>

#include <filesystem>
#include <string>

#include "tests/support/Sentences.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/ui/MainWindowTester.h"

namespace veerwatch {
namespace {

using testing::HasSubstr;
using testing::Not;

class Report : public MainWindowTester {
 protected:
  TemporaryFolder m_files;
};

TEST_F(Report, IsWrittenWhereTheUserWantsIt) {
  Start("[Track]\nBandwidth=33\n[Nmea]\nPort=1\n[Ports]\n1=tcp://mary-boat.lan:10110\n");
  NmeaPort.Receive(WithChecksum("$GPRMC,091523,A,5403.127,N,01008.456,E,5.20,157.0,221126,3.0,E") + "\r\n");
  const std::string file = m_files / "report.txt";
  Dialogs.Files = {file};
  Find<QAction>("mnuHelpReport").trigger();
  ASSERT_EQ(Dialogs.FileQuestions.size(), 1U);
  EXPECT_EQ(Dialogs.FileQuestions[0].Proposed, "veerwatch-report.txt");
  const std::string text = ReadFile(file);
  EXPECT_THAT(text, HasSubstr("Track / Bandwidth = 33\n"));
  EXPECT_THAT(text, HasSubstr("GPRMC 1 lines"));
  EXPECT_THAT(text, HasSubstr("tcp://<host>:10110"));
  EXPECT_THAT(text, HasSubstr("Qt 6"));
  for (const char* secret : {"5403", "1008", "456", "mary"}) {
    EXPECT_THAT(text, Not(HasSubstr(secret)));
  }
  EXPECT_TRUE(Dialogs.Messages.empty());
}

TEST_F(Report, ACancelWritesNothingAndAFullDiskIsSaid) {
  Start();
  Find<QAction>("mnuHelpReport").trigger();
  EXPECT_TRUE(m_files.Names().empty());
  Dialogs.Files = {m_files.Path().string()};
  Find<QAction>("mnuHelpReport").trigger();
  ASSERT_EQ(Dialogs.Messages.size(), 1U);
  EXPECT_THAT(Dialogs.Messages[0].Text, HasSubstr("it is a folder"));
}

}  // namespace
}  // namespace veerwatch
