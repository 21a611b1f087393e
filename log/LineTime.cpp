#include "log/LineTime.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <string_view>

namespace veerwatch {

namespace {

/// Takes `digits` digits and the character after them off `text`.
class Taker {
 public:
  explicit Taker(std::string_view text) : m_text(text) {}

  int Number(std::size_t digits, char after) {
    int number = 0;
    for (std::size_t i = 0; i < digits; ++i) {
      number = number * 10 + Digit();
    }
    Expect(after);
    return number;
  }
  /// What stands after the point of a second [ms]: one to nine digits.
  int Milliseconds() {
    int number = 0;
    int weight = 100;
    std::size_t count = 0;
    while (m_good && Peek() >= '0' && Peek() <= '9') {
      number += Digit() * weight;
      weight /= 10;
      ++count;
    }
    m_good = m_good && count >= 1 && count <= 9;
    return number;
  }
  void Expect(char c) {
    m_good = m_good && Peek() == c;
    ++m_at;
  }
  char Peek() const { return m_at < m_text.size() ? m_text[m_at] : '\0'; }
  bool Good() const { return m_good; }
  std::size_t At() const { return m_at; }

 private:
  int Digit() {
    const char c = Peek();
    m_good = m_good && c >= '0' && c <= '9';
    ++m_at;
    return m_good ? c - '0' : 0;
  }

  std::string_view m_text;
  std::size_t m_at = 0;
  bool m_good = true;
};

}  // namespace

namespace {

constexpr std::int64_t kSecond = 1000;  // [ms]

std::size_t DigitsOf(std::string_view text) {
  return std::min(text.find_first_not_of("0123456789"), text.size());
}

/// Digits, at most eighteen, as a number.
std::int64_t NumberOf(std::string_view digits) {
  std::int64_t number = 0;
  for (const char digit : digits) {
    number = number * 10 + (digit - '0');
  }
  return number;
}

/// How long "12 " in front of a line is; 0 where no number of one or two digits stands there.
std::size_t EndpointNumber(std::string_view line) {
  const std::size_t digits = DigitsOf(line);
  return digits >= 1 && digits <= 2 && digits < line.size() && line[digits] == ' ' ? digits + 1 : 0;
}

/// "1795252502.123 " in front of the line.
std::optional<std::int64_t> TakeSeconds(std::string& line) {
  constexpr std::size_t kLeast = 9;
  constexpr std::size_t kMost = 11;
  const std::string_view text = line;
  const std::size_t seconds = DigitsOf(text);
  if (seconds < kLeast || seconds > kMost) {
    return std::nullopt;
  }
  std::int64_t time = NumberOf(text.substr(0, seconds)) * kSecond;
  std::size_t end = seconds;
  if (end < text.size() && text[end] == '.') {
    const std::string_view fraction = text.substr(end + 1, DigitsOf(text.substr(end + 1)));
    const std::string thousandths = (std::string(fraction) + "000").substr(0, 3);
    time += NumberOf(thousandths);
    end += 1 + fraction.size();
  }
  if (end >= text.size() || text[end] != ' ') {
    return std::nullopt;
  }
  line.erase(0, end + 1);
  return time;
}

/// A tag block "\\...\\" in front of the line; the line loses it, with or without a time.
std::optional<std::int64_t> TakeTagBlock(std::string& line) {
  const std::size_t end = line.find('\\', 1);
  if (end == std::string::npos) {
    return std::nullopt;
  }
  const std::string block = line.substr(1, line.find('*', 1) < end ? line.find('*', 1) - 1 : end - 1);
  line.erase(0, end + 1);
  for (std::string_view rest = block; !rest.empty();) {
    const std::string_view field = rest.substr(0, rest.find(','));
    rest.remove_prefix(std::min(field.size() + 1, rest.size()));
    const std::string_view digits = field.substr(std::min<std::size_t>(2, field.size()));
    constexpr std::size_t kMost = 15;
    constexpr std::size_t kOfMilliseconds = 12;
    if (field.starts_with("c:") && !digits.empty() && digits.size() <= kMost &&
        DigitsOf(digits) == digits.size()) {
      return NumberOf(digits) * (digits.size() >= kOfMilliseconds ? 1 : kSecond);
    }
  }
  return std::nullopt;
}

}  // namespace

std::optional<std::int64_t> TakeLineTime(std::string& line) {
  if (line.empty() || line.front() == '$') {
    return std::nullopt;
  }
  if (line.front() == '\\') {
    return TakeTagBlock(line);
  }
  if (const auto seconds = TakeSeconds(line)) {
    return seconds;
  }
  const std::size_t number = EndpointNumber(line);
  const std::string_view text = std::string_view(line).substr(number);
  Taker taker(text);
  const int year = taker.Number(4, '-');
  const int month = taker.Number(2, '-');
  const int day = taker.Number(2, 'T');
  const int hour = taker.Number(2, ':');
  const int minute = taker.Number(2, ':');
  const bool fraction = text.size() > 19 && text[19] == '.';
  const int second = taker.Number(2, fraction ? '.' : 'Z');
  int milliseconds = 0;
  if (fraction) {
    milliseconds = taker.Milliseconds();
    taker.Expect('Z');
  }
  taker.Expect(' ');
  const std::chrono::year_month_day date{std::chrono::year(year),
                                         std::chrono::month(static_cast<unsigned>(month)),
                                         std::chrono::day(static_cast<unsigned>(day))};
  if (!taker.Good() || !date.ok() || hour > 23 || minute > 59 || second > 60) {
    return std::nullopt;
  }
  const std::chrono::milliseconds time =
      std::chrono::sys_days(date).time_since_epoch() + std::chrono::hours(hour) +
      std::chrono::minutes(minute) + std::chrono::seconds(second) + std::chrono::milliseconds(milliseconds);
  line.erase(0, number + taker.At());
  return time.count();
}

void AppendLineTime(std::int64_t wall, std::string& text) {
  const std::chrono::sys_time<std::chrono::milliseconds> time{std::chrono::milliseconds(wall)};
  const auto day = std::chrono::floor<std::chrono::days>(time);
  const std::chrono::year_month_day date(day);
  const std::chrono::hh_mm_ss clock(time - day);
  const auto append = [&text](std::int64_t number, int digits, char after) {
    const std::size_t at = text.size();
    text.append(static_cast<std::size_t>(digits), '0');
    for (int i = digits; i > 0; --i, number /= 10) {
      text[at + static_cast<std::size_t>(i) - 1] = static_cast<char>('0' + number % 10);
    }
    text.append(1, after);
  };
  append(static_cast<int>(date.year()), 4, '-');
  append(static_cast<unsigned>(date.month()), 2, '-');
  append(static_cast<unsigned>(date.day()), 2, 'T');
  append(clock.hours().count(), 2, ':');
  append(clock.minutes().count(), 2, ':');
  append(clock.seconds().count(), 2, '.');
  append(clock.subseconds().count(), 3, 'Z');
}

}  // namespace veerwatch
