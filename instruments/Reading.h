// What an instrument said: one value of one sentence, with where it came from and when. Decoders make
// readings, SourceChoice gives those that the settings choose to the record.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "platform/Clock.h"

namespace veerwatch {

/// Where a value came from, and the moment at which it arrived.
struct Origin {
  std::array<char, 3> Sentence{};  ///< type of the sentence, as "MWV"; zeros where no sentence brought it
  std::array<char, 2> Talker{};    ///< its talker, as "II"
  std::int16_t Port = 0;           ///< number of the port that it came in on; 0 for none
  Moment At;
};

/// The origin of what came in `line` [a whole sentence: "$", talker, type] on `port` at `now`.
Origin OriginOf(std::string_view line, std::int16_t port, const Moment& now);

/// What a sentence can carry.
enum class Quantity {
  Heading,                ///< of the compass [deg magnetic, any turn]
  CourseMagnetic,         ///< over ground [deg magnetic, any turn]
  CourseTrue,             ///< over ground [deg true, any turn]
  SpeedThroughWater,      ///< [kn]
  SpeedOverGround,        ///< [kn]
  Variation,              ///< [deg, east positive]
  ApparentWindAngle,      ///< [deg relative, any turn]
  ApparentWindSpeed,      ///< [kn]
  TrueWindAngle,          ///< [deg relative, any turn]
  TrueWindSpeed,          ///< [kn]
  WaypointBearing,        ///< [deg true, any turn]
  WaypointRange,          ///< [nm]
  HeadingTrue,            ///< [deg true, any turn]
  WindDirectionTrue,      ///< that the true wind blows from [deg true, any turn]
  WindDirectionMagnetic,  ///< the same [deg magnetic, any turn]
};

struct Reading {
  Quantity What = Quantity::Heading;
  float Value = 0.0F;            ///< in the unit of the quantity, finite
  const Origin* From = nullptr;  ///< of the readings that it is among
};

/// The readings of one sentence, in the order in which the record takes them.
class Readings {
 public:
  /// The most that one sentence carries.
  static constexpr std::size_t kMost = 4;

  /// Empty, for a sentence from `from`.
  explicit Readings(const Origin& from) : m_from(from) {}
  Readings(const Readings&) = delete;
  Readings& operator=(const Readings&) = delete;

  /// Adds a value; one too many is dropped.
  void Add(Quantity what, float value) {
    if (m_count < kMost) {
      m_readings[m_count++] = {what, value, &m_from};
      m_brought |= BitOf(what);
    }
  }

  /// Notes that the wind is one whose speed came in `unit`, and not in knots. The text outlives this.
  void NoteUnreadUnit(std::string_view unit) { m_unreadUnit = unit; }
  /// The unit noted; empty for none.
  std::string_view UnreadUnit() const { return m_unreadUnit; }
  /// The unit is read after all.
  void ReadUnit() { m_unreadUnit = {}; }

  /// Forgets every value, and keeps what was noted.
  void Drop() {
    m_brought = 0;
    m_count = 0;
  }

  /// Notes that the instrument itself says that what it sends does not hold.
  void NoteInvalid() { m_invalid = true; }
  bool Invalid() const { return m_invalid; }

  /// Where and when all of them came from.
  const Origin& From() const { return m_from; }

  const Reading* begin() const { return m_readings.data(); }
  const Reading* end() const { return m_readings.data() + m_count; }

  /// The value of `what`; null where the sentence brought none.
  const Reading* Find(Quantity what) const {
    if ((m_brought & BitOf(what)) == 0) {
      return nullptr;
    }
    const Reading* reading = begin();
    while (reading->What != what) {
      ++reading;
    }
    return reading;
  }

 private:
  static constexpr unsigned BitOf(Quantity what) { return 1U << static_cast<unsigned>(what); }

  Origin m_from;
  unsigned m_brought = 0;  ///< a bit for each quantity
  std::array<Reading, kMost> m_readings{};
  std::size_t m_count = 0;
  std::string_view m_unreadUnit;
  bool m_invalid = false;
};

}  // namespace veerwatch
