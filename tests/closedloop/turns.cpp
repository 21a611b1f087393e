// Sails tacks and jibes for each method of tracking and prints where they end: `veerwatch_turns --help`.
// script/turns calls it.
#include <cstdint>
#include <cstdio>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "platform/NumberText.h"
#include "tests/closedloop/Turning.h"

namespace {

using namespace veerwatch;

constexpr const char* kHelp =
    "Usage: veerwatch_turns [--method NAME] [--rate N] [--seeds N] [--seed N] [--gusty] [--still] [--each]\n"
    "Sails N tacks and N jibes (200) for each method of tracking at 1, 2, 5 and 10 wind sentences a second,\n"
    "with pilots, seas and angles in turn, and prints how many ended, how many held the wanted angle within\n"
    "2 degrees in the minute after it (as shown, and really), how many went round the other way, how many "
    "were\n"
    "within 20 degrees of head to wind after the end, and the longest. --gusty takes the simpler boat "
    "without\n"
    "a rudder in stronger gusts; --still lets her hold the angle for another minute instead of turning;\n"
    "--each prints every turn.\n";

struct Asked {
  std::string Method;  ///< "" for all
  double Rate = 0.0;   ///< 0 for all [1/s]
  int Seeds = 200;
  std::uint64_t Seed = 1;
  bool Gusty = false;
  bool Each = false;
  bool Still = false;
};

void PrintEach(const TurnCase& what, const TurnResult& one) {
  std::printf(
      "  seed %3d lag %.0f angle %5.0f %s: %s %3.0f s, shown %5.1f, really %5.1f, turned %4.0f of %3.0f, "
      "jump %.1f, fate %d\n",
      static_cast<int>(what.Seed), what.Lag, static_cast<double>(what.Angle),
      what.Side == TrackSide::True ? "true" : "apparent", one.Done ? "done" : "ENDED", one.Seconds, one.Shown,
      one.Real, one.Turned, one.Planned, one.Jump, static_cast<int>(one.Fate));
}

void PrintTurns(const Asked& asked, const NamedMethod& method, float bandwidth, double rate, bool jibes) {
  TurnCase what;
  what.Method = method;
  what.Bandwidth = bandwidth;
  what.WindRate = rate;
  what.Seed = asked.Seed;
  what.Turns = !asked.Still;
  if (asked.Gusty) {
    what.Boat = GustyBoat();
  }
  if (jibes) {
    what.Overshoot = 0.0F;
    what.Rate = 5.0F;
  }
  std::vector<TurnResult> results;
  for (const TurnCase& one : TurnCases(what, asked.Seeds, jibes)) {
    results.push_back(SailTurn(one));
    if (asked.Each) {
      PrintEach(one, results.back());
    }
  }
  const TurnSummary sum = SummaryOf(results);
  std::printf("| %s %.0f | %s | %.0f | %d of %d | %d | %d | %.1f | %.1f | %d | %d | %.0f | %.1f |\n",
              std::string(method.Name).c_str(), static_cast<double>(bandwidth), jibes ? "jibe" : "tack", rate,
              sum.Done, sum.Count, sum.Within, sum.WithinReal, sum.Median, sum.NineOfTen, sum.WrongWay,
              sum.InTheWind, sum.Longest, sum.Jump);
  std::fflush(stdout);
}

bool Read(int argc, char** argv, Asked& asked) {
  for (int i = 1; i < argc; ++i) {
    const std::string_view option = argv[i];
    const bool more = i + 1 < argc;
    if (option == "--gusty") {
      asked.Gusty = true;
    } else if (option == "--still") {
      asked.Still = true;
    } else if (option == "--each") {
      asked.Each = true;
    } else if (option == "--method" && more) {
      asked.Method = argv[++i];
    } else if (option == "--rate" && more) {
      asked.Rate = static_cast<double>(LeadingNumber(argv[++i]));
    } else if (option == "--seeds" && more) {
      asked.Seeds = static_cast<int>(LeadingNumber(argv[++i]));
    } else if (option == "--seed" && more) {
      asked.Seed = static_cast<std::uint64_t>(LeadingNumber(argv[++i]));
    } else {
      return false;
    }
  }
  return asked.Seeds > 0;
}

}  // namespace

int main(int argc, char** argv) {
  Asked asked;
  if (!Read(argc, argv, asked)) {
    std::cout << kHelp;
    return argc == 2 && std::string_view(argv[1]) == "--help" ? 0 : 2;
  }
  std::printf(
      "| Method | turn | wind/s | ended well | within 2 deg, shown | really | median off [deg] | nine of ten "
      "| wrong way | "
      "in the wind after | longest [s] | jump [deg] |\n|---|---|---|---|---|---|---|---|---|---|---|---|\n");
  for (const NamedMethod& method : NamedMethods()) {
    for (const double rate : {1.0, 2.0, 5.0, 10.0}) {
      if ((!asked.Method.empty() && asked.Method != method.Name) ||
          (asked.Rate > 0.0 && asked.Rate != rate)) {
        continue;
      }
      const float bandwidth = method.Name == "Sentence" ? 60.0F * static_cast<float>(rate) : 60.0F;
      for (const bool jibes : {false, true}) {
        PrintTurns(asked, method, bandwidth, rate, jibes);
      }
    }
  }
  return 0;
}
