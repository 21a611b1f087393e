#include "connect/CalibrationDesk.h"

#include <algorithm>
#include <cmath>

#include "instruments/Calibration.h"
#include "platform/Angles.h"
#include "platform/Language.h"
#include "platform/NumberText.h"

namespace veerwatch {

namespace {

std::string Degrees(double angle) { return Filled(Tr("%1 deg"), {FormatNumber(ToSingle(angle), "0")}); }

std::string Bearing(double angle) {
  return Filled(Tr("%1 deg"), {FormatNumber(FoldBearing(std::round(angle)), "000")});
}

std::string Knots(double speed) { return FormatNumber(ToSingle(speed), "0.0") + " kn"; }

}  // namespace

void CalibrationDesk::Mean::Add(double value) {
  constexpr int kMost = 10;
  m_count = std::min(m_count + 1, kMost);
  m_value = m_count == 1 ? value : m_value + (value - m_value) / m_count;
}

void CalibrationDesk::Restart() {
  m_wind.Clear();
  m_heading.Clear();
  m_course.Clear();
  m_speed.Clear();
  m_overGround.Clear();
}

void CalibrationDesk::Take(const Readings& readings, const InstrumentRecord& record, const Moment& now) {
  const auto number = [](float value) { return static_cast<double>(value); };
  const InstrumentData& data = record.Data();
  if (readings.Find(Quantity::ApparentWindAngle) != nullptr && data.WindApparentValid) {
    m_wind.Add(number(data.WindAngleApparent), number(data.WindSpeedApparent), now.Steady);
  }
  if (const Reading* speed = readings.Find(Quantity::SpeedThroughWater)) {
    m_speed.Add(number(CalibratedBoatSpeed(m_settings, speed->Value)));
  }
  if (const Reading* speed = readings.Find(Quantity::SpeedOverGround)) {
    m_overGround.Add(number(speed->Value));
  }
  const double variation = data.VariationValid ? number(data.Variation) : 0.0;
  if (const Reading* heading = readings.Find(Quantity::Heading)) {
    m_heading.Add(number(CalibratedHeading(m_settings, heading->Value)), 1.0, now.Steady);
  } else if (const Reading* gyro = readings.Find(Quantity::HeadingTrue);
             gyro != nullptr && data.VariationValid) {
    m_heading.Add(number(CalibratedHeading(m_settings, gyro->Value)) - variation, 1.0, now.Steady);
  }
  if (const Reading* course = readings.Find(Quantity::CourseMagnetic)) {
    m_course.Add(number(course->Value), 1.0, now.Steady);
  } else if (const Reading* track = readings.Find(Quantity::CourseTrue);
             track != nullptr && data.VariationValid) {
    m_course.Add(number(track->Value) - variation, 1.0, now.Steady);
  }
}

CalibrationOffer CalibrationDesk::Wind() const {
  const std::string set = Degrees(static_cast<double>(m_settings.m_fNmeaWindOffset));
  const std::optional<double> angle = m_wind.Mean();
  if (!angle) {
    return {Filled(Tr("Wind angle offset %1; no apparent wind comes"), {set}), std::nullopt};
  }
  return {
      Filled(
          Tr("Wind angle offset %1; the wind now comes from %2, and from 0 when you motor straight into it"),
          {set, Degrees(*angle)}),
      WindOffsetFor(ToSingle(std::round(*angle)), m_settings.m_fNmeaWindOffset)};
}

CalibrationOffer CalibrationDesk::Speed() const {
  const std::string set = FormatNumber(m_settings.m_fNmeaBoatSpeedFactor, "0.00");
  const std::optional<double> speed = m_speed.Value();
  const std::optional<double> ground = m_overGround.Value();
  if (!speed || !ground) {
    return {Filled(Tr("Log factor %1; a log and a GPS are needed to compare"), {set}), std::nullopt};
  }
  const auto value =
      BoatSpeedFactorFor(ToSingle(*speed), ToSingle(*ground), m_settings.m_fNmeaBoatSpeedFactor);
  const std::string pattern =
      value ? Tr("Log factor %1; the log shows %2, the GPS %3: alike in still water")
            : Tr("Log factor %1; the log shows %2, the GPS %3: too slow, or too far apart, to compare");
  const std::string text = Filled(pattern, {set, Knots(*speed), Knots(*ground)});
  constexpr double kSteps = 100.0;
  return value ? CalibrationOffer{text, ToSingle(std::round(static_cast<double>(*value) * kSteps) / kSteps)}
               : CalibrationOffer{text, std::nullopt};
}

CalibrationOffer CalibrationDesk::Heading() const {
  const std::string set = Degrees(static_cast<double>(m_settings.m_fNmeaHeadingOffset));
  const std::optional<double> heading = m_heading.Mean();
  const std::optional<double> course = m_course.Mean();
  if (!heading || !course) {
    return {Filled(Tr("Compass offset %1; a compass and a GPS are needed to compare"), {set}), std::nullopt};
  }
  constexpr double kMoves = 2.0;  // [kn]; below it a GPS has no course
  const bool moves = m_overGround.Value().value_or(0.0) >= kMoves;
  const std::string pattern =
      moves
          ? Tr("Compass offset %1; the compass shows %2, the course is %3: alike without current and leeway")
          : Tr("Compass offset %1; the compass shows %2, the course is %3: too slow to compare");
  const float value =
      HeadingOffsetFor(ToSingle(*heading), ToSingle(*course), m_settings.m_fNmeaHeadingOffset);
  return {Filled(pattern, {set, Bearing(*heading), Bearing(*course)}),
          moves ? std::optional(ToSingle(std::round(static_cast<double>(value)))) : std::nullopt};
}

}  // namespace veerwatch
