// The assistant's page "Values": what the instruments give, large, with the sentence that each value comes
// from and what else there is; and what vane, log and compass ought to be set to.
#pragma once

#include <QComboBox>
#include <QGridLayout>
#include <QPushButton>
#include <array>

#include "connect/ConnectPageQt.h"
#include "platform/LanguageQt.h"

namespace veerwatch {

class ValuesPageQt final : public ConnectPageQt {
 public:
  ValuesPageQt(ConnectDesk& desk, QWidget* parent);

  QString Title() const override { return TrQ("Values"); }
  void Refresh() override;

 private:
  struct Line {
    QLabel* Figure;
    QComboBox* Source;
    QLabel* Missing;
  };
  struct Calibration {
    QLabel* Text;
    QPushButton* Set;
  };

  void AddLine(QGridLayout& grid, BoatValue value);
  void AddCalibration(QGridLayout& grid, std::size_t which, const char* name, const char* caption);
  void ShowLine(BoatValue value);
  void Set(std::size_t which);
  CalibrationOffer Offer(std::size_t which) const;

  std::array<Line, kBoatValues> m_lines{};
  std::array<Calibration, 3> m_calibrations{};  ///< vane, log, compass
};

}  // namespace veerwatch
