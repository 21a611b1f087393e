#include "control/TrackAdvice.h"

#include <algorithm>
#include <cmath>

#include "platform/Angles.h"
#include "platform/Language.h"
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
    suggestion.Reason = Filled(Tr("Without a heading only Sentence steers: %1 for %2."),
                               {seconds, WindsASecondText(conditions.WindsASecond)});
  } else if (!conditions.BoatSpeed) {
    const std::string seconds = bandwidth(TrackMethod::Clock, kCalmBandwidth);
    suggestion.Reason = Filled(
        Tr("Without a boat speed Direction does not know the apparent wind: Clock with %1."), {seconds});
  } else if (conditions.Lag <= kSlow) {
    const std::string seconds = bandwidth(TrackMethod::Direction, kCalmBandwidth);
    suggestion.Reason = Filled(
        Tr("Direction holds at %1 without tuning; %2 keep the rudder calm on a boat that answers in %3 s."),
        {WindsASecondText(conditions.WindsASecond), seconds, Text(conditions.Lag)});
  } else {
    const std::string seconds = bandwidth(TrackMethod::Direction, kSlowBandwidth);
    suggestion.Reason = Filled(
        Tr("Direction holds at %1 without tuning; %2 follow closely and cost little rudder on a boat that "
           "takes %3 s to answer."),
        {WindsASecondText(conditions.WindsASecond), seconds, Text(conditions.Lag)});
  }
  return suggestion;
}

std::string WindsASecondText(double rate) {
  const double told = Told(rate);
  return Filled(told == 1.0 ? Tr("%1 wind sentence a second") : Tr("%1 wind sentences a second"),
                {Text(told)});
}

bool TrackSwings(TrackMethod method, double bandwidth, const std::optional<double>& rate) {
  const double told = method == TrackMethod::Sentence && rate ? Told(*rate) : 0.0;
  return told > kLargestRate && bandwidth < kLeastBandwidth * told;
}

std::string TrackSwingsText(TrackMethod method, double bandwidth, const std::optional<double>& rate) {
  return TrackSwings(method, bandwidth, rate)
             ? Filled(Tr("%1: this bandwidth swings; choose Clock"), {WindsASecondText(*rate)})
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
