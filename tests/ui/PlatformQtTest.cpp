// The real timer and termination requests.

#include <gtest/gtest.h>

#include <QObject>
#include <QtTest/QTest>
#include <csignal>

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
