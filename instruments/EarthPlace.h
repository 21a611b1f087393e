// Where and when on the earth.
#pragma once

namespace veerwatch {

/// A place on the earth [deg, north and east positive].
struct EarthPlace {
  double Latitude = 0.0;
  double Longitude = 0.0;
};

/// A moment of a satellite receiver.
struct UtcMoment {
  int Hour = 0;
  int Minute = 0;
  int Second = 0;
  int Day = 1;
  int Month = 1;
  int Year = 26;  ///< of the century
};

}  // namespace veerwatch
