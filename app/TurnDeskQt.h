// Turns that are followed to their end, as the user has them: Ctrl+T and Ctrl+J while tracking, the dialog's
// "Then track", the window with "Stop", and Escape, which ends any turn wherever the keyboard is.
#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "app/frmMainCommands.h"
#include "helm/MainWindowApi.h"
#include "platform/Dialogs.h"
#include "tack/frmTack.h"
#include "tack/frmTurn.h"

namespace veerwatch {

class TurnDeskQt final : public QObject, public FollowedTurns {
 public:
  /// What the desk works with; everything outlives it.
  struct Parts {
    MainWindowApi& Main;
    TurnRun& Run;
    WindowDialogs& Asks;  ///< of the main window
    QWidget& Window;      ///< the main window
    const frmMainMenu& Menu;
    /// One line for the status bar.
    std::function<void(const std::string&)> Say;
    /// The manoeuvre dialog, made where it is not there yet.
    std::function<frmTack&()> Tack;
    /// The manoeuvre dialog where it is there already, else null.
    std::function<frmTack*()> TackMade;
    /// The polar's best angle to windward or to leeward for the wind of now; nothing where it has none.
    std::function<std::optional<TurnAim>(bool upwind)> Best;
  };
  explicit TurnDeskQt(Parts parts);
  ~TurnDeskQt() override;

  /// A turn of a key: begins at once, or after a question.
  void KeyTurn(ManoeuvreKind kind);
  /// Ends any turn that runs; false where none does.
  bool Stop();

  TurnPlan Plan(const TurnAsk& ask, TackAngle angle, const HelmNow& now) override;
  void Begin(const TurnPlan& plan) override;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  TurnPlan KeyPlan(ManoeuvreKind kind);
  /// The key's turn, or why it cannot be made; `asked` is the question that the user has said Yes to.
  void KeyBegin(ManoeuvreKind kind, const std::string& asked);
  void Show();

  Parts m_parts;
  QWidget* m_opener;
  std::unique_ptr<frmTurn> m_window;  ///< null until the first such turn
};

}  // namespace veerwatch
