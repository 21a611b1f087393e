// The desktop's session around the program: the settings are kept whenever the session is saved, which may be
// long before its end or for a log-out that is called off; only when the session ends the program closes,
// then without a question.
#pragma once

#include <QObject>

class QApplication;

namespace veerwatch {

class frmMain;

class SessionQt final : public QObject {
 public:
  /// Both outlive it.
  SessionQt(QApplication& application, frmMain& window);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  frmMain& m_window;
};

}  // namespace veerwatch
