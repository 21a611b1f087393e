#include "pilot/Mwv.h"

#include "platform/Angles.h"
#include "platform/NumberText.h"

namespace veerwatch {

void AddMwv(std::string_view talker, const PilotValues::Apparent& wind, bool good, PilotBundle& bundle) {
  constexpr std::string_view kWholeTurn = "360.0";
  const std::string angle = FormatNumber(FoldBearing(static_cast<double>(wind.Angle)), "000.0");
  bundle.Begin(talker, "MWV").Fields(angle == kWholeTurn ? "000.0" : angle, "R");
  bundle.Fields(FormatNumber(wind.Speed, "0.0"), "N", good ? "A" : "V").End();
}

}  // namespace veerwatch
