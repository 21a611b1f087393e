// What the program does about what the watch has found, where "[Watch] Act" lets it: nothing that is lost,
// stale or wrong moves the bearing. Asked before each pass of the loop, and once a second after the watch has
// looked.
#pragma once

#include <cstdint>
#include <optional>

#include "control/TrackLoop.h"
#include "control/Watch.h"
#include "settings/Settings.h"

namespace veerwatch {

class WatchAct {
 public:
  /// Everything outlives this.
  WatchAct(const Settings& settings, const InstrumentRecord& record, const Watch& watch, TrackLoop& loop)
      : m_settings(settings), m_record(record), m_watch(watch), m_loop(loop) {}

  /// What a pass of the loop may do.
  enum class Pass {
    Steers,  ///< as always
    Stands,  ///< bearing and accumulators stand still; the bearing is sent
    None,    ///< there is no wind to make it with
  };
  /// Before a pass at `now`, of which the watch has been told. `outputOpen`: the pilot can be reached.
  Pass Before(bool outputOpen, const Moment& now);
  /// That pass has been made.
  void After(const LoopStep& step);

  /// What the helm has to send and tell.
  struct Order {
    bool Sends = false;     ///< the bearing, though no wind came
    bool Turned = false;    ///< the bearing was changed
    bool Switched = false;  ///< the apparent wind is held from now on
  };
  /// A second has passed at `now`, and the watch has looked.
  Order Second(const Moment& now);

  /// A pass at `now` could not be made for want of a wind.
  bool Lacks(const Moment& now) const { return May() && !m_watch.Values().Within(Held(), kOldest, now); }

  /// It holds the loop back, or has moved what is held, at this moment.
  bool Acts() const { return m_acts; }

 private:
  static constexpr std::int64_t kOldest = 2000;  // [ms] that a pass goes by

  bool May() const { return m_settings.m_bWatchAct && m_settings.m_eTrackMode == TrackMode::Track; }
  Watched Held() const {
    return m_loop.Side() == TrackSide::True ? Watched::WindTrue : Watched::WindApparent;
  }
  bool NeedsBoatSpeed() const;
  Pass Judge(bool outputOpen, const Moment& now) const;
  /// The bearing may be turned no further by one and the same wind.
  bool TurnedEnough() const;
  void TakeBack(Order& order);
  void KeepOn(const Moment& now, Order& order);
  void TakePortBack(const Moment& now, Order& order);
  void Luff(Order& order);

  const Settings& m_settings;
  const InstrumentRecord& m_record;
  const Watch& m_watch;
  TrackLoop& m_loop;
  bool m_acts = false;
  double m_turned = 0.0;  ///< by the loop since the wind changed last [deg]
  bool m_wentUp = false;
  bool m_portLost = false;
};

}  // namespace veerwatch
