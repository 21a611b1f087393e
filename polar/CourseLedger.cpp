#include "polar/CourseLedger.h"

#include "instruments/MathLib.h"
#include "platform/Language.h"
#include "platform/NumberText.h"

namespace veerwatch {

namespace {

constexpr double kPercent = 100.0;
constexpr const char* kNotSailed = "--";

bool MotorSails(const PolarSettings& settings) { return settings.Boat == BoatType::MotorAndSail; }

/// "+12", "-12" or "0".
std::string SignedAngle(double angle) {
  const float folded = FoldRelative(angle);
  std::string number = FormatNumber(folded, "0");
  if (folded > 0.0F && number != "0") {
    number.insert(0, 1, '+');
  }
  return number;
}

/// The ledger of one solution that has the boat's pace.
class Writer {
 public:
  Writer(const PolarSettings& settings, const LedgerInput& input, const CourseSolution& solution)
      : m_settings(settings),
        m_input(input),
        m_solution(solution),
        m_port(PortLeg(solution)),
        m_now(LegNow(solution)),
        m_hours(HoursFor(input.WaypointRange, solution.Best)) {}

  LedgerContent Write() const {
    LedgerContent content;
    AddFigures(content);
    content.Rows = Rows();
    content.TargetWindAngle = static_cast<double>(PlotAngle(Straight()));
    AddLegs(content);
    const CourseLeg& now = m_solution.Legs[m_now];
    const CourseLeg& other = m_solution.Legs[1 - m_now];
    content.TackPossible = other.Share > 0.0F;
    content.Upwind = m_solution.Upwind;
    content.SteerHeading = now.Heading;
    content.TackHeading = other.Heading;
    content.Steer = SteerFace(now.Heading, m_input.Query.Heading);
    content.Tack = TackFace(m_solution.SideFlag, m_solution.Upwind, content.TackPossible);
    return content;
  }

 private:
  const CourseLeg& Port() const { return m_solution.Legs[m_port]; }
  const CourseLeg& Starboard() const { return m_solution.Legs[1 - m_port]; }
  bool Ranged() const { return m_settings.CourseWaypointIndex == CourseSource::WaypointRange; }

  std::string Bearing() const {
    return FormatNumber(FoldBearing(static_cast<double>(m_input.Query.TargetBearing)), "0");
  }

  LedgerFigure LegFigure(const char* heading, const CourseLeg& leg, LedgerSubject subject) const {
    std::string part;
    if (Ranged()) {
      part = FormatHours(m_hours ? std::optional(*m_hours * static_cast<double>(leg.Share)) : std::nullopt);
    } else {
      part = FormatNumber(ToSingle(static_cast<double>(leg.Share) * kPercent), "0") + "%";
    }
    return {Tr(heading), FormatNumber(leg.Heading, "0") + " (" + part + ")", subject, !(leg.Share > 0.0F)};
  }

  std::string TimeText() const {
    if (MotorSails(m_settings)) {
      const auto motor = HoursFor(m_input.WaypointRange, m_settings.BoatMotorSpeed);
      return Filled(Tr("%1 (motor %2)"), {FormatHours(m_hours), FormatHours(motor)});
    }
    return FormatHours(m_hours);
  }

  void AddFigures(LedgerContent& content) const {
    const std::string speed = FormatNumber(m_solution.Best, "0.0");
    auto& figures = content.Figures;
    figures = {{Tr("Heading (M)"), FormatNumber(m_input.Query.Heading, "0"), LedgerSubject::Boat},
               LegFigure(TrMark("Stb (M)"), Starboard(), LedgerSubject::StarboardTack),
               LegFigure(TrMark("Prt (M)"), Port(), LedgerSubject::PortTack),
               {Tr("Target (M)"), Bearing(), LedgerSubject::Target},
               {Tr("Target (Kts)"), speed, LedgerSubject::Target}};
    if (m_settings.CourseWaypointIndex != CourseSource::TargetBearing) {
      figures.push_back({Tr("Wpt (M)"), Bearing(), LedgerSubject::Target});
      figures.push_back({Tr("Wpt (Kts)"), speed, LedgerSubject::Target});
    }
    if (Ranged()) {
      figures.push_back({Tr("Wpt (Rng)"), FormatNumber(m_input.WaypointRange, "0.0"), LedgerSubject::Target});
      figures.push_back({Tr("Wpt (h:m)"), TimeText(), LedgerSubject::Target});
    }
  }

  static LedgerRow WindRow(const char* label, const CourseLeg& leg, LedgerSubject subject) {
    if (!(leg.Share > 0.0F)) {
      return {Tr(label), kNotSailed, "", subject};
    }
    return {Tr(label), FormatNumber(leg.WindAngle, "0"), FormatNumber(leg.Speed, "0.0"), subject};
  }

  LedgerRow TurnRow(const char* label, float bearing, bool sailed, LedgerSubject subject) const {
    const double turn = static_cast<double>(bearing) - static_cast<double>(m_input.Query.Heading);
    return {Tr(label), sailed ? SignedAngle(turn) : kNotSailed, "", subject};
  }

  std::array<LedgerRow, 6> Rows() const {
    const auto port = LedgerSubject::PortTack;
    const auto starboard = LedgerSubject::StarboardTack;
    const CourseQuery& query = m_input.Query;
    return {WindRow(TrMark("Best Wind Angle Port Tack"), Port(), port),
            TurnRow(TrMark("Target Bearing (Heads Up)"), query.TargetBearing, true, LedgerSubject::Target),
            TurnRow(TrMark("Target Starboard Tack (Heads Up)"), Starboard().Heading, Starboard().Share > 0.0F,
                    starboard),
            TurnRow(TrMark("Target Port Tack (Heads Up)"), Port().Heading, Port().Share > 0.0F, port),
            WindRow(TrMark("Best Wind Angle Starboard Tack"), Starboard(), starboard),
            {Tr("Current Wind Angle and Speed"), FormatNumber(query.WindAngleTrue, "0"),
             FormatNumber(query.WindSpeedTrue, "0.0"), LedgerSubject::Wind}};
  }

  /// The straight way to the target, sailed or not.
  CourseLeg Straight() const {
    const CourseQuery& query = m_input.Query;
    CourseLeg leg;
    leg.WindAngle =
        FoldRelative(static_cast<double>(query.Heading) + static_cast<double>(query.WindAngleTrue) -
                     static_cast<double>(query.TargetBearing));
    leg.Speed = m_solution.Direct;
    return leg;
  }

  /// Where the plot has a leg: a smooth table was looked up in the true wind also where the plot shows the
  /// apparent one [deg relative].
  float PlotAngle(const CourseLeg& leg) const {
    if (!m_settings.SmoothWinds || m_settings.Type == PlotType::TrueWind) {
      return leg.WindAngle;
    }
    float speed = 0.0F;
    float angle = 0.0F;
    WindApparentFromTrue(m_input.Query.WindSpeedTrue, leg.WindAngle, leg.Speed, speed, angle);
    return angle;
  }

  void AddLegs(LedgerContent& content) const {
    for (std::size_t i = 0; i < m_solution.Legs.size(); ++i) {
      const CourseLeg& leg = m_solution.Legs[i];
      if (leg.Share > 0.0F && leg.Speed > 0.0F) {
        content.Legs.push_back(
            {static_cast<double>(PlotAngle(leg)), static_cast<double>(leg.Speed), i == m_port, i == m_now});
      }
    }
  }

  const PolarSettings& m_settings;
  const LedgerInput& m_input;
  const CourseSolution& m_solution;
  std::size_t m_port;
  std::size_t m_now;
  std::optional<double> m_hours;  ///< to the waypoint
};

}  // namespace

LedgerContent CourseLedger(const PolarSettings& settings, const LedgerInput& input,
                           const CourseSolution& solution) {
  const bool scaled = settings.CourseScale || MotorSails(settings);
  const CourseSolution paced = scaled ? CourseScaled(solution, input.BoatSpeed, input.PolarSpeed) : solution;
  return Writer(settings, input, paced).Write();
}

}  // namespace veerwatch
