#include "connect/ValueDesk.h"

#include <algorithm>

#include "connect/HeardLines.h"
#include "nmea/Fields.h"
#include "platform/Language.h"
#include "platform/NumberText.h"

namespace veerwatch {

namespace {

constexpr const char* kComputed = TrMark("computed");
constexpr std::int64_t kGone = 5000;  // [ms]

std::size_t At(BoatValue value) { return static_cast<std::size_t>(value); }

std::string Number(float value, const char* pattern, const char* unit) {
  return FormatNumber(value, pattern) + " " + unit;
}

std::string Degrees(float value, const char* pattern) {
  return Filled(Tr("%1 deg"), {FormatNumber(value, pattern)});
}

std::string Wind(float angle, float speed) { return Degrees(angle, "0") + ", " + Number(speed, "0.0", "kn"); }

}  // namespace

ValueDesk::ValueDesk(const Settings& present) : m_present(present), m_calibrated(present) { Restart(); }

void ValueDesk::Restart() {
  m_chosen = m_present;
  m_dispatcher.reset();
  m_record.emplace(m_chosen);
  m_dispatcher.emplace(m_chosen, *m_record);
  m_calibration.Restart();
  m_wanted.fill("");
  m_otherUnit = false;
  // Of each value the best first.
  m_bringers = {{BoatValue::WindApparent, "MWV R", "MWV"},
                {BoatValue::WindApparent, "VWR", "VWR"},
                {BoatValue::WindTrue, kComputed, ""},
                {BoatValue::WindTrue, "MWV T", "MWV"},
                {BoatValue::WindTrue, "VWT", "VWT"},
                {BoatValue::WindTrue, "MWD", "MWD"},
                {BoatValue::Heading, "HDG", "HDG"},
                {BoatValue::Heading, "HDM", "HDM"},
                {BoatValue::Heading, "HDT", "HDT"},
                {BoatValue::Heading, "THS", "THS"},
                {BoatValue::Heading, "VHW", "VHW"},
                {BoatValue::Heading, TrMark("VTG, the course"), "VTG"},
                {BoatValue::Heading, TrMark("RMC, the course"), "RMC"},
                {BoatValue::BoatSpeed, "VHW", "VHW"},
                {BoatValue::BoatSpeed, TrMark("VTG, over ground"), "VTG"},
                {BoatValue::BoatSpeed, TrMark("RMC, over ground"), "RMC"},
                {BoatValue::Variation, "RMC", "RMC"},
                {BoatValue::Variation, "HDG", "HDG"},
                {BoatValue::Variation, "HVM", "HVM"},
                {BoatValue::Waypoint, "RMB", "RMB"}};
}

void ValueDesk::Take(std::string_view line, const Moment& now) {
  const SentenceKind* kind = FindSentence(line);
  if (kind == nullptr) {
    return;
  }
  Readings readings(OriginOf(line, m_chosen.m_iNmeaPort, now));
  kind->Decode(Fields(line), readings);
  if (!readings.Invalid()) {
    SeeAll(*kind, readings, now);
  }
  m_chosen = m_present;
  ApplyTo(m_chosen);
  m_dispatcher->Dispatch(line, m_chosen.m_iNmeaPort, now);
  m_calibration.Take(readings, *m_record, now);
}

void ValueDesk::Calibrate(float Settings::*setting, float value) {
  m_calibrated.*setting = value;
  m_chosen = m_present;
  ApplyTo(m_chosen);
}

void ValueDesk::SetWindOffset(float offset) {
  Calibrate(&Settings::m_fNmeaWindOffset, offset);
  m_calibration.WindSet();
}

void ValueDesk::SetSpeedFactor(float factor) {
  Calibrate(&Settings::m_fNmeaBoatSpeedFactor, factor);
  m_calibration.SpeedSet();
}

void ValueDesk::SetHeadingOffset(float offset) {
  Calibrate(&Settings::m_fNmeaHeadingOffset, offset);
  m_calibration.HeadingSet();
}

void ValueDesk::SeeAll(const SentenceKind& kind, const Readings& readings, const Moment& now) {
  struct Brings {
    Quantity What;
    BoatValue Value;
  };
  constexpr std::array<Brings, 12> kBrings{{{Quantity::ApparentWindAngle, BoatValue::WindApparent},
                                            {Quantity::TrueWindAngle, BoatValue::WindTrue},
                                            {Quantity::WindDirectionTrue, BoatValue::WindTrue},
                                            {Quantity::WindDirectionMagnetic, BoatValue::WindTrue},
                                            {Quantity::Heading, BoatValue::Heading},
                                            {Quantity::HeadingTrue, BoatValue::Heading},
                                            {Quantity::CourseMagnetic, BoatValue::Heading},
                                            {Quantity::CourseTrue, BoatValue::Heading},
                                            {Quantity::SpeedThroughWater, BoatValue::BoatSpeed},
                                            {Quantity::SpeedOverGround, BoatValue::BoatSpeed},
                                            {Quantity::Variation, BoatValue::Variation},
                                            {Quantity::WaypointBearing, BoatValue::Waypoint}}};
  m_otherUnit = m_otherUnit || !readings.UnreadUnit().empty();
  std::array<bool, kBoatValues> brought{};
  for (const Brings& each : kBrings) {
    bool& already = brought[At(each.Value)];
    if (!already && readings.Find(each.What) != nullptr) {
      already = true;
      See(each.Value, kind.Name, now);
    }
  }
}

void ValueDesk::See(BoatValue value, std::string_view sentence, const Moment& now) {
  for (Bringer& bringer : m_bringers) {
    if (bringer.Value == value && bringer.Sentence == sentence) {
      bringer.First = bringer.Count++ == 0 ? now.Steady : bringer.First;
      bringer.Last = now.Steady;
    }
  }
}

bool ValueDesk::There(const Bringer& bringer) const {
  return bringer.Sentence.empty() ? Comes(BoatValue::WindApparent) && Comes(BoatValue::BoatSpeed)
                                  : bringer.Count > 0;
}

const ValueDesk::Bringer* ValueDesk::Used(BoatValue value) const {
  const Bringer* best = nullptr;
  for (const Bringer& bringer : m_bringers) {
    if (bringer.Value != value || !There(bringer)) {
      continue;
    }
    if (bringer.Name == m_wanted[At(value)]) {
      return &bringer;
    }
    best = best == nullptr ? &bringer : best;
  }
  return best;
}

std::vector<ValueSource> ValueDesk::Sources(BoatValue value, const Moment& now) const {
  std::vector<ValueSource> sources;
  for (const Bringer& bringer : m_bringers) {
    if (bringer.Value == value && There(bringer)) {
      const std::string pace =
          bringer.Count > 0 ? " " + PaceText(bringer.Count, bringer.First, bringer.Last, now.Steady) : "";
      sources.push_back({bringer.Name, Tr(bringer.Name) + pace});
    }
  }
  return sources;
}

void ValueDesk::Choose(BoatValue value, const std::string& name) {
  m_wanted[At(value)] = name;
  m_chosen = m_present;
  ApplyTo(m_chosen);
  m_record->Restart();
}

std::string ValueDesk::Chosen(BoatValue value) const {
  const Bringer* used = Used(value);
  return used != nullptr ? used->Name : "";
}

std::string ValueDesk::Figure(BoatValue value, const Moment& now) const {
  constexpr std::array<RecordValue, kBoatValues> kRecord{RecordValue::WindApparent, RecordValue::WindTrue,
                                                         RecordValue::Heading,      RecordValue::BoatSpeed,
                                                         RecordValue::Variation,    RecordValue::Waypoint};
  if (m_record->Age(kRecord[At(value)], now).value_or(kGone) >= kGone) {
    return "--";
  }
  const InstrumentData& data = m_record->Data();
  switch (value) {
    case BoatValue::WindApparent:
      return Wind(data.WindAngleApparent, data.WindSpeedApparent);
    case BoatValue::WindTrue:
      return data.WindTrueValid ? Wind(data.WindAngleTrue, data.WindSpeedTrue) : "--";
    case BoatValue::Heading:
      return Degrees(data.Heading, "000");
    case BoatValue::BoatSpeed:
      return Number(data.BoatSpeed, "0.0", "kn");
    case BoatValue::Variation:
      return Degrees(data.Variation, "0.0");
    case BoatValue::Waypoint:
      break;
  }
  return Degrees(data.WaypointBearing, "000") + ", " + Number(data.WaypointRange, "0.0", "nm");
}

std::string ValueDesk::Missing(BoatValue value) const {
  if (Comes(value)) {
    return {};
  }
  switch (value) {
    case BoatValue::WindApparent:
      return Tr("no apparent wind: nothing can be steered by the wind");
    case BoatValue::WindTrue:
      return Comes(BoatValue::BoatSpeed) ? Tr("no true wind: it is computed once the apparent wind comes")
                                         : Tr("no true wind: the apparent wind only");
    case BoatValue::Heading:
      return Tr("no heading: no turns, and nothing shows whether the pilot follows");
    case BoatValue::BoatSpeed:
      return Comes(BoatValue::WindTrue) ? Tr("no boat speed: no polar")
                                        : Tr("no boat speed: the apparent wind only");
    case BoatValue::Variation:
      return Tr("no variation: no true bearings, no courses to a waypoint");
    case BoatValue::Waypoint:
      break;
  }
  return Tr("no waypoint: no courses to it");
}

bool ValueDesk::IsUsed(std::string_view sentence) const {
  for (std::size_t i = 0; i < kBoatValues; ++i) {
    const Bringer* used = Used(static_cast<BoatValue>(i));
    if (used != nullptr && used->Sentence == sentence) {
      return true;
    }
  }
  return false;
}

void ValueDesk::ApplyTo(Settings& settings) const {
  for (float Settings::*each :
       {&Settings::m_fNmeaWindOffset, &Settings::m_fNmeaBoatSpeedFactor, &Settings::m_fNmeaHeadingOffset}) {
    settings.*each = m_calibrated.*each;
  }
  for (const SentenceKind& kind : kSentences) {
    const bool comes = std::any_of(m_bringers.begin(), m_bringers.end(), [&kind](const Bringer& each) {
      return each.Sentence == kind.Name && each.Count > 0;
    });
    if (comes) {
      settings.*kind.Enabled = IsUsed(kind.Name);
    }
  }
  if (const Bringer* trueWind = Used(BoatValue::WindTrue)) {
    settings.m_iNmeaTrueWind = trueWind->Sentence.empty() ? 1 : 0;
  }
  const auto overGround = [](const Bringer& bringer) {
    return bringer.Sentence == "RMC" || bringer.Sentence == "VTG";
  };
  if (const Bringer* heading = Used(BoatValue::Heading)) {
    settings.m_iNmeaHeading = overGround(*heading) ? 1 : 0;
  }
  if (const Bringer* speed = Used(BoatValue::BoatSpeed)) {
    settings.m_iNmeaBoatSpeed = overGround(*speed) ? 1 : 0;
  }
  settings.m_bNmeaWindUnits = settings.m_bNmeaWindUnits || m_otherUnit;
  if (Comes(BoatValue::WindApparent)) {
    settings.m_bWatchLogFitted = Comes(BoatValue::BoatSpeed);
    settings.m_bWatchCompassFitted = Comes(BoatValue::Heading);
  }
}

}  // namespace veerwatch
