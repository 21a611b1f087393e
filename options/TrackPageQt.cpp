#include "options/TrackPageQt.h"

#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QRegularExpression>
#include <QVBoxLayout>
#include <utility>

#include "platform/ColoursQt.h"
#include "platform/Language.h"
#include "platform/LanguageQt.h"
#include "platform/NumberText.h"

namespace veerwatch {

namespace {

// Deliberate: the bounds carry the hint of the time.
constexpr const char* kTimeHint = TrMark("Track Time (sec)");

/// A sentence broken after its first colon or semicolon. A label that wraps by itself would make the page
/// scroll: it claims the height of its narrowest form.
QString OnTwoLines(QString sentence) {
  const qsizetype part = sentence.indexOf(QRegularExpression(QStringLiteral("[:;] ")));
  return part < 0 ? sentence : sentence.replace(part + 1, 1, QLatin1Char('\n'));
}

OptionEntryQt* NewPreviewEntry(const char* name, const char* hint, const char* text, QWidget* parent) {
  auto* box = new OptionEntryQt(name, hint, parent);
  box->Show(QLatin1String(text));
  return box;
}

}  // namespace

TrackPageQt::TrackPageQt(RandomSource& random, const MainWindowApi& main, const WindRecorder& recorded,
                         QWidget* parent)
    : QWidget(parent),
      chkTrackAlarm(new QCheckBox(TrQ("Tracking A&larm"), this)),
      cmbTrackMethod(new QComboBox(this)),
      txtTrackAlarmLimit(new OptionEntryQt("txtTrackAlarmLimit",
                                           TrMark("Tracking Alarm Limit (deg, +/- from Desired)"), this)),
      txtTrackBandwidth(new OptionEntryQt("txtTrackBandwidth", TrMark("Tracking Bandwidth (sec)"), this)),
      txtTrackDamping(
          new OptionEntryQt("txtTrackDamping", TrMark("Tracking Damping Factor (default=1)"), this)),
      txtTrackMaxSteerTo(new OptionEntryQt("txtTrackMaxSteerTo", TrMark("Range (deg)"), this)),
      txtTrackAlarmAverage(new OptionEntryQt(
          "txtTrackAlarmAverage", TrMark("Seconds over which the alarm averages the error"), this)),
      cmdTrackSuggest(new QPushButton(TrQ("S&uggest"), this)),
      txtTrackOffset(NewPreviewEntry("txtTrackOffset", TrMark("Initial Track Offset  (deg)"), "10", this)),
      txtTrackNoise(NewPreviewEntry("txtTrackNoise", TrMark("Added Random Noise (+/- Deg)"), "1", this)),
      txtTrackTime(NewPreviewEntry("txtTrackTime", kTimeHint, "120", this)),
      txtTrackMin(NewPreviewEntry("txtTrackMin", kTimeHint, "-5", this)),
      txtTrackMax(NewPreviewEntry("txtTrackMax", kTimeHint, "15", this)),
      chkTrackOnMyWind(new QCheckBox(TrQ("On m&y wind"), this)),
      txtTrackLag(NewPreviewEntry(
          "txtTrackLag", TrMark("Seconds until the boat has made two thirds of a small turn"), "4", this)),
      pctTrack(new TrackPreviewQt(random, this)),
      Axes(new TrackAxesQt(*pctTrack, this)),
      lblTrackFigures(NewText("", this)),
      lblTrackInUse(NewText("", this)),
      lblTrackReason(NewText("", this)),
      lblTrackSwings(NewText("", this)),
      lblTrackRate(NewText("", this)),
      m_main(main),
      m_recorded(recorded) {
  for (const auto& [label, name] :
       {std::pair{lblTrackFigures, "lblTrackFigures"}, std::pair{lblTrackInUse, "lblTrackInUse"},
        std::pair{lblTrackReason, "lblTrackReason"}, std::pair{lblTrackSwings, "lblTrackSwings"},
        std::pair{lblTrackRate, "lblTrackRate"}}) {
    label->setObjectName(QLatin1String(name));
    // However long the text is, the page stays as wide as its boxes.
    label->setSizePolicy(QSizePolicy::Ignored, label->sizePolicy().verticalPolicy());
  }
  lblTrackReason->hide();
  lblTrackSwings->setContentsMargins(6, 2, 6, 2);
  lblTrackSwings->setAutoFillBackground(true);
  lblTrackSwings->hide();
  ColourSwings();
  NameControl(*chkTrackAlarm, "chkTrackAlarm", TrMark("Tracking Alarm"));
  NameControl(
      *cmdTrackSuggest, "cmdTrackSuggest",
      TrMark("Puts what suits the measured sentences and the boat lag into the boxes; Apply stores it"));
  NameControl(*chkTrackOnMyWind, "chkTrackOnMyWind",
              TrMark("All methods on the wind of the last half hour, steering a boat with the lag beside"));
  MakeMethods();
  txtTrackAlarmLimit->setAccessibleName(TrQ("Alarm Limit"));
  txtTrackMin->setAccessibleName(TrQ("Lowest Bearing"));
  txtTrackMax->setAccessibleName(TrQ("Highest Bearing"));
  auto* page = new QVBoxLayout(this);
  page->addWidget(NewOptions());
  page->addWidget(NewResponse(), 1);
  pctTrack->Resized([this] { TrackPreviewDraw(); });
  connect(cmdTrackSuggest, &QPushButton::clicked, this, [this] { cmdTrackSuggest_Click(); });
  connect(chkTrackOnMyWind, &QCheckBox::toggled, this, [this] { chkTrackOnMyWind_Click(); });
  connect(txtTrackBandwidth, &QLineEdit::textChanged, this, [this] { ShowRate(); });
}

void TrackPageQt::MakeMethods() {
  NameControl(*cmbTrackMethod, "cmbTrackMethod", TrMark("By what the wind is held, from the next Track on"));
  for (const auto& [method, tip] :
       {std::pair{
            TrMark("Sentence"),
            TrMark("One correction per wind sentence: the bandwidth depends on how many come a second")},
        std::pair{TrMark("Clock"),
                  TrMark("The same corrections by the clock: the bandwidth holds at every sentence rate")},
        std::pair{TrMark("Direction"),
                  TrMark("Steers by the direction of the true wind over the earth: needs no tuning")}}) {
    cmbTrackMethod->addItem(TrQ(method));
    cmbTrackMethod->setItemData(cmbTrackMethod->count() - 1, TrQ(tip), Qt::ToolTipRole);
  }
  connect(cmbTrackMethod, &QComboBox::currentIndexChanged, this, [this] { ShowMethod(); });
  connect(cmbTrackMethod, &QComboBox::activated, this, [this] { TrackPreviewDraw(); });
}

QWidget* TrackPageQt::NewOptions() {
  auto* frame = new QGroupBox(TrQ("Tracking Options"), this);
  auto* rows = new QGridLayout(frame);
  rows->addWidget(NewText(TrMark("Alarm:"), this), 0, 0);
  rows->addWidget(chkTrackAlarm, 0, 1, 1, 2);
  rows->addWidget(NewText("+/-", this), 0, 4, Qt::AlignRight);
  rows->addWidget(txtTrackAlarmLimit, 0, 5);
  rows->addWidget(NewText(TrMark("deg"), this), 0, 6);
  rows->addWidget(NewCaption(TrMark("&Bandwidth:"), txtTrackBandwidth, this), 1, 0);
  rows->addWidget(txtTrackBandwidth, 1, 1);
  rows->addWidget(NewText(TrMark("sec"), this), 1, 2);
  rows->addWidget(NewCaption(TrMark("Max Steer To without &Prompt:"), txtTrackMaxSteerTo, this), 1, 4,
                  Qt::AlignRight);
  rows->addWidget(txtTrackMaxSteerTo, 1, 5);
  rows->addWidget(NewText(TrMark("deg"), this), 1, 6);
  rows->addWidget(NewCaption(TrMark("Da&mping:"), txtTrackDamping, this), 2, 0);
  rows->addWidget(txtTrackDamping, 2, 1);
  rows->addWidget(NewCaption(TrMark("Met&hod:"), cmbTrackMethod, this), 2, 4, Qt::AlignRight);
  rows->addWidget(cmbTrackMethod, 2, 5, 1, 2);
  rows->addWidget(cmdTrackSuggest, 3, 0, 1, 3, Qt::AlignLeft);
  rows->addWidget(NewCaption(TrMark("Alarm A&verage:"), txtTrackAlarmAverage, this), 3, 4, Qt::AlignRight);
  rows->addWidget(txtTrackAlarmAverage, 3, 5);
  rows->addWidget(NewText(TrMark("sec"), this), 3, 6);
  rows->addWidget(lblTrackReason, 4, 0, 1, 8);
  rows->addWidget(lblTrackSwings, 5, 0, 1, 8);
  rows->addWidget(lblTrackInUse, 6, 0, 1, 8);
  rows->setColumnMinimumWidth(3, kGroupGap);
  rows->setColumnStretch(7, 1);
  return frame;
}

QLayout* TrackPageQt::NewResponseInputs() {
  auto* lines = new QVBoxLayout;
  const auto line = [lines] {
    auto* made = new QHBoxLayout;
    lines->addLayout(made);
    return made;
  };
  const auto input = [this](QHBoxLayout* row, const char* caption, OptionEntryQt* box, const char* unit) {
    row->addWidget(NewCaption(caption, box, this));
    row->addWidget(box);
    row->addWidget(NewText(unit, this));
    row->addSpacing(kGroupGap);
  };
  QHBoxLayout* response = line();
  input(response, TrMark("O&ffset"), txtTrackOffset, TrMark("deg"));
  input(response, TrMark("&Noise"), txtTrackNoise, TrMark("deg"));
  input(response, TrMark("Tim&e"), txtTrackTime, TrMark("sec"));
  response->addStretch();
  QHBoxLayout* wind = line();
  wind->addWidget(chkTrackOnMyWind);
  wind->addSpacing(kGroupGap);
  input(wind, TrMark("Boat lag"), txtTrackLag, TrMark("sec"));
  wind->addWidget(lblTrackRate, 1);
  return lines;
}

QWidget* TrackPageQt::NewResponse() {
  // Deliberate: "Responce".
  auto* frame = new QGroupBox(TrQ("Tracking Responce"), this);
  // The bounds of the plot stand at its ends.
  auto* bounds = new QVBoxLayout;
  bounds->addWidget(txtTrackMax);
  bounds->addStretch();
  bounds->addWidget(NewText(TrMark("deg"), this), 0, Qt::AlignRight);
  bounds->addStretch();
  bounds->addWidget(txtTrackMin);
  auto* plot = new QHBoxLayout;
  plot->addLayout(bounds);
  plot->addWidget(Axes, 1);
  auto* rows = new QVBoxLayout(frame);
  rows->addLayout(NewResponseInputs());
  rows->addLayout(plot, 1);
  rows->addWidget(lblTrackFigures);
  return frame;
}

void TrackPageQt::ShowMethod() const {
  const bool direction = cmbTrackMethod->currentIndex() == static_cast<int>(TrackMethod::Direction);
  txtTrackDamping->setEnabled(!direction);
  if (direction) {
    txtTrackDamping->setToolTip(TrQ("The method Direction has no damping"));
  } else {
    ShowTip(*txtTrackDamping);
  }
  ShowRate();
}

void TrackPageQt::ShowRate() const {
  const auto rate = m_main.Now().WindsASecond;
  lblTrackRate->setText(QString::fromStdString(
      rate ? WindsASecondText(*rate) : Filled(Tr("%1 (none measured)"), {WindsASecondText(1.0)})));
  const auto method = static_cast<TrackMethod>(cmbTrackMethod->currentIndex());
  const auto bandwidth = StrictDouble(txtTrackBandwidth->text().toStdString());
  const std::string swings = bandwidth ? TrackSwingsText(method, *bandwidth, rate) : std::string();
  lblTrackSwings->setText(QString::fromStdString(swings));
  lblTrackSwings->setVisible(!swings.empty());
}

void TrackPageQt::cmdTrackSuggest_Click() {
  const auto lag = StrictDouble(txtTrackLag->text().toStdString());
  lblTrackReason->show();
  if (!lag || !(*lag >= 0.0)) {
    lblTrackReason->setText(TrQ("Boat lag must be a number from 0 on."));
    return;
  }
  const HelmNow now = m_main.Now();
  const TrackSuggestion suggestion =
      TrackSuggestionFor({now.WindsASecond.value_or(1.0), *lag, now.Heading.has_value(), now.BoatSpeedKnown});
  cmbTrackMethod->setCurrentIndex(static_cast<int>(suggestion.Method));
  txtTrackBandwidth->setText(QString::fromStdString(ShortestText(suggestion.Bandwidth)));
  txtTrackAlarmAverage->setText(QString::fromStdString(ShortestText(suggestion.AlarmAverage)));
  lblTrackReason->setText(OnTwoLines(QString::fromStdString(suggestion.Reason)));
  TrackPreviewDraw();
  if (m_suggested) {
    m_suggested(suggestion);
  }
}

void TrackPageQt::SuggestFor(const std::string& lag) {
  txtTrackLag->setText(QString::fromStdString(lag));
  cmdTrackSuggest_Click();
}

void TrackPageQt::chkTrackOnMyWind_Click() const {
  for (OptionEntryQt* box : {txtTrackOffset, txtTrackNoise, txtTrackTime, txtTrackMin, txtTrackMax}) {
    box->setEnabled(!chkTrackOnMyWind->isChecked());
  }
  TrackPreviewDraw();
}

void TrackPageQt::ColourSwings() {
  constexpr qreal kNightShare = 0.3;
  const QColor yellow(255, 224, 102);
  QPalette colours = palette();
  const QColor window = colours.color(QPalette::Active, QPalette::Window);
  const bool night = IsNight(window);
  colours.setColor(QPalette::Window, night ? Mixed(window, NightShade(yellow), kNightShare) : yellow);
  if (!night) {
    colours.setColor(QPalette::WindowText, Qt::black);
  }
  lblTrackSwings->setPalette(colours);
}

void TrackPageQt::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) {
    ColourSwings();
  }
}

std::vector<BoundEntry> TrackPageQt::Entries() const {
  return {
      {txtTrackAlarmLimit, &OptionsForm::TrackAlarmLimit},
      {txtTrackBandwidth, &OptionsForm::TrackBandwidth},
      {txtTrackDamping, &OptionsForm::TrackDamping},
      {txtTrackMaxSteerTo, &OptionsForm::TrackMaxSteerTo},
      {txtTrackAlarmAverage, &OptionsForm::TrackAlarmAverage},
  };
}

void TrackPageQt::Show(const OptionsForm& form) const {
  chkTrackAlarm->setChecked(form.TrackAlarm);
  cmbTrackMethod->setCurrentIndex(form.TrackMethod);
  ShowEntries(Entries(), form);
  ShowMethod();
  lblTrackReason->clear();
  lblTrackReason->hide();
}

void TrackPageQt::Read(OptionsForm& form) const {
  form.TrackAlarm = chkTrackAlarm->isChecked();
  form.TrackMethod = cmbTrackMethod->currentIndex();
  ReadEntries(Entries(), form);
}

void TrackPageQt::TrackPreviewDraw() const {
  ShowRate();
  const auto text = [](const OptionEntryQt* box) { return box->text().toStdString(); };
  if (chkTrackOnMyWind->isChecked()) {
    pctTrack->Draw(TrackWindInputs{m_main, text(txtTrackBandwidth), text(txtTrackDamping), text(txtTrackLag),
                                   m_recorded.Winds()});
  } else {
    TrackPreviewTexts texts;
    texts.Bandwidth = text(txtTrackBandwidth);
    texts.Damping = text(txtTrackDamping);
    texts.Offset = text(txtTrackOffset);
    texts.Noise = text(txtTrackNoise);
    texts.Time = text(txtTrackTime);
    texts.Min = text(txtTrackMin);
    texts.Max = text(txtTrackMax);
    texts.Method = static_cast<TrackMethod>(cmbTrackMethod->currentIndex());
    texts.Rate = TrackRateFor(m_main.Now().WindsASecond);
    texts.Limits = {static_cast<double>(m_main.m_fTrackMaxAhead),
                    static_cast<double>(m_main.m_fTrackMaxRate)};
    pctTrack->Draw(texts);
  }
  Axes->update();
  lblTrackFigures->setText(QString::fromStdString(pctTrack->Picture().FiguresText()));
}

std::array<OptionEntryQt*, 10> TrackPageQt::Marking() const {
  // Deliberate: txtTrackMaxSteerTo is not one of them.
  return {txtTrackAlarmLimit, txtTrackBandwidth, txtTrackDamping, txtTrackOffset,       txtTrackMin,
          txtTrackMax,        txtTrackTime,      txtTrackNoise,   txtTrackAlarmAverage, txtTrackLag};
}

}  // namespace veerwatch
