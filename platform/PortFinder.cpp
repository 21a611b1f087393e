#include "platform/PortFinder.h"

#include <system_error>

namespace veerwatch {

std::string LastingName(const std::string& device, const std::filesystem::path& folder) {
  std::error_code error;
  std::string name;
  for (std::filesystem::directory_iterator each(folder, error), end; !error && each != end;
       each.increment(error)) {
    std::error_code unlike;
    if (std::filesystem::equivalent(each->path(), device, unlike) && !unlike &&
        (name.empty() || each->path().string() < name)) {
      name = each->path().string();
    }
  }
  return name.empty() ? device : name;
}

}  // namespace veerwatch
