// "replay" with times, "--watch" and "--explain".
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>

#include "cli/Replay.h"
#include "tests/support/Sentences.h"

namespace veerwatch {
namespace {

std::string At(int second, const std::string& body) {
  const std::string seconds = std::to_string(100 + second).substr(1);
  return "2026-11-21T09:15:" + seconds + ".000Z " + WithChecksum(body) + "\n";
}

std::string Wind(int second) {
  return At(second, "$WIMWV,04" + std::to_string(second % 10) + ".0,R,10.5,N,A");
}

/// Winds in the first ten seconds and again from the twentieth on.
std::string Gap() {
  std::string log;
  for (int second = 0; second < 30; ++second) {
    log += At(second, "$GPVTG,,T,40.0,M,6.0,N,,K");
    log += second < 10 || second >= 20 ? Wind(second) : "";
  }
  return log;
}

std::string Played(const std::string& log, const ReplayOptions& options) {
  std::istringstream in(log);
  std::ostringstream out;
  std::ostringstream notes;
  Replay(options, in, out, notes);
  return out.str();
}

TEST(ReplayWatch, TellsConditionsAsTheyComeAndGo) {
  ReplayOptions options;
  options.Steer.Watch = true;
  options.Steer.Mode = TrackMode::Manual;
  const std::string told = Played(Gap(), options);
  EXPECT_NE(told.find("14 s amber No Wind 5 s\n"), std::string::npos) << told;
  EXPECT_NE(told.find("22 s over No Wind"), std::string::npos) << told;
}

TEST(ReplayWatch, TellsWhatTheBoatMakesOfTheBearing) {
  ReplayOptions options;
  options.Steer.Watch = true;
  options.Steer.Mode = TrackMode::Manual;
  std::string log;
  for (int second = 0; second < 59; ++second) {
    const int heading = second < 10 ? 40 : second < 30 ? 80 : 41;
    log += At(second, "$GPVTG,,T," + std::to_string(heading) + ".0,M,6.0,N,,K") + Wind(second);
  }
  const std::string told = Played(log, options);
  EXPECT_NE(told.find(" s pilot Follows\n"), std::string::npos) << told;
  EXPECT_NE(told.find(" s red Pilot: Turns the wrong way\n"), std::string::npos) << told;
  EXPECT_NE(told.find(" s pilot Turns the wrong way\n"), std::string::npos) << told;
  EXPECT_LT(told.find(" s pilot Turns the wrong way\n"), told.rfind(" s pilot Follows\n")) << told;
}

TEST(ReplayWatch, OrdersTheSentencesOfALogWithTimesByThem) {
  ReplayOptions options;
  const std::string log = Wind(0) + At(0, "$GPVTG,,T,40.0,M,6.0,N,,K") + Wind(1) + Wind(2) + Wind(4);
  std::string sentences = Played(log, options);
  EXPECT_EQ(std::count(sentences.begin(), sentences.end(), '\n'), 3);
  options.Explain = true;
  const std::string why = Played(log, options);
  EXPECT_NE(why.find(", 2.0 s, correction"), std::string::npos) << why;
  EXPECT_NE(why.find("Boat Speed 6.0 kn VTG (GP) 4.0 s"), std::string::npos) << why;
}

TEST(ReplayWatch, ALogWithoutTimesIsExplainedByASecondAWind) {
  ReplayOptions options;
  options.Explain = true;
  const std::string log = WithChecksum("$GPVTG,,T,40.0,M,6.0,N,,K") + "\n" +
                          WithChecksum("$WIMWV,045.0,R,10.5,N,A") + "\n" +
                          WithChecksum("$WIMWV,047.0,R,10.5,N,A") + "\n";
  const std::string why = Played(log, options);
  EXPECT_NE(why.find("apparent 47.0 held 45.0, error 2.0, 1.0 s"), std::string::npos) << why;
}

TEST(ReplayWatch, WithoutTimesTheSentencesAreThoseOfBefore) {
  std::string log = Gap();
  std::string plain;
  std::istringstream lines(log);
  for (std::string line; std::getline(lines, line);) {
    plain += line.substr(line.find('$')) + "\n";
  }
  EXPECT_EQ(Played(plain, {}), Played(log, {})) << "Sentence counts the winds, not the seconds";
}

}  // namespace
}  // namespace veerwatch
