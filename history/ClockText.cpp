#include "history/ClockText.h"

#include <array>
#include <chrono>
#include <cstdio>

namespace veerwatch {

namespace {

struct Clocked {
  std::chrono::year_month_day Day;
  int Hour;
  int Minute;
  int Second;
};

Clocked Taken(std::int64_t wall, std::int32_t utcOffset) {
  using std::chrono::floor;
  const std::chrono::sys_time<std::chrono::milliseconds> time{std::chrono::milliseconds(wall)};
  const auto seconds = floor<std::chrono::seconds>(time) + std::chrono::seconds(utcOffset);
  const auto day = floor<std::chrono::days>(seconds);
  const std::chrono::hh_mm_ss rest(seconds - day);
  return {std::chrono::year_month_day(day), static_cast<int>(rest.hours().count()),
          static_cast<int>(rest.minutes().count()), static_cast<int>(rest.seconds().count())};
}

template <class... Values>
std::string Printed(const char* pattern, Values... values) {
  std::array<char, 48> text{};
  std::snprintf(text.data(), text.size(), pattern, values...);
  return text.data();
}

}  // namespace

std::string ClockText(std::int64_t wall, std::int32_t utcOffset) {
  const Clocked time = Taken(wall, utcOffset);
  return Printed("%02d:%02d", time.Hour, time.Minute);
}

std::string ClockTextSeconds(std::int64_t wall, std::int32_t utcOffset) {
  const Clocked time = Taken(wall, utcOffset);
  return Printed("%02d:%02d:%02d", time.Hour, time.Minute, time.Second);
}

std::string Iso8601Text(std::int64_t wall) {
  const Clocked time = Taken(wall, 0);
  return Printed("%04d-%02u-%02uT%02d:%02d:%02dZ", static_cast<int>(time.Day.year()),
                 static_cast<unsigned>(time.Day.month()), static_cast<unsigned>(time.Day.day()), time.Hour,
                 time.Minute, time.Second);
}

}  // namespace veerwatch
