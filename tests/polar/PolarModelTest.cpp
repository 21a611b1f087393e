#include "polar/PolarModel.h"

#include <gtest/gtest.h>

#include "platform/NumberText.h"
#include "polar/PolarQuestions.h"
#include "polar/PolarScene.h"
#include "tests/support/PolarText.h"
#include "tests/support/QueuedDialogs.h"
#include "tests/support/TemporaryFolder.h"

namespace veerwatch {
namespace {

class PolarModelTest : public testing::Test {
 public:
  TemporaryFolder Program;
  QueuedDialogs Dialogs;
  PolarModel Model{{Program.Path(), {}}};

  PolarModelTest() {
    WriteFile(Program / kDefaultPolar, kSmallPolar);
    Model.Reset(nullptr);
    EXPECT_TRUE(Model.Load(PolarModel::kMain).Loaded);
  }

  static PolarValues Sailing(float angle, float wind, float boat) {
    return {true, 90.0F, boat, angle / 2.0F, wind + 3.0F, angle, wind, false, 0.0F, 0.0F};
  }
};

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

class PolarConvertTest : public PolarModelTest {
 public:
  PolarConvertTest() { WriteFile(Program / "b.csv", "twa/tws;6;8,5\n40,5;4;5\n90;6;7\n"); }
  std::string File(const char* name) const { return (Program / name).string(); }
};

TEST_F(PolarConvertTest, OffersToConvertAnotherSpellingAndOpensWhatComesOut) {
  Dialogs.Files = {File("b.csv"), File("mine.pol")};
  Dialogs.Answers = {true};
  EXPECT_TRUE(AskOpen(Model, PolarModel::kMain, Dialogs));
  ASSERT_EQ(Dialogs.Questions.size(), 1U);
  EXPECT_EQ(Dialogs.Questions[0].Text.rfind("Polar File Error: No TWA Data\n", 0), 0U);
  ASSERT_EQ(Dialogs.FileDialogs.size(), 2U);
  EXPECT_EQ(Dialogs.FileDialogs[1].Text, File("b.pol")) << "proposed beside it";
  EXPECT_TRUE(Dialogs.Messages.empty());
  EXPECT_EQ(ReadFile(Program / "mine.pol"), "TWA\t6\t8.5\r\n40.5\t4.0\t5.0\r\n90\t6.0\t7.0\r\n");
  EXPECT_EQ(Model.Settings().File[0], File("mine.pol"));
  EXPECT_EQ(Model.Table().PolarRows(0), 2);
  EXPECT_EQ(Model.Table().Value(0, 1, 0), 40.5F);
}

TEST_F(PolarConvertTest, ConvertsForTheReferenceToo) {
  WriteFile(Program / "r.pol", "TWA;6;8\n40;4;5\n90;6;7\n");
  Dialogs.Files = {File("r.pol"), File("r converted.pol")};
  Dialogs.Answers = {true};
  EXPECT_TRUE(AskOpen(Model, PolarModel::kReference, Dialogs));
  EXPECT_EQ(Dialogs.FileDialogs[1].Text, File("r converted.pol")) << "no other file is replaced";
  EXPECT_EQ(Model.PolarsShown(), 2);
  EXPECT_EQ(Model.Table().PolarRows(1), 2);
  EXPECT_EQ(Model.Table().PolarRows(0), 4);
}

TEST_F(PolarConvertTest, OffersToConvertAFileOfEightMebibytesAtMost) {
  const std::string text = "TWA;6;8\n40;4;5\n90;6;7\n#";
  const std::string comment(8388608U - text.size(), '#');
  WriteFile(Program / "large.csv", text + comment);
  WriteFile(Program / "larger.csv", text + comment + "#");
  Dialogs.Files = {File("large.csv"), File("larger.csv")};
  Dialogs.Answers = {false};
  EXPECT_TRUE(AskOpen(Model, PolarModel::kMain, Dialogs));
  EXPECT_EQ(Dialogs.Questions.size(), 1U);
  EXPECT_TRUE(Dialogs.Messages.empty());
  EXPECT_TRUE(AskOpen(Model, PolarModel::kMain, Dialogs));
  EXPECT_EQ(Dialogs.Questions.size(), 1U);
  EXPECT_EQ(Dialogs.Messages.size(), 1U);
}

TEST_F(PolarConvertTest, ConvertsNothingWhenNobodyWants) {
  const auto names = Program.Names();
  Dialogs.Files = {File("b.csv")};
  Dialogs.Answers = {false};
  EXPECT_TRUE(AskOpen(Model, PolarModel::kMain, Dialogs));
  Dialogs.Files = {File("b.csv"), std::nullopt};
  Dialogs.Answers = {true};
  EXPECT_TRUE(AskOpen(Model, PolarModel::kMain, Dialogs));
  // A file that is there is replaced only after a second question.
  Dialogs.Files = {File("b.csv"), File(kDefaultPolar)};
  Dialogs.Answers = {true, false};
  EXPECT_TRUE(AskOpen(Model, PolarModel::kMain, Dialogs));
  EXPECT_EQ(Dialogs.Warnings.size(), 1U);
  EXPECT_EQ(Program.Names(), names);
  EXPECT_EQ(ReadFile(Program / kDefaultPolar), kSmallPolar);
  EXPECT_TRUE(Dialogs.Messages.empty()) << "each question told what was wrong";
}

TEST_F(PolarConvertTest, TellsWhatIsNoPolarAtAllAndWhatCannotBeWritten) {
  WriteFile(Program / "c.pol", "a letter\n");
  Dialogs.Files = {File("c.pol"), File("missing.pol")};
  EXPECT_TRUE(AskOpen(Model, PolarModel::kMain, Dialogs));
  EXPECT_TRUE(AskOpen(Model, PolarModel::kMain, Dialogs));
  EXPECT_TRUE(Dialogs.Questions.empty());
  ASSERT_EQ(Dialogs.Messages.size(), 2U);
  EXPECT_EQ(Dialogs.Messages[0].Text, "Polar File Error: No TWA Data");
  Dialogs.Files = {File("b.csv"), File("b.csv/x.pol")};
  Dialogs.Answers = {true};
  EXPECT_TRUE(AskOpen(Model, PolarModel::kMain, Dialogs));
  ASSERT_EQ(Dialogs.Messages.size(), 3U);
  EXPECT_EQ(Dialogs.Messages[2].Text.rfind("cannot write ", 0), 0U);
}

TEST_F(PolarConvertTest, TellsInTheQuestionWhatIsLeftOut) {
  std::string wide = "TWA";
  for (int wind = 0; wind <= 60; ++wind) {
    wide += "\t" + std::to_string(wind);
  }
  WriteFile(Program / "wide.pol", wide + "\n40\t5\n90\t6\n");
  Dialogs.Files = {File("wide.pol")};
  EXPECT_TRUE(AskOpen(Model, PolarModel::kMain, Dialogs));
  ASSERT_EQ(Dialogs.Questions.size(), 1U);
  EXPECT_EQ(Dialogs.Questions[0].Text.rfind("Polar File Error: more than 50 wind speeds\n", 0), 0U);
  EXPECT_NE(Dialogs.Questions[0].Text.find("(of 61 wind speeds 50 are kept)"), std::string::npos);
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
  AskScaling(Model, Dialogs);
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
  const PlotPoint at = PointAt(geometry, -120.0, 14.0);
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
  const PlotPoint at = PointAt(geometry, 120.0, 16.0);
  EXPECT_EQ(Model.Nearest(at.X, at.Y, geometry)->Text, "120.0\n20\n14.0") << "hidden";
  ASSERT_TRUE(Model.Open(PolarModel::kReference, (Program / "r.pol").string()).Loaded);
  EXPECT_EQ(Model.Nearest(at.X, at.Y, geometry)->Text, "120.0\n20\n16.0");
  EXPECT_TRUE(Model.Nearest(at.X, at.Y, geometry)->Reference);
  EXPECT_EQ(Model.Nearest(at.X, at.Y, geometry)->Captions, "TWA (R)\nTWS (Kts)\nReference (Kts)");
  const PlotPoint both = PointAt(geometry, 80.0, 11.0);
  EXPECT_FALSE(Model.Nearest(both.X, both.Y, geometry)->Reference) << "the own polar wins a tie";
}

// What is asked

TEST_F(PolarModelTest, AsksForTheRange) {
  Dialogs.Texts = {"7.5", "", "x", std::nullopt, "-2"};
  EXPECT_TRUE(AskRange(Model, Dialogs));
  EXPECT_EQ(Model.Settings().SpeedRange, 7.5F);
  for (int i = 0; i < 4; ++i) {
    EXPECT_FALSE(AskRange(Model, Dialogs));
    EXPECT_EQ(Model.Settings().SpeedRange, 7.5F);
  }
  EXPECT_EQ(Dialogs.Questions[0].Title, "Polar Plot - Speed Range");
  EXPECT_EQ(Dialogs.Questions[0].Text, "Enter the maximun speed (Kts) for the polar plot display.");
  EXPECT_EQ(Dialogs.Presets[0], "10");
  EXPECT_EQ(Dialogs.Presets[1], "7.5");
}

TEST_F(PolarModelTest, AsksForTheFactorAndLoadsTheOwnPolarAnew) {
  Dialogs.Texts = {"0.5"};
  EXPECT_TRUE(AskScaling(Model, Dialogs));
  EXPECT_EQ(Model.Table().Value(0, 1, 1), 2.0F);
  EXPECT_EQ(Dialogs.Questions[0].Title, "AutoPilot - Polar Plot - Speed Factor");
  EXPECT_EQ(Dialogs.Questions[0].Text,
            "Enter the scaling factor, used to scale the polar plot speed data.  The scaling factor is "
            "normally set to 1, but can be set to other values to compensate for bad weather or heavy "
            "displacement.");
  EXPECT_EQ(Dialogs.Presets[0], "1");
  Dialogs.Texts = {"2"};
  EXPECT_TRUE(AskScaling(Model, Dialogs));
  EXPECT_EQ(Model.Table().Value(0, 1, 1), 8.0F) << "from the file, not from what was scaled before";
}

TEST_F(PolarModelTest, AsksWhetherAPercentageWasMeant) {
  const std::vector<std::pair<const char*, const char*>> meant{
      {"90", "0.90"}, {"4", "0.04"}, {"105", "1.05"}, {"99.5", "0.995"}};
  for (const auto& [entered, likely] : meant) {
    Dialogs.Texts = {entered};
    Dialogs.Answers = {true};
    Dialogs.Warnings.clear();
    EXPECT_TRUE(AskScaling(Model, Dialogs));
    ASSERT_EQ(Dialogs.Warnings.size(), 1U) << entered;
    EXPECT_EQ(Dialogs.Warnings[0].Title, "AutoPilot - Polar Plot - Speed Factor");
    EXPECT_EQ(Dialogs.Warnings[0].Text, std::string("Did you mean ") + likely + "?");
    EXPECT_EQ(Model.Settings().SpeedFactor, StrictNumber(likely));
  }
  Dialogs.Texts = {"90"};
  Dialogs.Answers = {false};
  EXPECT_TRUE(AskScaling(Model, Dialogs));
  EXPECT_EQ(Model.Settings().SpeedFactor, 90.0F) << "the answer was No";
  Dialogs.Warnings.clear();
  Dialogs.Texts = {"3"};
  EXPECT_TRUE(AskScaling(Model, Dialogs));
  EXPECT_TRUE(Dialogs.Warnings.empty());
  EXPECT_EQ(Model.Table().Value(0, 1, 1), 12.0F);
}

TEST_F(PolarModelTest, FitsTheRangeToTheCurves) {
  Model.RangeFit();
  EXPECT_EQ(Model.Settings().SpeedRange, 15.0F) << "14 kn, more than the menu has";
  for (const auto& [fastest, range] :
       {std::pair{"5.9", 6.0F}, std::pair{"6", 6.0F}, std::pair{"6.1", 8.0F}, std::pair{"10", 10.0F},
        std::pair{"11.3", 12.0F}, std::pair{"12.1", 15.0F}, std::pair{"30", 30.0F},
        std::pair{"30.5", 40.0F}}) {
    WriteFile(Program / "fit.pol", std::string("TWA\t6\t12\n60\t3\t") + fastest + "\n120\t4\t4\n");
    ASSERT_TRUE(Model.Open(PolarModel::kMain, (Program / "fit.pol").string()).Loaded);
    Model.RangeFit();
    EXPECT_EQ(Model.Settings().SpeedRange, range) << fastest;
  }
  WriteFile(Program / "slow.pol", "TWA\t6\n60\t3\n120\t4\n");
  ASSERT_TRUE(Model.Open(PolarModel::kMain, (Program / "slow.pol").string()).Loaded);
  WriteFile(Program / "r.pol", "TWA\t6\n60\t3\n120\t7\n");
  ASSERT_TRUE(Model.Open(PolarModel::kReference, (Program / "r.pol").string()).Loaded);
  Model.RangeFit();
  EXPECT_EQ(Model.Settings().SpeedRange, 8.0F) << "the reference is drawn, too";
}

TEST_F(PolarModelTest, LeavesTheRangeWhenThereIsNoCurve) {
  PolarModel model({Program / "empty", {}});
  model.Reset(nullptr);
  model.RangeFit();
  EXPECT_EQ(model.Settings().SpeedRange, 10.0F);
}

TEST_F(PolarModelTest, AsksForTheBearingAndTheMotorSpeed) {
  Dialogs.Texts = {"361", "4.5"};
  EXPECT_TRUE(AskTargetBearing(Model, Dialogs));
  EXPECT_EQ(Model.Settings().CourseTargetBearing, 1.0F);
  EXPECT_TRUE(AskMotorSpeed(Model, Dialogs));
  EXPECT_EQ(Model.Settings().BoatMotorSpeed, 4.5F);
  EXPECT_EQ(Dialogs.Questions[0].Title, "Polar Plot - Target Bearing");
  EXPECT_EQ(Dialogs.Questions[0].Text, "Enter the Target Bearing.");
  EXPECT_EQ(Dialogs.Questions[1].Title, "Polar Plot - Motor Speed");
  EXPECT_EQ(Dialogs.Questions[1].Text, "Enter the Motor Only Speed to Traget/Waypoint.");
}

TEST_F(PolarModelTest, AsksForTheColour) {
  EXPECT_FALSE(AskColor(Model, Dialogs));
  EXPECT_EQ(Model.Settings().SpeedColor, 0U);
  Dialogs.Colour = 0x0080FFU;
  EXPECT_TRUE(AskColor(Model, Dialogs));
  EXPECT_EQ(Model.Settings().SpeedColor, 0x0080FFU);
}

TEST_F(PolarModelTest, TellsWhatIsWrongWithAFileThatIsOpened) {
  WriteFile(Program / "bad.pol", "polar\n");
  WriteFile(Program / "cut.pol", "TWA\t6\n90\t5");
  Dialogs.Files = {std::nullopt, (Program / "bad.pol").string(), (Program / "cut.pol").string()};
  EXPECT_FALSE(AskOpen(Model, PolarModel::kMain, Dialogs));
  EXPECT_EQ(Dialogs.FileDialogs[0].Title, "(*.pol)|*.pol");
  EXPECT_EQ(Dialogs.FileDialogs[0].Text, (Program / kDefaultPolar).string());
  EXPECT_TRUE(AskOpen(Model, PolarModel::kMain, Dialogs));
  ASSERT_EQ(Dialogs.Messages.size(), 1U);
  EXPECT_EQ(Dialogs.Messages[0].Text, "Polar File Error: No TWA Data");
  EXPECT_TRUE(AskOpen(Model, PolarModel::kMain, Dialogs));
  EXPECT_EQ(Dialogs.Messages.size(), 1U) << "a last line without an end is not told";
}

TEST_F(PolarModelTest, SavesUnderANewName) {
  const std::string file = (Program / "new.pol").string();
  Dialogs.Files = {std::nullopt, file};
  EXPECT_FALSE(PolarSaveAs(Model, Dialogs));
  EXPECT_TRUE(PolarSaveAs(Model, Dialogs));
  EXPECT_TRUE(Dialogs.Warnings.empty());
  EXPECT_EQ(Model.Settings().File[0], file);
  EXPECT_EQ(ReadFile(file).substr(0, 16), "TWA\t6\t10\t14\t20\r\n");
  EXPECT_EQ(Dialogs.FileDialogs[1].Title, "(*.pol)|*.pol");
  EXPECT_EQ(Dialogs.FileDialogs[1].Text, (Program / kDefaultPolar).string());
}

TEST_F(PolarModelTest, OffersTheFactorOneAfterItSavedAScaledPolar) {
  const std::string file = (Program / "scaled.pol").string();
  Dialogs.Texts = {"0.9", "0.9"};
  AskScaling(Model, Dialogs);
  Dialogs.Files = {file, file};
  Dialogs.Answers = {true};
  EXPECT_TRUE(PolarSaveAs(Model, Dialogs));
  ASSERT_EQ(Dialogs.Warnings.size(), 1U);
  EXPECT_EQ(Dialogs.Warnings[0].Title, "AutoPilot - Save As");
  EXPECT_EQ(Dialogs.Warnings[0].Text,
            "The file holds the scaled speeds. With the scaling factor of 0.90 the next start scales them "
            "again.\nSet the factor to 1?");
  EXPECT_EQ(Model.Settings().SpeedFactor, 1.0F);
  EXPECT_FLOAT_EQ(Model.Table().Value(0, 1, 1), 3.6F);
  EXPECT_EQ(Model.Name(PolarModel::kMain), "scaled");
  ASSERT_TRUE(Model.Load(PolarModel::kMain).Loaded);
  EXPECT_FLOAT_EQ(Model.Table().Value(0, 1, 1), 3.6F) << "as at the next start";

  AskScaling(Model, Dialogs);
  Dialogs.Answers = {true, false};
  EXPECT_TRUE(PolarSaveAs(Model, Dialogs));
  EXPECT_EQ(Model.Settings().SpeedFactor, 0.9F) << "the answer was No";
}

TEST_F(PolarModelTest, AsksBeforeItReplacesAFileThatHoldsSomething) {
  const std::string file = (Program / "old.pol").string();
  WriteFile(file, "old");
  WriteFile(Program / "empty.pol", "");
  Dialogs.Files = {file, file, (Program / "empty.pol").string()};
  Dialogs.Answers = {false, true};
  EXPECT_FALSE(PolarSaveAs(Model, Dialogs));
  EXPECT_EQ(ReadFile(file), "old");
  EXPECT_EQ(Model.Settings().File[0], kDefaultPolar);
  EXPECT_EQ(Dialogs.Warnings[0].Title, "AutoPilot - Save As");
  EXPECT_EQ(Dialogs.Warnings[0].Text, file + "file already exists.\nDo you want to replace it?");
  EXPECT_TRUE(PolarSaveAs(Model, Dialogs));
  EXPECT_EQ(ReadFile(file).substr(0, 3), "TWA");
  EXPECT_TRUE(PolarSaveAs(Model, Dialogs));
  EXPECT_EQ(Dialogs.Warnings.size(), 2U) << "an empty file is nothing to ask about";
}

TEST_F(PolarModelTest, TellsWhySavingFailedAndKeepsItsName) {
  WriteFile(Program / "file", "x");
  Dialogs.Files = {(Program / "file" / "a.pol").string()};
  EXPECT_FALSE(PolarSaveAs(Model, Dialogs));
  ASSERT_EQ(Dialogs.Messages.size(), 1U);
  EXPECT_NE(Dialogs.Messages[0].Text.find("a.pol"), std::string::npos);
  EXPECT_EQ(Model.Settings().File[0], kDefaultPolar);
}

// What is drawn

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
  EXPECT_NEAR(moving.Boat->Point.X, 75.0, 1e-3);
  EXPECT_NEAR(moving.Boat->Point.Y, 150.0, 1e-3);
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
