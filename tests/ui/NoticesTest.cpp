// What the main window and the options say beside their status texts.

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QApplication>
#include <filesystem>

#include "tests/support/Sentences.h"
#include "tests/ui/MainWindowTester.h"

namespace veerwatch {
namespace {

class MainWindowNotices : public MainWindowTester {
 public:
  bool LineShown() const { return Find<QWidget>("Banner").isVisible(); }
  std::string Line() const { return LineShown() ? Find<QAbstractButton>("Banner").text().toStdString() : ""; }

  static frmOptions* Options() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (auto* options = dynamic_cast<frmOptions*>(window)) {
        return options;
      }
    }
    return nullptr;
  }

  /// `seconds` in each of which these lines come.
  void Sail(const char* lines, int seconds) {
    for (int i = 0; i < seconds; ++i) {
      NmeaPort.Receive(lines);
      tmrNmea.Tick();
    }
  }

  void SaveTicks(int seconds) const {
    for (int i = 0; i < seconds; ++i) {
      Window->tmrSave_Timer();
    }
  }
};

constexpr const char* kOverGround = "[Nmea]\nPort=3\nTrue Wind=0\nHeading=1\nBoat Speed=1\n[Pilot]\nPort=4\n";
constexpr const char* kCompassOnly = "$IIHDG,123.4,,,5.0,W\r";

TEST_F(MainWindowNotices, SayInSetupWhatTheSourcesDoNotBring) {
  Start(kOverGround);
  EXPECT_FALSE(LineShown());
  Sail(kCompassOnly, 8);
  EXPECT_EQ(Line(), "Heading: nothing from RMC or VTG; HDG is there");
  Mode(5);
  EXPECT_FALSE(LineShown()) << "only in Setup";
  Mode(3);
  Sail(kCompassOnly, 8);
  EXPECT_TRUE(LineShown());
  Sail("$GPVTG,054.7,T,034.4,M,005.5,N,010.2,K\r", 1);
  EXPECT_FALSE(LineShown());
}

TEST_F(MainWindowNotices, SayWhatThePilotIsNotSentInThePanelAndInTheBanner) {
  Start("[Nmea]\nPort=3\n[Pilot]\nPort=4\nProfile=True APB\n");
  Mode(5);
  const char* wind = "$GPVTG,054.7,T,034.4,M,005.5,N,010.2,K\r$IIMWV,045,R,10.5,N,A\r";
  Sail(wind, 1);
  EXPECT_EQ(Text("StatusBar(3)"), "True APB Needs the Variation");
  EXPECT_EQ(Line(), "True APB Needs the Variation");
  EXPECT_EQ(PilotPort.TakeWritten(), "");
  NmeaPort.Receive(WithChecksum("$IIHVM,5.0,E") + "\r");
  Sail(wind, 1);
  EXPECT_EQ(Text("StatusBar(3)"), "");
  EXPECT_FALSE(LineShown());
  EXPECT_NE(PilotPort.TakeWritten(), "");
}

TEST_F(MainWindowNotices, SayInTheToolTipOfTheOutputThatTheLineIsTooFull) {
  PilotPort.Rate = 600;
  Start("[Nmea]\nPort=3\n[Pilot]\nPort=4\nCadence=1\n");
  Mode(5);
  Sail("$GPVTG,054.7,T,034.4,M,005.5,N,010.2,K\r$IIMWV,045,R,10.5,N,A\r", 1);
  const auto tip = [this] { return Find<QLabel>("StatusBar(3)").toolTip().toStdString(); };
  // 54 characters of ten bits.
  EXPECT_THAT(tip(), testing::HasSubstr("Pilot line 90 % full at 600 baud"));
  PilotPort.Rate = 4800;
  tmrNmea.Tick();
  EXPECT_THAT(tip(), testing::Not(testing::HasSubstr("full")));
}

TEST_F(MainWindowNotices, SayItOnTheDataTab) {
  Start(kOverGround);
  Sail(kCompassOnly, 8);
  Find<QAction>("mnuOptionsData").trigger();
  const auto* advice = Options()->findChild<QLabel*>(QStringLiteral("lblSourceAdvice"));
  ASSERT_NE(advice, nullptr);
  EXPECT_TRUE(advice->isVisible());
  EXPECT_EQ(advice->text(), "Heading: nothing from RMC or VTG; HDG is there");
  Sail("$GPVTG,054.7,T,034.4,M,005.5,N,010.2,K\r", 1);
  EXPECT_FALSE(advice->isVisible());
  Sail("$IIMWV,045,R,5.4,M,A\r", 1);
  EXPECT_EQ(advice->text(), "Wind: MWV brings metres per second; only knots are read");
}

TEST_F(MainWindowNotices, KeepTheSystemsReasonWhileThePortIsNotOpen) {
  NmeaPort.OpensOtherwise = false;
  NmeaPort.Failure = "/dev/ttyUSB0: in use by another program, gpsd";
  PilotPort.OpensOtherwise = false;
  PilotPort.Failure = "/dev/ttyUSB1: no such device";
  Start(kOverGround);
  EXPECT_EQ(Find<QLabel>("StatusBar(2)").toolTip().toStdString(), "Input Data Status\n" + NmeaPort.Failure);
  tmrNmea.Tick(6);
  EXPECT_EQ(Text("StatusBar(2)"), "No Input Data");
  EXPECT_EQ(Find<QLabel>("StatusBar(2)").toolTip().toStdString(),
            "Input Data Status\n/dev/ttyS2\n" + NmeaPort.Failure);
  Find<QAction>("mnuOptionsInput").trigger();
  const auto* reason = Options()->findChild<QLabel*>(QStringLiteral("lblNmeaReason"));
  ASSERT_NE(reason, nullptr);
  EXPECT_TRUE(reason->isVisible());
  EXPECT_EQ(reason->text().toStdString(), NmeaPort.Failure);
  Mode(5);
  EXPECT_EQ(Find<QLabel>("StatusBar(3)").toolTip().toStdString(),
            "Output Data Status\n/dev/ttyS3\n" + PilotPort.Failure);
  EXPECT_EQ(Options()->findChild<QLabel*>(QStringLiteral("lblPilotReason"))->text().toStdString(),
            PilotPort.Failure);
  NmeaPort.OpensOtherwise = true;
  PilotPort.OpensOtherwise = true;
  tmrNmea.Tick(4);
  EXPECT_EQ(Find<QLabel>("StatusBar(2)").toolTip(), "Input Data Status\n/dev/ttyS2");
  EXPECT_EQ(Find<QLabel>("StatusBar(3)").toolTip(), "Output Data Status\n/dev/ttyS3");
  EXPECT_FALSE(reason->isVisible());
}

TEST_F(MainWindowNotices, SayThatTheProfileCouldNotBeRead) {
  Start("\xFF\xFE[\x01N\x01");
  EXPECT_EQ(Line(), ProfileFile() +
                        " cannot be read: defaults are used; at the close it is put aside, not overwritten");
  Click("Banner");
  EXPECT_TRUE(LineShown());
  Click("cmdNoticeHide");
  EXPECT_FALSE(LineShown());
  Window->KeepSettings();
  EXPECT_EQ(Line(), ProfileFile() + " could not be read: it was put aside");
}

TEST_F(MainWindowNotices, SayThatTheProfileIsNoFile) {
  std::filesystem::create_directory(ProfileFile());
  Start();
  EXPECT_EQ(Line(),
            ProfileFile() + " cannot be read, it is a folder: defaults are used, and nothing is saved");
}

TEST_F(MainWindowNotices, ShowControlCharactersAsPictures) {
  Start(kOnPorts);
  Window->NoticeSet(AlarmKind::Save, "Settings not saved: a\x1B[2J\n");
  EXPECT_EQ(Line(), "Settings not saved: a\u241B[2J\u240A");
}

TEST_F(MainWindowNotices, ALineThatIsTooLongLeavesTheWindowAsItIs) {
  Start(kOnPorts);
  Window->resize(600, 420);
  Window->NoticeSet(AlarmKind::Save, std::string(2000, 'W'));
  QTest::qWait(0);
  EXPECT_EQ(Window->width(), 600);
  EXPECT_LE(Find<QWidget>("Banner").width(), 600);
  EXPECT_LE(Window->minimumSizeHint().width(), 600);
}

TEST_F(MainWindowNotices, WithoutSaveWhileRunningNothingIsSavedBeforeTheClose) {
  Start(kOnPorts);
  EXPECT_FALSE(Find<QAction>("mnuViewSave").isChecked());
  Window->m_fTrackBandwidth = 33.0F;
  SaveTicks(60);
  EXPECT_EQ(ReadProfile(), kOnPorts);
}

TEST_F(MainWindowNotices, SaveWhileRunningSavesTenSecondsAfterAChange) {
  Start(std::string(kOnPorts) + "[View]\nSave While Running=True\n");
  EXPECT_TRUE(Find<QAction>("mnuViewSave").isChecked());
  const std::string before = ReadProfile();
  SaveTicks(60);
  EXPECT_EQ(ReadProfile(), before) << "nothing was changed";
  Window->m_fTrackBandwidth = 33.0F;
  SaveTicks(10);
  EXPECT_EQ(ReadProfile(), before);
  SaveTicks(1);
  EXPECT_THAT(ReadProfile(), testing::HasSubstr("Bandwidth=33\n"));
}

TEST_F(MainWindowNotices, SaveWhileRunningIsNotSetOffByABearingOrAWantedAngle) {
  Start(std::string(kOnPorts) + "[View]\nSave While Running=True\n");
  const std::string before = ReadProfile();
  Window->AutoPilotSet(111.0F);
  Window->DesiredAngle[1] = -60.0F;
  SaveTicks(60);
  EXPECT_EQ(ReadProfile(), before);
  Window->m_fTrackBandwidth = 33.0F;
  SaveTicks(11);
  EXPECT_THAT(ReadProfile(), testing::HasSubstr("Bearing=111\n")) << "it goes along";
}

TEST_F(MainWindowNotices, SwitchingSaveWhileRunningOnSaves) {
  Start(kOnPorts);
  Find<QAction>("mnuViewSave").trigger();
  SaveTicks(11);
  EXPECT_THAT(ReadProfile(), testing::HasSubstr("Save While Running=True\n"));
}

TEST_F(MainWindowNotices, SayThatTheSettingsWereNotSaved) {
  Start(kOnPorts);
  Window->m_sProfileFile = "/dev/null/nowhere/Veerwatch.ini";
  Window->KeepSettings();
  EXPECT_THAT(Line(), testing::StartsWith("Settings not saved: "));
  EXPECT_THAT(Window->SaveFailure(), testing::HasSubstr("Veerwatch.ini"));
  Window->m_sProfileFile = ProfileFile();
  Window->KeepSettings();
  EXPECT_FALSE(LineShown());
  EXPECT_EQ(Window->SaveFailure(), "");
}

}  // namespace
}  // namespace veerwatch
