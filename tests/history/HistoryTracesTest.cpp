#include "history/HistoryTraces.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "history/TraceGroups.h"

namespace veerwatch {
namespace {

/// Writes down what it is told.
class RecordingChart final : public StripChartOperations {
 public:
  std::vector<std::string> Calls;

  void TraceCountSet(std::int16_t count) override { Note("TraceCountSet", count); }
  void TraceDefine(std::int16_t number, const std::string& name, std::int16_t group,
                   const std::string& units) override {
    Calls.push_back("TraceDefine " + std::to_string(number) + " " + name + "," + std::to_string(group) + "," +
                    units);
  }
  void SampleBufferSet(std::int16_t seconds, double count) override {
    Calls.push_back("SampleBufferSet " + std::to_string(seconds) + " " + std::to_string(count));
  }
  void RedrawIntervalSet(std::int16_t seconds) override { Note("RedrawIntervalSet", seconds); }
  void FollowNow(bool follow) override { Note("FollowNow", follow ? 1 : 0); }
  void RedrawEnable(bool enable) override { Note("RedrawEnable", enable ? 1 : 0); }
  void SpanSet(std::int16_t seconds) override { Note("SpanSet", seconds); }
  void BackColourSet(std::uint32_t colour) override { Note("BackColourSet", static_cast<int>(colour)); }
  void GroupCountSet(std::int16_t count) override { Note("GroupCountSet", count); }
  void GroupTitleSet(std::int16_t number, const std::string& title) override {
    Calls.push_back("GroupTitleSet " + std::to_string(number) + " " + title);
  }
  void GroupColourSet(std::int16_t number, std::uint32_t colour) override {
    Calls.push_back("GroupColourSet " + std::to_string(number) + " " + std::to_string(colour));
  }
  void SampleAdd(std::string_view, std::string_view) override { Calls.emplace_back("SampleAdd"); }
  void MarkAdd(std::string_view) override { Calls.emplace_back("MarkAdd"); }
  void ConfigPopupShow(std::int16_t, std::int16_t, std::int16_t, std::int16_t, std::int16_t) override {
    Calls.emplace_back("ConfigPopupShow");
  }
  void TraceSettingsLoad(const std::string&, const Profile&) override {
    Calls.emplace_back("TraceSettingsLoad");
  }
  void TraceSettingsSave(const std::string&, Profile&) const override {}

 private:
  void Note(const char* name, int value) { Calls.push_back(std::string(name) + " " + std::to_string(value)); }
};

TEST(HistoryTraces, SetsTheChartUpInOrder) {
  RecordingChart chart;
  HistorySetUp(chart, 1234);
  const std::vector<std::string> expected{
      "TraceCountSet 9",
      "TraceDefine 1 Boat Speed,0,Kts",
      "TraceDefine 2 Heading,1,M",
      "TraceDefine 3 True Wind Speed,0,Kts",
      "TraceDefine 4 True Wind Angle,1,R",
      "TraceDefine 5 App Wind Speed,0,Kts",
      "TraceDefine 6 App Wind Angle,1,R",
      "TraceDefine 7 Pilot Heading,1,Deg",
      "TraceDefine 8 Pilot Delta,1,Deg",
      "TraceDefine 9 Polar Speed,0,Kts",
      "SampleBufferSet 10 8640.000000",
      "RedrawIntervalSet 10",
      "FollowNow 1",
      "RedrawEnable 0",
      "RedrawIntervalSet 10",
      "FollowNow 1",
      "SpanSet 1800",
      "BackColourSet 1234",
      "GroupCountSet 3",
      "GroupTitleSet 1 True Wind Speed",
      "GroupColourSet 1 1234",
      "GroupTitleSet 2 True Wind Angle",
      "GroupColourSet 2 1234",
      "GroupTitleSet 3 Boat Speed",
      "GroupColourSet 3 1234",
      "RedrawEnable 1",
  };
  EXPECT_EQ(chart.Calls, expected);
}

TEST(HistoryTraces, AValueHasExactlyOneDecimalABlankAndTheUnits) {
  EXPECT_EQ(HistoryText(5.25F, "Kts"), "5.3 Kts");
  EXPECT_EQ(HistoryText(7.0F, "Kts"), "7.0 Kts");
  EXPECT_EQ(HistoryText(359.96F, "M"), "360.0 M");
  EXPECT_EQ(HistoryText(-44.04F, "R"), "-44.0 R");
  EXPECT_EQ(HistoryText(-0.04F, "R"), "0.0 R");
  EXPECT_EQ(HistoryText(123456.0F, "Kts"), "123456.0 Kts");
}

TEST(HistoryTraces, AValueThatIsNotFiniteHasNoNumber) {
  EXPECT_EQ(HistoryText(std::nanf(""), "M"), " M");
  EXPECT_EQ(HistoryText(HUGE_VALF, "M"), " M");
}

TEST(HistoryTraces, ThePopupStandsAtHalfTheSumOfLengthAndBegin) {
  EXPECT_EQ(HistoryPopupPlace(4000.0, 0.0), 2000);
  EXPECT_EQ(HistoryPopupPlace(3970.0, 30.0), 2000);
  EXPECT_EQ(HistoryPopupPlace(3975.0, 30.0), 2002);
  EXPECT_EQ(HistoryPopupPlace(1e9, 0.0), 32767);
}

TEST(HistoryTraces, EachTraceIsDrawnWithItsLike) {
  StripChartData data;
  data.TraceCountSet(9);
  for (std::size_t i = 0; i < 9; ++i) {
    const HistoryTrace& trace = kHistoryTraces[i];
    data.TraceDefine(static_cast<int>(i) + 1, trace.Name,
                     trace.Group == 0 ? TraceKind::Speed : TraceKind::Angle, trace.Units);
  }
  const std::vector<TraceGroup> groups =
      GroupTraces(data.Traces(), {"True Wind Speed", "True Wind Angle", "Boat Speed"});
  const std::vector<int> wanted{2, 1, 0, 1, 0, 1, 1, 1, 2};
  const std::vector<int> scales{2, 3, 0, 1, 0, 1, 3, 1, 2};
  for (std::size_t i = 0; i < 9; ++i) {
    EXPECT_EQ(groups[i].Group, wanted[i]) << kHistoryTraces[i].Name;
    EXPECT_EQ(groups[i].Scale, scales[i]) << kHistoryTraces[i].Name;
  }
  EXPECT_EQ(groups[1].Kind, ScaleKind::Compass);
  EXPECT_EQ(groups[3].Kind, ScaleKind::Relative);
  EXPECT_EQ(groups[0].Kind, ScaleKind::Linear);
}

TEST(HistoryTraces, ShortNamesAreDistinct) {
  std::vector<std::string> names;
  for (const HistoryTrace& trace : kHistoryTraces) {
    names.push_back(ShortName(trace.Name));
  }
  EXPECT_EQ(names, (std::vector<std::string>{"BS", "Hdg", "TWS", "TWA", "AWS", "AWA", "PH", "PD", "PS"}));
}

}  // namespace
}  // namespace veerwatch
