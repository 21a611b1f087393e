#include "options/OptionsForm.h"

#include "options/SimulateTimeText.h"
#include "platform/NumberText.h"

namespace veerwatch {

OptionsForm OptionsFormOf(const Settings& settings) {
  OptionsForm form;
  form.NmeaTrueWind = settings.m_iNmeaTrueWind;
  form.NmeaHeading = settings.m_iNmeaHeading;
  form.NmeaBoatSpeed = settings.m_iNmeaBoatSpeed;
  for (std::size_t i = 0; i < kSentences.size(); ++i) {
    form.NmeaSentence[i] = settings.*kSentences[i].Enabled;
  }
  form.NmeaTrueWindAverage = ShortestText(settings.m_fNmeaTrueWindAverage);
  form.NmeaWindIndicatorAverage = ShortestText(settings.m_fNmeaWindIndicatorAverage);
  form.NmeaPort = std::to_string(settings.m_iNmeaPort);
  form.PilotPort = std::to_string(settings.m_iPilotPort);
  form.Simulate = settings.m_bSimulate;
  form.SimulateBoatSpeed = ShortestText(settings.m_fSimulateBoatSpeed);
  form.SimulateCompassOffset = ShortestText(settings.m_fSimulateCompassOffset);
  form.SimulateNoiseAngle = ShortestText(settings.m_fSimulateNoiseAngle);
  form.SimulateNoiseSpeed = ShortestText(settings.m_fSimulateNoiseSpeed);
  form.SimulateTime = SimulateTimeFormat(settings.m_fSimulateTime);
  form.SimulateTrueWindAngle = ShortestText(settings.m_fSimulateTrueWindAngle);
  form.SimulateTrueWindSpeed = ShortestText(settings.m_fSimulateTrueWindSpeed);
  form.SimulateVariation = ShortestText(settings.m_fSimulateVariation);
  form.SimulateWaypointBrg = ShortestText(settings.m_fSimulateWaypointBearing);
  form.SimulateWaypointRng = ShortestText(settings.m_fSimulateWaypointRange);
  form.TrackAlarm = settings.m_bTrackAlarm;
  form.TrackAlarmLimit = ShortestText(settings.m_fTrackAlarmLimit);
  form.TrackBandwidth = ShortestText(settings.m_fTrackBandwidth);
  form.TrackDamping = ShortestText(settings.m_fTrackDamping);
  form.TrackMaxSteerTo = ShortestText(settings.m_fTrackMaxSteerTo);
  return form;
}

}  // namespace veerwatch
