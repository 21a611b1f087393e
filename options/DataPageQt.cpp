#include "options/DataPageQt.h"

#include <QGridLayout>
#include <QVBoxLayout>
#include <algorithm>

namespace veerwatch {

namespace {

QComboBox* NewSources(const char* name, const char* first, const char* second, QWidget* parent) {
  auto* box = new QComboBox(parent);
  box->setObjectName(QLatin1String(name));
  box->addItems({QString::fromLatin1(first), QString::fromLatin1(second)});
  return box;
}

}  // namespace

DataPageQt::DataPageQt(QWidget* parent)
    : QWidget(parent),
      cmbNmeaTrueWind(NewSources("cmbNmeaTrueWind", "True Wind Sensor", "Compute from Boat Speed", this)),
      cmbNmeaHeading(NewSources("cmbNmeaHeading", "Compass Heading", "Course Over Ground", this)),
      cmbNmeaBoatSpeed(NewSources("cmbNmeaBoatSpeed", "Speed Over Water", "Speed Over Ground", this)),
      txtNmeaWindIndicatorAverage(new OptionEntryQt("txtNmeaWindIndicatorAverage",
                                                    "Wind Indicator Average Time (sec, 0=none)", this)),
      txtNmeaTrueWindAverage(
          new OptionEntryQt("txtNmeaTrueWindAverage", "True Wind Average Time (sec, 0=none)", this)),
      lblSourceAdvice(new QLabel(this)),
      SentencePlace(new QWidget(this)) {
  NameControl(*lblSourceAdvice, "lblSourceAdvice", "What the chosen sources do not bring");
  lblSourceAdvice->setTextFormat(Qt::PlainText);
  lblSourceAdvice->setWordWrap(true);
  lblSourceAdvice->hide();
  auto* rows = new QGridLayout;
  const auto source = [this, rows](int row, const char* caption, QComboBox* box) {
    rows->addWidget(NewCaption(caption, box, this), row, 0);
    rows->addWidget(box, row, 1);
  };
  source(0, "True &Wind:", cmbNmeaTrueWind);
  source(1, "Boat &Heading:", cmbNmeaHeading);
  source(2, "&Boat Speed:", cmbNmeaBoatSpeed);
  rows->setColumnMinimumWidth(2, kGroupGap);
  const auto average = [this, rows](int row, const char* group, const char* caption, OptionEntryQt* box) {
    rows->addWidget(NewText(group, this), row, 3, 1, 3);
    rows->addWidget(NewCaption(caption, box, this), row + 1, 3);
    rows->addWidget(box, row + 1, 4);
    rows->addWidget(NewText("samples", this), row + 1, 5);
  };
  average(0, "Data Average:", "Wind Indi&cator", txtNmeaWindIndicatorAverage);
  average(2, "Data Average (Sec):", "Tr&ue Wind", txtNmeaTrueWindAverage);
  rows->setColumnStretch(6, 1);

  auto* page = new QVBoxLayout(this);
  page->addLayout(rows);
  page->addWidget(lblSourceAdvice);
  page->addWidget(SentencePlace, 1);
}

std::vector<BoundEntry> DataPageQt::Entries() const {
  return {
      {txtNmeaTrueWindAverage, &OptionsForm::NmeaTrueWindAverage},
      {txtNmeaWindIndicatorAverage, &OptionsForm::NmeaWindIndicatorAverage},
  };
}

void DataPageQt::Show(const OptionsForm& form) const {
  cmbNmeaTrueWind->setCurrentIndex(form.NmeaTrueWind);
  cmbNmeaHeading->setCurrentIndex(form.NmeaHeading);
  cmbNmeaBoatSpeed->setCurrentIndex(form.NmeaBoatSpeed);
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

void DataPageQt::Read(OptionsForm& form) const {
  form.NmeaTrueWind = std::max(0, cmbNmeaTrueWind->currentIndex());
  form.NmeaHeading = std::max(0, cmbNmeaHeading->currentIndex());
  form.NmeaBoatSpeed = std::max(0, cmbNmeaBoatSpeed->currentIndex());
  ReadEntries(Entries(), form);
}

}  // namespace veerwatch
