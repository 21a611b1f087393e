// "veerwatch --diagnose": the report without a window.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "platform/Profile.h"
#include "platform/ProfileLock.h"
#include "platform/SystemClock.h"

namespace veerwatch {

class DiagnosisQt final {
 public:
  /// Listens to the ports of the profile and sends nothing; ends the application's loop after ten seconds.
  /// Where another program has the profile, it has the ports too: then nothing is listened to, and the loop
  /// ends at once.
  explicit DiagnosisQt(const std::filesystem::path& profileFile);
  ~DiagnosisQt();
  DiagnosisQt(const DiagnosisQt&) = delete;
  DiagnosisQt& operator=(const DiagnosisQt&) = delete;

  /// The report, after the loop has ended.
  std::string Text() const;

 private:
  struct Ears;

  std::filesystem::path m_file;
  SystemClock m_clock;
  Profile m_profile;
  ProfileLock m_lock;
  Profile::LoadResult m_loaded;
  std::unique_ptr<Ears> m_ears;  ///< null where nothing is listened to
};

}  // namespace veerwatch
