#include "control/PilotChecks.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <optional>

namespace veerwatch {
namespace {

TEST(OutputCheck, APortThatIsNotOpenIsLostAtOnce) {
  OutputCheck check;
  check.Look(true, 0, 4800, 0);
  EXPECT_FALSE(check.Lost());
  check.Look(false, 0, 4800, 1000);
  EXPECT_TRUE(check.Lost());
  check.Look(true, 0, 4800, 2000);
  EXPECT_FALSE(check.Lost());
}

TEST(OutputCheck, NothingThatLeavesForFourSecondsIsLost) {
  OutputCheck check;
  check.Look(true, 7, 4800, 0);
  check.Built(54, 500);
  check.Built(54, 1500);
  check.Look(true, 7, 4800, 4500);
  EXPECT_FALSE(check.Lost());
  check.Look(true, 7, 4800, 4501);
  EXPECT_TRUE(check.Lost());
  check.Look(true, 8, 4800, 5000);
  EXPECT_FALSE(check.Lost());
  check.Look(true, 8, 4800, 60000);
  EXPECT_FALSE(check.Lost()) << "nothing was built since";
}

/// Whether `bytes` built each second for ten seconds are more than the line carries.
bool Full(std::size_t bytes, std::optional<int> baudRate) {
  OutputCheck check;
  check.Look(true, 0, baudRate, 0);
  for (int i = 0; i < 10; ++i) {
    check.Built(bytes, 1000 * i);
  }
  check.Look(true, 10, baudRate, 10000);
  return check.Full();
}

TEST(OutputCheck, GoesByWhatTheLineCarries) {
  EXPECT_FALSE(Full(480, 4800));
  EXPECT_TRUE(Full(481, 4800));
  EXPECT_FALSE(Full(3840, 38400));
  EXPECT_TRUE(Full(3841, 38400));
  EXPECT_FALSE(Full(1'000'000, std::nullopt)) << "nothing bounds it";
}

TEST(OutputCheck, MoreThanALineCarriesIsTold) {
  for (const int bytes : {480, 481}) {
    OutputCheck check;
    for (const int begin : {50000, 60000}) {
      check.Look(true, 0, 4800, begin);
      const bool before = check.Full();
      for (int i = 0; i < 10; ++i) {
        check.Built(static_cast<std::size_t>(bytes), begin + 1000 * i);
        check.Look(true, static_cast<std::uint64_t>(i), 4800, begin + 1000 * i + 999);
      }
      EXPECT_EQ(check.Full(), before) << "not before ten seconds";
      check.Look(true, 10, 4800, begin + 10000);
      EXPECT_EQ(check.Full(), bytes == 481) << begin;
    }
  }
}

}  // namespace
}  // namespace veerwatch
