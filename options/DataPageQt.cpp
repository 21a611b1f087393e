#include "options/DataPageQt.h"

#include <QGridLayout>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/Language.h"
#include "platform/LanguageQt.h"

namespace veerwatch {

namespace {

/// A choice among names.
QComboBox* NewChoice(const char* name, const char* hint, const QStringList& names, QWidget* parent) {
  auto* box = new QComboBox(parent);
  NameControl(*box, name, hint);
  box->addItems(names);
  return box;
}

QCheckBox* NewSwitch(const char* name, const char* caption, const char* hint, QWidget* parent) {
  auto* box = new QCheckBox(TrQ(caption), parent);
  NameControl(*box, name, hint);
  return box;
}

}  // namespace

DataPageQt::DataPageQt(QWidget* parent)
    : QWidget(parent),
      cmbNmeaTrueWind(NewChoice("cmbNmeaTrueWind", TrMark("Where the true wind comes from"),
                                {TrQ("True Wind Sensor"), TrQ("Compute from Boat Speed")}, this)),
      cmbNmeaHeading(NewChoice("cmbNmeaHeading", TrMark("Where the heading comes from"),
                               {TrQ("Compass Heading"), TrQ("Course Over Ground")}, this)),
      cmbNmeaBoatSpeed(NewChoice("cmbNmeaBoatSpeed", TrMark("Where the boat speed comes from"),
                                 {TrQ("Speed Over Water"), TrQ("Speed Over Ground")}, this)),
      txtNmeaWindIndicatorAverage(new OptionEntryQt(
          "txtNmeaWindIndicatorAverage", TrMark("Wind Indicator Average Time (sec, 0=none)"), this)),
      txtNmeaTrueWindAverage(
          new OptionEntryQt("txtNmeaTrueWindAverage", TrMark("True Wind Average Time (sec, 0=none)"), this)),
      cmbNmeaChecksum(NewChoice("cmbNmeaChecksum", TrMark("What becomes of a sentence without a checksum"),
                                {TrQ("Accept missing"), TrQ("Require")}, this)),
      cmbNmeaInvalidStatus(
          NewChoice("cmbNmeaInvalidStatus",
                    TrMark("What becomes of the values of an MWV, RMC or RMB with the status V"),
                    {TrQ("Use"), TrQ("Ignore")}, this)),
      cmbNmeaForeignLines(NewChoice(
          "cmbNmeaForeignLines", TrMark("What a line is that begins with \"!\", as those of an AIS receiver"),
          {TrQ("Error"), TrQ("List")}, this)),
      chkNmeaWindUnits(NewSwitch("chkNmeaWindUnits", TrMark("Wind U&nits: m/s, km/h and mph, too"),
                                 TrMark("Reads an MWV whose speed is not in knots"), this)),
      chkNmeaLowerCase(NewSwitch("chkNmeaLowerCase", TrMark("&Lower Case checksums, too"),
                                 TrMark("Reads a checksum in small letters"), this)),
      txtNmeaWindOffset(new OptionEntryQt("txtNmeaWindOffset",
                                          TrMark("Added to the wind's angle that comes in (Deg)"), this)),
      txtNmeaHeadingOffset(new OptionEntryQt(
          "txtNmeaHeadingOffset", TrMark("Added to the compass heading that comes in (Deg)"), this)),
      txtNmeaBoatSpeedFactor(new OptionEntryQt(
          "txtNmeaBoatSpeedFactor", TrMark("Times the speed through the water that comes in"), this)),
      lblSourceAdvice(new QLabel(this)),
      SentencePlace(new QWidget(this)) {
  NameControl(*lblSourceAdvice, "lblSourceAdvice", TrMark("What the chosen sources do not bring"));
  lblSourceAdvice->setTextFormat(Qt::PlainText);
  lblSourceAdvice->setWordWrap(true);
  lblSourceAdvice->hide();
  auto* rows = new QGridLayout;
  const auto source = [this, rows](int row, const char* caption, QComboBox* box) {
    rows->addWidget(NewCaption(caption, box, this), row, 0);
    rows->addWidget(box, row, 1);
  };
  source(0, TrMark("T&rue Wind:"), cmbNmeaTrueWind);
  source(1, TrMark("Boat &Heading:"), cmbNmeaHeading);
  source(2, TrMark("&Boat Speed:"), cmbNmeaBoatSpeed);
  source(3, TrMark("Chec&ksum:"), cmbNmeaChecksum);
  source(4, TrMark("In&valid Status:"), cmbNmeaInvalidStatus);
  source(5, TrMark("&Foreign Lines:"), cmbNmeaForeignLines);
  rows->addWidget(chkNmeaWindUnits, 4, 3, 1, 4);
  rows->addWidget(chkNmeaLowerCase, 5, 3, 1, 4);
  rows->setColumnMinimumWidth(2, kGroupGap);
  const auto average = [this, rows](int row, const char* group, const char* caption, OptionEntryQt* box) {
    rows->addWidget(NewText(group, this), row, 3, 1, 3);
    rows->addWidget(NewCaption(caption, box, this), row + 1, 3);
    rows->addWidget(box, row + 1, 4);
    rows->addWidget(NewText(TrMark("samples"), this), row + 1, 5);
  };
  average(0, TrMark("Data Average:"), TrMark("Wind Indi&cator"), txtNmeaWindIndicatorAverage);
  average(2, TrMark("Data Average (Sec):"), TrMark("Tr&ue Wind"), txtNmeaTrueWindAverage);
  rows->setColumnStretch(6, 1);
  const auto correction = [this, rows](int row, int column, const char* caption, OptionEntryQt* box,
                                       const char* unit) {
    auto* withUnit = new QHBoxLayout;
    withUnit->addWidget(box);
    withUnit->addWidget(NewText(unit, this));
    withUnit->addStretch(1);
    rows->addWidget(NewCaption(caption, box, this), row, column);
    rows->addLayout(withUnit, row, column + 1, 1, column == 0 ? 1 : 2);
  };
  correction(6, 0, TrMark("Wind Offs&et:"), txtNmeaWindOffset, TrMark("Deg"));
  correction(6, 3, TrMark("Heading Offset:"), txtNmeaHeadingOffset, TrMark("Deg"));
  correction(7, 0, TrMark("Boat S&peed Factor:"), txtNmeaBoatSpeedFactor, "");

  auto* page = new QVBoxLayout(this);
  page->addLayout(rows);
  page->addWidget(lblSourceAdvice);
  page->addWidget(SentencePlace, 1);
}

std::vector<BoundEntry> DataPageQt::Entries() const {
  return {
      {txtNmeaTrueWindAverage, &OptionsForm::NmeaTrueWindAverage},
      {txtNmeaWindIndicatorAverage, &OptionsForm::NmeaWindIndicatorAverage},
      {txtNmeaWindOffset, &OptionsForm::NmeaWindOffset},
      {txtNmeaBoatSpeedFactor, &OptionsForm::NmeaBoatSpeedFactor},
      {txtNmeaHeadingOffset, &OptionsForm::NmeaHeadingOffset},
  };
}

void DataPageQt::Show(const OptionsForm& form) const {
  cmbNmeaTrueWind->setCurrentIndex(form.NmeaTrueWind);
  cmbNmeaHeading->setCurrentIndex(form.NmeaHeading);
  cmbNmeaBoatSpeed->setCurrentIndex(form.NmeaBoatSpeed);
  cmbNmeaChecksum->setCurrentIndex(form.NmeaChecksum);
  cmbNmeaInvalidStatus->setCurrentIndex(form.NmeaInvalidStatus);
  cmbNmeaForeignLines->setCurrentIndex(form.NmeaForeignLines);
  chkNmeaWindUnits->setChecked(form.NmeaWindUnits);
  chkNmeaLowerCase->setChecked(form.NmeaLowerCase);
  ShowEntries(Entries(), form);
}

void DataPageQt::Advise(const std::vector<std::string>& lines) const {
  QStringList texts;
  for (const std::string& line : lines) {
    texts.append(QString::fromStdString(line));
  }
  lblSourceAdvice->setText(texts.join(QLatin1Char('\n')));
  lblSourceAdvice->setVisible(!lines.empty());
}

void DataPageQt::ShortenList() const {
  constexpr int kLeastLines = 3;
  SentencePlace->setMinimumHeight(kLeastLines * fontMetrics().lineSpacing());
}

void DataPageQt::Read(OptionsForm& form) const {
  form.NmeaTrueWind = std::max(0, cmbNmeaTrueWind->currentIndex());
  form.NmeaHeading = std::max(0, cmbNmeaHeading->currentIndex());
  form.NmeaBoatSpeed = std::max(0, cmbNmeaBoatSpeed->currentIndex());
  form.NmeaChecksum = std::max(0, cmbNmeaChecksum->currentIndex());
  form.NmeaInvalidStatus = std::max(0, cmbNmeaInvalidStatus->currentIndex());
  form.NmeaForeignLines = std::max(0, cmbNmeaForeignLines->currentIndex());
  form.NmeaWindUnits = chkNmeaWindUnits->isChecked();
  form.NmeaLowerCase = chkNmeaLowerCase->isChecked();
  ReadEntries(Entries(), form);
}

void DataPageQt::Changed(const std::function<void(QWidget*)>& handler) const {
  for (OptionEntryQt* each : {txtNmeaWindOffset, txtNmeaBoatSpeedFactor, txtNmeaHeadingOffset}) {
    connect(each, &QLineEdit::textChanged, each, [handler, each] { handler(each); });
  }
  for (QComboBox* each : {cmbNmeaChecksum, cmbNmeaInvalidStatus, cmbNmeaForeignLines}) {
    connect(each, &QComboBox::currentIndexChanged, each, [handler, each] { handler(each); });
  }
  for (QCheckBox* each : {chkNmeaWindUnits, chkNmeaLowerCase}) {
    connect(each, &QCheckBox::toggled, each, [handler, each] { handler(each); });
  }
}

}  // namespace veerwatch
