#include "history/TraceSettings.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace veerwatch {
namespace {

class TraceSettingsTest : public testing::Test {
 public:
  TraceSettingsTest() : Traces(2) {
    Traces[0].Name = "Boat Speed";
    Traces[1].Name = "Heading";
    Settings.Traces.assign(2, TraceChoice());
    Settings.Scales.assign(2, ScaleChoice());
  }

  void Read() { TraceSettingsRead(Store, "History Trace", Traces, Settings); }
  void Set(const char* key, const char* value) { Store.ProfileSet("History Trace", key, value); }

  Profile Store;
  std::vector<StripChartData::Trace> Traces;
  TraceSettings Settings;
};

TEST_F(TraceSettingsTest, AnEmptyProfileLeavesTheDefaults) {
  Read();
  EXPECT_TRUE(Settings.Traces[0].Shown);
  EXPECT_FALSE(Settings.Traces[0].Colour);
  EXPECT_EQ(Settings.Span, 1800);
  EXPECT_TRUE(Settings.Scales[0].Automatic);
}

TEST_F(TraceSettingsTest, GoesRound) {
  Settings.Traces[1] = {false, 0x12ABFFU};
  Settings.Span = 21600;
  Settings.Scales[1] = {false, -12.5F, 33.0F};
  const TraceSettings chosen = Settings;
  TraceSettingsWrite(Store, "History Trace", Traces, Settings);
  Settings = TraceSettings();
  Settings.Traces.assign(2, TraceChoice());
  Settings.Scales.assign(2, ScaleChoice());
  Read();
  EXPECT_TRUE(Settings.Traces[0].Shown);
  EXPECT_FALSE(Settings.Traces[0].Colour);
  EXPECT_FALSE(Settings.Traces[1].Shown);
  EXPECT_EQ(Settings.Traces[1].Colour, 0x12ABFFU);
  EXPECT_EQ(Settings.Span, 21600);
  EXPECT_EQ(Settings.Scales, chosen.Scales);
}

TEST_F(TraceSettingsTest, WritesWhatAUserCanRead) {
  Settings.Traces[1] = {false, 0x00ABFFU};
  TraceSettingsWrite(Store, "History Trace", Traces, Settings);
  EXPECT_EQ(Store.Content(),
            "[History Trace]\n"
            "Boat Speed Shown=True\nBoat Speed Colour=Default\n"
            "Heading Shown=False\nHeading Colour=#00ABFF\n"
            "Span=1800\n"
            "Marks=False\n"
            "Scale 1 Automatic=True\nScale 1 Low=0\nScale 1 High=20\n"
            "Scale 2 Automatic=True\nScale 2 Low=0\nScale 2 High=20\n");
}

TEST_F(TraceSettingsTest, WhatIsDamagedKeepsItsDefaultAndTheRestIsRead) {
  Set("Boat Speed Shown", "perhaps");
  Set("Boat Speed Colour", "#12345");
  Set("Heading Shown", "False");
  Set("Heading Colour", "#12345G");
  Set("Span", "1801");
  Set("Scale 1 Automatic", "False");
  Set("Scale 1 Low", "30");
  Set("Scale 2 Low", "-5");
  Set("Scale 2 High", "1e9");
  Read();
  EXPECT_TRUE(Settings.Traces[0].Shown);
  EXPECT_FALSE(Settings.Traces[0].Colour);
  EXPECT_FALSE(Settings.Traces[1].Shown);
  EXPECT_FALSE(Settings.Traces[1].Colour);
  EXPECT_EQ(Settings.Span, 1800);
  EXPECT_EQ(Settings.Scales[0], (ScaleChoice{false, 0.0F, 20.0F}));
  EXPECT_EQ(Settings.Scales[1], (ScaleChoice{true, 0.0F, 20.0F}));
}

TEST_F(TraceSettingsTest, NoSpanOrColourThatIsNoneIsTaken) {
  for (const char* span : {"", "0", "-1800", "nan", "1e30", "half an hour"}) {
    Set("Span", span);
    Read();
    EXPECT_EQ(Settings.Span, 1800) << span;
  }
  for (const char* colour : {"", "#", "red", "123456", "#1234567", "#-12345", "#+12345", "# 12345"}) {
    Set("Heading Colour", colour);
    Read();
    EXPECT_FALSE(Settings.Traces[1].Colour) << colour;
  }
}

TEST(DefaultScales, AreThoseOfTheKindOfTheirTraces) {
  const std::vector<ScaleChoice> scales =
      DefaultScales({{0, 0, ScaleKind::Linear}, {1, 2, ScaleKind::Relative}, {1, 3, ScaleKind::Compass}}, 4);
  EXPECT_EQ(scales,
            (std::vector<ScaleChoice>{
                {true, 0.0F, 20.0F}, {true, 0.0F, 20.0F}, {true, -180.0F, 180.0F}, {true, 0.0F, 360.0F}}));
}

TEST(ScaleFits, WantsTwoEdgesInOrderAndInBounds) {
  EXPECT_TRUE(ScaleFits(0.0F, 20.0F));
  EXPECT_TRUE(ScaleFits(-9999.0F, 9999.0F));
  EXPECT_FALSE(ScaleFits(20.0F, 20.0F));
  EXPECT_FALSE(ScaleFits(21.0F, 20.0F));
  EXPECT_FALSE(ScaleFits(0.0F, 10000.0F));
  EXPECT_FALSE(ScaleFits(0.0F, __builtin_nanf("")));
}

}  // namespace
}  // namespace veerwatch
