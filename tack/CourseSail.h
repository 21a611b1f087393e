// The way to a mark by the wind: reckons which angle to hold on the present tack, and when the mark bears on
// the heading of the other one. It knows no window, no polar and no clock; CourseRun drives it.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "control/Manoeuvre.h"

namespace veerwatch {

/// What a polar is asked about the way to a mark.
struct MarkAsk {
  double Bearing = 0.0;    ///< of the mark [deg magnetic, any turn]
  double WindFrom = 0.0;   ///< the true wind blows from there [deg magnetic, any turn]
  double WindSpeed = 0.0;  ///< [kn]
  double Wind = 0.0;       ///< true wind angle now [deg relative]
};

/// The way that it finds, as the course ledger has it.
struct MarkLegs {
  bool Two = false;    ///< on two legs; else straight to the mark
  double Now = 0.0;    ///< true wind angle of the leg to sail now [deg relative]
  double Other = 0.0;  ///< of the other one; that of Now where there is none [deg relative]
};

/// Asks a polar; nothing where it makes no way to the mark.
using MarkLegsSource = std::function<std::optional<MarkLegs>(const MarkAsk& ask)>;

/// How long it takes until a mark bears on `line`, with it at `range` [nm, at least 0] and `bearing`, when
/// the boat sails `course` at `speed` [kn] [deg, any turn]: [s, at least 0], 0 where it bears beyond it
/// already. Nothing where she never comes there.
///
///     mark      Her way d and the mark's distance make a triangle with the line back from the mark:
///      |\       d = range * sin(bearing - line) / sin(course - line).
std::optional<double> SecondsToLine(double range, double bearing, double course, double line, double speed);

class CourseSail {
 public:
  /// At one second.
  struct Sense {
    double Heading = 0.0;         ///< [deg magnetic]
    double Wind = 0.0;            ///< true wind angle, as little smoothed as it can be had [deg relative]
    double WindSpeed = 0.0;       ///< of the true wind [kn]
    std::optional<double> Speed;  ///< of the boat [kn]
    double Bearing = 0.0;         ///< of the mark [deg magnetic]
    std::optional<double> Range;  ///< of the mark [nm]; nothing for a bearing alone
    bool Port = false;            ///< the wind that is held is on the port side
  };

  struct Answer {
    bool Straight = false;         ///< the leg leads to the mark
    std::optional<double> Hold;    ///< true wind angle to hold [deg relative]; nothing for the held one
    bool Due = false;              ///< the mark bears on the other leg's heading, or beyond
    double Past = 0.0;             ///< by so much beyond [deg, at least 0]
    std::optional<double> ToLine;  ///< until it does [s, at least 0]; nothing where that is not known
    ManoeuvreKind Turn = ManoeuvreKind::Tack;  ///< the turn to the other leg: a tack or a jibe
    std::optional<double> Aim;  ///< true wind angle of the other leg [deg relative]; nothing without one
  };

  /// Knows nothing of the wind yet.
  void Begin() { *this = CourseSail(); }

  /// What follows from a second; `seconds` [s, at least 0] after the one before. Nothing where the polar has
  /// no answer. A wind nearly dead astern of the straight way counts for the present tack, at most 175
  /// degrees of it. The line is that of the way on two legs also where the straight way on the other tack has
  /// become nearly as good; without such a way before, the turn is due at once.
  std::optional<Answer> Step(const MarkLegsSource& polar, const Sense& sense, double seconds);

  /// The boat has turned by the program's own turn: what was reckoned on the old tack is forgotten, and the
  /// wind is not taken for a while.
  void Turned();

  /// The true wind [deg magnetic, any turn], [kn], and the boat's speed [kn], as means of half a minute.
  double WindFrom() const;
  double WindSpeed() const { return m_windSpeed; }
  double Speed() const { return m_speed; }

 private:
  void Feed(const Sense& sense, double seconds);
  void FindLine(const Sense& sense, Answer& answer);

  bool m_fed = false;
  double m_windX = 0.0;  ///< of the direction, as a smoothed vector
  double m_windY = 0.0;
  double m_windSpeed = 0.0;
  double m_speed = 0.0;
  bool m_speedKnown = false;
  double m_wait = 0.0;            ///< the wind is not taken for so long [s]
  std::optional<MarkLegs> m_two;  ///< the latest way on two legs on this tack
  bool m_due = false;
};

}  // namespace veerwatch
