// Sentences of a boat's instruments from their values: the senders' side of what nmea/ decodes. Each returns
// one line with its checksum and without its line end. Angles [deg], speeds [kn], variations [deg, east
// positive].
#pragma once

#include <string>

#include "instruments/EarthPlace.h"

namespace veerwatch {

/// `heading` is magnetic; the compass does not know its own deviation.
std::string EncodeHdg(double heading, double variation);
std::string EncodeHvm(double variation);
/// `reference` 'R' apparent or 'T' true; `angle` any turn, sent as [0, 360].
std::string EncodeMwv(double angle, char reference, double speed);
/// `range` [nm] and `bearing` [deg true] to the waypoint.
std::string EncodeRmb(const EarthPlace& waypoint, double range, double bearing, double closing);
/// `course` is true.
std::string EncodeRmc(const UtcMoment& utc, const EarthPlace& place, double speed, double course,
                      double variation);
/// Heading and speed through the water.
std::string EncodeVhw(double headingTrue, double headingMagnetic, double speed);
/// Course and speed over ground.
std::string EncodeVtg(double courseTrue, double courseMagnetic, double speed);

}  // namespace veerwatch
