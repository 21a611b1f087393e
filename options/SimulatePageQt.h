// The Simulate page of the options dialog: the simulated boat, its wind and its waypoint.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QScrollBar>
#include <array>
#include <functional>

#include "options/OptionControlsQt.h"
#include "options/OptionsForm.h"
#include "options/SimulateSpinner.h"

namespace veerwatch {

class SimulatePageQt final : public QWidget {
 public:
  explicit SimulatePageQt(QWidget* parent);

  /// Also shows or hides the boxes: they are there while the simulator is on.
  void Show(const OptionsForm& form) const;
  void Read(OptionsForm& form) const;

  /// Shows the waypoint at the time in the box.
  void ShowWaypoint(float bearing, float range) const;

  /// Whom to tell when the time, or the angle, was stepped with a scroll bar.
  void Stepped(const std::function<void()>& time, const std::function<void()>& angle);

  /// Whom to tell when a tick or a list is changed.
  void Changed(const std::function<void(QWidget*)>& handler);

  /// The boxes whose change leaves something to apply.
  std::array<OptionEntryQt*, 15> Marking() const;

  QCheckBox* chkSimulate;
  QGroupBox* frmSimulate;
  QComboBox* cmbSimulateModel;
  QComboBox* cmbSimulatePilot;  ///< used with the model Boat
  QComboBox* cmbSimulateSea;    ///< the same
  // Used with the model Boat as well.
  OptionEntryQt* txtSimulatePilotLag;
  OptionEntryQt* txtSimulateGusts;
  OptionEntryQt* txtSimulateShifts;
  OptionEntryQt* txtSimulateLeeway;
  OptionEntryQt* txtSimulateSeed;
  OptionEntryQt* txtSimulateBoatSpeed;
  OptionEntryQt* txtSimulateTrueWindAngle;
  std::array<QScrollBar*, 2> vscSimulateTrueWindAngle;  ///< coarse, fine
  OptionEntryQt* txtSimulateTrueWindSpeed;
  OptionEntryQt* txtSimulateVariation;
  OptionEntryQt* txtSimulateCompassOffset;
  OptionEntryQt* txtSimulateNoiseSpeed;
  OptionEntryQt* txtSimulateNoiseAngle;
  OptionEntryQt* txtSimulateWaypointBrg;
  OptionEntryQt* txtSimulateWaypointRng;
  OptionEntryQt* txtSimulateTime;
  std::array<QScrollBar*, 2> vscSimulateTime;  ///< coarse, fine
  OptionResultQt* lblSimulateWaypointBrg;
  OptionResultQt* lblSimulateWaypointRng;
  QCheckBox* chkSimulateAutoApply;

 private:
  /// The boxes for texts of the form.
  std::vector<BoundEntry> Entries() const;

  using Step = std::string (*)(std::string_view, SpinnerStep, int);

  std::array<QScrollBar*, 2> NewSpinners(const char* name, const char* hint, const char* unit);
  QComboBox* NewList(const char* name, const char* hint) const;
  void LayOut();
  QHBoxLayout* NewModelRow();
  void ShowUsed() const;
  void OnSpinner(QScrollBar* bar, OptionEntryQt* box, SpinnerStep size, Step step,
                 const std::function<void()>& told);
};

}  // namespace veerwatch
