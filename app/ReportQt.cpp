#include "app/ReportQt.h"

#include <QAction>
#include <QObject>
#include <QSysInfo>
#include <optional>
#include <utility>

#include "app/Report.h"
#include "platform/AtomicFile.h"
#include "platform/Language.h"

namespace veerwatch {

std::string ToolkitText() { return std::string("Qt ") + qVersion(); }

std::string SystemText() {
  return QStringLiteral("%1, %2 %3, %4")
      .arg(QSysInfo::prettyProductName(), QSysInfo::kernelType(), QSysInfo::kernelVersion(),
           QSysInfo::currentCpuArchitecture())
      .toStdString();
}

ReportQt::ReportQt(const MainWindowParts& parts, const frmMainMenu& menu, Helm& helm, WindowDialogs& asks,
                   std::function<Profile()> present)
    : m_parts(parts),
      m_helm(helm),
      m_asks(asks),
      m_present(std::move(present)),
      m_log(helm.Observers(), parts.Time),
      m_diary(helm.Observers(), parts.Time) {
  QObject::connect(menu.mnuHelpReport, &QAction::triggered, menu.mnuHelpReport, [this] { Write(); });
}

void ReportQt::Write() const {
  m_asks.ExportFile(Tr("Save Report"), Tr("Report (*.txt)"), "veerwatch-report.txt",
                    [this](const std::optional<std::string>& file) {
                      if (!file) {
                        return;
                      }
                      const Profile settings = m_present();
                      const std::string text =
                          ReportText({m_parts.Time.Now().Wall, VEERWATCH_VERSION, ToolkitText(), SystemText(),
                                      settings, m_helm.Now(), "", m_log.SentenceLines(), m_diary.Lines()});
                      if (const auto trouble = WriteAtomically(*file, text)) {
                        m_asks.Inform(Tr("Save Report"), *trouble);
                      }
                    });
}

}  // namespace veerwatch
