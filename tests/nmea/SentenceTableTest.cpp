#include "nmea/SentenceTable.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "tests/support/Origins.h"

namespace veerwatch {
namespace {

std::string_view NameOf(std::string_view line) {
  const SentenceKind* kind = FindSentence(line);
  return kind == nullptr ? std::string_view("none") : kind->Name;
}

TEST(FindSentence, GoesByCharactersFourToSix) {
  const std::vector<std::pair<std::string_view, std::string_view>> cases{
      {"$IIHDG,1", "HDG"},  {"$IIHVM,1", "HVM"}, {"$IIMWV,1", "MWV"},  {"$IIRMB,1", "RMB"},
      {"$IIRMC,1", "RMC"},  {"$IIVHW,1", "VHW"}, {"$IIVTG,1", "VTG"},  {"$IIHDG", "HDG"},
      {"$IIHDT,1", "HDT"},  {"$IIVWR,1", "VWR"}, {"$IIVWT,1", "VWT"},  {"$IIMWD,1", "MWD"},
      {"$IIHDM,1", "HDM"},  {"$IITHS,1", "THS"}, {"$IIXDR,1", "none"}, {"$PGRME,1", "none"},
      {"$IIhdg,1", "none"}, {"$IIMW", "none"},   {"$", "none"},        {"", "none"},
      {"$IHDG,1", "none"}};
  for (const auto& [line, name] : cases) {
    EXPECT_EQ(NameOf(line), name) << line;
  }
}

TEST(FindSentence, DoesNotLookAtTheTalker) {
  EXPECT_EQ(NameOf("$GPRMC,"), "RMC");
  EXPECT_EQ(NameOf("$IIRMC,"), "RMC");
  EXPECT_EQ(NameOf("$??RMC,"), "RMC");
}

TEST(SentenceTable, EachTypeHasANameATextAndASwitchOfItsOwn) {
  std::set<std::string_view> names;
  std::set<const bool*> switches;
  const Settings settings;
  for (const SentenceKind& kind : kSentences) {
    EXPECT_TRUE(std::string_view(kind.Text).starts_with(kind.Name)) << kind.Text;
    names.insert(kind.Name);
    switches.insert(&(settings.*kind.Enabled));
    EXPECT_EQ(kind.IsWind,
              kind.Name == "MWV" || kind.Name == "MWD" || kind.Name == "VWR" || kind.Name == "VWT");
  }
  EXPECT_EQ(names.size(), kSentences.size());
  EXPECT_EQ(switches.size(), kSentences.size());
}

struct Carried {
  Quantity What;
  float Value;
  bool operator==(const Carried&) const = default;
};

/// What a line carries, and whether its decoder missed nothing.
std::pair<std::vector<Carried>, bool> Carries(std::string_view line) {
  Readings readings(OriginOf(line, 7, {1, 2}));
  const bool complete = FindSentence(line)->Decode(Fields(line), readings);
  std::vector<Carried> carried;
  for (const Reading& reading : readings) {
    EXPECT_EQ(reading.From->Port, 7);
    EXPECT_EQ(reading.From->At.Steady, 1);
    carried.push_back({reading.What, reading.Value});
  }
  return {carried, complete};
}

using List = std::vector<Carried>;

TEST(SentenceTable, EachDecoderMakesTheReadingsOfItsSentence) {
  EXPECT_EQ(Carries("$IIHDG,123.5,,,5.0,W*00"),
            std::pair(List({{Quantity::Heading, 123.5F}, {Quantity::Variation, -5.0F}}), true));
  EXPECT_EQ(Carries("$IIHVM,7.5,E*00"), std::pair(List({{Quantity::Variation, 7.5F}}), true));
  EXPECT_EQ(
      Carries("$IIMWV,045,R,10.5,N,A*00"),
      std::pair(List({{Quantity::ApparentWindAngle, 45.0F}, {Quantity::ApparentWindSpeed, 10.5F}}), true));
  EXPECT_EQ(Carries("$IIMWV,060,T,9.5,N,A*00"),
            std::pair(List({{Quantity::TrueWindAngle, 60.0F}, {Quantity::TrueWindSpeed, 9.5F}}), true));
  EXPECT_EQ(Carries("$GPRMB,A,0.66,L,003,004,4917.24,N,12309.57,W,001.3,052.5,000.5,V*00"),
            std::pair(List({{Quantity::WaypointRange, 1.3F}, {Quantity::WaypointBearing, 52.5F}}), true));
  EXPECT_EQ(Carries("$GPRMC,123519,A,4807.0,N,01131.0,E,5.2,230.0,230394,3.0,W*00"),
            std::pair(List({{Quantity::Variation, -3.0F},
                            {Quantity::CourseTrue, 230.0F},
                            {Quantity::SpeedOverGround, 5.2F}}),
                      true));
  EXPECT_EQ(Carries("$IIVHW,128.4,T,123.5,M,6.5,N,12.0,K*00"),
            std::pair(List({{Quantity::Heading, 123.5F}, {Quantity::SpeedThroughWater, 6.5F}}), true));
  EXPECT_EQ(Carries("$GPVTG,054.7,T,034.5,M,005.5,N,010.2,K*00"),
            std::pair(List({{Quantity::CourseMagnetic, 34.5F}, {Quantity::SpeedOverGround, 5.5F}}), true));
}

TEST(SentenceTable, WhatIsNotThereOrInAnotherUnitMakesNoReading) {
  EXPECT_EQ(Carries("$IIMWV,045,R,10.5,X,A*00"), std::pair(List(), true));
  EXPECT_EQ(Carries("$IIMWV,045,,10.5,N,A*00"), std::pair(List(), false));
  EXPECT_EQ(Carries("$IIHDG,,,,,*00"), std::pair(List(), false));
  EXPECT_EQ(Carries("$IIHDG,123.5,,,5.0,*00"), std::pair(List({{Quantity::Heading, 123.5F}}), false));
  EXPECT_EQ(Carries("$IIVHW,,,123.5,T,6.5,N,,*00"),
            std::pair(List({{Quantity::SpeedThroughWater, 6.5F}}), false));
}

}  // namespace
}  // namespace veerwatch
