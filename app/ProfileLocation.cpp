#include "app/ProfileLocation.h"

#include <string>
#include <system_error>

#include "app/Settings.h"

namespace veerwatch {

namespace {

/// One spelling per folder: links followed, no "." and "..", no slash at the end.
std::filesystem::path Canonical(const std::filesystem::path& folder) {
  std::error_code error;
  std::filesystem::path path = std::filesystem::weakly_canonical(folder, error);
  if (error) {
    path = folder.lexically_normal();
  }
  return path.has_filename() ? path : path.parent_path();
}

}  // namespace

std::filesystem::path ProfileLocation(const std::filesystem::path& programFolder,
                                      const std::filesystem::path& installFolder,
                                      const std::filesystem::path& configFolder, bool programFolderWritable) {
  const std::string name = std::string(kApplicationTitle) + ".ini";
  if (programFolderWritable && Canonical(programFolder) != Canonical(installFolder)) {
    return programFolder / name;
  }
  return configFolder / "veerwatch" / name;
}

}  // namespace veerwatch
