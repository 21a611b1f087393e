#include "pilot/Bwc.h"

namespace veerwatch {

void AddBwc(const PilotSentences::Parts& parts, PilotBundle& bundle) {
  bundle.Begin(parts.Form.Talker, "BWC").Fields("", "", "", "", "");
  bundle.Fields(parts.True, "T", parts.Magnetic, "M", "10.0", "N", parts.Form.Point);
  parts.AddMode(bundle);
  bundle.End();
}

}  // namespace veerwatch
