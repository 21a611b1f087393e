#include "app/ReportLog.h"

#include <algorithm>

#include "platform/NumberText.h"

namespace veerwatch {

namespace {

constexpr std::int64_t kSecond = 1000;          // [ms]
constexpr std::int64_t kMinute = 60 * kSecond;  // [ms]

/// The types of NMEA 0183 that are named; others may be anything, a name as well.
constexpr std::array<std::string_view, 60> kKnown{
    "AAM", "ABK", "ACK", "ALC", "ALM", "ALR", "APA", "APB", "BOD", "BWC", "BWR", "BWW", "CUR", "DBK", "DBS",
    "DBT", "DPT", "DSC", "DTM", "FSI", "GBS", "GGA", "GLL", "GNS", "GRS", "GSA", "GST", "GSV", "HBT", "HDG",
    "HDM", "HDT", "HSC", "HTC", "HVM", "MDA", "MTA", "MTW", "MWD", "MWV", "OSD", "RMA", "RMB", "RMC", "ROT",
    "RPM", "RSA", "RTE", "STN", "THS", "TXT", "VBW", "VDM", "VDO", "VDR", "VHW", "VLW", "VPW", "VTG", "VWR"};
constexpr std::array<std::string_view, 5> kMoreKnown{"VWT", "WPL", "XDR", "XTE", "ZDA"};

bool IsKnown(std::string_view type) {
  return std::find(kKnown.begin(), kKnown.end(), type) != kKnown.end() ||
         std::find(kMoreKnown.begin(), kMoreKnown.end(), type) != kMoreKnown.end();
}

}  // namespace

void ReportLog::OnNmeaLine(std::string_view line, LineFault fault, bool used) {
  const Moment now = m_clock.Now();
  if (!m_any) {
    m_any = true;
    m_begun = now.Steady;
    m_minute = now.Steady / kMinute;
  }
  Turn(now.Steady / kMinute);
  constexpr std::size_t kAddress = 1;
  constexpr std::size_t kTalker = 2;
  Address name{};
  if (line.size() > kAddress + name.size() && (line.front() == '$' || line.front() == '!') &&
      line[kAddress + name.size()] == ',') {
    std::copy_n(line.begin() + kAddress, name.size(), name.begin());
  }
  const std::string_view address(name.data(), name.size());
  const bool named = std::all_of(name.begin(), name.end(), [](char c) { return c >= 'A' && c <= 'Z'; }) &&
                     IsKnown(address.substr(kTalker));
  Counts& counts = (named ? Of(name) : m_types[0]).Minutes[static_cast<std::size_t>(m_minute) % kMinutes];
  ++counts.Lines;
  counts.Used += used ? 1U : 0U;
  counts.Wrong += fault != LineFault::None ? 1U : 0U;
}

ReportLog::Type& ReportLog::Of(const Address& name) {
  for (std::size_t i = 1; i < m_count; ++i) {
    if (m_types[i].Name == name) {
      return m_types[i];
    }
  }
  if (m_count == kMostTypes) {
    return m_types[0];
  }
  m_types[m_count].Name = name;
  return m_types[m_count++];
}

void ReportLog::Turn(std::int64_t minute) {
  const std::int64_t passed = std::min<std::int64_t>(minute - m_minute, kMinutes);
  for (std::int64_t i = 0; i < passed; ++i) {
    for (Type& type : m_types) {
      type.Minutes[static_cast<std::size_t>(minute - i) % kMinutes] = {};
    }
  }
  m_minute = std::max(m_minute, minute);
}

std::vector<std::string> ReportLog::SentenceLines() const {
  std::vector<std::string> lines;
  if (!m_any) {
    return lines;
  }
  const std::int64_t now = m_clock.Now().Steady;
  const auto oldest = (now / kMinute - static_cast<std::int64_t>(kMinutes) + 1) * kMinute;
  const double seconds = std::max(1.0, static_cast<double>(now - std::max(oldest, m_begun)) / kSecond);
  for (std::size_t i = 0; i < m_count; ++i) {
    Counts sum;
    for (std::int64_t minute = std::max<std::int64_t>(0, oldest / kMinute); minute <= m_minute; ++minute) {
      const Counts& one = m_types[i].Minutes[static_cast<std::size_t>(minute) % kMinutes];
      sum.Lines += one.Lines;
      sum.Used += one.Used;
      sum.Wrong += one.Wrong;
    }
    if (sum.Lines == 0) {
      continue;
    }
    const std::string name = i == 0 ? "other" : std::string(m_types[i].Name.data(), m_types[i].Name.size());
    lines.push_back(name + " " + std::to_string(sum.Lines) + " lines, " +
                    FormatNumber(static_cast<float>(sum.Lines / seconds), "0.0") + " a second, " +
                    std::to_string(sum.Used) + " used, " + std::to_string(sum.Wrong) + " wrong");
  }
  std::sort(lines.begin(), lines.end());
  return lines;
}

}  // namespace veerwatch
