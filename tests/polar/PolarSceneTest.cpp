#include "polar/PolarScene.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "tests/polar/PolarModelFixture.h"

namespace veerwatch {
namespace {

TEST_F(PolarModelTest, CountsEveryChangeOfTheTableOrOfHowItIsSeen) {
  const auto before = Model.Version();
  Model.Reset(nullptr);
  EXPECT_EQ(Model.Version(), before + 1);
  Model.ShowWind(PlotType::ApparentWind);
  EXPECT_EQ(Model.Version(), before + 2);
  Model.ToggleSmoothWinds();
  EXPECT_EQ(Model.Version(), before + 3);
  EXPECT_TRUE(Model.Load(PolarModel::kMain).Loaded);
  EXPECT_EQ(Model.Version(), before + 4);
}

TEST_F(PolarModelTest, SizesTheLabelsByThePlotAndLaysTheLegendForItsNames) {
  PolarScene scene(Model);
  // 0.021 of the shorter side, from 9 to 26 px.
  EXPECT_NEAR(scene.Still(1000, 800).TextHeight, 16.8, 1e-9);
  EXPECT_EQ(scene.Still(300, 400).TextHeight, 9.0);
  EXPECT_EQ(scene.Still(2000, 1900).TextHeight, 26.0);
  const PolarLegend& legend = scene.Still(1000, 500).Legend;
  EXPECT_EQ(legend.Keys.size(), 1U);
  EXPECT_NEAR(legend.Boat.Caption.X, 512.5, 1e-9);
  EXPECT_NEAR(legend.Boat.Caption.Width, 300.0, 1e-9);
}

TEST_F(PolarModelTest, DrawsTheReferenceInThePresentWindWhileItIsShown) {
  PolarScene scene(Model);
  WriteFile(Program / "r.pol", "TWA\t6\t10\n60\t3\t5\n120\t4\t6\n");
  ASSERT_TRUE(Model.Open(PolarModel::kReference, (Program / "r.pol").string()).Loaded);
  scene.Still(400, 400);
  Model.Average(0.0F);
  Model.Update(TrackMode::Track, Sailing(-90.0F, 8.0F, 5.0F), true);
  const PolarMoving moving = scene.Moving();
  // Between 3 and 5 kn at 60 degrees on a plot of 20 px per knot.
  ASSERT_FALSE(moving.ReferenceWind.empty());
  EXPECT_NEAR(moving.ReferenceWind[0].front().X, 200.0 + 80.0 * 0.8660254, 1e-4);
  EXPECT_NEAR(moving.ReferenceWind[0].front().Y, 200.0 - 80.0 * 0.5, 1e-4);
}

TEST_F(PolarModelTest, MakesTheStillPictureAnewOnlyWhenItChanges) {
  PolarScene scene(Model);
  const auto version = scene.Still(400, 300).Version;
  Model.Average(0.0F);
  Model.Update(TrackMode::Track, Sailing(80.0F, 12.0F, 8.0F), true);
  EXPECT_EQ(scene.Still(400, 300).Version, version);
  EXPECT_NE(scene.Still(401, 300).Version, version);
  std::vector<std::uint64_t> versions{scene.Still(400, 300).Version};
  const auto changed = [&] {
    versions.push_back(scene.Still(400, 300).Version);
    return versions[versions.size() - 2] != versions.back();
  };
  EXPECT_FALSE(changed());
  Model.Range(8.0F);
  EXPECT_TRUE(changed());
  Model.ToggleWindSpeedLabel();
  EXPECT_TRUE(changed());
  Model.Color(255U);
  EXPECT_TRUE(changed());
  Model.ShowWind(PlotType::ApparentWind);
  EXPECT_TRUE(changed());
  EXPECT_TRUE(Model.Load(0).Loaded);
  EXPECT_TRUE(changed());
}

TEST_F(PolarModelTest, DrawsNoBoatBeforeValuesCome) {
  PolarScene scene(Model);
  scene.Still(400, 300);
  EXPECT_FALSE(scene.Moving().Boat.has_value());
  EXPECT_FALSE(scene.Moving().Arrow.has_value());
  EXPECT_TRUE(scene.Moving().Wind.empty());
  Model.Average(0.0F);
  Model.Update(TrackMode::Track, Sailing(-90.0F, 12.0F, 5.0F), true);
  const PolarMoving moving = scene.Moving();
  ASSERT_TRUE(moving.Boat.has_value());
  // Half of the range to port of the centre.
  EXPECT_NEAR(moving.Boat->At.X, 75.0, 1e-3);
  EXPECT_NEAR(moving.Boat->At.Y, 150.0, 1e-3);
  EXPECT_TRUE(moving.Arrow.has_value());
  EXPECT_FALSE(moving.Wind.empty());
  EXPECT_TRUE(moving.ReferenceWind.empty());
}

TEST_F(PolarModelTest, NamesThePolarsWithTheirScaling) {
  PolarScene scene(Model);
  EXPECT_EQ(scene.Still(900, 500).Keys, std::vector<std::string>{"Fast Sled 60ft"});
  Model.TakeFactor("0.9");
  ASSERT_TRUE(Model.Load(PolarModel::kMain).Loaded);
  ASSERT_TRUE(Model.Open(PolarModel::kReference, (Program / kDefaultPolar).string()).Loaded);
  EXPECT_EQ(scene.Still(900, 500).Keys,
            (std::vector<std::string>{"Fast Sled 60ft 90%", "Fast Sled 60ft 90%"}));
  EXPECT_FALSE(scene.Still(900, 500).Reference.empty());
  Model.TakeFactor("1");
  ASSERT_TRUE(Model.Load(PolarModel::kMain).Loaded);
  EXPECT_EQ(scene.Still(900, 500).Keys, (std::vector<std::string>{"Fast Sled 60ft", "Fast Sled 60ft 90%"}))
      << "each as it was read";
}

TEST_F(PolarModelTest, MarksWhatIsHeldInTheWindThatIsPlotted) {
  PolarScene scene(Model);
  scene.Still(400, 400);
  Model.Update(TrackMode::Track, Sailing(-90.0F, 12.0F, 5.0F), true);
  EXPECT_FALSE(scene.Moving().Held.has_value());
  Model.Hold({std::nullopt, 90.0F, std::nullopt, std::nullopt});
  const PolarMoving moving = scene.Moving();
  ASSERT_TRUE(moving.Held.has_value());
  // The tip inside of the ring, to starboard.
  EXPECT_LT((*moving.Held)[0].X, 400.0);
  EXPECT_GT((*moving.Held)[0].X, 370.0);
  EXPECT_NEAR((*moving.Held)[0].Y, 200.0, 1e-9);
  EXPECT_NEAR((*moving.Held)[1].X, 400.0, 1e-9);
  EXPECT_TRUE(moving.Guard.empty());
  Model.ShowWind(PlotType::ApparentWind);
  EXPECT_FALSE(scene.Moving().Held.has_value());
}

TEST_F(PolarModelTest, DrawsTheGuardRoundSternOrBow) {
  PolarScene scene(Model);
  scene.Still(400, 400);
  Model.Update(TrackMode::Track, Sailing(-90.0F, 12.0F, 5.0F), true);
  Model.Hold({std::nullopt, 90.0F, 25.0F, 165.0F});
  const Polyline astern = scene.Moving().Guard;
  ASSERT_GE(astern.size(), 10U);
  for (const Point& point : astern) {
    EXPECT_GT(point.Y, 370.0);
    EXPECT_NEAR(point.X, 200.0, 53.0);
  }
  EXPECT_GT(astern.front().X, 250.0) << "it begins at 165 to starboard";
  Model.ShowWind(PlotType::ApparentWind);
  for (const Point& point : scene.Moving().Guard) {
    EXPECT_LT(point.Y, 50.0);
  }
}

TEST_F(PolarModelTest, DrawsTheTurnToComeInTheWindThatIsPlotted) {
  PolarScene scene(Model);
  scene.Still(400, 400);
  Model.Update(TrackMode::Track, Sailing(45.0F, 12.0F, 5.0F), true);
  EXPECT_FALSE(scene.Moving().Turn.has_value());
  PlotHold hold;
  hold.Turn = PlotTurn{30.0, -30.0, 45.0, -45.0, "90 deg, 10 s"};
  Model.Hold(hold);
  const PolarMoving moving = scene.Moving();
  ASSERT_TRUE(moving.Turn.has_value());
  EXPECT_EQ(moving.TurnText, "90 deg, 10 s");
  const double ahead = 200.0 - moving.Turn->Line.front().Y;
  EXPECT_NEAR(moving.Turn->Line.front().X - 200.0, ahead, 1e-6) << "at 45 to starboard";
  EXPECT_NEAR(moving.Turn->Line.back().X - 200.0, -ahead, 1e-6);
  Model.ShowWind(PlotType::ApparentWind);
  const double nearer = scene.Moving().Turn->Line.front().X - 200.0;
  EXPECT_LT(nearer, 0.75 * ahead) << "at 30";
}

TEST_F(PolarModelTest, DrawsTheTargetOfACourse) {
  PolarScene scene(Model);
  scene.Still(400, 400);
  Model.Update(TrackMode::Track, Sailing(-90.0F, 12.0F, 5.0F), true);
  EXPECT_FALSE(scene.Moving().Target.has_value());
  LedgerContent course;
  course.TargetWindAngle = 90.0;
  const auto target = scene.Moving(&course).Target;
  ASSERT_TRUE(target.has_value());
  EXPECT_NEAR(target->Line.To.X, 400.0, 1e-9);
  EXPECT_NEAR(target->Line.To.Y, 200.0, 1e-9);
}

}  // namespace
}  // namespace veerwatch
