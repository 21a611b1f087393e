// With Act no fault that lasts a minute takes the boat from her wind angle: each of them on the boat with a
// rudder, over several seeds and methods.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <functional>
#include <ostream>
#include <string>

#include "tests/closedloop/Passage.h"
#include "tests/support/Sentences.h"

namespace veerwatch {

/// A fault of a minute: what changes every line on its way, and what is done to the boat.
struct Fault {
  const char* Name;
  bool TurnsHerAway;  ///< where it is only told
  TrackSide Side;
  /// A line from the instruments, without its end; what becomes of it, "" for nothing. `told` is the line of
  /// the same kind when the fault began.
  std::string (*Line)(const std::string& line, const std::string& told);
  void (*Begin)(Passage& passage);
  void (*End)(Passage& passage);
};

static void PrintTo(const Fault& fault, std::ostream* out) { *out << fault.Name; }

namespace {

bool IsWind(const std::string& line) { return line.substr(3, 3) == "MWV"; }

std::string WithoutChecksum(const std::string& line) { return line.substr(0, line.find('*')); }

/// The wind line with another angle and status.
std::string OtherWind(const std::string& line, double more, const std::string& talker, const char* status) {
  const std::string body = WithoutChecksum(line);
  const std::size_t end = body.find(',', 7);
  const double angle = std::fmod(std::stod(body.substr(7, end - 7)) + more + 360.0, 360.0);
  std::string rest = body.substr(end);
  rest.back() = status[0];
  return WithChecksum("$" + talker + "MWV," + std::to_string(angle).substr(0, 5) + rest);
}

const Fault kFaults[] = {
    {"WindLost", false, TrackSide::True,
     [](const std::string& line, const std::string&) { return IsWind(line) ? std::string() : line; }, nullptr,
     nullptr},
    {"EmptyWinds", true, TrackSide::True,
     [](const std::string& line, const std::string&) {
       return IsWind(line) ? WithChecksum("$IIMWV,,R,,N,A") : line;
     },
     nullptr, nullptr},
    {"StatusVAndWrong", true, TrackSide::True,
     [](const std::string& line, const std::string&) {
       return IsWind(line) ? OtherWind(line, 40.0, "II", "V") : line;
     },
     nullptr, nullptr},
    {"BoatSpeedZero", true, TrackSide::True,
     [](const std::string& line, const std::string&) {
       return line.substr(3, 3) == "VHW" ? WithChecksum("$IIVHW,,T,,M,0.0,N,,K") : line;
     },
     nullptr, nullptr},
    {"BoatSpeedLost", false, TrackSide::True,
     [](const std::string& line, const std::string&) {
       return line.substr(3, 3) == "VHW" ? std::string() : line;
     },
     nullptr, nullptr},
    {"HeadingLost", false, TrackSide::True,
     [](const std::string& line, const std::string&) {
       if (line.substr(3, 3) == "VHW") {
         return WithChecksum("$IIVHW,,T,,M" + WithoutChecksum(line).substr(line.find(",M,") + 2));
       }
       return line.substr(3, 3) == "HDG" ? std::string() : line;
     },
     nullptr, nullptr},
    {"FrozenVane", true, TrackSide::Apparent,
     [](const std::string& line, const std::string& told) { return IsWind(line) ? told : line; }, nullptr,
     nullptr},
    {"PilotStandby", false, TrackSide::True, nullptr,
     [](Passage& passage) { passage.Boat.PilotStandby(passage.Boat.State().Compass); },
     [](Passage& passage) { passage.Boat.PilotEngage(); }},
    {"OutputPortLost", false, TrackSide::True, nullptr,
     [](Passage& passage) {
       passage.PilotPort.OpensOtherwise = false;
       passage.PilotPort.Lose();
     },
     [](Passage& passage) { passage.PilotPort.OpensOtherwise = true; }},
    {"SecondTalker", true, TrackSide::True,
     [](const std::string& line, const std::string&) {
       return IsWind(line) ? OtherWind(line, 60.0, "WI", "A") + "\r\n" + line : line;
     },
     nullptr, nullptr},
};

class ActOn : public testing::TestWithParam<Fault> {
 protected:
  /// The largest error of the real wind angle [deg] from the beginning of the fault to a minute after it.
  static double Worst(const Fault& fault, TrackMethod method, std::uint64_t seed, bool faulty, bool act) {
    BoatSettings boat = HardBoat(Sea::Slight);
    boat.Pilot.CompassOffset = 0.0;
    Passage passage(boat, 100.0, seed);
    Settings& set = passage.Set;
    set.m_iNmeaHeading = 0;
    set.m_iNmeaBoatSpeed = 0;
    set.m_eTrackMethod = method;
    set.m_fTrackBandwidth = 60.0F;
    set.m_bWatchAct = act;
    passage.Sail(60.0);
    passage.Track(fault.Side);
    passage.Sail(240.0);
    double worst = 0.0;
    const TrackSide held = fault.Side;
    const double desired = static_cast<double>(set.DesiredAngle[static_cast<std::size_t>(held)]);
    const auto look = [&] {
      const BoatState& state = passage.Boat.State();
      const double has = held == TrackSide::Apparent ? state.ApparentAngle : state.TrueAngle;
      worst = std::max(worst, std::fabs(std::remainder(has - desired, 360.0)));
    };
    if (faulty) {
      passage.Input.Change = fault.Line;
      if (fault.Begin != nullptr) {
        fault.Begin(passage);
      }
    }
    passage.Sail(60.0, look);
    passage.Input.Change = nullptr;
    if (faulty && fault.End != nullptr) {
      fault.End(passage);
    }
    passage.Sail(60.0, look);
    return worst;
  }
};

TEST_P(ActOn, KeepsTheBoatNearHerWind) {
  double told = 0.0;
  for (const TrackMethod method : {TrackMethod::Sentence, TrackMethod::Clock, TrackMethod::Direction}) {
    for (std::uint64_t seed = 1; seed <= 6; ++seed) {
      const double without = Worst(GetParam(), method, seed, false, true);
      EXPECT_LE(Worst(GetParam(), method, seed, true, true), std::max(25.0, without + 2.0))
          << "method " << static_cast<int>(method) << " seed " << seed << " without the fault " << without;
      told = std::max(told, Worst(GetParam(), method, seed, true, false));
    }
  }
  if (GetParam().TurnsHerAway) {
    EXPECT_GT(told, 30.0) << "where it is only told";
  }
}

INSTANTIATE_TEST_SUITE_P(AMinute, ActOn, testing::ValuesIn(kFaults),
                         [](const auto& one) { return std::string(one.param.Name); });

}  // namespace
}  // namespace veerwatch
