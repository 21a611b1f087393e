#include "options/DeviceHint.h"

#include <string_view>

#include "platform/Language.h"

namespace veerwatch {

namespace {

bool IsDevice(std::string_view text) {
  const std::size_t start = text.find_first_not_of(' ');
  const std::string_view name = start == std::string_view::npos ? "" : text.substr(start);
  return name.find_first_of("/\\") != std::string_view::npos || name.starts_with("tty") ||
         name.starts_with("COM");
}

}  // namespace

std::string DeviceHint(const OptionsForm& form) {
  for (const std::string* text : {&form.NmeaPort, &form.PilotPort}) {
    if (IsDevice(*text)) {
      return Tr("Comm takes the number of a port. Choose its device with \"Device...\" beside it.");
    }
  }
  return {};
}

}  // namespace veerwatch
