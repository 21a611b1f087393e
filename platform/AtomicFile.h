// Files that are replaced in one step.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace veerwatch {

/// Writes `content` to a new file beside `file`, onto the disk, and puts it in the place of `file` in one
/// step; a link stays a link and its target is replaced. Makes the folder where it is missing. On any error
/// the old file stays as it was and the new one is removed. Nothing when done, else what went wrong, as one
/// line.
std::optional<std::string> WriteAtomically(const std::filesystem::path& file, std::string_view content);

}  // namespace veerwatch
