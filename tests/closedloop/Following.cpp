#include "tests/closedloop/Following.h"

#include <cmath>

#include "alarms/WatchText.h"
#include "tests/closedloop/Passage.h"

namespace veerwatch {

const std::array<PilotFault, kPilotFaultCount> kPilotFaults{
    {{"follows", FollowVerdict::Follows, nullptr},
     {"in standby", FollowVerdict::DoesNotFollow,
      [](WireBoat& boat, double course) { boat.PilotStandby(course); }},
     {"refuses", FollowVerdict::DoesNotFollow,
      [](WireBoat& boat, double) { boat.Set().Pilot.Refuses = true; }},
     {"reversed", FollowVerdict::TurnsAway,
      [](WireBoat& boat, double) { boat.Set().Pilot.Reversed = true; }}}};

namespace {

constexpr double kMinute = 60.0;  // [s]

class Followed {
 public:
  explicit Followed(const FollowCase& what)
      : m_case(what), m_random(what.Seed + 1000), m_passage(BoatOf(what), 90.0, what.Seed) {
    m_passage.Set.m_iNmeaHeading = 0;
    m_passage.Set.m_iNmeaBoatSpeed = 0;
    m_passage.TheHelm().Loop().SetAutoPilot(90.0 + (what.Rudder ? what.Offset : 0.0));
    m_passage.Sail(5.0);
    m_passage.TheHelm().Modes().TrackSetManual();
    m_passage.Sail(kMinute);
  }

  FollowResult Result() {
    for (int change = 0; change < m_case.Changes; ++change) {
      ChangeBearing(5.0);
      Sail(FollowVerdict::Follows, 0.0);
    }
    m_result.Offset = m_passage.TheHelm().Now().Watch.PilotOffset;
    if (m_case.Fault.Begin != nullptr) {
      m_case.Fault.Begin(m_passage.Boat, Course());
    }
    constexpr double kTellsBy = 30.0;  // [s]
    ChangeBearing(25.0);
    m_result.Told.reset();
    Sail(m_case.Fault.Right, kTellsBy);
    m_result.Right = m_result.Wrong.empty();
    return m_result;
  }

 private:
  static BoatSettings BoatOf(const FollowCase& what) {
    BoatSettings boat = HardBoat(what.TheSea);
    boat.Pilot.CompassOffset = what.Offset;
    boat.Pilot.BearingLag = what.Lag;
    boat.HeadingPeriod = what.Seed % 2 == 0 ? 0.1 : 1.0;
    if (!what.Rudder) {
      boat.Rudder.reset();
      boat.TurnLag = what.Lag;
    }
    return boat;
  }

  double Beyond() const { return m_case.Rudder ? m_case.Offset : 0.0; }
  double Course() const { return static_cast<double>(m_passage.Set.m_fAutoPilot) - Beyond(); }

  /// The pilot gets a bearing that is `least` degrees or more from the course that it was told, by its own
  /// compass.
  /// She can lie there: her wind stays between 55 and 165 degrees.
  void ChangeBearing(double least) {
    constexpr double kHigh = 142.0;  // [deg magnetic]
    constexpr double kLow = 32.0;
    const double course = Course();
    double wanted = course;
    while (std::fabs(std::remainder(wanted - course, 360.0)) < least) {
      wanted = kLow + (kHigh - kLow) * m_random.Next();
    }
    m_passage.TheHelm().UserSteersTo(wanted + Beyond());
  }

  /// A minute, in which `right` has to be said from `by` [s] on.
  void Sail(FollowVerdict right, double by) {
    for (int second = 1; second <= 60; ++second) {
      m_passage.Sail(1.0);
      const FollowVerdict said = m_passage.TheHelm().Now().Watch.Follow;
      if (said == right && !m_result.Told) {
        m_result.Told = second;
      }
      const bool early = second <= by && (said == FollowVerdict::Follows || said == FollowVerdict::Slow);
      if (said != right && !early && m_result.Wrong.empty()) {
        m_result.Wrong = std::string(FollowText(said)) + " after " + std::to_string(second) + " s";
      }
    }
  }

  FollowCase m_case;
  SeededRandom m_random;
  Passage m_passage;
  FollowResult m_result;
};

}  // namespace

FollowResult Follow(const FollowCase& what) { return Followed(what).Result(); }

FollowCase FollowCaseOf(const PilotFault& fault, bool rudder, std::uint64_t index) {
  constexpr std::array<Sea, 5> kSeas{Sea::Flat, Sea::Slight, Sea::Beam, Sea::Following, Sea::Head};
  FollowCase one;
  one.Fault = fault;
  one.Rudder = rudder;
  one.Lag = 1.0 + static_cast<double>(index % 8);
  one.Offset = index % 2 == 0 ? 5.0 : -5.0;
  one.TheSea = kSeas[index % kSeas.size()];
  one.Seed = index + 1;
  return one;
}

}  // namespace veerwatch
