// Everything that steers, put together without a window: the receiver, the record, the simulator, the loop
// with its modes and the pilot output. The main window, the command line and the tests each drive one.
#pragma once

#include "control/TrackLoop.h"
#include "control/TrackModes.h"
#include "helm/HelmNow.h"
#include "instruments/FollowUp.h"
#include "instruments/InstrumentRecord.h"
#include "instruments/Simulator.h"
#include "nmea/NmeaReceiver.h"
#include "pilot/PilotOutput.h"
#include "platform/Clock.h"
#include "platform/Random.h"
#include "platform/SerialPort.h"
#include "platform/Timer.h"
#include "settings/Settings.h"

namespace veerwatch {

/// All that a helm tells; whoever looks on overrides what it shows.
class HelmView : public InstrumentRecord::Listener,
                 public NmeaReceiver::Listener,
                 public PilotOutput::Listener,
                 public TrackLoop::Listener,
                 public TrackModes::Listener {
 public:
  /// The record for the polar window, after a wind with a valid boat speed and at every simulator tick.
  virtual void OnPolarUpdate(TrackMode /*mode*/, const InstrumentData& /*data*/) {}
};

class Helm final : private FollowUp {
 public:
  /// Every collaborator outlives the helm. `tmrNmea` ticks into Tick().
  Helm(Settings& settings, SerialPort& nmeaPort, SerialPort& pilotPort, Timer& tmrNmea, const Clock& clock,
       RandomSource& random, HelmView& view);

  /// One tick of tmrNmea: the simulator's clock, or the watch over the ports.
  void Tick();

  NmeaReceiver& Receiver() { return m_receiver; }
  PilotOutput& Pilot() { return m_pilot; }
  TrackLoop& Loop() { return m_loop; }
  const TrackLoop& Loop() const { return m_loop; }
  TrackModes& Modes() { return m_modes; }
  Simulator& Boat() { return m_simulator; }
  const InstrumentData& Data() const { return m_record.Data(); }
  /// The present values with their sources and ages.
  const InstrumentRecord& Record() const { return m_record; }

  /// What the helm does at this moment; the watch over the winds is the caller's.
  HelmNow Now() const;

 private:
  void ControlStep(const Moment& now) override { m_loop.ControlStep(now); }
  void PolarUpdate() override { m_view.OnPolarUpdate(m_settings.m_eTrackMode, m_record.Data()); }

  Settings& m_settings;
  const Clock& m_clock;
  HelmView& m_view;
  const SerialPort& m_nmeaPort;
  InstrumentRecord m_record;
  NmeaReceiver m_receiver;
  PilotOutput m_pilot;
  TrackLoop m_loop;
  TrackModes m_modes;
  Simulator m_simulator;
};

}  // namespace veerwatch
