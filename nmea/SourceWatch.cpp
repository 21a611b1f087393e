#include "nmea/SourceWatch.h"

#include <algorithm>
#include <string_view>

#include "platform/Language.h"

namespace veerwatch {

namespace {

// Values of m_iNmeaHeading, m_iNmeaBoatSpeed and m_iNmeaTrueWind.
constexpr int kThroughWater = 0;
constexpr int kWindSensor = 0;

/// A source that has not come for so long is not there [s].
constexpr int kGone = 6;

/// A sentence that brings a quantity.
struct Bringer {
  std::string_view Sentence;
  Quantity What;
  const char* Name;  ///< in a text
};

/// In the order of SourceWatch::Source.
constexpr std::array<Bringer, 15> kBringers{{
    {"HDG", Quantity::Heading, "HDG"},
    {"VHW", Quantity::Heading, "VHW"},
    {"HDM", Quantity::Heading, "HDM"},
    {"HDT", Quantity::HeadingTrue, "HDT"},
    {"THS", Quantity::HeadingTrue, "THS"},
    {"RMC", Quantity::CourseTrue, "RMC"},
    {"VTG", Quantity::CourseMagnetic, "VTG"},
    {"VHW", Quantity::SpeedThroughWater, "VHW"},
    {"RMC", Quantity::SpeedOverGround, "RMC"},
    {"VTG", Quantity::SpeedOverGround, "VTG"},
    {"MWV", Quantity::ApparentWindAngle, "MWV (R)"},
    {"VWR", Quantity::ApparentWindAngle, "VWR"},
    {"MWV", Quantity::TrueWindAngle, "MWV (T)"},
    {"VWT", Quantity::TrueWindAngle, "VWT"},
    {"MWD", Quantity::TrueWindSpeed, "MWD"},
}};

/// Whether what a source brings means nothing without the variation.
bool NeedsVariation(Quantity what) { return what == Quantity::CourseTrue || what == Quantity::HeadingTrue; }

std::string UnitName(std::string_view unit) {
  if (unit == "M") {
    return Tr("metres per second");
  }
  if (unit == "K") {
    return Tr("kilometres per hour");
  }
  if (unit == "S") {
    return Tr("miles per hour");
  }
  return Tr("another unit");
}

std::string Joined(const std::vector<std::string>& names, const std::string& last) {
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
  m_notUsed = {};
}

void SourceWatch::Tick() {
  m_running = std::min(m_running + 1, kGone);
  for (int& age : m_age) {
    age = std::min(age + 1, kGone);
  }
}

void SourceWatch::Saw(const SentenceKind& kind, const Readings& readings, bool complete,
                      bool variationKnown) {
  static_assert(kBringers.size() == kOtherUnit, "a source without its row, or a row without its source");
  if (kind.IsWind) {
    CountWind(readings, complete);
  }
  for (std::size_t source = 0; source < kBringers.size(); ++source) {
    const Quantity what = kBringers[source].What;
    const bool counts = !NeedsVariation(what) || variationKnown;
    if (readings.Find(what) != nullptr && counts && kBringers[source].Sentence == kind.Name) {
      m_age[source] = 0;
    }
  }
}

void SourceWatch::CountWind(const Readings& readings, bool complete) {
  if (!complete) {
    ++m_winds.Incomplete;
  } else if (!readings.UnreadUnit().empty()) {
    ++m_winds.OtherUnit;
    m_unit = UnitName(readings.UnreadUnit());
    m_age[kOtherUnit] = 0;
  } else {
    const bool apparent = readings.Find(Quantity::ApparentWindAngle) != nullptr;
    ++(apparent || m_settings.m_iNmeaTrueWind == kWindSensor ? m_winds.Used : m_winds.NotChosen);
  }
}

WindCounts SourceWatch::Winds() const {
  WindCounts winds = m_winds;
  for (const SentenceKind& kind : kSentences) {
    winds.SwitchedOff += kind.IsWind ? m_notUsed[PlaceOf(kind)] : 0;
  }
  return winds;
}

const SentenceKind& SourceWatch::KindOf(Source source) {
  return *std::find_if(kSentences.begin(), kSentences.end(), [source](const SentenceKind& kind) {
    return kind.Name == kBringers[source].Sentence;
  });
}

bool SourceWatch::There(Source source) const { return m_age[source] < kGone; }

std::string SourceWatch::Missing(const char* value, const Group& chosen, const Group& others) const {
  std::vector<std::string> there;
  for (const Source source : others) {
    if (There(source)) {
      there.emplace_back(kBringers[source].Name);
    }
  }
  std::vector<std::string> silent;
  for (const Source source : chosen) {
    if (There(source)) {
      return {};
    }
    if (m_settings.*KindOf(source).Enabled || Settings().*KindOf(source).Enabled) {
      silent.emplace_back(kBringers[source].Name);
    }
  }
  if (there.empty()) {
    return {};
  }
  const std::string pattern =
      there.size() == 1 ? Tr("%1: nothing from %2; %3 is there") : Tr("%1: nothing from %2; %3 are there");
  return Filled(pattern, {Tr(value), Joined(silent, Tr(" or ")), Joined(there, Tr(" and "))});
}

void SourceWatch::AddNotUsed(const Group& chosen, std::vector<std::string>& lines) const {
  if (std::any_of(chosen.begin(), chosen.end(), [this](Source source) { return There(source); })) {
    return;
  }
  for (const Source source : chosen) {
    const SentenceKind& kind = KindOf(source);
    const long seen = m_notUsed[PlaceOf(kind)];
    const std::string line = Filled(Tr("%1 seen %2 times, not used"), {kind.Name, std::to_string(seen)});
    if (seen > 0 && std::find(lines.begin(), lines.end(), line) == lines.end()) {
      lines.push_back(line);
    }
  }
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
  const Group apparent{kApparentMwv, kApparentVwr};
  const Group trueWind{kTrueMwv, kTrueVwt, kTrueMwd};
  if (There(kOtherUnit) && !There(kApparentMwv)) {
    add(Filled(Tr("Wind: MWV brings %1; only knots are read"), {m_unit}));
  }
  const auto look = [&](const char* value, const Group& chosen, const Group& others) {
    add(Missing(value, chosen, others));
    AddNotUsed(chosen, lines);
  };
  look(TrMark("Apparent Wind"), apparent, trueWind);
  if (m_settings.m_iNmeaTrueWind == kWindSensor) {
    look(TrMark("True Wind"), trueWind, apparent);
  }
  const Group compass{kHeadingHdg, kHeadingVhw, kHeadingHdm, kHeadingHdt, kHeadingThs};
  const Group course{kHeadingRmc, kHeadingVtg};
  const bool byCompass = m_settings.m_iNmeaHeading == kThroughWater;
  look(TrMark("Heading"), byCompass ? compass : course, byCompass ? course : compass);
  const Group log{kSpeedVhw};
  const Group ground{kSpeedRmc, kSpeedVtg};
  const bool byLog = m_settings.m_iNmeaBoatSpeed == kThroughWater;
  look(TrMark("Boat Speed"), byLog ? log : ground, byLog ? ground : log);
  return lines;
}

}  // namespace veerwatch
