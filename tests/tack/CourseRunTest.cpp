// A course from its begin to its end, on the real helm.

#include "tack/CourseRun.h"

#include <cmath>
#include <optional>
#include <string>
#include <vector>

#include "platform/Angles.h"
#include "platform/NumberText.h"
#include "tests/helm/HelmFixture.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr double kWindFrom = 145.0;

double Fold(double angle) { return static_cast<double>(FoldRelative(angle)); }

/// A boat that is where her pilot is told to be, on 100 in a true wind of 10 knots from 145, that tracks the
/// true wind at 45; by her polar she is best at 45 and 150.
class CourseRunTest : public HelmTest {
 protected:
  CourseRunTest() {
    m_settings.m_iNmeaTrueWind = 0;
    m_settings.m_fTrackBandwidth = 60.0F;
    m_settings.m_fTrackDamping = 4.0F;
    m_settings.m_fAutoPilot = 100.0F;
    m_turnTimer.OnTick = [this] { m_turn.Tick(); };
    m_helm.Loop().Side(TrackSide::True);
    m_helm.Modes().TrackSetSetup();
    m_helm.Modes().TrackSetManual();
    Sail(12);
    m_helm.Modes().TrackSetTrack();
    Sail(3);
  }

  double Heading() const { return static_cast<double>(m_settings.m_fAutoPilot); }
  double Held() const { return static_cast<double>(m_settings.DesiredAngle[2]); }

  void Second(bool withWind = true, bool withHeading = true) {
    m_clock.Pass(1000);
    const auto tenths = [](double angle) { return FormatNumber(FoldBearing(angle), "0.0"); };
    if (withHeading) {
      Receive("$GPVTG,,T," + tenths(Heading()) + ",M,6.0,N,,K");
    }
    if (withWind) {
      const double angle = Fold(m_windFrom - Heading());
      Receive("$IIMWV," + tenths(angle > 0.0 ? angle - 10.0 : angle + 10.0) + ",R,10.0,N,A");
      Receive("$IIMWV," + tenths(angle) + ",T,10.0,N,A");
    }
    m_timer.Tick();
    m_turnTimer.Tick();
  }
  void Sail(int seconds) {
    for (int second = 0; second < seconds; ++second) {
      Second();
    }
  }

  static std::optional<MarkLegs> Legs(const MarkAsk& ask) {
    const double straight = Fold(ask.WindFrom - ask.Bearing);
    const double best = std::fabs(straight) < 45.0 ? 45.0 : 150.0;
    if (std::fabs(straight) >= 45.0 && std::fabs(straight) <= 150.0) {
      return MarkLegs{false, straight, straight};
    }
    return MarkLegs{true, std::copysign(best, ask.Wind), -std::copysign(best, ask.Wind)};
  }

  double m_windFrom = kWindFrom;
  std::optional<CourseMark> m_mark = CourseMark{kWindFrom, 2.0};
  bool m_polar = true;
  bool m_byItself = false;
  TackSettings m_set;
  int m_prompts = 0;
  std::vector<CourseEnd> m_ends;
  HandTimer m_turnTimer;
  TurnRun m_turn{m_helm, m_turnTimer, m_clock};
  CourseRun m_run{{m_settings, m_helm, m_turn, [this] { return m_mark; },
                   [this](const MarkAsk& ask) { return m_polar ? Legs(ask) : std::nullopt; },
                   [this] { return m_set; }, [this] { return m_byItself; },
                   [this](const TurnPlan& plan) { m_turn.Begin(plan, TurnEngine::kUsualLimit); }, [] {},
                   [this] { ++m_prompts; }, [this](CourseEnd why) { m_ends.push_back(why); }}};
};

TEST_F(CourseRunTest, HoldsTheLegOfThePresentTackInTrack) {
  m_helm.TrackSteerTo(-20.0F);
  Sail(3);
  ASSERT_NEAR(Held(), 65.0, 1.0);
  EXPECT_FALSE(m_run.Begin());
  EXPECT_NEAR(Held(), 45.0, 1.0) << "at once, and the bearing goes along";
  EXPECT_NEAR(Heading(), 100.0, 1.5);
  EXPECT_EQ(m_run.Line(), "Starboard tack, 45 degrees, mark 2.0 nm, line in 15 min");
  EXPECT_EQ(m_run.Prompt(), "");
  Sail(60);
  EXPECT_TRUE(m_run.Running());
  EXPECT_EQ(m_settings.m_eTrackMode, TrackMode::Track);
  EXPECT_NEAR(Held(), 45.0, 1.0);
}

TEST_F(CourseRunTest, ASmallShiftMovesTheAngleSlowlyAndTheBearingByTheLoop) {
  m_mark = CourseMark{70.0, 2.0};
  EXPECT_FALSE(m_run.Begin());
  ASSERT_NEAR(Held(), 75.0, 1.0);
  const double before = Held();
  m_mark->Bearing = 67.0;
  Sail(1);
  EXPECT_NEAR(Held() - before, 0.2, 0.01);
  Sail(20);
  EXPECT_NEAR(Held(), 78.0, 1.0);
}

TEST_F(CourseRunTest, HoldsWhatItComesToOnTheApparentSide) {
  m_helm.Track(TrackSide::Apparent);
  Sail(2);
  EXPECT_FALSE(m_run.Begin());
  Sail(5);
  // By the triangle of 10 knots of wind at 45 degrees and 6 knots of boat.
  const double expected =
      std::atan2(10.0 * std::sin(45.0 * M_PI / 180.0), 10.0 * std::cos(45.0 * M_PI / 180.0) + 6.0) * 180.0 /
      M_PI;
  EXPECT_NEAR(static_cast<double>(m_settings.DesiredAngle[1]), expected, 1.0);
  EXPECT_TRUE(m_run.Running());
}

TEST_F(CourseRunTest, PromptsAMinuteBeforeTheLineAndAtIt) {
  // On the port hand of the line by 70 seconds at 6 knots.
  m_mark = CourseMark{186.5, 2.0};
  EXPECT_FALSE(m_run.Begin());
  EXPECT_EQ(m_run.Prompt(), "");
  m_mark->Bearing = 187.5;
  Sail(1);
  EXPECT_EQ(m_run.Prompt().substr(0, 3), "In ");
  EXPECT_THAT(m_run.Prompt(), HasSubstr(" s: Tack now (Enter)"));
  EXPECT_FALSE(m_run.Due());
  EXPECT_EQ(m_prompts, 1);
  m_mark->Bearing = 191.0;
  Sail(1);
  EXPECT_EQ(m_run.Prompt(), "Tack now (Enter)");
  EXPECT_TRUE(m_run.Due());
  EXPECT_EQ(m_prompts, 2);
  m_mark->Bearing = 198.0;
  Sail(1);
  EXPECT_THAT(m_run.Prompt(), HasSubstr("Tack now (Enter), "));
  EXPECT_THAT(m_run.Prompt(), HasSubstr(" degrees past the line"));
  EXPECT_EQ(m_prompts, 2) << "once for each";
  EXPECT_EQ(m_settings.m_eTrackMode, TrackMode::Track) << "nobody pressed Enter";
}

TEST_F(CourseRunTest, TheTurnLeadsToTheOtherLegAndTheCourseGoesOn) {
  m_mark = CourseMark{192.0, 2.0};
  EXPECT_FALSE(m_run.Begin());
  ASSERT_TRUE(m_run.Due());
  m_run.TurnNow();
  EXPECT_EQ(m_run.Line(), PlanWords(m_turn.Made()));
  EXPECT_THAT(m_run.Line(), HasSubstr("to starboard through the wind"));
  EXPECT_EQ(m_helm.Now().Hand, PilotHand::Turn);
  for (int second = 0; second < 120 && m_turn.Running(); ++second) {
    Second();
  }
  EXPECT_EQ(m_settings.m_eTrackMode, TrackMode::Track);
  Sail(20);
  EXPECT_TRUE(m_run.Running());
  EXPECT_THAT(m_ends, IsEmpty());
  EXPECT_NEAR(Held(), -47.0, 1.5) << "straight to the mark";
  EXPECT_EQ(m_run.Line().substr(0, 8), "Straight");
  EXPECT_EQ(m_run.Prompt(), "");
}

TEST_F(CourseRunTest, TacksByItselfOnlyAfterTenSecondsOfPrompt) {
  m_byItself = true;
  m_mark = CourseMark{192.0, 2.0};
  EXPECT_FALSE(m_run.Begin());
  Sail(9);
  EXPECT_FALSE(m_turn.Running());
  Sail(1);
  EXPECT_TRUE(m_turn.Running());
}

TEST_F(CourseRunTest, NeverJibesByItself) {
  m_byItself = true;
  m_helm.TrackSteerTo(-105.0F);
  Sail(15);
  ASSERT_NEAR(Held(), 150.0, 2.0);
  m_mark = CourseMark{325.0, 0.5};
  EXPECT_FALSE(m_run.Begin());
  ASSERT_EQ(m_run.Prompt(), "");
  m_mark->Bearing = 294.0;
  Sail(30);
  EXPECT_THAT(m_run.Prompt(), HasSubstr("Jibe now (Enter)"));
  EXPECT_TRUE(m_run.Due());
  EXPECT_FALSE(m_turn.Running());
  m_run.TurnNow();
  EXPECT_TRUE(m_turn.Running());
  EXPECT_EQ(m_turn.Made().Crossing, WindCrossing::Stern);
}

TEST_F(CourseRunTest, DoesNotTackFarByItself) {
  m_byItself = true;
  // From 45 to 120 on the other side: 165 degrees.
  m_mark = CourseMark{265.0, 2.0};
  EXPECT_FALSE(m_run.Begin());
  Sail(30);
  EXPECT_TRUE(m_run.Due());
  EXPECT_EQ(m_run.PromptKind(), ManoeuvreKind::Tack);
  EXPECT_FALSE(m_turn.Running());
}

TEST_F(CourseRunTest, WaitsWhileTheBoatDodges) {
  m_settings.m_bWindDodge = true;
  EXPECT_FALSE(m_run.Begin());
  m_helm.Dodge(-10.0);
  Sail(5);
  EXPECT_TRUE(m_run.Running());
  EXPECT_NEAR(Held(), 55.0, 1.0);
  m_helm.DodgeBack();
  Sail(5);
  EXPECT_TRUE(m_run.Running());
  EXPECT_NEAR(Held(), 45.0, 1.0);
}

TEST_F(CourseRunTest, TurnsThePolarAngleOffAndEndsWhenItIsChosen) {
  m_helm.Functions().Polar([](double, bool) { return BestCourse{45.0, false}; });
  m_settings.m_bWindPolar = true;
  EXPECT_FALSE(m_run.Begin());
  EXPECT_FALSE(m_settings.m_bWindPolar);
  m_settings.m_bWindPolar = true;
  Sail(1);
  EXPECT_THAT(m_ends, ElementsAre(CourseEnd::PolarAngle));
}

TEST_F(CourseRunTest, StaysWithinTheAngleGuard) {
  m_settings.m_bWindGuard = true;
  m_settings.m_fWindLargestTrue = 140.0F;
  m_helm.TrackSteerTo(-85.0F);
  Sail(5);
  m_mark = CourseMark{325.0, 2.0};
  EXPECT_FALSE(m_run.Begin());
  Sail(40);
  EXPECT_TRUE(m_run.Running()) << "the guard's angle is no other one";
  EXPECT_NEAR(Held(), 140.0, 0.5);
}

TEST_F(CourseRunTest, EndsAtTheMark) {
  EXPECT_FALSE(m_run.Begin());
  m_mark->Range = 0.3;
  m_run.End(CourseEnd::ByUser);
  m_mark->Range = 0.3;
  EXPECT_FALSE(m_run.Begin());
  m_mark->Range = 0.1;
  Sail(1);
  EXPECT_FALSE(m_run.Running());
  EXPECT_THAT(m_ends, ElementsAre(CourseEnd::ByUser, CourseEnd::Reached));
  EXPECT_EQ(m_settings.m_eTrackMode, TrackMode::Track) << "Track goes on";
}

TEST_F(CourseRunTest, EndsWithoutAWaypointAndAtAnotherOne) {
  EXPECT_FALSE(m_run.Begin());
  m_mark.reset();
  Sail(1);
  m_mark = CourseMark{kWindFrom, 2.0};
  EXPECT_FALSE(m_run.Begin());
  m_mark = CourseMark{kWindFrom + 90.0, 2.0};
  Sail(1);
  m_mark = CourseMark{kWindFrom, 2.0};
  EXPECT_FALSE(m_run.Begin());
  m_mark = CourseMark{kWindFrom, 7.0};
  Sail(1);
  EXPECT_THAT(m_ends, ElementsAre(CourseEnd::NoMark, CourseEnd::OtherMark, CourseEnd::OtherMark));
}

TEST_F(CourseRunTest, EndsWithoutWindHeadingOrPolar) {
  EXPECT_FALSE(m_run.Begin());
  for (int second = 0; second < 8; ++second) {
    Second(false);
  }
  Sail(3);
  EXPECT_FALSE(m_run.Begin());
  for (int second = 0; second < 15; ++second) {
    Second(true, false);
  }
  Sail(3);
  EXPECT_FALSE(m_run.Begin());
  m_polar = false;
  Sail(1);
  EXPECT_THAT(m_ends, ElementsAre(CourseEnd::NoWind, CourseEnd::NoHeading, CourseEnd::NoPolar));
}

TEST_F(CourseRunTest, EndsWithoutAnOutput) {
  EXPECT_FALSE(m_run.Begin());
  m_helm.Pilot().PilotStop();
  Sail(1);
  EXPECT_THAT(m_ends, ElementsAre(CourseEnd::NoOutput));
}

TEST_F(CourseRunTest, EndsAtAModeAndAtATurnByHand) {
  EXPECT_FALSE(m_run.Begin());
  m_helm.Modes().TrackSetManual();
  EXPECT_FALSE(m_run.Running());
  Sail(12);
  m_helm.Modes().TrackSetTrack();
  Sail(3);
  EXPECT_FALSE(m_run.Begin());
  TurnAsk ask;
  ask.Rate = 10.0F;
  m_turn.Begin(m_turn.Plan(ask), TurnEngine::kUsualLimit);
  EXPECT_FALSE(m_run.Running());
  EXPECT_TRUE(m_turn.Running()) << "the turn by hand goes on";
  EXPECT_THAT(m_ends, ElementsAre(CourseEnd::NoTrack, CourseEnd::NoTrack));
}

TEST_F(CourseRunTest, EndsAtATypedAngleANudgeAndTheOtherSide) {
  EXPECT_FALSE(m_run.Begin());
  m_helm.Loop().SetDesired(TrackSide::True, 50.0);
  Sail(1);
  EXPECT_FALSE(m_run.Begin());
  m_helm.TrackSteerTo(1.0F);
  Sail(1);
  EXPECT_FALSE(m_run.Begin());
  m_helm.Track(TrackSide::Apparent);
  Sail(1);
  EXPECT_THAT(m_ends, ElementsAre(CourseEnd::OtherAngle, CourseEnd::OtherAngle, CourseEnd::OtherSide));
}

TEST_F(CourseRunTest, EndsWithItsTurnWhetherStoppedOrTaken) {
  for (const bool stopped : {true, false}) {
    m_mark = CourseMark{192.0, 2.0};
    ASSERT_FALSE(m_run.Begin());
    m_run.TurnNow();
    ASSERT_TRUE(m_turn.Running());
    if (stopped) {
      m_turn.Stop();
      Sail(1);
    } else {
      m_helm.UserSteersTo(90.0);
    }
    EXPECT_FALSE(m_run.Running());
    EXPECT_EQ(m_helm.Now().Hand, PilotHand::User);
    m_settings.m_fAutoPilot = 100.0F;
    Sail(12);
    m_helm.Modes().TrackSetTrack();
    Sail(3);
  }
  EXPECT_THAT(m_ends, ElementsAre(CourseEnd::TurnEnded, CourseEnd::TurnEnded));
}

TEST_F(CourseRunTest, CannotBeginOutsideOfTrackOrWithoutACourse) {
  m_mark.reset();
  EXPECT_EQ(m_run.Begin(), CourseEnd::NoMark);
  m_mark = CourseMark{kWindFrom, 0.05};
  EXPECT_EQ(m_run.Begin(), CourseEnd::Reached);
  m_mark = CourseMark{kWindFrom, 2.0};
  m_helm.Modes().TrackSetManual();
  EXPECT_EQ(m_run.Begin(), CourseEnd::NoTrack);
  EXPECT_THAT(m_ends, IsEmpty()) << "it had not begun";
}

TEST(CourseEndText, SaysSomethingOfEachButTheUsers) {
  EXPECT_EQ(CourseEndText(CourseEnd::ByUser), "");
  for (int why = static_cast<int>(CourseEnd::Reached); why <= static_cast<int>(CourseEnd::TurnEnded); ++why) {
    EXPECT_NE(CourseEndText(static_cast<CourseEnd>(why)), "") << why;
  }
}

}  // namespace
}  // namespace veerwatch
