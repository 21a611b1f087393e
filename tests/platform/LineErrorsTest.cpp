#include "platform/LineErrors.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <deque>

#include "platform/LineErrorCountersLinux.h"
#include "platform/SerialPort.h"
#include "tests/support/Pty.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ScriptedCounters : public LineErrorCounters {
 public:
  std::optional<LineErrorCounts> Read() override {
    const std::optional<LineErrorCounts> counts = Script.front();
    Script.pop_front();
    return counts;
  }
  std::deque<std::optional<LineErrorCounts>> Script;
};

LineErrorCounts Counts(std::uint32_t breaks, std::uint32_t frame, std::uint32_t overrun, std::uint32_t parity,
                       std::uint32_t bufferOverrun) {
  return {
      .Break = breaks, .Frame = frame, .Overrun = overrun, .Parity = parity, .BufferOverrun = bufferOverrun};
}

TEST(LineErrorWatch, TakesTheFirstReadingAsTheStart) {
  ScriptedCounters counters;
  LineErrorWatch watch;
  counters.Script = {Counts(7, 6, 5, 4, 3), Counts(7, 6, 5, 4, 3)};
  EXPECT_THAT(watch.Poll(counters), IsEmpty());
  EXPECT_THAT(watch.Poll(counters), IsEmpty());
}

TEST(LineErrorWatch, GivesEachCounterItsOwnEvent) {
  const struct {
    LineErrorCounts Grown;
    int CommEvent;
  } kinds[] = {{Counts(1, 0, 0, 0, 0), 1001},
               {Counts(0, 1, 0, 0, 0), 1004},
               {Counts(0, 0, 1, 0, 0), 1006},
               {Counts(0, 0, 0, 1, 0), 1009},
               {Counts(0, 0, 0, 0, 1), 1008}};
  for (const auto& kind : kinds) {
    ScriptedCounters counters;
    LineErrorWatch watch;
    counters.Script = {LineErrorCounts(), kind.Grown};
    watch.Poll(counters);
    EXPECT_THAT(watch.Poll(counters), ElementsAre(kind.CommEvent));
  }
}

TEST(LineErrorWatch, GivesOneEventOfAKindHoweverMuchItGrew) {
  ScriptedCounters counters;
  LineErrorWatch watch;
  counters.Script = {Counts(1, 1, 1, 1, 1), Counts(1, 400, 1, 3, 1), Counts(1, 400, 1, 3, 1),
                     Counts(1, 401, 1, 3, 1)};
  EXPECT_THAT(watch.Poll(counters), IsEmpty());
  EXPECT_THAT(watch.Poll(counters), ElementsAre(1004, 1009));
  EXPECT_THAT(watch.Poll(counters), IsEmpty());
  EXPECT_THAT(watch.Poll(counters), ElementsAre(1004));
}

TEST(LineErrorWatch, GivesAllKindsInTheirOrder) {
  ScriptedCounters counters;
  LineErrorWatch watch;
  counters.Script = {Counts(0, 0, 0, 0, 0), Counts(1, 1, 1, 1, 1)};
  watch.Poll(counters);
  EXPECT_THAT(watch.Poll(counters), ElementsAre(1001, 1004, 1006, 1009, 1008));
}

TEST(LineErrorWatch, StartsAnewWhenAnyCounterGoesBack) {
  ScriptedCounters counters;
  LineErrorWatch watch;
  counters.Script = {Counts(0, 0, 0, 9, 0), Counts(2, 0, 0, 1, 2), Counts(3, 0, 0, 1, 2)};
  watch.Poll(counters);
  EXPECT_THAT(watch.Poll(counters), IsEmpty());
  EXPECT_THAT(watch.Poll(counters), ElementsAre(1001));
}

TEST(LineErrorWatch, KeepsItsStartOverAMissingReading) {
  ScriptedCounters counters;
  LineErrorWatch watch;
  counters.Script = {std::nullopt, Counts(1, 0, 0, 0, 0), std::nullopt, Counts(1, 0, 5, 0, 0)};
  EXPECT_THAT(watch.Poll(counters), IsEmpty());
  EXPECT_THAT(watch.Poll(counters), IsEmpty());
  EXPECT_THAT(watch.Poll(counters), IsEmpty());
  EXPECT_THAT(watch.Poll(counters), ElementsAre(1006));
}

TEST(LineErrorWatch, ForgetsWhatWasCountedBeforeARestart) {
  ScriptedCounters counters;
  LineErrorWatch watch;
  counters.Script = {Counts(0, 0, 0, 0, 0), Counts(5, 5, 5, 5, 5), Counts(5, 5, 5, 5, 6)};
  watch.Poll(counters);
  watch.Restart();
  EXPECT_THAT(watch.Poll(counters), IsEmpty());
  EXPECT_THAT(watch.Poll(counters), ElementsAre(1008));
}

TEST(LineErrorCountersLinux, HasNothingForADescriptorThatIsNoDevice) {
  EXPECT_FALSE(LineErrorCountersLinux(-1).Read().has_value());
}

TEST(LineErrorCountersLinux, HasNothingForAPseudoTerminal) {
  const Pty pty;
  const int slave = ::open(pty.Device().c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK);
  ASSERT_GE(slave, 0);
  EXPECT_FALSE(LineErrorCountersLinux(slave).Read().has_value());
  ::close(slave);
}

}  // namespace
}  // namespace veerwatch
