// What suits most boats and is not the default, since a profile of before behaves as before: each setting
// with what is set now, what is better and why, and the way there.
#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "settings/Settings.h"

namespace veerwatch {

/// The settings that are compared and set; `SmoothWinds` is the polar's choice between two wind speeds.
struct RecommendedNow {
  Settings& All;
  bool& SmoothWinds;
};

/// The same to be looked at only.
struct RecommendedSeen {
  const Settings& All;
  bool SmoothWinds;
};

struct Recommendation {
  const char* Section;  ///< of the profile
  const char* Key;
  const char* What;    ///< the setting, as "Method"; for Tr, as the next two
  const char* Better;  ///< what it should be, as "Direction"
  const char* Reason;  ///< one sentence
  /// What is set now, in the words of Better where they are the same.
  std::string (*Now)(const RecommendedSeen& seen);
  /// Nothing would be better.
  bool (*Holds)(const RecommendedSeen& seen);
  void (*Set)(const RecommendedNow& now);
};

inline constexpr std::size_t kRecommendationCount = 11;

/// In the order in which they are shown.
const std::array<Recommendation, kRecommendationCount>& Recommendations();

/// The one of RecommendedNow::SmoothWinds.
const Recommendation& SmoothWindsRecommendation();

/// Which of them are chosen, in their order.
using RecommendedTicks = std::array<bool, kRecommendationCount>;

/// Sets what is ticked and does not hold yet.
void ApplyRecommended(const RecommendedTicks& ticks, const RecommendedNow& now);

}  // namespace veerwatch
