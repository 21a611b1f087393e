// Every fault of the table on the real program, many at a time. Prints a row of each for docs/reliability.md.

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <memory>
#include <thread>
#include <vector>

#include "tests/e2e/FaultTable.h"

namespace veerwatch {
namespace {

/// What a machine that is busy may add to what is promised [s].
constexpr double kBusy = 2.0;

void PrintRow(const FaultRun& run) {
  const Fault& fault = run.Of();
  std::printf("| %s | %s | %.1f | ", fault.Name.c_str(), fault.Text.c_str(), run.Said().value_or(-1.0));
  if (run.Sentences() == 0) {
    std::printf("nothing after %.1f s", run.LastSentence());
  } else if (run.Sentences() == 1) {
    std::printf("one new bearing");
  } else {
    std::printf("a bearing for each wind, moved by %.0f", run.BearingMoved());
  }
  std::printf(" | %.0f |\n", run.Off());
  std::fflush(stdout);
}

void Expect(FaultRun& run) {
  const Fault& fault = run.Of();
  SCOPED_TRACE(fault.Name + ": " + run.Texts());
  EXPECT_TRUE(run.Over() && run.Runs());
  EXPECT_EQ(run.BadSentences(), 0);
  if (run.Said()) {
    EXPECT_LE(*run.Said(), fault.Within + kBusy);
  } else {
    ADD_FAILURE() << "not said";
  }
  if (fault.Goes) {
    EXPECT_NE(run.StillSaid(), *fault.Goes);
  }
  EXPECT_LE(run.Off(), fault.MostOff);
  if (fault.Pilot == PilotGets::Nothing) {
    EXPECT_EQ(run.Sentences(), 0) << "the last after " << run.LastSentence() << " s";
  } else {
    EXPECT_GT(run.Sentences(), 0);
  }
  if (fault.Pilot == PilotGets::Kept) {
    EXPECT_LT(run.BearingMoved(), 3.0);
  }
}

void Try(const std::vector<Fault>& faults) {
  std::vector<std::unique_ptr<FaultRun>> runs;
  for (const Fault& fault : faults) {
    runs.push_back(std::make_unique<FaultRun>(fault));
    ASSERT_TRUE(runs.back()->Starts()) << fault.Name;
  }
  const auto limit = std::chrono::steady_clock::now() + std::chrono::minutes(3);
  const auto over = [](const std::unique_ptr<FaultRun>& run) { return run->Over(); };
  while (!std::all_of(runs.begin(), runs.end(), over) && std::chrono::steady_clock::now() < limit) {
    for (const auto& run : runs) {
      run->Turn();
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  for (const auto& run : runs) {
    PrintRow(*run);
    Expect(*run);
  }
}

/// One of each kind, few enough for a machine that is busy with other tests. All of them: script/fault-table.
std::vector<Fault> SomeFaults() {
  std::vector<Fault> some;
  for (const std::vector<Fault>& faults :
       {WindFaults(), BoatFaults(), PilotFaults(), PilotLineFaults(), OtherFaults()}) {
    some.push_back(faults.front());
  }
  return some;
}

TEST(FaultTable, HoldsForSome) { Try(SomeFaults()); }

TEST(FaultTable, OfTheWind) { Try(WindFaults()); }
TEST(FaultTable, OfTheBoat) { Try(BoatFaults()); }
TEST(FaultTable, OfThePilot) { Try(PilotFaults()); }
TEST(FaultTable, OfThePilotsLine) { Try(PilotLineFaults()); }
TEST(FaultTable, OfTheRest) { Try(OtherFaults()); }

}  // namespace
}  // namespace veerwatch
