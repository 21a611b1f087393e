#include "options/OptionsStore.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <map>
#include <string>
#include <utility>

#include "settings/SettingsTable.h"
#include "tests/support/FakeMainWindow.h"
#include "tests/support/SetPorts.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A form in which every setting differs from its default.
OptionsForm OtherForm() {
  OptionsForm form;
  form.NmeaTrueWind = 0;
  form.NmeaHeading = 0;
  form.NmeaBoatSpeed = 0;
  form.NmeaTrueWindAverage = "3.5";
  form.NmeaWindOffset = "-4.5";
  form.NmeaBoatSpeedFactor = "1.2";
  form.NmeaHeadingOffset = "6";
  form.NmeaWindIndicatorAverage = "30";
  form.NmeaChecksum = form.NmeaInvalidStatus = form.NmeaForeignLines = 1;
  form.NmeaWindUnits = form.NmeaLowerCase = true;
  form.NmeaPort = "7";
  form.PilotPort = "8";
  form.PilotProfile = static_cast<int>(PilotProfile::Own);
  form.PilotCadence = 2;
  form.PilotInvalidWhenLost = true;
  form.PilotInvalidSeconds = "8";
  form.PilotOwnTalker = "GP";
  form.PilotOwnPoint = "WP7";
  form.PilotOwnSends = {true, true, false, false, true};
  form.Simulate = true;
  form.SimulateModel = 1;
  form.SimulatePilot = 3;
  form.SimulateSea = 4;
  form.SimulateBoatSpeed = "6.5";
  form.SimulateCompassOffset = "-2";
  form.SimulateNoiseAngle = "1.5";
  form.SimulateNoiseSpeed = "0.5";
  form.SimulateTime = "2:15";
  form.SimulateTrueWindAngle = "215";
  form.SimulateTrueWindSpeed = "17.5";
  form.SimulateVariation = "-3";
  form.SimulateWaypointBrg = "268";
  form.SimulateWaypointRng = "12.5";
  form.SimulatePilotLag = "2.5";
  form.SimulateGusts = "20";
  form.SimulateShifts = "7.5";
  form.SimulateLeeway = "3";
  form.SimulateSeed = "17";
  form.TrackAlarm = false;
  form.TrackAlarmLimit = "8";
  form.TrackBandwidth = "25";
  form.TrackDamping = "2.5";
  form.TrackMaxSteerTo = "15";
  form.TrackAlarmAverage = "5";
  form.WatchAct = form.WatchKeepSending = form.WatchHeadingUp = true;
  form.WatchLogFitted = form.WatchCompassFitted = false;
  form.WatchBlankLost = form.CarefulEntry = true;
  form.WatchSound = 1;
  form.WatchCommand = "/usr/bin/buzz --loud";
  form.WatchStaleWindApparent = "3";
  form.WatchStaleWindTrue = "5";
  form.WatchStaleBoatSpeed = "6";
  form.WatchStaleHeading = "7";
  form.WatchStaleWaypoint = "8";
  return form;
}

class OptionsStoring : public testing::Test {
 public:
  FakeMainWindow Main;
  SetPorts Ports;
  Profile Ini;
  OptionsStore Store{Main, Ports, Ini};

  bool DataStored() const {
    return Main.m_iNmeaTrueWind == 0 && Main.m_iNmeaHeading == 0 && Main.m_iNmeaBoatSpeed == 0 &&
           !Main.m_bNmeaSentenceHDG && !Main.m_bNmeaSentenceHVM && !Main.m_bNmeaSentenceMWV &&
           !Main.m_bNmeaSentenceRMB && !Main.m_bNmeaSentenceRMC && !Main.m_bNmeaSentenceVHW &&
           !Main.m_bNmeaSentenceVTG && Main.m_fNmeaTrueWindAverage == 3.5F &&
           Main.m_fNmeaWindIndicatorAverage == 30.0F;
  }
  bool InputStored() const { return Main.m_iNmeaPort == 7; }
  bool OutputStored() const { return Main.m_iPilotPort == 8; }
  bool SimulateStored() const {
    return Main.m_bSimulate && Main.m_eSimulateModel == SimulateModel::Boat &&
           Main.m_eSimulatePilot == PilotReads::Hsc && Main.m_eSimulateSea == Sea::Head &&
           Main.m_fSimulateBoatSpeed == 6.5F && Main.m_fSimulateCompassOffset == -2.0F &&
           Main.m_fSimulateNoiseAngle == 1.5F && Main.m_fSimulateNoiseSpeed == 0.5F &&
           Main.m_fSimulateTime == 2.25F && Main.m_fSimulateTrueWindAngle == 215.0F &&
           Main.m_fSimulateTrueWindSpeed == 17.5F && Main.m_fSimulateVariation == -3.0F &&
           Main.m_fSimulateWaypointBearing == 268.0F && Main.m_fSimulateWaypointRange == 12.5F &&
           Main.m_fSimulatePilotLag == 2.5F && Main.m_fSimulateGusts == 20.0F &&
           Main.m_fSimulateShifts == 7.5F && Main.m_fSimulateLeeway == 3.0F && Main.m_iSimulateSeed == 17;
  }
  bool TrackingStored() const {
    return !Main.m_bTrackAlarm && Main.m_fTrackAlarmLimit == 8.0F && Main.m_fTrackBandwidth == 25.0F &&
           Main.m_fTrackDamping == 2.5F && Main.m_fTrackMaxSteerTo == 15.0F;
  }
};

TEST_F(OptionsStoring, StoresTheWatchAndShowsItAgain) {
  ASSERT_EQ(Store.Store(OtherForm()), std::nullopt);
  EXPECT_TRUE(Main.m_bWatchAct && Main.m_bWatchKeepSending && Main.m_bWatchHeadingUp);
  EXPECT_FALSE(Main.m_bWatchLogFitted || Main.m_bWatchCompassFitted);
  EXPECT_TRUE(Main.m_bWatchBlankLost && Main.m_bCarefulEntry);
  EXPECT_EQ(Main.m_eWatchSound, AlarmSound::Tone);
  EXPECT_EQ(Main.m_sWatchCommand, "/usr/bin/buzz --loud");
  const OptionsForm form = OptionsFormOf(Main);
  EXPECT_TRUE(form.WatchAct && form.WatchKeepSending && form.WatchHeadingUp && form.CarefulEntry);
  EXPECT_FALSE(form.WatchLogFitted || form.WatchCompassFitted);
  EXPECT_EQ(form.WatchSound, 1);
  EXPECT_EQ(form.WatchCommand, "/usr/bin/buzz --loud");
  EXPECT_EQ(form.WatchStaleWaypoint, "8");
}

TEST_F(OptionsStoring, StoresWhatThePilotIsSentAndShowsItAgain) {
  ASSERT_EQ(Store.Store(OtherForm()), std::nullopt);
  EXPECT_EQ(Main.m_ePilotProfile, PilotProfile::Own);
  EXPECT_EQ(Main.m_iPilotCadence, 2);
  EXPECT_TRUE(Main.m_bPilotInvalidWhenLost);
  EXPECT_EQ(Main.m_fPilotInvalidSeconds, 8.0F);
  EXPECT_EQ(Main.m_sPilotOwnTalker, "GP");
  EXPECT_EQ(Main.m_sPilotOwnPoint, "WP7");
  EXPECT_TRUE(Main.m_bPilotOwnAPB && Main.m_bPilotOwnRMB && Main.m_bPilotOwnBWC);
  EXPECT_FALSE(Main.m_bPilotOwnHSC || Main.m_bPilotOwnXTE);
  EXPECT_EQ(OptionsFormOf(Main).PilotInvalidSeconds, "8");
  EXPECT_EQ(OptionsFormOf(Main).PilotOwnPoint, "WP7");
}

TEST_F(OptionsStoring, RefusesATalkerThatIsNotWhole) {
  OptionsForm form = OtherForm();
  form.PilotOwnTalker = "G";
  EXPECT_EQ(Store.Store(form), "Output Options Problem Invalid property value: Talker");
  form = OtherForm();
  form.PilotInvalidSeconds = "0";
  EXPECT_EQ(Store.Store(form), "Output Options Problem Invalid property value: Invalid When Lost");
}

TEST_F(OptionsStoring, StoresWhatIsAskedOfALineAndShowsItAgain) {
  ASSERT_EQ(Store.Store(OtherForm()), std::nullopt);
  EXPECT_EQ(Main.m_eNmeaChecksum, ChecksumRule::Require);
  EXPECT_EQ(Main.m_eNmeaInvalidStatus, InvalidRule::Ignore);
  EXPECT_EQ(Main.m_eNmeaForeignLines, ForeignRule::List);
  EXPECT_TRUE(Main.m_bNmeaWindUnits && Main.m_bNmeaLowerCase);
  const OptionsForm form = OptionsFormOf(Main);
  EXPECT_EQ(form.NmeaChecksum, 1);
  EXPECT_EQ(form.NmeaInvalidStatus, 1);
  EXPECT_EQ(form.NmeaForeignLines, 1);
  EXPECT_TRUE(form.NmeaWindUnits && form.NmeaLowerCase);
}

TEST_F(OptionsStoring, EachRuleOfALineGoesToItsOwnSetting) {
  OptionsForm form = OptionsFormOf(Main);
  form.NmeaWindUnits = true;
  form.NmeaInvalidStatus = 1;
  ASSERT_EQ(Store.Store(form), std::nullopt);
  EXPECT_TRUE(Main.m_bNmeaWindUnits);
  EXPECT_FALSE(Main.m_bNmeaLowerCase);
  EXPECT_EQ(Main.m_eNmeaChecksum, ChecksumRule::AcceptMissing);
  EXPECT_EQ(Main.m_eNmeaInvalidStatus, InvalidRule::Ignore);
  EXPECT_EQ(Main.m_eNmeaForeignLines, ForeignRule::Error);
}

TEST_F(OptionsStoring, StoresEverySetting) {
  EXPECT_EQ(Store.Store(OtherForm()), std::nullopt);
  EXPECT_TRUE(DataStored());
  EXPECT_TRUE(InputStored());
  EXPECT_TRUE(OutputStored());
  EXPECT_TRUE(SimulateStored());
  EXPECT_TRUE(TrackingStored());
}

TEST_F(OptionsStoring, EachSentenceGoesToItsOwnSetting) {
  const std::map<std::string, bool Settings::*> settings{
      {"HDG", &Settings::m_bNmeaSentenceHDG}, {"HVM", &Settings::m_bNmeaSentenceHVM},
      {"MWV", &Settings::m_bNmeaSentenceMWV}, {"RMB", &Settings::m_bNmeaSentenceRMB},
      {"RMC", &Settings::m_bNmeaSentenceRMC}, {"VHW", &Settings::m_bNmeaSentenceVHW},
      {"VTG", &Settings::m_bNmeaSentenceVTG}, {"HDM", &Settings::m_bNmeaSentenceHDM},
      {"HDT", &Settings::m_bNmeaSentenceHDT}, {"MWD", &Settings::m_bNmeaSentenceMWD},
      {"THS", &Settings::m_bNmeaSentenceTHS}, {"VWR", &Settings::m_bNmeaSentenceVWR},
      {"VWT", &Settings::m_bNmeaSentenceVWT}};
  ASSERT_EQ(settings.size(), kSentences.size());
  for (std::size_t i = 0; i < kSentences.size(); ++i) {
    OptionsForm form = OtherForm();
    form.NmeaSentence[i] = true;
    ASSERT_EQ(Store.Store(form), std::nullopt);
    for (const auto& [key, setting] : settings) {
      EXPECT_EQ(Main.*setting, key == kSentences[i].Name) << key;
    }
  }
}

TEST_F(OptionsStoring, AFormOfTheSettingsChangesNothingAndRestartsNothing) {
  Ports.Nmea = Ports.Pilot = true;
  ASSERT_EQ(Store.Store(OtherForm()), std::nullopt);
  Main.Calls.clear();
  Main.SimulateTimes.clear();
  EXPECT_EQ(Store.Store(OptionsFormOf(Main)), std::nullopt);
  EXPECT_TRUE(DataStored() && InputStored() && OutputStored() && SimulateStored() && TrackingStored());
  EXPECT_THAT(Main.Calls, IsEmpty());
  EXPECT_THAT(Main.SimulateTimes, IsEmpty());
}

TEST_F(OptionsStoring, ShowsTheSettingsInTheirShortestForm) {
  Main.m_fTrackDamping = 0.7F;
  Main.m_fSimulateTime = 1.5F;
  const OptionsForm form = OptionsFormOf(Main);
  EXPECT_EQ(form.TrackDamping, "0.7");
  EXPECT_EQ(form.SimulateTime, "1:30");
  EXPECT_EQ(form.NmeaPort, "5");
  EXPECT_EQ(form.SimulateBoatSpeed, "8");
  EXPECT_EQ(form.NmeaWindIndicatorAverage, "60");
}

// Each group that fails, with what is stored before it.

struct Failing {
  const char* Group;
  const char* Box;
  std::function<void(OptionsForm&)> Spoil;
  int Stored;  ///< groups before it
};

void PrintTo(const Failing& failing, std::ostream* out) { *out << failing.Group; }

class OptionsStoringFails : public OptionsStoring, public testing::WithParamInterface<Failing> {};

TEST_P(OptionsStoringFails, AfterWhatWasStoredBefore) {
  OptionsForm form = OtherForm();
  GetParam().Spoil(form);
  EXPECT_EQ(Store.Store(form),
            std::string(GetParam().Group) + " Options Problem Type mismatch: " + GetParam().Box);
  EXPECT_EQ(DataStored(), GetParam().Stored > 0);
  EXPECT_EQ(InputStored(), GetParam().Stored > 1);
  EXPECT_EQ(OutputStored(), GetParam().Stored > 2);
  EXPECT_EQ(SimulateStored(), GetParam().Stored > 3);
  EXPECT_FALSE(TrackingStored());
}

INSTANTIATE_TEST_SUITE_P(
    Groups, OptionsStoringFails,
    testing::Values(
        Failing{"Data", "Wind Indicator Average",
                [](OptionsForm& form) { form.NmeaWindIndicatorAverage = "x"; }, 0},
        Failing{"Input", "Comm", [](OptionsForm& form) { form.NmeaPort = ""; }, 1},
        Failing{"Output", "Comm", [](OptionsForm& form) { form.PilotPort = "COM3"; }, 2},
        Failing{"Simulate", "Waypoint Range", [](OptionsForm& form) { form.SimulateWaypointRng = "1 2"; }, 3},
        Failing{"Tracking", "Max Steer To", [](OptionsForm& form) { form.TrackMaxSteerTo = "ten"; }, 4}),
    [](const auto& failing) { return failing.param.Group; });

TEST_F(OptionsStoring, KeepsWhatAGroupStoredBeforeItFailed) {
  OptionsForm form = OtherForm();
  form.SimulateTime = "1:x";
  EXPECT_EQ(Store.Store(form), "Simulate Options Problem Type mismatch: Time");
  EXPECT_TRUE(Main.m_bSimulate);
  EXPECT_EQ(Main.m_fSimulateBoatSpeed, 6.5F);
  EXPECT_EQ(Main.m_fSimulateCompassOffset, -2.0F);
  EXPECT_EQ(Main.m_fSimulateNoiseAngle, 1.5F);
  EXPECT_EQ(Main.m_fSimulateNoiseSpeed, 0.5F);
  EXPECT_EQ(Main.m_fSimulateTrueWindAngle, Settings{}.m_fSimulateTrueWindAngle);
  EXPECT_EQ(Main.m_fSimulateTime, 0.0F);
}

TEST_F(OptionsStoring, ASeedThatIsNoneKeepsTheOneBefore) {
  Main.m_iSimulateSeed = 5;
  for (const auto& [typed, fault] :
       {std::pair{"x", "Type mismatch"}, std::pair{"", "Type mismatch"}, std::pair{"32768", "Overflow"},
        std::pair{"-1", "Invalid property value"}}) {
    OptionsForm form = OtherForm();
    form.SimulateSeed = typed;
    EXPECT_EQ(Store.Store(form), "Simulate Options Problem " + std::string(fault) + ": Seed") << typed;
    EXPECT_EQ(Main.m_iSimulateSeed, 5) << typed;
    EXPECT_EQ(Main.m_fSimulateLeeway, 3.0F) << "what stands in front of it is stored";
  }
  OptionsForm form = OtherForm();
  form.SimulateSeed = "32767";
  EXPECT_EQ(Store.Store(form), std::nullopt);
  EXPECT_EQ(OptionsFormOf(Main).SimulateSeed, "32767");
}

TEST_F(OptionsStoring, StoresTheTrueWindAverageBeforeTheOther) {
  OptionsForm form = OtherForm();
  form.NmeaWindIndicatorAverage = "";
  Store.Store(form);
  EXPECT_EQ(Main.m_fNmeaTrueWindAverage, 3.5F);
  form = OtherForm();
  Main.m_fNmeaWindIndicatorAverage = 60.0F;
  form.NmeaTrueWindAverage = "";
  Store.Store(form);
  EXPECT_EQ(Main.m_fNmeaWindIndicatorAverage, 60.0F);
}

// Every text in the order in which they are stored, each failing in turn.

struct OrderedText {
  const char* Group;
  const char* Box;
  std::string OptionsForm::*Text;
  std::function<bool(const Settings&)> Stored;
};

const std::vector<OrderedText>& OrderedTexts() {
  static const std::vector<OrderedText> kTexts{
      {"Data", "True Wind Average", &OptionsForm::NmeaTrueWindAverage,
       [](const Settings& main) { return main.m_fNmeaTrueWindAverage == 3.5F; }},
      {"Data", "Wind Indicator Average", &OptionsForm::NmeaWindIndicatorAverage,
       [](const Settings& main) { return main.m_fNmeaWindIndicatorAverage == 30.0F; }},
      {"Data", "Wind Offset", &OptionsForm::NmeaWindOffset,
       [](const Settings& main) { return main.m_fNmeaWindOffset == -4.5F; }},
      {"Data", "Boat Speed Factor", &OptionsForm::NmeaBoatSpeedFactor,
       [](const Settings& main) { return main.m_fNmeaBoatSpeedFactor == 1.2F; }},
      {"Data", "Heading Offset", &OptionsForm::NmeaHeadingOffset,
       [](const Settings& main) { return main.m_fNmeaHeadingOffset == 6.0F; }},
      {"Input", "Comm", &OptionsForm::NmeaPort, [](const Settings& main) { return main.m_iNmeaPort == 7; }},
      {"Output", "Comm", &OptionsForm::PilotPort,
       [](const Settings& main) { return main.m_iPilotPort == 8; }},
      {"Simulate", "Boat Speed", &OptionsForm::SimulateBoatSpeed,
       [](const Settings& main) { return main.m_fSimulateBoatSpeed == 6.5F; }},
      {"Simulate", "Offset", &OptionsForm::SimulateCompassOffset,
       [](const Settings& main) { return main.m_fSimulateCompassOffset == -2.0F; }},
      {"Simulate", "Angle Noise", &OptionsForm::SimulateNoiseAngle,
       [](const Settings& main) { return main.m_fSimulateNoiseAngle == 1.5F; }},
      {"Simulate", "Noise", &OptionsForm::SimulateNoiseSpeed,
       [](const Settings& main) { return main.m_fSimulateNoiseSpeed == 0.5F; }},
      {"Simulate", "Time", &OptionsForm::SimulateTime,
       [](const Settings& main) { return main.m_fSimulateTime == 2.25F; }},
      {"Simulate", "True Wind Direction", &OptionsForm::SimulateTrueWindAngle,
       [](const Settings& main) { return main.m_fSimulateTrueWindAngle == 215.0F; }},
      {"Simulate", "True Wind Speed", &OptionsForm::SimulateTrueWindSpeed,
       [](const Settings& main) { return main.m_fSimulateTrueWindSpeed == 17.5F; }},
      {"Simulate", "Magnetic Variation", &OptionsForm::SimulateVariation,
       [](const Settings& main) { return main.m_fSimulateVariation == -3.0F; }},
      {"Simulate", "Waypoint Bearing", &OptionsForm::SimulateWaypointBrg,
       [](const Settings& main) { return main.m_fSimulateWaypointBearing == 268.0F; }},
      {"Simulate", "Waypoint Range", &OptionsForm::SimulateWaypointRng,
       [](const Settings& main) { return main.m_fSimulateWaypointRange == 12.5F; }},
      {"Simulate", "Pilot Lag", &OptionsForm::SimulatePilotLag,
       [](const Settings& main) { return main.m_fSimulatePilotLag == 2.5F; }},
      {"Simulate", "Gusts", &OptionsForm::SimulateGusts,
       [](const Settings& main) { return main.m_fSimulateGusts == 20.0F; }},
      {"Simulate", "Shifts", &OptionsForm::SimulateShifts,
       [](const Settings& main) { return main.m_fSimulateShifts == 7.5F; }},
      {"Simulate", "Leeway", &OptionsForm::SimulateLeeway,
       [](const Settings& main) { return main.m_fSimulateLeeway == 3.0F; }},
      {"Tracking", "Alarm Limit", &OptionsForm::TrackAlarmLimit,
       [](const Settings& main) { return main.m_fTrackAlarmLimit == 8.0F; }},
      {"Tracking", "Bandwidth", &OptionsForm::TrackBandwidth,
       [](const Settings& main) { return main.m_fTrackBandwidth == 25.0F; }},
      {"Tracking", "Damping", &OptionsForm::TrackDamping,
       [](const Settings& main) { return main.m_fTrackDamping == 2.5F; }},
      {"Tracking", "Max Steer To", &OptionsForm::TrackMaxSteerTo,
       [](const Settings& main) { return main.m_fTrackMaxSteerTo == 15.0F; }},
      {"Tracking", "Alarm Average", &OptionsForm::TrackAlarmAverage,
       [](const Settings& main) { return main.m_fTrackAlarmAverage == 5.0F; }},
      {"Watch", "Apparent Wind", &OptionsForm::WatchStaleWindApparent,
       [](const Settings& main) { return main.m_fWatchStaleWindApparent == 3.0F; }},
      {"Watch", "True Wind", &OptionsForm::WatchStaleWindTrue,
       [](const Settings& main) { return main.m_fWatchStaleWindTrue == 5.0F; }},
      {"Watch", "Boat Speed", &OptionsForm::WatchStaleBoatSpeed,
       [](const Settings& main) { return main.m_fWatchStaleBoatSpeed == 6.0F; }},
      {"Watch", "Heading", &OptionsForm::WatchStaleHeading,
       [](const Settings& main) { return main.m_fWatchStaleHeading == 7.0F; }},
      {"Watch", "Waypoint", &OptionsForm::WatchStaleWaypoint,
       [](const Settings& main) { return main.m_fWatchStaleWaypoint == 8.0F; }},
  };
  return kTexts;
}

TEST_F(OptionsStoring, StoresTheTextsInTheirOrderUpToTheOneThatFails) {
  for (std::size_t failing = 0; failing < OrderedTexts().size(); ++failing) {
    const OrderedText& spoilt = OrderedTexts()[failing];
    FakeMainWindow main;
    OptionsForm form = OtherForm();
    // As long as a box takes it, and no number.
    form.*spoilt.Text = std::string(100000, '9').append(":x");
    EXPECT_EQ(OptionsStore(main, Ports, Ini).Store(form),
              std::string(spoilt.Group) + " Options Problem " +
                  (spoilt.Text == &OptionsForm::SimulateTime ? "Overflow: " : "Type mismatch: ") +
                  spoilt.Box);
    for (std::size_t i = 0; i < OrderedTexts().size(); ++i) {
      EXPECT_EQ(OrderedTexts()[i].Stored(main), i < failing) << failing << ", " << i;
    }
    // What is chosen stands in front of the texts of its group.
    EXPECT_EQ(main.m_iNmeaTrueWind, 0) << failing;
    EXPECT_FALSE(main.m_bNmeaSentenceVTG) << failing;
    EXPECT_EQ(main.m_bSimulate, failing >= 7) << failing;
    EXPECT_EQ(main.m_bTrackAlarm, failing < 21) << failing;
  }
}

TEST(OptionBoxes, ShowEachASettingOfTheirOwnThatHasAKey) {
  for (const OptionBox& box : kOptionBoxes) {
    EXPECT_TRUE(std::any_of(SettingsTable().begin(), SettingsTable().end(), [&box](const auto& row) {
      return row.Value.Member == box.Setting;
    })) << box.Name;
    for (const OptionBox& other : kOptionBoxes) {
      if (&other != &box) {
        EXPECT_NE(other.Setting, box.Setting) << box.Name;
        EXPECT_NE(other.Text, box.Text) << box.Name;
      }
    }
  }
}

// Values that a setting cannot be.

TEST_F(OptionsStoring, RefusesWhatTheLoopCannotWorkWith) {
  struct Spoilt {
    const char* Group;
    const char* Box;
    std::string OptionsForm::*Text;
    const char* Typed;
  };
  const std::vector<Spoilt> spoilt{
      {"Data", "True Wind Average", &OptionsForm::NmeaTrueWindAverage, "-0.1"},
      {"Data", "Wind Indicator Average", &OptionsForm::NmeaWindIndicatorAverage, "-1"},
      {"Data", "Boat Speed Factor", &OptionsForm::NmeaBoatSpeedFactor, "0.49"},
      {"Data", "Boat Speed Factor", &OptionsForm::NmeaBoatSpeedFactor, "2.01"},
      {"Input", "Comm", &OptionsForm::NmeaPort, "0"},
      {"Output", "Comm", &OptionsForm::PilotPort, "-3"},
      {"Simulate", "Pilot Lag", &OptionsForm::SimulatePilotLag, "-1"},
      {"Simulate", "Gusts", &OptionsForm::SimulateGusts, "-0.1"},
      {"Simulate", "Seed", &OptionsForm::SimulateSeed, "-1"},
      {"Tracking", "Alarm Limit", &OptionsForm::TrackAlarmLimit, "-1"},
      {"Tracking", "Bandwidth", &OptionsForm::TrackBandwidth, "0"},
      {"Tracking", "Bandwidth", &OptionsForm::TrackBandwidth, "-5"},
      {"Tracking", "Damping", &OptionsForm::TrackDamping, "-0.5"},
  };
  for (const Spoilt& one : spoilt) {
    OptionsForm form = OtherForm();
    form.*one.Text = one.Typed;
    EXPECT_EQ(Store.Store(form),
              std::string(one.Group) + " Options Problem Invalid property value: " + one.Box);
    EXPECT_GT(Main.m_fTrackBandwidth, 0.0F);
    EXPECT_GE(Main.m_fTrackDamping, 0.0F);
    EXPECT_GE(Main.m_iNmeaPort, 1);
  }
  OptionsForm form = OtherForm();
  form.NmeaTrueWindAverage = form.TrackDamping = form.TrackAlarmLimit = "0";
  EXPECT_EQ(Store.Store(form), std::nullopt);
}

TEST_F(OptionsStoring, AnAverageIsZeroOrAboveAHalf) {
  for (const char* text : {"0.5", "0.4", "0.1", "1e-20"}) {
    OptionsForm form = OtherForm();
    form.NmeaTrueWindAverage = text;
    EXPECT_EQ(Store.Store(form), "Data Options Problem Must be 0 or above 0.5: True Wind Average") << text;
    EXPECT_EQ(Main.m_fNmeaTrueWindAverage, Settings{}.m_fNmeaTrueWindAverage) << text;
    form = OptionsFormOf(Main);
    form.NmeaWindIndicatorAverage = text;
    EXPECT_EQ(Store.Store(form), "Data Options Problem Must be 0 or above 0.5: Wind Indicator Average")
        << text;
    EXPECT_EQ(Main.m_fNmeaWindIndicatorAverage, Settings{}.m_fNmeaWindIndicatorAverage) << text;
  }
  for (const auto& [text, count] : {std::pair{"0.6", 0.6F}, std::pair{"0", 0.0F}, std::pair{"1", 1.0F}}) {
    OptionsForm form = OptionsFormOf(Main);
    form.NmeaTrueWindAverage = form.NmeaWindIndicatorAverage = text;
    EXPECT_EQ(Store.Store(form), std::nullopt) << text;
    EXPECT_EQ(Main.m_fNmeaTrueWindAverage, count);
    EXPECT_EQ(Main.m_fNmeaWindIndicatorAverage, count);
  }
}

TEST_F(OptionsStoring, TellsOfNumbersThatAreTooLarge) {
  OptionsForm form = OtherForm();
  form.NmeaPort = "40000";
  EXPECT_EQ(Store.Store(form), "Input Options Problem Overflow: Comm");
  form = OtherForm();
  form.SimulateBoatSpeed = "1e39";
  EXPECT_EQ(Store.Store(form), "Simulate Options Problem Overflow: Boat Speed");
}

TEST_F(OptionsStoring, KeepsEverySettingFinite) {
  for (const char* text : {"nan", "inf", "-inf", "1e39", "-1e39", "1e999", "infinity", "NAN(1)"}) {
    OptionsForm form = OtherForm();
    form.SimulateNoiseAngle = text;
    EXPECT_NE(Store.Store(form), std::nullopt) << text;
    EXPECT_EQ(Main.m_fSimulateNoiseAngle, 4.0F) << text;
  }
}

}  // namespace
}  // namespace veerwatch
