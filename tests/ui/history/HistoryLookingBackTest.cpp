// How the user moves the chart through the time, driven by real events.

#include <QPushButton>
#include <QWheelEvent>

#include "tests/ui/history/HistoryTester.h"

namespace veerwatch {
namespace {

class HistoryLookingBack : public HistoryTester {
 public:
  void Wheel(int notches, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    const QPointF at(100.0, 100.0);
    QWheelEvent event(at, Chart().mapToGlobal(at), QPoint(), QPoint(0, 120 * notches), Qt::NoButton,
                      modifiers, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&Chart(), &event);
  }

  std::int64_t EndSlot() { return Chart().Picture().EndSlot; }
  std::int64_t Now() { return Chart().Data().LastSlot() + 1; }
};

TEST_F(HistoryLookingBack, TheWheelLooksBackAndTheButtonReturns) {
  Load();
  Window->resize(600, 400);
  RecordHeading(1000);
  Show();
  EXPECT_TRUE(Chart().FollowsNow());
  EXPECT_FALSE(Find<QPushButton>("cmdNow").isVisible());
  Wheel(2);
  EXPECT_FALSE(Chart().FollowsNow());
  EXPECT_EQ(EndSlot(), Now() - 45);  // two eighths of thirty minutes
  EXPECT_TRUE(Find<QPushButton>("cmdNow").isVisible());
  QTest::mouseClick(&Find<QPushButton>("cmdNow"), Qt::LeftButton);
  EXPECT_TRUE(Chart().FollowsNow());
  EXPECT_EQ(EndSlot(), Now());
  EXPECT_FALSE(Find<QPushButton>("cmdNow").isVisible());
}

TEST_F(HistoryLookingBack, TheWheelEndsAtTheOldestValueAndAtNow) {
  Load();
  Window->resize(600, 400);
  RecordHeading(400);
  Show();
  Wheel(500);
  EXPECT_EQ(EndSlot(), 180);
  Wheel(-500);
  EXPECT_EQ(EndSlot(), Now());
  EXPECT_TRUE(Chart().FollowsNow());
}

TEST_F(HistoryLookingBack, WhatOneLooksBackAtStaysInPlaceWhileTimeGoesOn) {
  Load();
  Window->resize(600, 400);
  RecordHeading(1000);
  Show();
  Wheel(4);
  const std::int64_t end = EndSlot();
  for (int i = 0; i < 50; ++i) {
    Time.Pass(10000);
    Window->SetValue("Heading", 100.0F, "M");
  }
  Chart().Refresh();
  EXPECT_EQ(EndSlot(), end);
}

TEST_F(HistoryLookingBack, DraggingMovesTheTime) {
  Load();
  Window->resize(600, 400);
  RecordHeading(1000);
  Show();
  const double width = Chart().Picture().SlotWidth;
  QTest::mousePress(&Chart(), Qt::LeftButton, Qt::NoModifier, QPoint(100, 200));
  QTest::mouseMove(&Chart(), QPoint(250, 200));
  QTest::mouseRelease(&Chart(), Qt::LeftButton, Qt::NoModifier, QPoint(250, 200));
  EXPECT_NEAR(static_cast<double>(Now() - EndSlot()), 150.0 / width, 1.0);
  QTest::mousePress(&Chart(), Qt::LeftButton, Qt::NoModifier, QPoint(250, 200));
  QTest::mouseMove(&Chart(), QPoint(90, 200));
  QTest::mouseRelease(&Chart(), Qt::LeftButton, Qt::NoModifier, QPoint(90, 200));
  EXPECT_TRUE(Chart().FollowsNow());
}

TEST_F(HistoryLookingBack, KeysMoveTheTimeAndTheSpan) {
  Load();
  Window->resize(600, 400);
  RecordHeading(2000);
  Show();
  QTest::keyClick(&Chart(), Qt::Key_PageUp);
  EXPECT_EQ(EndSlot(), Now() - 180);
  QTest::keyClick(&Chart(), Qt::Key_Home);
  EXPECT_EQ(EndSlot(), 180);
  QTest::keyClick(&Chart(), Qt::Key_End);
  EXPECT_TRUE(Chart().FollowsNow());
  QTest::keyClick(&Chart(), Qt::Key_Minus);
  EXPECT_EQ(Chart().Settings().Span, 3600);
  for (int i = 0; i < 20; ++i) {
    QTest::keyClick(&Chart(), Qt::Key_Minus);
  }
  EXPECT_EQ(Chart().Settings().Span, 86400);
  for (int i = 0; i < 20; ++i) {
    QTest::keyClick(&Chart(), Qt::Key_Plus);
  }
  EXPECT_EQ(Chart().Settings().Span, 600);
  Wheel(-1, Qt::ControlModifier);
  EXPECT_EQ(Chart().Settings().Span, 1200);
}

TEST_F(HistoryLookingBack, CtrlAndTheWheelLoseNoNotchAfterScrolling) {
  Load();
  Window->resize(600, 400);
  RecordHeading(2000);
  Show();
  Wheel(1);  // 22 of 22.5 slots: a part of a notch is left over
  ASSERT_EQ(EndSlot(), Now() - 22);
  Wheel(-1, Qt::ControlModifier);
  EXPECT_EQ(Chart().Settings().Span, 3600);
  Wheel(1, Qt::ControlModifier);
  EXPECT_EQ(Chart().Settings().Span, 1800);
}

TEST_F(HistoryLookingBack, NotchesThatComeTogetherAllCount) {
  Load();
  Show();
  Wheel(-2, Qt::ControlModifier);
  EXPECT_EQ(Chart().Settings().Span, 7200);
  Wheel(3, Qt::ControlModifier);
  EXPECT_EQ(Chart().Settings().Span, 1200);
}

}  // namespace
}  // namespace veerwatch
