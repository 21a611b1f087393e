// The Watch page of the options dialog.

#include <QComboBox>

#include "options/WatchPageQt.h"
#include "tests/ui/OptionsTester.h"

namespace veerwatch {
namespace {

class OptionsWatch : public OptionsTester {};

TEST_F(OptionsWatch, StoresWhatIsChosenAtApplyOnly) {
  Start(frmOptions::Watch);
  for (const char* name : {"chkWatchAct", "chkWatchKeepSending", "chkWatchHeadingUp", "chkWatchBlankLost",
                           "chkCarefulEntry", "chkWatchLogFitted", "chkWatchCompassFitted"}) {
    Click(name);
  }
  EXPECT_TRUE(Bold());
  Find<QComboBox>("cmbWatchSound").setCurrentIndex(1);
  Type("txtWatchCommand", " /usr/bin/buzz -l ");
  Type("txtWatchStaleHeading", "6");
  EXPECT_FALSE(Main.m_bWatchAct || Main.m_bCarefulEntry);
  Click("cmdApply");
  EXPECT_TRUE(Main.m_bWatchAct && Main.m_bWatchKeepSending && Main.m_bWatchHeadingUp);
  EXPECT_TRUE(Main.m_bWatchBlankLost && Main.m_bCarefulEntry);
  EXPECT_FALSE(Main.m_bWatchLogFitted || Main.m_bWatchCompassFitted);
  EXPECT_EQ(Main.m_eWatchSound, AlarmSound::Tone);
  EXPECT_EQ(Main.m_sWatchCommand, "/usr/bin/buzz -l");
  EXPECT_EQ(Main.m_fWatchStaleHeading, 6.0F);
  EXPECT_EQ(Main.m_fWatchStaleWaypoint, 4.0F);
  EXPECT_FALSE(Bold());
}

TEST_F(OptionsWatch, EveryChangeLeavesSomethingToApply) {
  Start(frmOptions::Watch);
  for (const char* box : {"txtWatchCommand", "txtWatchStaleWindApparent", "txtWatchStaleWindTrue",
                          "txtWatchStaleBoatSpeed", "txtWatchStaleHeading", "txtWatchStaleWaypoint"}) {
    Type(box, "7");
    EXPECT_TRUE(Bold()) << box;
    Click("cmdApply");
    EXPECT_FALSE(Bold()) << box;
  }
}

TEST_F(OptionsWatch, RefusesAStaleTimeThatIsNotAboveZero) {
  Start(frmOptions::Watch);
  Type("txtWatchStaleWindTrue", "0");
  Click("cmdApply");
  ASSERT_EQ(Dialogs.Messages.size(), 1U);
  EXPECT_EQ(Dialogs.Messages[0].Text, "Watch Options Problem Invalid property value: True Wind");
  EXPECT_EQ(Main.m_fWatchStaleWindTrue, 4.0F);
}

TEST_F(OptionsWatch, TestToneTriesWhatIsChosenNotWhatIsStored) {
  Start(frmOptions::Watch);
  Click("cmdWatchTest");
  Find<QComboBox>("cmbWatchSound").setCurrentIndex(1);
  Click("cmdWatchTest");
  EXPECT_EQ(Main.Heard, (std::vector<AlarmSound>{AlarmSound::Beep, AlarmSound::Tone}));
  EXPECT_EQ(Main.m_eWatchSound, AlarmSound::Beep);
}

}  // namespace
}  // namespace veerwatch
