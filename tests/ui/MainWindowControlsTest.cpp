// Names, texts and enabling of the main window's controls.

#include <QMenuBar>
#include <QShortcut>
#include <QStatusBar>
#include <map>
#include <set>
#include <vector>

#include "tests/ui/MainWindowTester.h"

namespace veerwatch {
namespace {

class MainWindowControls : public MainWindowTester {};

TEST_F(MainWindowControls, CarryTheirNamesAndCaptions) {
  Start(kOnPorts);
  EXPECT_EQ(Window->objectName(), "frmMain");
  EXPECT_EQ(Find<QRadioButton>("optControl(1)").text(), "Track Apparent Wind Angle");
  EXPECT_EQ(Find<QRadioButton>("optControl(2)").text(), "Track True Wind Angle");
  for (const std::string array : {"cmdAutoPilot", "cmdDesiredApp", "cmdDesiredTrue"}) {
    EXPECT_EQ(Find<QPushButton>((array + "(1)").c_str()).text(), "To Port");
    EXPECT_EQ(Find<QPushButton>((array + "(2)").c_str()).text(), "To Starboard");
  }
  EXPECT_EQ(Text("lblAutoPilot"), "AutoPilot Bearing");
  for (const char* label :
       {"lblHeading", "lblBoatSpeed", "lblWaypointBearing", "lblAppWindAngle", "lblAppWindSpeed",
        "lblTrueWindAngle", "lblTrueWindSpeed", "lblDelta(1)", "lblDelta(2)"}) {
    EXPECT_EQ(Text(label), "") << label;
  }
  std::set<std::string> captions;
  for (const QLabel* label : Window->findChildren<QLabel*>()) {
    captions.insert(label->text().toStdString());
  }
  for (const char* caption : {"Boat Speed (Kts)", "True Wind Angle (R)", "Waypoint Bearing (M)",
                              "Heading (M)", "App Wind Angle (R)"}) {
    EXPECT_EQ(captions.count(caption), 1U) << caption;
  }
}

TEST_F(MainWindowControls, OfferEveryCommand) {
  Start(kOnPorts);
  const std::vector<std::pair<const char*, const char*>> commands{
      {"mnuFileDefault", "Default"},
      {"mnuFileRecord", "Record Input..."},
      {"mnuFileExit", "Exit"},
      {"mnuViewDiagram", "Block Diagram..."},
      {"mnuViewHistory", "History Plot..."},
      {"mnuViewPolar", "Polar Plot..."},
      {"mnuOptionsInput", "Input..."},
      {"mnuOptionsData", "Data..."},
      {"mnuOptionsOutput", "Output..."},
      {"mnuOptionsTrack", "Tracking..."},
      {"mnuOptionsSimulate", "Simulate..."},
      {"mnuTurnTack", "Tack"},
      {"mnuTurnJibe", "Jibe"},
      {"mnuTurnStop", "Stop\tEsc"},
      {"mnuHelpDiagram", "Block Diagram..."},
      {"mnuHelpAbout", "About..."},
  };
  for (const auto& [name, text] : commands) {
    QAction& action = Find<QAction>(name);
    EXPECT_EQ(action.text().remove('&').toStdString(), text);
    EXPECT_TRUE(action.isEnabled()) << name;
  }
  std::vector<std::string> menus;
  for (const QAction* menu : Window->menuBar()->actions()) {
    menus.push_back(menu->text().remove('&').toStdString());
  }
  EXPECT_EQ(menus, (std::vector<std::string>{"File", "View", "Options", "Turn", "Help"}));
}

TEST_F(MainWindowControls, ShowTheModesWithSeparatorsAtTheEvenIndexes) {
  Start(kOnPorts);
  const QList<QAction*> actions = Find<QToolBar>("tbrTrack").actions();
  ASSERT_EQ(actions.size(), 7);
  const std::map<int, std::pair<const char*, const char*>> buttons{
      {1, {"Off", nullptr}},
      {3, {"Setup", "Setup, Set software to hardware autopilot heading"}},
      {5, {"Manual", "Manual, adjust autopilot heading for desired wind angle"}},
      {7, {"Track", "Track, adjust desired wind angle to fine tuning"}},
  };
  for (int index = 1; index <= 7; ++index) {
    QAction* action = actions[index - 1];
    if (index % 2 == 0) {
      EXPECT_TRUE(action->isSeparator());
      continue;
    }
    EXPECT_EQ(action->objectName(), QStringLiteral("tbrTrack(%1)").arg(index));
    EXPECT_TRUE(action->isCheckable());
    EXPECT_FALSE(action->icon().isNull());
    EXPECT_STREQ(action->text().toStdString().c_str(), buttons.at(index).first);
    if (buttons.at(index).second != nullptr) {
      EXPECT_STREQ(action->toolTip().toStdString().c_str(), buttons.at(index).second);
    }
  }
}

TEST_F(MainWindowControls, NameTheThreePanelsOfTheStatusBar) {
  Start(kOnPorts);
  ASSERT_NE(Window->findChild<QStatusBar*>("StatusBar"), nullptr);
  EXPECT_EQ(Find<QLabel>("StatusBar(1)").toolTip(), "Pilot Status");
  EXPECT_EQ(Find<QLabel>("StatusBar(2)").toolTip(), "Input Data Status");
  EXPECT_EQ(Find<QLabel>("StatusBar(3)").toolTip(), "Output Data Status");
}

struct Answering {
  int Mode;
  int Side;
  std::set<std::string> Enabled;
};

void PrintTo(const Answering& answering, std::ostream* out) {
  *out << "mode " << answering.Mode << ", side " << answering.Side;
}

class MainWindowEnabling : public MainWindowTester, public testing::WithParamInterface<Answering> {};

TEST_P(MainWindowEnabling, FollowsModeAndSide) {
  Start(kOnPorts);
  if (GetParam().Side == 2) {
    Click("optControl(2)");
  }
  Mode(GetParam().Mode);
  for (const char* name :
       {"txtAutoPilot", "cmdAutoPilot(1)", "cmdAutoPilot(2)", "optControl(1)", "optControl(2)",
        "txtDesired(1)", "lblDesired(1)", "lblDelta(1)", "lblAppWindAngle", "txtDesired(2)", "lblDesired(2)",
        "lblDelta(2)", "lblTrueWindAngle", "cmdDesiredApp(1)", "cmdDesiredApp(2)", "cmdDesiredTrue(1)",
        "cmdDesiredTrue(2)"}) {
    EXPECT_EQ(Enabled(name), GetParam().Enabled.count(name) == 1) << name;
  }
  for (const int mode : {1, 3, 5, 7}) {
    const auto& action = Find<QAction>(QStringLiteral("tbrTrack(%1)").arg(mode).toLatin1().constData());
    EXPECT_TRUE(action.isEnabled());
    EXPECT_EQ(action.isChecked(), mode == GetParam().Mode);
  }
  EXPECT_EQ(static_cast<int>(Window->m_eTrackMode), GetParam().Mode);
  EXPECT_TRUE(Find<QAction>("mnuFileDefault").isEnabled());
}

const std::set<std::string> kPilot{"txtAutoPilot", "cmdAutoPilot(1)", "cmdAutoPilot(2)"};
const std::set<std::string> kOptions{"optControl(1)", "optControl(2)"};
const std::set<std::string> kApparent{"txtDesired(1)", "lblDesired(1)", "lblDelta(1)", "lblAppWindAngle"};
const std::set<std::string> kTrue{"txtDesired(2)", "lblDesired(2)", "lblDelta(2)", "lblTrueWindAngle"};

std::set<std::string> All(const std::vector<std::set<std::string>>& sets) {
  std::set<std::string> all;
  for (const auto& set : sets) {
    all.insert(set.begin(), set.end());
  }
  return all;
}

INSTANTIATE_TEST_SUITE_P(
    ModesAndSides, MainWindowEnabling,
    testing::Values(Answering{1, 1, {}}, Answering{1, 2, {}},
                    Answering{3, 1, All({kPilot, kOptions, kApparent})},
                    Answering{3, 2, All({kPilot, kOptions, kTrue})},
                    Answering{5, 1, All({kPilot, kOptions, kApparent})},
                    Answering{5, 2, All({kPilot, kOptions, kTrue})},
                    Answering{7, 1, All({kOptions, kApparent, {"cmdDesiredApp(1)", "cmdDesiredApp(2)"}})},
                    Answering{7, 2, All({kOptions, kTrue, {"cmdDesiredTrue(1)", "cmdDesiredTrue(2)"}})}),
    [](const auto& answering) {
      return "Mode" + std::to_string(answering.param.Mode) + "Side" + std::to_string(answering.param.Side);
    });

TEST_F(MainWindowControls, ASwitchOfTheSideInTrackMovesTheNudges) {
  Start(kOnPorts);
  Mode(7);
  Click("optControl(2)");
  EXPECT_FALSE(Enabled("cmdDesiredApp(1)"));
  EXPECT_TRUE(Enabled("cmdDesiredTrue(1)"));
  Click("optControl(1)");
  EXPECT_TRUE(Enabled("cmdDesiredApp(2)"));
  EXPECT_FALSE(Enabled("cmdDesiredTrue(2)"));
}

TEST_F(MainWindowControls, ModesAnswerToFunctionKeys) {
  Start(kOnPorts);
  const std::vector<std::pair<Qt::Key, TrackMode>> keys{{Qt::Key_F8, TrackMode::Track},
                                                        {Qt::Key_F5, TrackMode::Off},
                                                        {Qt::Key_F7, TrackMode::Manual},
                                                        {Qt::Key_F6, TrackMode::Setup}};
  for (const auto& [key, mode] : keys) {
    QTest::keyClick(Window.get(), key);
    EXPECT_EQ(Window->m_eTrackMode, mode);
  }
}

TEST_F(MainWindowControls, TabReachesEverythingThatAnswers) {
  Start(kOnPorts);
  std::set<QString> reached;
  for (int i = 0; i < 40; ++i) {
    QTest::keyClick(Window->focusWidget() != nullptr ? Window->focusWidget() : Window.get(), Qt::Key_Tab);
    if (Window->focusWidget() != nullptr) {
      reached.insert(Window->focusWidget()->objectName());
    }
  }
  for (const char* name :
       {"optControl(1)", "txtDesired(1)", "txtAutoPilot", "cmdAutoPilot(1)", "cmdAutoPilot(2)"}) {
    EXPECT_EQ(reached.count(QString::fromLatin1(name)), 1U) << name;
  }
}

TEST_F(MainWindowControls, ArrowKeysSwitchTheSide) {
  Start(kOnPorts);
  Find<QRadioButton>("optControl(1)").setFocus();
  QTest::keyClick(&Find<QRadioButton>("optControl(1)"), Qt::Key_Right);
  EXPECT_TRUE(Find<QRadioButton>("optControl(2)").isChecked());
  EXPECT_TRUE(Enabled("txtDesired(2)"));
  EXPECT_FALSE(Enabled("txtDesired(1)"));
}

}  // namespace
}  // namespace veerwatch
