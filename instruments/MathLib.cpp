#include "instruments/MathLib.h"

#include <cmath>
#include <limits>

namespace veerwatch {

namespace {

constexpr double kRadiansPerDegree = kPi / 180.0;
constexpr double kDegreesPerRadian = 180.0 / kPi;

double Square(double value) { return std::pow(value, 2.0); }

}  // namespace

double Atan2(double X, double Y) {
  if (X == 0.0) {
    if (Y == 0.0) {
      return 0.0;
    }
    return Y > 0.0 ? kPi / 2.0 : -kPi / 2.0;
  }
  const double angle = std::atan(Y / X);
  if (X > 0.0) {
    return angle;
  }
  return Y > 0.0 ? angle + kPi : angle - kPi;
}

void AverageAngleRelative(float NewAngle, float Count, float& Average) {
  if (Count == 0.0F) {
    Average = NewAngle;
    return;
  }
  const double k = 1.0 / static_cast<double>(Count);
  const double sample = static_cast<double>(NewAngle) * kRadiansPerDegree;
  const double old = static_cast<double>(Average) * kRadiansPerDegree;
  const double X = k * std::cos(sample) + (1.0 - k) * std::cos(old);
  const double Y = k * std::sin(sample) + (1.0 - k) * std::sin(old);
  Average = ToSingle(Atan2(X, Y) * kDegreesPerRadian);
}

void AverageAngleAbsolute(float NewAngle, float Count, float& Average) {
  AverageAngleRelative(NewAngle, Count, Average);
  const float folded = ToSingle(AngleAbsolute(static_cast<double>(Average)));
  // An average just below 0 lands so close to 360 that the single is 360.
  Average = folded == 360.0F ? 0.0F : folded;
}

void AverageValue(float NewValue, float Count, float& Average) {
  if (Count == 0.0F) {
    Average = NewValue;
    return;
  }
  const double k = 1.0 / static_cast<double>(Count);
  Average = ToSingle(static_cast<double>(NewValue) * k + static_cast<double>(Average) * (1.0 - k));
}

float AverageCountAfter(float Count, double seconds) {
  if (Count <= 1.0F || seconds == 1.0) {
    return Count;
  }
  const double weight = 1.0 - std::pow(1.0 - 1.0 / static_cast<double>(Count), seconds);
  return weight > 0.0 ? ToSingle(1.0 / weight) : std::numeric_limits<float>::infinity();
}

void WindApparentFromTrue(float TrueSpeed, float TrueAngle, float BoatSpeed, float& ApparentSpeed,
                          float& ApparentAngle) {
  const double angle = static_cast<double>(TrueAngle) * kRadiansPerDegree;
  const double X = static_cast<double>(TrueSpeed) * std::cos(angle) + static_cast<double>(BoatSpeed);
  const double Y = static_cast<double>(TrueSpeed) * std::sin(angle);
  ApparentSpeed = ToSingle(std::sqrt(Square(X) + Square(Y)));
  ApparentAngle = ToSingle(Atan2(X, Y) * kDegreesPerRadian);
}

void WindTrueFromApparent(float ApparentSpeed, float ApparentAngle, float BoatSpeed, float& TrueSpeed,
                          float& TrueAngle) {
  const double angle = static_cast<double>(ApparentAngle) * kRadiansPerDegree;
  const double X = static_cast<double>(ApparentSpeed) * std::cos(angle) - static_cast<double>(BoatSpeed);
  const double Y = static_cast<double>(ApparentSpeed) * std::sin(angle);
  TrueSpeed = ToSingle(std::sqrt(Square(X) + Square(Y)));
  TrueAngle = ToSingle(Atan2(X, Y) * kDegreesPerRadian);
}

float Min(double A, double B) { return ToSingle(A <= B ? A : B); }

float Max(double A, double B) { return ToSingle(A >= B ? A : B); }

}  // namespace veerwatch
