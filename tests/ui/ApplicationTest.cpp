// What the application does around every event.

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <QTimer>
#include <optional>

#include "tests/support/UpperHalves.h"
#include "tests/support/WaitQt.h"

namespace veerwatch {
namespace {

TEST(Application, EveryEventFindsTheUpperHalvesClear) {
  if (!UpperHalvesTell()) {
    GTEST_SKIP() << "this processor does not tell";
  }
  class Asked final : public QObject {
   public:
    bool event(QEvent* /*event*/) override {
      InUse = UpperHalvesInUse();
      return true;
    }
    std::optional<bool> InUse;
  };
  Asked asked;
  FillUpperHalves();
  QEvent any(QEvent::User);
  QCoreApplication::sendEvent(&asked, &any);
  EXPECT_EQ(asked.InUse, false);

  std::optional<bool> inTimer;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] { inTimer = UpperHalvesInUse(); });
  timer.setSingleShot(true);
  timer.start(0);
  FillUpperHalves();
  EXPECT_TRUE(WaitFor([&] { return inTimer.has_value(); }));
  EXPECT_EQ(inTimer, false);
}

}  // namespace
}  // namespace veerwatch
