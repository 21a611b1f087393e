// The assistant "Connect Your Boat..." in the program: opens it, does what it asks for, and offers it in a
// row under the mode bar as long as no profile lies there.
#pragma once

#include <QMainWindow>
#include <QPointer>
#include <QToolBar>
#include <functional>
#include <utility>

#include "app/MainWindowParts.h"
#include "helm/MainWindowApi.h"

namespace veerwatch {

class frmConnect;

class ConnectShowQt final {
 public:
  /// What it works with. Parts, main and window outlive it.
  struct Needs {
    const MainWindowParts& Parts;
    MainWindowApi& Main;
    QWidget& Window;
    /// The polar's choice between two wind speeds, and sets it.
    std::function<bool()> SmoothWinds;
    std::function<void(bool smooth)> SetSmoothWinds;
    std::function<void()> Changed;  ///< settings were changed: other windows show them
  };

  explicit ConnectShowQt(Needs needs);
  ~ConnectShowQt();
  ConnectShowQt(const ConnectShowQt&) = delete;
  ConnectShowQt& operator=(const ConnectShowQt&) = delete;

  /// It can listen to ports.
  bool Can() const { return static_cast<bool>(m_needs.Parts.Ports); }
  void Show();
  /// Cancels it.
  void Hide();
  /// Brings back what it only tries.
  void EndTrial();
  /// Offers it in `window`, where no profile lies.
  void Offer(QMainWindow& window);

 private:
  bool NoProfile() const;
  void Simulate();
  void Saved();
  void DropOffer();

  Needs m_needs;
  QPointer<frmConnect> m_window;
  QPointer<QToolBar> m_offer;
};

}  // namespace veerwatch
