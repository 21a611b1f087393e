#include "options/TrackPageQt.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <utility>

namespace veerwatch {

namespace {

// Deliberate: the bounds carry the hint of the time.
constexpr const char* kTimeHint = "Track Time (sec)";

OptionEntryQt* NewPreviewEntry(const char* name, const char* hint, const char* text, QWidget* parent) {
  auto* box = new OptionEntryQt(name, hint, parent);
  box->Show(QLatin1String(text));
  return box;
}

}  // namespace

TrackPageQt::TrackPageQt(RandomSource& random, QWidget* parent)
    : QWidget(parent),
      chkTrackAlarm(new QCheckBox(QStringLiteral("Tracking A&larm"), this)),
      cmbTrackMethod(new QComboBox(this)),
      txtTrackAlarmLimit(
          new OptionEntryQt("txtTrackAlarmLimit", "Tracking Alarm Limit (deg, +/- from Desired)", this)),
      txtTrackBandwidth(new OptionEntryQt("txtTrackBandwidth", "Tracking Bandwidth (sec)", this)),
      txtTrackDamping(new OptionEntryQt("txtTrackDamping", "Tracking Damping Factor (default=1)", this)),
      txtTrackMaxSteerTo(new OptionEntryQt("txtTrackMaxSteerTo", "Range (deg)", this)),
      txtTrackOffset(NewPreviewEntry("txtTrackOffset", "Initial Track Offset  (deg)", "10", this)),
      txtTrackNoise(NewPreviewEntry("txtTrackNoise", "Added Random Noise (+/- Deg)", "1", this)),
      txtTrackTime(NewPreviewEntry("txtTrackTime", kTimeHint, "120", this)),
      txtTrackMin(NewPreviewEntry("txtTrackMin", kTimeHint, "-5", this)),
      txtTrackMax(NewPreviewEntry("txtTrackMax", kTimeHint, "15", this)),
      pctTrack(new TrackPreviewQt(random, this)),
      Axes(new TrackAxesQt(*pctTrack, this)),
      lblTrackFigures(NewText("", this)),
      lblTrackInUse(NewText("", this)) {
  lblTrackFigures->setObjectName(QStringLiteral("lblTrackFigures"));
  // However long the figures are, the page stays as wide as its boxes.
  lblTrackFigures->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  lblTrackInUse->setObjectName(QStringLiteral("lblTrackInUse"));
  NameControl(*chkTrackAlarm, "chkTrackAlarm", "Tracking Alarm");
  NameControl(*cmbTrackMethod, "cmbTrackMethod", "By what the wind is held, from the next Track on");
  for (const auto& [method, tip] :
       {std::pair{"Sentence",
                  "One correction per wind sentence: the bandwidth depends on how many come a second"},
        std::pair{"Clock", "The same corrections by the clock: the bandwidth holds at every sentence rate"},
        std::pair{"Direction", "Steers by the direction of the true wind over the earth: needs no tuning"}}) {
    cmbTrackMethod->addItem(QLatin1String(method));
    cmbTrackMethod->setItemData(cmbTrackMethod->count() - 1, QLatin1String(tip), Qt::ToolTipRole);
  }
  connect(cmbTrackMethod, &QComboBox::currentIndexChanged, this, [this] { ShowMethod(); });
  txtTrackAlarmLimit->setAccessibleName(QStringLiteral("Alarm Limit"));
  txtTrackMin->setAccessibleName(QStringLiteral("Lowest Bearing"));
  txtTrackMax->setAccessibleName(QStringLiteral("Highest Bearing"));
  auto* page = new QVBoxLayout(this);
  page->addWidget(NewOptions());
  page->addWidget(NewResponse(), 1);
  pctTrack->Resized([this] { TrackPreviewDraw(); });
}

QWidget* TrackPageQt::NewOptions() {
  auto* frame = new QGroupBox(QStringLiteral("Tracking Options"), this);
  auto* rows = new QGridLayout(frame);
  rows->addWidget(NewText("Alarm:", this), 0, 0);
  rows->addWidget(chkTrackAlarm, 0, 1, 1, 2);
  rows->addWidget(NewText("+/-", this), 0, 4, Qt::AlignRight);
  rows->addWidget(txtTrackAlarmLimit, 0, 5);
  rows->addWidget(NewText("deg", this), 0, 6);
  rows->addWidget(NewCaption("&Bandwidth:", txtTrackBandwidth, this), 1, 0);
  rows->addWidget(txtTrackBandwidth, 1, 1);
  rows->addWidget(NewText("sec", this), 1, 2);
  rows->addWidget(NewCaption("Max Steer To without &Prompt:", txtTrackMaxSteerTo, this), 1, 4,
                  Qt::AlignRight);
  rows->addWidget(txtTrackMaxSteerTo, 1, 5);
  rows->addWidget(NewText("deg", this), 1, 6);
  rows->addWidget(NewCaption("Da&mping:", txtTrackDamping, this), 2, 0);
  rows->addWidget(txtTrackDamping, 2, 1);
  rows->addWidget(NewCaption("Met&hod:", cmbTrackMethod, this), 2, 4, Qt::AlignRight);
  rows->addWidget(cmbTrackMethod, 2, 5, 1, 2);
  rows->addWidget(lblTrackInUse, 3, 0, 1, 8);
  rows->setColumnMinimumWidth(3, kGroupGap);
  rows->setColumnStretch(7, 1);
  return frame;
}

QWidget* TrackPageQt::NewResponse() {
  // Deliberate: "Responce".
  auto* frame = new QGroupBox(QStringLiteral("Tracking Responce"), this);
  auto* inputs = new QHBoxLayout;
  const auto input = [this, inputs](const char* caption, OptionEntryQt* box, const char* unit) {
    inputs->addWidget(NewCaption(caption, box, this));
    inputs->addWidget(box);
    inputs->addWidget(NewText(unit, this));
    inputs->addSpacing(kGroupGap);
  };
  input("O&ffset", txtTrackOffset, "deg");
  input("&Noise", txtTrackNoise, "deg");
  input("Tim&e", txtTrackTime, "sec");
  inputs->addStretch();
  // The bounds of the plot stand at its ends.
  auto* bounds = new QVBoxLayout;
  bounds->addWidget(txtTrackMax);
  bounds->addStretch();
  bounds->addWidget(NewText("deg", this), 0, Qt::AlignRight);
  bounds->addStretch();
  bounds->addWidget(txtTrackMin);
  auto* plot = new QHBoxLayout;
  plot->addLayout(bounds);
  plot->addWidget(Axes, 1);
  auto* rows = new QVBoxLayout(frame);
  rows->addLayout(inputs);
  rows->addLayout(plot, 1);
  rows->addWidget(lblTrackFigures);
  return frame;
}

void TrackPageQt::ShowMethod() const {
  const bool direction = cmbTrackMethod->currentIndex() == static_cast<int>(TrackMethod::Direction);
  txtTrackDamping->setEnabled(!direction);
  txtTrackDamping->setToolTip(direction ? QStringLiteral("The method Direction has no damping")
                                        : txtTrackDamping->accessibleDescription());
}

std::vector<BoundEntry> TrackPageQt::Entries() const {
  return {
      {txtTrackAlarmLimit, &OptionsForm::TrackAlarmLimit},
      {txtTrackBandwidth, &OptionsForm::TrackBandwidth},
      {txtTrackDamping, &OptionsForm::TrackDamping},
      {txtTrackMaxSteerTo, &OptionsForm::TrackMaxSteerTo},
  };
}

void TrackPageQt::Show(const OptionsForm& form) const {
  chkTrackAlarm->setChecked(form.TrackAlarm);
  cmbTrackMethod->setCurrentIndex(form.TrackMethod);
  ShowMethod();
  ShowEntries(Entries(), form);
}

void TrackPageQt::Read(OptionsForm& form) const {
  form.TrackAlarm = chkTrackAlarm->isChecked();
  form.TrackMethod = cmbTrackMethod->currentIndex();
  ReadEntries(Entries(), form);
}

void TrackPageQt::TrackPreviewDraw() const {
  TrackPreviewTexts texts;
  texts.Bandwidth = txtTrackBandwidth->text().toStdString();
  texts.Damping = txtTrackDamping->text().toStdString();
  texts.Offset = txtTrackOffset->text().toStdString();
  texts.Noise = txtTrackNoise->text().toStdString();
  texts.Time = txtTrackTime->text().toStdString();
  texts.Min = txtTrackMin->text().toStdString();
  texts.Max = txtTrackMax->text().toStdString();
  pctTrack->Draw(texts);
  for (OptionEntryQt* box : {txtTrackOffset, txtTrackNoise, txtTrackTime, txtTrackMin, txtTrackMax}) {
    box->Take();
  }
  Axes->update();
  lblTrackFigures->setText(QString::fromStdString(pctTrack->Picture().FiguresText()));
}

std::array<OptionEntryQt*, 8> TrackPageQt::Marking() const {
  // Deliberate: txtTrackMaxSteerTo is not one of them.
  return {txtTrackAlarmLimit, txtTrackBandwidth, txtTrackDamping, txtTrackOffset,
          txtTrackMin,        txtTrackMax,       txtTrackTime,    txtTrackNoise};
}

}  // namespace veerwatch
