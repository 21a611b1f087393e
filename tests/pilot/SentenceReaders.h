// Small receivers of the sentences that a pilot takes, each written from the sentence's drawing in NMEA 0183
// and from nothing of the program. What a receiver would not take is told as a reason.
#pragma once

#include <array>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace veerwatch {

/// The fields of a sentence behind its address, when frame and checksum are right.
struct ReadSentence {
  std::string Talker;
  std::string Type;
  std::vector<std::string> Fields;  ///< from 0 on: field 1 of a drawing is Fields[0]
};

inline std::optional<ReadSentence> ReadFrame(std::string_view line) {
  constexpr std::size_t kLongest = 80;  // without the line end
  constexpr std::size_t kTail = 3;
  if (line.size() > kLongest || line.size() < 10 || line.front() != '$' || line[line.size() - kTail] != '*') {
    return std::nullopt;
  }
  const std::string_view body = line.substr(1, line.size() - 1 - kTail);
  unsigned sum = 0;
  for (const char c : body) {
    sum ^= static_cast<unsigned char>(c);
  }
  const std::string digits(line.substr(line.size() - 2));
  if (std::strtoul(digits.c_str(), nullptr, 16) != sum) {
    return std::nullopt;
  }
  ReadSentence read;
  std::string field;
  std::vector<std::string> all;
  for (const char c : std::string(body) + ",") {
    if (c == ',') {
      all.push_back(field);
      field.clear();
    } else {
      field += c;
    }
  }
  read.Talker = all[0].substr(0, 2);
  read.Type = all[0].substr(2);
  read.Fields.assign(all.begin() + 1, all.end());
  return read;
}

/// A number of digits with at most one point, as receivers take it.
inline std::optional<double> ReadNumber(const std::string& text) {
  if (text.empty() || text.find_first_not_of("0123456789.") != std::string::npos) {
    return std::nullopt;
  }
  return std::atof(text.c_str());
}

/// What a pilot understands of one sentence.
struct PilotHeard {
  std::string Fault;  ///< why it is not taken; "" when it is
  bool Valid = false;
  std::optional<double> True;      ///< bearing or heading to steer [deg]
  std::optional<double> Magnetic;  ///< the same
  std::optional<double> Range;     ///< [nm]
  std::string Point;
  std::optional<double> WindAngle;  ///< [deg relative, positive to starboard]
  std::optional<double> WindSpeed;  ///< [kn]
};

inline PilotHeard Refused(const char* fault) {
  PilotHeard heard;
  heard.Fault = fault;
  return heard;
}

/// The mode at the end: absent in old sentences, A for a good one.
inline bool ModeHolds(const ReadSentence& read, std::size_t index) {
  return read.Fields.size() <= index || read.Fields[index] == "A";
}

/// APB: status, status, error, L/R, N, arrival, perpendicular, bearing, M/T, point, bearing, M/T, heading to
/// steer, M/T, and in newer ones the mode.
inline PilotHeard HearApb(const ReadSentence& read) {
  const auto& f = read.Fields;
  if (f.size() != 14 && f.size() != 15) {
    return Refused("fields");
  }
  if (!ReadNumber(f[2]) || (f[3] != "L" && f[3] != "R") || f[4] != "N") {
    return Refused("error");
  }
  PilotHeard heard;
  heard.Valid = f[0] == "A" && f[1] == "A" && ModeHolds(read, 14);
  heard.Point = f[9];
  for (const std::size_t at : {7U, 10U, 12U}) {
    const auto bearing = ReadNumber(f[at]);
    const std::string& kind = f[at + 1];
    if (!bearing || (kind != "M" && kind != "T")) {
      return Refused("bearing");
    }
    auto& place = kind == "M" ? heard.Magnetic : heard.True;
    if (place && *place != *bearing) {
      return Refused("bearings differ");
    }
    place = bearing;
  }
  return heard;
}

/// RMB: status, error, L/R, origin, destination, latitude, N/S, longitude, E/W, range, bearing true, closing
/// speed, arrival, and in newer ones the mode.
inline PilotHeard HearRmb(const ReadSentence& read) {
  const auto& f = read.Fields;
  if (f.size() != 13 && f.size() != 14) {
    return Refused("fields");
  }
  PilotHeard heard;
  heard.Valid = f[0] == "A" && ModeHolds(read, 13);
  heard.Point = f[4];
  heard.Range = ReadNumber(f[9]);
  heard.True = ReadNumber(f[10]);
  if (!ReadNumber(f[1]) || (f[2] != "L" && f[2] != "R")) {
    return Refused("error");
  }
  if (!heard.Range || *heard.Range <= 0.0 || heard.Point.empty() || heard.Point.size() > 6) {
    return Refused("waypoint");
  }
  if (!heard.True) {
    return Refused("bearing");
  }
  return f[12] == "V" ? heard : Refused("arrived");
}

/// HSC: heading true, T, heading magnetic, M.
inline PilotHeard HearHsc(const ReadSentence& read) {
  const auto& f = read.Fields;
  if (f.size() != 4 || f[1] != "T" || f[3] != "M") {
    return Refused("fields");
  }
  PilotHeard heard;
  heard.Valid = true;
  heard.True = ReadNumber(f[0]);
  heard.Magnetic = ReadNumber(f[2]);
  return heard.True && heard.Magnetic ? heard : Refused("heading");
}

/// XTE: status, status, error, L/R, N, and in newer ones the mode.
inline PilotHeard HearXte(const ReadSentence& read) {
  const auto& f = read.Fields;
  if ((f.size() != 5 && f.size() != 6) || ReadNumber(f[2]) != 0.0 || f[4] != "N") {
    return Refused("fields");
  }
  PilotHeard heard;
  heard.Valid = f[0] == "A" && f[1] == "A" && ModeHolds(read, 5);
  return heard;
}

/// BWC: time, latitude, N/S, longitude, E/W, bearing, T, bearing, M, distance, N, destination, and in newer
/// ones the mode.
inline PilotHeard HearBwc(const ReadSentence& read) {
  const auto& f = read.Fields;
  if ((f.size() != 12 && f.size() != 13) || f[6] != "T" || f[8] != "M" || f[10] != "N") {
    return Refused("fields");
  }
  PilotHeard heard;
  heard.Valid = ModeHolds(read, 12);
  heard.True = ReadNumber(f[5]);
  heard.Magnetic = ReadNumber(f[7]);
  heard.Range = ReadNumber(f[9]);
  heard.Point = f[11];
  return heard.True && heard.Magnetic && heard.Range ? heard : Refused("bearing");
}

/// VWR: angle off the bow, L/R, speed, N, speed, M, speed, K.
inline PilotHeard HearVwr(const ReadSentence& read) {
  const auto& f = read.Fields;
  if (f.size() != 8 || f[3] != "N" || f[5] != "M" || f[7] != "K") {
    return Refused("fields");
  }
  const auto angle = ReadNumber(f[0]);
  if (!angle || *angle > 180.0 || (f[1] != "L" && f[1] != "R")) {
    return Refused("angle");
  }
  PilotHeard heard;
  heard.Valid = true;
  heard.WindAngle = f[1] == "L" ? -*angle : *angle;
  heard.WindSpeed = ReadNumber(f[2]);
  const auto metres = ReadNumber(f[4]);
  const auto kilometres = ReadNumber(f[6]);
  const double knots = heard.WindSpeed.value_or(-9.0);
  const bool agree = metres && kilometres && std::abs(*metres - knots * 0.514444) < 0.08 &&
                     std::abs(*kilometres - knots * 1.852) < 0.15;
  return agree ? heard : Refused("speeds differ");
}

/// MWV: angle from the bow over starboard, R/T, speed, unit, status.
inline PilotHeard HearMwv(const ReadSentence& read) {
  const auto& f = read.Fields;
  if (f.size() != 5 || f[1] != "R" || f[3] != "N") {
    return Refused("fields");
  }
  const auto angle = ReadNumber(f[0]);
  if (!angle || *angle >= 360.0) {
    return Refused("angle");
  }
  PilotHeard heard;
  heard.Valid = f[4] == "A";
  heard.WindAngle = *angle > 180.0 ? *angle - 360.0 : *angle;
  heard.WindSpeed = ReadNumber(f[2]);
  return heard.WindSpeed ? heard : Refused("speed");
}

/// What a pilot understands of a line without its line end.
inline PilotHeard Hear(std::string_view line) {
  const auto read = ReadFrame(line);
  if (!read) {
    return Refused("frame");
  }
  struct Receiver {
    const char* Type;
    PilotHeard (*Hear)(const ReadSentence&);
  };
  constexpr std::array<Receiver, 7> kReceivers{{{"APB", HearApb},
                                                {"RMB", HearRmb},
                                                {"HSC", HearHsc},
                                                {"XTE", HearXte},
                                                {"BWC", HearBwc},
                                                {"VWR", HearVwr},
                                                {"MWV", HearMwv}}};
  for (const Receiver& receiver : kReceivers) {
    if (read->Type == receiver.Type) {
      return receiver.Hear(*read);
    }
  }
  return Refused("type");
}

}  // namespace veerwatch
