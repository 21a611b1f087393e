#include "tests/closedloop/PassageTables.h"

#include <algorithm>
#include <array>
#include <functional>

#include "platform/NumberText.h"

namespace veerwatch {

namespace {

constexpr std::array<const char*, 5> kSeas{"flat", "slight", "moderate, abeam", "rough, from astern",
                                           "steep, from ahead"};

std::string Text(double value, const char* pattern = "0") {
  return FormatNumber(static_cast<float>(value), pattern);
}

std::string Short(double value) { return ShortestText(static_cast<float>(value)); }

std::string Of(int part, int whole) { return Text(part) + " of " + Text(whole); }

std::string SeaName(Sea sea) { return kSeas.at(static_cast<std::size_t>(sea)); }

std::string AngleName(const HoldCase& one) {
  return (one.Side == TrackSide::True ? "true " : "apparent ") + Text(one.Angle);
}

std::string CaseName(const HoldCase& one) {
  return "lag " + Text(one.Lag) + " s, " + SeaName(one.TheSea) + ", " + AngleName(one);
}

/// "3.8, 67, 34", and in front of it how many were lost.
std::string Cell(const std::vector<HoldResult>& results) {
  const HoldSummary sum = SummaryOf(results);
  const std::string lost = sum.Lost > 0 ? "**" + Of(sum.Lost, sum.Count) + " lost**, " : std::string();
  return lost + Text(sum.Rms, "0.0") + ", " + Text(sum.Rudder) + ", " + Text(sum.Changes);
}

using Choice = std::function<bool(const HoldCase&)>;

std::vector<HoldResult> Chosen(const SailedPassages& sailed, const Choice& choice) {
  std::vector<HoldResult> results;
  for (std::size_t i = 0; i < sailed.Cases.size(); ++i) {
    if (choice(sailed.Cases[i])) {
      results.push_back(sailed.Results[i]);
    }
  }
  return results;
}

std::string Row(const std::vector<std::string>& cells) {
  std::string row("|");
  for (const std::string& cell : cells) {
    row.append(" ").append(cell).append(" |");
  }
  return row.append("\n");
}

std::string Heading(const std::vector<std::string>& names) {
  return Row(names) + Row(std::vector<std::string>(names.size(), "---"));
}

}  // namespace

std::string NameOf(const HoldCase& what) {
  return what.Constant ? std::string("constant heading")
                       : std::string(what.Method.Name) + " " + Short(static_cast<double>(what.Bandwidth)) +
                             "/" + Short(static_cast<double>(what.Damping));
}

SailedPassages SailPassages(const HoldCase& what, const std::vector<double>& lags) {
  SailedPassages sailed{NameOf(what), what, Passages(what, lags), {}};
  for (const HoldCase& one : sailed.Cases) {
    sailed.Results.push_back(Hold(one));
  }
  return sailed;
}

std::string SummaryHeading() {
  return Heading({"Method", "wind/s", "lost", "rms [deg]", "rudder [deg/min]", "bearings/min"});
}

std::string SummaryRow(const SailedPassages& sailed) {
  const HoldSummary sum = SummaryOf(sailed.Results);
  return Row({sailed.Name, sailed.What.Constant ? std::string() : Short(sailed.What.WindRate),
              Of(sum.Lost, sum.Count), Text(sum.Rms, "0.0"), Text(sum.Rudder), Text(sum.Changes)});
}

std::string EachPassage(const SailedPassages& sailed) {
  std::string text;
  for (std::size_t i = 0; i < sailed.Cases.size(); ++i) {
    const HoldResult& result = sailed.Results[i];
    text += "  " + CaseName(sailed.Cases[i]) + ": mean " + Text(result.Mean, "0.0") + ", rms " +
            Text(result.Rms, "0.0") + ", most " + Text(result.Most) + ", rudder " + Text(result.Rudder) +
            ", changes " + Text(result.Changes) + (result.Lost() ? ", lost\n" : "\n");
  }
  return text;
}

std::string SplitTable(const std::vector<SailedPassages>& sailed) {
  std::vector<std::pair<std::string, Choice>> rows;
  for (const double lag : {1.0, 4.0, 8.0}) {
    rows.emplace_back("lag " + Text(lag) + " s", [lag](const HoldCase& one) { return one.Lag == lag; });
  }
  for (const Sea sea : {Sea::Flat, Sea::Slight, Sea::Beam, Sea::Following, Sea::Head}) {
    rows.emplace_back("sea " + SeaName(sea), [sea](const HoldCase& one) { return one.TheSea == sea; });
  }
  for (const HoldCase& held : sailed.front().Cases) {
    const std::string name = AngleName(held);
    const bool there =
        std::any_of(rows.begin(), rows.end(), [&name](const auto& row) { return row.first == name; });
    if (!there) {
      rows.emplace_back(name, [name](const HoldCase& one) { return AngleName(one) == name; });
    }
  }
  std::vector<std::string> names{""};
  for (const SailedPassages& one : sailed) {
    names.push_back(one.Name);
  }
  std::string table = Heading(names);
  for (const auto& [name, choice] : rows) {
    std::vector<std::string> cells{name};
    for (const SailedPassages& one : sailed) {
      cells.push_back(Cell(Chosen(one, choice)));
    }
    table += Row(cells);
  }
  return table;
}

std::string BandwidthTable() {
  const std::vector<double> bandwidths{20.0, 40.0, 60.0, 80.0, 120.0};
  std::vector<std::string> names{"Method", "lag", "10 + 4 x lag"};
  for (const double bandwidth : bandwidths) {
    names.push_back(Short(bandwidth));
  }
  std::string table = Heading(names);
  for (const NamedMethod& method : NamedMethods()) {
    // At one sentence a second it is the one above.
    if (method.Name == "Clock") {
      continue;
    }
    for (const double lag : {1.0, 2.0, 4.0, 8.0, 12.0}) {
      std::vector<std::string> cells{std::string(method.Name), Text(lag) + " s"};
      HoldCase what;
      what.Method = method;
      what.Bandwidth = static_cast<float>(10.0 + 4.0 * lag);
      cells.push_back(Cell(SailPassages(what, {lag}).Results));
      for (const double bandwidth : bandwidths) {
        what.Bandwidth = static_cast<float>(bandwidth);
        cells.push_back(Cell(SailPassages(what, {lag}).Results));
      }
      table += Row(cells);
    }
  }
  return table;
}

std::string UpsetHeading() {
  return Heading({"Method", "wind/s", "slowest back [s]", "beyond 40 deg", "and beyond what it was before",
                  "late sentences move the bearing by [deg]"});
}

std::string UpsetRows(const HoldCase& what, bool each) {
  double back = 0.0;
  double moved = 0.0;
  int beyond = 0;
  int worse = 0;
  std::string text;
  const std::vector<HoldCase> cases = Passages(what);
  for (const HoldCase& one : cases) {
    const UpsetResult standby = StandbyUpset(one, one.Seed % 2 == 0 ? 20.0 : -20.0);
    const BurstResult burst = LateBurst(one);
    back = std::max(back, standby.Back);
    moved = std::max(moved, burst.Moved);
    beyond += standby.Most > 40.0 ? 1 : 0;
    worse += standby.Most > std::max(40.0, standby.Before) ? 1 : 0;
    if (each) {
      text += "  " + CaseName(one) + ": back " + Text(standby.Back) + ", stays " + Text(standby.Stays) +
              ", before " + Text(standby.Before) + ", most " + Text(standby.Most) + ", ahead " +
              Text(standby.Ahead) + ", burst moves " + Text(burst.Moved, "0.0") + ", most " +
              Text(burst.Most) + "\n";
    }
  }
  const int all = static_cast<int>(cases.size());
  const std::string slowest = back < 120.0 ? Text(back) : std::string("more than 120");
  return text + Row({NameOf(what), Short(what.WindRate), slowest, Of(beyond, all), Of(worse, all),
                     Text(moved, "0.0")});
}

}  // namespace veerwatch
