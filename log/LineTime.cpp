#include "log/LineTime.h"

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

std::optional<std::int64_t> TakeLineTime(std::string& line) {
  if (line.empty() || line.front() == '$') {
    return std::nullopt;
  }
  Taker taker(line);
  const int year = taker.Number(4, '-');
  const int month = taker.Number(2, '-');
  const int day = taker.Number(2, 'T');
  const int hour = taker.Number(2, ':');
  const int minute = taker.Number(2, ':');
  const bool fraction = line.size() > 19 && line[19] == '.';
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
  line.erase(0, taker.At());
  return time.count();
}

}  // namespace veerwatch
