// Sails the passages of Holding for each method of tracking and prints how they are held: `veerwatch_passages
// --help`. script/passages calls it.
#include <algorithm>
#include <cstdint>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

#include "platform/NumberText.h"
#include "tests/closedloop/Holding.h"

namespace {

using namespace veerwatch;

constexpr const char* kHelp =
    "Usage: veerwatch_passages [--method NAME] [--rate N] [--bandwidth S] [--damping D] [--seed N] [--each]\n"
    "Sails 90 passages of twenty minutes (3 pilots, 5 seas, 6 wind angles) for each method of tracking at 1, "
    "5 "
    "and 10\n"
    "wind sentences a second, and with the pilot left on the mean course, and prints how many lost the angle "
    "and the\n"
    "medians of all. Options narrow that down; --each prints every passage.\n";

std::string Text(double value, const char* pattern) {
  return FormatNumber(static_cast<float>(value), pattern);
}

struct Tuning {
  float Bandwidth = 0.0F;
  float Damping = 0.0F;
};

/// What the command line asks for.
struct Asked {
  std::string Method;  ///< "" for all
  std::vector<double> Rates{1.0, 5.0, 10.0};
  std::vector<Tuning> Tunings{{20.0F, 4.0F}, {60.0F, 4.0F}};
  std::uint64_t Seed = 1;
  bool Each = false;
};

constexpr const char* kSeas[] = {"flat", "slight", "beam", "following", "head"};

void PrintEach(const HoldCase& one, const HoldResult& result) {
  std::cout << "  lag " << Text(one.Lag, "0") << " s, " << kSeas[static_cast<int>(one.TheSea)] << ", "
            << (one.Side == TrackSide::True ? "true " : "apparent ") << Text(one.Angle, "0") << ": mean "
            << Text(result.Mean, "0.0") << ", rms " << Text(result.Rms, "0.0") << ", most "
            << Text(result.Most, "0") << ", rudder " << Text(result.Rudder, "0") << ", changes "
            << Text(result.Changes, "0") << (result.Lost() ? ", lost\n" : "\n");
}

void Sail(const std::string& name, const HoldCase& what, bool each) {
  std::vector<HoldResult> results;
  for (const HoldCase& one : Passages(what)) {
    results.push_back(Hold(one));
    if (each) {
      PrintEach(one, results.back());
    }
  }
  const HoldSummary sum = SummaryOf(results);
  std::cout << "| " << name << " | " << (what.Constant ? "" : ShortestText(static_cast<float>(what.WindRate)))
            << " | " << sum.Lost << " of " << sum.Count << " | " << Text(sum.Rms, "0.0") << " | "
            << Text(sum.Rudder, "0") << " | " << Text(sum.Changes, "0") << " |" << std::endl;
}

void SailAll(const Asked& asked) {
  std::cout << "| Method | wind/s | lost | rms [deg] | rudder [deg/min] | bearings/min |\n"
               "| --- | --- | --- | --- | --- | --- |\n";
  HoldCase what;
  what.Seed = asked.Seed;
  what.Constant = true;
  Sail("constant heading", what, asked.Each);
  what.Constant = false;
  for (const NamedMethod& method : NamedMethods()) {
    if (!asked.Method.empty() && asked.Method != method.Name) {
      continue;
    }
    what.Method = method;
    for (const Tuning& tuning : asked.Tunings) {
      what.Bandwidth = tuning.Bandwidth;
      what.Damping = tuning.Damping;
      for (const double rate : asked.Rates) {
        what.WindRate = rate;
        Sail(std::string(method.Name) + " " + ShortestText(tuning.Bandwidth) + "/" +
                 ShortestText(tuning.Damping),
             what, asked.Each);
      }
    }
  }
}

bool IsMethod(const std::string& name) {
  const auto& methods = NamedMethods();
  return std::any_of(methods.begin(), methods.end(),
                     [&name](const NamedMethod& method) { return method.Name == name; });
}

/// Nothing when an option is not known or lacks its number.
std::optional<Asked> Read(const std::vector<std::string>& words) {
  Asked asked;
  Tuning tuning{0.0F, 4.0F};
  std::vector<double> rates;
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (words[i] == "--each") {
      asked.Each = true;
      continue;
    }
    if (++i == words.size()) {
      return std::nullopt;
    }
    if (words[i - 1] == "--method") {
      if (!IsMethod(words[i])) {
        return std::nullopt;
      }
      asked.Method = words[i];
      continue;
    }
    const auto number = StrictDouble(words[i]);
    if (!number || !(*number > 0.0)) {
      return std::nullopt;
    }
    if (words[i - 1] == "--rate") {
      rates.push_back(*number);
    } else if (words[i - 1] == "--bandwidth") {
      tuning.Bandwidth = static_cast<float>(*number);
    } else if (words[i - 1] == "--damping") {
      tuning.Damping = static_cast<float>(*number);
    } else if (words[i - 1] == "--seed") {
      asked.Seed = static_cast<std::uint64_t>(*number);
    } else {
      return std::nullopt;
    }
  }
  if (!rates.empty()) {
    asked.Rates = rates;
  }
  if (tuning.Bandwidth > 0.0F) {
    asked.Tunings = {tuning};
  }
  return asked;
}

}  // namespace

int main(int count, char** arguments) {
  const std::vector<std::string> words(arguments + 1, arguments + count);
  if (words == std::vector<std::string>{"--help"}) {
    std::cout << kHelp;
    return 0;
  }
  const auto asked = Read(words);
  if (!asked) {
    std::cerr << kHelp;
    return 2;
  }
  SailAll(*asked);
  return 0;
}
