// The Tracking page of the options dialog: the constants of the loop, what would suit the boat, and a preview
// of how the loop responds with them.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <array>
#include <functional>
#include <utility>

#include "control/TrackAdvice.h"
#include "helm/MainWindowApi.h"
#include "helm/WindRecorder.h"
#include "options/OptionControlsQt.h"
#include "options/OptionsForm.h"
#include "options/TrackAxesQt.h"
#include "platform/Random.h"

namespace veerwatch {

class TrackPageQt final : public QWidget {
 public:
  /// `main` gives the settings and what is measured, `recorded` the wind; everything outlives this.
  TrackPageQt(RandomSource& random, const MainWindowApi& main, const WindRecorder& recorded, QWidget* parent);

  void Show(const OptionsForm& form) const;
  void Read(OptionsForm& form) const;

  /// Draws the preview with what stands in its boxes.
  void TrackPreviewDraw() const;
  /// Shows the rate of the wind sentences, and what cannot hold at it.
  void ShowRate() const;

  /// Called with a suggestion when it has been put into the boxes of this page.
  void Suggested(std::function<void(const TrackSuggestion&)> handler) { m_suggested = std::move(handler); }
  /// Puts a lag that was measured [s] into its box, and what suits it into the others.
  void SuggestFor(const std::string& lag);

  /// The boxes whose change leaves something to apply.
  std::array<OptionEntryQt*, 10> Marking() const;

  QCheckBox* chkTrackAlarm;
  QComboBox* cmbTrackMethod;
  OptionEntryQt* txtTrackAlarmLimit;
  OptionEntryQt* txtTrackBandwidth;
  OptionEntryQt* txtTrackDamping;
  OptionEntryQt* txtTrackMaxSteerTo;
  OptionEntryQt* txtTrackAlarmAverage;
  QPushButton* cmdTrackSuggest;
  // Of the preview alone.
  OptionEntryQt* txtTrackOffset;
  OptionEntryQt* txtTrackNoise;
  OptionEntryQt* txtTrackTime;
  OptionEntryQt* txtTrackMin;
  OptionEntryQt* txtTrackMax;
  QCheckBox* chkTrackOnMyWind;
  OptionEntryQt* txtTrackLag;
  TrackPreviewQt* pctTrack;
  TrackAxesQt* Axes;        ///< around pctTrack
  QLabel* lblTrackFigures;  ///< the response in figures
  QLabel* lblTrackInUse;    ///< empty while the loop does not track
  QLabel* lblTrackReason;   ///< of the suggestion in the boxes, "" for none
  QLabel* lblTrackSwings;   ///< yellow, and there only while what is chosen cannot hold
  QLabel* lblTrackRate;     ///< at which the preview steps

 protected:
  void changeEvent(QEvent* event) override;

 private:
  /// The boxes for texts of the form.
  std::vector<BoundEntry> Entries() const;

  QWidget* NewOptions();
  /// Only what has a part in the chosen method answers.
  void ShowMethod() const;
  QWidget* NewResponse();
  QLayout* NewResponseInputs();
  void MakeMethods();
  void cmdTrackSuggest_Click();
  void chkTrackOnMyWind_Click() const;
  void ColourSwings();

  const MainWindowApi& m_main;
  const WindRecorder& m_recorded;
  std::function<void(const TrackSuggestion&)> m_suggested;
};

}  // namespace veerwatch
