#include "diagram/AboutText.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace veerwatch {
namespace {

TEST(AboutText, HasTheTitleInItsCaption) { EXPECT_EQ(AboutCaption("Veerwatch"), "About Veerwatch"); }

TEST(AboutText, DescribesTheProgramWithNineBlanksAnd1984) {
  EXPECT_EQ(AboutDescription("3.14"),
            "Version 3.14\rControl Loop for Tracking Apparent or True Wind Angle.\r"
            "         a) Input - NMEA 1984 Wind & Speed Instruments\r"
            "         b) Output - NMEA 1984 AutoPilot");
}

TEST(AboutText, NamesMajorAndMinorOfTheVersionOnly) {
  for (const char* version : {"3.14", "3.14.15", "3.14.15.9"}) {
    EXPECT_EQ(AboutDescription(version).substr(0, 13), "Version 3.14\r") << version;
  }
  EXPECT_EQ(AboutDescription("3").substr(0, 10), "Version 3\r");
}

TEST(AboutText, HasANoticeOfFourLines) {
  const std::string notice = AboutDisclaimer();
  EXPECT_EQ(std::count(notice.begin(), notice.end(), '\r'), 3);
  EXPECT_NE(notice.find("2026"), std::string::npos);
  EXPECT_LT(notice.find("2026"), notice.find('\r')) << "the years stand in the first line";
  EXPECT_NE(notice.find("\rThe Veerwatch authors\r"), std::string::npos);
  EXPECT_GT(notice.find("the project's issue tracker"), notice.rfind('\r'));
}

}  // namespace
}  // namespace veerwatch
