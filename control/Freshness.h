// How old each quantity is that the instruments send, by the steady clock: whether it can be gone by. Told of
// each sentence that brings one; it reads no clock.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "instruments/Reading.h"
#include "platform/Clock.h"
#include "settings/Settings.h"

namespace veerwatch {

/// The quantities whose age is kept: those of the record, by the chosen source, and two that the checks need
/// whatever is chosen.
enum class Watched { WindApparent, WindTrue, BoatSpeed, Heading, Waypoint, SpeedOverGround, Compass };
inline constexpr std::size_t kWatchedCount = 7;

enum class Freshness {
  Waiting,    ///< none has come since the input started
  NotFitted,  ///< the user has said that none comes
  Fresh,
  Stale,  ///< older than the setting says; a computer that was suspended leaves all so
  Lost,   ///< older than kLostAfter, or than the setting where that is longer
};

/// A quantity that is older is lost [ms].
inline constexpr std::int64_t kLostAfter = 10000;

/// One quantity at one moment.
struct ValueAge {
  Freshness State = Freshness::Waiting;
  std::int64_t Age = 0;  ///< [ms], 0 while none has come
  Origin From;           ///< of the latest that counted

  bool Fresh() const { return State == Freshness::Fresh; }
  bool Gone() const { return State == Freshness::Stale || State == Freshness::Lost; }
};

class Ages {
 public:
  /// Reads the seconds of section "Watch" and m_bSimulate whenever it is asked.
  explicit Ages(const Settings& settings) : m_settings(settings) {}

  /// The input starts anew: none has come.
  void Restart() { m_values = {}; }

  /// A sentence has brought the quantity. One that was stale or lost counts from its second sentence on: the
  /// first may be what a link had held back.
  void Came(Watched what, const Origin& from);

  /// The computer stood still until now: no value grows older by `milliseconds`, and each is stale.
  void StoodStill(std::int64_t milliseconds);

  /// The quantity at `now`. A simulated one is always fresh.
  ValueAge At(Watched what, const Moment& now) const;

  /// Whether it has come, and is at most `milliseconds` old, at `now`.
  bool Within(Watched what, std::int64_t milliseconds, const Moment& now) const;

 private:
  struct Value {
    std::optional<std::int64_t> Counted;    ///< the latest that counts [ms of the steady clock]
    std::optional<std::int64_t> CameAgain;  ///< the first one after a gap
    bool StoodStill = false;
    Origin From;
  };

  /// After how long it is stale [ms].
  std::int64_t StaleAfter(Watched what) const;
  Freshness StateOf(const Value& value, Watched what, std::int64_t age) const;
  const Value& Of(Watched what) const { return m_values[static_cast<std::size_t>(what)]; }

  const Settings& m_settings;
  std::array<Value, kWatchedCount> m_values{};
};

}  // namespace veerwatch
