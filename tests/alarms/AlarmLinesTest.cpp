#include "alarms/AlarmLines.h"

#include <gmock/gmock.h>

namespace veerwatch {
namespace {

using testing::ElementsAre;

TEST(AlarmLines, SaySinceWhenAndWhatToDo) {
  AlarmEntry entry;
  // 1970-01-02 01:02:03 UTC.
  entry.Since = Moment{5000, (86400 + 3600 + 120 + 3) * 1000};
  entry.Value = "Apparent Wind from MWV (WI), 7 s old";
  entry.Does = "Tells it";
  entry.Remedy = "Take the helm";
  EXPECT_THAT(AlarmLines(entry, {12900, 0}, 7200),
              ElementsAre("Since 03:02:03, 7 s", "Apparent Wind from MWV (WI), 7 s old",
                          "The program: Tells it", "You: Take the helm"));
  entry.Acknowledged = true;
  EXPECT_EQ(AlarmLines(entry, {5000 + 125000, 0}, -7200).front(), "Since 23:02:03, 2 min 5 s, acknowledged");
  EXPECT_EQ(AlarmLines(entry, {5000 + 7380000, 0}, 0).front(), "Since 01:02:03, 2 h 3 min, acknowledged");
}

TEST(AlarmLines, LeaveOutWhatHasNothingToSay) {
  AlarmEntry notice;
  notice.Does = "Tells it";
  EXPECT_THAT(AlarmLines(notice, {}, 0), ElementsAre("The program: Tells it"));
}

}  // namespace
}  // namespace veerwatch
