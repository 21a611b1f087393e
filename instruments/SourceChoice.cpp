#include "instruments/SourceChoice.h"

#include <cstdint>

#include "instruments/Calibration.h"
#include "instruments/MathLib.h"
#include "platform/Angles.h"

namespace veerwatch {

namespace {

// Values of m_iNmeaHeading, m_iNmeaBoatSpeed and m_iNmeaTrueWind.
constexpr int kOverGround = 1;
constexpr int kWindSensor = 0;

// How old what a true direction needs may be [ms].
constexpr std::int64_t kVariationLasts = 3600000;
constexpr std::int64_t kHeadingLasts = 10000;

/// A true direction as a magnetic one [deg, not folded].
float Magnetic(float direction, float variation) {
  return ToSingle(static_cast<double>(direction) - static_cast<double>(variation));
}

}  // namespace

bool SourceChoice::Take(const Readings& readings) {
  // The variation comes first: it turns the true directions of its own sentence.
  const bool variation = TakeVariation(readings);
  const bool heading = TakeHeading(readings);
  const bool boatSpeed = TakeBoatSpeed(readings);
  const bool wind = TakeWind(readings);
  const bool waypoint = TakeWaypoint(readings);
  return variation || heading || boatSpeed || wind || waypoint;
}

bool SourceChoice::Trusted(const Readings& readings, RecordValue value) const {
  constexpr std::int64_t kGone = 2000;  // [ms]
  if (!m_settings.m_bWatchAct) {
    return true;
  }
  const Origin& now = readings.From();
  const std::optional<Origin>& before = m_record.Source(value);
  const bool other = before && before->Talker != now.Talker && now.At.Steady - before->At.Steady <= kGone;
  return !readings.Invalid() && !other;
}

bool SourceChoice::TakeVariation(const Readings& readings) {
  const Reading* variation = readings.Find(Quantity::Variation);
  if (variation == nullptr) {
    return false;
  }
  m_record.VariationUpdate(variation->Value, *variation->From);
  return true;
}

bool SourceChoice::TakeHeading(const Readings& readings) {
  if (!Trusted(readings, RecordValue::Heading)) {
    return false;
  }
  const bool overGround = m_settings.m_iNmeaHeading == kOverGround;
  if (const Reading* heading = readings.Find(overGround ? Quantity::CourseMagnetic : Quantity::Heading)) {
    const float value = overGround ? heading->Value : CalibratedHeading(m_settings, heading->Value);
    m_record.HeadingUpdate(value, *heading->From);
    return true;
  }
  if (const Reading* heading = overGround ? nullptr : readings.Find(Quantity::HeadingTrue)) {
    const std::optional<float> variation = VariationAt(heading->From->At);
    if (variation) {
      m_record.HeadingUpdate(CalibratedHeading(m_settings, Magnetic(heading->Value, *variation)),
                             *heading->From);
    }
    return variation.has_value();
  }
  const Reading* course = overGround ? readings.Find(Quantity::CourseTrue) : nullptr;
  const InstrumentData& data = m_record.Data();
  if (course == nullptr || !data.VariationValid) {
    return false;
  }
  m_record.HeadingUpdate(Magnetic(course->Value, data.Variation), *course->From);
  return true;
}

bool SourceChoice::TakeBoatSpeed(const Readings& readings) {
  const bool overGround = m_settings.m_iNmeaBoatSpeed == kOverGround;
  const Reading* speed = readings.Find(overGround ? Quantity::SpeedOverGround : Quantity::SpeedThroughWater);
  if (speed == nullptr || !Trusted(readings, RecordValue::BoatSpeed)) {
    return false;
  }
  m_record.BoatSpeedUpdate(overGround ? speed->Value : CalibratedBoatSpeed(m_settings, speed->Value),
                           *speed->From);
  return true;
}

bool SourceChoice::TakeWind(const Readings& readings) {
  const Reading* apparent = readings.Find(Quantity::ApparentWindAngle);
  const Reading* apparentSpeed = readings.Find(Quantity::ApparentWindSpeed);
  if (apparent != nullptr && apparentSpeed != nullptr && Trusted(readings, RecordValue::WindApparent)) {
    m_record.WindApparentUpdate(CalibratedWindAngle(m_settings, apparent->Value), apparentSpeed->Value, true,
                                *apparent->From);
    return true;
  }
  const Reading* trueSpeed = readings.Find(Quantity::TrueWindSpeed);
  if (m_settings.m_iNmeaTrueWind != kWindSensor || trueSpeed == nullptr ||
      !Trusted(readings, RecordValue::WindTrue)) {
    return false;
  }
  const Reading* trueWind = readings.Find(Quantity::TrueWindAngle);
  const std::optional<float> angle = trueWind != nullptr ? trueWind->Value : AngleOf(readings);
  if (angle) {
    m_record.WindTrueUpdate(CalibratedWindAngle(m_settings, *angle), trueSpeed->Value, true,
                            *trueSpeed->From);
  }
  return angle.has_value();
}

std::optional<float> SourceChoice::AngleOf(const Readings& readings) const {
  const Moment& now = readings.From().At;
  const InstrumentData& data = m_record.Data();
  if (!data.HeadingValid ||
      m_record.Age(RecordValue::Heading, now).value_or(kHeadingLasts) >= kHeadingLasts) {
    return std::nullopt;
  }
  // The direction was reckoned aboard with the compass as it is, so it is turned back with its own heading.
  const bool compass = m_settings.m_iNmeaHeading != kOverGround;
  const double offset = compass ? static_cast<double>(m_settings.m_fNmeaHeadingOffset) : 0.0;
  const double heading = static_cast<double>(data.Heading) - offset;
  const Reading* direction = readings.Find(Quantity::WindDirectionTrue);
  const std::optional<float> variation = VariationAt(now);
  if (direction != nullptr && variation) {
    return FoldRelative(static_cast<double>(direction->Value) - static_cast<double>(*variation) - heading);
  }
  direction = readings.Find(Quantity::WindDirectionMagnetic);
  return direction == nullptr ? std::nullopt
                              : std::optional(FoldRelative(static_cast<double>(direction->Value) - heading));
}

std::optional<float> SourceChoice::VariationAt(const Moment& now) const {
  const InstrumentData& data = m_record.Data();
  const bool known = data.VariationValid &&
                     m_record.Age(RecordValue::Variation, now).value_or(kVariationLasts) < kVariationLasts;
  return known ? std::optional(data.Variation) : std::nullopt;
}

bool SourceChoice::Lacks(const Readings& readings) const {
  const bool heading = readings.Find(Quantity::HeadingTrue) != nullptr;
  const bool direction = readings.Find(Quantity::WindDirectionTrue) != nullptr ||
                         readings.Find(Quantity::WindDirectionMagnetic) != nullptr;
  return (heading && !VariationAt(readings.From().At)) || (direction && !AngleOf(readings));
}

bool SourceChoice::TakeWaypoint(const Readings& readings) {
  const Reading* bearing = readings.Find(Quantity::WaypointBearing);
  const Reading* range = readings.Find(Quantity::WaypointRange);
  const InstrumentData& data = m_record.Data();
  if (bearing == nullptr || range == nullptr || !data.VariationValid) {
    return false;
  }
  m_record.WaypointUpdate(range->Value, Magnetic(bearing->Value, data.Variation), *bearing->From);
  return true;
}

}  // namespace veerwatch
