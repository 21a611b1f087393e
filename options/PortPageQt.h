// The Input and the Output page of the options dialog: the number of a port, its state, and a live list of
// its lines.
#pragma once

#include <QLabel>
#include <QRadioButton>
#include <array>

#include "options/LiveListQt.h"
#include "options/OptionControlsQt.h"

namespace veerwatch {

/// Names and hints of a page's controls.
struct PortPageTexts {
  struct Control {
    const char* Name;
    const char* Hint;
  };
  Control Port;
  Control Status;
  Control ListOff;
  Control ListOn;
  Control List;
  /// The lines to list, with their captions; empty where there is no choice.
  std::array<Control, 2> Format{};
  std::array<const char*, 2> FormatCaption{};
};

const PortPageTexts& InputPageTexts();
const PortPageTexts& OutputPageTexts();

class PortPageQt final : public QWidget {
 public:
  PortPageQt(const PortPageTexts& texts, QWidget* parent);

  OptionEntryQt* Port;
  QLabel* Status;
  QRadioButton* ListOff;
  QRadioButton* ListOn;
  std::array<QRadioButton*, 2> Format{};  ///< null where there is no choice
  LiveListQt* List;
};

}  // namespace veerwatch
