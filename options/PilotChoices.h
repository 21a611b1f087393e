// What the frame "Autopilot" of the options dialog chooses, between the form and the settings; and what would
// leave by it now.
#pragma once

#include <optional>
#include <string>

#include "helm/HelmNow.h"
#include "instruments/InstrumentRecord.h"
#include "options/OptionsForm.h"
#include "settings/Settings.h"

namespace veerwatch {

/// Brings the choices of `settings` into `form`.
void PilotChoicesShow(const Settings& settings, OptionsForm& form);

/// Brings those of `form` into `settings`; the numbers of kOptionBoxes are stored elsewhere. A talker or a
/// point that is not whole stays as it was: its name in the dialog is returned where the profile needs it.
std::optional<const char*> PilotChoicesStore(const OptionsForm& form, Settings& settings);

/// What would leave.
struct PilotPreview {
  std::string Sentences;  ///< a line each; "" for none
  std::string Note;       ///< why some do not leave, or how full the line is; "" for nothing
  bool Warns = false;     ///< the note says that something is wrong
};

/// What would leave by the choices of `form` with everything else of `settings`, `record` and `now`.
PilotPreview PilotPreviewOf(const OptionsForm& form, const Settings& settings, const InstrumentRecord& record,
                            const HelmNow& now);

}  // namespace veerwatch
