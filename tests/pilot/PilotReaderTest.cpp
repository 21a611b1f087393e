#include "pilot/PilotReader.h"

#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>
#include <optional>
#include <string>

#include "pilot/PilotForm.h"
#include "pilot/PilotSentences.h"
#include "settings/Settings.h"
#include "tests/support/Sentences.h"

namespace veerwatch {
namespace {

constexpr double kVariation = -7.0;

/// What the program sends for a bearing of 245.0, with an apparent wind of 38.2 degrees from port.
std::string Sent(const Settings& settings, bool good = true) {
  PilotValues values(245.0F);
  values.Good = good;
  values.Variation = static_cast<float>(kVariation);
  values.Wind = {-38.2F, 12.4F};
  PilotSentences sentences;
  sentences.Build(PilotFormOf(settings), values);
  return std::string(sentences.Bundle().Text());
}

std::string Sent(PilotProfile profile, bool good = true) {
  Settings settings;
  settings.m_ePilotProfile = profile;
  return Sent(settings, good);
}

Settings Own(bool Settings::*sentence) {
  Settings settings;
  settings.m_ePilotProfile = PilotProfile::Own;
  settings.m_bPilotOwnAPB = false;
  settings.*sentence = true;
  return settings;
}

constexpr std::initializer_list<PilotProfile> kBearings{PilotProfile::MagneticApb, PilotProfile::TrueApb,
                                                        PilotProfile::ApbAndRmb, PilotProfile::Hsc};

TEST(PilotReader, TakesTheBearingOfEachProfile) {
  for (const PilotProfile profile : kBearings) {
    PilotReader reader;
    const auto order = reader.Take(Sent(profile), kVariation);
    ASSERT_TRUE(order) << static_cast<int>(profile);
    EXPECT_EQ(order->Tells, PilotOrder::What::Bearing);
    EXPECT_NEAR(order->Angle, 245.0, 1e-9) << static_cast<int>(profile);
    EXPECT_EQ(reader.BadSentences(), 0);
  }
  for (const auto sentence :
       {&Settings::m_bPilotOwnRMB, &Settings::m_bPilotOwnHSC, &Settings::m_bPilotOwnBWC}) {
    const auto order = PilotReader().Take(Sent(Own(sentence)), kVariation);
    ASSERT_TRUE(order);
    EXPECT_NEAR(order->Angle, 245.0, 1e-9);
  }
}

TEST(PilotReader, TakesTheWindOfAVaneModeProfile) {
  const auto order = PilotReader().Take(Sent(PilotProfile::Wind), kVariation);
  ASSERT_TRUE(order);
  EXPECT_EQ(order->Tells, PilotOrder::What::Wind);
  EXPECT_NEAR(std::remainder(order->Angle, 360.0), -38.2, 1e-9);
}

TEST(PilotReader, TakesNothingThatSaysThatItDoesNotHold) {
  for (const PilotProfile profile :
       {PilotProfile::MagneticApb, PilotProfile::TrueApb, PilotProfile::ApbAndRmb, PilotProfile::Wind}) {
    const std::string sent = Sent(profile, false);
    ASSERT_FALSE(sent.empty());
    EXPECT_FALSE(PilotReader().Take(sent, kVariation)) << sent;
  }
  Settings bwc = Own(&Settings::m_bPilotOwnBWC);
  bwc.m_iPilotOwnFields = 15;
  ASSERT_FALSE(Sent(bwc, false).empty());
  EXPECT_FALSE(PilotReader().Take(Sent(bwc, false), kVariation));
}

TEST(PilotReader, ACrossTrackErrorAloneTellsNoBearing) {
  const std::string sent = Sent(Own(&Settings::m_bPilotOwnXTE));
  ASSERT_FALSE(sent.empty());
  EXPECT_FALSE(PilotReader().Take(sent, kVariation));
}

TEST(PilotReader, ReadsOnlyTheSentencesOfItsKind) {
  EXPECT_FALSE(PilotReader(PilotReads::Hsc).Take(Sent(PilotProfile::MagneticApb), kVariation));
  EXPECT_TRUE(PilotReader(PilotReads::Hsc).Take(Sent(PilotProfile::Hsc), kVariation));
  EXPECT_TRUE(PilotReader(PilotReads::Rmb).Take(Sent(PilotProfile::ApbAndRmb), kVariation));
  EXPECT_FALSE(PilotReader(PilotReads::Bwc).Take(Sent(PilotProfile::ApbAndRmb), kVariation));
  EXPECT_FALSE(PilotReader(PilotReads::Apb).Take(Sent(PilotProfile::Wind), kVariation));
  EXPECT_TRUE(PilotReader(PilotReads::Wind).Take(Sent(PilotProfile::Wind), kVariation));
  PilotReader deaf(PilotReads::Nothing);
  for (const PilotProfile profile : kBearings) {
    EXPECT_FALSE(deaf.Take(Sent(profile), kVariation));
  }
  deaf.Reads(PilotReads::Apb);
  EXPECT_TRUE(deaf.Take(Sent(PilotProfile::MagneticApb), kVariation));
}

TEST(PilotReader, TakesPiecesAndDropsWhatIsNoSentence) {
  PilotReader reader;
  const std::string good = Sent(PilotProfile::MagneticApb);
  EXPECT_FALSE(reader.Take(good.substr(0, 30), kVariation));
  EXPECT_TRUE(reader.Take(good.substr(30), kVariation));
  std::string damaged = good;
  damaged[30] = '9';
  for (const std::string& line :
       {damaged, std::string("noise\r\n"), std::string("\r\n"), std::string("$\r\n"),
        std::string("$ECAPB\r\n"), WithChecksum("$ECAPB,A,A") + "\r\n",
        good.substr(0, good.find('*')) + "\r\n", WithChecksum("$ECHSC,,T,999999,M") + "\r\n",
        WithChecksum("$ECHSC,,T,nan,M") + "\r\n", std::string(100000, 'x') + "\r\n"}) {
    EXPECT_FALSE(reader.Take(line, kVariation)) << line.substr(0, 40);
  }
  EXPECT_EQ(reader.GoodSentences(), 1);
  EXPECT_EQ(reader.BadSentences(), 10);
  EXPECT_TRUE(reader.Take(good, kVariation));
  EXPECT_EQ(reader.BearingChanges(), 1);
}

}  // namespace
}  // namespace veerwatch
