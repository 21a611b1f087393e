// What the ten latest seconds say of vane, log and compass, and what their settings ought to be by it: for
// the assistant, which offers to set them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "control/WindMean.h"
#include "instruments/InstrumentRecord.h"
#include "instruments/Reading.h"
#include "platform/Clock.h"
#include "settings/Settings.h"

namespace veerwatch {

/// What may be set, in words, and to what; without a value there is nothing to set it by.
struct CalibrationOffer {
  std::string Text;
  std::optional<float> Value;
};

class CalibrationDesk {
 public:
  /// Reads the three settings of `settings`, which outlives this.
  explicit CalibrationDesk(const Settings& settings) : m_settings(settings) {}

  void Restart();
  /// One of the three was set: what its instrument said before counts no more.
  void WindSet() { m_wind.Clear(); }
  void SpeedSet() { m_speed.Clear(); }
  void HeadingSet() { m_heading.Clear(); }
  /// Takes what a sentence brought at `now`; `record` has been given it.
  void Take(const Readings& readings, const InstrumentRecord& record, const Moment& now);

  /// For the boat that motors straight into the wind: Settings::m_fNmeaWindOffset.
  CalibrationOffer Wind() const;
  /// For one that runs straight in still water: Settings::m_fNmeaBoatSpeedFactor.
  CalibrationOffer Speed() const;
  /// The same: Settings::m_fNmeaHeadingOffset.
  CalibrationOffer Heading() const;

 private:
  /// A mean in which the newest values count most.
  class Mean {
   public:
    void Add(double value);
    void Clear() { m_count = 0; }
    std::optional<double> Value() const { return m_count > 0 ? std::optional(m_value) : std::nullopt; }

   private:
    int m_count = 0;
    double m_value = 0.0;
  };

  const Settings& m_settings;
  WindMean m_wind;
  WindMean m_heading;  ///< directions, each as a wind of one knot
  WindMean m_course;
  Mean m_speed;
  Mean m_overGround;
};

}  // namespace veerwatch
