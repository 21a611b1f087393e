#include "control/TrackAdvice.h"

#include <algorithm>
#include <cmath>

#include "platform/Angles.h"
#include "platform/NumberText.h"

namespace veerwatch {

namespace {

constexpr double kSlow = 6.0;  // [s] of boat lag, from which a smaller bandwidth costs hardly any rudder
constexpr double kSlowBandwidth = 40.0;   // [s]
constexpr double kCalmBandwidth = 60.0;   // [s], for each wind sentence a second where they are counted
constexpr double kLargestRate = 1.5;      // [1/s] at which Sentence holds with every usual bandwidth
constexpr double kLeastBandwidth = 40.0;  // [s] for each wind sentence a second
constexpr double kAverage = 2.0;          // samples, of one a second

/// As it is told, so that what is said and what is done agree.
double Told(double rate) { return std::max(std::round(rate * 10.0), 1.0) / 10.0; }

std::string Text(double value) { return ShortestText(ToSingle(value)); }

/// The count that averages over as long a time as kAverage does at one sentence a second.
double CountFor(double rate) {
  return std::max(std::round(1.0 / (1.0 - std::pow(1.0 - 1.0 / kAverage, 1.0 / rate))), kAverage);
}

}  // namespace

TrackSuggestion TrackSuggestionFor(const TrackConditions& conditions) {
  TrackSuggestion suggestion;
  const double rate = Told(conditions.WindsASecond);
  const auto bandwidth = [&suggestion](TrackMethod method, double seconds) {
    suggestion.Method = method;
    suggestion.Bandwidth = ToSingle(seconds);
    return Text(seconds) + " s";
  };
  if (!conditions.Heading) {
    const std::string seconds = bandwidth(TrackMethod::Sentence, std::round(kCalmBandwidth * rate));
    suggestion.WindAverage = ToSingle(CountFor(rate));
    suggestion.Reason = "Without a heading only Sentence steers: " + seconds + " for " +
                        WindsASecondText(conditions.WindsASecond) + ".";
  } else if (!conditions.BoatSpeed) {
    const std::string seconds = bandwidth(TrackMethod::Clock, kCalmBandwidth);
    suggestion.Reason =
        "Without a boat speed Direction does not know the apparent wind: Clock with " + seconds + ".";
  } else if (conditions.Lag <= kSlow) {
    const std::string seconds = bandwidth(TrackMethod::Direction, kCalmBandwidth);
    suggestion.Reason = "Direction holds at " + WindsASecondText(conditions.WindsASecond) +
                        " without tuning; " + seconds + " keep the rudder calm on a boat that answers in " +
                        Text(conditions.Lag) + " s.";
  } else {
    const std::string seconds = bandwidth(TrackMethod::Direction, kSlowBandwidth);
    suggestion.Reason = "Direction holds at " + WindsASecondText(conditions.WindsASecond) +
                        " without tuning; " + seconds +
                        " follow closely and cost little rudder on a boat that takes " +
                        Text(conditions.Lag) + " s to answer.";
  }
  return suggestion;
}

std::string WindsASecondText(double rate) {
  const double told = Told(rate);
  return Text(told) + (told == 1.0 ? " wind sentence a second" : " wind sentences a second");
}

bool TrackSwings(TrackMethod method, double bandwidth, const std::optional<double>& rate) {
  const double told = method == TrackMethod::Sentence && rate ? Told(*rate) : 0.0;
  return told > kLargestRate && bandwidth < kLeastBandwidth * told;
}

std::string TrackSwingsText(TrackMethod method, double bandwidth, const std::optional<double>& rate) {
  return TrackSwings(method, bandwidth, rate)
             ? WindsASecondText(*rate) + ": this bandwidth swings; choose Clock"
             : std::string();
}

std::string TrackSwingsText(const TrackLoop& loop, const Settings& settings) {
  if (settings.m_eTrackMode == TrackMode::Off) {
    return {};
  }
  const bool tracks = settings.m_eTrackMode == TrackMode::Track;
  return TrackSwingsText(tracks ? loop.Tuning().Method : settings.m_eTrackMethod,
                         static_cast<double>(tracks ? loop.Tuning().Bandwidth : settings.m_fTrackBandwidth),
                         loop.WindsASecond());
}

}  // namespace veerwatch
