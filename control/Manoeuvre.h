// A timed turn of the autopilot to a new heading: which kind of turn it is, where it ends, and where the
// pilot stands at every moment of it. The manoeuvre dialog drives it; it knows no window and no clock.
#pragma once

namespace veerwatch {

/// The numbers are the indexes of the settings and of their keys.
enum class ManoeuvreKind : int {
  Steer = 1,  ///< the wind stays on its side
  Tack = 2,   ///< the wind passes through the bow
  Jibe = 3,   ///< the wind passes through the stern
};

class Manoeuvre {
 public:
  /// The rate where none above 0 is given [deg/s].
  static constexpr double kUsualRate = 10.0;

  /// Takes what the turn starts from and chooses its kind: the new heading, the present heading and the
  /// autopilot bearing [deg magnetic, any turn], the wind angle now [deg relative, positive to starboard, any
  /// turn]. A turn from or to a wind of exactly 0 or 90 degrees is steered; a wind of 180 is on the starboard
  /// side. False, with nothing changed, when one of them is not finite.
  /// Deliberate: the turn starts from these values, however late Start() comes.
  bool Open(float newHeading, float heading, float autoPilot, float windAngle);

  ManoeuvreKind Kind() const { return m_kind; }
  /// The side of the overshoot: 1 starboard, -1 port, 0 where there is none.
  int Direction() const { return m_direction; }

  /// Begins the turn to `newHeading` [deg magnetic, any turn], the shorter way round; half a circle goes to
  /// starboard. It ends past it by `overshoot` [deg] on the side of a tack or a jibe. An overshoot that would
  /// carry the turn beyond half a circle, or back over its start, is cut there, so the boat never turns the
  /// other way. `rate` [deg/s]: 0 or less is kUsualRate. What is not finite counts as no turn, no overshoot
  /// and kUsualRate.
  void Start(float newHeading, float overshoot, float rate);

  /// The change that Start() would make of these [deg, [-180, 180], positive to starboard].
  double Planned(float newHeading, float overshoot) const;

  /// `seconds` more of the turn [s, at least 0]. True when the boat has arrived, with Progress() equal to
  /// Change().
  bool Step(double seconds);

  /// Takes the turn back, or on, to where `progress` of it was turned [deg, from 0 to Change()].
  void ContinueFrom(double progress) { m_progress = progress; }

  /// The wind angle at Open() [deg relative, (-180, 180]].
  double Wind() const { return m_wind; }
  /// The whole turn [deg, [-180, 180], positive to starboard].
  double Change() const { return m_change; }
  /// What has been turned of it [deg, from 0 to Change()].
  double Progress() const { return m_progress; }
  /// The heading to steer now [deg magnetic, [0, 360)].
  float Heading() const;
  /// The bearing for the pilot now [deg magnetic, [0, 360)]: the heading with the pilot's own offset from the
  /// compass as it was at Open().
  float AutoPilot() const;

 private:
  double m_start = 0.0;
  double m_pilotOffset = 0.0;
  double m_wind = 0.0;
  ManoeuvreKind m_kind = ManoeuvreKind::Steer;
  int m_direction = 0;
  double m_change = 0.0;
  double m_rate = 0.0;  // [deg/s], with the sign of the change
  double m_progress = 0.0;
};

}  // namespace veerwatch
