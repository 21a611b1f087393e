// Messages and the foreground on real widgets.

#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QtTest/QTest>
#include <memory>

#include "platform/DialogsQt.h"
#include "platform/WindowDialogsQt.h"
#include "tests/support/WaitQt.h"

namespace veerwatch {
namespace {

TEST(DialogsQt, DoesNotWaitForAMessageToBeRead) {
  DialogsQt dialogs;
  dialogs.Inform("Title", "Something\ris wrong");
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  QMessageBox* shown = nullptr;
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (auto* box = qobject_cast<QMessageBox*>(widget); box != nullptr && box->isVisible()) {
      shown = box;
    }
  }
  ASSERT_NE(shown, nullptr);
  EXPECT_EQ(shown->text(), QStringLiteral("Something\nis wrong"));
  shown->close();
}

TEST(DialogsQt, AMessageOutlivesTheOneThatWasOpenBefore) {
  QWidget window;
  window.show();
  DialogsQt dialogs;
  dialogs.Window(&window);
  window.activateWindow();
  ASSERT_TRUE(WaitActive(window));
  dialogs.Inform("Title", "First");
  auto* first = window.findChild<QMessageBox*>();
  ASSERT_NE(first, nullptr);
  first->activateWindow();
  ASSERT_TRUE(WaitActive(*first));
  dialogs.Inform("Title", "Second");
  first->close();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  auto* second = window.findChild<QMessageBox*>();
  ASSERT_NE(second, nullptr);
  EXPECT_EQ(second->text(), QStringLiteral("Second"));
  EXPECT_TRUE(second->isVisible());
}

/// A main window and another one, which is active.
class DialogsQtForeground : public testing::Test {
 public:
  QWidget Main;
  QWidget Other;
  DialogsQt Dialogs;

  DialogsQtForeground() {
    Main.show();
    Other.show();
    Dialogs.Window(&Main);
    GoToOther();
  }
  void GoToOther() {
    Other.activateWindow();
    EXPECT_TRUE(WaitActive(Other));
  }
};

TEST_F(DialogsQtForeground, ActivatesTheMainWindow) {
  EXPECT_FALSE(Dialogs.IsForeground());
  Dialogs.ToForeground();
  ASSERT_TRUE(WaitActive(Main));
  EXPECT_TRUE(Dialogs.IsForeground());
}

TEST_F(DialogsQtForeground, NeedsAMainWindow) {
  DialogsQt none;
  none.ToForeground();
  EXPECT_FALSE(none.IsForeground());
  EXPECT_TRUE(Other.isActiveWindow());
}

TEST_F(DialogsQtForeground, LeavesTheQuestionOfAnotherWindowOpenBehind) {
  const auto asks = Dialogs.Of(Other);
  asks->AskYesNo("Title", "Text", [](bool) {});
  QWidget& question = FrontOf(Other);
  ASSERT_TRUE(WaitActive(question));
  Dialogs.ToForeground();
  EXPECT_TRUE(WaitActive(Main));
  EXPECT_TRUE(question.isVisible());
}

TEST_F(DialogsQtForeground, BringsTheQuestionOfTheMainWindowAlong) {
  const auto asks = Dialogs.Of(Main);
  asks->AskYesNo("Title", "Text", [](bool) {});
  QWidget& question = FrontOf(Main);
  Dialogs.ToForeground();
  EXPECT_TRUE(WaitActive(question));
  GoToOther();
  Dialogs.ToForeground();
  EXPECT_TRUE(WaitActive(question));
}

}  // namespace
}  // namespace veerwatch
