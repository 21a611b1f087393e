// The Data page of the options dialog: which source feeds what, the averages, and what is asked of a line.
// The list of the sentences stands over the place that is left for it.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <functional>
#include <string>
#include <vector>

#include "options/OptionControlsQt.h"
#include "options/OptionsForm.h"

namespace veerwatch {

class DataPageQt final : public QWidget {
 public:
  explicit DataPageQt(QWidget* parent);

  void Show(const OptionsForm& form) const;
  void Read(OptionsForm& form) const;
  /// Says what the chosen sources do not bring, a line each; nothing for none.
  void Advise(const std::vector<std::string>& lines) const;

  /// Whom to tell when what is asked of a line changes, and by which control.
  void Changed(const std::function<void(QWidget*)>& handler) const;

  /// The place of the list needs room for a few lines only: the list scrolls.
  void ShortenList() const;

  QComboBox* cmbNmeaTrueWind;
  QComboBox* cmbNmeaHeading;
  QComboBox* cmbNmeaBoatSpeed;
  OptionEntryQt* txtNmeaWindIndicatorAverage;
  OptionEntryQt* txtNmeaTrueWindAverage;
  QComboBox* cmbNmeaChecksum;
  QComboBox* cmbNmeaInvalidStatus;
  QComboBox* cmbNmeaForeignLines;
  QCheckBox* chkNmeaWindUnits;
  QCheckBox* chkNmeaLowerCase;
  OptionEntryQt* txtNmeaWindOffset;
  OptionEntryQt* txtNmeaHeadingOffset;
  OptionEntryQt* txtNmeaBoatSpeedFactor;
  QLabel* lblSourceAdvice;  ///< hidden while empty
  QWidget* SentencePlace;   ///< where the list of the sentences goes

 private:
  /// The boxes for texts of the form.
  std::vector<BoundEntry> Entries() const;
};

}  // namespace veerwatch
