// Input boxes, messages, file and colour dialogs on real widgets.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTimer>
#include <QtTest/QTest>
#include <functional>

#include "platform/DialogsQt.h"
#include "tests/support/TemporaryFolder.h"

namespace veerwatch {
namespace {

/// Does `then` with the modal dialog of a kind as soon as one shows.
template <class Dialog>
class WhenAsked : public QObject {
 public:
  explicit WhenAsked(std::function<void(Dialog&)> then) : m_then(std::move(then)) { startTimer(5); }
  bool Seen = false;

 protected:
  void timerEvent(QTimerEvent* /*event*/) override {
    auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
    if (dialog != nullptr && dialog->isVisible() && !Seen) {
      Seen = true;
      m_then(*dialog);
    }
  }

 private:
  std::function<void(Dialog&)> m_then;
};

TEST(DialogsQtInput, GivesTheTextThatWasTyped) {
  DialogsQt dialogs;
  WhenAsked<QInputDialog> user([](QInputDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Title"));
    EXPECT_EQ(dialog.labelText(), QStringLiteral("A prompt"));
    EXPECT_EQ(dialog.textValue(), QStringLiteral("10"));
    auto* box = dialog.findChild<QLineEdit*>();
    box->selectAll();
    QTest::keyClicks(box, QStringLiteral("12.5"));
    QTest::keyClick(box, Qt::Key_Return);
  });
  EXPECT_EQ(dialogs.AskText("Title", "A prompt", "10"), "12.5");
  EXPECT_TRUE(user.Seen);
}

TEST(DialogsQtInput, GivesNothingWhenItIsCancelled) {
  DialogsQt dialogs;
  WhenAsked<QDialog> user([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
  EXPECT_EQ(dialogs.AskText("Title", "A prompt", "10"), std::nullopt);
  EXPECT_TRUE(user.Seen);
  user.Seen = false;
  EXPECT_EQ(dialogs.PickColour(0x123456U), std::nullopt);
  EXPECT_TRUE(user.Seen);
  user.Seen = false;
  EXPECT_EQ(dialogs.OpenFile("(*.pol)|*.pol", "a.pol"), std::nullopt);
  EXPECT_TRUE(user.Seen);
}

TEST(DialogsQtInput, WarnsBeforeYesAndNo) {
  DialogsQt dialogs;
  WhenAsked<QMessageBox> user([](QMessageBox& box) {
    EXPECT_EQ(box.icon(), QMessageBox::Warning);
    EXPECT_EQ(box.text(), QStringLiteral("One\nTwo"));
    QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
  });
  EXPECT_TRUE(dialogs.WarnYesNo("Title", "One\nTwo"));
  EXPECT_TRUE(user.Seen);
}

TEST(DialogsQtInput, DoesNotWaitForAMessageToBeRead) {
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

TEST(DialogsQtInput, AMessageOutlivesTheOneThatWasOpenBefore) {
  QWidget window;
  window.show();
  DialogsQt dialogs;
  dialogs.Window(&window);
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  dialogs.Inform("Title", "First");
  auto* first = window.findChild<QMessageBox*>();
  ASSERT_NE(first, nullptr);
  first->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(first));
  dialogs.Inform("Title", "Second");
  first->close();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  auto* second = window.findChild<QMessageBox*>();
  ASSERT_NE(second, nullptr);
  EXPECT_EQ(second->text(), QStringLiteral("Second"));
  EXPECT_TRUE(second->isVisible());
}

TEST(DialogsQtInput, SavesOverAFileWithoutAskingItself) {
  const TemporaryFolder folder;
  WriteFile(folder / "old.pol", "old");
  DialogsQt dialogs;
  WhenAsked<QFileDialog> user([](QFileDialog& dialog) {
    EXPECT_EQ(dialog.nameFilters(), QStringList{QStringLiteral("(*.pol)")});
    EXPECT_TRUE(dialog.testOption(QFileDialog::DontConfirmOverwrite));
    EXPECT_EQ(dialog.defaultSuffix(), QStringLiteral("pol"));
    QMetaObject::invokeMethod(&dialog, "accept");
  });
  EXPECT_EQ(dialogs.SaveFile("(*.pol)|*.pol", (folder / "old.pol").string()), (folder / "old.pol").string());
  EXPECT_TRUE(user.Seen);
}

TEST(DialogsQtInput, PacksColoursBlueFirst) {
  DialogsQt dialogs;
  WhenAsked<QColorDialog> user([](QColorDialog& dialog) {
    EXPECT_EQ(dialog.currentColor(), QColor(0x56, 0x34, 0x12));
    dialog.setCurrentColor(QColor(1, 2, 3));
    QMetaObject::invokeMethod(&dialog, "accept");
  });
  EXPECT_EQ(dialogs.PickColour(0x123456U), 0x030201U);
  EXPECT_TRUE(user.Seen);
}

}  // namespace
}  // namespace veerwatch
