#include "instruments/SourceChoice.h"

#include "instruments/MathLib.h"

namespace veerwatch {

namespace {

// Values of m_iNmeaHeading, m_iNmeaBoatSpeed and m_iNmeaTrueWind.
constexpr int kOverGround = 1;
constexpr int kWindSensor = 0;

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
    m_record.HeadingUpdate(heading->Value, *heading->From);
    return true;
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
  const Reading* speed = readings.Find(
      m_settings.m_iNmeaBoatSpeed == kOverGround ? Quantity::SpeedOverGround : Quantity::SpeedThroughWater);
  if (speed == nullptr || !Trusted(readings, RecordValue::BoatSpeed)) {
    return false;
  }
  m_record.BoatSpeedUpdate(speed->Value, *speed->From);
  return true;
}

bool SourceChoice::TakeWind(const Readings& readings) {
  const Reading* apparent = readings.Find(Quantity::ApparentWindAngle);
  const Reading* apparentSpeed = readings.Find(Quantity::ApparentWindSpeed);
  if (apparent != nullptr && apparentSpeed != nullptr && Trusted(readings, RecordValue::WindApparent)) {
    m_record.WindApparentUpdate(apparent->Value, apparentSpeed->Value, true, *apparent->From);
    return true;
  }
  const Reading* trueWind = readings.Find(Quantity::TrueWindAngle);
  const Reading* trueSpeed = readings.Find(Quantity::TrueWindSpeed);
  if (m_settings.m_iNmeaTrueWind != kWindSensor || trueWind == nullptr || trueSpeed == nullptr ||
      !Trusted(readings, RecordValue::WindTrue)) {
    return false;
  }
  m_record.WindTrueUpdate(trueWind->Value, trueSpeed->Value, true, *trueWind->From);
  return true;
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
