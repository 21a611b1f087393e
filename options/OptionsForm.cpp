#include "options/OptionsForm.h"

#include <string>

#include "options/PilotChoices.h"
#include "options/SimulateTimeText.h"
#include "platform/NumberText.h"

namespace veerwatch {

OptionsForm OptionsFormOf(const Settings& settings) {
  OptionsForm form;
  for (const OptionBox& box : kOptionBoxes) {
    form.*box.Text = ShortestText(settings.*box.Setting);
  }
  form.NmeaTrueWind = settings.m_iNmeaTrueWind;
  form.NmeaHeading = settings.m_iNmeaHeading;
  form.NmeaBoatSpeed = settings.m_iNmeaBoatSpeed;
  for (std::size_t i = 0; i < kSentences.size(); ++i) {
    form.NmeaSentence[i] = settings.*kSentences[i].Enabled;
  }
  form.NmeaChecksum = static_cast<int>(settings.m_eNmeaChecksum);
  form.NmeaInvalidStatus = static_cast<int>(settings.m_eNmeaInvalidStatus);
  form.NmeaForeignLines = static_cast<int>(settings.m_eNmeaForeignLines);
  form.NmeaWindUnits = settings.m_bNmeaWindUnits;
  form.NmeaLowerCase = settings.m_bNmeaLowerCase;
  form.NmeaPort = std::to_string(settings.m_iNmeaPort);
  form.PilotPort = std::to_string(settings.m_iPilotPort);
  PilotChoicesShow(settings, form);
  form.Simulate = settings.m_bSimulate;
  form.SimulateModel = static_cast<int>(settings.m_eSimulateModel);
  form.SimulatePilot = static_cast<int>(settings.m_eSimulatePilot);
  form.SimulateSea = static_cast<int>(settings.m_eSimulateSea);
  form.SimulateSeed = std::to_string(settings.m_iSimulateSeed);
  form.SimulateTime = SimulateTimeFormat(settings.m_fSimulateTime);
  form.TrackAlarm = settings.m_bTrackAlarm;
  form.TrackMethod = static_cast<int>(settings.m_eTrackMethod);
  for (const OptionSwitch& each : kWatchSwitches) {
    form.*each.Checked = settings.*each.Setting;
  }
  form.WatchSound = static_cast<int>(settings.m_eWatchSound);
  form.WatchCommand = settings.m_sWatchCommand;
  return form;
}

}  // namespace veerwatch
