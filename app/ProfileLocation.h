// Where the profile file lies. Standard library only.
#pragma once

#include <filesystem>

namespace veerwatch {

/// "Veerwatch.ini" in `programFolder`, beside the program; but for an installed copy, whose folder is
/// `installFolder` or not `programFolderWritable`, "veerwatch/Veerwatch.ini" in `configFolder`, the user's
/// folder for settings.
std::filesystem::path ProfileLocation(const std::filesystem::path& programFolder,
                                      const std::filesystem::path& installFolder,
                                      const std::filesystem::path& configFolder, bool programFolderWritable);

}  // namespace veerwatch
