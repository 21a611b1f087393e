// Whether the boat comes to the bearings that are sent, and what her compass is off the pilot's own. The
// watch tells it of each bearing and each heading, and lets it look once a second. It allocates nothing.
//
// The heading is averaged over a period of a usual sea, so that no wave counts as a turn. Within 15 degrees
// of the bearing, the pilot's offset taken off, the boat follows. While she is farther off, she has to come
// closer every 10 to 15 seconds, a seventh part of what is missing or 3 degrees, else she does not follow.
// What she makes of it shows by her own turn alone: a bearing that comes to her or runs away from her counts
// for nothing. One that goes on turning away has a pilot that turns the wrong way.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace veerwatch {

enum class FollowVerdict {
  Unknown,        ///< no heading, or nothing was sent yet
  Follows,        ///< she is near the bearing, or turns to it
  Slow,           ///< she turns to it, and takes long
  DoesNotFollow,  ///< she is far off and does not turn to it
  TurnsAway,      ///< she turns the wrong way
};

class PilotFollow {
 public:
  /// A sentence with `bearing` [deg magnetic] is sent.
  void Sent(float bearing) { m_bearing = static_cast<double>(bearing); }
  /// A heading has come [deg magnetic].
  void Heading(float heading);
  /// A second has passed at `moment` [ms of the steady clock], and the heading can be gone by.
  void Look(std::int64_t moment);
  /// Nothing is sent, or the heading cannot be gone by: the verdict is Unknown, and bearings and headings
  /// begin anew. The offset stays.
  void Pause();

  FollowVerdict Verdict() const { return m_verdict; }
  /// The verdict is one of the two worst: from then on until the boat has been within 10 degrees of
  /// the bearing for 3 seconds, and turns no more where she turned the wrong way.
  bool Fails() const {
    return m_verdict == FollowVerdict::DoesNotFollow || m_verdict == FollowVerdict::TurnsAway;
  }
  /// What has to be sent more than the boat is to show on her compass [deg, [-10, 10]], learned over minutes;
  /// nothing before the first two.
  std::optional<double> Offset() const;

 private:
  static constexpr std::size_t kKept = 16;

  using Seconds = std::array<double, kKept>;  ///< the latest ones, a ring

  /// The mean of a few seconds that ended `from` of them ago [deg].
  double Mean(const Seconds& values, std::size_t from) const;
  void KeepSecond();
  void Judge(double off, double heading, std::int64_t moment);
  void Approach(double off, double heading, std::int64_t moment);
  /// What the boat has turned in the latest seconds [deg, positive to starboard].
  double Turned() const;
  /// How long she may take to come closer: longer while waves, or a turn, swing her about [ms].
  double Patience() const;
  void LookForTurn(std::int64_t moment);
  void JudgeTurn(double far, double side, std::int64_t moment);
  void Learn(double off, std::int64_t moment);

  /// A time that the bearing is far off on one side.
  struct Chase {
    std::int64_t Since = 0;   ///< [ms]
    std::int64_t Closer = 0;  ///< when she came closer last [ms]
    double Side = 1.0;        ///< of the bearing: 1 starboard, -1 port
    double Best = 0.0;        ///< the heading at which she was closest by her own turn [deg, on any turn]
    double Most = 0.0;        ///< [deg]
  };

  std::optional<double> m_bearing;         ///< the latest that was sent [deg]
  std::optional<double> m_latest;          ///< heading [deg, on any turn]
  double m_sum = 0.0;                      ///< of the headings of this second
  int m_count = 0;                         ///< of the same
  Seconds m_seconds{};                     ///< mean heading of each [deg, on any turn]
  Seconds m_missing{};                     ///< from that to the bearing of the same second [deg]
  std::optional<std::int64_t> m_away;      ///< she turns away from a bearing since then [ms]
  std::size_t m_kept = 0;                  ///< how many there have been
  std::optional<std::int64_t> m_lookedAt;  ///< [ms]
  std::optional<Chase> m_chase;
  std::optional<std::int64_t> m_near;    ///< she is near since then [ms]
  std::optional<std::int64_t> m_turned;  ///< she turned away last [ms]
  FollowVerdict m_verdict = FollowVerdict::Unknown;
  std::optional<double> m_before;  ///< the bearing of a while ago [deg]
  double m_offset = 0.0;           ///< [deg]
  std::int64_t m_learned = 0;      ///< for so long [ms]
};

}  // namespace veerwatch
