// The language of the windows; the key "Language" of section "View". Standard library only.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace veerwatch {

enum class WindowLanguage : std::int16_t { Desktop = 0, English = 1, German = 2 };

/// How the profile names them, and InstallLanguage; nothing for the desktop's.
inline constexpr std::array<const char*, 3> kWindowLanguages{"", "en", "de"};

constexpr const char* WindowLanguageName(WindowLanguage language) {
  return kWindowLanguages[static_cast<std::size_t>(language)];
}

}  // namespace veerwatch
