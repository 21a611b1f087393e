#include "platform/SerialPort.h"

#include <gtest/gtest.h>

namespace veerwatch {
namespace {

TEST(CommEventText, NamesTheLineErrors) {
  EXPECT_EQ(CommEventText(1001), "Break Signal Received");
  EXPECT_EQ(CommEventText(1004), "Framing Error");
  EXPECT_EQ(CommEventText(1006), "Port Overrun");
  EXPECT_EQ(CommEventText(1008), "Rx Overflow");
  EXPECT_EQ(CommEventText(1009), "Parity Error");
}

TEST(CommEventText, GivesTheNumberOfEveryOtherEvent) {
  EXPECT_EQ(CommEventText(1), "Event 1");
  EXPECT_EQ(CommEventText(1010), "Event 1010");
  EXPECT_EQ(CommEventText(0), "Event 0");
  EXPECT_EQ(CommEventText(-3), "Event -3");
}

TEST(CommEvent, HasTheNumbersThatPortsRaise) {
  EXPECT_EQ(CommEvent::kReceive, 2);
  EXPECT_EQ(CommEvent::kBreak, 1001);
  EXPECT_EQ(CommEvent::kFrame, 1004);
  EXPECT_EQ(CommEvent::kOverrun, 1006);
  EXPECT_EQ(CommEvent::kRxOver, 1008);
  EXPECT_EQ(CommEvent::kRxParity, 1009);
}

}  // namespace
}  // namespace veerwatch
