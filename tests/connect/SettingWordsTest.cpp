// Every setting that the assistant can change has words: whatever is heard, chosen, tried and ticked.
#include "connect/SettingWords.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "connect/ConnectDesk.h"
#include "connect/PlanWords.h"
#include "platform/PortNames.h"
#include "settings/SettingsTable.h"
#include "tests/connect/ListenRig.h"
#include "tests/support/FakeMainWindow.h"
#include "tests/support/ListedPorts.h"

namespace veerwatch {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class SettingWordsTest : public testing::Test {
 protected:
  ListenRig Rig;
  FakeMainWindow Main;
  Profile Store;
  ListedPorts Finder;
  ConnectDesk Desk{{Main,
                    Store,
                    Rig.Time,
                    &Finder,
                    Rig.Maker(),
                    [](const std::string&) { return false; },
                    {[] { return false; }, [](bool) {}}}};
  std::set<std::string> Changed;  ///< keys that a plan would have changed
  std::vector<std::string> Wordless;

  /// Every kind of sentence on a gateway, or a wind alone; after ten seconds it is ticked and counts.
  void Hear(bool all) {
    Desk.Search("boat:2000");
    for (int second = 0; second < 15; ++second) {
      ScriptedPort* port = Rig.Ports.at("tcp://boat:2000");
      const std::string digit = std::to_string(second % 10);
      Rig.Second([this] { Desk.Tick(); }, {{port, "IIMWV,03" + digit + ",R,5,M,A"}});
      if (all) {
        for (const std::string& body :
             {"IIMWV,04" + digit + ",T,10,N,A", "IIVWR,03" + digit + ",R,10,N,,,,",
              std::string("IIVWT,040,R,9,N,,,,"), std::string("WIMWD,140,T,,M,9,N,,M"),
              "HCHDG,10" + digit + ",,,3,E", std::string("HCHDM,100,M"), std::string("HEHDT,103,T"),
              std::string("HETHS,103,A"), "IIVHW,,T,101,M,5." + digit + ",N,,",
              std::string("GPVTG,105,T,102,M,6,N,,K"), std::string("GPRMC,,A,,,,,6.1,105,,3,E"),
              std::string("GPHVM,3,E"), std::string("GPRMB,A,,,,,,,,,2.5,108,,,")}) {
          port->Receive(Sentence(body));
        }
      }
    }
    Note();
  }

  /// Notes which keys the plan of now would change, and which of them have no words.
  void Note() {
    const ConnectPlan plan = Desk.Plan();
    const Settings planned =
        Planned(plan, Main, PortsOf(plan, Main, Store, [](const std::string&) { return false; }));
    Profile before;
    Profile after;
    SettingsWrite<Settings>(SettingsTable(), before, Main);
    SettingsWrite<Settings>(SettingsTable(), after, planned);
    for (const auto& row : SettingsTable()) {
      if (after.Text(row.Section, row.Key) != before.Text(row.Section, row.Key)) {
        Changed.insert(row.Section + "/" + row.Key);
        if (!HasWords(row) && row.Key != "Port" && !row.Key.starts_with("Sentence ")) {
          Wordless.push_back(row.Section + "/" + row.Key);
        }
      }
    }
  }

  void ChooseEachSource() {
    for (std::size_t i = 0; i < kBoatValues; ++i) {
      const auto value = static_cast<BoatValue>(i);
      for (const ValueSource& source : Desk.Values().Sources(value, Rig.Time.Now())) {
        Desk.Values().Choose(value, source.Name);
        Note();
      }
    }
  }

  /// Everything in the frame of the autopilot as it is not.
  void ChangePilot() {
    OptionsForm& form = Desk.PilotForm();
    form.PilotProfile = static_cast<int>(PilotProfile::Own);
    form.PilotCadence = 3;
    form.PilotInvalidWhenLost = !form.PilotInvalidWhenLost;
    form.PilotInvalidSeconds = "8";
    form.PilotOwnTalker = "II";
    form.PilotOwnPoint = "MARK";
    form.PilotOwnBearing = 1;
    form.PilotOwnFields = 1;
    form.PilotOwnDecimals = 0;
    for (bool& each : form.PilotOwnSends) {
      each = !each;
    }
    Note();
  }

  void TickAll() {
    RecommendedTicks ticks{};
    ticks.fill(true);
    Desk.SetRecommended(ticks);
    Note();
  }

  /// The lines of `part` that would be written.
  std::vector<std::string> Lines(PlanPart part) {
    std::vector<std::string> lines;
    for (const PlanLine& line : Desk.Words()) {
      if (line.Part == part) {
        lines.push_back(line.Text);
      }
    }
    return lines;
  }
};

TEST_F(SettingWordsTest, WhateverTheAssistantCanChangeHasWordsAndNothingElse) {
  Main.m_bSimulate = true;
  NamePort(Store, 2, "tcp://boat:2000");
  for (const SentenceKind& kind : kSentences) {
    Main.*kind.Enabled = false;
  }
  Hear(false);
  Hear(true);
  ChooseEachSource();
  // The other way about.
  Main.m_iNmeaBoatSpeed = 0;
  Main.m_iNmeaHeading = 0;
  Main.m_iNmeaTrueWind = 0;
  ChooseEachSource();
  Desk.Values().SetWindOffset(3.0F);
  Desk.Values().SetSpeedFactor(1.2F);
  Desk.Values().SetHeadingOffset(-4.0F);
  Desk.SetPilotPort("/dev/ttyUSB1");
  ChangePilot();
  for (const char* lag : {"1", "6.5", "20"}) {
    for (const bool known : {false, true}) {
      Main.Answer.BoatSpeedKnown = known;
      Main.Answer.WindsASecond = known ? 10.0 : 1.0;
      Desk.TakeLag(lag);
      Note();
    }
  }
  TickAll();
  EXPECT_THAT(Wordless, IsEmpty());
  for (const auto& row : SettingsTable()) {
    EXPECT_EQ(HasWords(row) || row.Key == "Port" || row.Key.starts_with("Sentence "),
              Changed.contains(row.Section + "/" + row.Key))
        << row.Section << ", " << row.Key;
  }
}

TEST_F(SettingWordsTest, InstrumentsAreToldAsASailorKnowsThem) {
  Main.m_bSimulate = true;
  Main.m_iNmeaTrueWind = 0;
  Main.m_bNmeaSentenceMWV = false;
  Hear(true);
  Desk.Values().Choose(BoatValue::WindTrue, "computed");
  Desk.Values().SetWindOffset(3.0F);
  Desk.Values().SetSpeedFactor(1.25F);
  Desk.Values().SetHeadingOffset(-4.0F);
  EXPECT_THAT(Lines(PlanPart::Instruments),
              ElementsAre("Port 5 leads to tcp://boat:2000", "Sentences that are read from now on: MWV",
                          "Sentences that are no longer read: HVM, VTG",
                          "Boat speed: through the water (now over ground)",
                          "Heading: from the compass (now the course over ground)",
                          "Winds in m/s, km/h or mph: read (now not read)",
                          "True wind: computed (now from the wind instrument)",
                          "Wind angle offset: +3 deg (now 0 deg)", "Log factor: 1.25 (now 1)",
                          "Compass offset: -4 deg (now 0 deg)", "Simulated boat: off (now on)"));
}

TEST_F(SettingWordsTest, ABoatWithoutLogAndCompass) {
  Hear(false);
  EXPECT_THAT(Lines(PlanPart::Instruments),
              testing::IsSupersetOf({"A boat speed is on the wire, and missed when it fails: no (now yes)",
                                     "A heading is on the wire, and missed when it fails: no (now yes)"}));
}

TEST_F(SettingWordsTest, ThePilotIsToldInWords) {
  Desk.SetPilotPort("/dev/ttyUSB1");
  ChangePilot();
  EXPECT_THAT(
      Lines(PlanPart::Autopilot),
      ElementsAre("Port 1 leads to /dev/ttyUSB1", "What the pilot is sent: Own (now Magnetic APB)",
                  "Sentences to the pilot: 3 a second (now with each wind)",
                  "When no bearing is good: it is told so, then nothing is sent (now nothing is sent)",
                  "So long it is told: 8 s (now 5 s)", "Own sentences begin with: II (now EC)",
                  "Own bearings: true (now magnetic)", "Own fields of APB: 15 (now 14)",
                  "Own decimals of the bearings: 0 (now 1)", "Own name of the point: MARK (now 1)",
                  "Own sentence APB: not sent (now sent)", "Own sentence RMB: sent (now not sent)",
                  "Own sentence HSC: sent (now not sent)", "Own sentence XTE: sent (now not sent)",
                  "Own sentence BWC: sent (now not sent)"));
}

TEST_F(SettingWordsTest, HowItSteersHasTheWordsOfItsPage) {
  TickAll();
  EXPECT_THAT(
      Lines(PlanPart::Steers),
      ElementsAre("Checksum: Require (now Accept missing)", "Status V: Ignore (now Use)",
                  "Foreign lines: List (now Error)", "Bandwidth: 60 s (now 20 s)",
                  "Tracking method: Direction (now Sentence)",
                  "Tracking alarm: over 5 s (now each sentence by itself)", "The watch acts: on (now off)",
                  "Alarm sound: Tone (now Beep)", "Lost values blank: on (now off)",
                  "Careful entry: on (now off)", "Polar between winds: smooth (now in steps)"));
  EXPECT_THAT(Lines(PlanPart::Autopilot),
              ElementsAre("Sentences to the pilot: 1 a second (now with each wind)"));
}

TEST_F(SettingWordsTest, AnyOtherKeyIsNamedWithWhatTheProfileHolds) {
  const auto& rows = SettingsTable();
  const auto row =
      std::find_if(rows.begin(), rows.end(), [](const auto& each) { return each.Key == "Damping"; });
  ASSERT_NE(row, rows.end());
  Settings planned;
  planned.m_fTrackDamping = 2.0F;
  EXPECT_EQ(SettingLine(*row, planned, Settings()).Text, "Setting \"Damping\" of \"Track\": 2 (now 4)");
}

}  // namespace
}  // namespace veerwatch
