#include "options/DeviceHint.h"

#include <gtest/gtest.h>

namespace veerwatch {
namespace {

std::string HintFor(const std::string& nmea, const std::string& pilot) {
  OptionsForm form;
  form.NmeaPort = nmea;
  form.PilotPort = pilot;
  return DeviceHint(form);
}

TEST(DeviceHint, SaysHowToNameADevice) {
  const std::string hint = "Comm takes the number of a port. Choose its device with \"Device...\" beside it.";
  EXPECT_EQ(HintFor("/dev/ttyUSB0", "5"), hint);
  EXPECT_EQ(HintFor("5", "ttyS3"), hint);
  EXPECT_EQ(HintFor("COM3", "5"), hint);
}

TEST(DeviceHint, IsSilentForAnythingElse) {
  for (const char* text : {"5", "", " ", "x", "-1", "1.5"}) {
    EXPECT_EQ(HintFor(text, "5"), "") << text;
  }
}

}  // namespace
}  // namespace veerwatch
