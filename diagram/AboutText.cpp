#include "diagram/AboutText.h"

#include "platform/Language.h"

namespace veerwatch {

std::string AboutCaption(std::string_view title) { return Filled(Tr("About %1"), {title}); }

std::string AboutDescription(std::string_view version) {
  const std::size_t major = version.find('.');
  return Filled(Tr("Version %1\rControl Loop for Tracking Apparent or True Wind Angle.\r"
                   "         a) Input - NMEA 1984 Wind & Speed Instruments\r"
                   "         b) Output - NMEA 1984 AutoPilot"),
                {version.substr(0, major == std::string_view::npos ? major : version.find('.', major + 1))});
}

std::string AboutDisclaimer() {
  return Tr(
      "Copyright \u00a9 2026, free under the MIT License\r"
      "The Veerwatch authors\r"
      "For sailing yachts with NMEA 0183 instruments and a standard autopilot\r"
      "Questions and faults: the project's issue tracker");
}

}  // namespace veerwatch
