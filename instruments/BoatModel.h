// A sailing boat with its instruments and its autopilot, in numbers: says what her instruments read and
// follows what her pilot is told. pilot/WireBoat is the same boat in sentences. Her geometry is her own, so
// that she can stand against the program's.
//
// Turning, in one of two ways. Without a rudder the pilot asks for a rate of turn in proportion to what the
// boat's compass misses, bounded by what the boat can turn; the boat takes up that rate with the lag of the
// rudder. With a rudder the pilot is a BoatPilot, the rudder moves at its own rate, and the hull answers to
// it as a system of first order in the rate of turn (Source: Nomoto), slower and less the slower the boat
// sails; the wind's pull on the heeled boat turns her to windward. Speed: comes to that of a smooth polar
// with a lag. Wind: a mean with gusts and shifts, noise whose memory fades exponentially, and a slow swing
// that has no corners. Sea: a Seaway, which yaws the boat and swings the masthead with the vane. All of it
// follows from the settings and the seed alone.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "instruments/BoatPilot.h"
#include "instruments/EarthPlace.h"
#include "instruments/Seaway.h"
#include "platform/Random.h"
#include "settings/SimulateModel.h"

namespace veerwatch {

/// A rudder and the hull that answers to it. Turn and time constant are those at 6 knots: the first grows
/// with the speed, the second shrinks with it.
struct RudderSettings {
  double Rate = 4.0;      ///< at which it moves [deg/s]
  double Most = 30.0;     ///< to either side [deg]
  double Turn = 0.4;      ///< small rates of turn [deg/s for each degree of rudder]
  double Time = 1.5;      ///< time constant with which a rate of turn is taken up [s]
  double Damping = 0.04;  ///< by which turning faster takes more rudder [s/deg]
  double Pull = 3.0;      ///< rudder that an apparent wind of 12 knots abeam asks for, to windward [deg]
};

/// A boat, her wind, water and instruments; each setting may be changed while she sails.
struct BoatSettings {
  // Hull and pilot.
  std::optional<RudderSettings> Rudder;  ///< nothing: TurnLag, TurnRate and RudderLag say how the boat turns
  PilotSettings Pilot;                   ///< without a rudder only its switches count
  SeaSettings Sea;
  double TurnLag = 4.0;       ///< time constant of the turn to a new bearing [s], above 0
  double TurnRate = 8.0;      ///< fastest turn [deg/s]
  double RudderLag = 0.5;     ///< time constant with which a rate of turn is taken up [s]
  double YawDeviation = 0.0;  ///< standard deviation of what the waves add to the heading [deg]
  double YawTime = 2.0;       ///< memory of the waves [s]
  double HullSpeed = 8.0;     ///< what the speed through the water comes to in strong wind [kn]
  double SpeedLag = 15.0;     ///< time constant of the speed [s]
  double Leeway = 4.0;        ///< most leeway, at 45 degrees off the true wind [deg]

  // Wind over ground.
  double WindFrom = 200.0;      ///< mean direction that it blows from [deg true]
  double WindSpeed = 12.0;      ///< mean speed [kn]
  double GustDeviation = 0.0;   ///< standard deviation of the speed, as a part of its mean
  double GustTime = 12.0;       ///< memory of the gusts [s]
  double ShiftDeviation = 0.0;  ///< standard deviation of the direction [deg]
  double ShiftTime = 40.0;      ///< memory of the shifts [s]
  double SwingDeviation = 0.0;  ///< standard deviation of a slow swing of the direction besides [deg]
  double SwingTime = 60.0;      ///< of the two lags that make the swing smooth [s], above 0

  // Water and earth.
  double CurrentTo = 90.0;    ///< direction that the current sets to [deg true]
  double CurrentSpeed = 0.0;  ///< [kn]
  double Variation = 3.0;     ///< [deg, east positive]

  // Instruments.
  double Deviation = 2.0;       ///< most deviation of the one compass, on east and west [deg]
  double VaneLag = 1.0;         ///< time constant of the wind instrument [s], 0 for none
  double VaneDelay = 0.0;       ///< by which the apparent wind that is sent is late besides [s, [0, 6]]
  double MastHeight = 15.0;     ///< of the vane over the water [m]
  double LogLag = 0.0;          ///< time constant of the speed through the water that is sent [s]
  double VaneNoise = 0.0;       ///< standard deviation of each wind angle sent [deg]
  double SpeedNoise = 0.0;      ///< standard deviation of each speed sent [kn]
  double WindPeriod = 1.0;      ///< time between wind sentences [s]
  double HeadingPeriod = 1.0;   ///< time between compass sentences [s]
  double OtherPeriod = 1.0;     ///< time between the sentences of log and satellite receiver [s]
  bool TrueWindSensor = false;  ///< sends a true wind after each apparent one
};

/// A gusty afternoon in a seaway: gusts of 20 percent, shifts of 4 degrees, noise on every instrument.
BoatSettings GustyBoat();

/// A cruiser with a rudder in a shifty wind, a pilot whose compass differs from the boat's, late instruments.
BoatSettings HardBoat(Sea sea);

/// What the boat really does.
struct BoatState {
  double Seconds = 0.0;          ///< since the start
  double Heading = 0.0;          ///< with the waves [deg true, [0, 360)]
  double Compass = 0.0;          ///< what the compass shows [deg magnetic, [0, 360)]
  double Speed = 0.0;            ///< through the water [kn]
  double Course = 0.0;           ///< over ground [deg true, [0, 360)]
  double SpeedOverGround = 0.0;  ///< [kn]
  double WindFrom = 0.0;         ///< over ground, with shifts [deg true, [0, 360)]
  double WindSpeed = 0.0;        ///< over ground, with gusts [kn]
  double ApparentAngle = 0.0;    ///< without the lag of the instrument [deg relative, (-180, 180]]
  double ApparentSpeed = 0.0;    ///< [kn]
  double TrueAngle = 0.0;        ///< of the wind over the water, off the bow [deg relative, (-180, 180]]
  double TrueSpeed = 0.0;        ///< [kn]
  double TurnRate = 0.0;         ///< without the waves [deg/s, positive to starboard]
  double Rudder = 0.0;           ///< [deg, positive to starboard]
  double RudderTravel = 0.0;     ///< the way that the rudder has made since the start [deg]
  EarthPlace Place{50.0, -5.0};
};

/// What the instruments read, with their noise. A group that is not due stands as it was.
struct BoatReadings {
  bool HeadingDue = false;
  bool OtherDue = false;
  bool WindDue = false;
  double Compass = 0.0;        ///< [deg magnetic, [0, 360)]
  double Speed = 0.0;          ///< through the water [kn, from 0 on]
  double GroundSpeed = 0.0;    ///< [kn, from 0 on]
  double ApparentAngle = 0.0;  ///< [deg relative, any turn]
  double ApparentSpeed = 0.0;  ///< [kn, from 0 on]
  double TrueAngle = 0.0;      ///< where there is a sensor [deg relative, any turn]
  double TrueSpeed = 0.0;      ///< the same [kn, from 0 on]
};

/// The way to the waypoint.
struct BoatWaypoint {
  double Range = 0.0;    ///< [nm]
  double Bearing = 0.0;  ///< [deg true, [0, 360)]
  double Closing = 0.0;  ///< speed towards it [kn]
};

/// The speed that she comes to with the true wind at `angle` [deg relative] and of `windSpeed` [kn].
double BoatPolarSpeed(const BoatSettings& settings, double angle, double windSpeed);

class BoatModel {
 public:
  /// The length of one step of the model [s]; periods are rounded to it.
  static constexpr double kTick = 0.05;

  /// Starts on `heading` [deg magnetic, as its compass shows it] at the speed that belongs to it, with a
  /// waypoint ten miles ahead, and holds that heading until the pilot gets a first order.
  BoatModel(const BoatSettings& settings, double heading, std::uint64_t seed);

  /// Sails on for kTick and returns what the instruments read.
  const BoatReadings& Tick();

  /// Gives the pilot an order.
  void Steer(const PilotOrder& order) { m_pilot.Take(order, m_settings.Pilot, m_state.Compass); }

  /// Whether the pilot steers. While it does not, somebody at the wheel keeps `heading` [deg magnetic], or
  /// nobody is there and the wheel stays where it was.
  void PilotStandby(std::optional<double> heading);
  void PilotEngage() { m_engaged = true; }

  /// Puts the waypoint `range` [nm] away at `bearing` [deg true].
  void PutWaypoint(double bearing, double range);
  const EarthPlace& WaypointPlace() const { return m_waypoint; }
  BoatWaypoint Waypoint() const;

  /// May be changed while sailing.
  BoatSettings& Set() { return m_settings; }
  const BoatSettings& Set() const { return m_settings; }
  const BoatState& State() const { return m_state; }
  const BoatPilot& Pilot() const { return m_pilot; }

 private:
  void MoveWind();
  void Swing();
  void MoveSea();
  void Turn();
  /// What is missing to the bearing, or to the heading that somebody at the wheel keeps [deg].
  double Missing() const;
  /// The rate of turn that the pilot asks for [deg/s].
  void TurnAsAsked();
  void TurnByRudder(const RudderSettings& rudder);
  double RudderAsked();
  void Move();
  void ReadVane();
  void Read();
  void ReadWind();
  bool Due(double period) const;
  /// A speed as an instrument reads it [kn].
  double Noisy(double knots);
  double Gauss();
  /// One tick of a noise with memory, of unit deviation.
  void Wander(double& value, double memory);

  BoatSettings m_settings;
  BoatState m_state;
  BoatReadings m_readings;
  SeededRandom m_random;
  std::int64_t m_ticks = 0;

  double m_gust = 0.0;
  double m_shift = 0.0;
  double m_swingAim = 0.0;  // what the swing follows
  double m_swing = 0.0;
  double m_yaw = 0.0;
  double m_keel = 0.0;  ///< heading without the waves [deg true]
  Seaway m_seaway;
  SeaMotion m_sea;
  /// The wind at the vane [kn, from ahead and from the right].
  struct VaneWind {
    double Ahead = 0.0;
    double Right = 0.0;
  };
  static constexpr std::size_t kVaneKept = 128;  ///< ticks
  VaneWind m_vane;
  std::array<VaneWind, kVaneKept> m_vaneLate{};  ///< what the instrument has read, a ring
  std::size_t m_vaneRead = 0;                    ///< how many there have been
  double m_log = 0.0;                            ///< speed that the log shows [kn]
  EarthPlace m_waypoint;

  BoatPilot m_pilot;
  bool m_engaged = true;
  std::optional<double> m_wheel;  ///< heading that somebody at the wheel keeps [deg magnetic]
};

}  // namespace veerwatch
