#include "history/TraceLine.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace veerwatch {

namespace {

constexpr double kTurn = 360.0;
constexpr float kTurnSingle = 360.0F;
constexpr float kHalfTurnSingle = 180.0F;

void Join(TraceBucket& bucket, const TraceSlot& slot, TraceKind kind) {
  float turns = 0.0F;
  if (kind == TraceKind::Angle) {
    const float step = slot.Latest - bucket.Latest;
    if (step > kHalfTurnSingle || step < -kHalfTurnSingle) {
      turns = std::round(step / kTurnSingle) * kTurnSingle;
    }
  }
  bucket.Low = std::min(bucket.Low + turns, slot.Low);
  bucket.High = std::max(bucket.High + turns, slot.High);
  bucket.Latest = slot.Latest;
  if (kind == TraceKind::Angle && bucket.High - bucket.Low > kTurnSingle) {
    bucket.Low = bucket.Latest - kHalfTurnSingle;
    bucket.High = bucket.Latest + kHalfTurnSingle;
  }
}

/// Draws an unwrapped path into a scale, on every turn on which the scale shows some of it.
class TracePen {
 public:
  TracePen(const TraceFrame& frame, TraceLine& line) : m_frame(frame), m_line(line) {}

  void MoveTo(double x, double value) {
    m_x = x;
    m_value = Folded(value);
    m_open = false;
  }

  void LineTo(double x, double value) {
    const double to = m_frame.Scale.Circular() ? m_value + std::remainder(value - m_value, kTurn) : value;
    const double end = Folded(to);
    // The piece that begins at the last point comes first, the one that ends at the new point last.
    Turns(std::min(m_value, to), std::max(m_value, to), end < to,
          [&](double turn) { Piece(m_x, m_value + turn, x, to + turn); });
    m_x = x;
    m_value = end;
  }

  void Dot(double diameter) {
    if (m_value >= m_frame.Scale.Low && m_value <= m_frame.Scale.High) {
      m_line.Dots.push_back({{m_x, m_frame.Y(m_value)}, diameter});
    }
  }

  void Bar(double x, double width, double low, double high) {
    Turns(low, high, false, [&](double turn) {
      const double top = m_frame.Y(std::min(high + turn, m_frame.Scale.High));
      const double bottom = m_frame.Y(std::max(low + turn, m_frame.Scale.Low));
      const double left = std::max(x, m_frame.Plot.X);
      const double right = std::min(x + width, m_frame.Plot.Right());
      if (bottom > top && right > left) {
        m_line.Bars.push_back({left, top, right - left, bottom - top});
      }
    });
  }

 private:
  double Folded(double value) const {
    const double low = m_frame.Scale.Low;
    const bool fits = !m_frame.Scale.Circular() || (value >= low && value < low + kTurn);
    return fits ? value : OnTurnAbove(value, low);
  }

  /// Calls `draw` with every whole number of turns [deg] that brings an interval to where the scale shows it.
  template <class Draw>
  void Turns(double low, double high, bool downwards, Draw draw) const {
    const ValueScale& scale = m_frame.Scale;
    if (!scale.Circular()) {
      if (high >= scale.Low && low <= scale.High) {
        draw(0.0);
      }
      return;
    }
    const auto first = static_cast<int>(std::ceil((scale.Low - high) / kTurn));
    const auto last = static_cast<int>(std::floor((scale.High - low) / kTurn));
    for (int turn = first; turn <= last; ++turn) {
      draw((downwards ? first + last - turn : turn) * kTurn);
    }
  }

  /// A straight piece, cut at the edges of the plot.
  void Piece(double x0, double v0, double x1, double v1) {
    double from = 0.0;
    double to = 1.0;
    if (v0 != v1) {
      double low = (m_frame.Scale.Low - v0) / (v1 - v0);
      double high = (m_frame.Scale.High - v0) / (v1 - v0);
      if (low > high) {
        std::swap(low, high);
      }
      from = std::max(from, low);
      to = std::min(to, high);
    }
    if (x0 < m_frame.Plot.X) {
      from = std::max(from, (m_frame.Plot.X - x0) / (x1 - x0));
    }
    if (from >= to) {
      return;
    }
    const auto at = [&](double part) {
      return Point{x0 + (x1 - x0) * part, m_frame.Y(v0 + (v1 - v0) * part)};
    };
    const Point begin = at(from);
    if (!m_open || !(m_line.Points.back() == begin)) {
      m_open = false;
      Append(begin);
    }
    Append(to == 1.0 ? Point{x1, m_frame.Y(v1)} : at(to));
  }

  void Append(const Point& point) {
    if (!m_open) {
      m_line.Starts.push_back(m_line.Points.size());
      m_open = true;
    }
    m_line.Points.push_back(point);
  }

  const TraceFrame& m_frame;
  TraceLine& m_line;
  double m_x = 0.0;
  double m_value = 0.0;
  bool m_open = false;  ///< the last polyline may go on
};

/// As large as fits between the columns beside it, so that single values in a row do not make a thick line.
double DotDiameter(const TraceFrame& frame, const std::vector<TraceBucket>& buckets, std::size_t at) {
  constexpr double kLeast = 2.0;
  std::int64_t slots = std::numeric_limits<std::int64_t>::max();
  if (at > 0) {
    slots = buckets[at].Slot - buckets[at - 1].Slot;
  }
  if (at + 1 < buckets.size()) {
    slots = std::min(slots, buckets[at + 1].Slot - buckets[at].Slot);
  }
  return std::clamp(static_cast<double>(slots) * frame.SlotWidth, kLeast, ChartDot::kDiameter);
}

}  // namespace

void GatherBuckets(const StripChartData& data, const StripChartData::Trace& trace, std::int64_t first,
                   std::int64_t last, std::int64_t perBucket, std::vector<TraceBucket>& buckets) {
  buckets.clear();
  if (data.LastSlot() == StripChartData::kNone) {
    return;
  }
  first = std::max(first, data.FirstSlot());
  last = std::min(last, data.LastSlot());
  bool before = first > data.FirstSlot() && !trace.Slots.At(data.Place(first - 1)).Empty();
  std::size_t place = last >= first ? data.Place(first) : 0;
  std::int64_t bucketEnd = first;
  bool open = false;  // the bucket that `slot` falls into has values already
  for (std::int64_t slot = first; slot <= last; ++slot) {
    if (slot >= bucketEnd) {
      bucketEnd = slot / perBucket * perBucket + perBucket;
      open = false;
    }
    const TraceSlot& sample = trace.Slots.At(place);
    const bool empty = sample.Empty();
    if (!empty && open) {
      Join(buckets.back(), sample, trace.Kind);
    } else if (!empty) {
      const std::int64_t begin = bucketEnd - perBucket;
      buckets.push_back(
          {begin, sample.Latest, sample.Low, sample.High, before && slot == std::max(begin, first)});
      open = true;
    }
    before = !empty;
    place = place + 1 == trace.Slots.Size() ? 0 : place + 1;
  }
}

void TraceBuckets(const TraceFrame& frame, const std::vector<TraceBucket>& buckets, std::size_t begin,
                  std::size_t end, TraceLine& line) {
  line.Clear();
  TracePen pen(frame, line);
  const double width = frame.SlotWidth * static_cast<double>(frame.PerBucket);
  const auto centre = [&](const TraceBucket& bucket) {
    return frame.X(static_cast<double>(bucket.Slot)) + width / 2.0;
  };
  for (std::size_t i = begin; i < end; ++i) {
    const TraceBucket& bucket = buckets[i];
    const double x = centre(bucket);
    if (bucket.High > bucket.Low) {
      pen.Bar(x - width / 2.0, width, static_cast<double>(bucket.Low), static_cast<double>(bucket.High));
    }
    const bool joined = bucket.Joined && i > 0;
    if (joined) {
      if (i == begin) {
        pen.MoveTo(centre(buckets[i - 1]), static_cast<double>(buckets[i - 1].Latest));
      }
      pen.LineTo(x, static_cast<double>(bucket.Latest));
    } else {
      pen.MoveTo(x, static_cast<double>(bucket.Latest));
      const bool alone = i + 1 == buckets.size() || !buckets[i + 1].Joined;
      if (alone) {
        pen.Dot(DotDiameter(frame, buckets, i));
      }
    }
  }
}

}  // namespace veerwatch
