// Names, captions and hints of the options dialog's controls, letter for letter, and what it starts with.

#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QSet>

#include "tests/ui/OptionsTester.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;

class OptionsTexts : public OptionsTester {};

std::string Plain(QString text) { return text.remove('&').toStdString(); }

TEST_F(OptionsTexts, NameTheWindowTheTabsAndTheButtons) {
  Make();
  EXPECT_EQ(Window->objectName(), "frmOptions");
  EXPECT_EQ(Window->windowTitle(), "Veerwatch - Options");
  const auto& tabs = Find<QTabWidget>("SSTab");
  std::vector<std::string> captions;
  for (int tab = 0; tab < tabs.count(); ++tab) {
    captions.push_back(Plain(tabs.tabText(tab)));
  }
  EXPECT_THAT(captions, ElementsAre("Input", "Data", "Output", "Tracking", "Simulate", "Diagram", "Watch"));
  EXPECT_EQ(Plain(Find<QPushButton>("cmdOk").text()), "OK");
  EXPECT_EQ(Plain(Find<QPushButton>("cmdCancel").text()), "Cancel");
  EXPECT_EQ(Plain(Find<QPushButton>("cmdApply").text()), "Apply");
}

TEST_F(OptionsTexts, BeginEveryToolTipWithTheHintAndGiveItAsDescription) {
  Make();
  const std::vector<std::pair<const char*, const char*>> hints{
      {"txtNmeaPort", "Input Comm Port"},
      {"lblNmeaStatus", "Input Comm Status"},
      {"optNmeaListOff", "Input Display Comm Data - Off"},
      {"optNmeaListOn", "Input Display Comm Data - On"},
      {"optNmeaDataFormat(1)", "Display Data Format - Raw NMEA"},
      {"optNmeaDataFormat(2)", "Display Data Format - Decoded Error"},
      {"lstNmeaData", "Input Nema Data, Highlighted indicates Decoded Data"},
      {"txtNmeaWindIndicatorAverage", "Wind Indicator Average Time (sec, 0=none)"},
      {"txtNmeaTrueWindAverage", "True Wind Average Time (sec, 0=none)"},
      {"txtPilotPort", "Output Comm Port"},
      {"lblPilotStatus", "Output Comm Status"},
      {"OptPilotListOff", "Output Display Comm Data - Off"},
      {"optPilotListOn", "Output Display Comm Data - On"},
      {"lstPilotData", "Output Nema Data"},
      {"chkTrackAlarm", "Tracking Alarm"},
      {"cmbTrackMethod", "By what the wind is held, from the next Track on"},
      {"txtTrackAlarmLimit", "Tracking Alarm Limit (deg, +/- from Desired)"},
      {"txtTrackBandwidth", "Tracking Bandwidth (sec)"},
      {"txtTrackDamping", "Tracking Damping Factor (default=1)"},
      {"txtTrackMaxSteerTo", "Range (deg)"},
      {"txtTrackAlarmAverage", "Seconds over which the alarm averages the error"},
      {"cmdTrackSuggest",
       "Puts what suits the measured sentences and the boat lag into the boxes; Apply stores it"},
      {"chkTrackOnMyWind",
       "All methods on the wind of the last half hour, steering a boat with the lag beside"},
      {"txtTrackLag", "Seconds until the boat has made two thirds of a small turn"},
      {"txtTrackOffset", "Initial Track Offset  (deg)"},
      {"txtTrackNoise", "Added Random Noise (+/- Deg)"},
      {"txtTrackTime", "Track Time (sec)"},
      {"txtTrackMin", "Track Time (sec)"},
      {"txtTrackMax", "Track Time (sec)"},
      {"chkSimulate", "Simulate Data"},
      {"txtSimulateBoatSpeed", "Boat Speed (Kts)"},
      {"txtSimulateTrueWindAngle", "True Wind Direction (T)"},
      {"txtSimulateTrueWindSpeed", "True Wind Speed (Kts)"},
      {"txtSimulateVariation", "Magnetic Variation (Deg)"},
      {"txtSimulateCompassOffset", "Compass Offset"},
      {"txtSimulateNoiseSpeed", "Added Random Noise (+/- Kts)"},
      {"txtSimulateNoiseAngle", "Added Random Noise (+/- Deg)"},
      {"txtSimulateWaypointBrg", "Waypoint Bearing (M)"},
      {"txtSimulateWaypointRng", "Waypoint Range (nm)"},
      {"txtSimulateTime", "Move Ahead in Time (h:mm)"},
      {"lblSimulateWaypointBrg", "Time, Waypoint Bearing (M)"},
      {"lblSimulateWaypointRng", "Time, Waypoint Range(mn)"},
      {"chkSimulateAutoApply", "Auto Apply"},
  };
  for (const auto& [name, hint] : hints) {
    // Broken into lines, and with more of what is set.
    QString tip = Find<QWidget>(name).toolTip();
    EXPECT_THAT(tip.replace('\n', ' ').toStdString(), testing::StartsWith(hint)) << name;
    EXPECT_STREQ(Find<QWidget>(name).accessibleDescription().toUtf8().constData(), hint) << name;
  }
}

TEST_F(OptionsTexts, CaptionTheControls) {
  Make();
  EXPECT_EQ(Plain(Find<QRadioButton>("optNmeaDataFormat(1)").text()), "Raw NMEA");
  EXPECT_EQ(Plain(Find<QRadioButton>("optNmeaDataFormat(2)").text()), "Decoded Error");
  EXPECT_EQ(Plain(Find<QCheckBox>("chkTrackAlarm").text()), "Tracking Alarm");
  EXPECT_EQ(Plain(Find<QCheckBox>("chkSimulate").text()), "Simulate Data");
  EXPECT_EQ(Plain(Find<QCheckBox>("chkSimulateAutoApply").text()), "Auto Apply");
  std::multiset<std::string> texts;
  for (const QLabel* label : Window->findChildren<QLabel*>()) {
    texts.insert(Plain(label->text()));
  }
  for (const QGroupBox* frame : Window->findChildren<QGroupBox*>()) {
    texts.insert(Plain(frame->title()));
  }
  EXPECT_EQ(texts.count("Comm:"), 2U);
  EXPECT_EQ(texts.count("Display:"), 2U);
  EXPECT_EQ(texts.count("samples"), 2U);
  for (const char* text : {"Format:",
                           "True Wind:",
                           "Boat Heading:",
                           "Boat Speed:",
                           "Data Average:",
                           "Data Average (Sec):",
                           "Tracking Options",
                           "Tracking Responce",
                           "Alarm:",
                           "Bandwidth:",
                           "Damping:",
                           "Max Steer To without Prompt:",
                           "Alarm Average:",
                           "Boat lag",
                           "Offset",
                           "Time",
                           "Data",
                           "Boat Speed (Kts)",
                           "True Wind Direction (T)",
                           "True Wind Speed (Kts)",
                           "Magnetic Variation (Deg)",
                           "Offset (Deg)",
                           "Noise",
                           "Angle Noise",
                           "Waypoint (M,nm)"}) {
    EXPECT_GE(texts.count(text), 1U) << text;
  }
}

TEST_F(OptionsTexts, ListTheSourcesAndTheSentences) {
  Make();
  const auto items = [this](const char* name) {
    const auto& box = Find<QComboBox>(name);
    std::vector<std::string> texts;
    for (int i = 0; i < box.count(); ++i) {
      texts.push_back(box.itemText(i).toStdString());
    }
    return texts;
  };
  EXPECT_THAT(items("cmbNmeaTrueWind"), ElementsAre("True Wind Sensor", "Compute from Boat Speed"));
  EXPECT_THAT(items("cmbNmeaHeading"), ElementsAre("Compass Heading", "Course Over Ground"));
  EXPECT_THAT(items("cmbNmeaBoatSpeed"), ElementsAre("Speed Over Water", "Speed Over Ground"));
  const auto& list = Find<QTreeWidget>("lstNmeaSentence");
  EXPECT_EQ(list.columnCount(), 1);
  EXPECT_EQ(list.headerItem()->text(0), "Nmea Sentences");
  std::vector<std::pair<std::string, std::string>> rows;
  for (int row = 0; row < list.topLevelItemCount(); ++row) {
    rows.emplace_back(list.topLevelItem(row)->data(0, Qt::UserRole).toString().toStdString(),
                      list.topLevelItem(row)->text(0).toStdString());
  }
  EXPECT_THAT(
      rows, ElementsAre(testing::Pair("HDG", "HDG - Compass (Heading, Deviation, Variation)"),
                        testing::Pair("HVM", "HVM - Magnetic (Variation)"),
                        testing::Pair("MWV", "MWV - Wind (Angle, Apparent/True, Speed)"),
                        testing::Pair("RMB", "RMB - Waypoint (Xte, To Id, From Id, Lat, Lon, Rng, Brg, Vmg)"),
                        testing::Pair("RMC", "RMC - Gps (Time, Lat, Lon, SOG, COG, Variation)"),
                        testing::Pair("VHW", "VHW - Vessel (Heading, SOW)"),
                        testing::Pair("VTG", "VTG - Vessel (COG, SOG)"),
                        testing::Pair("HDM", "HDM - Compass (Heading Magnetic)"),
                        testing::Pair("HDT", "HDT - Gyro (Heading True)"),
                        testing::Pair("MWD", "MWD - Wind (Direction, Speed)"),
                        testing::Pair("THS", "THS - Gyro (Heading True, Status)"),
                        testing::Pair("VWR", "VWR - Wind (Angle, Apparent, Speed)"),
                        testing::Pair("VWT", "VWT - Wind (Angle, True, Speed)")));
}

TEST_F(OptionsTexts, StartWithTheSettingsAndWithTheListsOffAndRaw) {
  Main.m_iNmeaPort = 3;
  Main.m_iPilotPort = 4;
  Main.m_iNmeaTrueWind = 0;
  Main.m_bNmeaSentenceRMB = false;
  Main.m_fTrackDamping = 0.7F;
  Main.m_fSimulateTime = 1.5F;
  Make();
  EXPECT_EQ(Entry("txtNmeaPort"), "3");
  EXPECT_EQ(Entry("txtPilotPort"), "4");
  EXPECT_EQ(Find<QComboBox>("cmbNmeaTrueWind").currentIndex(), 0);
  EXPECT_EQ(Find<QComboBox>("cmbNmeaHeading").currentIndex(), 1);
  const auto& list = Find<QTreeWidget>("lstNmeaSentence");
  for (int row = 0; row < 7; ++row) {
    EXPECT_EQ(list.topLevelItem(row)->checkState(0), row == 3 ? Qt::Unchecked : Qt::Checked) << row;
  }
  EXPECT_EQ(Entry("txtTrackDamping"), "0.7");
  EXPECT_EQ(Entry("txtSimulateTime"), "1:30");
  EXPECT_TRUE(Find<QRadioButton>("optNmeaListOff").isChecked());
  EXPECT_TRUE(Find<QRadioButton>("OptPilotListOff").isChecked());
  EXPECT_TRUE(Find<QRadioButton>("optNmeaDataFormat(1)").isChecked());
  EXPECT_EQ(Entry("txtTrackOffset"), "10");
  EXPECT_EQ(Entry("txtTrackNoise"), "1");
  EXPECT_EQ(Entry("txtTrackTime"), "120");
  EXPECT_EQ(Entry("txtTrackMin"), "-5");
  EXPECT_EQ(Entry("txtTrackMax"), "15");
  EXPECT_FALSE(Find<QCheckBox>("chkSimulateAutoApply").isChecked());
  EXPECT_FALSE(Bold());
  EXPECT_FALSE(Window->isVisible());
  EXPECT_THAT(Main.SimulateTimes, ElementsAre(1.5F));
  EXPECT_EQ(Text("lblSimulateWaypointBrg"), "77");
  EXPECT_EQ(Text("lblSimulateWaypointRng"), "6.3");
}

TEST_F(OptionsTexts, NoTwoMnemonicsOfAPageAreTheSame) {
  Main.m_bSimulate = true;
  Start(0);
  for (int tab = 0; tab < 7; ++tab) {
    Window->TabSelect(tab);
    QSet<QChar> seen;
    const auto take = [&seen, tab](const QString& text) {
      const auto at = text.indexOf('&');
      if (at >= 0) {
        EXPECT_FALSE(seen.contains(text[at + 1].toLower())) << tab << " " << text.toStdString();
        seen.insert(text[at + 1].toLower());
      }
    };
    for (int i = 0; i < 6; ++i) {
      take(Find<QTabWidget>("SSTab").tabText(i));
    }
    for (const QLabel* label : Window->findChildren<QLabel*>()) {
      if (label->isVisible()) {
        take(label->text());
      }
    }
    for (const QAbstractButton* button : Window->findChildren<QAbstractButton*>()) {
      if (button->isVisible()) {
        take(button->text());
      }
    }
  }
}

}  // namespace
}  // namespace veerwatch
