// "Help > Save Report...": looks on at the helm all the time, and writes the report where the user wants it.
#pragma once

#include <functional>
#include <string>

#include "app/MainWindowParts.h"
#include "app/ReportLog.h"
#include "app/WatchDiary.h"
#include "app/frmMainCommands.h"
#include "helm/Helm.h"
#include "platform/Dialogs.h"
#include "platform/Profile.h"

namespace veerwatch {

class ReportQt final {
 public:
  /// `present` is the profile as it would be written now. All of them outlive this.
  ReportQt(const MainWindowParts& parts, const frmMainMenu& menu, Helm& helm, WindowDialogs& asks,
           std::function<Profile()> present);

  /// What the watch found, and the file beside the profile in use.
  WatchDiary& Diary() { return m_diary; }

 private:
  void Write() const;

  const MainWindowParts& m_parts;
  Helm& m_helm;
  WindowDialogs& m_asks;
  std::function<Profile()> m_present;
  ReportLog m_log;
  WatchDiary m_diary;
};

/// The toolkit and its version.
std::string ToolkitText();
/// The operating system, its kernel and the processor; no name of the computer.
std::string SystemText();

}  // namespace veerwatch
