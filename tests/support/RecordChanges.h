// What a record says has changed, as a text.
#pragma once

#include <string>

#include "instruments/InstrumentRecord.h"

namespace veerwatch {

/// The names of the values that have changed, such as "Heading WindTrue", which the record then forgets.
inline std::string TakeChanges(InstrumentRecord& record) {
  struct Named {
    RecordValue Value;
    const char* Name;
  };
  std::string names;
  for (const Named& named :
       {Named{RecordValue::Heading, "Heading"}, Named{RecordValue::BoatSpeed, "BoatSpeed"},
        Named{RecordValue::Variation, "Variation"}, Named{RecordValue::Waypoint, "Waypoint"},
        Named{RecordValue::WindApparent, "WindApparent"}, Named{RecordValue::WindTrue, "WindTrue"},
        Named{RecordValue::WindIndicator, "WindIndicator"}}) {
    if (record.Changed(named.Value)) {
      names.append(names.empty() ? "" : " ").append(named.Name);
    }
  }
  record.ForgetChanges();
  return names;
}

}  // namespace veerwatch
