#include "options/PilotChoices.h"

#include <array>
#include <cstddef>
#include <cstdint>

#include "pilot/LineLoad.h"
#include "pilot/PilotForm.h"
#include "pilot/PilotSentences.h"
#include "platform/Language.h"
#include "settings/TextRule.h"

namespace veerwatch {

namespace {

constexpr std::int16_t kFewestFields = 14;

struct OwnText {
  const char* Box;  ///< in the dialog
  std::string OptionsForm::*Text;
  std::string Settings::*Setting;
  const TextRule& Rule;
};
const std::array<OwnText, 2> kOwnTexts{
    {{TrMark("Talker"), &OptionsForm::PilotOwnTalker, &Settings::m_sPilotOwnTalker, kTalker},
     {TrMark("Point"), &OptionsForm::PilotOwnPoint, &Settings::m_sPilotOwnPoint, kPointName}}};

}  // namespace

void PilotChoicesShow(const Settings& settings, OptionsForm& form) {
  form.PilotProfile = static_cast<int>(settings.m_ePilotProfile);
  form.PilotCadence = settings.m_iPilotCadence;
  form.PilotInvalidWhenLost = settings.m_bPilotInvalidWhenLost;
  form.PilotOwnTalker = settings.m_sPilotOwnTalker;
  form.PilotOwnPoint = settings.m_sPilotOwnPoint;
  form.PilotOwnBearing = static_cast<int>(settings.m_ePilotOwnBearing);
  form.PilotOwnFields = settings.m_iPilotOwnFields - kFewestFields;
  form.PilotOwnDecimals = settings.m_iPilotOwnDecimals;
  for (std::size_t i = 0; i < kPilotOwnSwitches.size(); ++i) {
    form.PilotOwnSends[i] = settings.*kPilotOwnSwitches[i];
  }
}

std::optional<const char*> PilotChoicesStore(const OptionsForm& form, Settings& settings) {
  settings.m_ePilotProfile = static_cast<PilotProfile>(form.PilotProfile);
  settings.m_iPilotCadence = static_cast<std::int16_t>(form.PilotCadence);
  settings.m_bPilotInvalidWhenLost = form.PilotInvalidWhenLost;
  settings.m_ePilotOwnBearing = static_cast<BearingKind>(form.PilotOwnBearing);
  settings.m_iPilotOwnFields = static_cast<std::int16_t>(form.PilotOwnFields + kFewestFields);
  settings.m_iPilotOwnDecimals = static_cast<std::int16_t>(form.PilotOwnDecimals);
  for (std::size_t i = 0; i < kPilotOwnSwitches.size(); ++i) {
    settings.*kPilotOwnSwitches[i] = form.PilotOwnSends[i];
  }
  std::optional<const char*> fault;
  for (const OwnText& own : kOwnTexts) {
    if (own.Rule.Takes(form.*own.Text)) {
      settings.*own.Setting = form.*own.Text;
    } else if (settings.m_ePilotProfile == PilotProfile::Own && !fault) {
      fault = own.Box;
    }
  }
  return fault;
}

PilotPreview PilotPreviewOf(const OptionsForm& form, const Settings& settings, const InstrumentRecord& record,
                            const HelmNow& now) {
  Settings chosen = settings;
  PilotPreview preview;
  if (const auto unfinished = PilotChoicesStore(form, chosen)) {
    preview.Note = Filled(Tr("%1 is not whole"), {Tr(*unfinished)});
    preview.Warns = true;
    return preview;
  }
  PilotSentences sentences;
  const PilotRefusal refusal =
      sentences.Build(PilotFormOf(chosen), PilotValuesOf(chosen.m_fAutoPilot, record, chosen, now.Watch.At));
  const PilotBundle& bundle = sentences.Bundle();
  for (std::size_t i = 0; i < bundle.Count(); ++i) {
    preview.Sentences.append(i > 0 ? "\n" : "").append(bundle.Sentence(i));
  }
  preview.Note = PilotRefusalText(refusal);
  preview.Warns = !preview.Note.empty();
  const auto load = LineLoadOf(bundle.Text().size(), chosen.m_iPilotCadence, now.WindsASecond, now.PilotBaud);
  if (load && !preview.Warns) {
    preview.Note = LineLoadText(*load);
    preview.Warns = load->Full();
  }
  return preview;
}

}  // namespace veerwatch
