#include "polar/CourseLedger.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <utility>

#include "tests/support/PolarText.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;

/// 6 kn from 45 degrees on, none nearer to the wind: tacking makes good 6 cos(45) = 4.243 kn.
const PolarTable& Beating() {
  static const PolarTable table = TableOf("TWA\t5\t20\n45\t6\t6\n180\t6\t6\n");
  return table;
}

class Ledger : public testing::Test {
 public:
  PolarSettings Settings;
  /// On port tack at 45 degrees to the wind from 100; the target lies in the wind's eye.
  LedgerInput Input{{145.0F, 100.0F, -45.0F, 12.0F}, 3.0F, 6.0F, 12.0F};

  Ledger() {
    Settings.CourseWaypoint = true;
    Settings.CourseScale = false;
    Settings.CourseWaypointIndex = CourseSource::TargetBearing;
  }

  LedgerContent Content(const PolarTable& table = Beating()) const {
    return CourseLedger(Settings, Input, CourseTargets(table, Input.Query));
  }
  std::vector<std::string> Figures(const PolarTable& table = Beating()) const {
    std::vector<std::string> lines;
    for (const LedgerFigure& figure : Content(table).Figures) {
      lines.push_back(figure.Heading + "=" + figure.Value);
    }
    return lines;
  }
  static std::vector<std::string> Rows(const LedgerContent& content) {
    std::vector<std::string> lines;
    for (const LedgerRow& row : content.Rows) {
      lines.push_back(row.Label + "=" + row.Angle + "/" + row.Speed);
    }
    return lines;
  }
};

TEST_F(Ledger, ShowsHeadingsAndSharesForATargetBearing) {
  EXPECT_THAT(Figures(), ElementsAre("Heading (M)=145", "Stb (M)=55 (50%)", "Prt (M)=145 (50%)",
                                     "Target (M)=100", "Target (Kts)=4.2"));
}

TEST_F(Ledger, SteersTheSameInEitherPlotWhenSmooth) {
  PolarTable table = TableOf(kSmallPolar);
  Input.Query.WindSpeedTrue = 8.0F;
  const auto headings = [&](PlotType type) {
    table.Type(type);
    const CourseSolution solution = CourseTargets(table, Input.Query);
    return std::pair(solution.Legs[0].Heading, solution.Legs[1].Heading);
  };
  EXPECT_NE(headings(PlotType::TrueWind), headings(PlotType::ApparentWind));
  table.Smooth(true);
  EXPECT_EQ(headings(PlotType::TrueWind), headings(PlotType::ApparentWind));
}

TEST_F(Ledger, DrawsSmoothLegsWhereThePlotHasThem) {
  PolarTable table = TableOf(kSmallPolar);
  table.Smooth(true);
  Settings.SmoothWinds = true;
  Input.Query.WindSpeedTrue = 10.0F;
  const LedgerContent inTrue = Content(table);
  Settings.Type = PlotType::ApparentWind;
  table.Type(PlotType::ApparentWind);
  const LedgerContent apparent = Content(table);
  ASSERT_EQ(inTrue.Legs.size(), 2U);
  ASSERT_EQ(apparent.Legs.size(), 2U);
  for (std::size_t i = 0; i < 2; ++i) {
    const double angle = inTrue.Legs[i].WindAngle * std::acos(-1.0) / 180.0;
    const double speed = inTrue.Legs[i].Speed;
    const double seen = std::atan2(10.0 * std::sin(angle), speed + 10.0 * std::cos(angle));
    EXPECT_NEAR(apparent.Legs[i].WindAngle, seen * 180.0 / std::acos(-1.0), 1e-4);
    EXPECT_EQ(apparent.Legs[i].Speed, speed);
  }
  EXPECT_LT(apparent.Legs[0].WindAngle * apparent.Legs[1].WindAngle, 0.0) << "one at either side";
  Input.Query.TargetBearing = 10.0F;
  const LedgerContent abeam = Content(table);
  ASSERT_EQ(abeam.Legs.size(), 1U);
  EXPECT_NEAR(abeam.TargetWindAngle, abeam.Legs[0].WindAngle, 1e-4) << "straight, as the leg";
  EXPECT_LT(abeam.TargetWindAngle, 80.0);
  EXPECT_EQ(Rows(apparent), Rows(inTrue));
}

TEST_F(Ledger, SaysWhereTheTargetLiesToTheWind) {
  EXPECT_NEAR(Content().TargetWindAngle, 0.0, 1e-4) << "in the wind's eye";
  Input.Query.TargetBearing = 10.0F;
  EXPECT_NEAR(Content().TargetWindAngle, 90.0, 1e-4) << "with the wind abeam, from starboard";
  Input.Query.TargetBearing = 250.0F;
  EXPECT_NEAR(Content().TargetWindAngle, -150.0, 1e-4);
}

TEST_F(Ledger, ShowsTheWaypointForItsBearing) {
  Settings.CourseWaypointIndex = CourseSource::WaypointBearing;
  EXPECT_THAT(Figures(), ElementsAre("Heading (M)=145", "Stb (M)=55 (50%)", "Prt (M)=145 (50%)",
                                     "Target (M)=100", "Target (Kts)=4.2", "Wpt (M)=100", "Wpt (Kts)=4.2"));
}

TEST_F(Ledger, ShowsRangeAndTimesForTheWaypointsRange) {
  Settings.CourseWaypointIndex = CourseSource::WaypointRange;
  // 12 nm at 4.243 kn are 2.828 hours, half of them 1.414.
  EXPECT_THAT(Figures(), ElementsAre("Heading (M)=145", "Stb (M)=55 (1:25)", "Prt (M)=145 (1:25)",
                                     "Target (M)=100", "Target (Kts)=4.2", "Wpt (M)=100", "Wpt (Kts)=4.2",
                                     "Wpt (Rng)=12.0", "Wpt (h:m)=2:50"));
}

TEST_F(Ledger, ShowsTheTimeUnderMotorBesideTheSailingTime) {
  Settings.CourseWaypointIndex = CourseSource::WaypointRange;
  Settings.Boat = BoatType::MotorAndSail;
  Settings.BoatMotorSpeed = 5.0F;
  Input.BoatSpeed = 6.0F;
  EXPECT_EQ(Figures().back(), "Wpt (h:m)=2:50 (motor 2:24)");
  for (const float none : {0.0F, -4.0F}) {
    Settings.BoatMotorSpeed = none;
    EXPECT_EQ(Figures().back(), "Wpt (h:m)=2:50 (motor --:--)");
  }
}

TEST_F(Ledger, FollowsTheBoatsOwnSpeed) {
  Settings.CourseWaypointIndex = CourseSource::WaypointRange;
  Settings.CourseScale = true;
  // 3 kn where the polar has 6: half the speed and twice the time, 5.657 hours.
  const auto figures = Figures();
  EXPECT_EQ(figures[6], "Wpt (Kts)=2.1");
  EXPECT_EQ(figures[1], "Stb (M)=55 (2:50)");
  EXPECT_EQ(figures.back(), "Wpt (h:m)=5:39");
  EXPECT_EQ(Content().Rows[0].Speed, "3.0");
  EXPECT_FLOAT_EQ(static_cast<float>(Content().Legs[0].Speed), 3.0F);
  Settings.CourseScale = false;
  EXPECT_EQ(Figures().back(), "Wpt (h:m)=2:50");
}

TEST_F(Ledger, FollowsTheBoatsOwnSpeedUnderMotorAndSailEvenWithoutCourseScale) {
  Settings.Boat = BoatType::MotorAndSail;
  EXPECT_EQ(Figures().back(), "Target (Kts)=2.1");
}

TEST_F(Ledger, DoesNotScaleByAPolarSpeedOfZero) {
  Settings.CourseScale = true;
  Input.PolarSpeed = 0.0F;
  EXPECT_EQ(Figures().back(), "Target (Kts)=4.2");
}

TEST_F(Ledger, HasItsRows) {
  EXPECT_THAT(Rows(Content()),
              ElementsAre("Best Wind Angle Port Tack=-45/6.0", "Target Bearing (Heads Up)=-45/",
                          "Target Starboard Tack (Heads Up)=-90/", "Target Port Tack (Heads Up)=0/",
                          "Best Wind Angle Starboard Tack=45/6.0", "Current Wind Angle and Speed=-45/12.0"));
}

TEST_F(Ledger, MarksALegThatIsNotSailed) {
  Input.Query = {145.0F, 150.0F, -45.0F, 12.0F};
  const LedgerContent content = Content();
  EXPECT_EQ(content.Figures[1].Value, "150 (0%)");
  EXPECT_TRUE(content.Figures[1].Faint);
  EXPECT_EQ(content.Figures[2].Value, "150 (100%)");
  EXPECT_FALSE(content.Figures[2].Faint);
  EXPECT_THAT(Rows(content),
              ElementsAre("Best Wind Angle Port Tack=-50/6.0", "Target Bearing (Heads Up)=+5/",
                          "Target Starboard Tack (Heads Up)=--/", "Target Port Tack (Heads Up)=+5/",
                          "Best Wind Angle Starboard Tack=--/", "Current Wind Angle and Speed=-45/12.0"));
  EXPECT_EQ(content.Legs.size(), 1U);
  EXPECT_FALSE(content.TackPossible);
  EXPECT_EQ(content.Tack, (TurnFace{"<< Tack", TurnColor::Own}));
}

TEST_F(Ledger, SteersTheLegWithTheWindFromItsPresentSide) {
  Input.Query.Heading = 135.0F;
  Input.Query.WindAngleTrue = -35.0F;
  LedgerContent content = Content();
  EXPECT_EQ(content.Steer, (TurnFace{"Steer +10 >", TurnColor::Starboard}));
  EXPECT_EQ(content.SteerHeading, 145.0F);
  EXPECT_EQ(content.Tack, (TurnFace{"<< Tack", TurnColor::Port}));
  EXPECT_EQ(content.TackHeading, 55.0F);
  EXPECT_TRUE(content.TackPossible);
  Input.Query.Heading = 75.0F;
  Input.Query.WindAngleTrue = 25.0F;
  content = Content();
  EXPECT_EQ(content.Steer, (TurnFace{"< Steer -20", TurnColor::Port}));
  EXPECT_EQ(content.SteerHeading, 55.0F);
  EXPECT_EQ(content.Tack, (TurnFace{"Tack >>", TurnColor::Starboard}));
  EXPECT_EQ(content.TackHeading, 145.0F);
}

TEST_F(Ledger, ReachesTheOtherLegByATackUpToAWindAbeamAndBeyondByAJibe) {
  Input.Query.WindAngleTrue = -90.0F;
  Input.Query.Heading = 190.0F;
  EXPECT_EQ(Content().Tack.Caption, "<< Tack");
  Input.Query.WindAngleTrue = -91.0F;
  Input.Query.Heading = 191.0F;
  EXPECT_EQ(Content().Tack.Caption, "Jibe >>");
  Input.Query.WindAngleTrue = 91.0F;
  Input.Query.Heading = 9.0F;
  EXPECT_EQ(Content().Tack.Caption, "<< Jibe");
}

TEST_F(Ledger, DrawsTheLegsAtTheirWindAngles) {
  const LedgerContent content = Content();
  ASSERT_EQ(content.Legs.size(), 2U);
  int ports = 0;
  for (const LedgerLeg& leg : content.Legs) {
    ports += leg.PortTack ? 1 : 0;
    EXPECT_EQ(leg.WindAngle, leg.PortTack ? -45.0 : 45.0);
    EXPECT_EQ(leg.Now, leg.PortTack) << "the wind is to port";
    EXPECT_NEAR(leg.Speed, 6.0, 1e-6);
  }
  EXPECT_EQ(ports, 1);
}

TEST_F(Ledger, HasDashesWhereNothingIsReached) {
  Settings.CourseWaypointIndex = CourseSource::WaypointRange;
  EXPECT_EQ(Figures(PolarTable()).back(), "Wpt (h:m)=--:--");
  EXPECT_EQ(Figures(PolarTable())[2], "Prt (M)=100 (--:--)");
  EXPECT_TRUE(Content(PolarTable()).Legs.empty());
  Input.Query.WindSpeedTrue = 0.0F;
  EXPECT_EQ(Figures().back(), "Wpt (h:m)=--:--");
  Input.Query.WindSpeedTrue = 12.0F;
  Settings.CourseScale = true;
  Input.BoatSpeed = 0.0F;
  EXPECT_EQ(Figures().back(), "Wpt (h:m)=--:--") << "the boat lies still";
  Input.BoatSpeed = 6.0F;
  Input.WaypointRange = 100000.0F;
  EXPECT_EQ(Figures().back(), "Wpt (h:m)=--:--") << "beyond 99 hours";
  Input.WaypointRange = 0.0F;
  EXPECT_EQ(Figures().back(), "Wpt (h:m)=0:00");
  EXPECT_EQ(Figures()[1], "Stb (M)=55 (0:00)");
}

TEST_F(Ledger, FoldsTheBearing) {
  Input.Query.TargetBearing = 460.0F;
  EXPECT_EQ(Figures()[3], "Target (M)=100");
  EXPECT_EQ(Content().Rows[1].Angle, "-45");
  Input.Query.TargetBearing = -10.0F;
  EXPECT_EQ(Figures()[3], "Target (M)=350");
}

}  // namespace
}  // namespace veerwatch
