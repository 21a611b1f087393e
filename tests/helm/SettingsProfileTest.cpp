#include "helm/SettingsProfile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "tests/support/TemporaryFolder.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Windows final : public RememberedWindows {
 public:
  std::vector<std::string> Shown;
  bool History = false;
  bool Polar = false;
  void HistoryShow() override { Shown.emplace_back("History"); }
  void PolarShow() override { Shown.emplace_back("Polar"); }
  bool HistoryVisible() const override { return History; }
  bool PolarVisible() const override { return Polar; }
};

/// Every key of the main window with its default and with another value.
struct Key {
  std::string_view Section;
  std::string_view Name;
  std::string_view Default;
  std::string_view Other;
};

constexpr Key kKeys[] = {{"Nmea", "Boat Speed", "1", "0"},
                         {"Nmea", "Heading", "1", "0"},
                         {"Nmea", "Port", "5", "12"},
                         {"Nmea", "Sentence HDG", "True", "False"},
                         {"Nmea", "Sentence HVM", "True", "False"},
                         {"Nmea", "Sentence MWV", "True", "False"},
                         {"Nmea", "Sentence RMB", "True", "False"},
                         {"Nmea", "Sentence RMC", "True", "False"},
                         {"Nmea", "Sentence VHW", "True", "False"},
                         {"Nmea", "Sentence VTG", "True", "False"},
                         {"Nmea", "Sentence HDM", "False", "True"},
                         {"Nmea", "Sentence HDT", "False", "True"},
                         {"Nmea", "Sentence MWD", "False", "True"},
                         {"Nmea", "Sentence THS", "False", "True"},
                         {"Nmea", "Sentence VWR", "False", "True"},
                         {"Nmea", "Sentence VWT", "False", "True"},
                         {"Nmea", "Wind Units", "False", "True"},
                         {"Nmea", "Checksum", "Accept missing", "Require"},
                         {"Nmea", "Invalid Status", "Use", "Ignore"},
                         {"Nmea", "Lower Case", "False", "True"},
                         {"Nmea", "Foreign Lines", "Error", "List"},
                         {"Nmea", "True Wind", "1", "0"},
                         {"Nmea", "True Wind Average", "2", "3.5"},
                         {"Nmea", "Wind Offset", "0", "-4.5"},
                         {"Nmea", "Boat Speed Factor", "1", "1.2"},
                         {"Nmea", "Heading Offset", "0", "6"},
                         {"Pilot", "Port", "5", "13"},
                         {"Pilot", "Bearing", "40", "123.5"},
                         {"Pilot", "Profile", "Magnetic APB", "True APB"},
                         {"Pilot", "Cadence", "0", "2"},
                         {"Pilot", "Invalid When Lost", "False", "True"},
                         {"Pilot", "Invalid Seconds", "5", "7.5"},
                         {"Pilot", "Own Talker", "EC", "GP"},
                         {"Pilot", "Own Bearing", "M", "T"},
                         {"Pilot", "Own Fields", "14", "15"},
                         {"Pilot", "Own Decimals", "1", "0"},
                         {"Pilot", "Own Point", "1", "WP01"},
                         {"Pilot", "Own APB", "True", "False"},
                         {"Pilot", "Own RMB", "False", "True"},
                         {"Pilot", "Own HSC", "False", "True"},
                         {"Pilot", "Own XTE", "False", "True"},
                         {"Pilot", "Own BWC", "False", "True"},
                         {"Simulate", "Nmea", "False", "True"},
                         {"Simulate", "Boat Speed", "8", "6.5"},
                         {"Simulate", "Compass Offset", "10", "-3.5"},
                         {"Simulate", "Noise Angle", "4", "5.5"},
                         {"Simulate", "Noise Speed", "2", "1.5"},
                         {"Simulate", "True Wind Angle", "0", "77.5"},
                         {"Simulate", "True Wind Speed", "12", "14.5"},
                         {"Simulate", "Variation", "11", "-7.5"},
                         {"Simulate", "Waypoint Bearing", "5", "99.5"},
                         {"Simulate", "Waypoint Range", "10", "33.5"},
                         {"Simulate", "Model", "Steady", "Boat"},
                         {"Simulate", "Pilot", "All", "HSC"},
                         {"Simulate", "Pilot Lag", "4", "2.5"},
                         {"Simulate", "Gusts", "10", "20"},
                         {"Simulate", "Shifts", "4", "7.5"},
                         {"Simulate", "Leeway", "4", "3"},
                         {"Simulate", "Sea", "Slight", "Head"},
                         {"Simulate", "Seed", "0", "17"},
                         {"Track", "Alarm", "True", "False"},
                         {"Track", "Alarm Limit", "5", "7.5"},
                         {"Track", "Bandwidth", "20", "25.5"},
                         {"Track", "Damping", "4", "1.5"},
                         {"Track", "Desired 1", "45", "-35.5"},
                         {"Track", "Desired 2", "92", "-101.5"},
                         {"Track", "Max SteerTo", "10", "15.5"},
                         {"Watch", "Act", "False", "True"},
                         {"Watch", "Keep Sending", "False", "True"},
                         {"Watch", "Heading Up", "False", "True"},
                         {"Watch", "Log Fitted", "True", "False"},
                         {"Watch", "Compass Fitted", "True", "False"},
                         {"Watch", "Stale Apparent Wind", "4", "6"},
                         {"Watch", "Stale True Wind", "4", "7"},
                         {"Watch", "Stale Boat Speed", "4", "8"},
                         {"Watch", "Stale Heading", "4", "9"},
                         {"Watch", "Stale Waypoint", "4", "12"}};

/// The key as it would be written now.
std::string Written(const Settings& settings, const Key& key) {
  Profile profile;
  ProfileWrite(profile, settings, Windows{});
  return profile.Text(key.Section, key.Name);
}

Settings ReadFrom(const Profile& profile) {
  Settings settings;
  Windows windows;
  ProfileRead(profile, settings, windows);
  return settings;
}

Profile With(std::string_view section, std::string_view key, std::string_view text) {
  Profile profile;
  profile.ProfileSet(section, key, text);
  return profile;
}

TEST(SettingsDefault, SetsEveryDefault) {
  Settings settings;
  for (const Key& key : kKeys) {
    EXPECT_EQ(Written(settings, key), key.Default) << key.Section << "/" << key.Name;
  }
  for (const Key& key : kKeys) {
    Windows windows;
    ProfileRead(With(key.Section, key.Name, key.Other), settings, windows);
  }
  settings.m_fNmeaWindIndicatorAverage = 7.0F;
  settings.m_fSimulateTime = 3.0F;
  SettingsDefault(settings);
  for (const Key& key : kKeys) {
    EXPECT_EQ(Written(settings, key), key.Default) << key.Section << "/" << key.Name;
  }
  EXPECT_EQ(settings.m_fNmeaWindIndicatorAverage, 60.0F);
  EXPECT_EQ(settings.m_fSimulateTime, 0.0F);
  EXPECT_EQ(settings.DesiredAngle[1], 45.0F);
  EXPECT_EQ(settings.DesiredAngle[2], 92.0F);
}

TEST(SettingsProfile, TheNightColoursAreKept) {
  EXPECT_TRUE(ReadFrom(With("View", "Night Colours", "True")).m_bNightColours);
  EXPECT_FALSE(ReadFrom(Profile()).m_bNightColours);
  Settings settings;
  settings.m_bNightColours = true;
  Profile profile;
  ProfileWrite(profile, settings, Windows{});
  EXPECT_EQ(profile.Text("View", "Night Colours"), "True");
}

TEST(SettingsProfile, SavingWhileRunningIsKept) {
  EXPECT_TRUE(ReadFrom(With("View", "Save While Running", "True")).m_bSaveWhileRunning);
  EXPECT_FALSE(ReadFrom(Profile()).m_bSaveWhileRunning);
  Settings settings;
  settings.m_bSaveWhileRunning = true;
  Profile profile;
  ProfileWrite(profile, settings, Windows{});
  EXPECT_EQ(profile.Text("View", "Save While Running"), "True");
}

TEST(SettingsProfile, TheLanguageIsKeptAndFileDefaultLeavesIt) {
  EXPECT_EQ(ReadFrom(With("View", "Language", "de")).m_eLanguage, WindowLanguage::German);
  EXPECT_EQ(ReadFrom(Profile()).m_eLanguage, WindowLanguage::Desktop);
  Settings settings;
  settings.m_eLanguage = WindowLanguage::German;
  SettingsDefault(settings);
  Profile profile;
  ProfileWrite(profile, settings, Windows{});
  EXPECT_EQ(profile.Text("View", "Language"), "de");
}

TEST(SettingsDefault, LeavesTheNightColours) {
  Settings settings;
  settings.m_bNightColours = true;
  SettingsDefault(settings);
  EXPECT_TRUE(settings.m_bNightColours);
}

TEST(SettingsDefault, LeavesTheModeAndThePathOfTheProfile) {
  Settings settings;
  settings.m_eTrackMode = TrackMode::Manual;
  settings.m_sProfileFile = "/boat/Veerwatch.ini";
  SettingsDefault(settings);
  EXPECT_EQ(settings.m_eTrackMode, TrackMode::Manual);
  EXPECT_EQ(settings.m_sProfileFile, "/boat/Veerwatch.ini");
}

TEST(SettingsProfile, EachKeyIsReadAloneAndWrittenBack) {
  for (const Key& key : kKeys) {
    const Settings settings = ReadFrom(With(key.Section, key.Name, key.Other));
    for (const Key& other : kKeys) {
      const bool same = &other == &key;
      EXPECT_EQ(Written(settings, other), same ? other.Other : other.Default)
          << other.Section << "/" << other.Name << " after " << key.Section << "/" << key.Name;
    }
  }
}

TEST(SettingsProfile, AProfileWithOnlyADampingChangesOnlyTheDamping) {
  const Settings settings = ReadFrom(With("Track", "Damping", "1"));
  EXPECT_EQ(settings.m_fTrackDamping, 1.0F);
  for (const Key& key : kKeys) {
    if (key.Name != "Damping") {
      EXPECT_EQ(Written(settings, key), key.Default) << key.Section << "/" << key.Name;
    }
  }
}

TEST(SettingsProfile, AnEmptyProfileLeavesEveryDefault) {
  const Settings settings = ReadFrom(Profile{});
  for (const Key& key : kKeys) {
    EXPECT_EQ(Written(settings, key), key.Default);
  }
}

TEST(SettingsProfile, FalseAndZeroSwitchTheAlarmOff) {
  EXPECT_FALSE(ReadFrom(With("Track", "Alarm", "False")).m_bTrackAlarm);
  EXPECT_FALSE(ReadFrom(With("Track", "Alarm", "0")).m_bTrackAlarm);
  EXPECT_TRUE(ReadFrom(With("Track", "Alarm", "1")).m_bTrackAlarm);
}

TEST(SettingsProfile, TheDefaultsReturnAfterAProfileWithOtherDesiredAngles) {
  Settings settings = ReadFrom(With("Track", "Desired 1", "30"));
  ASSERT_EQ(settings.DesiredAngle[1], 30.0F);
  SettingsDefault(settings);
  EXPECT_EQ(settings.DesiredAngle[1], 45.0F);
  EXPECT_EQ(settings.DesiredAngle[2], 92.0F);
}

TEST(SettingsProfile, TheWindIndicatorAverageIsWrittenButNeverRead) {
  Settings settings;
  settings.m_fNmeaWindIndicatorAverage = 30.0F;
  EXPECT_EQ(Written(settings, Key{"Nmea", "Wind Indicator Average", "", ""}), "30");
  EXPECT_EQ(ReadFrom(With("Nmea", "Wind Indicator Average", "30")).m_fNmeaWindIndicatorAverage, 60.0F);
}

TEST(SettingsProfile, TheSimulatedTimeAndTheModeAreNotKept) {
  Settings settings;
  settings.m_fSimulateTime = 3.25F;
  settings.m_eTrackMode = TrackMode::Track;
  Profile profile;
  ProfileWrite(profile, settings, Windows{});
  EXPECT_EQ(profile.Content().find("3.25"), std::string::npos);
  EXPECT_EQ(profile.Content().find("Time"), std::string::npos);
  EXPECT_EQ(profile.Content().find("Mode="), std::string::npos);
}

TEST(SettingsProfile, ADampingBelowZeroIsRead) {
  EXPECT_EQ(ReadFrom(With("Track", "Damping", "-0.5")).m_fTrackDamping, -0.5F);
}

TEST(SettingsProfile, AnglesAreFoldedWhenRead) {
  EXPECT_EQ(ReadFrom(With("Pilot", "Bearing", "-90")).m_fAutoPilot, 270.0F);
  EXPECT_EQ(ReadFrom(With("Pilot", "Bearing", "360")).m_fAutoPilot, 0.0F);
  EXPECT_EQ(ReadFrom(With("Pilot", "Bearing", "1085.5")).m_fAutoPilot, 5.5F);
  EXPECT_EQ(ReadFrom(With("Track", "Desired 1", "190")).DesiredAngle[1], -170.0F);
  EXPECT_EQ(ReadFrom(With("Track", "Desired 2", "-180")).DesiredAngle[2], 180.0F);
}

TEST(SettingsProfile, ATextThatIsNoNumberLeavesTheDefault) {
  for (const Key& key : kKeys) {
    for (const std::string_view text : {"nan", "inf", "0x10", "1e999", "12.3x", "rubbish"}) {
      EXPECT_EQ(Written(ReadFrom(With(key.Section, key.Name, text)), key), key.Default)
          << key.Name << "=" << text;
    }
  }
}

TEST(SettingsProfile, ANumberOutOfRangeLeavesTheDefault) {
  for (const std::string_view name : {"Boat Speed", "Heading", "True Wind"}) {
    for (const std::string_view text : {"2", "-1", "65536"}) {
      EXPECT_EQ(Written(ReadFrom(With("Nmea", name, text)), Key{"Nmea", name, "", ""}), "1")
          << name << "=" << text;
    }
  }
  for (const std::string_view section : {"Nmea", "Pilot"}) {
    for (const std::string_view text : {"0", "-1", "32768", "65541"}) {
      EXPECT_EQ(Written(ReadFrom(With(section, "Port", text)), Key{section, "Port", "", ""}), "5") << text;
    }
    EXPECT_EQ(Written(ReadFrom(With(section, "Port", "32767")), Key{section, "Port", "", ""}), "32767");
  }
}

TEST(SettingsProfile, ABandwidthThatIsNotAboveZeroLeavesTheDefault) {
  for (const std::string_view text : {"0", "-1", "-0", "1e-60"}) {
    EXPECT_EQ(ReadFrom(With("Track", "Bandwidth", text)).m_fTrackBandwidth, 20.0F) << text;
  }
  EXPECT_EQ(ReadFrom(With("Track", "Bandwidth", "0.5")).m_fTrackBandwidth, 0.5F);
}

TEST(SettingsProfile, ANumberThatMayNotBeNegativeLeavesTheDefault) {
  for (const std::string_view text : {"-1", "-0.001", "-1e38"}) {
    EXPECT_EQ(ReadFrom(With("Nmea", "True Wind Average", text)).m_fNmeaTrueWindAverage,
              Settings().m_fNmeaTrueWindAverage)
        << text;
    EXPECT_EQ(ReadFrom(With("Track", "Alarm Limit", text)).m_fTrackAlarmLimit, Settings().m_fTrackAlarmLimit)
        << text;
  }
  EXPECT_EQ(ReadFrom(With("Nmea", "True Wind Average", "0")).m_fNmeaTrueWindAverage, 0.0F);
}

TEST(SettingsProfile, AnAverageThatRunsAwayLeavesTheDefault) {
  for (const std::string_view text : {"0.5", "0.4", "0.001", "1e-30"}) {
    EXPECT_EQ(ReadFrom(With("Nmea", "True Wind Average", text)).m_fNmeaTrueWindAverage, 2.0F) << text;
  }
  EXPECT_EQ(ReadFrom(With("Nmea", "True Wind Average", "0.51")).m_fNmeaTrueWindAverage, 0.51F);
}

TEST(SettingsProfile, TheWindowsThatWereOpenAreShownAgainInTurn) {
  Settings settings;
  Windows windows;
  Profile profile;
  profile.ProfileSet("Polar Window", "Visible", true);
  profile.ProfileSet("History Window", "Visible", true);
  ProfileRead(profile, settings, windows);
  EXPECT_THAT(windows.Shown, ElementsAre("History", "Polar"));
  windows.Shown.clear();
  profile.ProfileSet("Polar Window", "Visible", false);
  profile.ProfileSet("History Window", "Visible", false);
  ProfileRead(profile, settings, windows);
  ProfileRead(Profile{}, settings, windows);
  EXPECT_THAT(windows.Shown, IsEmpty());
}

TEST(SettingsProfile, WhetherTheWindowsAreOpenIsWritten) {
  Windows windows;
  windows.Polar = true;
  Profile profile;
  ProfileWrite(profile, Settings{}, windows);
  EXPECT_EQ(profile.Text("History Window", "Visible"), "False");
  EXPECT_EQ(profile.Text("Polar Window", "Visible"), "True");
}

TEST(SettingsProfile, AFreshProfileHasEveryKeyInItsOrder) {
  Profile profile;
  ProfileWrite(profile, Settings{}, Windows{});
  EXPECT_EQ(
      profile.Content(),
      "[Nmea]\nBoat Speed=1\nHeading=1\nPort=5\nSentence HDG=True\nSentence HVM=True\n"
      "Sentence MWV=True\nSentence RMB=True\nSentence RMC=True\nSentence VHW=True\n"
      "Sentence VTG=True\nSentence HDM=False\nSentence HDT=False\nSentence MWD=False\nSentence THS=False\n"
      "Sentence VWR=False\nSentence VWT=False\nWind Units=False\nChecksum=Accept missing\n"
      "Invalid Status=Use\nLower Case=False\nForeign Lines=Error\nTrue Wind=1\nTrue Wind Average=2\nWind "
      "Indicator Average=60\nWind Offset=0\nBoat Speed Factor=1\nHeading Offset=0\n\n"
      "[Pilot]\nPort=5\nBearing=40\nProfile=Magnetic APB\nCadence=0\nInvalid When Lost=False\n"
      "Invalid Seconds=5\nOwn Talker=EC\nOwn Bearing=M\nOwn Fields=14\nOwn Decimals=1\nOwn Point=1\n"
      "Own APB=True\nOwn RMB=False\nOwn HSC=False\nOwn XTE=False\nOwn BWC=False\n\n"
      "[Simulate]\nNmea=False\nBoat Speed=8\nCompass Offset=10\nNoise Angle=4\nNoise Speed=2\n"
      "True Wind Angle=0\nTrue Wind Speed=12\nVariation=11\nWaypoint Bearing=5\n"
      "Waypoint Range=10\nModel=Steady\nPilot=All\nPilot Lag=4\nGusts=10\nShifts=4\nLeeway=4\n"
      "Sea=Slight\nSeed=0\n\n"
      "[Track]\nAlarm=True\nAlarm Limit=5\nBandwidth=20\nDamping=4\nDesired 1=45\n"
      "Desired 2=92\nMax SteerTo=10\nMethod=Sentence\nMax Ahead=30\nMax Rate=3\nAlarm Average=0\n\n"
      "[Watch]\nAct=False\nKeep Sending=False\nHeading Up=False\nSound=Beep\nAlarm Command=\nBlank "
      "Lost=False\nLog Fitted=True\nCompass "
      "Fitted=True\n"
      "Stale Apparent Wind=4\nStale True Wind=4\nStale Boat Speed=4\nStale Heading=4\nStale Waypoint=4\n\n"
      "[Wind]\nAngle Guard=False\nLeast Apparent=25\nLargest True=165\nShift Alarm=False\nShift "
      "Limit=15\nShift Lasts=30\nSide By Itself=False\nPolar Angle=False\nDodge Keys=False\n\n"
      "[View]\nNight Colours=False\nSave While Running=False\nCareful Entry=False\nLanguage=\n\n"
      "[History Window]\nVisible=False\n\n[Polar Window]\nVisible=False\n");
}

TEST(SettingsProfile, WritingKeepsWhatTheProgramDoesNotOwn) {
  const TemporaryFolder folder;
  WriteFile(folder / "p.ini", "; my boat\r\n[Track]\r\nDamping=3\r\nMine=1\r\n\r\n[Other]\r\nKey=value\r\n");
  Profile profile;
  ASSERT_EQ(profile.Load(folder / "p.ini"), Profile::LoadResult::Read);
  const Settings settings = ReadFrom(profile);
  ProfileWrite(profile, settings, Windows{});
  const std::string content = profile.Content();
  EXPECT_EQ(content.find("; my boat\r\n[Track]\r\nDamping=3\r\nMine=1\r\n"), 0U);
  EXPECT_NE(content.find("[Other]\r\nKey=value\r\n"), std::string::npos);
}

}  // namespace
}  // namespace veerwatch
