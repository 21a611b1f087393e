#include <QComboBox>
#include <QScrollArea>
#include <string>

#include "tests/support/Sentences.h"
#include "tests/ui/OptionsTester.h"

namespace veerwatch {
namespace {

class OptionsPilot : public OptionsTester {
 protected:
  /// Chooses an item as a user does.
  void Choose(const std::string& combo, int index) const {
    auto& box = Find<QComboBox>(combo);
    box.setFocus();
    while (box.currentIndex() != index) {
      QTest::keyClick(&box, box.currentIndex() < index ? Qt::Key_Down : Qt::Key_Up);
    }
  }
  void ChooseProfile(PilotProfile profile) const { Choose("cmbPilotProfile", static_cast<int>(profile)); }
  bool Enabled(const std::string& name) const { return Find<QWidget>(name).isEnabled(); }
  std::string Sentences() const { return Text("lblPilotSentences"); }
};

constexpr const char* kOwn[] = {
    "txtPilotOwnTalker", "cmbPilotOwnBearing", "cmbPilotOwnFields", "cmbPilotOwnDecimals", "txtPilotOwnPoint",
    "chkPilotOwnAPB",    "chkPilotOwnRMB",     "chkPilotOwnHSC",    "chkPilotOwnXTE",      "chkPilotOwnBWC"};

TEST_F(OptionsPilot, OffersTheProfilesByTheirNames) {
  Start(frmOptions::Output);
  const auto& box = Find<QComboBox>("cmbPilotProfile");
  std::vector<std::string> names;
  for (int i = 0; i < box.count(); ++i) {
    names.push_back(box.itemText(i).toStdString());
  }
  EXPECT_THAT(names, testing::ElementsAre("Magnetic APB", "True APB", "APB and RMB", "Heading command HSC",
                                          "Wind to a vane-mode pilot", "Own"));
  EXPECT_EQ(box.currentIndex(), 0);
  EXPECT_EQ(Find<QGroupBox>("fraPilot").title(), "Autopilot");
}

TEST_F(OptionsPilot, OwnsFieldsAnswerWithOwnAlone) {
  Start(frmOptions::Output);
  for (const char* name : kOwn) {
    EXPECT_FALSE(Enabled(name)) << name;
  }
  ChooseProfile(PilotProfile::Own);
  for (const char* name : kOwn) {
    EXPECT_TRUE(Enabled(name)) << name;
  }
  ChooseProfile(PilotProfile::TrueApb);
  for (const char* name : kOwn) {
    EXPECT_FALSE(Enabled(name)) << name;
  }
}

TEST_F(OptionsPilot, WhatIsChosenIsShownAtOnceMarkedAndStoredAtApply) {
  Main.m_fAutoPilot = 245.0F;
  Main.Instruments.VariationUpdate(-7.0F, Origin());
  Start(frmOptions::Output);
  EXPECT_EQ(Sentences(), "$ECAPB,A,A,0.00,R,N,V,V,245.0,M,1,245.0,M,245.0,M*06");
  EXPECT_FALSE(Bold());
  ChooseProfile(PilotProfile::Hsc);
  EXPECT_EQ(Sentences(), WithChecksum("$ECHSC,238.0,T,245.0,M"));
  EXPECT_TRUE(Bold());
  EXPECT_EQ(Main.m_ePilotProfile, PilotProfile::MagneticApb);
  Choose("cmbPilotCadence", 2);
  Click("chkPilotInvalidWhenLost");
  Type("txtPilotInvalidSeconds", "8");
  Click("cmdApply");
  EXPECT_EQ(Main.m_ePilotProfile, PilotProfile::Hsc);
  EXPECT_EQ(Main.m_iPilotCadence, 2);
  EXPECT_TRUE(Main.m_bPilotInvalidWhenLost);
  EXPECT_EQ(Main.m_fPilotInvalidSeconds, 8.0F);
  EXPECT_FALSE(Bold());
}

TEST_F(OptionsPilot, FollowsTheBearing) {
  Main.m_fAutoPilot = 245.0F;
  Start(frmOptions::Output);
  Main.m_fAutoPilot = 7.5F;
  Main.Tells.Tell([](HelmObserver& told) { told.OnTick(); });
  EXPECT_EQ(Sentences(), "$ECAPB,A,A,0.00,R,N,V,V,007.5,M,1,007.5,M,007.5,M*07");
}

TEST_F(OptionsPilot, OtherCharactersAreRefusedWhileTyping) {
  Start(frmOptions::Output);
  ChooseProfile(PilotProfile::Own);
  Type("txtPilotOwnTalker", "1$,g*pX");
  EXPECT_EQ(Entry("txtPilotOwnTalker"), "GP");
  Type("txtPilotOwnPoint", "w,p*-1$ 2345");
  EXPECT_EQ(Entry("txtPilotOwnPoint"), "WP1234");
  EXPECT_EQ(Sentences(), WithChecksum("$GPAPB,A,A,0.00,R,N,V,V,040.0,M,WP1234,040.0,M,040.0,M"));
  Click("cmdApply");
  EXPECT_EQ(Main.m_sPilotOwnTalker, "GP");
  EXPECT_EQ(Main.m_sPilotOwnPoint, "WP1234");
}

TEST_F(OptionsPilot, ATalkerOfOneLetterIsNotStored) {
  Start(frmOptions::Output);
  ChooseProfile(PilotProfile::Own);
  Type("txtPilotOwnTalker", "g");
  EXPECT_EQ(Text("lblPilotNote"), "Talker is not whole");
  Click("cmdApply");
  ASSERT_EQ(Dialogs.Messages.size(), 1U);
  EXPECT_NE(Dialogs.Messages[0].Text.find("Output Options Problem Invalid property value: Talker"),
            std::string::npos);
  EXPECT_EQ(Main.m_sPilotOwnTalker, "EC");
}

TEST_F(OptionsPilot, OwnShowsEverySentenceInALineOfItsOwn) {
  Main.Instruments.VariationUpdate(1.0F, Origin());
  Start(frmOptions::Output);
  ChooseProfile(PilotProfile::Own);
  for (const char* name : {"chkPilotOwnRMB", "chkPilotOwnHSC", "chkPilotOwnXTE", "chkPilotOwnBWC"}) {
    Click(name);
  }
  EXPECT_EQ(QString::fromStdString(Sentences()).count(QLatin1Char('\n')), 4);
  Click("cmdApply");
  EXPECT_TRUE(Main.m_bPilotOwnRMB && Main.m_bPilotOwnHSC && Main.m_bPilotOwnXTE && Main.m_bPilotOwnBWC);
}

TEST_F(OptionsPilot, ARefusalAndAFullLineAreSaidInBold) {
  Main.Answer.PilotBaud = 4800;
  Main.Answer.WindsASecond = 8.0;
  Start(frmOptions::Output);
  EXPECT_EQ(Text("lblPilotNote"), "Pilot line 90 % full at 4800 baud");
  EXPECT_TRUE(Find<QLabel>("lblPilotNote").font().bold());
  Choose("cmbPilotCadence", 1);
  EXPECT_EQ(Text("lblPilotNote"), "Pilot line 11 % full at 4800 baud");
  EXPECT_FALSE(Find<QLabel>("lblPilotNote").font().bold());
  ChooseProfile(PilotProfile::TrueApb);
  EXPECT_EQ(Text("lblPilotNote"), "True APB Needs the Variation");
  EXPECT_EQ(Sentences(), "");
  EXPECT_TRUE(Find<QLabel>("lblPilotNote").font().bold());
}

TEST_F(OptionsPilot, CancelChangesNothing) {
  Start(frmOptions::Output);
  ChooseProfile(PilotProfile::Own);
  Click("cmdCancel");
  EXPECT_EQ(Main.m_ePilotProfile, PilotProfile::MagneticApb);
}

TEST_F(OptionsPilot, AtTheSmallestScreenThePageScrollsAndTheListKeepsSomeLines) {
  Start(frmOptions::Output);
  Window->resize(Window->minimumSize().expandedTo({752, 451}));
  QApplication::processEvents();
  const auto& list = Find<LiveListQt>("lstPilotData");
  EXPECT_GE(list.height(), 4 * list.fontMetrics().height());
  const auto& sentences = Find<QLabel>("lblPilotSentences");
  EXPECT_GE(sentences.width(), sentences.sizeHint().width()) << "a sentence is shown whole";
}

}  // namespace
}  // namespace veerwatch
