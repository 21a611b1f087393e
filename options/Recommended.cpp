#include "options/Recommended.h"

#include <algorithm>
#include <string_view>

#include "platform/Language.h"
#include "platform/NumberText.h"

namespace veerwatch {

namespace {

using Seen = RecommendedSeen;
using Now = RecommendedNow;

// What goes with the method Direction (docs/control.md).
constexpr float kDirectionBandwidth = 60.0F;  // [s]
constexpr float kAlarmAverage = 5.0F;         // [s]

template <bool Settings::*Truth>
Recommendation Switch(const char* section, const char* key, const char* what, const char* reason) {
  return {section,
          key,
          what,
          TrMark("on"),
          reason,
          [](const Seen& seen) -> std::string { return seen.All.*Truth ? Tr("on") : Tr("off"); },
          [](const Seen& seen) { return seen.All.*Truth; },
          [](const Now& now) { now.All.*Truth = true; }};
}

std::string MethodNow(const Seen& seen) {
  switch (seen.All.m_eTrackMethod) {
    case TrackMethod::Direction:
      return Tr("Direction");
    case TrackMethod::Clock:
      return Tr("Clock");
    default:
      return Tr("Sentence");
  }
}

void SetDirection(const Now& now) {
  now.All.m_eTrackMethod = TrackMethod::Direction;
  now.All.m_fTrackBandwidth = kDirectionBandwidth;
}

std::string CadenceNow(const Seen& seen) {
  return seen.All.m_iPilotCadence == 0
             ? Tr("with each wind")
             : Filled(Tr("%1 a second"), {std::to_string(seen.All.m_iPilotCadence)});
}

std::string AlarmAverageNow(const Seen& seen) {
  return seen.All.m_fTrackAlarmAverage == 0.0F
             ? Tr("each sentence by itself")
             : Filled(Tr("over %1 s"), {ShortestText(seen.All.m_fTrackAlarmAverage)});
}

std::array<Recommendation, kRecommendationCount> NewRecommendations() {
  return {{
      {"Track", "Method", TrMark("Tracking method"), TrMark("Direction"),
       TrMark("It holds the wind most closely of the three and needs no tuning; sets the bandwidth to 60 s "
              "with it."),
       MethodNow, [](const Seen& seen) { return seen.All.m_eTrackMethod == TrackMethod::Direction; },
       SetDirection},
      Switch<&Settings::m_bWatchAct>(
          "Watch", "Act", TrMark("The watch acts"),
          TrMark("What is stale, lost or wrong does not steer; off, it is only told.")),
      {"Watch", "Sound", TrMark("Alarm sound"), TrMark("Tone"),
       TrMark("A tone is heard until somebody answers; many computers have no beep."),
       [](const Seen& seen) -> std::string {
         return seen.All.m_eWatchSound == AlarmSound::Tone ? Tr("Tone") : Tr("Beep");
       },
       [](const Seen& seen) { return seen.All.m_eWatchSound == AlarmSound::Tone; },
       [](const Now& now) { now.All.m_eWatchSound = AlarmSound::Tone; }},
      Switch<&Settings::m_bWatchBlankLost>(
          "Watch", "Blank Lost", TrMark("Lost values blank"),
          TrMark("Nobody takes an old figure for one of now: it becomes \"--\".")),
      Switch<&Settings::m_bCarefulEntry>(
          "View", "Careful Entry", TrMark("Careful entry"),
          TrMark("An emptied box does not steer to 0, and a large typed change is asked about.")),
      {"Nmea", "Invalid Status", TrMark("Status V"), TrMark("Ignore"),
       TrMark("An instrument that calls its own value invalid is believed."),
       [](const Seen& seen) -> std::string {
         return seen.All.m_eNmeaInvalidStatus == InvalidRule::Ignore ? Tr("Ignore") : Tr("Use");
       },
       [](const Seen& seen) { return seen.All.m_eNmeaInvalidStatus == InvalidRule::Ignore; },
       [](const Now& now) { now.All.m_eNmeaInvalidStatus = InvalidRule::Ignore; }},
      {"Nmea", "Checksum", TrMark("Checksum"), TrMark("Require"),
       TrMark("A damaged sentence can look like a good one; leave it where an old instrument sends no "
              "checksum."),
       [](const Seen& seen) -> std::string {
         return seen.All.m_eNmeaChecksum == ChecksumRule::Require ? Tr("Require") : Tr("Accept missing");
       },
       [](const Seen& seen) { return seen.All.m_eNmeaChecksum == ChecksumRule::Require; },
       [](const Now& now) { now.All.m_eNmeaChecksum = ChecksumRule::Require; }},
      {"Nmea", "Foreign Lines", TrMark("Foreign lines"), TrMark("List"),
       TrMark("The lines of an AIS receiver are no errors."),
       [](const Seen& seen) -> std::string {
         return seen.All.m_eNmeaForeignLines == ForeignRule::List ? Tr("List") : Tr("Error");
       },
       [](const Seen& seen) { return seen.All.m_eNmeaForeignLines == ForeignRule::List; },
       [](const Now& now) { now.All.m_eNmeaForeignLines = ForeignRule::List; }},
      {"Pilot", "Cadence", TrMark("Sentences to the pilot"), TrMark("1 a second"),
       TrMark("A pilot wants its bearing evenly, also between two winds, and no more than it can read."),
       CadenceNow, [](const Seen& seen) { return seen.All.m_iPilotCadence >= 1; },
       [](const Now& now) { now.All.m_iPilotCadence = 1; }},
      {"Polar Data", "Smooth Between Winds", TrMark("Polar between winds"), TrMark("smooth"),
       TrMark("The polar's speed does not jump from one wind of its table to the next."),
       [](const Seen& seen) -> std::string { return seen.SmoothWinds ? Tr("smooth") : Tr("in steps"); },
       [](const Seen& seen) { return seen.SmoothWinds; }, [](const Now& now) { now.SmoothWinds = true; }},
      {"Track", "Alarm Average", TrMark("Tracking alarm"), TrMark("over 5 s"),
       TrMark("The alarm averages the error, so that a single gust does not set it off."), AlarmAverageNow,
       [](const Seen& seen) { return seen.All.m_fTrackAlarmAverage >= kAlarmAverage; },
       [](const Now& now) { now.All.m_fTrackAlarmAverage = kAlarmAverage; }},
  }};
}

}  // namespace

const std::array<Recommendation, kRecommendationCount>& Recommendations() {
  static const auto kAll = NewRecommendations();
  return kAll;
}

const Recommendation& SmoothWindsRecommendation() {
  const auto& all = Recommendations();
  return *std::find_if(all.begin(), all.end(), [](const Recommendation& each) {
    return std::string_view(each.Key) == "Smooth Between Winds";
  });
}

void ApplyRecommended(const RecommendedTicks& ticks, const RecommendedNow& now) {
  for (std::size_t i = 0; i < kRecommendationCount; ++i) {
    const Recommendation& each = Recommendations()[i];
    if (ticks[i] && !each.Holds({now.All, now.SmoothWinds})) {
      each.Set(now);
    }
  }
}

}  // namespace veerwatch
