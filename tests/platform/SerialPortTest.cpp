#include "platform/SerialPort.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <utility>

#include "tests/support/PortOwner.h"
#include "tests/support/ScriptedPort.h"

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

using testing::ElementsAre;
using testing::IsEmpty;

TEST(SerialPortConnection, TellsTheOwnerUntilTheOwnerGoes) {
  ScriptedPort port;
  auto owner = std::make_unique<PortOwner>(port);
  port.Receive("x");
  EXPECT_EQ(owner->Text, "x");
  owner.reset();
  port.Receive("y");
  port.Raise(CommEvent::kBreak);
  port.Lose();
  EXPECT_EQ(port.Waiting, "y") << "nobody reads it";
}

TEST(SerialPortConnection, MayOutliveThePort) {
  auto port = std::make_unique<ScriptedPort>();
  const PortOwner owner(*port);
  port->Receive("x");
  port.reset();
  EXPECT_EQ(owner.Text, "x");
}

TEST(SerialPortConnection, ReplacesTheOneBefore) {
  ScriptedPort port;
  auto first = std::make_unique<PortOwner>(port);
  PortOwner second(port);
  port.Raise(CommEvent::kFrame);
  EXPECT_THAT(first->Codes, IsEmpty());
  first.reset();
  port.Raise(CommEvent::kBreak);
  EXPECT_THAT(second.Codes, ElementsAre(CommEvent::kFrame, CommEvent::kBreak));
}

/// Only counts what it hears.
class Listener : public SerialPort::Events {
 public:
  void OnComm(int /*commEvent*/) override { ++Heard; }
  void OnPortLost() override {}
  int Heard = 0;
};

TEST(SerialPortConnection, LastsWhereItIsMoved) {
  ScriptedPort port;
  Listener listener;
  std::optional<SerialPort::Connection> connection(port.Connect(listener));
  SerialPort::Connection kept(std::move(*connection));
  connection.reset();
  port.Raise(CommEvent::kBreak);
  EXPECT_EQ(listener.Heard, 1);
  kept = SerialPort::Connection();
  port.Raise(CommEvent::kBreak);
  EXPECT_EQ(listener.Heard, 1);
}

TEST(SerialPortConnection, EndsWhenAnotherTakesItsPlace) {
  ScriptedPort one;
  ScriptedPort other;
  Listener listener;
  SerialPort::Connection connection = one.Connect(listener);
  connection = other.Connect(listener);
  one.Raise(CommEvent::kBreak);
  EXPECT_EQ(listener.Heard, 0);
  other.Raise(CommEvent::kBreak);
  EXPECT_EQ(listener.Heard, 1);
}

}  // namespace
}  // namespace veerwatch
