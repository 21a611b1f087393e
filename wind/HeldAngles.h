// Remembers what was held before: the angle to come back to after a dodge, and the one before the latest
// large change.
#pragma once

#include <optional>

#include "settings/TrackMode.h"

namespace veerwatch {

class HeldAngles {
 public:
  /// What is held.
  struct Angle {
    TrackSide Side = TrackSide::Apparent;
    double Degrees = 0.0;  ///< [deg relative]
  };

  /// Nothing is held any more.
  void Clear() { *this = HeldAngles(); }

  /// What is held now; told often. A change of more than ten degrees on the same side of the boat is one to
  /// go back on, another side of the boat or another wind forgets it all.
  void Holds(const Angle& now);

  /// The boat dodges by `degrees` [deg, positive to starboard] from what was held `before`, and `now` is
  /// held.
  void Dodged(const Angle& before, const Angle& now, double degrees);
  /// What is held was moved to `now` by something else than the user; that is no change to go back on.
  void Moved(const Angle& now);

  struct Dodge {
    Angle Before;          ///< what was held
    double Degrees = 0.0;  ///< the boat has turned since [deg, positive to starboard]
  };
  const std::optional<Dodge>& Away() const { return m_dodge; }

  /// The angle before the latest change of more than ten degrees.
  const std::optional<Angle>& Last() const { return m_last; }

 private:
  std::optional<Angle> m_now;
  std::optional<Angle> m_last;
  std::optional<Dodge> m_dodge;
};

}  // namespace veerwatch
