#include "helm/SimulatedBoat.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "instruments/MathLib.h"
#include "instruments/Reading.h"
#include "platform/Angles.h"

namespace veerwatch {

namespace {

double Within(float value, double least, double most) {
  return std::clamp(static_cast<double>(value), least, most);
}

/// An angle of any turn, small enough for whatever is done with it.
double Folded(float angle) { return static_cast<double>(FoldBearing(static_cast<double>(angle))); }

constexpr double kMostVariation = 180.0;  // [deg]

}  // namespace

BoatSettings SimulatedBoatOf(const Settings& settings) {
  constexpr double kMostSpeed = 30.0;   // [kn]
  constexpr double kMostWind = 60.0;    // [kn]
  constexpr double kMostLag = 60.0;     // [s]
  constexpr double kMostShift = 90.0;   // [deg]
  constexpr double kMostLeeway = 30.0;  // [deg]
  constexpr double kPercent = 100.0;
  BoatSettings boat;
  boat.Rudder = RudderSettings{};
  boat.HullSpeed = Within(settings.m_fSimulateBoatSpeed, 0.0, kMostSpeed);
  boat.Leeway = Within(settings.m_fSimulateLeeway, 0.0, kMostLeeway);
  boat.Pilot.BearingLag = Within(settings.m_fSimulatePilotLag, 0.0, kMostLag);
  // What the boat's compass shows more is what the pilot's shows less.
  boat.Pilot.CompassOffset = -Folded(settings.m_fSimulateCompassOffset);
  boat.Sea = SeaOf(settings.m_eSimulateSea);
  boat.WindFrom = Folded(settings.m_fSimulateTrueWindAngle);
  boat.WindSpeed = Within(settings.m_fSimulateTrueWindSpeed, 0.0, kMostWind);
  boat.GustDeviation = Within(settings.m_fSimulateGusts, 0.0, kPercent) / kPercent;
  boat.ShiftDeviation = Within(settings.m_fSimulateShifts, 0.0, kMostShift);
  boat.Variation = Within(settings.m_fSimulateVariation, -kMostVariation, kMostVariation);
  // The deviation of what lies evenly within a width.
  boat.VaneNoise =
      std::fabs(Within(settings.m_fSimulateNoiseAngle, -kMostShift, kMostShift)) / std::sqrt(12.0);
  boat.LogLag = 3.0;
  boat.TrueWindSensor = true;
  return boat;
}

void SimulatedBoat::Begin() {
  constexpr double kFarthest = 1000.0;  // [nm]
  constexpr double kSeeds = 9007199254740992.0;
  const auto seed = m_settings.m_iSimulateSeed != 0 ? static_cast<std::uint64_t>(m_settings.m_iSimulateSeed)
                                                    : static_cast<std::uint64_t>(m_random.Next() * kSeeds);
  const BoatSettings settings = SimulatedBoatOf(m_settings);
  m_boat.emplace(settings, Folded(m_settings.m_fAutoPilot), seed);
  m_boat->PutWaypoint(Folded(m_settings.m_fSimulateWaypointBearing) + settings.Variation,
                      Within(m_settings.m_fSimulateWaypointRange, 0.0, kFarthest));
}

void SimulatedBoat::Tick(const Moment& now) {
  if (!m_boat) {
    Begin();
  }
  m_boat->Set() = SimulatedBoatOf(m_settings);
  const auto ticks = std::lround(1.0 / BoatModel::kTick);
  for (long tick = 1; tick < ticks; ++tick) {
    m_boat->Tick();
  }
  Write(m_boat->Tick(), now);
}

void SimulatedBoat::Steer(std::string_view sentences) {
  m_reader.Reads(m_settings.m_eSimulatePilot);
  if (!m_boat) {
    return;
  }
  if (const auto order = m_reader.Take(sentences, m_boat->Set().Variation)) {
    m_boat->Steer(*order);
  }
}

void SimulatedBoat::Write(const BoatReadings& readings, const Moment& now) {
  const Origin here{{'S', 'I', 'M'}, {}, 0, now};
  const double variation = m_boat->Set().Variation;
  const bool computed = m_settings.m_iNmeaTrueWind != 0;
  m_record.HeadingUpdate(FoldBearing(readings.Compass), here);
  m_record.BoatSpeedUpdate(ToSingle(readings.Speed), here);
  m_record.VariationUpdate(ToSingle(variation), here);
  m_record.WindApparentUpdate(FoldRelative(readings.ApparentAngle), ToSingle(readings.ApparentSpeed),
                              computed, here);
  if (!computed) {
    m_record.WindTrueUpdate(FoldRelative(readings.TrueAngle), ToSingle(readings.TrueSpeed), true, here);
  }
  m_record.WindIndicatorUpdate();
  const BoatWaypoint waypoint = m_boat->Waypoint();
  m_record.WaypointUpdate(ToSingle(waypoint.Range), FoldBearing(waypoint.Bearing - variation), here);
}

}  // namespace veerwatch
