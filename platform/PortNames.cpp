#include "platform/PortNames.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <system_error>

#include "platform/NumberText.h"

namespace veerwatch {

namespace {

constexpr const char* kSection = "Ports";

}  // namespace

std::string PortDevice(const Profile& profile, int number) {
  std::string device = profile.Text(kSection, std::to_string(number));
  if (!device.empty()) {
    return device;
  }
#ifdef _WIN32
  return "COM" + std::to_string(number);
#else
  return "/dev/ttyS" + std::to_string(number - 1);
#endif
}

std::vector<PortEntry> PortEntries(const Profile& profile) {
  std::map<int, std::string> named;
  for (const std::string& key : profile.Keys(kSection)) {
    const std::optional<double> number = StrictDouble(key);
    if (!number || !(*number >= 1.0) || !(*number <= static_cast<double>(INT16_MAX))) {
      continue;
    }
    // As PortDevice asks for it.
    const int whole = static_cast<int>(*number);
    std::string endpoints = key == std::to_string(whole) ? profile.Text(kSection, key) : std::string();
    if (!endpoints.empty()) {
      named.emplace(whole, std::move(endpoints));
    }
  }
  std::vector<PortEntry> entries;
  entries.reserve(named.size());
  for (const auto& [number, endpoints] : named) {
    entries.push_back({number, endpoints});
  }
  return entries;
}

void NamePort(Profile& profile, int number, const std::string& endpoints) {
  profile.ProfileSet(kSection, std::to_string(number), endpoints);
}

void NameNewer(Profile& profile, const std::vector<PortEntry>& before, const std::vector<PortEntry>& now) {
  for (const PortEntry& entry : now) {
    if (std::find(before.begin(), before.end(), entry) == before.end()) {
      NamePort(profile, entry.Number, entry.Endpoints);
    }
  }
}

bool DeviceIsThere(const std::string& path) {
  std::error_code error;
  return std::filesystem::exists(path, error);
}

}  // namespace veerwatch
