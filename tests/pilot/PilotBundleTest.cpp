#include "pilot/PilotBundle.h"

#include <gtest/gtest.h>

#include "tests/support/Sentences.h"

namespace veerwatch {
namespace {

TEST(PilotBundle, HoldsWholeSentencesInTheirOrder) {
  PilotBundle bundle;
  bundle.Begin("EC", "XTE").Fields("A", "A", "0.00").Field("R").End();
  bundle.Begin("GP", "HSC").Fields("040.0", "T", "", "M").End();
  ASSERT_EQ(bundle.Count(), 2U);
  const std::string first = WithChecksum("$ECXTE,A,A,0.00,R");
  const std::string second = WithChecksum("$GPHSC,040.0,T,,M");
  EXPECT_EQ(bundle.Sentence(0), first);
  EXPECT_EQ(bundle.Sentence(1), second);
  EXPECT_EQ(bundle.Text(), first + "\r\n" + second + "\r\n");
}

TEST(PilotBundle, BeginsAnewWhenItIsCleared) {
  PilotBundle bundle;
  EXPECT_EQ(bundle.Text(), "");
  bundle.Begin("EC", "XTE").Field("A").End();
  bundle.Clear();
  EXPECT_EQ(bundle.Count(), 0U);
  EXPECT_EQ(bundle.Text(), "");
  bundle.Begin("EC", "HSC").Field("1").End();
  EXPECT_EQ(bundle.Text(), WithChecksum("$ECHSC,1") + "\r\n");
}

TEST(PilotBundle, HasRoomForItsMostSentencesAtTheirLongest) {
  PilotBundle bundle;
  const std::string field(70, 'x');  // 82 characters: $ECAPB,<70>*hh and the line end, and one to spare
  for (std::size_t i = 0; i < PilotBundle::kMost; ++i) {
    bundle.Begin("EC", "APB").Field(field).End();
  }
  EXPECT_EQ(bundle.Count(), PilotBundle::kMost);
  EXPECT_EQ(bundle.Sentence(PilotBundle::kMost - 1), WithChecksum("$ECAPB," + field));
}

TEST(PilotChecksum, SkipsTheDollar) {
  EXPECT_EQ(PilotChecksum("$A"), "41");
  EXPECT_EQ(PilotChecksum("$AB"), "03");
}

TEST(PilotChecksum, IsAlwaysTwoDigits) {
  EXPECT_EQ(PilotChecksum("$AK"), "0A");  // 41 ^ 4B
  EXPECT_EQ(PilotChecksum("$AA"), "00");
  EXPECT_EQ(PilotChecksum("$"), "00");
}

TEST(PilotChecksum, IsInUpperCaseAndTakesBytesAsTheyAre) {
  EXPECT_EQ(PilotChecksum("$\xAB"), "AB");
  EXPECT_EQ(PilotChecksum("$\xFF"), "FF");
}

}  // namespace
}  // namespace veerwatch
