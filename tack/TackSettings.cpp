#include "tack/TackSettings.h"

#include <cstddef>
#include <string>

namespace veerwatch {

namespace {

constexpr const char* kSection = "Tack Data";

std::string Key(const char* name, std::size_t kind) { return std::string(name) + std::to_string(kind); }

}  // namespace

void TackRecall(const Profile& profile, TackSettings& settings) {
  for (std::size_t kind = 1; kind < settings.Rate.size(); ++kind) {
    profile.ProfileGet(kSection, Key("Rate ", kind), settings.Rate[kind]);
    profile.ProfileGet(kSection, Key("Overshoot ", kind), settings.Overshoot[kind]);
  }
}

void TackStore(Profile& profile, const TackSettings& settings) {
  for (std::size_t kind = 1; kind < settings.Rate.size(); ++kind) {
    profile.ProfileSet(kSection, Key("Rate ", kind), settings.Rate[kind]);
    profile.ProfileSet(kSection, Key("Overshoot ", kind), settings.Overshoot[kind]);
  }
}

}  // namespace veerwatch
