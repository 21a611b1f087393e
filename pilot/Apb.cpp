#include "pilot/Apb.h"

namespace veerwatch {

void AddApb(const PilotSentences::Parts& parts, PilotBundle& bundle) {
  const std::string_view bearing = parts.Bearing();
  const std::string_view kind = parts.Kind();
  bundle.Begin(parts.Form.Talker, "APB").Fields(parts.Status(), parts.Status(), "0.00", "R", "N", "V", "V");
  bundle.Fields(bearing, kind, parts.Form.Point, bearing, kind, bearing, kind);
  parts.AddMode(bundle);
  bundle.End();
}

}  // namespace veerwatch
