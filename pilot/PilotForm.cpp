#include "pilot/PilotForm.h"

namespace veerwatch {

namespace {

constexpr std::string_view kTalker = "EC";
constexpr std::string_view kPoint = "1";
constexpr int kFieldsWithMode = 15;

/// What the user has chosen, field by field.
PilotForm OwnForm(const Settings& settings) {
  PilotForm form;
  form.Sends = {settings.m_bPilotOwnAPB, settings.m_bPilotOwnRMB, settings.m_bPilotOwnHSC,
                settings.m_bPilotOwnXTE, settings.m_bPilotOwnBWC};
  form.Talker = settings.m_sPilotOwnTalker;
  form.True = settings.m_ePilotOwnBearing == BearingKind::True;
  form.Mode = settings.m_iPilotOwnFields == kFieldsWithMode;
  form.Decimals = settings.m_iPilotOwnDecimals;
  form.Point = settings.m_sPilotOwnPoint;
  return form;
}

}  // namespace

PilotForm PilotFormOf(const Settings& settings) {
  const PilotProfile profile = settings.m_ePilotProfile;
  if (profile == PilotProfile::Own) {
    return OwnForm(settings);
  }
  PilotForm form;
  form.Talker = kTalker;
  form.Point = kPoint;
  form.Wind = profile == PilotProfile::Wind;
  form.True = profile == PilotProfile::TrueApb;
  const bool hsc = profile == PilotProfile::Hsc;
  form.Sends = {!form.Wind && !hsc, profile == PilotProfile::ApbAndRmb, hsc};
  return form;
}

}  // namespace veerwatch
