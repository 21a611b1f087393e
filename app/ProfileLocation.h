// Where the profile file lies. Standard library only.
#pragma once

#include <filesystem>

namespace veerwatch {

/// "Veerwatch.ini" in `programFolder`, beside the program; but for an `installed` copy, or where that folder
/// is not `programFolderWritable`, "veerwatch/Veerwatch.ini" in `configFolder`, the user's folder for
/// settings.
std::filesystem::path ProfileLocation(const std::filesystem::path& programFolder, bool installed,
                                      const std::filesystem::path& configFolder, bool programFolderWritable);

}  // namespace veerwatch
