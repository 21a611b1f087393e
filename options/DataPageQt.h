// The Data page of the options dialog: which source feeds what, and the averages. The list of the sentences
// stands over the place that is left for it.
#pragma once

#include <QComboBox>

#include "options/OptionControlsQt.h"
#include "options/OptionsForm.h"

namespace veerwatch {

class DataPageQt final : public QWidget {
 public:
  explicit DataPageQt(QWidget* parent);

  void Show(const OptionsForm& form) const;
  void Read(OptionsForm& form) const;

  QComboBox* cmbNmeaTrueWind;
  QComboBox* cmbNmeaHeading;
  QComboBox* cmbNmeaBoatSpeed;
  OptionEntryQt* txtNmeaWindIndicatorAverage;
  OptionEntryQt* txtNmeaTrueWindAverage;
  QWidget* SentencePlace;  ///< where the list of the sentences goes
};

}  // namespace veerwatch
