#include "app/WatchEntry.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstddef>
#include <cstdio>

#include "alarms/WatchText.h"
#include "platform/NumberText.h"
#include "platform/VisibleText.h"

namespace veerwatch {

namespace {

constexpr std::size_t kWords = 8;
constexpr double kLatest = 4e12;  // [ms since 1970]
constexpr double kLargestFigure = 1e6;

// In the order of their enumerations.

constexpr std::array<std::string_view, kConditionCount> kConditions{
    "NoWind",        "PilotLost", "PilotNotFollowing", "GybeRisk",      "NoBoatSpeed", "WindNotChanging",
    "OffCourse",     "Pinching",  "WindShift",         "NoHeading",     "TwoWinds",    "TwoHeadings",
    "TwoBoatSpeeds", "WindJumps", "ManyWinds",         "PilotLineFull", "Simulation"};
constexpr std::array<std::string_view, 3> kLevels{"red", "amber", "note"};
constexpr std::array<std::string_view, 5> kVerdicts{"Unknown", "Follows", "Slow", "DoesNotFollow",
                                                    "TurnsAway"};
constexpr std::array<std::string_view, 2> kCame{"came", "over"};
constexpr std::array<std::string_view, 2> kShift{"header", "lift"};

template <std::size_t Count>
std::optional<std::size_t> PlaceOf(std::string_view word, const std::array<std::string_view, Count>& words) {
  const auto* const found = std::find(words.begin(), words.end(), word);
  return found == words.end() ? std::nullopt : std::optional(static_cast<std::size_t>(found - words.begin()));
}

bool InTalker(char c) { return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9'); }

/// "WI,II"; a character that is none of a talker, or none at all, is "?".
std::string TalkersText(const std::array<Talker, 2>& talkers) {
  std::string text;
  for (const Talker& talker : talkers) {
    text += text.empty() ? "" : ",";
    for (const char c : talker) {
      text += InTalker(c) ? c : '?';
    }
  }
  return text;
}

std::optional<std::array<Talker, 2>> ReadTalkers(std::string_view text) {
  constexpr std::size_t kLength = 5;
  constexpr std::size_t kComma = 2;
  if (text.size() != kLength || text[kComma] != ',') {
    return std::nullopt;
  }
  std::array<Talker, 2> talkers{{{text[0], text[1]}, {text[3], text[4]}}};
  for (const Talker& talker : talkers) {
    if (!std::all_of(talker.begin(), talker.end(), [](char c) { return InTalker(c) || c == '?'; })) {
      return std::nullopt;
    }
  }
  return talkers;
}

/// The words of a line that has as many as it must; else nothing.
std::optional<std::array<std::string_view, kWords>> WordsOf(std::string_view line) {
  std::array<std::string_view, kWords> words;
  for (std::size_t i = 0; i < kWords; ++i) {
    const std::size_t end = line.find(' ');
    if ((end == std::string_view::npos) != (i + 1 == kWords)) {
      return std::nullopt;
    }
    words[i] = line.substr(0, end);
    line.remove_prefix(end == std::string_view::npos ? line.size() : end + 1);
  }
  return words;
}

}  // namespace

std::string UtcText(std::int64_t wall) {
  using namespace std::chrono;
  const sys_time<milliseconds> now{milliseconds(wall)};
  const auto midnight = floor<days>(now);
  const year_month_day date{midnight};
  const hh_mm_ss time{floor<seconds>(now) - midnight};
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%04d-%02u-%02u %02ld:%02ld:%02ld", static_cast<int>(date.year()),
                static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                static_cast<long>(time.hours().count()), static_cast<long>(time.minutes().count()),
                static_cast<long>(time.seconds().count()));
  return text.data();
}

std::string WatchEntryText(const WatchEntry& entry) {
  return UtcText(entry.Wall) + " " +
         VisibleText((entry.Over ? "over" : std::string(LevelText(entry.What.Rank))) + " " +
                     WatchText(entry.What));
}

std::string WatchEntryLine(const WatchEntry& entry) {
  const Standing& what = entry.What;
  const double figure = std::isfinite(what.Figure) ? what.Figure : 0.0;
  std::string line = std::to_string(entry.Wall);
  line.append(" ").append(kCame[entry.Over ? 1 : 0]);
  line.append(" ").append(kLevels[static_cast<std::size_t>(what.Rank)]);
  line.append(" ").append(kConditions[static_cast<std::size_t>(what.What)]);
  line.append(" ").append(ShortestText(static_cast<float>(figure)));
  line.append(" ").append(TalkersText(what.Talkers));
  line.append(" ").append(kShift[what.Lift ? 1 : 0]);
  line.append(" ").append(kVerdicts[static_cast<std::size_t>(what.Follow)]);
  return line;
}

std::optional<WatchEntry> ReadWatchEntry(std::string_view line) {
  const auto words = WordsOf(line);
  if (!words) {
    return std::nullopt;
  }
  const auto& [time, came, level, condition, number, talkers, shift, verdict] = *words;
  const auto wall = StrictDouble(time);
  const auto over = PlaceOf(came, kCame);
  const auto rank = PlaceOf(level, kLevels);
  const auto what = PlaceOf(condition, kConditions);
  const auto figure = StrictDouble(number);
  const auto sources = ReadTalkers(talkers);
  const auto lift = PlaceOf(shift, kShift);
  const auto follow = PlaceOf(verdict, kVerdicts);
  if (!wall || *wall < 0.0 || *wall > kLatest || !over || !rank || !what || !figure ||
      std::fabs(*figure) > kLargestFigure || !sources || !lift || !follow) {
    return std::nullopt;
  }
  WatchEntry entry;
  entry.Wall = static_cast<std::int64_t>(*wall);
  entry.Over = *over == 1;
  entry.What.What = static_cast<Condition>(*what);
  entry.What.Rank = static_cast<Level>(*rank);
  entry.What.Figure = *figure;
  entry.What.Talkers = *sources;
  entry.What.Lift = *lift == 1;
  entry.What.Follow = static_cast<FollowVerdict>(*follow);
  return entry;
}

}  // namespace veerwatch
