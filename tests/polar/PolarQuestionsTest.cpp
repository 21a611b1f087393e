#include "polar/PolarQuestions.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "platform/NumberText.h"
#include "tests/polar/PolarModelFixture.h"

namespace veerwatch {
namespace {

TEST_F(PolarModelTest, AsksForTheRange) {
  Dialogs.Texts = {"7.5", "", "x", std::nullopt, "-2"};
  EXPECT_TRUE(Took(&PolarQuestions::AskRange));
  EXPECT_EQ(Model.Settings().SpeedRange, 7.5F);
  for (int i = 0; i < 4; ++i) {
    EXPECT_FALSE(Took(&PolarQuestions::AskRange));
    EXPECT_EQ(Model.Settings().SpeedRange, 7.5F);
  }
  EXPECT_EQ(Dialogs.Questions[0].Title, "Polar Plot - Speed Range");
  EXPECT_EQ(Dialogs.Questions[0].Text, "Enter the maximun speed (Kts) for the polar plot display.");
  EXPECT_EQ(Dialogs.Presets[0], "10");
  EXPECT_EQ(Dialogs.Presets[1], "7.5");
}

TEST_F(PolarModelTest, AsksForTheFactorAndLoadsTheOwnPolarAnew) {
  Dialogs.Texts = {"0.5"};
  EXPECT_TRUE(Took(&PolarQuestions::AskScaling));
  EXPECT_EQ(Model.Table().Value(0, 1, 1), 2.0F);
  EXPECT_EQ(Dialogs.Questions[0].Title, "AutoPilot - Polar Plot - Speed Factor");
  EXPECT_EQ(Dialogs.Questions[0].Text,
            "Enter the scaling factor, used to scale the polar plot speed data.  The scaling factor is "
            "normally set to 1, but can be set to other values to compensate for bad weather or heavy "
            "displacement.");
  EXPECT_EQ(Dialogs.Presets[0], "1");
  Dialogs.Texts = {"2"};
  EXPECT_TRUE(Took(&PolarQuestions::AskScaling));
  EXPECT_EQ(Model.Table().Value(0, 1, 1), 8.0F) << "from the file, not from what was scaled before";
}

TEST_F(PolarModelTest, AsksWhetherAPercentageWasMeant) {
  const std::vector<std::pair<const char*, const char*>> meant{
      {"90", "0.90"}, {"4", "0.04"}, {"105", "1.05"}, {"99.5", "0.995"}};
  for (const auto& [entered, likely] : meant) {
    Dialogs.Texts = {entered};
    Dialogs.Answers = {true};
    Dialogs.Warnings.clear();
    EXPECT_TRUE(Took(&PolarQuestions::AskScaling));
    ASSERT_EQ(Dialogs.Warnings.size(), 1U) << entered;
    EXPECT_EQ(Dialogs.Warnings[0].Title, "AutoPilot - Polar Plot - Speed Factor");
    EXPECT_EQ(Dialogs.Warnings[0].Text, std::string("Did you mean ") + likely + "?");
    EXPECT_EQ(Model.Settings().SpeedFactor, StrictNumber(likely));
  }
  Dialogs.Texts = {"90"};
  Dialogs.Answers = {false};
  EXPECT_TRUE(Took(&PolarQuestions::AskScaling));
  EXPECT_EQ(Model.Settings().SpeedFactor, 90.0F) << "the answer was No";
  Dialogs.Warnings.clear();
  Dialogs.Texts = {"3"};
  EXPECT_TRUE(Took(&PolarQuestions::AskScaling));
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
  EXPECT_TRUE(Took(&PolarQuestions::AskTargetBearing));
  EXPECT_EQ(Model.Settings().CourseTargetBearing, 1.0F);
  EXPECT_TRUE(Took(&PolarQuestions::AskMotorSpeed));
  EXPECT_EQ(Model.Settings().BoatMotorSpeed, 4.5F);
  EXPECT_EQ(Dialogs.Questions[0].Title, "Polar Plot - Target Bearing");
  EXPECT_EQ(Dialogs.Questions[0].Text, "Enter the Target Bearing.");
  EXPECT_EQ(Dialogs.Questions[1].Title, "Polar Plot - Motor Speed");
  EXPECT_EQ(Dialogs.Questions[1].Text, "Enter the Motor Only Speed to Traget/Waypoint.");
}

TEST_F(PolarModelTest, AsksForTheColour) {
  EXPECT_FALSE(Took(&PolarQuestions::AskColor));
  EXPECT_EQ(Model.Settings().SpeedColor, 0U);
  Dialogs.PickedColours = {0x0080FFU};
  EXPECT_TRUE(Took(&PolarQuestions::AskColor));
  EXPECT_EQ(Model.Settings().SpeedColor, 0x0080FFU);
}

TEST_F(PolarModelTest, TellsWhatIsWrongWithAFileThatIsOpened) {
  WriteFile(Program / "bad.pol", "polar\n");
  WriteFile(Program / "cut.pol", "TWA\t6\n90\t5");
  Dialogs.Files = {std::nullopt, (Program / "bad.pol").string(), (Program / "cut.pol").string()};
  EXPECT_FALSE(Took(&PolarQuestions::AskOpen, int{PolarModel::kMain}));
  EXPECT_EQ(Dialogs.FileDialogs[0].Title, "(*.pol)|*.pol");
  EXPECT_EQ(Dialogs.FileDialogs[0].Text, (Program / kDefaultPolar).string());
  EXPECT_TRUE(Took(&PolarQuestions::AskOpen, int{PolarModel::kMain}));
  ASSERT_EQ(Dialogs.Messages.size(), 1U);
  EXPECT_EQ(Dialogs.Messages[0].Text, "Polar File Error: No TWA Data");
  EXPECT_TRUE(Took(&PolarQuestions::AskOpen, int{PolarModel::kMain}));
  EXPECT_EQ(Dialogs.Messages.size(), 1U) << "a last line without an end is not told";
}

TEST_F(PolarModelTest, SavesUnderANewName) {
  const std::string file = (Program / "new.pol").string();
  Dialogs.Files = {std::nullopt, file};
  EXPECT_FALSE(Took(&PolarQuestions::SaveAs));
  EXPECT_TRUE(Took(&PolarQuestions::SaveAs));
  EXPECT_TRUE(Dialogs.Warnings.empty());
  EXPECT_EQ(Model.Settings().File[0], file);
  EXPECT_EQ(ReadFile(file).substr(0, 16), "TWA\t6\t10\t14\t20\r\n");
  EXPECT_EQ(Dialogs.FileDialogs[1].Title, "(*.pol)|*.pol");
  EXPECT_EQ(Dialogs.FileDialogs[1].Text, (Program / kDefaultPolar).string());
}

TEST_F(PolarModelTest, OffersTheFactorOneAfterItSavedAScaledPolar) {
  const std::string file = (Program / "scaled.pol").string();
  Dialogs.Texts = {"0.9", "0.9"};
  Questions.AskScaling();
  Dialogs.Files = {file, file};
  Dialogs.Answers = {true};
  EXPECT_TRUE(Took(&PolarQuestions::SaveAs));
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

  Questions.AskScaling();
  Dialogs.Answers = {true, false};
  EXPECT_TRUE(Took(&PolarQuestions::SaveAs));
  EXPECT_EQ(Model.Settings().SpeedFactor, 0.9F) << "the answer was No";
}

TEST_F(PolarModelTest, AsksBeforeItReplacesAFileThatHoldsSomething) {
  const std::string file = (Program / "old.pol").string();
  WriteFile(file, "old");
  WriteFile(Program / "empty.pol", "");
  Dialogs.Files = {file, file, (Program / "empty.pol").string()};
  Dialogs.Answers = {false, true};
  EXPECT_FALSE(Took(&PolarQuestions::SaveAs));
  EXPECT_EQ(ReadFile(file), "old");
  EXPECT_EQ(Model.Settings().File[0], kDefaultPolar);
  EXPECT_EQ(Dialogs.Warnings[0].Title, "AutoPilot - Save As");
  EXPECT_EQ(Dialogs.Warnings[0].Text, file + "file already exists.\nDo you want to replace it?");
  EXPECT_TRUE(Took(&PolarQuestions::SaveAs));
  EXPECT_EQ(ReadFile(file).substr(0, 3), "TWA");
  EXPECT_TRUE(Took(&PolarQuestions::SaveAs));
  EXPECT_EQ(Dialogs.Warnings.size(), 2U) << "an empty file is nothing to ask about";
}

TEST_F(PolarModelTest, TellsWhySavingFailedAndKeepsItsName) {
  WriteFile(Program / "file", "x");
  Dialogs.Files = {(Program / "file" / "a.pol").string()};
  EXPECT_FALSE(Took(&PolarQuestions::SaveAs));
  ASSERT_EQ(Dialogs.Messages.size(), 1U);
  EXPECT_NE(Dialogs.Messages[0].Text.find("a.pol"), std::string::npos);
  EXPECT_EQ(Model.Settings().File[0], kDefaultPolar);
}

// Between question and answer

TEST_F(PolarModelTest, TakesAnAnswerWhenItComesAndNotBefore) {
  Dialogs.Later = true;
  Dialogs.Texts = {"7.5"};
  Questions.AskRange();
  EXPECT_EQ(Model.Settings().SpeedRange, 10.0F);
  EXPECT_EQ(Changes, 0);
  Model.Update(TrackMode::Track, Sailing(60.0F, 10.0F, 6.0F), true);
  Dialogs.Answer();
  EXPECT_EQ(Model.Settings().SpeedRange, 7.5F);
  EXPECT_EQ(Changes, 1);
  EXPECT_FALSE(Dialogs.Open());
}

TEST_F(PolarModelTest, AsksTheSecondQuestionAfterTheFirst) {
  Dialogs.Later = true;
  Dialogs.Texts = {"90"};
  Dialogs.Answers = {true};
  Questions.AskScaling();
  EXPECT_TRUE(Dialogs.Warnings.empty());
  Dialogs.Answer();
  ASSERT_EQ(Dialogs.Warnings.size(), 1U);
  EXPECT_EQ(Model.Settings().SpeedFactor, 1.0F);
  Dialogs.Answer();
  EXPECT_EQ(Model.Settings().SpeedFactor, 0.9F);
  EXPECT_FLOAT_EQ(Model.Table().Value(0, 1, 1), 3.6F);
}

TEST_F(PolarModelTest, AWithdrawnQuestionChangesNothing) {
  Dialogs.Later = true;
  Dialogs.Texts = {"90"};
  Dialogs.Answers = {true};
  Questions.AskScaling();
  Dialogs.Answer();
  ASSERT_TRUE(Dialogs.Open());
  Asks.reset();
  Dialogs.Answer();
  EXPECT_EQ(Model.Settings().SpeedFactor, 1.0F);
  EXPECT_EQ(Changes, 0);
}

TEST_F(PolarModelTest, AsksOneQuestionAtATime) {
  Dialogs.Later = true;
  Questions.AskRange();
  Questions.AskRange();
  Questions.AskColor();
  Questions.AskOpen(PolarModel::kMain);
  EXPECT_EQ(Dialogs.Questions.size(), 1U);
  EXPECT_TRUE(Dialogs.Colours.empty());
  EXPECT_TRUE(Dialogs.FileDialogs.empty());
  EXPECT_EQ(Dialogs.Refused, 3);
}

TEST_F(PolarModelTest, OffersTheFactorOneForTheFactorOfTheQuestionOnly) {
  Dialogs.Texts = {"0.9"};
  Questions.AskScaling();
  Dialogs.Files = {(Program / "scaled.pol").string()};
  Dialogs.Later = true;
  Questions.SaveAs();
  Dialogs.Answer();
  ASSERT_EQ(Dialogs.Warnings.size(), 1U);
  Model.Factor(0.8F);
  Dialogs.Answers = {true};
  Dialogs.Answer();
  EXPECT_EQ(Model.Settings().SpeedFactor, 0.8F);
}

}  // namespace
}  // namespace veerwatch
