#include "connect/ValuesPageQt.h"

#include <QAbstractItemView>
#include <QSignalBlocker>
#include <QStringList>
#include <QVBoxLayout>
#include <string>
#include <vector>

#include "options/OptionControlsQt.h"
#include "platform/Language.h"

namespace veerwatch {

namespace {

constexpr double kFigureShare = 1.5;  ///< of the size of the other texts
constexpr int kWidestSource = 20;     ///< [characters]

/// What the lists are called by who cannot see them, and their keys.
constexpr std::array<const char*, kBoatValues> kCaptions{TrMark("&Apparent wind"), TrMark("&True wind"),
                                                         TrMark("&Heading"),       TrMark("Boat s&peed"),
                                                         TrMark("&Variation"),     TrMark("&Waypoint")};
constexpr std::array<const char*, kBoatValues> kNames{"WindApparent", "WindTrue",  "Heading",
                                                      "BoatSpeed",    "Variation", "Waypoint"};

enum Which : std::size_t { kVane, kLog, kCompass };

}  // namespace

ValuesPageQt::ValuesPageQt(ConnectDesk& desk, QWidget* parent)
    : ConnectPageQt("pagConnectValues", desk, parent) {
  auto* rows = new QVBoxLayout(this);
  auto* values = new QGridLayout;
  values->setColumnStretch(3, 1);
  for (std::size_t i = 0; i < kBoatValues; ++i) {
    AddLine(*values, static_cast<BoatValue>(i));
  }
  rows->addLayout(values);
  auto* calibrations = new QGridLayout;
  calibrations->setColumnStretch(0, 1);
  AddCalibration(*calibrations, kVane, "Vane", TrMark("Set to &0"));
  AddCalibration(*calibrations, kLog, "Log", TrMark("Log by the &GPS"));
  AddCalibration(*calibrations, kCompass, "Compass", TrMark("Compass by the &course"));
  rows->addLayout(calibrations);
  rows->addStretch();
}

void ValuesPageQt::AddLine(QGridLayout& grid, BoatValue value) {
  const auto at = static_cast<std::size_t>(value);
  const int row = static_cast<int>(at);
  Line& line = m_lines.at(at);
  line.Figure = NewLines((std::string("lblConnect") + kNames.at(at)).c_str());
  line.Figure->setWordWrap(false);
  QFont large = font();
  large.setPointSizeF(large.pointSizeF() * kFigureShare);
  large.setBold(true);
  line.Figure->setFont(large);
  line.Figure->setMinimumWidth(
      QFontMetrics(large).horizontalAdvance(TrQ("%1 deg").arg(-180) + QStringLiteral(", 00.0 kn")));
  line.Source = new QComboBox(this);
  NameControl(*line.Source, (std::string("cmbConnect") + kNames.at(at)).c_str(),
              TrMark("The sentence that it comes from; others that bring it stand in the list"));
  line.Source->setMinimumContentsLength(kWidestSource);
  line.Missing = NewLines((std::string("lblConnectMissing") + kNames.at(at)).c_str());
  grid.addWidget(NewCaption(kCaptions.at(at), line.Source, this), row, 0);
  grid.addWidget(line.Figure, row, 1);
  grid.addWidget(line.Source, row, 2);
  grid.addWidget(line.Missing, row, 3);
  connect(line.Source, &QComboBox::activated, this, [this, value, source = line.Source](int index) {
    Desk().Values().Choose(value, source->itemData(index).toString().toStdString());
    Refresh();
  });
}

void ValuesPageQt::AddCalibration(QGridLayout& grid, std::size_t which, const char* name,
                                  const char* caption) {
  Calibration& calibration = m_calibrations.at(which);
  calibration.Text = NewLines((std::string("lblConnect") + name).c_str());
  calibration.Set = new QPushButton(TrQ(caption), this);
  NameControl(*calibration.Set, (std::string("cmdConnect") + name).c_str(),
              TrMark("Sets it by what the instruments say now; kept with the rest at the end"));
  calibration.Set->setAutoDefault(false);
  const int row = static_cast<int>(which);
  grid.addWidget(calibration.Text, row, 0);
  grid.addWidget(calibration.Set, row, 1);
  connect(calibration.Set, &QPushButton::clicked, this, [this, which] { Set(which); });
}

CalibrationOffer ValuesPageQt::Offer(std::size_t which) const {
  const CalibrationDesk& desk = Desk().Values().Calibration();
  return which == kVane ? desk.Wind() : which == kLog ? desk.Speed() : desk.Heading();
}

void ValuesPageQt::Set(std::size_t which) {
  const CalibrationOffer offer = Offer(which);
  if (!offer.Value) {
    return;
  }
  ValueDesk& values = Desk().Values();
  if (which == kVane) {
    values.SetWindOffset(*offer.Value);
  } else if (which == kLog) {
    values.SetSpeedFactor(*offer.Value);
  } else {
    values.SetHeadingOffset(*offer.Value);
  }
  Refresh();
}

void ValuesPageQt::Refresh() {
  for (std::size_t i = 0; i < kBoatValues; ++i) {
    ShowLine(static_cast<BoatValue>(i));
  }
  for (std::size_t which = 0; which < m_calibrations.size(); ++which) {
    const CalibrationOffer offer = Offer(which);
    m_calibrations.at(which).Text->setText(QString::fromStdString(offer.Text));
    m_calibrations.at(which).Set->setEnabled(offer.Value.has_value());
  }
}

void ValuesPageQt::ShowLine(BoatValue value) {
  const Line& line = m_lines.at(static_cast<std::size_t>(value));
  const Moment now = Desk().Now();
  line.Figure->setText(QString::fromStdString(Desk().Values().Figure(value, now)));
  line.Missing->setText(QString::fromStdString(Desk().Values().Missing(value)));
  // A list that is open is left alone.
  if (line.Source->view()->isVisible()) {
    return;
  }
  const QSignalBlocker quiet(line.Source);
  const std::vector<ValueSource> sources = Desk().Values().Sources(value, now);
  const QString chosen = QString::fromStdString(Desk().Values().Chosen(value));
  while (line.Source->count() > static_cast<int>(sources.size())) {
    line.Source->removeItem(line.Source->count() - 1);
  }
  for (int i = 0; i < static_cast<int>(sources.size()); ++i) {
    const ValueSource& source = sources.at(static_cast<std::size_t>(i));
    if (i == line.Source->count()) {
      line.Source->addItem({});
    }
    line.Source->setItemText(i, QString::fromStdString(source.Text));
    line.Source->setItemData(i, QString::fromStdString(source.Name));
  }
  line.Source->setCurrentIndex(line.Source->findData(chosen));
  line.Source->setEnabled(!sources.empty());
}

}  // namespace veerwatch
