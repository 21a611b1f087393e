#include "app/ProfileLocation.h"

#include <string>

#include "settings/Settings.h"

namespace veerwatch {

std::filesystem::path ProfileLocation(const std::filesystem::path& programFolder, bool installed,
                                      const std::filesystem::path& configFolder, bool programFolderWritable) {
  const std::string name = std::string(kApplicationTitle) + ".ini";
  if (programFolderWritable && !installed) {
    return programFolder / name;
  }
  return configFolder / "veerwatch" / name;
}

}  // namespace veerwatch
