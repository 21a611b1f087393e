#include "polar/PolarModel.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "polar/PolarPlot.h"
#include "polar/PolarQuestions.h"
#include "tests/polar/PolarModelFixture.h"

namespace veerwatch {
namespace {

TEST_F(PolarModelTest, LooksForARelativeNameInTheProgramsFolderFirst) {
  EXPECT_EQ(Model.FilePath(0), Program / kDefaultPolar);
  const TemporaryFolder other;
  WriteFile(other / "b.pol", "TWA\t6\n90\t5\n120\t6\n");
  WriteFile(other / kDefaultPolar, "TWA\t6\n90\t5\n120\t6\n");
  EXPECT_TRUE(Model.Open(PolarModel::kReference, (other / "b.pol").string()).Loaded);
  EXPECT_EQ(Model.FilePath(0), Program / kDefaultPolar);
  std::filesystem::remove(Program / kDefaultPolar);
  EXPECT_EQ(Model.FilePath(0), other / kDefaultPolar) << "then in the folder of the polar opened last";
  std::filesystem::remove(other / kDefaultPolar);
  EXPECT_EQ(Model.FilePath(0), Program / kDefaultPolar);
}

TEST_F(PolarModelTest, LooksForARelativeNameInTheSharedFolderLast) {
  const TemporaryFolder shared;
  WriteFile(shared / kDefaultPolar, kSmallPolar);
  PolarModel model({Program / "bin", shared.Path()});
  model.Reset(nullptr);
  EXPECT_EQ(model.FilePath(0), shared / kDefaultPolar);
}

TEST_F(PolarModelTest, OpensANewPolarUnscaledAndHidesTheReference) {
  Model.TakeFactor("0.9");
  EXPECT_TRUE(Model.Load(0).Loaded);
  EXPECT_FLOAT_EQ(Model.Table().Value(0, 1, 1), 3.6F);
  EXPECT_TRUE(Model.Open(PolarModel::kReference, (Program / kDefaultPolar).string()).Loaded);
  EXPECT_EQ(Model.PolarsShown(), 2);
  EXPECT_EQ(Model.Settings().SpeedFactor, 0.9F) << "a reference leaves the factor alone";
  EXPECT_TRUE(Model.Open(PolarModel::kMain, (Program / kDefaultPolar).string()).Loaded);
  EXPECT_EQ(Model.PolarsShown(), 1);
  EXPECT_EQ(Model.Settings().SpeedFactor, 1.0F);
  EXPECT_EQ(Model.Table().Value(0, 1, 1), 4.0F);
}

TEST_F(PolarModelTest, HidesTheReferenceAtEachStart) {
  EXPECT_TRUE(Model.Open(PolarModel::kReference, (Program / kDefaultPolar).string()).Loaded);
  ASSERT_EQ(Model.PolarsShown(), 2);
  Profile profile;
  PolarStore(profile, Model.Settings(), Program.Path());
  Model.Reset(&profile);
  EXPECT_EQ(Model.PolarsShown(), 1);
}

TEST_F(PolarModelTest, ShowsNoReferenceThatFailedToLoad) {
  EXPECT_FALSE(Model.Open(PolarModel::kReference, (Program / "missing.pol").string()).Loaded);
  EXPECT_EQ(Model.PolarsShown(), 1);
  EXPECT_EQ(Model.Settings().File[1], kDefaultPolar) << "nor is it the reference of the profile";
  WriteFile(Program / "r.pol", "TWA\t10\n60\t6\n120\t7\n");
  EXPECT_TRUE(Model.Open(PolarModel::kReference, (Program / "r.pol").string()).Loaded);
  EXPECT_FALSE(Model.Open(PolarModel::kReference, (Program / "missing.pol").string()).Loaded);
  EXPECT_EQ(Model.PolarsShown(), 2) << "the one of before is still drawn";
  EXPECT_EQ(Model.Settings().File[1], (Program / "r.pol").string());
  EXPECT_EQ(Model.Name(PolarModel::kReference), "r");
}

TEST_F(PolarModelTest, GoesOnNamingThePolarThatItHoldsWhenAnotherDoesNotLoad) {
  WriteFile(Program / "bad.pol", "speeds\t6\n30\t4\n");
  Model.TakeFactor("0.9");
  ASSERT_TRUE(Model.Load(PolarModel::kMain).Loaded);
  for (const char* name : {"missing.pol", "bad.pol"}) {
    EXPECT_FALSE(Model.Open(PolarModel::kMain, (Program / name).string()).Loaded);
    EXPECT_EQ(Model.Settings().File[0], kDefaultPolar) << name;
    EXPECT_EQ(Model.Settings().SpeedFactor, 0.9F) << "by which the speeds still are multiplied";
    EXPECT_FLOAT_EQ(Model.Table().Value(0, 1, 1), 3.6F);
    EXPECT_EQ(Model.Name(PolarModel::kMain), "Fast Sled 60ft 90%");
  }
}

TEST_F(PolarModelTest, NamesTheBeginningOfAPolarForWhatItIs) {
  WriteFile(Program / "cut.pol", "TWA\t6\n30\t4\n60\t5\t6\n");
  EXPECT_FALSE(Model.Open(PolarModel::kMain, (Program / "cut.pol").string()).Loaded);
  EXPECT_EQ(Model.Table().PolarRows(0), 1);
  EXPECT_EQ(Model.Name(PolarModel::kMain), "cut (incomplete)");
  EXPECT_EQ(Model.Settings().File[0], (Program / "cut.pol").string()) << "what is drawn is of that file";
}

TEST_F(PolarModelTest, KeepsTheFileOfTheProfileWhenItIsNotThereAtTheStart) {
  Profile profile;
  profile.ProfileSet("Polar Data", "File 1", "/stick/own.pol");
  profile.ProfileSet("Polar Data", "Speed Factor", 0.9F);
  PolarModel model({Program.Path(), {}});
  model.Reset(&profile);
  EXPECT_FALSE(model.Load(PolarModel::kMain).Loaded);
  EXPECT_EQ(model.Name(PolarModel::kMain), "No polar");
  EXPECT_FALSE(model.Open(PolarModel::kMain, (Program / "missing.pol").string()).Loaded);
  EXPECT_EQ(model.Settings().File[0], "/stick/own.pol") << "the stick may be back at the next start";
  EXPECT_EQ(model.Settings().SpeedFactor, 0.9F);
}

TEST_F(PolarModelTest, KeepsTheFactorWhenTheFileIsGone) {
  std::filesystem::remove(Program / kDefaultPolar);
  Dialogs.Texts = {"0.8"};
  Questions.AskScaling();
  EXPECT_EQ(Dialogs.Messages.size(), 1U);
  EXPECT_EQ(Model.Settings().SpeedFactor, 1.0F);
  EXPECT_EQ(Model.Table().Value(0, 1, 1), 4.0F);
}

TEST_F(PolarModelTest, TurnsTheCourseOffWhenItIsChosenAgain) {
  EXPECT_FALSE(Model.Settings().CourseWaypoint);
  Model.ChooseCourse(CourseSource::WaypointBearing);
  EXPECT_TRUE(Model.Settings().CourseWaypoint);
  Model.ChooseCourse(CourseSource::TargetBearing);
  EXPECT_TRUE(Model.Settings().CourseWaypoint);
  EXPECT_EQ(Model.Settings().CourseWaypointIndex, CourseSource::TargetBearing);
  Model.ChooseCourse(CourseSource::TargetBearing);
  EXPECT_FALSE(Model.Settings().CourseWaypoint);
  Model.ChooseCourse(CourseSource::TargetBearing);
  EXPECT_TRUE(Model.Settings().CourseWaypoint) << "any item activates while none is active";
}

TEST_F(PolarModelTest, AveragesWhileTheWindowIsHiddenAndLooksUpInSight) {
  Model.Average(4.0F);
  EXPECT_FALSE(Model.Update(TrackMode::Track, Sailing(80.0F, 20.0F, 8.0F), false));
  EXPECT_EQ(Model.PolarSpeed(), 0.0F);
  EXPECT_TRUE(Model.Update(TrackMode::Track, Sailing(80.0F, 20.0F, 12.0F), true)) << "a new mode";
  EXPECT_EQ(Model.Values().BoatSpeed, 9.0F);
  EXPECT_NEAR(Model.PolarSpeed(), 11.0F, 1e-3F);
  EXPECT_EQ(Model.PolarSpeedText(), "11.0 deg");
  EXPECT_FALSE(Model.Update(TrackMode::Track, Sailing(-80.0F, 20.0F, 9.0F), true));
}

TEST_F(PolarModelTest, LooksUpAnewInAnotherPolar) {
  Model.Average(0.0F);
  Model.Update(TrackMode::Track, Sailing(80.0F, 20.0F, 8.0F), true);
  ASSERT_NEAR(Model.PolarSpeed(), 11.0F, 1e-3F);
  Model.TakeFactor("0.5");
  Model.Load(PolarModel::kMain);
  EXPECT_NEAR(Model.PolarSpeed(), 5.5F, 1e-3F) << "without waiting for an update";
  EXPECT_TRUE(Model.Open(PolarModel::kMain, (Program / kDefaultPolar).string()).Loaded);
  EXPECT_NEAR(Model.PolarSpeed(), 11.0F, 1e-3F);
}

TEST_F(PolarModelTest, LooksUpTheTrueWindInEitherPlotType) {
  Model.Average(0.0F);
  Model.ShowWind(PlotType::ApparentWind);
  Model.Update(TrackMode::Manual, Sailing(-60.0F, 20.0F, 8.0F), true);
  PolarTable table = TableOf(kSmallPolar);
  table.Type(PlotType::ApparentWind);
  EXPECT_NEAR(Model.PolarSpeed(), table.PolarSpeed(0, 60.0F, 20.0F), 1e-3F);
}

TEST_F(PolarModelTest, LooksUpAnewWhenWindsBecomeSmooth) {
  Model.Average(0.0F);
  Model.Update(TrackMode::Manual, Sailing(-80.0F, 8.0F, 6.5F), true);
  ASSERT_NEAR(Model.PolarSpeed(), 8.0F, 1e-3F);
  const auto version = Model.Version();
  Model.ToggleSmoothWinds();
  EXPECT_TRUE(Model.Settings().SmoothWinds);
  EXPECT_NEAR(Model.PolarSpeed(), 6.5F, 1e-3F) << "without waiting for an update";
  EXPECT_EQ(Model.Readout().BoatPercent, "100%");
  EXPECT_NE(Model.Version(), version) << "a solution of before counts no more";
  Model.ShowWind(PlotType::ApparentWind);
  EXPECT_NEAR(Model.PolarSpeed(), 6.5F, 1e-3F);
  Model.ToggleSmoothWinds();
  EXPECT_FALSE(Model.Table().Smooth());
}

TEST_F(PolarModelTest, StartsSmoothWhereTheProfileSaysSo) {
  Profile profile;
  profile.ProfileSet("Polar Data", "Smooth Between Winds", true);
  Model.Reset(&profile);
  EXPECT_TRUE(Model.Table().Smooth());
  Model.Reset(nullptr);
  EXPECT_FALSE(Model.Table().Smooth());
}

TEST_F(PolarModelTest, ReadsOutSpeedsAndWind) {
  EXPECT_EQ(Model.Readout().BoatValue, "");
  EXPECT_EQ(Model.Readout().ReferenceCaption, "Polar (Kts)");
  Model.Average(0.0F);
  Model.Update(TrackMode::Track, Sailing(-80.0F, 20.0F, 8.25F), true);
  PolarReadout readout = Model.Readout();
  EXPECT_EQ(readout.ReferenceValue, "11.0");
  EXPECT_EQ(readout.BoatCaption, "Boat (Kts)");
  EXPECT_EQ(readout.BoatValue, "8.3");
  EXPECT_EQ(readout.BoatPercent, "75%");
  EXPECT_EQ(readout.WindSpeedCaption, "TWS (Kts)");
  EXPECT_EQ(readout.WindSpeedValue, "20.0");
  EXPECT_EQ(readout.WindAngleCaption, "TWA (R)");
  EXPECT_EQ(readout.WindAngleValue, "-80");

  Model.ShowWind(PlotType::ApparentWind);
  Model.Boat(BoatType::MotorAndSail);
  readout = Model.Readout();
  EXPECT_EQ(readout.ReferenceCaption, "Motor (Kts)");
  EXPECT_EQ(readout.ReferenceValue, "3.0");
  EXPECT_EQ(readout.BoatPercent, "275%");
  EXPECT_EQ(readout.WindSpeedCaption, "AWS (Kts)");
  EXPECT_EQ(readout.WindSpeedValue, "23.0");
  EXPECT_EQ(readout.WindAngleCaption, "AWA (R)");
  EXPECT_EQ(readout.WindAngleValue, "-40");
}

TEST_F(PolarModelTest, GivesNoPercentageOfNothing) {
  Model.Average(0.0F);
  Model.Update(TrackMode::Track, Sailing(10.0F, 20.0F, 8.0F), true);
  EXPECT_EQ(Model.Readout().ReferenceValue, "0.0");
  EXPECT_EQ(Model.Readout().BoatPercent, "");
}

TEST_F(PolarModelTest, WritesPresentValuesIntoTheMenus) {
  EXPECT_EQ(Model.ScalingCaption(), "Set Scaling (100%)...");
  EXPECT_EQ(Model.TargetBearingCaption(), "Set Target Bearing (0 M)...");
  EXPECT_EQ(Model.MotorSpeedCaption(), "Set Motor Only Speed to Target/Waypoint (3.0 Kts)...");
  EXPECT_TRUE(Model.TakeFactor("0.955"));
  EXPECT_TRUE(Model.TakeBearing("-90.4"));
  EXPECT_TRUE(Model.TakeMotorSpeed("5.25"));
  EXPECT_EQ(Model.ScalingCaption(), "Set Scaling (96%)...");
  EXPECT_EQ(Model.TargetBearingCaption(), "Set Target Bearing (270 M)...");
  EXPECT_EQ(Model.MotorSpeedCaption(), "Set Motor Only Speed to Target/Waypoint (5.3 Kts)...");
}

TEST_F(PolarModelTest, TakesNoNumberThatCannotBe) {
  for (const char* text : {"", "x", "0", "-1", "nan", "inf", "1e99", "5 kn"}) {
    EXPECT_FALSE(Model.TakeRange(text)) << text;
    EXPECT_FALSE(Model.TakeFactor(text)) << text;
  }
  EXPECT_FALSE(Model.TakeBearing("north"));
  EXPECT_FALSE(Model.TakeMotorSpeed(""));
  EXPECT_EQ(Model.Settings().SpeedRange, 10.0F);
  EXPECT_EQ(Model.Settings().SpeedFactor, 1.0F);
  EXPECT_TRUE(Model.TakeRange(" 14.5 "));
  EXPECT_EQ(Model.Settings().SpeedRange, 14.5F);
}

TEST_F(PolarModelTest, ReadsTheCellUnderTheMouseOut) {
  const PolarGeometry geometry = PlotGeometry(400.0, 400.0, 20.0);
  const Point at = PointAt(geometry, -120.0, 14.0);
  const auto found = Model.Nearest(at.X + 15.0, at.Y + 15.0, geometry);
  ASSERT_TRUE(found.has_value()) << "450 px squared away";
  EXPECT_EQ(found->Text, "-120.0\n20\n14.0");
  EXPECT_EQ(found->Captions, "TWA (R)\nTWS (Kts)\nPolar (Kts)");
  EXPECT_FALSE(found->Reference);
  // 20 * 20 + 10 * 10 is just no longer near.
  EXPECT_FALSE(Model.Nearest(at.X - 20.0, at.Y + 10.0, geometry).has_value());
  EXPECT_TRUE(Model.Nearest(at.X - 19.9, at.Y + 10.0, geometry).has_value());
}

TEST_F(PolarModelTest, ReadsTheReferenceOutWhereItIsNearer) {
  WriteFile(Program / "r.pol", "TWA\t20\n80\t11\n120\t16\n");
  const PolarGeometry geometry = PlotGeometry(400.0, 400.0, 20.0);
  const Point at = PointAt(geometry, 120.0, 16.0);
  EXPECT_EQ(Model.Nearest(at.X, at.Y, geometry)->Text, "120.0\n20\n14.0") << "hidden";
  ASSERT_TRUE(Model.Open(PolarModel::kReference, (Program / "r.pol").string()).Loaded);
  EXPECT_EQ(Model.Nearest(at.X, at.Y, geometry)->Text, "120.0\n20\n16.0");
  EXPECT_TRUE(Model.Nearest(at.X, at.Y, geometry)->Reference);
  EXPECT_EQ(Model.Nearest(at.X, at.Y, geometry)->Captions, "TWA (R)\nTWS (Kts)\nReference (Kts)");
  const Point both = PointAt(geometry, 80.0, 11.0);
  EXPECT_FALSE(Model.Nearest(both.X, both.Y, geometry)->Reference) << "the own polar wins a tie";
}

}  // namespace
}  // namespace veerwatch
