#include "pilot/Apb.h"

#include <gtest/gtest.h>

#include <string>

#include "nmea/Sentence.h"
#include "pilot/PilotForm.h"

namespace veerwatch {
namespace {

/// As it leaves by the default profile.
std::string Built(float bearing) {
  PilotSentences sentences;
  EXPECT_EQ(sentences.Build(PilotFormOf(Settings()), bearing), PilotRefusal());
  EXPECT_EQ(sentences.Bundle().Count(), 1U);
  return std::string(sentences.Bundle().Sentence(0));
}

TEST(Apb, IsBuiltAsTheAutopilotReadsIt) {
  // Three equal bearings leave the checksum of one: the fixed characters give 2B, "245.0" gives 2D
  // (32 ^ 34 ^ 35 ^ 2E ^ 30), and together that is 06.
  EXPECT_EQ(Built(245.0F), "$ECAPB,A,A,0.00,R,N,V,V,245.0,M,1,245.0,M,245.0,M*06");
}

TEST(Apb, KeepsLeadingZeros) {
  EXPECT_EQ(Built(7.5F), "$ECAPB,A,A,0.00,R,N,V,V,007.5,M,1,007.5,M,007.5,M*07");
  EXPECT_EQ(Built(0.0F), "$ECAPB,A,A,0.00,R,N,V,V,000.0,M,1,000.0,M,000.0,M*05");
  EXPECT_EQ(Built(99.9F), "$ECAPB,A,A,0.00,R,N,V,V,099.9,M,1,099.9,M,099.9,M*0C");
}

TEST(Apb, RoundsTheBearingToOneDecimal) {
  EXPECT_EQ(Built(123.45F).substr(24, 5), "123.5");
  EXPECT_EQ(Built(123.44F).substr(24, 5), "123.4");
  EXPECT_EQ(Built(9.95F).substr(24, 5), "010.0");
  EXPECT_EQ(Built(359.94F).substr(24, 5), "359.9");
}

TEST(Apb, WritesABearingJustUnderAWholeTurnAs360) {
  // "360.0" has the characters of "000.0" but for 33 ^ 36, three times over: 05 ^ 33 ^ 36.
  EXPECT_EQ(Built(359.95F), "$ECAPB,A,A,0.00,R,N,V,V,360.0,M,1,360.0,M,360.0,M*00");
  EXPECT_EQ(Built(359.96F), Built(359.95F));
}

TEST(Apb, IsWholeForEveryTenthOfADegree) {
  for (int tenths = 0; tenths < 3600; ++tenths) {
    const std::string sentence = Built(static_cast<float>(tenths / 10.0));
    std::string bearing = std::to_string(tenths / 10);
    bearing = std::string(3 - bearing.size(), '0') + bearing + "." + std::to_string(tenths % 10);
    std::string body = "$ECAPB,A,A,0.00,R,N,V,V,";
    body.append(bearing).append(",M,1,").append(bearing).append(",M,").append(bearing).append(",M");
    ASSERT_EQ(sentence.substr(0, sentence.size() - 3), body);
    ASSERT_EQ(CheckFrame(sentence), Frame::Good) << sentence;
  }
}

}  // namespace
}  // namespace veerwatch
