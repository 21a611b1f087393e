// Maps the closed loop: `veerwatch_closedloop FOLDER` writes the plots (*.svg) and the tables (*.md) of
// docs/control.md. script/control-map calls it.
#include <array>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "platform/NumberText.h"
#include "tests/closedloop/Response.h"
#include "tests/closedloop/SvgPlot.h"

namespace {

using namespace veerwatch;

constexpr const char* kGreen = "#a8ddb5";
constexpr const char* kYellow = "#f3e79b";
constexpr const char* kOrange = "#f7b27a";
constexpr const char* kRed = "#e06666";

std::string Text(double value, const char* pattern = "0") {
  return FormatNumber(static_cast<float>(value), pattern);
}

std::vector<std::string> Texts(const std::vector<double>& values) {
  std::vector<std::string> texts;
  for (const double value : values) {
    texts.push_back(ShortestText(static_cast<float>(value)));
  }
  return texts;
}

/// A table of docs/control.md, row by row.
class Table {
 public:
  explicit Table(const std::vector<std::string>& headings) {
    Row(headings);
    Row(std::vector<std::string>(headings.size(), "---"));
  }
  void Row(const std::vector<std::string>& cells) {
    for (const std::string& cell : cells) {
      m_text.append("| ").append(cell).append(" ");
    }
    m_text.append("|\n");
  }
  const std::string& Whole() const { return m_text; }

 private:
  std::string m_text;
};

bool Write(const std::string& folder, const std::string& name, const std::string& text) {
  std::ofstream file(folder + "/" + name, std::ios::binary);
  file << text;
  file.close();
  return static_cast<bool>(file);
}

MapCell CellOf(const ShiftResult& result) {
  if (!result.Settled) {
    return {"", kRed};
  }
  const char* colour = result.Overshoot <= 0.3 ? kGreen : result.Overshoot <= 0.6 ? kYellow : kOrange;
  return {Text(result.Settling), colour};
}

std::string ResultText(const ShiftResult& result) {
  return result.Settled ? Text(result.Settling) + " s, " + Text(result.Overshoot * 100.0) + " %"
                        : std::string("does not settle");
}

const std::vector<MapCell> kKey{{"settles, overshoot to 30 %", kGreen},
                                {"overshoot to 60 %", kYellow},
                                {"overshoot above 60 %", kOrange},
                                {"does not settle", kRed}};

const std::vector<double> kBandwidths{5, 7, 10, 14, 20, 28, 40, 60, 80, 120, 160};
const std::vector<double> kLags{1, 2, 4, 6, 8, 12};
const std::vector<double> kRates{0.5, 1, 2, 5, 10};

std::string BandwidthMap() {
  MapPlot plot{"boat lag [s]", "bandwidth", Texts(kLags), Texts(kBandwidths), {}, kKey};
  for (const double rate : kRates) {
    MapPanel panel{ShortestText(static_cast<float>(rate)) + " wind sentences/s", {}};
    for (const double bandwidth : kBandwidths) {
      auto& row = panel.Cells.emplace_back();
      for (const double lag : kLags) {
        ShiftCase what;
        what.Loop.Boat.TurnLag = lag;
        what.Loop.Boat.WindPeriod = 1.0 / rate;
        what.Loop.Bandwidth = static_cast<float>(bandwidth);
        row.push_back(CellOf(AnswerToShift(what)));
      }
    }
    plot.Panels.push_back(panel);
  }
  return SvgOf(plot);
}

std::string DampingMap() {
  const std::vector<double> dampings{0, 0.3, 0.5, 0.7, 1, 1.5, 2, 4, 8};
  MapPlot plot{"damping", "bandwidth", Texts(dampings), Texts(kBandwidths), {}, kKey};
  for (const double lag : {2.0, 4.0, 8.0}) {
    MapPanel panel{"boat lag " + Text(lag) + " s", {}};
    for (const double bandwidth : kBandwidths) {
      auto& row = panel.Cells.emplace_back();
      for (const double damping : dampings) {
        ShiftCase what;
        what.Loop.Boat.TurnLag = lag;
        what.Loop.Bandwidth = static_cast<float>(bandwidth);
        what.Loop.Damping = static_cast<float>(damping);
        row.push_back(CellOf(AnswerToShift(what)));
      }
    }
    plot.Panels.push_back(panel);
  }
  return SvgOf(plot);
}

CurvePlot Curves(const std::string& title, double rate, double most) {
  const std::vector<double> lags{1, 4, 8, 16};
  const std::array<const char*, 4> colours{"#1b7837", "#2166ac", "#b35806", "#b2182b"};
  CurvePlot plot{title, -most, most, most / 2.0, {}};
  for (std::size_t i = 0; i < lags.size(); ++i) {
    Curve curve{"lag " + Text(lags[i]) + " s", colours[i], {}};
    ShiftCase what;
    what.Loop.Boat.TurnLag = lags[i];
    what.Loop.Boat.WindPeriod = 1.0 / rate;
    what.Seconds = 241.0;
    what.Each = [&curve](double since, double error) {
      if (since >= static_cast<double>(curve.Values.size())) {
        curve.Values.push_back(error);
      }
    };
    AnswerToShift(what);
    plot.Curves.push_back(curve);
  }
  return plot;
}

std::string ShiftCurves() {
  return SvgOf({Curves("1 wind sentence/s, error [deg]", 1.0, 10.0),
                Curves("2 wind sentences/s, error [deg]", 2.0, 10.0),
                Curves("5 wind sentences/s, error [deg]", 5.0, 60.0)});
}

std::string DefaultsTable(double rate) {
  Table table({"Boat lag", "true wind at 45", "true wind at 90", "true wind at 160", "apparent wind at 45",
               "apparent wind at 90", "apparent wind at 160"});
  for (const double lag : {1.0, 2.0, 4.0, 6.0, 8.0, 12.0, 16.0}) {
    std::vector<std::string> row{Text(lag) + " s"};
    for (const TrackSide side : {TrackSide::True, TrackSide::Apparent}) {
      for (const double angle : {45.0, 90.0, 160.0}) {
        ShiftCase what;
        what.Loop.Boat.TurnLag = lag;
        what.Loop.Boat.WindPeriod = 1.0 / rate;
        what.Loop.Side = side;
        what.Loop.WindAngle = angle;
        row.push_back(ResultText(AnswerToShift(what)));
      }
    }
    table.Row(row);
  }
  return table.Whole();
}

std::string DefaultsOnce() { return DefaultsTable(1.0); }
std::string DefaultsTwice() { return DefaultsTable(2.0); }

std::string AdviceTable() {
  std::vector<std::string> headings{"Boat lag"};
  for (const double rate : kRates) {
    headings.push_back(Text(60.0 * rate) + " at " + ShortestText(static_cast<float>(rate)) + "/s");
  }
  Table table(headings);
  for (const double lag : kLags) {
    std::vector<std::string> row{Text(lag) + " s"};
    for (const double rate : kRates) {
      ShiftCase what;
      what.Loop.Boat.TurnLag = lag;
      what.Loop.Boat.WindPeriod = 1.0 / rate;
      what.Loop.Bandwidth = static_cast<float>(60.0 * rate);
      row.push_back(ResultText(AnswerToShift(what)));
    }
    table.Row(row);
  }
  return table.Whole();
}

std::string WireTable() {
  Table table({"Wire", "lag 2 s", "lag 4 s", "lag 8 s"});
  struct Named {
    const char* Name;
    WireSettings Wire;
  };
  const std::vector<Named> wires{{"nothing late or lost", {}},
                                 {"1 s late", {1.0}},
                                 {"2 s late", {2.0}},
                                 {"4 s late", {4.0}},
                                 {"30 % lost", {0.0, 0.0, 0.3}},
                                 {"60 % lost", {0.0, 0.0, 0.6}},
                                 {"1 to 2 s late, 30 % lost", {1.0, 1.0, 0.3}}};
  for (const Named& named : wires) {
    std::vector<std::string> row{named.Name};
    for (const double lag : {2.0, 4.0, 8.0}) {
      ShiftCase what;
      what.Loop.Boat.TurnLag = lag;
      what.Loop.Wire = named.Wire;
      row.push_back(ResultText(AnswerToShift(what)));
    }
    table.Row(row);
  }
  return table.Whole();
}

std::string LargeShiftTable() {
  const std::vector<double> shifts{10, 20, 30, 45, 60, 90, 120};
  std::vector<std::string> headings{"Fastest turn"};
  for (const double shift : shifts) {
    headings.push_back(Text(shift) + " deg");
  }
  Table table(headings);
  for (const double rate : {3.0, 5.0, 8.0, 15.0}) {
    std::vector<std::string> row{Text(rate) + " deg/s"};
    for (const double shift : shifts) {
      ShiftCase what;
      what.Loop.Boat.TurnRate = rate;
      what.Shift = shift;
      const ShiftResult result = AnswerToShift(what);
      row.push_back(ResultText(result) + ", " + Text(result.Ahead) + " deg ahead");
    }
    table.Row(row);
  }
  return table.Whole();
}

std::string StandbyTable() {
  Table table({"At the wheel", "for", "bearing off the heading", "largest error after it"});
  for (const double off : {5.0, 10.0, 20.0}) {
    for (const double seconds : {30.0, 60.0, 120.0}) {
      const StandbyResult result = StandbyInTrack(LoopCase{}, off, seconds);
      table.Row({Text(off) + " deg off", Text(seconds) + " s", Text(result.Ahead) + " deg",
                 Text(result.Error) + " deg"});
    }
  }
  return table.Whole();
}

std::string GustTable() {
  Table table({"Held", "Boat lag", "mean off, as shown", "mean off, really", "deviation", "untracked"});
  for (const TrackSide side : {TrackSide::True, TrackSide::Apparent}) {
    for (const double angle : {45.0, 90.0, 160.0}) {
      for (const double lag : {2.0, 8.0}) {
        LoopCase what;
        what.Boat = GustyBoat();
        what.Boat.TurnLag = lag;
        what.Side = side;
        what.WindAngle = angle;
        const GustResult result = HoldInGusts(what, 1);
        table.Row({(side == TrackSide::True ? "true wind at " : "apparent wind at ") + Text(angle),
                   Text(lag) + " s", Text(result.Shown, "0.00"), Text(result.Real, "0.00"),
                   Text(result.Deviation, "0.0"), Text(result.Untracked, "0.0")});
      }
    }
  }
  return table.Whole();
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 2) {
    std::cerr << "veerwatch_closedloop: give the folder to write to\n";
    return 2;
  }
  const std::string folder = arguments[1];
  struct Piece {
    const char* Name;
    std::string (*Make)();
  };
  const std::array<Piece, 10> pieces{{{"control-bandwidth.svg", BandwidthMap},
                                      {"control-damping.svg", DampingMap},
                                      {"control-shift.svg", ShiftCurves},
                                      {"defaults.md", DefaultsOnce},
                                      {"defaults-twice.md", DefaultsTwice},
                                      {"standby.md", StandbyTable},
                                      {"advice.md", AdviceTable},
                                      {"wire.md", WireTable},
                                      {"large-shifts.md", LargeShiftTable},
                                      {"gusts.md", GustTable}}};
  for (const Piece& piece : pieces) {
    if (!Write(folder, piece.Name, piece.Make())) {
      std::cerr << "veerwatch_closedloop: cannot write " << piece.Name << "\n";
      return 1;
    }
  }
  return 0;
}
