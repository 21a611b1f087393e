// The passages of Holding as tables: how each method of tracking holds them, split by what a boat can have,
// by bandwidth, and with outages. veerwatch_passages prints and writes them.
#pragma once

#include <string>
#include <vector>

#include "tests/closedloop/Holding.h"

namespace veerwatch {

/// A way to hold the passages, and how they were held.
struct SailedPassages {
  std::string Name;  ///< "Clock 60/4"
  HoldCase What;
  std::vector<HoldCase> Cases;
  std::vector<HoldResult> Results;  ///< as many as cases
};

/// Method, bandwidth and damping, or that nothing is tracked.
std::string NameOf(const HoldCase& what);

/// Sails the passages of `what`.
SailedPassages SailPassages(const HoldCase& what, const std::vector<double>& lags = {1.0, 4.0, 8.0});

std::string SummaryHeading();
std::string SummaryRow(const SailedPassages& sailed);
/// A line for each passage.
std::string EachPassage(const SailedPassages& sailed);

/// The medians by lag, sea and held angle: one column for each of `sailed`, all of the same cases.
std::string SplitTable(const std::vector<SailedPassages>& sailed);

/// For each method and lag the medians with several bandwidths, at one wind sentence a second.
std::string BandwidthTable();

std::string UpsetHeading();
/// The pilot in standby and the sentences late in each passage of `what`: the worst of all. With `each` a
/// line for each passage comes first.
std::string UpsetRows(const HoldCase& what, bool each);

}  // namespace veerwatch
