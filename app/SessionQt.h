// The desktop's session around the program: the settings are kept whenever the session is saved, which may be
// long before its end or for a log-out that is called off; only when the session ends the program closes,
// then without a question.
#pragma once

#include <QObject>
#include <QStringList>

class QApplication;

namespace veerwatch {

class ProfileDesk;
class frmMain;

/// The command that starts the program again: `words` as it was started, and the profile in use where it is
/// another one than the first.
QStringList RestartWords(QStringList words, const ProfileDesk& profiles);

class SessionQt final : public QObject {
 public:
  /// All of them outlive it.
  SessionQt(QApplication& application, frmMain& window, const ProfileDesk& profiles);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  frmMain& m_window;
  const ProfileDesk& m_profiles;
};

}  // namespace veerwatch
