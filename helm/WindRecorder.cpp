#include "helm/WindRecorder.h"

#include <algorithm>
#include <utility>

#include "platform/Angles.h"

namespace veerwatch {

namespace {

constexpr std::int64_t kStale = 4000;  // [ms]

}  // namespace

WindRecorder::WindRecorder(HelmObservers& observers, const InstrumentRecord& record, std::int64_t span,
                           std::size_t most)
    : m_record(record), m_span(span), m_most(most), m_told(observers.Join(*this)) {
  m_samples.reserve(most);
}

std::vector<WindSample> WindRecorder::Winds() const {
  std::vector<WindSample> winds;
  winds.reserve(m_samples.size());
  const std::size_t oldest = m_samples.size() < m_most ? 0 : m_next;
  for (std::size_t i = 0; i < m_samples.size(); ++i) {
    winds.push_back(m_samples[(oldest + i) % m_samples.size()]);
  }
  if (!winds.empty()) {
    const std::int64_t first = winds.back().Moment - m_span;
    std::erase_if(winds, [first](const WindSample& sample) { return sample.Moment < first; });
  }
  return winds;
}

void WindRecorder::OnWindTrue(float /*angle*/, float /*speed*/) { m_bringsTrue = true; }

void WindRecorder::OnDelta(float /*apparent*/, float /*trueWind*/) {
  const bool bringsTrue = std::exchange(m_bringsTrue, false);
  const auto& apparent = m_record.Source(RecordValue::WindApparent);
  const auto& trueWind = m_record.Source(RecordValue::WindTrue);
  if (!apparent || !trueWind) {
    return;
  }
  const Moment now = apparent->At.Steady > trueWind->At.Steady ? apparent->At : trueWind->At;
  if (!m_record.Data().HeadingValid || m_record.Age(RecordValue::Heading, now).value_or(kStale) >= kStale) {
    return;
  }
  const InstrumentRecord::Wind wind = m_record.WindTrueUnsmoothed();
  const double direction = static_cast<double>(m_record.Data().Heading) + static_cast<double>(wind.Angle);
  Add({now.Steady, FoldBearing(direction), wind.Speed, bringsTrue});
}

void WindRecorder::Add(const WindSample& sample) {
  const std::size_t newest = (m_next + m_most - 1) % m_most;
  if (newest < m_samples.size() && sample.Moment < m_samples[newest].Moment) {
    m_samples.clear();
    m_next = 0;
  }
  if (m_samples.size() < m_most) {
    m_samples.push_back(sample);
  } else {
    m_samples[m_next] = sample;
  }
  m_next = (m_next + 1) % m_most;
}

}  // namespace veerwatch
