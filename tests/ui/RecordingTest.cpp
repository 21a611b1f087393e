// File > Record Input... in the real main window.

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QTemporaryDir>
#include <QToolBar>

#include "tests/support/TemporaryFolder.h"
#include "tests/ui/MainWindowTester.h"

namespace veerwatch {
namespace {

using testing::HasSubstr;

constexpr const char* kWind = "$IIMWV,045.0,R,10.5,N,A\r";

class RecordInput : public MainWindowTester {
 public:
  TemporaryFolder Folder;

  void Record() const { Find<QAction>("mnuFileRecord").trigger(); }
  bool Ticked() const { return Find<QAction>("mnuFileRecord").isChecked(); }
  bool Marked() const { return Find<QLabel>("lblRecording").isVisible(); }
  std::string File(const char* name) const { return (Folder / name).string(); }
};

TEST_F(RecordInput, WritesWhatIsReceivedUntilItIsChosenAgain) {
  Start();
  EXPECT_FALSE(Marked());
  Dialogs.Files = {File("log.nmea")};
  Record();
  ASSERT_EQ(Dialogs.FileQuestions.size(), 1U);
  EXPECT_EQ(Dialogs.FileQuestions[0].Title, "Record Input");
  EXPECT_EQ(Dialogs.FileQuestions[0].Proposed, "input-2026-03-31.nmea");
  EXPECT_TRUE(Marked());
  EXPECT_TRUE(Ticked());
  EXPECT_EQ(Text("lblRecording"), "\u25CF Recording");
  NmeaPort.Receive(kWind);
  tmrNmea.Tick();
  EXPECT_EQ(ReadFile(Folder / "log.nmea"), "2026-03-31T09:00:00.000Z $IIMWV,045.0,R,10.5,N,A\n");
  Record();
  EXPECT_FALSE(Marked());
  EXPECT_FALSE(Ticked());
  NmeaPort.Receive(kWind);
  tmrNmea.Tick();
  EXPECT_EQ(ReadFile(Folder / "log.nmea").size(), 49U);
  EXPECT_EQ(Dialogs.FileQuestions.size(), 1U) << "the end asks nothing";
}

TEST_F(RecordInput, ACancelledQuestionRecordsNothing) {
  Start();
  Record();
  EXPECT_EQ(Dialogs.FileQuestions.size(), 1U);
  EXPECT_FALSE(Ticked());
  EXPECT_FALSE(Marked());
}

TEST_F(RecordInput, AFileThatCannotBeWrittenIsTold) {
  Start();
  Dialogs.Files = {File("none/log.nmea")};
  Record();
  EXPECT_FALSE(Ticked());
  EXPECT_FALSE(Marked());
  ASSERT_EQ(Dialogs.Messages.size(), 1U);
  EXPECT_THAT(Dialogs.Messages[0].Text, HasSubstr("No such file or directory"));
}

TEST_F(RecordInput, OneThatEndsByItselfIsToldInTheBannerAndNothingElseHappens) {
  Start();
  Mode(5);
  Dialogs.Files = {File("log.nmea")};
  Record();
  NmeaPort.Receive(kWind);
  // The next day's file cannot be made.
  std::filesystem::remove_all(Folder.Path());
  constexpr std::int64_t kDay = 86400000;  // [ms]
  Time.Pass(kDay);
  NmeaPort.Receive(kWind);
  EXPECT_FALSE(Ticked());
  EXPECT_FALSE(Marked());
  EXPECT_THAT(Find<QAbstractButton>("Banner").text().toStdString(), HasSubstr("The recording has ended: "));
  EXPECT_EQ(Window->m_eTrackMode, TrackMode::Manual);
  EXPECT_EQ(Text("lblAppWindAngle"), "45");
  EXPECT_TRUE(Dialogs.Messages.empty());
}

}  // namespace
}  // namespace veerwatch
