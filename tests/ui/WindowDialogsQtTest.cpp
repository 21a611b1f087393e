// The questions of a window on real widgets: what they hand over, what they block, and when they go.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTimer>
#include <QtTest/QTest>
#include <memory>
#include <optional>
#include <vector>

#include "platform/DialogsQt.h"
#include "platform/WindowDialogsQt.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/WaitQt.h"

namespace veerwatch {
namespace {

class WindowDialogsQtTest : public testing::Test {
 public:
  DialogsQt Dialogs;
  std::unique_ptr<QWidget> Window = std::make_unique<QWidget>();
  std::unique_ptr<WindowDialogs> Asks = Dialogs.Of(*Window);
  std::vector<bool> Said;                         ///< answers to questions with Yes and No
  std::vector<std::optional<std::string>> Texts;  ///< answers with a text or a file
  std::vector<std::optional<std::uint32_t>> Colours;

  const WindowDialogs::YesNo Yes = [this](bool yes) { Said.push_back(yes); };
  const WindowDialogs::Text Text = [this](const auto& text) { Texts.push_back(text); };
  const WindowDialogs::Colour Colour = [this](auto colour) { Colours.push_back(colour); };

  WindowDialogsQtTest() { Window->show(); }

  /// The dialog in front of `window`, of the kind that it has to be.
  template <class Dialog>
  static Dialog& Front(QWidget& window) {
    auto* dialog = qobject_cast<Dialog*>(&FrontOf(window));
    if (dialog == nullptr) {
      throw std::runtime_error("another dialog, or none");
    }
    return *dialog;
  }
  template <class Dialog>
  Dialog& Front() const {
    return Front<Dialog>(*Window);
  }
  bool IsAsking() const { return &FrontOf(*Window) != Window.get(); }

  static void Accept(QDialog& dialog) { QMetaObject::invokeMethod(&dialog, "accept"); }
  static void Press(QMessageBox& box, QMessageBox::StandardButton button) {
    QTest::mouseClick(box.button(button), Qt::LeftButton);
  }
};

TEST_F(WindowDialogsQtTest, AsksYesOrNoUnderASign) {
  Asks->AskYesNo("A title", "First\rSecond", Yes);
  auto& box = Front<QMessageBox>();
  EXPECT_EQ(box.windowTitle(), QStringLiteral("A title"));
  EXPECT_EQ(box.text(), QStringLiteral("First\nSecond"));
  EXPECT_EQ(box.icon(), QMessageBox::Information);
  EXPECT_TRUE(Said.empty()) << "nothing waits for the user";
  Press(box, QMessageBox::Yes);
  Asks->WarnYesNo("A title", "One\nTwo", Yes);
  EXPECT_EQ(Front<QMessageBox>().icon(), QMessageBox::Warning);
  Press(Front<QMessageBox>(), QMessageBox::No);
  EXPECT_EQ(Said, (std::vector{true, false}));
  EXPECT_FALSE(IsAsking());
}

TEST_F(WindowDialogsQtTest, ClosingAQuestionIsNo) {
  Asks->AskYesNo("Title", "Text", Yes);
  Front<QMessageBox>().close();
  Asks->AskYesNo("Title", "Text", Yes);
  QTest::keyClick(&Front<QMessageBox>(), Qt::Key_Escape);
  EXPECT_EQ(Said, (std::vector{false, false}));
}

TEST_F(WindowDialogsQtTest, GivesTheTextThatWasTyped) {
  Asks->AskText("Title", "A prompt", "10", Text);
  auto& dialog = Front<QInputDialog>();
  EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Title"));
  EXPECT_EQ(dialog.labelText(), QStringLiteral("A prompt"));
  EXPECT_EQ(dialog.textValue(), QStringLiteral("10"));
  auto* box = dialog.findChild<QLineEdit*>();
  box->selectAll();
  QTest::keyClicks(box, QStringLiteral("12.5"));
  QTest::keyClick(box, Qt::Key_Return);
  EXPECT_EQ(Texts, (std::vector<std::optional<std::string>>{"12.5"}));
}

TEST_F(WindowDialogsQtTest, GivesNothingWhenItIsCancelled) {
  Asks->AskText("Title", "A prompt", "10", Text);
  QTest::keyClick(&FrontOf(*Window), Qt::Key_Escape);
  Asks->OpenFile("(*.pol)|*.pol", "a.pol", Text);
  QTest::keyClick(&FrontOf(*Window), Qt::Key_Escape);
  Asks->PickColour(0x123456U, Colour);
  QTest::keyClick(&FrontOf(*Window), Qt::Key_Escape);
  EXPECT_EQ(Texts, (std::vector<std::optional<std::string>>(2)));
  EXPECT_EQ(Colours, (std::vector<std::optional<std::uint32_t>>(1)));
}

TEST_F(WindowDialogsQtTest, PacksColoursBlueFirst) {
  Asks->PickColour(0x123456U, Colour);
  auto& dialog = Front<QColorDialog>();
  EXPECT_EQ(dialog.currentColor(), QColor(0x56, 0x34, 0x12));
  dialog.setCurrentColor(QColor(1, 2, 3));
  Accept(dialog);
  EXPECT_EQ(Colours, (std::vector<std::optional<std::uint32_t>>{0x030201U}));
}

// Files

TEST_F(WindowDialogsQtTest, SavesOverAFileWithoutAskingItself) {
  const TemporaryFolder folder;
  WriteFile(folder / "old.pol", "old");
  Asks->SaveFile("(*.pol)|*.pol", (folder / "old.pol").string(), Text);
  auto& dialog = Front<QFileDialog>();
  EXPECT_EQ(dialog.nameFilters(), QStringList{QStringLiteral("(*.pol)")});
  EXPECT_EQ(dialog.defaultSuffix(), QStringLiteral("pol"));
  Accept(dialog);
  EXPECT_EQ(Texts, (std::vector<std::optional<std::string>>{(folder / "old.pol").string()}));
}

TEST_F(WindowDialogsQtTest, AsksBeforeAnExportReplacesAFile) {
  const TemporaryFolder folder;
  WriteFile(folder / "old.csv", "old");
  Asks->ExportFile("Save Data", "Comma-separated values (*.csv)", "old.csv", Text);
  auto& dialog = Front<QFileDialog>();
  EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Save Data"));
  dialog.setDirectory(QString::fromStdString(folder.Path().string()));
  dialog.selectFile(QStringLiteral("old.csv"));
  for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
    Accept(dialog);
    auto& box = Front<QMessageBox>(dialog);
    EXPECT_EQ(box.windowTitle(), QStringLiteral("Save Data"));
    EXPECT_EQ(box.text(), QStringLiteral("old.csv already exists.\nDo you want to replace it?"));
    EXPECT_EQ(box.windowModality(), Qt::WindowModal);
    EXPECT_TRUE(Texts.empty());
    EXPECT_TRUE(dialog.isVisible());
    Press(box, answer);
  }
  EXPECT_EQ(Texts, (std::vector<std::optional<std::string>>{(folder / "old.csv").string()}));
}

TEST_F(WindowDialogsQtTest, SaysThatAFileToOpenIsNotThere) {
  const TemporaryFolder folder;
  Asks->OpenFile("(*.pol)|*.pol", (folder / "none.pol").string(), Text);
  auto& dialog = Front<QFileDialog>();
  Accept(dialog);
  auto& box = Front<QMessageBox>(dialog);
  EXPECT_EQ(box.text(),
            QStringLiteral("none.pol\nFile not found.\nPlease verify the correct file name was given."));
  EXPECT_EQ(box.windowModality(), Qt::WindowModal);
  Press(box, QMessageBox::Ok);
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_TRUE(Texts.empty());
}

TEST_F(WindowDialogsQtTest, AQuestionOfTheToolkitItselfBlocksItsFileDialogAlone) {
  Asks->OpenFile("(*.pol)|*.pol", "a.pol", Text);
  auto& dialog = Front<QFileDialog>();
  QMessageBox box(&dialog);
  box.setModal(true);
  ASSERT_EQ(box.windowModality(), Qt::ApplicationModal);
  box.show();
  EXPECT_EQ(box.windowModality(), Qt::WindowModal);
}

// What is blocked

TEST_F(WindowDialogsQtTest, BlocksItsWindowAndNoOther) {
  QWidget other;
  QLineEdit here(Window.get());
  QLineEdit there(&other);
  here.show();
  other.show();
  const auto type = [](QWidget& window, QLineEdit& box) {
    window.activateWindow();
    box.setFocus();
    QTest::keyClick(window.windowHandle(), Qt::Key_A);
    return box.text().toStdString();
  };
  EXPECT_EQ(type(*Window, here), "a");
  Asks->PickColour(0U, Colour);
  EXPECT_EQ(type(*Window, here), "a");
  EXPECT_EQ(type(other, there), "a");
  QTest::keyClick(&FrontOf(*Window), Qt::Key_Escape);
  EXPECT_EQ(type(*Window, here), "aa");
}

TEST_F(WindowDialogsQtTest, AsksOneQuestionAtATime) {
  Asks->AskText("First", "A prompt", "", Text);
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(WaitActive(other));
  Asks->AskYesNo("Second", "Text", Yes);
  Asks->PickColour(0U, Colour);
  Asks->OpenFile("(*.pol)|*.pol", "a.pol", Text);
  auto& first = Front<QInputDialog>();
  EXPECT_EQ(Window->findChildren<QDialog*>().size(), 1);
  EXPECT_TRUE(WaitActive(first)) << "comes to the front";
  Accept(first);
  EXPECT_FALSE(IsAsking());
  EXPECT_EQ(Texts.size(), 1U);
  EXPECT_TRUE(Said.empty());
  EXPECT_TRUE(Colours.empty());
}

TEST_F(WindowDialogsQtTest, AnAnswerMayAskTheNextQuestion) {
  Asks->AskYesNo("First", "Text", [this](bool) { Asks->WarnYesNo("Second", "Text", Yes); });
  Press(Front<QMessageBox>(), QMessageBox::Yes);
  EXPECT_EQ(Front<QMessageBox>().windowTitle(), QStringLiteral("Second"));
  EXPECT_EQ(Front<QMessageBox>().parentWidget(), Window.get());
  Press(Front<QMessageBox>(), QMessageBox::Yes);
  EXPECT_EQ(Said, std::vector{true});
}

// When they go

TEST_F(WindowDialogsQtTest, AHiddenWindowTakesItsQuestionAlongUnanswered) {
  Asks->AskYesNo("Title", "Text", Yes);
  const auto* box = &Front<QMessageBox>();
  Window->close();
  EXPECT_FALSE(box->isVisible());
  Window->show();
  EXPECT_FALSE(IsAsking());
  EXPECT_TRUE(Said.empty());
  Asks->AskYesNo("Title", "Text", Yes);
  EXPECT_TRUE(IsAsking()) << "it may ask again";
}

TEST_F(WindowDialogsQtTest, IsWithdrawnFromWithinAMenuOfItsOwn) {
  Asks->OpenFile("(*.pol)|*.pol", "a.pol", Text);
  auto& dialog = Front<QFileDialog>();
  bool asked = false;
  QTimer::singleShot(0, Window.get(), [&] {
    asked = QApplication::activePopupWidget() != nullptr;
    Window->hide();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QTimer::singleShot(0, QApplication::activePopupWidget(), &QWidget::close);
  });
  auto* list = dialog.findChild<QAbstractItemView*>(QStringLiteral("listView"));
  QMetaObject::invokeMethod(list, "customContextMenuRequested", Q_ARG(QPoint, QPoint(3, 3)));
  EXPECT_TRUE(asked) << "the toolkit waits in its menu";
  EXPECT_FALSE(IsAsking());
  EXPECT_TRUE(Texts.empty());
}

TEST_F(WindowDialogsQtTest, ADestroyedWindowTakesItsQuestionAlongUnanswered) {
  Asks->AskText("Title", "Text", "", Text);
  const QPointer<QDialog> dialog = &Front<QInputDialog>();
  Window.reset();
  EXPECT_TRUE(dialog.isNull());
  EXPECT_TRUE(Texts.empty());
}

TEST_F(WindowDialogsQtTest, TheEndOfTheAskerWithdrawsItsQuestion) {
  Asks->AskText("Title", "Text", "", Text);
  Asks.reset();
  EXPECT_FALSE(IsAsking());
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(Texts.empty());
}

}  // namespace
}  // namespace veerwatch
