// Whether an instrument record holds only what it may hold.
#pragma once

#include <array>
#include <cmath>
#include <string>
#include <utility>

#include "instruments/InstrumentData.h"

namespace veerwatch {

/// The name of the first field that is not finite or out of its range; "" for a sound record.
inline std::string RecordFault(const InstrumentData& data) {
  const std::array<std::pair<const char*, float>, 14> fields{
      {{"Heading", data.Heading},
       {"HeadingAverage", data.HeadingAverage},
       {"BoatSpeed", data.BoatSpeed},
       {"BoatSpeedAverage", data.BoatSpeedAverage},
       {"Variation", data.Variation},
       {"WaypointBearing", data.WaypointBearing},
       {"WaypointRange", data.WaypointRange},
       {"WindAngleApparent", data.WindAngleApparent},
       {"WindAngleApparentAverage", data.WindAngleApparentAverage},
       {"WindSpeedApparent", data.WindSpeedApparent},
       {"WindSpeedApparentAverage", data.WindSpeedApparentAverage},
       {"WindAngleTrue", data.WindAngleTrue},
       {"WindSpeedTrue", data.WindSpeedTrue},
       {"WindSpeedAverage", data.WindSpeedAverage}}};
  for (const auto& [name, value] : fields) {
    if (!std::isfinite(value)) {
      return name;
    }
  }
  if (data.Heading < 0.0F || data.Heading >= 360.0F) {
    return "Heading";
  }
  if (data.WindAngleApparent <= -180.0F || data.WindAngleApparent > 180.0F) {
    return "WindAngleApparent";
  }
  if (data.WindAngleApparentAverage < -180.0F || data.WindAngleApparentAverage > 180.0F) {
    return "WindAngleApparentAverage";
  }
  if (data.WindAngleTrue < -180.0F || data.WindAngleTrue > 180.0F) {
    return "WindAngleTrue";
  }
  // This one is in its range or not a number.
  if (!(data.WindDirectionAverage >= 0.0F && data.WindDirectionAverage < 360.0F)) {
    return "WindDirectionAverage";
  }
  return "";
}

}  // namespace veerwatch
