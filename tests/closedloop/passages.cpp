// Sails the passages of Holding for each method of tracking and prints how they are held: `veerwatch_passages
// --help`. script/passages calls it.
#include <algorithm>
#include <cstdint>
#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/NumberText.h"
#include "tests/closedloop/Holding.h"
#include "tests/closedloop/PassageTables.h"

namespace {

using namespace veerwatch;

constexpr const char* kHelp =
    "Usage: veerwatch_passages [--method NAME] [--rate N] [--bandwidth S] [--damping D] [--seed N] [--each]\n"
    "                          [--upsets] [--without shifts|swing|gusts|wind|sea|noise] [--tables FOLDER]\n"
    "Sails 90 passages of twenty minutes (3 pilots, 5 seas, 6 wind angles) for each method of tracking at\n"
    "1, 5 and 10 wind sentences a second, and with the pilot left on the mean course, and prints how many\n"
    "lost the angle and the medians of all. Options narrow that down; --each prints every passage.\n"
    "--upsets puts the pilot to standby for a minute with the wheel 20 degrees off, and holds the sentences\n"
    "back for half a minute, and prints the worst of the 90. --without leaves out what disturbs the boat.\n"
    "--tables writes the tables of docs/control.md.\n";

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
  bool Upsets = false;
  std::string Tables;  ///< the folder to write them to, "" for none
  void (*Without)(BoatSettings&) = nullptr;
};

struct NamedPart {
  std::string_view Name;
  void (*Remove)(BoatSettings&);
};

/// What disturbs the boat.
constexpr NamedPart kParts[] = {
    {"shifts", [](BoatSettings& boat) { boat.ShiftDeviation = 0.0; }},
    {"swing", [](BoatSettings& boat) { boat.SwingDeviation = 0.0; }},
    {"gusts", [](BoatSettings& boat) { boat.GustDeviation = 0.0; }},
    {"sea", [](BoatSettings& boat) { boat.Sea = {}; }},
    {"noise", [](BoatSettings& boat) { boat.VaneNoise = boat.SpeedNoise = 0.0; }},
    {"wind",
     [](BoatSettings& boat) { boat.ShiftDeviation = boat.SwingDeviation = boat.GustDeviation = 0.0; }},
};

/// Every method, tuning and rate that is asked for.
std::vector<HoldCase> CasesOf(const Asked& asked) {
  HoldCase what;
  what.Seed = asked.Seed;
  what.Alter = asked.Without;
  std::vector<HoldCase> cases;
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
        cases.push_back(what);
      }
    }
  }
  return cases;
}

HoldCase ConstantOf(const Asked& asked) {
  HoldCase constant;
  constant.Seed = asked.Seed;
  constant.Alter = asked.Without;
  constant.Constant = true;
  return constant;
}

void PrintUpsets(const Asked& asked) {
  std::cout << UpsetHeading();
  for (const HoldCase& what : CasesOf(asked)) {
    std::cout << UpsetRows(what, asked.Each) << std::flush;
  }
}

void PrintPassages(const Asked& asked) {
  std::vector<HoldCase> cases = CasesOf(asked);
  cases.insert(cases.begin(), ConstantOf(asked));
  std::cout << SummaryHeading();
  for (const HoldCase& what : cases) {
    const SailedPassages sailed = SailPassages(what);
    std::cout << (asked.Each ? EachPassage(sailed) : "") << SummaryRow(sailed) << std::flush;
  }
}

/// Summary, split and outages, of one run each.
bool WriteTables(const Asked& asked) {
  const auto write = [&asked](const char* name, const std::string& text) {
    std::ofstream file(asked.Tables + "/" + name, std::ios::binary);
    file << text;
    file.close();
    return static_cast<bool>(file);
  };
  std::string summary = SummaryHeading();
  std::string upsets = UpsetHeading();
  std::vector<SailedPassages> split;
  split.push_back(SailPassages(ConstantOf(asked)));
  summary += SummaryRow(split.front());
  for (const HoldCase& what : CasesOf(asked)) {
    const bool perSentence = what.Method.Name == NamedMethods().front().Name;
    const bool advised = what.Bandwidth == (perSentence ? 20.0F : 60.0F);
    const SailedPassages sailed = SailPassages(what);
    summary += SummaryRow(sailed);
    if (advised && what.WindRate == 1.0) {
      split.push_back(sailed);
    }
    if (advised && (!perSentence || what.WindRate == 1.0)) {
      upsets += UpsetRows(what, false);
    }
  }
  return write("passages.md", summary) && write("split.md", SplitTable(split)) &&
         write("upsets.md", upsets) && write("bandwidths.md", BandwidthTable());
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
    if (words[i] == "--upsets") {
      asked.Upsets = true;
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
    if (words[i - 1] == "--tables") {
      asked.Tables = words[i];
      continue;
    }
    if (words[i - 1] == "--without") {
      const auto* const part = std::find_if(std::begin(kParts), std::end(kParts),
                                            [&](const NamedPart& one) { return one.Name == words[i]; });
      if (part == std::end(kParts)) {
        return std::nullopt;
      }
      asked.Without = part->Remove;
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
  if (!asked->Tables.empty()) {
    return WriteTables(*asked) ? 0 : 1;
  }
  (asked->Upsets ? PrintUpsets : PrintPassages)(*asked);
  return 0;
}
