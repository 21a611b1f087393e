// Files that are replaced in one step.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace veerwatch {

/// Why `file`, links followed, can be no target of writing: "it is a folder", "it is a pipe", "it is a
/// socket", "it is a device", "it is no plain file"; "" for a plain file and where there is none.
std::string_view OtherKind(const std::filesystem::path& file);

/// The file that `file` means behind all links, which need not be there yet; with an error, and `file` or the
/// last link that was followed, where links lead nowhere.
std::filesystem::path LinkTarget(std::filesystem::path file, std::error_code& error);

/// Writes `content` to a new file beside `file`, onto the disk, and puts it in the place of `file` in one
/// step; a link stays a link and its target is replaced. The new file has a random name that nobody had, and
/// the permissions of the old one. Makes the folder where it is missing. What is of OtherKind is neither
/// opened nor replaced. On any error the old file stays as it was and the new one is removed. Nothing when
/// done, else what went wrong, as one line without control characters.
std::optional<std::string> WriteAtomically(const std::filesystem::path& file, std::string_view content);

}  // namespace veerwatch
