// Sails courses to a mark in many winds, seas and shifts and prints how long they take: `veerwatch_courses
// --help`. script/courses calls it.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "platform/NumberText.h"
#include "tests/closedloop/SailedCourse.h"
#include "tests/closedloop/Turning.h"

namespace {

using namespace veerwatch;

constexpr const char* kHelp =
    "Usage: veerwatch_courses [--method NAME] [--rate N] [--seeds N] [--gusty] [--each]\n"
    "Sails N courses (60) to marks to windward, across the wind and to leeward for each method of tracking "
    "at 1\n"
    "and 5 wind sentences a second, with winds of 6 to 24 knots, seas, shifts, both tacks, both winds, Enter "
    "and\n"
    "\"Tack By Itself\" in turn, and prints how many came to the mark, with how many turns, and in how many\n"
    "times the time of the polar. --gusty takes the simpler boat without a rudder in stronger gusts; --each\n"
    "prints every course.\n";

struct Asked {
  std::string Method;  ///< "" for all
  double Rate = 0.0;   ///< 0 for 1 and 5 [1/s]
  int Seeds = 60;
  bool Gusty = false;
  bool Each = false;
};

/// Where the mark lies, off the wind's direction [deg], and the angle that is sailed before.
struct Marks {
  const char* Name;
  double From;
  double To;
  float Angle;
};
constexpr std::array<Marks, 3> kMarks{{{"to windward", 0.0, 40.0, 45.0F},
                                       {"across", 50.0, 130.0, 90.0F},
                                       {"to leeward", 140.0, 180.0, 140.0F}}};

template <class Value, std::size_t Count>
Value InTurn(const std::array<Value, Count>& values, int turn) {
  return values[static_cast<std::size_t>(turn) % Count];
}

CourseCase CaseOf(const Asked& asked, const NamedMethod& method, double rate, const Marks& marks, int seed) {
  constexpr std::array<double, 7> kWinds{6.0, 9.0, 12.0, 15.0, 18.0, 21.0, 24.0};
  constexpr std::array<Sea, 5> kSeas{Sea::Flat, Sea::Slight, Sea::Beam, Sea::Following, Sea::Head};
  constexpr std::array<double, 3> kMiles{1.0, 2.0, 3.0};
  constexpr std::array<double, 5> kShifts{0.0, 10.0, -10.0, 20.0, -20.0};
  constexpr int kSteps = 11;
  CourseCase what;
  what.Method = method;
  what.Bandwidth = method.Name == "Sentence" ? 60.0F * static_cast<float>(rate) : 60.0F;
  what.WindRate = rate;
  what.Boat = asked.Gusty ? GustyBoat() : HardBoat(InTurn(kSeas, seed));
  what.Boat.WindSpeed = InTurn(kWinds, seed);
  what.Distance = InTurn(kMiles, seed);
  what.ShiftAt = 240.0;
  what.Shift = InTurn(kShifts, seed / 2);
  what.Side = seed % 4 < 2 ? TrackSide::True : TrackSide::Apparent;
  what.ByItself = seed % 8 < 4;
  const double part = static_cast<double>(seed % kSteps) / (kSteps - 1);
  what.MarkOff = (marks.From + part * (marks.To - marks.From)) * (seed % 2 == 0 ? 1.0 : -1.0);
  what.Angle = seed % 3 == 0 ? -marks.Angle : marks.Angle;
  what.Seed = static_cast<std::uint64_t>(seed);
  return what;
}

/// The value that `part` [0, 1] of all are at most.
double Quantile(std::vector<double> values, double part) {
  if (values.empty()) {
    return 0.0;
  }
  std::sort(values.begin(), values.end());
  return values[static_cast<std::size_t>(part * static_cast<double>(values.size() - 1))];
}

void PrintEach(const CourseCase& what, const CourseResult& one) {
  std::printf(
      "  seed %3d wind %2.0f mark %5.0f %s %s: %s (%d) %.2f h of %.2f, %d tacks, %d jibes, back %.0f, astern "
      "%.0f s\n",
      static_cast<int>(what.Seed), what.Boat.WindSpeed, what.MarkOff,
      what.Side == TrackSide::True ? "true" : "apparent", what.ByItself ? "by itself" : "Enter",
      one.Reached ? "there" : "NOT THERE", static_cast<int>(one.End), one.Hours, one.Shortest, one.Tacks,
      one.Jibes, one.Back, one.Astern);
}

void PrintCourses(const Asked& asked, const NamedMethod& method, double rate, const Marks& marks) {
  int reached = 0;
  int tacks = 0;
  int jibes = 0;
  double back = 0.0;
  double astern = 0.0;
  std::vector<double> ratios;
  for (int seed = 1; seed <= asked.Seeds; ++seed) {
    const CourseCase what = CaseOf(asked, method, rate, marks, seed);
    const CourseResult one = SailCourse(what);
    if (asked.Each) {
      PrintEach(what, one);
    }
    back = std::max(back, one.Back);
    astern = std::max(astern, one.Astern);
    tacks = std::max(tacks, one.Tacks);
    jibes = std::max(jibes, one.Jibes);
    if (one.Reached) {
      ++reached;
      ratios.push_back(one.Hours / one.Shortest);
    }
  }
  std::printf("| %s | %.0f | %s | %d of %d | %d | %d | %.2f | %.2f | %.2f | %.0f | %.0f |\n",
              std::string(method.Name).c_str(), rate, marks.Name, reached, asked.Seeds, tacks, jibes,
              Quantile(ratios, 0.5), Quantile(ratios, 0.9), Quantile(ratios, 1.0), back, astern);
  std::fflush(stdout);
}

bool Read(int argc, char** argv, Asked& asked) {
  for (int i = 1; i < argc; ++i) {
    const std::string_view option = argv[i];
    const bool more = i + 1 < argc;
    if (option == "--gusty") {
      asked.Gusty = true;
    } else if (option == "--each") {
      asked.Each = true;
    } else if (option == "--method" && more) {
      asked.Method = argv[++i];
    } else if (option == "--rate" && more) {
      asked.Rate = static_cast<double>(LeadingNumber(argv[++i]));
    } else if (option == "--seeds" && more) {
      asked.Seeds = static_cast<int>(LeadingNumber(argv[++i]));
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
      "| Method | wind/s | mark | reached | most tacks | most jibes | time, median [of the polar's] | nine "
      "of ten "
      "| longest | turned the other way [deg] | astern [s] "
      "|\n|---|---|---|---|---|---|---|---|---|---|---|\n");
  for (const NamedMethod& method : NamedMethods()) {
    for (const double rate : {1.0, 5.0}) {
      if ((!asked.Method.empty() && asked.Method != method.Name) ||
          (asked.Rate > 0.0 && asked.Rate != rate)) {
        continue;
      }
      for (const Marks& marks : kMarks) {
        PrintCourses(asked, method, rate, marks);
      }
    }
  }
  return 0;
}
