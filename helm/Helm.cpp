#include "helm/Helm.h"

namespace veerwatch {

Helm::Helm(Settings& settings, SerialPort& nmeaPort, SerialPort& pilotPort, Timer& tmrNmea,
           const Clock& clock, RandomSource& random, HelmView& view)
    : m_settings(settings),
      m_clock(clock),
      m_view(view),
      m_nmeaPort(nmeaPort),
      m_record(settings, view),
      m_receiver(settings, nmeaPort, tmrNmea, clock, m_record, *this, view),
      m_pilot(settings, nmeaPort, pilotPort, view),
      m_loop(settings, m_record.Data(), m_pilot, view),
      m_modes(settings, m_receiver, m_pilot, m_loop, view),
      m_simulator(settings, m_record, random, *this) {}

HelmNow Helm::Now() const {
  HelmNow now;
  now.Mode = m_settings.m_eTrackMode;
  now.InputStarted = m_receiver.Started();
  now.InputPort = m_settings.m_iNmeaPort;
  now.InputOpen = m_settings.m_bSimulate || m_nmeaPort.PortOpen();
  now.OutputPort = m_settings.m_iPilotPort;
  now.OutputOpen = m_pilot.Open();
  now.Sent = m_pilot.Sent();
  now.AutoPilot = m_settings.m_fAutoPilot;
  const InstrumentData& data = Data();
  if (data.HeadingValid) {
    now.Heading = data.Heading;
  }
  if (data.WindTrueValid) {
    now.WindAngleTrue = data.WindAngleTrue;
  }
  return now;
}

void Helm::Tick() {
  if (m_settings.m_bSimulate) {
    m_simulator.Tick(m_clock.Now());
  } else {
    m_receiver.Tick();
    m_pilot.Tick();
  }
}

}  // namespace veerwatch
