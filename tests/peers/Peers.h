// Where script/peers has put the programs that others wrote.
#pragma once

#include <filesystem>

namespace veerwatch {

inline const std::filesystem::path kModules = std::filesystem::path(VEERWATCH_PEERS) / "node_modules";
inline const std::filesystem::path kFiles = VEERWATCH_PEER_FILES;

inline constexpr const char* kNotInstalled =
    "the Signal K server is not installed; script/peers does that where npm is there";

inline bool Installed() { return std::filesystem::exists(kModules / "signalk-server" / "package.json"); }

}  // namespace veerwatch
