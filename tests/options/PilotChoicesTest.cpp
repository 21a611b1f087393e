#include "options/PilotChoices.h"

#include <gtest/gtest.h>

#include "tests/support/Sentences.h"

namespace veerwatch {
namespace {

class PilotPreviewing : public testing::Test {
 protected:
  PilotPreview Preview() const { return PilotPreviewOf(Form, Set, Record, Now); }
  void VariationIs(float variation) { Record.VariationUpdate(variation, Origin()); }

  Settings Set;
  InstrumentRecord Record{Set};
  HelmNow Now;
  OptionsForm Form = OptionsFormOf(Set);
};

TEST_F(PilotPreviewing, ShowsTheSentenceThatWouldLeave) {
  Set.m_fAutoPilot = 245.0F;
  const PilotPreview preview = Preview();
  EXPECT_EQ(preview.Sentences, "$ECAPB,A,A,0.00,R,N,V,V,245.0,M,1,245.0,M,245.0,M*06");
  EXPECT_EQ(preview.Note, "");
  EXPECT_FALSE(preview.Warns);
}

TEST_F(PilotPreviewing, GoesByWhatIsChosenAndNotStored) {
  Set.m_fAutoPilot = 245.0F;
  Form.PilotProfile = static_cast<int>(PilotProfile::ApbAndRmb);
  VariationIs(-7.0F);
  EXPECT_EQ(Preview().Sentences, "$ECAPB,A,A,0.00,R,N,V,V,245.0,M,1,245.0,M,245.0,M*06\n" +
                                     WithChecksum("$ECRMB,A,0.00,R,,1,,,,,10.0,238.0,,V"));
  EXPECT_EQ(Set.m_ePilotProfile, PilotProfile::MagneticApb);
}

TEST_F(PilotPreviewing, SaysWhatWouldBeRefused) {
  Form.PilotProfile = static_cast<int>(PilotProfile::TrueApb);
  EXPECT_EQ(Preview().Sentences, "");
  EXPECT_EQ(Preview().Note, "True APB Needs the Variation");
  EXPECT_TRUE(Preview().Warns);
  VariationIs(1.0F);
  Now.Watch.At.Steady = 3600001;
  EXPECT_EQ(Preview().Note, "True APB: Variation Older Than 1 h");
}

TEST_F(PilotPreviewing, SaysHowFullTheLineIs) {
  Set.m_fAutoPilot = 245.0F;  // 54 characters
  Now.PilotBaud = 4800;
  Form.PilotCadence = 4;
  EXPECT_EQ(Preview().Note, "Pilot line 45 % full at 4800 baud");
  EXPECT_FALSE(Preview().Warns);
  Form.PilotCadence = 0;
  Now.WindsASecond = 10.0;
  EXPECT_EQ(Preview().Note, "Pilot line 113 % full at 4800 baud");
  EXPECT_TRUE(Preview().Warns);
}

TEST_F(PilotPreviewing, WaitsForATalkerThatIsWhole) {
  Form.PilotProfile = static_cast<int>(PilotProfile::Own);
  Form.PilotOwnTalker = "G";
  EXPECT_EQ(Preview().Note, "Talker is not whole");
  EXPECT_EQ(Preview().Sentences, "");
  Form.PilotOwnTalker = "GP";
  Form.PilotOwnPoint = "";
  EXPECT_EQ(Preview().Note, "Point is not whole");
}

TEST(PilotChoices, ComeBackAsTheyWereStored) {
  OptionsForm form;
  form.PilotProfile = static_cast<int>(PilotProfile::Own);
  form.PilotCadence = 3;
  form.PilotInvalidWhenLost = true;
  form.PilotOwnTalker = "GP";
  form.PilotOwnPoint = "WP7";
  form.PilotOwnBearing = 1;
  form.PilotOwnFields = 1;
  form.PilotOwnDecimals = 0;
  form.PilotOwnSends = {false, true, false, true, true};
  Settings settings;
  EXPECT_FALSE(PilotChoicesStore(form, settings));
  EXPECT_EQ(settings.m_ePilotProfile, PilotProfile::Own);
  EXPECT_EQ(settings.m_iPilotCadence, 3);
  EXPECT_EQ(settings.m_iPilotOwnFields, 15);
  EXPECT_EQ(settings.m_ePilotOwnBearing, BearingKind::True);
  OptionsForm shown;
  PilotChoicesShow(settings, shown);
  EXPECT_EQ(shown.PilotProfile, form.PilotProfile);
  EXPECT_EQ(shown.PilotCadence, 3);
  EXPECT_TRUE(shown.PilotInvalidWhenLost);
  EXPECT_EQ(shown.PilotOwnTalker, "GP");
  EXPECT_EQ(shown.PilotOwnPoint, "WP7");
  EXPECT_EQ(shown.PilotOwnBearing, 1);
  EXPECT_EQ(shown.PilotOwnFields, 1);
  EXPECT_EQ(shown.PilotOwnDecimals, 0);
  EXPECT_EQ(shown.PilotOwnSends, form.PilotOwnSends);
}

TEST(PilotChoices, AnUnfinishedTextStaysAsItWasAndCountsWithOwnAlone) {
  OptionsForm form;
  form.PilotOwnTalker = "G";
  form.PilotOwnPoint = "A,B";
  Settings settings;
  EXPECT_FALSE(PilotChoicesStore(form, settings));
  EXPECT_EQ(settings.m_sPilotOwnTalker, "EC");
  EXPECT_EQ(settings.m_sPilotOwnPoint, "1");
  form.PilotProfile = static_cast<int>(PilotProfile::Own);
  EXPECT_STREQ(PilotChoicesStore(form, settings).value_or(""), "Talker");
  form.PilotOwnTalker = "GP";
  EXPECT_STREQ(PilotChoicesStore(form, settings).value_or(""), "Point");
}

}  // namespace
}  // namespace veerwatch
