#include "nmea/Encode.h"

#include <array>
#include <cmath>
#include <string_view>
#include <utility>

#include "nmea/Checksum.h"
#include "platform/NumberText.h"

namespace veerwatch {

namespace {

constexpr double kKilometresPerMile = 1.852;

/// `body`, which begins with "$" and has no "*", with its checksum after it.
std::string Closed(std::string body) {
  const std::array<char, 2> digits = ChecksumText(Checksum(std::string_view(body).substr(1)));
  body.append("*").append(digits.data(), digits.size());
  return body;
}

std::string Text(double value, std::string_view pattern) {
  return FormatNumber(static_cast<float>(value), pattern);
}

/// An angle of any turn as "000.0" to "360.0".
std::string Angle(double degrees) {
  const double turn = std::fmod(degrees, 360.0);
  return Text(turn < 0.0 ? turn + 360.0 : turn, "000.0");
}

std::string Variation(double degrees) {
  return Text(std::fabs(degrees), "0.0") + (degrees < 0.0 ? ",W" : ",E");
}

/// "4807.038,N": whole degrees, then minutes.
std::string Coordinate(double degrees, std::string_view pattern, const char* positive, const char* negative) {
  const double size = std::fabs(degrees);
  // Thousandths of a minute, so that 59.9996 minutes carry into the degrees.
  const double thousandths = std::round(size * 60000.0);
  const double whole = std::floor(thousandths / 60000.0);
  const double minutes = (thousandths - whole * 60000.0) / 1000.0;
  std::string text = Text(whole, pattern);
  text.append(Text(minutes, "00.000")).append(",").append(degrees < 0.0 ? negative : positive);
  return text;
}

std::string Place(const EarthPlace& place) {
  return Coordinate(place.Latitude, "00", "N", "S") + "," + Coordinate(place.Longitude, "000", "E", "W");
}

std::string ThreePairs(int a, int b, int c) { return Text(a, "00") + Text(b, "00") + Text(c, "00"); }

/// The layout that VHW and VTG share.
std::string Motion(const char* start, double angleTrue, double angleMagnetic, double speed) {
  std::string body(start);
  body.append(Angle(angleTrue)).append(",T,").append(Angle(angleMagnetic)).append(",M,");
  body.append(Text(speed, "0.00")).append(",N,");
  body.append(Text(speed * kKilometresPerMile, "0.00")).append(",K");
  return Closed(std::move(body));
}

}  // namespace

std::string EncodeHdg(double heading, double variation) {
  std::string body("$IIHDG,");
  body.append(Angle(heading)).append(",,,").append(Variation(variation));
  return Closed(std::move(body));
}

std::string EncodeHvm(double variation) {
  std::string body("$IIHVM,");
  body.append(Variation(variation));
  return Closed(std::move(body));
}

std::string EncodeMwv(double angle, char reference, double speed) {
  std::string body("$IIMWV,");
  body.append(Angle(angle)).append(",").append(1, reference).append(",");
  body.append(Text(speed, "0.0")).append(",N,A");
  return Closed(std::move(body));
}

std::string EncodeRmb(const EarthPlace& waypoint, double range, double bearing, double closing) {
  std::string body("$GPRMB,A,0.00,R,START,MARK,");
  body.append(Place(waypoint)).append(",").append(Text(range, "0.00")).append(",");
  body.append(Angle(bearing)).append(",").append(Text(closing, "0.0")).append(",V");
  return Closed(std::move(body));
}

std::string EncodeRmc(const UtcMoment& utc, const EarthPlace& place, double speed, double course,
                      double variation) {
  std::string body("$GPRMC,");
  body.append(ThreePairs(utc.Hour, utc.Minute, utc.Second)).append(",A,").append(Place(place)).append(",");
  body.append(Text(speed, "0.00")).append(",").append(Angle(course)).append(",");
  body.append(ThreePairs(utc.Day, utc.Month, utc.Year)).append(",").append(Variation(variation));
  return Closed(std::move(body));
}

std::string EncodeVhw(double headingTrue, double headingMagnetic, double speed) {
  return Motion("$IIVHW,", headingTrue, headingMagnetic, speed);
}

std::string EncodeVtg(double courseTrue, double courseMagnetic, double speed) {
  return Motion("$GPVTG,", courseTrue, courseMagnetic, speed);
}

}  // namespace veerwatch
