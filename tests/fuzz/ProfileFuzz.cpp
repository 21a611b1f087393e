// Any bytes as a profile: every line that nobody sets survives, and what is set reads back.
#include <unistd.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "app/SettingsProfile.h"
#include "platform/Profile.h"
#include "tests/fuzz/Demand.h"

namespace {

using namespace veerwatch;

/// The file of this process, removed at its end.
struct File {
  std::filesystem::path Path =
      std::filesystem::temp_directory_path() / ("veerwatch-fuzz-" + std::to_string(getpid()) + ".ini");
  ~File() {
    std::error_code ignored;
    std::filesystem::remove(Path, ignored);
  }
};

std::string Written(const Settings& settings) {
  Profile profile;
  RememberedWindows windows;
  ProfileWrite(profile, settings, windows);
  return profile.Content();
}

void Write(const std::filesystem::path& path, const std::string& content) {
  std::ofstream(path, std::ios::binary | std::ios::trunc) << content;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const File file;
  const std::string content(reinterpret_cast<const char*>(data), size);
  Write(file.Path, content);

  Profile profile;
  Demand(profile.Load(file.Path) == Profile::LoadResult::Read);
  Demand(profile.Content() == content);

  Settings settings;
  RememberedWindows windows;
  ProfileRead(profile, settings, windows);
  Demand(settings.m_fAutoPilot >= 0.0F && settings.m_fAutoPilot < 360.0F);
  Demand(settings.DesiredAngle[1] > -180.0F && settings.DesiredAngle[1] <= 180.0F);
  Demand(settings.DesiredAngle[2] > -180.0F && settings.DesiredAngle[2] <= 180.0F);
  Demand(settings.m_fTrackBandwidth > 0.0F && std::isfinite(settings.m_fTrackBandwidth));
  Demand(settings.m_iNmeaPort >= 1 && settings.m_iPilotPort >= 1);

  // A key of a section that no profile holds leaves all that was there in front of it.
  profile.ProfileSet("A section of the test", "Key", "value");
  Demand(profile.Content().compare(0, content.size(), content) == 0);

  // All keys, onto the disk and back: the same settings, and nothing is left to change. It takes most of the
  // time: in one of sixteen.
  constexpr std::size_t kRoundTrip = 16;
  if (size % kRoundTrip != 0) {
    return 0;
  }
  ProfileWrite(profile, settings, windows);
  const std::string full = profile.Content();
  Write(file.Path, full);
  Profile again;
  Demand(again.Load(file.Path) == Profile::LoadResult::Read);
  Demand(again.Content() == full);
  Demand(again.Text("A section of the test", "Key") == "value");
  Settings read;
  ProfileRead(again, read, windows);
  Demand(Written(read) == Written(settings));
  ProfileWrite(again, read, windows);
  Demand(again.Content() == full);
  return 0;
}
