// Opening what is no polar of this program.
#include <gtest/gtest.h>

#include <string>

#include "polar/PolarQuestions.h"
#include "tests/polar/PolarModelFixture.h"

namespace veerwatch {
namespace {

class PolarConvertTest : public PolarModelTest {
 public:
  PolarConvertTest() { WriteFile(Program / "b.csv", "twa/tws;6;8,5\n40,5;4;5\n90;6;7\n"); }
  std::string File(const char* name) const { return (Program / name).string(); }
};

TEST_F(PolarConvertTest, OffersToConvertAnotherSpellingAndOpensWhatComesOut) {
  Dialogs.Files = {File("b.csv"), File("mine.pol")};
  Dialogs.Answers = {true};
  EXPECT_TRUE(Took(&PolarQuestions::AskOpen, int{PolarModel::kMain}));
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
  EXPECT_TRUE(Took(&PolarQuestions::AskOpen, int{PolarModel::kReference}));
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
  EXPECT_TRUE(Took(&PolarQuestions::AskOpen, int{PolarModel::kMain}));
  EXPECT_EQ(Dialogs.Questions.size(), 1U);
  EXPECT_TRUE(Dialogs.Messages.empty());
  EXPECT_TRUE(Took(&PolarQuestions::AskOpen, int{PolarModel::kMain}));
  EXPECT_EQ(Dialogs.Questions.size(), 1U);
  EXPECT_EQ(Dialogs.Messages.size(), 1U);
}

TEST_F(PolarConvertTest, ConvertsNothingWhenNobodyWants) {
  const auto names = Program.Names();
  Dialogs.Files = {File("b.csv")};
  Dialogs.Answers = {false};
  EXPECT_TRUE(Took(&PolarQuestions::AskOpen, int{PolarModel::kMain}));
  Dialogs.Files = {File("b.csv"), std::nullopt};
  Dialogs.Answers = {true};
  EXPECT_TRUE(Took(&PolarQuestions::AskOpen, int{PolarModel::kMain}));
  // A file that is there is replaced only after a second question.
  Dialogs.Files = {File("b.csv"), File(kDefaultPolar)};
  Dialogs.Answers = {true, false};
  EXPECT_TRUE(Took(&PolarQuestions::AskOpen, int{PolarModel::kMain}));
  EXPECT_EQ(Dialogs.Warnings.size(), 1U);
  EXPECT_EQ(Program.Names(), names);
  EXPECT_EQ(ReadFile(Program / kDefaultPolar), kSmallPolar);
  EXPECT_TRUE(Dialogs.Messages.empty()) << "each question told what was wrong";
}

TEST_F(PolarConvertTest, TellsWhatIsNoPolarAtAllAndWhatCannotBeWritten) {
  WriteFile(Program / "c.pol", "a letter\n");
  Dialogs.Files = {File("c.pol"), File("missing.pol")};
  EXPECT_TRUE(Took(&PolarQuestions::AskOpen, int{PolarModel::kMain}));
  EXPECT_TRUE(Took(&PolarQuestions::AskOpen, int{PolarModel::kMain}));
  EXPECT_TRUE(Dialogs.Questions.empty());
  ASSERT_EQ(Dialogs.Messages.size(), 2U);
  EXPECT_EQ(Dialogs.Messages[0].Text, "Polar File Error: No TWA Data");
  Dialogs.Files = {File("b.csv"), File("b.csv/x.pol")};
  Dialogs.Answers = {true};
  EXPECT_TRUE(Took(&PolarQuestions::AskOpen, int{PolarModel::kMain}));
  ASSERT_EQ(Dialogs.Messages.size(), 3U);
  EXPECT_EQ(Dialogs.Messages[2].Text.rfind("cannot write ", 0), 0U);
}

TEST_F(PolarConvertTest, ConvertsWhatTheFileHeldWhenItWasAskedAbout) {
  Dialogs.Later = true;
  Dialogs.Files = {File("b.csv"), File("mine.pol")};
  Dialogs.Answers = {true};
  Questions.AskOpen(PolarModel::kMain);
  Dialogs.Answer();
  ASSERT_EQ(Dialogs.Questions.size(), 1U);
  std::filesystem::remove(Program / "b.csv");
  Dialogs.Answer();
  ASSERT_EQ(Dialogs.FileDialogs.size(), 2U);
  Dialogs.Answer();
  EXPECT_EQ(Model.Settings().File[0], File("mine.pol"));
  EXPECT_EQ(Model.Table().PolarRows(0), 2);
}

TEST_F(PolarConvertTest, TellsInTheQuestionWhatIsLeftOut) {
  std::string wide = "TWA";
  for (int wind = 0; wind <= 60; ++wind) {
    wide += "\t" + std::to_string(wind);
  }
  WriteFile(Program / "wide.pol", wide + "\n40\t5\n90\t6\n");
  Dialogs.Files = {File("wide.pol")};
  EXPECT_TRUE(Took(&PolarQuestions::AskOpen, int{PolarModel::kMain}));
  ASSERT_EQ(Dialogs.Questions.size(), 1U);
  EXPECT_EQ(Dialogs.Questions[0].Text.rfind("Polar File Error: more than 50 wind speeds\n", 0), 0U);
  EXPECT_NE(Dialogs.Questions[0].Text.find("(of 61 wind speeds 50 are kept)"), std::string::npos);
}

}  // namespace
}  // namespace veerwatch
