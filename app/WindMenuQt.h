// "Options > Wind": the wind functions of Track with their limits, and the keys that dodge. What a function
// has to say once stands among the notices.
#pragma once

#include <QMainWindow>
#include <QShortcut>
#include <functional>
#include <string>
#include <vector>

#include "app/frmMainCommands.h"
#include "helm/Helm.h"
#include "settings/Settings.h"

namespace veerwatch {

class WindMenuQt final : private HelmObserver {
 public:
  /// Whom to give the text of a function; "" when there is nothing more to say.
  using Notice = std::function<void(const std::string& text)>;

  /// All of them outlive this.
  WindMenuQt(QMainWindow& window, const frmMainMenu& menu, Settings& settings, Helm& helm, Notice notice);

  /// Shows the settings, which were read anew.
  void Reload();

 private:
  void ShowState();
  void AskLimits();
  std::string TextOf(WindSays what) const;

  void OnWindSays(WindSays what) override;
  void OnTrackMode(TrackMode mode) override;
  void OnTick() override { ShowState(); }

  QMainWindow& m_window;
  Settings& m_settings;
  Helm& m_helm;
  Notice m_notice;
  struct Choice {
    QAction* Command;
    bool Settings::*Chosen;
  };
  std::vector<Choice> m_choices;
  QAction* mnuWindLast;
  std::vector<QShortcut*> m_dodges;
  HelmObservers::Membership m_told;
};

}  // namespace veerwatch
