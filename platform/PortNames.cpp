#include "platform/PortNames.h"

namespace veerwatch {

std::string PortDevice(const Profile& profile, int number) {
  std::string device = profile.Text("Ports", std::to_string(number));
  if (!device.empty()) {
    return device;
  }
#ifdef _WIN32
  return "COM" + std::to_string(number);
#else
  return "/dev/ttyS" + std::to_string(number - 1);
#endif
}

}  // namespace veerwatch
