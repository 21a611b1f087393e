// What can be seen on the values themselves while they still come: a vane that is stuck, a wind that leaps,
// two sources that differ. Each check is told of every sentence and asked at every second.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "control/WatchNow.h"

namespace veerwatch {

/// The same wind again and again.
class UnchangedCheck {
 public:
  /// A wind [deg relative], [kn] that came at `moment` [ms of the steady clock].
  void Add(float angle, float speed, std::int64_t moment);
  /// The latest is another one than the one before.
  bool JustChanged() const { return m_count <= 1; }
  /// It came at least 20 times alike, over at least 10 s.
  bool Stands() const { return m_count >= kTimes && m_latest - m_since >= kLong; }

 private:
  static constexpr int kTimes = 20;
  static constexpr std::int64_t kLong = 10000;  // [ms]

  float m_angle = 0.0F;
  float m_speed = 0.0F;
  int m_count = 0;
  std::int64_t m_since = 0;
  std::int64_t m_latest = 0;
};

/// A direction that leaps by more than 60 degrees away from its mean, as of some seconds, and is back before
/// 4 s are over.
class JumpCheck {
 public:
  /// A direction [deg, any turn] at `moment` [ms of the steady clock].
  void Add(double direction, std::int64_t moment);
  /// The latest was elsewhere.
  bool Away() const { return m_away.has_value(); }
  /// It leapt three times in the minute before `moment`.
  bool Stands(std::int64_t moment) const;

 private:
  static constexpr std::size_t kTimes = 3;

  std::optional<double> m_direction;                          ///< the mean of the latest ones [deg, any turn]
  std::int64_t m_latest = 0;                                  ///< when it took the latest [ms]
  std::optional<std::int64_t> m_away;                         ///< since when it is elsewhere
  std::array<std::optional<std::int64_t>, kTimes> m_jumps{};  ///< the latest ones, a ring
  std::size_t m_next = 0;
};

/// Two talkers that send the same quantity and do not agree.
class TalkerCheck {
 public:
  /// What a talker said of a quantity: an angle or a direction [deg, any turn], a speed [kn], or both.
  struct Said {
    std::optional<float> Angle;
    std::optional<float> Speed;
  };

  void Add(const Talker& talker, const Said& said, std::int64_t moment);
  /// They have been more than 10 degrees or 3 kn apart for 10 s, up to `moment`.
  bool Stands(std::int64_t moment) const;
  /// Both, the one that came first in front.
  std::array<Talker, 2> Talkers() const { return {m_of[0].Name, m_of[1].Name}; }
  /// Whether `talker` is the one that came first, or nobody came lately.
  bool IsFirst(const Talker& talker, std::int64_t moment) const;

 private:
  struct One {
    Talker Name{};
    Said Latest;
    std::optional<std::int64_t> At;
  };
  static bool Differ(const Said& a, const Said& b);
  static bool Late(const One& one, std::int64_t moment);

  std::array<One, 2> m_of{};
  std::optional<std::int64_t> m_apart;  ///< since when
};

}  // namespace veerwatch
