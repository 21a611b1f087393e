#include "instruments/InstrumentRecord.h"

#include <algorithm>

#include "instruments/MathLib.h"

namespace veerwatch {

std::optional<std::int64_t> InstrumentRecord::Age(RecordValue value, const Moment& now) const {
  const std::optional<Origin>& from = Source(value);
  if (!from) {
    return std::nullopt;
  }
  return std::max<std::int64_t>(0, now.Steady - from->At.Steady);
}

void InstrumentRecord::Restart() {
  m_data.HeadingValid = false;
  m_data.BoatSpeedValid = false;
  m_data.WaypointValid = false;
  m_data.WindApparentValid = false;
  m_data.WindIndicatorValid = false;
  m_data.WindTrueValid = false;
  for (const RecordValue value :
       {RecordValue::Heading, RecordValue::BoatSpeed, RecordValue::Waypoint, RecordValue::WindApparent,
        RecordValue::WindTrue, RecordValue::WindIndicator}) {
    From(value).reset();
  }
}

void InstrumentRecord::Note(RecordValue value, const Origin& from) {
  From(value) = from;
  m_changed.set(static_cast<std::size_t>(value));
}

float InstrumentRecord::CountOf(RecordValue value, float count, const Origin& from) const {
  if (m_settings.m_eTrackMethod == TrackMethod::Sentence) {
    return count;
  }
  const std::optional<Origin>& before = Source(value);
  if (!before) {
    return count;
  }
  constexpr double kMillisecondsPerSecond = 1000.0;
  constexpr double kLongest = 2.0;  // [s]
  const double seconds = static_cast<double>(from.At.Steady - before->At.Steady) / kMillisecondsPerSecond;
  return AverageCountAfter(count, std::clamp(seconds, 0.0, kLongest));
}

InstrumentRecord::Wind InstrumentRecord::WindTrueUnsmoothed() const {
  Wind wind = m_sensorWind;
  if (m_trueComputed) {
    WindTrueFromApparent(m_data.WindSpeedApparent, m_data.WindAngleApparent, m_data.BoatSpeed, wind.Speed,
                         wind.Angle);
  }
  return wind;
}

void InstrumentRecord::HeadingUpdate(float Heading, const Origin& from) {
  const float count = CountOf(RecordValue::Heading, m_settings.m_fNmeaTrueWindAverage, from);
  Note(RecordValue::Heading, from);
  const float folded = FoldBearing(static_cast<double>(Heading));
  if (m_data.HeadingValid) {
    AverageAngleAbsolute(folded, count, m_data.HeadingAverage);
  } else {
    m_data.HeadingValid = true;
    m_data.HeadingAverage = Heading;
  }
  m_data.Heading = folded;
}

void InstrumentRecord::BoatSpeedUpdate(float BoatSpeed, const Origin& from) {
  const float count = CountOf(RecordValue::BoatSpeed, m_settings.m_fNmeaTrueWindAverage, from);
  Note(RecordValue::BoatSpeed, from);
  if (m_data.BoatSpeedValid) {
    AverageValue(BoatSpeed, count, m_data.BoatSpeedAverage);
  } else {
    m_data.BoatSpeedValid = true;
    m_data.BoatSpeedAverage = BoatSpeed;
  }
  m_data.BoatSpeed = BoatSpeed;
}

void InstrumentRecord::VariationUpdate(float Variation, const Origin& from) {
  Note(RecordValue::Variation, from);
  m_data.VariationValid = true;
  m_data.Variation = Variation;
}

void InstrumentRecord::WaypointUpdate(float WaypointRange, float WaypointBearing, const Origin& from) {
  Note(RecordValue::Waypoint, from);
  m_data.WaypointRange = WaypointRange;
  m_data.WaypointBearing = WaypointBearing;
  m_data.WaypointValid = true;
}

void InstrumentRecord::WindApparentUpdate(float WindAngle, float WindSpeed, bool ComputeTrue,
                                          const Origin& from) {
  const float count = CountOf(RecordValue::WindApparent, m_settings.m_fNmeaTrueWindAverage, from);
  Note(RecordValue::WindApparent, from);
  const float angle = FoldRelative(static_cast<double>(WindAngle));
  if (m_data.WindApparentValid) {
    AverageAngleRelative(angle, count, m_data.WindAngleApparentAverage);
    AverageValue(WindSpeed, count, m_data.WindSpeedApparentAverage);
  } else {
    m_data.WindApparentValid = true;
    m_data.WindAngleApparentAverage = angle;
    m_data.WindSpeedApparentAverage = WindSpeed;
  }
  m_data.WindAngleApparent = angle;
  m_data.WindSpeedApparent = WindSpeed;

  if (ComputeTrue && m_settings.m_iNmeaTrueWind == 1 && m_data.BoatSpeedValid) {
    float trueSpeed = 0.0F;
    float trueAngle = 0.0F;
    WindTrueFromApparent(m_data.WindSpeedApparentAverage, m_data.WindAngleApparentAverage,
                         m_data.BoatSpeedAverage, trueSpeed, trueAngle);
    WindTrueUpdate(trueAngle, trueSpeed, false, from);
    m_trueComputed = true;
  }
}

void InstrumentRecord::WindTrueUpdate(float WindAngle, float WindSpeed, bool Average, const Origin& from) {
  const float count = CountOf(RecordValue::WindTrue, m_settings.m_fNmeaTrueWindAverage, from);
  Note(RecordValue::WindTrue, from);
  const float angle = FoldRelative(static_cast<double>(WindAngle));
  m_sensorWind = {angle, WindSpeed};
  m_trueComputed = false;
  if (Average && m_data.WindTrueValid) {
    AverageAngleRelative(angle, count, m_data.WindAngleTrue);
    AverageValue(WindSpeed, count, m_data.WindSpeedTrue);
  } else {
    m_data.WindTrueValid = true;
    m_data.WindAngleTrue = angle;
    m_data.WindSpeedTrue = WindSpeed;
  }
}

void InstrumentRecord::WindTrueSimulated(float WindAngle, float WindSpeed, const Origin& from) {
  m_data.WindAngleTrue = WindAngle;
  m_data.WindSpeedTrue = WindSpeed;
  WindTrueUpdate(WindAngle, WindSpeed, true, from);
}

void InstrumentRecord::WindIndicatorUpdate() {
  float count = m_settings.m_fNmeaWindIndicatorAverage;
  if (const auto& from = Source(RecordValue::WindTrue)) {
    count = CountOf(RecordValue::WindIndicator, count, *from);
    Note(RecordValue::WindIndicator, *from);
  }
  const double direction = static_cast<double>(m_data.WindAngleTrue) + static_cast<double>(m_data.Heading) +
                           static_cast<double>(m_data.Variation);
  if (!m_data.WindIndicatorValid) {
    m_data.WindIndicatorValid = true;
    m_data.WindDirectionAverage = FoldBearing(direction);
    m_data.WindSpeedAverage = m_data.WindSpeedTrue;
  } else {
    AverageAngleAbsolute(FoldBearing(direction), count, m_data.WindDirectionAverage);
    AverageValue(m_data.WindSpeedTrue, count, m_data.WindSpeedAverage);
  }
}

}  // namespace veerwatch
