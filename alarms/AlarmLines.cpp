#include "alarms/AlarmLines.h"

#include <algorithm>

#include "platform/Language.h"

namespace veerwatch {

namespace {

constexpr std::int64_t kMilliseconds = 1000;
constexpr std::int64_t kMinute = 60;  // [s]
constexpr std::int64_t kHour = 3600;  // [s]
constexpr std::int64_t kDay = 86400;  // [s]

std::string TwoDigits(std::int64_t number) {
  std::string digits = std::to_string(number);
  return digits.size() < 2 ? "0" + digits : digits;
}

/// Local time of day.
std::string TimeText(std::int64_t wall, std::int32_t utcOffset) {
  const std::int64_t local = wall / kMilliseconds + utcOffset;
  const std::int64_t second = ((local % kDay) + kDay) % kDay;
  return TwoDigits(second / kHour) + ":" + TwoDigits(second % kHour / kMinute) + ":" +
         TwoDigits(second % kMinute);
}

std::string SpanText(std::int64_t seconds) {
  if (seconds < kMinute) {
    return std::to_string(seconds) + " s";
  }
  if (seconds < kHour) {
    return std::to_string(seconds / kMinute) + " min " + std::to_string(seconds % kMinute) + " s";
  }
  return std::to_string(seconds / kHour) + " h " + std::to_string(seconds % kHour / kMinute) + " min";
}

}  // namespace

std::vector<std::string> AlarmLines(const AlarmEntry& entry, const Moment& now, std::int32_t utcOffset) {
  std::vector<std::string> lines;
  if (entry.Since) {
    const std::int64_t span = std::max<std::int64_t>(0, now.Steady - entry.Since->Steady) / kMilliseconds;
    lines.push_back(Filled(entry.Acknowledged ? Tr("Since %1, %2, acknowledged") : Tr("Since %1, %2"),
                           {TimeText(entry.Since->Wall, utcOffset), SpanText(span)}));
  }
  for (const auto& [pattern, text] :
       {std::pair{std::string("%1"), &entry.Value}, std::pair{Tr("The program: %1"), &entry.Does},
        std::pair{Tr("You: %1"), &entry.Remedy}}) {
    if (!text->empty()) {
      lines.push_back(Filled(pattern, {*text}));
    }
  }
  return lines;
}

}  // namespace veerwatch
