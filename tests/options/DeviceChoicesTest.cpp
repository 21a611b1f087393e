#include "options/DeviceChoices.h"

#include <gmock/gmock.h>

#include <set>

namespace veerwatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Choosing : public testing::Test {
 public:
  std::set<std::string> There{"/dev/ttyUSB0", "/dev/odd?baud=2, x"};

  DeviceChoices With(std::vector<PortEntry> named) {
    return {std::move(named), [this](const std::string& path) { return There.count(path) > 0; }};
  }
};

TEST_F(Choosing, ListsWhatIsPluggedInThenWhatIsNamed) {
  DeviceChoices choices = With({{1, "/dev/ttyUSB0?baud=38400"}, {7, "tcp://boat:10110, udp://:2000"}});
  EXPECT_THAT(
      choices.Rows(),
      ElementsAre(DeviceRow{"Port 1: /dev/ttyUSB0?baud=38400", "/dev/ttyUSB0?baud=38400"},
                  DeviceRow{"Port 7: tcp://boat:10110, udp://:2000", "tcp://boat:10110, udp://:2000"}));
  EXPECT_TRUE(choices.Plug({{"/dev/ttyS0", "", ""}, {"/dev/ttyUSB0", "USB UART", "A50285"}}));
  ASSERT_EQ(choices.Rows().size(), 4U);
  EXPECT_EQ(choices.Rows()[0], (DeviceRow{"/dev/ttyS0", "/dev/ttyS0"}));
  EXPECT_EQ(choices.Rows()[1],
            (DeviceRow{"/dev/ttyUSB0 - USB UART, serial number A50285 (port 1)", "/dev/ttyUSB0"}));
  EXPECT_EQ(choices.Rows()[2].Endpoint, "/dev/ttyUSB0?baud=38400");
}

TEST_F(Choosing, TheListChangesOnlyWithWhatIsPluggedInOrOut) {
  DeviceChoices choices = With({});
  EXPECT_FALSE(choices.Plug({}));
  EXPECT_TRUE(choices.Plug({{"/dev/ttyUSB0", "USB UART", "1"}}));
  EXPECT_FALSE(choices.Plug({{"/dev/ttyUSB0", "USB UART", "1"}}));
  EXPECT_TRUE(choices.Plug({{"/dev/ttyUSB0", "USB UART", "2"}}));
  EXPECT_TRUE(choices.Plug({}));
  EXPECT_THAT(choices.Rows(), IsEmpty());
}

TEST_F(Choosing, AnAdapterCannotSmuggleLinesIntoTheList) {
  DeviceChoices choices = With({});
  choices.Plug({{"/dev/ttyUSB0", "two\nlines", "\x1b[31m"}});
  ASSERT_EQ(choices.Rows().size(), 1U);
  EXPECT_EQ(choices.Rows()[0].Text.find_first_of("\n\x1b"), std::string::npos);
}

TEST_F(Choosing, TellsEachMistakeWithThePartThatIsWrong) {
  const DeviceChoices choices = With({});
  EXPECT_EQ(choices.Wrong(""), "Choose a device of the list, or type one.");
  EXPECT_EQ(choices.Wrong("  "), "Choose a device of the list, or type one.");
  EXPECT_EQ(choices.Wrong("tcp://boat:x"), "tcp://boat:x: \"x\" is no port (1 to 65535)");
  EXPECT_THAT(choices.Wrong("/dev/ttyUSB0?baud=1200"), testing::HasSubstr("\"1200\" is no baud rate"));
  EXPECT_EQ(choices.Wrong("?baud=9600"), "?baud=9600: it names no device");
  EXPECT_THAT(choices.Wrong("tcp://boat:1, ftp://boat:2"), testing::StartsWith("ftp://boat:2: "));
  for (const char* right : {"/dev/ttyUSB0", "/dev/ttyUSB0?baud=auto", "tcp://[::1]:10110", "udp://:10110",
                            "file:///log.nmea?loop", "/dev/odd?baud=2, x", "tcp://a:1, udp://:2"}) {
    EXPECT_EQ(choices.Wrong(right), "") << right;
  }
}

TEST_F(Choosing, RemarksADeviceThatIsNotThere) {
  const DeviceChoices choices = With({});
  EXPECT_EQ(choices.Remark("/dev/ttyUSB0?baud=38400"), "");
  EXPECT_EQ(choices.Remark("tcp://boat:1"), "");
  EXPECT_EQ(choices.Remark("/dev/ttyUSB7?baud=9600, file:///gone"),
            "/dev/ttyUSB7 is not there now; /gone is not there now");
  EXPECT_EQ(choices.Remark("tcp://boat:x"), "");
}

TEST_F(Choosing, ATextIsNamedUnderTheNumberAsked) {
  const DeviceChoices choices = With({{1, "/dev/ttyUSB0"}, {2, "tcp://boat:1"}, {3, "tcp://boat:1"}});
  EXPECT_EQ(choices.PickFor(" udp://:10110 ", 1), (DevicePick{1, false, "udp://:10110"}));
  EXPECT_EQ(choices.PickFor("/dev/ttyUSB0?baud=9600", 4), (DevicePick{4, false, "/dev/ttyUSB0?baud=9600"}));
}

TEST_F(Choosing, WhatAnotherPortLeadsToIsThatPort) {
  const DeviceChoices choices = With({{1, "/dev/ttyUSB0"}, {2, "tcp://boat:1"}, {3, "tcp://boat:1"}});
  EXPECT_EQ(choices.PickFor("/dev/ttyUSB0", 5), (DevicePick{1, true, "/dev/ttyUSB0"}));
  EXPECT_EQ(choices.PickFor("tcp://boat:1", 5), (DevicePick{2, true, "tcp://boat:1"}));
  EXPECT_EQ(choices.PickFor("tcp://boat:1", 3), (DevicePick{3, true, "tcp://boat:1"}));
  EXPECT_EQ(choices.PickFor("tcp://boat:1", 2), (DevicePick{2, true, "tcp://boat:1"}));
}

}  // namespace
}  // namespace veerwatch
