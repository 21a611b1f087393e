// The frame "Autopilot" on the Output page of the options dialog: what the pilot is sent, how often, and the
// sentences that would leave now.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <array>
#include <functional>
#include <vector>

#include "options/OptionControlsQt.h"
#include "options/OptionsForm.h"
#include "options/PilotChoices.h"

namespace veerwatch {

class PilotFrameQt final : public QGroupBox {
 public:
  explicit PilotFrameQt(QWidget* parent);

  void Show(const OptionsForm& form);
  void Read(OptionsForm& form) const;
  /// What would leave by what is chosen here.
  void Preview(const PilotPreview& preview) const;

  /// Called with each control that changes.
  void Changed(const std::function<void(QWidget*)>& handler) const;

  QComboBox* cmbPilotProfile;
  QComboBox* cmbPilotCadence;
  OptionEntryQt* txtPilotOwnTalker;
  QComboBox* cmbPilotOwnBearing;
  QComboBox* cmbPilotOwnFields;
  QComboBox* cmbPilotOwnDecimals;
  OptionEntryQt* txtPilotOwnPoint;
  std::array<QCheckBox*, kPilotOwnSwitches.size()> Sends;  ///< in the order of kPilotOwnSwitches
  QCheckBox* chkPilotInvalidWhenLost;
  OptionEntryQt* txtPilotInvalidSeconds;
  QPushButton* cmdPilotTest;
  QLabel* lblPilotSentences;  ///< that would leave now, a line each
  QLabel* lblPilotNote;       ///< why some do not, or how full the line is

 private:
  void NameControls();
  QLayout* ProfileRow();
  QLayout* OwnRow();
  QLayout* SendsRow();
  QLayout* InvalidRow();
  std::vector<BoundEntry> Entries() const;
  std::vector<QComboBox*> Combos() const;
  std::vector<QCheckBox*> Checks() const;
  /// Own's controls answer with Own alone, the seconds with their tick.
  void Enable() const;
};

}  // namespace veerwatch
