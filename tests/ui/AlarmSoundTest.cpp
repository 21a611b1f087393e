// What is heard of an alarm, and how it is answered.

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QTemporaryDir>
#include <algorithm>
#include <fstream>

#include "platform/CommandRunnerQt.h"
#include "tests/support/WaitQt.h"
#include "tests/ui/MainWindowTester.h"

namespace veerwatch {
namespace {

class AlarmSounds : public MainWindowTester {
 public:
  void Seconds(int seconds, const std::string& lines = "") {
    for (int i = 0; i < seconds; ++i) {
      Time.Pass(1000);
      if (!lines.empty()) {
        NmeaPort.Receive(lines);
      }
      tmrNmea.Tick();
    }
  }

  /// In Track, and five seconds without a wind: a red alarm has just begun.
  void LoseTheWind(const std::string& watch) {
    Start(std::string(kOnPorts) + "[Watch]\n" + watch);
    Seconds(2, kAll);
    Mode(7);
    Seconds(2, kAll);
    Tone.Played.clear();
    Buzzer.Runs.clear();
    Seconds(5, kHeading);
  }

  const std::string kHeading = "$GPVTG,,T,100.0,M,6.0,N,11.0,K,A\r";
  const std::string kAll = kHeading + Winds("30", "40");
};

TEST_F(AlarmSounds, WithBeepOnlyTheLoopsAlarmIsHeard) {
  LoseTheWind("");
  Seconds(60, kHeading);
  EXPECT_TRUE(Tone.Played.empty());
  EXPECT_EQ(Dialogs.Beeps, 0);
  Seconds(3, kHeading + Winds("60", "70"));
  EXPECT_GT(Dialogs.Beeps, 1);
  EXPECT_TRUE(Tone.Played.empty());
}

TEST_F(AlarmSounds, WithToneTheLoopsAlarmIsATone) {
  Start(std::string(kOnPorts) + "[Watch]\nSound=Tone\n");
  Seconds(2, kAll);
  Mode(7);
  Seconds(3, kHeading + Winds("60", "70"));
  EXPECT_EQ(Dialogs.Beeps, 0);
  EXPECT_FALSE(Tone.Played.empty());
}

TEST_F(AlarmSounds, AToneIsRepeatedUntilItIsAcknowledged) {
  LoseTheWind("Sound=Tone\n");
  EXPECT_EQ(Tone.Played.size(), 1U);
  Seconds(4, kHeading);
  EXPECT_EQ(Tone.Played.size(), 3U);
  EXPECT_EQ(Dialogs.Beeps, 0);
  QTest::keyClick(Window.get(), Qt::Key_Space);
  Seconds(10, kHeading);
  EXPECT_EQ(Tone.Played.size(), 3U);
  EXPECT_TRUE(Find<QAbstractButton>("Banner").isVisible()) << "the line stays";
}

TEST_F(AlarmSounds, AToneEndsWithItsReason) {
  LoseTheWind("Sound=Tone\n");
  Seconds(3, kAll);
  const std::size_t played = Tone.Played.size();
  Seconds(10, kHeading + Winds("31", "41"));
  EXPECT_EQ(Tone.Played.size(), played);
}

TEST_F(AlarmSounds, AClickOnTheBannerAcknowledges) {
  LoseTheWind("Sound=Tone\n");
  QTest::mouseClick(&Find<QAbstractButton>("Banner"), Qt::LeftButton);
  Seconds(10, kHeading);
  EXPECT_EQ(Tone.Played.size(), 1U);
}

TEST_F(AlarmSounds, SpaceInABoxIsABlank) {
  LoseTheWind("Sound=Tone\n");
  Type("txtDesired(1)", "4");
  QTest::keyClick(&Find<QLineEdit>("txtDesired(1)"), Qt::Key_Space);
  EXPECT_EQ(Entry("txtDesired(1)"), "4 ");
  Seconds(2, kHeading);
  EXPECT_EQ(Tone.Played.size(), 2U);
}

TEST_F(AlarmSounds, ARedOneThatNobodyAnswersRises) {
  LoseTheWind("Sound=Tone\n");
  Seconds(20, kHeading);
  const auto loudest = [](const std::vector<std::int16_t>& samples) {
    return *std::max_element(samples.begin(), samples.end());
  };
  const auto before = loudest(Tone.Played.back());
  Seconds(12, kHeading);
  EXPECT_GT(loudest(Tone.Played.back()), 2 * before);
  const std::size_t played = Tone.Played.size();
  Seconds(4, kHeading);
  EXPECT_EQ(Tone.Played.size(), played + 4U) << "twice as often";
}

TEST_F(AlarmSounds, MuteLastsTenMinutes) {
  LoseTheWind("Sound=Tone\n");
  Find<QAction>("mnuViewMute").trigger();
  EXPECT_TRUE(Find<QAction>("mnuViewMute").isChecked());
  Seconds(599, kHeading);
  EXPECT_EQ(Tone.Played.size(), 1U);
  Seconds(2, kHeading);
  EXPECT_EQ(Tone.Played.size(), 2U + 1U);
  EXPECT_FALSE(Find<QAction>("mnuViewMute").isChecked());
}

TEST_F(AlarmSounds, WithoutAnAudioDeviceTheBeepSounds) {
  Tone.Device = false;
  LoseTheWind("Sound=Tone\n");
  Seconds(4, kHeading);
  EXPECT_EQ(Dialogs.Beeps, 3);
}

TEST_F(AlarmSounds, TheCommandGetsTheTextEachTime) {
  LoseTheWind("Alarm Command=/usr/bin/buzz -l\n");
  Seconds(2, kHeading);
  ASSERT_EQ(Buzzer.Runs.size(), 2U);
  EXPECT_EQ(Buzzer.Runs[0].Command, "/usr/bin/buzz -l");
  EXPECT_EQ(Buzzer.Runs[0].Text, "No Wind 5 s");
  EXPECT_TRUE(Tone.Played.empty()) << "the sound is still the beep";
  QTest::keyClick(Window.get(), Qt::Key_Space);
  Seconds(4, kHeading);
  EXPECT_EQ(Buzzer.Runs.size(), 2U);
}

TEST_F(AlarmSounds, TheOptionsTryTheChosenSound) {
  Start(kOnPorts);
  Window->AlarmTest(AlarmSound::Tone);
  EXPECT_EQ(Tone.Played.size(), 1U);
  Window->AlarmTest(AlarmSound::Beep);
  EXPECT_EQ(Dialogs.Beeps, 1);
}

TEST(CommandRunner, PassesTheTextAsOneArgumentWithoutAShell) {
  QTemporaryDir folder;
  const QString script = folder.filePath(QStringLiteral("buzz"));
  const QString out = folder.filePath(QStringLiteral("out"));
  {
    std::ofstream file(script.toStdString());
    file << "#!/bin/sh\nprintf '%s|' \"$@\" > \"$1\"\n";
  }
  QFile::setPermissions(script, QFile::ReadOwner | QFile::ExeOwner | QFile::WriteOwner);
  CommandRunnerQt runner;
  EXPECT_TRUE(runner.Run((script + QLatin1Char(' ') + out).toStdString(), "No Wind; touch $HOME"));
  EXPECT_TRUE(WaitFor([&] { return QFile(out).size() > 0; }));
  QFile file(out);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll(), (out + QStringLiteral("|No Wind; touch $HOME|")).toUtf8());
  EXPECT_FALSE(runner.Run("", "x"));
}

TEST(CommandRunner, StartsOneAtATime) {
  CommandRunnerQt runner;
  EXPECT_TRUE(runner.Run("/bin/sleep 1", "0"));
  EXPECT_FALSE(runner.Run("/bin/sleep 1", "0"));
  EXPECT_TRUE(WaitFor([&] { return runner.Run("/bin/sleep", "0"); }));
}

}  // namespace
}  // namespace veerwatch
