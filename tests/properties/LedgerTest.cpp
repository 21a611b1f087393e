// The course ledger, turned and seen in a mirror: where it steers to, and which side its texts name.
#include <array>
#include <cmath>
#include <cstddef>
#include <optional>
#include <string>

#include "platform/NumberText.h"
#include "polar/CourseLedger.h"
#include "tests/properties/AnyCourse.h"

namespace veerwatch {
namespace {

/// A question with all that the ledger of it depends on.
struct Asked {
  PolarTable Table;
  PolarSettings Settings;
  LedgerInput Input;
};

LedgerContent Answer(const Asked& asked) {
  return CourseLedger(asked.Settings, asked.Input, CourseTargets(asked.Table, asked.Input.Query));
}

/// From one direction to another, positive to starboard [deg, -180 to 180].
double Turn(float from, float to) {
  return std::remainder(static_cast<double>(to) - static_cast<double>(from), 360.0);
}

/// "12" or "+12" for "-12" and the other way; what is no number stays.
std::string WithOtherSign(const std::string& text) {
  const std::optional<float> number = StrictNumber(text);
  if (!number || *number == 0.0F) {
    return text;
  }
  return text.front() == '-' ? text.substr(1) : "-" + text.substr(text.front() == '+' ? 1 : 0);
}

std::string WithoutPlus(const std::string& text) { return text.front() == '+' ? text.substr(1) : text; }

TurnFace Mirrored(const TurnFace& face) {
  const auto steered = [&](std::size_t from, std::size_t end) {
    return WithOtherSign(face.Caption.substr(from, face.Caption.size() - from - end));
  };
  TurnFace mirrored = face;
  if (face.Caption == "<< Tack" || face.Caption == "<< Jibe") {
    mirrored.Caption = face.Caption.substr(3) + " >>";
  } else if (face.Caption == "Tack >>" || face.Caption == "Jibe >>") {
    mirrored.Caption = "<< " + face.Caption.substr(0, 4);
  } else if (face.Caption.starts_with("< Steer ")) {
    mirrored.Caption = "Steer +" + steered(8, 0) + " >";
  } else if (face.Caption.ends_with(" >")) {
    mirrored.Caption = "< Steer " + steered(6, 2);
  }
  if (face.Back != TurnColor::Own) {
    mirrored.Back = face.Back == TurnColor::Starboard ? TurnColor::Port : TurnColor::Starboard;
  }
  return mirrored;
}

void ExpectFace(const TurnFace& expected, const TurnFace& face) {
  EXPECT_EQ(expected.Caption, face.Caption);
  EXPECT_EQ(expected.Back, face.Back) << face.Caption;
}

/// What stands after the heading in a figure, as "(50%)".
std::string AfterHeading(const LedgerFigure& figure) {
  const std::size_t blank = figure.Value.find(' ');
  return blank == std::string::npos ? "" : figure.Value.substr(blank);
}

/// The figures of a leg, which change places in a mirror.
constexpr std::size_t kStarboard = 1;
constexpr std::size_t kPort = 2;

class AnyLedger : public AnyCourse {
 protected:
  Asked Ask() {
    Asked asked;
    asked.Table = Polar();
    asked.Settings.CourseWaypoint = true;
    asked.Settings.CourseWaypointIndex = static_cast<CourseSource>(Whole(0, 2));
    asked.Settings.CourseScale = Whole(0, 1) == 1;
    asked.Settings.Boat = static_cast<BoatType>(Whole(0, 1));
    asked.Input = {Query(), Part(0.5, 12.0), Part(2.0, 10.0), Part(0.1, 60.0)};
    return asked;
  }

  static Asked Turned(Asked asked, float turn) {
    asked.Input.Query.Heading = OnCompass(asked.Input.Query.Heading + turn);
    asked.Input.Query.TargetBearing = OnCompass(asked.Input.Query.TargetBearing + turn);
    return asked;
  }

  static Asked InAMirror(Asked asked) {
    CourseQuery& query = asked.Input.Query;
    query = {OnCompass(-query.Heading), OnCompass(-query.TargetBearing), -query.WindAngleTrue,
             query.WindSpeedTrue};
    return asked;
  }

  /// Headings are where `where` puts them, the rest is the same.
  template <class Where>
  static void ExpectFigure(const LedgerFigure& a, const LedgerFigure& b, Where where) {
    SCOPED_TRACE(a.Heading + " " + a.Value + " became " + b.Value);
    EXPECT_EQ(a.Faint, b.Faint);
    if (!a.Heading.ends_with("(M)")) {
      EXPECT_EQ(a.Value, b.Value);
      return;
    }
    const float after = LeadingNumber(b.Value, -1.0F);
    EXPECT_EQ(Off(after, where(LeadingNumber(a.Value))), 0.0);
    EXPECT_GE(after, 0.0F);
    EXPECT_LT(after, 360.0F);
    EXPECT_EQ(AfterHeading(a), AfterHeading(b));
  }

  /// What was tried.
  int Two = 0;     ///< ledgers with two legs to sail
  int OnPort = 0;  ///< with one, and the wind from port there
  int ToStarboard = 0;
  int Jibes = 0;
  void Count(const LedgerContent& content) {
    Two += content.TackPossible ? 1 : 0;
    OnPort += !content.TackPossible && !content.Figures[kPort].Faint ? 1 : 0;
    ToStarboard += content.Steer.Back == TurnColor::Starboard ? 1 : 0;
    Jibes += content.Tack.Caption.find("Jibe") != std::string::npos ? 1 : 0;
  }
  void ExpectEnough() const {
    constexpr int kSome = kPolars / 10;
    EXPECT_GT(Two, kSome);
    EXPECT_GT(OnPort, kSome);
    EXPECT_GT(ToStarboard, kSome);
    EXPECT_GT(Jibes, kSome);
    EXPECT_LT(Two + OnPort, kPolars - kSome);
    EXPECT_LT(ToStarboard, kPolars - kSome);
    EXPECT_LT(Jibes, kPolars - kSome);
  }
};

TEST_F(AnyLedger, TurnedByAnyAngleTurnsItsHeadingsAndLeavesTheRest) {
  for (int i = 0; i < kPolars && !HasFailure(); ++i) {
    SCOPED_TRACE(i);
    const Asked asked = Ask();
    const auto turn = static_cast<float>(Whole(1, 359));
    const LedgerContent a = Answer(asked);
    const LedgerContent b = Answer(Turned(asked, turn));
    Count(a);
    EXPECT_EQ(Off(b.SteerHeading, a.SteerHeading + turn), 0.0);
    EXPECT_EQ(Off(b.TackHeading, a.TackHeading + turn), 0.0);
    ExpectFace(a.Steer, b.Steer);
    ExpectFace(a.Tack, b.Tack);
    EXPECT_EQ(a.TackPossible, b.TackPossible);
    EXPECT_EQ(a.Rows, b.Rows);
    ASSERT_EQ(a.Figures.size(), b.Figures.size());
    for (std::size_t figure = 0; figure < a.Figures.size(); ++figure) {
      ExpectFigure(a.Figures[figure], b.Figures[figure], [turn](float before) { return before + turn; });
    }
    ASSERT_EQ(a.Legs.size(), b.Legs.size());
    for (std::size_t leg = 0; leg < a.Legs.size(); ++leg) {
      EXPECT_EQ(a.Legs[leg].WindAngle, b.Legs[leg].WindAngle);
      EXPECT_EQ(a.Legs[leg].Speed, b.Legs[leg].Speed);
      EXPECT_EQ(a.Legs[leg].PortTack, b.Legs[leg].PortTack);
      EXPECT_EQ(a.Legs[leg].Now, b.Legs[leg].Now);
    }
  }
  ExpectEnough();
}

TEST_F(AnyLedger, InAMirrorSteersToTheOtherSideAndNamesTheOtherTack) {
  int halfTurns = 0;
  for (int i = 0; i < kPolars && !HasFailure(); ++i) {
    SCOPED_TRACE(i);
    const Asked asked = Ask();
    const LedgerContent a = Answer(asked);
    const LedgerContent b = Answer(InAMirror(asked));
    // Half a turn is one to starboard on either side.
    const float heading = asked.Input.Query.Heading;
    if (Off(heading, a.SteerHeading) == 180.0 || Off(heading, a.TackHeading) == 180.0 ||
        Off(heading, asked.Input.Query.TargetBearing) == 180.0) {
      ++halfTurns;
      continue;
    }
    Count(a);
    EXPECT_EQ(Off(b.SteerHeading, -a.SteerHeading), 0.0);
    EXPECT_EQ(Off(b.TackHeading, -a.TackHeading), 0.0);
    ExpectFace(Mirrored(a.Steer), b.Steer);
    ExpectFace(Mirrored(a.Tack), b.Tack);
    EXPECT_EQ(a.TackPossible, b.TackPossible);
    constexpr std::array<std::size_t, 6> kOtherRow{4, 1, 3, 2, 0, 5};
    for (std::size_t row = 0; row < kOtherRow.size(); ++row) {
      const LedgerRow& one = a.Rows[row];
      const LedgerRow& other = b.Rows[kOtherRow[row]];
      SCOPED_TRACE(one.Label);
      EXPECT_EQ(WithOtherSign(one.Angle), WithoutPlus(other.Angle));
      EXPECT_EQ(one.Speed, other.Speed);
    }
    ASSERT_EQ(a.Figures.size(), b.Figures.size());
    for (std::size_t figure = 0; figure < a.Figures.size(); ++figure) {
      const bool leg = figure == kStarboard || figure == kPort;
      const std::size_t other = leg ? kStarboard + kPort - figure : figure;
      ExpectFigure(a.Figures[figure], b.Figures[other], [](float before) { return -before; });
    }
    ASSERT_EQ(a.Legs.size(), b.Legs.size());
    for (std::size_t leg = 0; leg < a.Legs.size(); ++leg) {
      const LedgerLeg& one = a.Legs[leg];
      const LedgerLeg& other = b.Legs[b.Legs.size() - 1 - leg];
      EXPECT_EQ(one.WindAngle, -other.WindAngle);
      EXPECT_NEAR(one.Speed, other.Speed, 1e-5);
      EXPECT_NE(one.PortTack, other.PortTack);
      EXPECT_EQ(one.Now, other.Now);
    }
  }
  EXPECT_LT(halfTurns, kPolars / 10);
  ExpectEnough();
}

TEST_F(AnyLedger, NamesTheSideThatTheWindComesFromAndTheBoatTurnsTo) {
  for (int i = 0; i < kPolars && !HasFailure(); ++i) {
    SCOPED_TRACE(i);
    const Asked asked = Ask();
    const LedgerContent content = Answer(asked);
    Count(content);
    const CourseQuery& query = asked.Input.Query;
    const float wind = query.Heading + query.WindAngleTrue;
    const auto windOn = [&](std::size_t figure) {
      return Turn(LeadingNumber(content.Figures[figure].Value), wind);
    };
    const LedgerFigure& starboard = content.Figures[kStarboard];
    if (content.TackPossible) {
      EXPECT_LT(windOn(kPort), windOn(kStarboard));
    } else {
      EXPECT_EQ(starboard.Faint, windOn(kStarboard) < 0.0);
      EXPECT_NE(starboard.Faint, content.Figures[kPort].Faint);
    }
    for (const LedgerLeg& leg : content.Legs) {
      const auto heading =
          static_cast<double>(LeadingNumber(content.Figures[leg.PortTack ? kPort : kStarboard].Value));
      EXPECT_EQ(leg.Now, heading == static_cast<double>(content.SteerHeading));
    }
    const double turn = Turn(query.Heading, content.SteerHeading);
    if (std::fabs(turn) != 180.0) {
      const TurnColor back = turn == 0.0  ? TurnColor::Own
                             : turn > 0.0 ? TurnColor::Starboard
                                          : TurnColor::Port;
      EXPECT_EQ(content.Steer.Back, back);
      EXPECT_EQ(content.Steer.Caption.ends_with('>'), turn > 0.0);
      EXPECT_EQ(content.Steer.Caption.starts_with('<'), turn < 0.0);
    }
  }
  ExpectEnough();
}

}  // namespace
}  // namespace veerwatch
