#include "pilot/Hsc.h"

namespace veerwatch {

void AddHsc(const PilotSentences::Parts& parts, PilotBundle& bundle) {
  bundle.Begin(parts.Form.Talker, "HSC").Fields(parts.True, "T", parts.Magnetic, "M").End();
}

}  // namespace veerwatch
