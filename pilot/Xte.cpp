#include "pilot/Xte.h"

namespace veerwatch {

void AddXte(const PilotSentences::Parts& parts, PilotBundle& bundle) {
  bundle.Begin(parts.Form.Talker, "XTE").Fields(parts.Status(), parts.Status(), "0.00", "R", "N");
  parts.AddMode(bundle);
  bundle.End();
}

}  // namespace veerwatch
