// Files that are replaced in one step.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace veerwatch {

/// The file that `file` means behind all links, which need not be there yet; with an error, and `file` or the
/// last link that was followed, where links lead nowhere.
std::filesystem::path LinkTarget(std::filesystem::path file, std::error_code& error);

/// Writes `content` to a new file beside `file`, onto the disk, and puts it in the place of `file` in one
/// step; a link stays a link and its target is replaced. Makes the folder where it is missing. On any error
/// the old file stays as it was and the new one is removed. Nothing when done, else what went wrong, as one
/// line.
std::optional<std::string> WriteAtomically(const std::filesystem::path& file, std::string_view content);

}  // namespace veerwatch
