#include "instruments/Seaway.h"

#include <cmath>
#include <numbers>

namespace veerwatch {

namespace {

constexpr double kTurn = 2.0 * std::numbers::pi;

}  // namespace

SeaSettings SeaOf(Sea sea) {
  switch (sea) {
    case Sea::Slight:
      return {1.0, 2.0, 0.7, 4.0};
    case Sea::Beam:
      return {2.5, 6.0, 1.0, 5.0};
    case Sea::Following:
      return {6.5, 5.0, 1.0, 7.0};
    case Sea::Head:
      return {2.0, 3.0, 4.0, 3.5};
    case Sea::Flat:
      break;
  }
  return {};
}

Seaway::Seaway(std::uint64_t seed) {
  SeededRandom random(seed);
  m_yaw = Drawn(random);
  m_roll = Drawn(random);
  m_pitch = Drawn(random);
}

Seaway::Waves Seaway::Drawn(RandomSource& random) {
  Waves waves;
  double place = 0.0;
  for (Wave& wave : waves) {
    // From three quarters of the middle one to five quarters, one wave in each part of that band.
    wave.Pace = 0.75 + 0.5 * (place + random.Next()) / kWaves;
    wave.Phase = kTurn * random.Next();
    place += 1.0;
  }
  return waves;
}

double Seaway::Sum(const Waves& waves, double size, double period, double seconds) {
  if (size == 0.0) {
    return 0.0;
  }
  double sum = 0.0;
  for (const Wave& wave : waves) {
    sum += std::sin(kTurn * wave.Pace * seconds / period + wave.Phase);
  }
  return size * std::sqrt(2.0 / kWaves) * sum;
}

double Seaway::Rate(const Waves& waves, double size, double period, double seconds) {
  if (size == 0.0) {
    return 0.0;
  }
  double sum = 0.0;
  for (const Wave& wave : waves) {
    sum += wave.Pace * std::cos(kTurn * wave.Pace * seconds / period + wave.Phase);
  }
  return size * std::sqrt(2.0 / kWaves) * kTurn / period * sum;
}

SeaMotion Seaway::At(const SeaSettings& settings, double seconds) const {
  return {Sum(m_yaw, settings.Yaw, settings.Period, seconds),
          Rate(m_roll, settings.Roll, settings.Period, seconds),
          Rate(m_pitch, settings.Pitch, settings.Period, seconds)};
}

}  // namespace veerwatch
