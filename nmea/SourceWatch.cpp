#include "nmea/SourceWatch.h"

#include <algorithm>
#include <utility>

namespace veerwatch {

namespace {

// Values of m_iNmeaHeading, m_iNmeaBoatSpeed and m_iNmeaTrueWind.
constexpr int kThroughWater = 0;
constexpr int kWindSensor = 0;

/// A source that has not come for so long is not there [s].
constexpr int kGone = 6;

std::string UnitName(std::string_view unit) {
  if (unit == "M") {
    return "metres per second";
  }
  if (unit == "K") {
    return "kilometres per hour";
  }
  if (unit == "S") {
    return "miles per hour";
  }
  return "another unit";
}

std::string Joined(const std::vector<std::string>& names, const char* last) {
  std::string text;
  for (std::size_t i = 0; i < names.size(); ++i) {
    text += (i == 0 ? "" : i + 1 == names.size() ? last : ", ") + names[i];
  }
  return text;
}

}  // namespace

void SourceWatch::Restart() {
  m_age.fill(kGone);
  m_running = 0;
  m_winds = {};
}

void SourceWatch::Tick() {
  m_running = std::min(m_running + 1, kGone);
  for (int& age : m_age) {
    age = std::min(age + 1, kGone);
  }
}

void SourceWatch::Saw(const Hdg& hdg, bool /*variationKnown*/) { Came(kHeadingHdg, hdg.HeadingMark); }

void SourceWatch::Saw(const Mwv& mwv, bool /*variationKnown*/) {
  if (!mwv.Complete()) {
    ++m_winds.Incomplete;
  } else if (mwv.SpeedUnit != "Kts") {
    ++m_winds.OtherUnit;
    m_unit = UnitName(mwv.SpeedUnit);
    Came(kOtherUnit, true);
  } else {
    const bool apparent = mwv.Reference == 'R';
    Came(apparent ? kApparentWind : kTrueWind, true);
    ++(apparent || m_settings.m_iNmeaTrueWind == kWindSensor ? m_winds.Used : m_winds.NotChosen);
  }
}

void SourceWatch::Saw(const Rmc& rmc, bool variationKnown) {
  Came(kHeadingRmc, rmc.CourseMark && variationKnown);
  Came(kSpeedRmc, rmc.SpeedMark);
}

void SourceWatch::Saw(const Vhw& vhw, bool /*variationKnown*/) {
  Came(kHeadingVhw, vhw.HeadingMark);
  Came(kSpeedVhw, vhw.SpeedMark);
}

void SourceWatch::Saw(const Vtg& vtg, bool /*variationKnown*/) {
  Came(kHeadingVtg, vtg.HeadingMark);
  Came(kSpeedVtg, vtg.SpeedMark);
}

void SourceWatch::SawSwitchedOff(SentenceType type) {
  m_winds.SwitchedOff += type == SentenceType::Mwv ? 1 : 0;
}

bool SourceWatch::There(Source source) const { return m_age[source] < kGone; }

std::string SourceWatch::Missing(const char* value, const Group& chosen, const Group& others) const {
  std::vector<std::string> there;
  for (const auto& [source, name] : others) {
    if (There(source)) {
      there.emplace_back(name);
    }
  }
  std::vector<std::string> silent;
  for (const auto& [source, name] : chosen) {
    if (There(source)) {
      return {};
    }
    silent.emplace_back(name);
  }
  if (there.empty()) {
    return {};
  }
  return std::string(value) + ": nothing from " + Joined(silent, " or ") + "; " + Joined(there, " and ") +
         (there.size() == 1 ? " is there" : " are there");
}

std::vector<std::string> SourceWatch::Advice() const {
  if (m_running < kGone) {
    return {};
  }
  std::vector<std::string> lines;
  const auto add = [&lines](const std::string& line) {
    if (!line.empty()) {
      lines.push_back(line);
    }
  };
  const Group apparent{{kApparentWind, "MWV (R)"}};
  const Group trueWind{{kTrueWind, "MWV (T)"}};
  if (There(kOtherUnit) && !There(kApparentWind)) {
    add("Wind: MWV brings " + m_unit + "; only knots are read");
  }
  add(Missing("Apparent Wind", apparent, trueWind));
  if (m_settings.m_iNmeaTrueWind == kWindSensor) {
    add(Missing("True Wind", trueWind, apparent));
  }
  const Group compass{{kHeadingHdg, "HDG"}, {kHeadingVhw, "VHW"}};
  const Group course{{kHeadingRmc, "RMC"}, {kHeadingVtg, "VTG"}};
  const bool byCompass = m_settings.m_iNmeaHeading == kThroughWater;
  add(Missing("Heading", byCompass ? compass : course, byCompass ? course : compass));
  const Group log{{kSpeedVhw, "VHW"}};
  const Group ground{{kSpeedRmc, "RMC"}, {kSpeedVtg, "VTG"}};
  const bool byLog = m_settings.m_iNmeaBoatSpeed == kThroughWater;
  add(Missing("Boat Speed", byLog ? log : ground, byLog ? ground : log));
  return lines;
}

}  // namespace veerwatch
