// Everything that steers, put together without a window: the receiver, the record, the simulator, the loop
// with its modes, the pilot output and the supervisor. The main window, the command line and the tests each
// drive one. It alone says what follows what: steer first, tell afterwards.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "control/Supervisor.h"
#include "control/TrackLoop.h"
#include "control/TrackModes.h"
#include "control/Watch.h"
#include "control/WatchAct.h"
#include "helm/HelmNow.h"
#include "helm/HelmObserver.h"
#include "helm/Simulation.h"
#include "helm/Why.h"
#include "instruments/InstrumentRecord.h"
#include "nmea/NmeaReceiver.h"
#include "pilot/PilotOutput.h"
#include "pilot/PilotPace.h"
#include "platform/Clock.h"
#include "platform/Random.h"
#include "platform/SerialPort.h"
#include "platform/Timer.h"
#include "settings/Settings.h"
#include "wind/WindFunctions.h"

namespace veerwatch {

class Helm final : private NmeaReceiver::Observer,
                   private PilotOutput::Observer,
                   private TrackModes::Observer {
 public:
  /// Every collaborator outlives the helm. `tmrNmea` ticks into Tick().
  Helm(Settings& settings, SerialPort& nmeaPort, SerialPort& pilotPort, Timer& tmrNmea, const Clock& clock,
       RandomSource& random);

  /// Whom the helm tells.
  HelmObservers& Observers() { return m_observers; }

  /// One tick of tmrNmea: the simulator's clock, or the watch over the ports; and what is lost.
  void Tick();

  /// `tmrPilot`, which outlives the helm, ticks into PilotTick() from now on, so that bearings leave by the
  /// cadence also between two winds. Without it each one waits for a wind.
  void PilotTimer(Timer& tmrPilot) { m_pilotTimer = &tmrPilot; }
  /// One tick of tmrPilot: the newest bearing leaves, while it is good.
  void PilotTick();

  // What the user, or a turn, does with the pilot.

  /// The side that is tracked; what is held may follow it, told.
  void Track(TrackSide side);
  /// TrackLoop::TrackSteerTo, told.
  void TrackSteerTo(float change);
  /// Takes a bearing that the user sets [deg magnetic, any turn]; one that is not finite changes nothing.
  /// Ends a turn.
  void UserSteersTo(double bearing);
  /// The user takes the pilot with the bearing as it is, as at the close. Ends a turn.
  void UserTakesPilot() { Decide(m_supervisor.UserTakes()); }
  /// A turn has the pilot from now on, until TurnOver() or OnTurnEnds(). Ends one that had it before.
  void TurnBegins() { Decide(m_supervisor.TurnBegins()); }
  void TurnOver() { m_supervisor.TurnOver(); }
  /// The turn that has the pilot cannot go on: it ends, told with `why`.
  void TurnEnds(TurnFate why) { Decide(m_supervisor.TurnEnds(why)); }
  /// Takes the bearing of the turn that has the pilot, and tells it.
  void TurnSteersTo(float bearing);
  /// Sends the bearing in Manual at once, though no wind has come.
  void PilotSendNow();
  /// The turn is made: Track takes over from the bearing as it is and holds `angle` [deg relative, any turn]
  /// on the tracked side. A refused Track is told, and Manual stays.
  void TrackTakesOver(float angle);

  // What the wind functions do when they are asked, told; true when they did.

  /// WindFunctions::Dodge.
  bool Dodge(double degrees) { return TellTurned(m_functions.Dodge(degrees)); }
  /// WindFunctions::DodgeBack.
  bool DodgeBack() { return TellTurned(m_functions.DodgeBack()); }
  /// WindFunctions::LastAngle.
  bool LastAngle() { return TellTurned(m_functions.LastAngle()); }
  /// WindFunctions::CourseHolds.
  bool CourseHolds(double angle, bool turns) { return TellTurned(m_functions.CourseHolds(angle, turns)); }
  WindFunctions& Functions() { return m_functions; }

  NmeaReceiver& Receiver() { return m_receiver; }
  PilotOutput& Pilot() { return m_pilot; }
  TrackLoop& Loop() { return m_loop; }
  const TrackLoop& Loop() const { return m_loop; }
  TrackModes& Modes() { return m_modes; }
  Simulator& Boat() { return m_simulation.Steady(); }
  const InstrumentRecord& Record() const { return m_record; }
  const InstrumentData& Data() const { return m_record.Data(); }

  /// What the helm does at this moment.
  HelmNow Now() const;
  /// Why the last sentence says what it says.
  const Why& LastSentence() const { return m_why; }

 private:
  /// A pass of the loop with its sentence.
  struct Pass {
    LoopStep Step;
    std::string_view Sentence;  ///< "" for none
    WindFunctions::Did Did;
  };

  /// One pass of the loop over the record, for a wind that came at `now`, and its sentence to the pilot.
  Pass Steer(const Moment& now);
  /// The moment by which bearings leave, of a pass at `now`.
  Moment SendMoment(const Moment& now) const { return m_settings.m_bSimulate ? m_clock.Now() : now; }
  /// What the bearing rests on is of now.
  bool BearingHolds(const Moment& now) const;
  /// Sends the bearing as `says` has it; returns what was built.
  std::string_view Send(PilotPace::Says says, const Moment& now);
  /// Says the newest bearing again, or that it holds no more, where it is time to.
  void Repeat(const Moment& now);
  void TellChanges();
  void TellPass(const Pass& pass);
  /// Tells the sentences that have just been built.
  void TellSent(HelmObserver& observer) const;
  void TellDesired();
  bool TellTurned(bool turned);
  void TellPolar();
  void SimulatorTick();
  void Decide(TurnFate fate);
  /// Gives the watch what a sentence brought.
  void Feed(const Dispatcher::Outcome& outcome);
  /// Gives the watch what the loop did, and keeps why.
  void Keep(const Pass& pass, const Moment& now);
  /// Keeps why the bearing of this pass is what it is.
  void Explain(const LoopStep& step, const Moment& now);
  /// The watch looks at everything, and its answer is told.
  void LookOut();
  /// Does what follows from a look of the watch.
  void Obey(const WatchAct::Order& order, const Moment& now);

  void OnInputStarts() override;
  void OnSentence(std::string_view line, const Dispatcher::Outcome& outcome, const Moment& now) override;
  void OnOtherLine(std::string_view line, LineFault fault) override;
  void OnInputStatus(const PortStatus& status) override;
  void OnInputState(InputState state) override;
  void OnInputFailure(const std::string& reason) override;
  void OnSourceAdvice(const std::vector<std::string>& lines) override;
  void OnOutputStatus(const PortStatus& status) override;
  void OnOutputState(OutputState state) override;
  void OnOutputFailure(const std::string& reason) override;
  void OnOutputRefused(const PilotRefusal& refusal) override;
  void OnTrackMode(TrackMode mode) override;
  void OnTrackRefused(TrackRefusal why) override;
  void OnAlarmOver() override;

  Settings& m_settings;
  const Clock& m_clock;
  const SerialPort& m_nmeaPort;
  HelmObservers m_observers;
  InstrumentRecord m_record;
  Supervisor m_supervisor;
  NmeaReceiver m_receiver;
  PilotOutput m_pilot;
  PilotPace m_pace;
  Timer* m_pilotTimer = nullptr;
  TrackLoop m_loop;
  TrackModes m_modes;
  Simulation m_simulation;
  Watch m_watch;
  WatchAct m_act;
  WindFunctions m_functions;
  bool m_keepsOn = false;  ///< the bearing is to be sent on, though its wind is lost
  bool m_good = true;      ///< the latest sentences hold
  Why m_newest;            ///< why the newest bearing is what it is
  Why m_why;               ///< the same of the latest one that left
  InputState m_inputState = InputState::Stopped;
  OutputState m_outputState = OutputState::None;
  std::string m_inputFailure;
  std::string m_outputFailure;
  std::vector<std::string> m_advice;
};

}  // namespace veerwatch
