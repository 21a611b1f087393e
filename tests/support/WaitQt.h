// Waiting for what the event loop brings, for tests with GoogleTest. QtTest's own macros fail only under
// QtTest: its own waiting comparison waits for its limit and the test goes on and passes.
#pragma once

#include <gtest/gtest.h>

#include <QDebug>
#include <QWidget>
#include <QtTest/QTest>
#include <functional>

namespace veerwatch {

/// What a wait takes before it gives up [ms]: far more than is needed, so that a busy machine fails no test.
inline constexpr int kWaitLimit = 10000;

/// Runs the event loop until `condition` holds, for at most `limit` [ms]. The answer says whether it held, so
/// it belongs into EXPECT_TRUE or ASSERT_TRUE.
[[nodiscard]] inline testing::AssertionResult WaitFor(const std::function<bool()>& condition,
                                                      int limit = kWaitLimit) {
  if (QTest::qWaitFor(condition, limit)) {
    return testing::AssertionSuccess();
  }
  return testing::AssertionFailure() << "did not come in " << limit << " ms";
}

/// Runs the event loop until `window` itself is the one that the user works in. To QTest's own wait a dialog
/// and its window are one.
[[nodiscard]] inline testing::AssertionResult WaitActive(const QWidget& window) {
  return WaitFor([&] { return window.isActiveWindow(); });
}

/// As WaitFor, until `value()` is `expected`. A failure shows the value that stood there at the end.
template <class Value, class Expected>
[[nodiscard]] testing::AssertionResult WaitForEqual(Value&& value, const Expected& expected,
                                                    int limit = kWaitLimit) {
  testing::AssertionResult result = WaitFor([&] { return value() == expected; }, limit);
  if (!result) {
    QString texts;
    QDebug(&texts).nospace() << value() << ", expected " << expected;
    result << ": it is " << texts.toStdString();
  }
  return result;
}

}  // namespace veerwatch
