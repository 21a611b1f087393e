// The real timer, message boxes and termination requests.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <QtTest/QTest>
#include <csignal>

#include "platform/DialogsQt.h"
#include "platform/SignalsQt.h"
#include "platform/TimerQt.h"

namespace veerwatch {
namespace {

constexpr int kGenerous = 20000;  // [ms]

TEST(TimerQt, TicksWhileItIsEnabled) {
  TimerQt timer(QStringLiteral("tmrTest"));
  int ticks = 0;
  timer.Ticks([&] {
    if (++ticks == 3) {
      timer.Enabled(false);
    }
  });
  timer.Interval(1);
  EXPECT_FALSE(timer.Enabled());
  timer.Enabled(true);
  EXPECT_TRUE(timer.Enabled());
  EXPECT_TRUE(QTest::qWaitFor([&] { return !timer.Enabled(); }, kGenerous));
  EXPECT_EQ(ticks, 3);
}

class DialogsQtAsks : public testing::Test {
 public:
  /// Does `act` with the box once it is open, and gives the answer.
  template <class Act>
  bool Ask(Act act) {
    QTimer::singleShot(0, [act] { act(*qobject_cast<QMessageBox*>(QApplication::activeModalWidget())); });
    DialogsQt dialogs;
    return dialogs.AskYesNo("A title", "First\rSecond");
  }
};

TEST_F(DialogsQtAsks, YesAndNo) {
  EXPECT_TRUE(Ask([](QMessageBox& box) {
    EXPECT_EQ(box.text(), "First\nSecond");
    EXPECT_EQ(box.icon(), QMessageBox::Information);
    QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
  }));
  EXPECT_FALSE(Ask([](QMessageBox& box) { QTest::mouseClick(box.button(QMessageBox::No), Qt::LeftButton); }));
}

TEST_F(DialogsQtAsks, ClosingTheBoxIsNo) {
  EXPECT_FALSE(Ask([](QMessageBox& box) { box.close(); }));
  EXPECT_FALSE(Ask([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }));
}

TEST(DialogsQt, ToForegroundActivatesTheWindow) {
  QWidget window;
  QWidget other;
  DialogsQt dialogs;
  EXPECT_FALSE(dialogs.IsForeground());
  dialogs.ToForeground();
  dialogs.Window(&window);
  window.show();
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other, kGenerous));
  EXPECT_FALSE(dialogs.IsForeground());
  dialogs.ToForeground();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window, kGenerous));
  EXPECT_TRUE(dialogs.IsForeground());
}

TEST(SignalsQt, ARequestToEndArrivesInTheEventLoop) {
  QObject context;
  int requests = 0;
  OnTerminationRequest(&context, [&] { ++requests; });
  for (const int number : {SIGTERM, SIGINT}) {
    requests = 0;
    std::raise(number);
    EXPECT_EQ(requests, 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return requests == 1; }, kGenerous));
    std::signal(number, SIG_DFL);
  }
  std::signal(SIGHUP, SIG_DFL);
}

}  // namespace
}  // namespace veerwatch
