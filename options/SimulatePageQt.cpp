#include "options/SimulatePageQt.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "platform/Language.h"
#include "platform/LanguageQt.h"
#include "platform/NumberText.h"
#include "settings/SimulateModel.h"

namespace veerwatch {

namespace {

constexpr const char* kTimeHint = TrMark("Move Ahead in Time (h:mm)");

/// Two arrows, one above the other, and nothing between them.
class SpinnerBarQt final : public QScrollBar {
 public:
  using QScrollBar::QScrollBar;
  QSize sizeHint() const override {
    const int text = QFontMetrics(font()).height();
    return {std::max(text, style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this)), 2 * text};
  }
  QSize minimumSizeHint() const override { return sizeHint(); }
};

QHBoxLayout* Row(std::initializer_list<QWidget*> widgets) {
  auto* row = new QHBoxLayout;
  for (QWidget* widget : widgets) {
    row->addWidget(widget);
  }
  row->addStretch();
  return row;
}

}  // namespace

SimulatePageQt::SimulatePageQt(QWidget* parent)
    : QWidget(parent),
      chkSimulate(new QCheckBox(TrQ("Simu&late Data"), this)),
      frmSimulate(new QGroupBox(TrQ("Data"), this)),
      cmbSimulateModel(
          NewList("cmbSimulateModel", TrMark("Steady: lies on the bearing at once. Boat: has a hull, a "
                                             "pilot that reads what is sent, a sea and gusts"))),
      cmbSimulatePilot(NewList("cmbSimulatePilot", TrMark("Which sentences the boat's pilot reads"))),
      cmbSimulateSea(NewList("cmbSimulateSea", TrMark("The sea that the boat sails in"))),
      txtSimulatePilotLag(
          new OptionEntryQt("txtSimulatePilotLag",
                            TrMark("Seconds in which her pilot takes up two thirds of a new bearing"), this)),
      txtSimulateGusts(
          new OptionEntryQt("txtSimulateGusts", TrMark("How far the wind's speed wanders (%)"), this)),
      txtSimulateShifts(
          new OptionEntryQt("txtSimulateShifts", TrMark("How far the wind's direction wanders (Deg)"), this)),
      txtSimulateLeeway(new OptionEntryQt(
          "txtSimulateLeeway", TrMark("The most leeway, at 45 degrees off the true wind (Deg)"), this)),
      txtSimulateSeed(new OptionEntryQt("txtSimulateSeed",
                                        TrMark("Same number, same gusts; 0: others at each start"), this)),
      txtSimulateBoatSpeed(new OptionEntryQt("txtSimulateBoatSpeed", TrMark("Boat Speed (Kts)"), this)),
      txtSimulateTrueWindAngle(
          new OptionEntryQt("txtSimulateTrueWindAngle", TrMark("True Wind Direction (T)"), this)),
      vscSimulateTrueWindAngle(
          NewSpinners("vscSimulateTrueWindAngle", TrMark("True Wind Direction (T)"), TrMark("degrees"))),
      txtSimulateTrueWindSpeed(
          new OptionEntryQt("txtSimulateTrueWindSpeed", TrMark("True Wind Speed (Kts)"), this)),
      txtSimulateVariation(
          new OptionEntryQt("txtSimulateVariation", TrMark("Magnetic Variation (Deg)"), this)),
      txtSimulateCompassOffset(new OptionEntryQt("txtSimulateCompassOffset", TrMark("Compass Offset"), this)),
      txtSimulateNoiseSpeed(
          new OptionEntryQt("txtSimulateNoiseSpeed", TrMark("Added Random Noise (+/- Kts)"), this)),
      txtSimulateNoiseAngle(
          new OptionEntryQt("txtSimulateNoiseAngle", TrMark("Added Random Noise (+/- Deg)"), this)),
      txtSimulateWaypointBrg(
          new OptionEntryQt("txtSimulateWaypointBrg", TrMark("Waypoint Bearing (M)"), this)),
      txtSimulateWaypointRng(
          new OptionEntryQt("txtSimulateWaypointRng", TrMark("Waypoint Range (nm)"), this)),
      txtSimulateTime(new OptionEntryQt("txtSimulateTime", kTimeHint, this)),
      vscSimulateTime(NewSpinners("vscSimulateTime", kTimeHint, TrMark("minutes"))),
      lblSimulateWaypointBrg(
          new OptionResultQt("lblSimulateWaypointBrg", TrMark("Time, Waypoint Bearing (M)"), this)),
      // Deliberate: "(mn)", without a blank before it.
      lblSimulateWaypointRng(
          new OptionResultQt("lblSimulateWaypointRng", TrMark("Time, Waypoint Range(mn)"), this)),
      chkSimulateAutoApply(new QCheckBox(TrQ("A&uto Apply"), this)) {
  NameControl(*chkSimulate, "chkSimulate", TrMark("Simulate Data"));
  NameControl(*chkSimulateAutoApply, "chkSimulateAutoApply", TrMark("Auto Apply"));
  frmSimulate->setObjectName(QStringLiteral("frmSimulate"));
  QSizePolicy place = frmSimulate->sizePolicy();
  place.setRetainSizeWhenHidden(true);
  frmSimulate->setSizePolicy(place);
  txtSimulateWaypointRng->Show(QStringLiteral("20.0"));
  txtSimulateTime->Show(QStringLiteral("0.00"));
  lblSimulateWaypointRng->setText(QStringLiteral("20.0"));
  // A mnemonic then marks the change as a click does.
  connect(chkSimulate, &QCheckBox::pressed, chkSimulate, [this] { chkSimulate->setFocus(); });
  for (const auto& [list, names] :
       {std::pair(cmbSimulateModel, std::span<const std::string_view>(kSimulateModels)),
        std::pair(cmbSimulatePilot, std::span<const std::string_view>(kPilotReadsNames)),
        std::pair(cmbSimulateSea, std::span<const std::string_view>(kSeaNames))}) {
    for (const std::string_view name : names) {
      list->addItem(TrQ(name));
    }
  }
  connect(cmbSimulateModel, &QComboBox::currentIndexChanged, this, [this] { ShowUsed(); });
  LayOut();
  ShowUsed();
}

QComboBox* SimulatePageQt::NewList(const char* name, const char* hint) const {
  auto* list = new QComboBox(frmSimulate);
  NameControl(*list, name, hint);
  return list;
}

void SimulatePageQt::ShowUsed() const {
  const bool boat = cmbSimulateModel->currentIndex() == static_cast<int>(SimulateModel::Boat);
  for (QWidget* used : std::initializer_list<QWidget*>{cmbSimulatePilot, cmbSimulateSea, txtSimulatePilotLag,
                                                       txtSimulateGusts, txtSimulateShifts, txtSimulateLeeway,
                                                       txtSimulateSeed}) {
    used->setEnabled(boat);
  }
}

QHBoxLayout* SimulatePageQt::NewModelRow() {
  QHBoxLayout* row = Row({cmbSimulateModel, NewCaption(TrMark("Pilot &Reads"), cmbSimulatePilot, this),
                          cmbSimulatePilot, NewCaption(TrMark("Sea"), cmbSimulateSea, this), cmbSimulateSea});
  return row;
}

std::array<QScrollBar*, 2> SimulatePageQt::NewSpinners(const char* name, const char* hint, const char* unit) {
  std::array<QScrollBar*, 2> bars{};
  for (std::size_t i = 0; i < bars.size(); ++i) {
    auto* bar = new SpinnerBarQt(Qt::Vertical, this);
    NameControl(*bar, (std::string(name) + "(" + std::to_string(i) + ")").c_str(), hint);
    bar->setAccessibleName(QStringLiteral("%1 %2").arg(i == 0 ? 10 : 1).arg(TrQ(unit)));
    bar->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    bar->setRange(-1, 1);
    bar->setPageStep(1);
    bars[i] = bar;
  }
  return bars;
}

void SimulatePageQt::LayOut() {
  auto* rows = new QGridLayout(frmSimulate);
  const auto place = [this, rows](int row, int column, const char* caption, QWidget* named, QLayout* what) {
    rows->addWidget(NewCaption(caption, named, this), row, column);
    rows->addLayout(what, row, column + 1);
  };
  const auto spinning = [](OptionEntryQt* box, const std::array<QScrollBar*, 2>& bars) {
    QHBoxLayout* row = Row({box, bars[0], bars[1]});
    return row;
  };
  place(0, 0, TrMark("&Boat Speed (Kts)"), txtSimulateBoatSpeed, Row({txtSimulateBoatSpeed}));
  place(1, 0, TrMark("True Wind Dire&ction (T)"), txtSimulateTrueWindAngle,
        spinning(txtSimulateTrueWindAngle, vscSimulateTrueWindAngle));
  place(2, 0, TrMark("True Wind S&peed (Kts)"), txtSimulateTrueWindSpeed, Row({txtSimulateTrueWindSpeed}));
  place(3, 0, TrMark("Magnetic &Variation (Deg)"), txtSimulateVariation, Row({txtSimulateVariation}));
  place(4, 0, TrMark("O&ffset (Deg)"), txtSimulateCompassOffset, Row({txtSimulateCompassOffset}));
  place(0, 3, TrMark("&Noise"), txtSimulateNoiseSpeed,
        Row({txtSimulateNoiseSpeed, NewText(TrMark("Kts"), this)}));
  place(1, 3, TrMark("Angl&e Noise"), txtSimulateNoiseAngle,
        Row({txtSimulateNoiseAngle, NewText(TrMark("Deg"), this)}));
  place(2, 3, TrMark("Wa&ypoint (M,nm)"), txtSimulateWaypointBrg,
        Row({txtSimulateWaypointBrg, txtSimulateWaypointRng}));
  txtSimulateWaypointRng->setAccessibleName(TrQ("Waypoint Range"));
  place(3, 3, TrMark("Ti&me"), txtSimulateTime, spinning(txtSimulateTime, vscSimulateTime));
  rows->addLayout(Row({lblSimulateWaypointBrg, lblSimulateWaypointRng, NewText(TrMark("M,nm"), this)}), 4, 4);
  rows->addWidget(chkSimulateAutoApply, 5, 4);
  rows->addWidget(NewCaption(TrMark("&Kind of Boat"), cmbSimulateModel, this), 6, 0);
  rows->addLayout(NewModelRow(), 6, 1, 1, 5);
  place(7, 0, TrMark("Pilot Lag (Sec)"), txtSimulatePilotLag, Row({txtSimulatePilotLag}));
  place(7, 3, TrMark("Leeway (Deg)"), txtSimulateLeeway, Row({txtSimulateLeeway}));
  place(8, 0, TrMark("Gusts (%)"), txtSimulateGusts, Row({txtSimulateGusts}));
  place(8, 3, TrMark("S&hifts (Deg)"), txtSimulateShifts,
        Row({txtSimulateShifts, NewCaption(TrMark("Seed"), txtSimulateSeed, this), txtSimulateSeed}));
  QWidget* before = chkSimulateAutoApply;
  for (QWidget* next : std::initializer_list<QWidget*>{
           cmbSimulateModel, cmbSimulatePilot, cmbSimulateSea, txtSimulatePilotLag, txtSimulateLeeway,
           txtSimulateGusts, txtSimulateShifts, txtSimulateSeed}) {
    setTabOrder(before, next);
    before = next;
  }
  rows->setColumnMinimumWidth(2, kGroupGap);
  rows->setColumnStretch(5, 1);
  auto* page = new QVBoxLayout(this);
  page->addWidget(chkSimulate);
  page->addWidget(frmSimulate);
  page->addStretch();
}

std::vector<BoundEntry> SimulatePageQt::Entries() const {
  return {
      {txtSimulateBoatSpeed, &OptionsForm::SimulateBoatSpeed},
      {txtSimulateCompassOffset, &OptionsForm::SimulateCompassOffset},
      {txtSimulateNoiseAngle, &OptionsForm::SimulateNoiseAngle},
      {txtSimulateNoiseSpeed, &OptionsForm::SimulateNoiseSpeed},
      {txtSimulateTime, &OptionsForm::SimulateTime},
      {txtSimulateTrueWindAngle, &OptionsForm::SimulateTrueWindAngle},
      {txtSimulateTrueWindSpeed, &OptionsForm::SimulateTrueWindSpeed},
      {txtSimulateVariation, &OptionsForm::SimulateVariation},
      {txtSimulateWaypointBrg, &OptionsForm::SimulateWaypointBrg},
      {txtSimulateWaypointRng, &OptionsForm::SimulateWaypointRng},
      {txtSimulatePilotLag, &OptionsForm::SimulatePilotLag},
      {txtSimulateGusts, &OptionsForm::SimulateGusts},
      {txtSimulateShifts, &OptionsForm::SimulateShifts},
      {txtSimulateLeeway, &OptionsForm::SimulateLeeway},
      {txtSimulateSeed, &OptionsForm::SimulateSeed},
  };
}

void SimulatePageQt::Show(const OptionsForm& form) const {
  frmSimulate->setVisible(form.Simulate);
  chkSimulate->setChecked(form.Simulate);
  cmbSimulateModel->setCurrentIndex(form.SimulateModel);
  cmbSimulatePilot->setCurrentIndex(form.SimulatePilot);
  cmbSimulateSea->setCurrentIndex(form.SimulateSea);
  ShowEntries(Entries(), form);
}

void SimulatePageQt::Read(OptionsForm& form) const {
  form.Simulate = chkSimulate->isChecked();
  form.SimulateModel = cmbSimulateModel->currentIndex();
  form.SimulatePilot = cmbSimulatePilot->currentIndex();
  form.SimulateSea = cmbSimulateSea->currentIndex();
  ReadEntries(Entries(), form);
}

void SimulatePageQt::ShowWaypoint(float bearing, float range) const {
  lblSimulateWaypointBrg->setText(QString::fromStdString(FormatNumber(bearing, "0")));
  lblSimulateWaypointRng->setText(QString::fromStdString(FormatNumber(range, "0.0")));
}

void SimulatePageQt::OnSpinner(QScrollBar* bar, OptionEntryQt* box, SpinnerStep size, Step step,
                               const std::function<void()>& told) {
  connect(bar, &QScrollBar::valueChanged, this, [bar, box, size, step, told](int scroll) {
    bar->setEnabled(false);
    box->setText(QString::fromStdString(step(box->text().toStdString(), size, scroll)));
    {
      const QSignalBlocker quiet(bar);
      bar->setValue(0);
    }
    bar->setEnabled(true);
    told();
  });
}

void SimulatePageQt::Stepped(const std::function<void()>& time, const std::function<void()>& angle) {
  for (const SpinnerStep size : {SpinnerStep::Coarse, SpinnerStep::Fine}) {
    const auto index = static_cast<std::size_t>(size);
    OnSpinner(vscSimulateTime[index], txtSimulateTime, size, SimulateTimeStep, time);
    OnSpinner(vscSimulateTrueWindAngle[index], txtSimulateTrueWindAngle, size, SimulateAngleStep, angle);
  }
}

void SimulatePageQt::Changed(const std::function<void(QWidget*)>& handler) {
  connect(chkSimulate, &QCheckBox::toggled, this, [this, handler] { handler(chkSimulate); });
  for (QComboBox* list : {cmbSimulateModel, cmbSimulatePilot, cmbSimulateSea}) {
    connect(list, &QComboBox::currentIndexChanged, this, [list, handler] { handler(list); });
  }
}

std::array<OptionEntryQt*, 15> SimulatePageQt::Marking() const {
  return {txtSimulateBoatSpeed,  txtSimulateCompassOffset, txtSimulateTrueWindAngle, txtSimulateTrueWindSpeed,
          txtSimulateVariation,  txtSimulateWaypointBrg,   txtSimulateWaypointRng,   txtSimulateTime,
          txtSimulateNoiseAngle, txtSimulateNoiseSpeed,    txtSimulatePilotLag,      txtSimulateGusts,
          txtSimulateShifts,     txtSimulateLeeway,        txtSimulateSeed};
}

}  // namespace veerwatch
