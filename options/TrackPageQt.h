// The Tracking page of the options dialog: the constants of the loop, and a preview of how it responds with
// them.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <array>

#include "options/OptionControlsQt.h"
#include "options/OptionsForm.h"
#include "options/TrackAxesQt.h"
#include "platform/Random.h"

namespace veerwatch {

class TrackPageQt final : public QWidget {
 public:
  TrackPageQt(RandomSource& random, QWidget* parent);

  void Show(const OptionsForm& form) const;
  void Read(OptionsForm& form) const;

  /// Draws the preview with what stands in its boxes.
  void TrackPreviewDraw() const;

  /// The boxes whose change leaves something to apply.
  std::array<OptionEntryQt*, 8> Marking() const;

  QCheckBox* chkTrackAlarm;
  QComboBox* cmbTrackMethod;
  OptionEntryQt* txtTrackAlarmLimit;
  OptionEntryQt* txtTrackBandwidth;
  OptionEntryQt* txtTrackDamping;
  OptionEntryQt* txtTrackMaxSteerTo;
  // Of the preview alone.
  OptionEntryQt* txtTrackOffset;
  OptionEntryQt* txtTrackNoise;
  OptionEntryQt* txtTrackTime;
  OptionEntryQt* txtTrackMin;
  OptionEntryQt* txtTrackMax;
  TrackPreviewQt* pctTrack;
  TrackAxesQt* Axes;        ///< around pctTrack
  QLabel* lblTrackFigures;  ///< the response in figures
  QLabel* lblTrackInUse;    ///< empty while the loop does not track

 private:
  /// The boxes for texts of the form.
  std::vector<BoundEntry> Entries() const;

  QWidget* NewOptions();
  /// Only what has a part in the chosen method answers.
  void ShowMethod() const;
  QWidget* NewResponse();
};

}  // namespace veerwatch
