// The wind over the earth of the last half hour, pass by pass, for whoever tries on it how the boat would
// have been steered. Looks on at a helm; once it is full it takes no more memory.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "helm/HelmObserver.h"
#include "instruments/InstrumentRecord.h"

namespace veerwatch {

/// What one wind sentence said.
struct WindSample {
  std::int64_t Moment = 0;  ///< [ms of the steady clock]
  float Direction = 0.0F;   ///< of the true wind over the earth, not smoothed [deg magnetic, [0, 360)]
  float Speed = 0.0F;       ///< [kn]
  bool BringsTrue = true;   ///< the true wind is new
};

class WindRecorder final : private HelmObserver {
 public:
  static constexpr std::int64_t kHalfHour = 1800000;  // [ms]
  static constexpr std::size_t kTenASecond = 18000;   // samples of half an hour

  /// Keeps the newest `most` samples [above 0] of the last `span` [ms]. `record` is that of the helm whose
  /// observers are given; both outlive this.
  WindRecorder(HelmObservers& observers, const InstrumentRecord& record, std::int64_t span = kHalfHour,
               std::size_t most = kTenASecond);

  /// The samples of the span before the newest one, from the oldest on. Passes without a heading of the last
  /// seconds have none, and a clock that runs back begins anew.
  std::vector<WindSample> Winds() const;

 private:
  void OnWindTrue(float angle, float speed) override;
  /// A pass of the loop: in every mode but Off.
  void OnDelta(float apparent, float trueWind) override;
  void Add(const WindSample& sample);

  const InstrumentRecord& m_record;
  std::int64_t m_span;
  std::size_t m_most;
  std::vector<WindSample> m_samples;  ///< a ring once it is full
  std::size_t m_next = 0;             ///< where the next one goes then
  bool m_bringsTrue = false;
  HelmObservers::Membership m_told;
};

}  // namespace veerwatch
