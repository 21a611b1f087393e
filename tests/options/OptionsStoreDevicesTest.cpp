// Naming the devices of ports with the form of the options dialog.

#include <gmock/gmock.h>

#include "options/OptionsStore.h"
#include "tests/support/FakeMainWindow.h"
#include "tests/support/SetPorts.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DevicesStoring : public testing::Test {
 public:
  FakeMainWindow Main;
  SetPorts Ports;
  Profile Ini;
  OptionsStore Store{Main, Ports, Ini};
};

TEST_F(DevicesStoring, ADeviceIsNamedUnderItsNumberAndRestartsWhatIsOpenThere) {
  Ports.Nmea = true;
  OptionsForm form = OptionsFormOf(Main);
  form.PortDevices = {{5, "tcp://boat:10110"}, {9, "/dev/ttyUSB9"}};
  Main.Calls.clear();
  EXPECT_EQ(Store.Store(form), std::nullopt);
  EXPECT_EQ(Ini.Content(), "[Ports]\n5=tcp://boat:10110\n");
  EXPECT_THAT(Main.Calls, ElementsAre("Off 5 5", "Setup 5 5"));
  // The same again is no change.
  Main.Calls.clear();
  EXPECT_EQ(Store.Store(form), std::nullopt);
  EXPECT_THAT(Main.Calls, IsEmpty());
}

TEST_F(DevicesStoring, ADeviceForANewNumberComesWithOneRestart) {
  Ports.Nmea = true;
  OptionsForm form = OptionsFormOf(Main);
  form.NmeaPort = "7";
  form.PortDevices = {{7, "udp://:10110"}};
  Main.Calls.clear();
  EXPECT_EQ(Store.Store(form), std::nullopt);
  EXPECT_EQ(Ini.Content(), "[Ports]\n7=udp://:10110\n");
  EXPECT_THAT(Main.Calls, ElementsAre("Off 5 5", "Setup 7 5"));
}

TEST_F(DevicesStoring, ADeviceOfAClosedPortIsNamedAndRestartsNothing) {
  OptionsForm form = OptionsFormOf(Main);
  form.PortDevices = {{5, "udp://:10110"}};
  Main.Calls.clear();
  EXPECT_EQ(Store.Store(form), std::nullopt);
  EXPECT_EQ(Ini.Content(), "[Ports]\n5=udp://:10110\n");
  EXPECT_THAT(Main.Calls, IsEmpty());
}

TEST_F(DevicesStoring, ANumberThatIsRefusedNamesNothing) {
  OptionsForm form = OptionsFormOf(Main);
  form.NmeaPort = "x";
  form.PortDevices = {{5, "udp://:10110"}};
  EXPECT_NE(Store.Store(form), std::nullopt);
  EXPECT_EQ(Ini.Content(), "");
}

}  // namespace
}  // namespace veerwatch
