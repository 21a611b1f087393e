#include "app/SessionQt.h"

#include <QApplication>
#include <QEvent>
#include <QSessionManager>

#include "app/ProfileDesk.h"
#include "app/frmMain.h"

namespace veerwatch {

QStringList RestartWords(QStringList words, const ProfileDesk& profiles) {
  if (!profiles.First()) {
    // Of two profiles on the command line the last one counts.
    words << QStringLiteral("--profile") << QString::fromStdString(profiles.File().string());
  }
  return words;
}

SessionQt::SessionQt(QApplication& application, frmMain& window, const ProfileDesk& profiles)
    : m_window(window), m_profiles(profiles) {
  const auto save = [this](QSessionManager&) { m_window.KeepSettings(); };
  // The next session starts it with the same profile. Some save no more than this.
  const auto remember = [this](QSessionManager& manager) {
    m_window.KeepSettings();
    manager.setRestartCommand(RestartWords(QApplication::arguments(), m_profiles)
                              << QStringLiteral("-session")
                              << manager.sessionId() + QLatin1Char('_') + manager.sessionKey());
  };
  // Directly: the session waits only while these run.
  connect(&application, &QGuiApplication::commitDataRequest, this, save, Qt::DirectConnection);
  connect(&application, &QGuiApplication::saveStateRequest, this, remember, Qt::DirectConnection);
  application.installEventFilter(this);
}

bool SessionQt::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Quit && watched == QCoreApplication::instance()) {
    m_window.CloseUnasked();
  }
  return false;
}

}  // namespace veerwatch
