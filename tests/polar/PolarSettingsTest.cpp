#include "polar/PolarSettings.h"

#include <gtest/gtest.h>

#include "polar/PolarAverages.h"
#include "tests/support/TemporaryFolder.h"

namespace veerwatch {
namespace {

Profile ProfileOf(const std::string& content) {
  const TemporaryFolder folder;
  WriteFile(folder / "a.ini", content);
  Profile profile;
  EXPECT_EQ(profile.Load(folder / "a.ini"), Profile::LoadResult::Read);
  return profile;
}

TEST(PolarSettings, HaveTheirDefaults) {
  const PolarSettings settings;
  EXPECT_EQ(settings.File[0], "Fast Sled 60ft.pol");
  EXPECT_EQ(settings.File[1], "Fast Sled 60ft.pol");
  EXPECT_EQ(settings.PlotAverage, 2.0F);
  EXPECT_FALSE(settings.PlotLabelWindSpeed);
  EXPECT_EQ(settings.Type, PlotType::TrueWind);
  EXPECT_EQ(settings.SpeedColor, 0U);
  EXPECT_EQ(settings.SpeedFactor, 1.0F);
  EXPECT_EQ(settings.SpeedRange, 10.0F);
  EXPECT_TRUE(settings.CourseScale);
  EXPECT_EQ(settings.CourseTargetBearing, 0.0F);
  EXPECT_FALSE(settings.CourseWaypoint);
  EXPECT_EQ(settings.CourseWaypointIndex, CourseSource::None);
  EXPECT_EQ(settings.BoatMotorSpeed, 3.0F);
  EXPECT_EQ(settings.Boat, BoatType::SailOnly);
  EXPECT_FALSE(settings.SmoothWinds);
}

TEST(PolarSettings, AreWrittenUnderTheirKeys) {
  Profile profile;
  PolarStore(profile, {}, {});
  EXPECT_EQ(profile.Content(),
            "[Polar Data]\nFile 1=Fast Sled 60ft.pol\nFile 2=Fast Sled 60ft.pol\nPlot Average=2\n"
            "Plot Label WindSpeed=False\nPlot Type=0\nSpeed Color=0\nSpeed Factor=1\nSpeed Range=10\n"
            "Course Scale=True\nCourse Target Bearing=0\nCourse Waypoint=False\nCourse Waypoint Index=3\n"
            "Boat Motor Speed=3\nBoat Type=0\nSmooth Between Winds=False\nTack By Itself=False\n");
}

TEST(PolarSettings, ComeBackAsTheyWere) {
  PolarSettings settings;
  settings.File = {"/boats/mine.pol", "other.pol"};
  settings.PlotAverage = 16.0F;
  settings.PlotLabelWindSpeed = true;
  settings.Type = PlotType::ApparentWind;
  settings.SpeedColor = 0xFFFFFFU;
  settings.SpeedFactor = 0.9F;
  settings.SpeedRange = 12.5F;
  settings.CourseScale = false;
  settings.CourseTargetBearing = 271.5F;
  settings.CourseWaypoint = true;
  settings.CourseWaypointIndex = CourseSource::WaypointRange;
  settings.BoatMotorSpeed = 4.5F;
  settings.Boat = BoatType::MotorAndSail;
  settings.SmoothWinds = true;
  Profile profile;
  PolarStore(profile, settings, {});
  PolarSettings again;
  PolarRecall(profile, again);
  EXPECT_EQ(again.File, settings.File);
  EXPECT_EQ(again.PlotAverage, 16.0F);
  EXPECT_TRUE(again.PlotLabelWindSpeed);
  EXPECT_EQ(again.Type, PlotType::ApparentWind);
  EXPECT_EQ(again.SpeedColor, 0xFFFFFFU);
  EXPECT_EQ(again.SpeedFactor, 0.9F);
  EXPECT_EQ(again.SpeedRange, 12.5F);
  EXPECT_FALSE(again.CourseScale);
  EXPECT_EQ(again.CourseTargetBearing, 271.5F);
  EXPECT_TRUE(again.CourseWaypoint);
  EXPECT_EQ(again.CourseWaypointIndex, CourseSource::WaypointRange);
  EXPECT_EQ(again.BoatMotorSpeed, 4.5F);
  EXPECT_EQ(again.Boat, BoatType::MotorAndSail);
  EXPECT_TRUE(again.SmoothWinds);
}

TEST(PolarSettings, KeepTheirDefaultsWhereTheProfileHoldsNonsense) {
  PolarSettings settings;
  PolarRecall(ProfileOf("[Polar Data]\nPlot Average=-1\nPlot Type=2\nSpeed Color=16777216\nSpeed Factor=0\n"
                        "Speed Range=-4\nCourse Target Bearing=-90\nCourse Waypoint Index=4\nBoat Type=x\n"
                        "Boat Motor Speed=nan\nFile 1=\n"),
              settings);
  EXPECT_EQ(settings.PlotAverage, 2.0F);
  EXPECT_EQ(settings.Type, PlotType::TrueWind);
  EXPECT_EQ(settings.SpeedColor, 0U);
  EXPECT_EQ(settings.SpeedFactor, 1.0F);
  EXPECT_EQ(settings.SpeedRange, 10.0F);
  EXPECT_EQ(settings.CourseTargetBearing, 270.0F) << "a bearing is folded";
  EXPECT_EQ(settings.CourseWaypointIndex, CourseSource::None);
  EXPECT_EQ(settings.Boat, BoatType::SailOnly);
  EXPECT_EQ(settings.BoatMotorSpeed, 3.0F);
  EXPECT_EQ(settings.File[0], "Fast Sled 60ft.pol");
}

TEST(PolarSettings, KeepTheDefaultOfAnAverageThatRunsAway) {
  for (const char* text : {"0.5", "0.4", "0.001"}) {
    PolarSettings settings;
    PolarRecall(ProfileOf(std::string("[Polar Data]\nPlot Average=") + text + "\n"), settings);
    EXPECT_EQ(settings.PlotAverage, 2.0F) << text;
  }
  PolarSettings settings;
  PolarRecall(ProfileOf("[Polar Data]\nPlot Average=0.6\n"), settings);
  EXPECT_EQ(settings.PlotAverage, 0.6F);
}

TEST(PolarSettings, NameFilesInTheProgramsFolderWithoutIt) {
  EXPECT_EQ(WithoutFolder("/opt/boat/a.pol", "/opt/boat"), "a.pol");
  EXPECT_EQ(WithoutFolder("/opt/boat/a.pol", "/opt/boat/"), "a.pol");
  EXPECT_EQ(WithoutFolder("/opt/boat/deep/a.pol", "/opt/boat"), "/opt/boat/deep/a.pol");
  EXPECT_EQ(WithoutFolder("/opt/boats/a.pol", "/opt/boat"), "/opt/boats/a.pol");
  EXPECT_EQ(WithoutFolder("a.pol", "/opt/boat"), "a.pol");
  EXPECT_EQ(WithoutFolder("/a.pol", ""), "/a.pol");
  Profile profile;
  PolarSettings settings;
  settings.File = {"/opt/boat/a.pol", "/else/b.pol"};
  PolarStore(profile, settings, "/opt/boat");
  EXPECT_EQ(profile.Text("Polar Data", "File 1"), "a.pol");
  EXPECT_EQ(profile.Text("Polar Data", "File 2"), "/else/b.pol");
}

TEST(PolarPlace, ComesBackWhenItIsWhole) {
  Profile profile;
  EXPECT_FALSE(PolarPlaceRecall(profile).has_value());
  PolarPlaceStore(profile, {30, -20, 500, 400});
  const auto place = PolarPlaceRecall(profile);
  ASSERT_TRUE(place.has_value());
  EXPECT_EQ(*place, (Box{30, -20, 500, 400}));
  EXPECT_EQ(profile.Text("Polar Window", "Top"), "-20");
  EXPECT_EQ(profile.Text("Polar Window", "Left"), "30");
  EXPECT_EQ(profile.Text("Polar Window", "Height"), "400");
  EXPECT_EQ(profile.Text("Polar Window", "Width"), "500");
  PolarPlaceStore(profile, {0, 0, 1, 1});
  EXPECT_TRUE(PolarPlaceRecall(profile).has_value());
  PolarPlaceStore(profile, {0, 0, 0, 500});
  EXPECT_FALSE(PolarPlaceRecall(profile).has_value());
  PolarPlaceStore(profile, {0, 0, 500, 0});
  EXPECT_FALSE(PolarPlaceRecall(profile).has_value());
  EXPECT_FALSE(PolarPlaceRecall(ProfileOf("[Polar Window]\nTop=1\nLeft=2\nWidth=5\n")).has_value());
}

TEST(PolarPlace, IsKeptInSixteenBits) {
  Profile profile;
  PolarPlaceStore(profile, {-40000, 40000, 300, 200});
  EXPECT_EQ(PolarPlaceRecall(profile), (Box{-32767, 32767, 300, 200}));
}

TEST(PolarAverages, AreNothingBeforeAnythingCame) {
  const PolarAverages averages;
  const PolarValues& values = averages.Values();
  EXPECT_FALSE(averages.Fed());
  EXPECT_FALSE(values.HeadingValid);
  EXPECT_FALSE(values.WaypointValid);
  for (const float value :
       {values.Heading, values.BoatSpeed, values.WindAngleApparent, values.WindSpeedApparent,
        values.WindAngleTrue, values.WindSpeedTrue, values.WaypointBearing, values.WaypointRange}) {
    EXPECT_EQ(value, 0.0F);
  }
}

TEST(PolarAverages, StartWithTheirFirstValues) {
  PolarAverages averages;
  EXPECT_FALSE(averages.Fed());
  averages.Feed({true, 350.0F, 6.0F, -40.0F, 14.0F, -60.0F, 10.0F, true, 12.0F, 3.0F}, 4.0F);
  EXPECT_TRUE(averages.Fed());
  EXPECT_NEAR(averages.Values().Heading, 350.0F, 1e-3F);
  EXPECT_EQ(averages.Values().BoatSpeed, 6.0F);
  EXPECT_NEAR(averages.Values().WindAngleApparent, -40.0F, 1e-3F);
  EXPECT_EQ(averages.Values().WindSpeedTrue, 10.0F);
  EXPECT_EQ(averages.Values().WaypointBearing, 12.0F);
}

TEST(PolarAverages, WeighANewValueByTheCount) {
  PolarAverages averages;
  averages.Feed({true, 350.0F, 6.0F, -170.0F, 14.0F, 170.0F, 10.0F, true, 12.0F, 3.0F}, 4.0F);
  EXPECT_TRUE(averages.Values().WaypointValid);
  averages.Feed({true, 10.0F, 10.0F, 170.0F, 18.0F, -170.0F, 14.0F, false, 15.0F, 2.0F}, 4.0F);
  EXPECT_EQ(averages.Values().BoatSpeed, 7.0F);
  EXPECT_EQ(averages.Values().WindSpeedApparent, 15.0F);
  EXPECT_EQ(averages.Values().WindSpeedTrue, 11.0F);
  // Over the stern and over north the short way round.
  EXPECT_NEAR(averages.Values().WindAngleApparent, -175.0F, 0.1F);
  EXPECT_NEAR(averages.Values().WindAngleTrue, 175.0F, 0.1F);
  EXPECT_NEAR(averages.Values().Heading, 355.0F, 0.1F);
  EXPECT_FALSE(averages.Values().WaypointValid);
  EXPECT_EQ(averages.Values().WaypointBearing, 15.0F) << "the waypoint is not averaged";
}

TEST(PolarAverages, StartTheHeadingWithItsFirstValidValue) {
  PolarAverages averages;
  averages.Feed({false, 0.0F, 6.0F}, 4.0F);
  averages.Feed({true, 90.0F, 6.0F}, 4.0F);
  EXPECT_NEAR(averages.Values().Heading, 90.0F, 1e-3F);
  EXPECT_TRUE(averages.Values().HeadingValid);
}

TEST(PolarAverages, TakeTheValueItselfWithoutACount) {
  PolarAverages averages;
  averages.Feed({true, 10.0F, 6.0F}, 0.0F);
  averages.Feed({true, 20.0F, 9.0F}, 0.0F);
  EXPECT_EQ(averages.Values().BoatSpeed, 9.0F);
}

}  // namespace
}  // namespace veerwatch
