// The Watch page of the options dialog: what the watch does beside telling, when a value is stale, and how an
// alarm is heard.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <array>
#include <functional>
#include <utility>
#include <vector>

#include "options/OptionControlsQt.h"
#include "options/OptionsForm.h"
#include "settings/AlarmSound.h"

namespace veerwatch {

class WatchPageQt final : public QWidget {
 public:
  explicit WatchPageQt(QWidget* parent);

  void Show(const OptionsForm& form) const;
  void Read(OptionsForm& form) const;

  /// Called with the chosen sound when it is to be tried.
  void Tested(std::function<void(AlarmSound)> handler) { m_tested = std::move(handler); }
  /// Called with each control that the user changes.
  void Changed(const std::function<void(QWidget*)>& handler) const;

  std::array<QCheckBox*, kWatchSwitches.size()> Switches;  ///< in the order of kWatchSwitches
  QComboBox* cmbWatchSound;
  QPushButton* cmdWatchTest;
  EntryLineQt* txtWatchCommand;
  OptionEntryQt* txtWatchStaleWindApparent;
  OptionEntryQt* txtWatchStaleWindTrue;
  OptionEntryQt* txtWatchStaleBoatSpeed;
  OptionEntryQt* txtWatchStaleHeading;
  OptionEntryQt* txtWatchStaleWaypoint;

 private:
  std::vector<BoundEntry> Entries() const;
  QWidget* NewActing();
  QWidget* NewSounding();
  QWidget* NewShowing();

  std::function<void(AlarmSound)> m_tested;
};

}  // namespace veerwatch
