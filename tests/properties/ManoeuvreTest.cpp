// Timed turns of the autopilot, turned and seen in a mirror.
#include "control/Manoeuvre.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstddef>
#include <vector>

#include "tests/properties/Bearings.h"
#include "tests/properties/Dice.h"

namespace veerwatch {
namespace {

constexpr int kTurns = 3000;

struct Question {
  float NewHeading = 0.0F;
  float Heading = 0.0F;
  float AutoPilot = 0.0F;
  float Wind = 0.0F;
  float Typed = 0.0F;  ///< the heading that is started for
  float Overshoot = 0.0F;
  float Rate = 0.0F;
};

/// The bearing of each is led through `where`, and stays on the compass.
template <class Where>
Question WithBearings(Question question, Where where) {
  for (float* bearing : {&question.NewHeading, &question.Heading, &question.AutoPilot, &question.Typed}) {
    *bearing = OnCompass(where(*bearing));
  }
  return question;
}

Question Turned(const Question& question, float turn) {
  return WithBearings(question, [turn](float before) { return before + turn; });
}

Question InAMirror(const Question& question) {
  Question mirrored = WithBearings(question, [](float before) { return -before; });
  mirrored.Wind = -question.Wind;
  return mirrored;
}

/// One second of a turn.
struct Second {
  double Progress = 0.0;
  float Heading = 0.0F;
  float AutoPilot = 0.0F;
};

struct Course {
  ManoeuvreKind Kind = ManoeuvreKind::Steer;
  int Direction = 0;
  double Change = 0.0;
  std::vector<Second> Seconds;  ///< the first one is the start
};

Course Sail(const Question& question) {
  Manoeuvre turn;
  EXPECT_TRUE(turn.Open(question.NewHeading, question.Heading, question.AutoPilot, question.Wind));
  turn.Start(question.Typed, question.Overshoot, question.Rate);
  Course course{turn.Kind(), turn.Direction(), turn.Change(), {}};
  bool done = false;
  course.Seconds.push_back({turn.Progress(), turn.Heading(), turn.AutoPilot()});
  while (!done && course.Seconds.size() < 1000) {
    done = turn.Step(1.0);
    course.Seconds.push_back({turn.Progress(), turn.Heading(), turn.AutoPilot()});
  }
  EXPECT_TRUE(done);
  return course;
}

/// Dead ahead, abeam or dead astern.
bool OnALine(float wind) { return std::fmod(wind, 90.0F) == 0.0F; }

/// Angles are eighths of a degree, which singles hold exactly, so that nothing is rounded.
class AnyManoeuvre : public testing::Test {
 protected:
  /// Half a turn, which goes to starboard, and a wind on a line, which has no side, are left out.
  Question Ask() {
    Question question;
    do {
      question = {Eighths(0, 2879), Eighths(0, 2879), Eighths(0, 2879), Eighths(-1439, 1439), 0.0F,
                  Eighths(0, 480),  Eighths(8, 240)};
      question.Typed = m_dice.Within(0, 3) == 0 ? Eighths(0, 2879) : question.NewHeading;
    } while (OnALine(question.Wind) || OnALine(question.Wind - question.NewHeading + question.Heading) ||
             Off(question.NewHeading, question.Heading) == 180.0 ||
             Off(question.Typed, question.Heading) == 180.0);
    return question;
  }

  float Eighths(int least, int most) { return static_cast<float>(m_dice.Within(least, most)) / 8.0F; }

  void Count(const Course& course) {
    ++m_kinds[static_cast<std::size_t>(course.Kind)];
    m_seconds += course.Seconds.size();
  }
  void ExpectEnough() const {
    for (const std::size_t kind : {1U, 2U, 3U}) {
      EXPECT_GT(m_kinds[kind], kTurns / 10) << kind;
    }
    EXPECT_GT(m_seconds, 10U * kTurns);
  }

 private:
  Dice m_dice{8};
  std::array<int, 4> m_kinds{};
  std::size_t m_seconds = 0;
};

TEST_F(AnyManoeuvre, TurnedByAnyAngleTurnsHeadingAndBearingAtEachTickAndLeavesTheRest) {
  for (int i = 0; i < kTurns && !HasFailure(); ++i) {
    SCOPED_TRACE(i);
    const Question question = Ask();
    const float turn = Eighths(1, 2879);
    const Course a = Sail(question);
    const Course b = Sail(Turned(question, turn));
    Count(a);
    EXPECT_EQ(a.Kind, b.Kind);
    EXPECT_EQ(a.Direction, b.Direction);
    EXPECT_EQ(a.Change, b.Change);
    ASSERT_EQ(a.Seconds.size(), b.Seconds.size());
    for (std::size_t tick = 0; tick < a.Seconds.size(); ++tick) {
      EXPECT_EQ(a.Seconds[tick].Progress, b.Seconds[tick].Progress);
      EXPECT_EQ(Off(b.Seconds[tick].Heading, a.Seconds[tick].Heading + turn), 0.0);
      EXPECT_EQ(Off(b.Seconds[tick].AutoPilot, a.Seconds[tick].AutoPilot + turn), 0.0);
    }
  }
  ExpectEnough();
}

TEST_F(AnyManoeuvre, InAMirrorTurnsToTheOtherSide) {
  for (int i = 0; i < kTurns && !HasFailure(); ++i) {
    SCOPED_TRACE(i);
    const Question question = Ask();
    const Course a = Sail(question);
    const Course b = Sail(InAMirror(question));
    Count(a);
    EXPECT_EQ(a.Kind, b.Kind);
    EXPECT_EQ(a.Direction, -b.Direction);
    EXPECT_EQ(a.Change, -b.Change);
    ASSERT_EQ(a.Seconds.size(), b.Seconds.size());
    for (std::size_t tick = 0; tick < a.Seconds.size(); ++tick) {
      EXPECT_EQ(a.Seconds[tick].Progress, -b.Seconds[tick].Progress);
      EXPECT_EQ(Off(b.Seconds[tick].Heading, -a.Seconds[tick].Heading), 0.0);
      EXPECT_EQ(Off(b.Seconds[tick].AutoPilot, -a.Seconds[tick].AutoPilot), 0.0);
    }
  }
  ExpectEnough();
}

}  // namespace
}  // namespace veerwatch
