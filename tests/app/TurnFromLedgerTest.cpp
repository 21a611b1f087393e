// What the buttons of the course ledger say about a turn, and what the turn then does.

#include <gtest/gtest.h>

#include <ostream>

#include "control/Manoeuvre.h"
#include "polar/CourseLedger.h"
#include "polar/PolarFile.h"
#include "tack/TurnWords.h"

namespace veerwatch {
namespace {

struct Case {
  CourseQuery Query;  ///< heading, target, true wind angle and speed
  const char* Button;
  ManoeuvreKind Kind;
  const char* Words;
  bool Asks;
};

class TurnFromLedger : public testing::TestWithParam<Case> {};

/// The tack button of the ledger, and the turn that it asks for, with the polar that comes with the program.
TEST_P(TurnFromLedger, SaysInWordsWhatWillHappen) {
  const Case& test = GetParam();
  PolarTable table;
  ASSERT_TRUE(PolarLoad(table, 0, 1.0F, VEERWATCH_DATA "/Fast Sled 60ft.pol").Loaded);
  const LedgerContent ledger = CourseLedger({}, {test.Query}, CourseTargets(table, test.Query));
  EXPECT_EQ(ledger.Tack.Caption, test.Button);
  Manoeuvre turn;
  ASSERT_TRUE(
      turn.Open(ledger.TackHeading, test.Query.Heading, test.Query.Heading, test.Query.WindAngleTrue));
  EXPECT_EQ(turn.Kind(), test.Kind);
  const double change = turn.Planned(ledger.TackHeading, 0.0F);
  const WindCrossing crossing = CrossingOf(turn.Wind(), change);
  EXPECT_EQ(TurnWords(change, crossing), test.Words);
  EXPECT_EQ(CrossesUnsaid(crossing, ledger.Upwind ? WindCrossing::Bow : WindCrossing::Stern, turn.Kind()),
            test.Asks);
}

// The wind blows from 110, 250, 105, 105 and 150. The button knows the present wind alone.
INSTANTIATE_TEST_SUITE_P(Courses, TurnFromLedger,
                         testing::Values(Case{{10, 105, 100, 10},
                                              "<< Jibe",
                                              ManoeuvreKind::Steer,
                                              "140 degrees to starboard, through the wind",
                                              true},
                                         Case{{350, 255, -100, 10},
                                              "Jibe >>",
                                              ManoeuvreKind::Steer,
                                              "140 degrees to port, through the wind",
                                              true},
                                         Case{{330, 105, 135, 12},
                                              "<< Jibe",
                                              ManoeuvreKind::Steer,
                                              "175 degrees to starboard, through the wind",
                                              true},
                                         Case{{60, 285, 45, 6},
                                              "Tack >>",
                                              ManoeuvreKind::Steer,
                                              "179 degrees to port, stern through the wind",
                                              true},
                                         // Here the button has said it.
                                         Case{{300, 105, -150, 14},
                                              "Jibe >>",
                                              ManoeuvreKind::Steer,
                                              "165 degrees to starboard, stern through the wind",
                                              false}));

}  // namespace
}  // namespace veerwatch
