#include "pilot/Rmb.h"

namespace veerwatch {

void AddRmb(const PilotSentences::Parts& parts, PilotBundle& bundle) {
  bundle.Begin(parts.Form.Talker, "RMB").Fields(parts.Status(), "0.00", "R", "", parts.Form.Point);
  bundle.Fields("", "", "", "", "10.0", parts.True, "", "V");
  parts.AddMode(bundle);
  bundle.End();
}

}  // namespace veerwatch
