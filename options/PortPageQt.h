// The Input and the Output page of the options dialog: the number of a port, its state, and a live list of
// its lines.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <array>
#include <string>

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
  Control Choose;
  Control Device;
  Control Status;
  Control Reason;
  Control ListOff;
  Control ListOn;
  Control List;
  Control Pause;
  Control Copy;
  /// The lines to list, with their captions; empty where there is no choice.
  std::array<Control, 2> Format{};
  std::array<const char*, 2> FormatCaption{};
  /// The type of sentence that is listed; empty where there is no choice.
  Control Type{};
};

const PortPageTexts& InputPageTexts();
const PortPageTexts& OutputPageTexts();

class PortPageQt final : public QWidget {
 public:
  PortPageQt(const PortPageTexts& texts, QWidget* parent);

  /// Says beside the status why the port is not open; "" for nothing.
  void Explain(const std::string& reason) const;

  /// Puts a frame under what leads to the port.
  void Insert(QWidget* frame) const;

  /// Says where the port leads; "" for nowhere, which cannot be chosen for either.
  void Leads(const std::string& endpoints) const;

  OptionEntryQt* Port;
  QPushButton* Choose;  ///< asks for the device of the port
  QLabel* Device;       ///< where the port leads
  QLabel* Status;
  QLabel* Reason;  ///< hidden while empty
  QRadioButton* ListOff;
  QRadioButton* ListOn;
  std::array<QRadioButton*, 2> Format{};  ///< null where there is no choice
  QCheckBox* Pause;
  QPushButton* Copy;
  QComboBox* Type = nullptr;  ///< null where there is no choice
  LiveListQt* List;

 private:
  // Rows of the page above the list.
  static constexpr int kInserted = 2;
  static constexpr int kDisplay = 3;
  static constexpr int kFormat = 4;

  /// The options of the list's format, and the choice of one type.
  QLayout* FormatRow(const PortPageTexts& texts);
  /// Offers every type that came, in the order of the alphabet.
  void OfferTypes() const;

  QGridLayout* m_rows;
};

}  // namespace veerwatch
