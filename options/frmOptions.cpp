#include "options/frmOptions.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLayout>
#include <QScreen>
#include <algorithm>
#include <initializer_list>

#include "draw/WindowPlaceQt.h"
#include "options/DeviceDialogQt.h"
#include "options/DeviceHint.h"
#include "options/LoopDiagramQt.h"
#include "options/PilotTestQt.h"
#include "options/SimulateTimeText.h"
#include "options/TrackInUseText.h"
#include "platform/Language.h"
#include "platform/LanguageQt.h"
#include "platform/NumberText.h"
#include "platform/PortNames.h"

namespace veerwatch {

namespace {

// Around the tabs and the buttons, and between two buttons [px].
constexpr int kMargin = 8;
constexpr int kGap = 16;

constexpr QSize kUsualSize(880, 640);
constexpr double kScreenShare = 0.94;
/// How much larger than the desktop's the texts are, to be read standing.
constexpr double kTextShare = 1.15;

QString Text(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

frmOptions::frmOptions(const Parts& parts)
    : m_parts(parts),
      m_asks(parts.Asks.Of(*this)),
      m_store(parts.Main, parts.Ports, parts.Store),
      SSTab(new QTabWidget(this)) {
  setObjectName(QStringLiteral("frmOptions"));
  setWindowTitle(TrQ("Veerwatch - Options"));
  setWindowFlags(Qt::Window);
  setAttribute(Qt::WA_QuitOnClose, false);
  LargerText();
  MakeTabs();
  MakeButtons();
  ConnectMarks();
  connect(SSTab, &QTabWidget::currentChanged, this, [this](int index) { SSTab_Click(index); });
  m_simulate->Stepped(
      [this] {
        SimulateWaypointShow();
        vscSimulate_Changed();
      },
      [this] { vscSimulate_Changed(); });
  OptionsReload();
  ShowHelm();
  m_told = parts.Main.Observers().Join(*this);
  Fit();
  const QSize screenRoom = screen()->availableSize() * kScreenShare;
  resize(kUsualSize.expandedTo(minimumSize()).boundedTo(screenRoom));
}

// What it is made of

void frmOptions::MakeTabs() {
  SSTab->setObjectName(QStringLiteral("SSTab"));
  m_input = new PortPageQt(InputPageTexts(), SSTab);
  m_data = new DataPageQt(SSTab);
  m_output = new PortPageQt(OutputPageTexts(), SSTab);
  m_pilot = new PilotFrameQt(m_output);
  m_output->Insert(m_pilot);
  m_track = new TrackPageQt(m_parts.Random, m_parts.Main, m_parts.Recorded, SSTab);
  m_track->Suggested([this](const TrackSuggestion& suggestion) { Suggested(suggestion); });
  m_simulate = new SimulatePageQt(SSTab);
  m_watch = new WatchPageQt(SSTab);
  m_watch->Tested([this](AlarmSound sound) { m_parts.Main.AlarmTest(sound); });
  SSTab->addTab(m_input, TrQ("&Input"));
  SSTab->addTab(m_data, TrQ("&Data"));
  SSTab->addTab(new OptionPageQt(m_output, SSTab), TrQ("&Output"));
  SSTab->addTab(new OptionPageQt(m_track, SSTab), TrQ("&Tracking"));
  SSTab->addTab(new OptionPageQt(m_simulate, SSTab), TrQ("&Simulate"));
  SSTab->addTab(new LoopDiagramQt(SSTab), TrQ("Dia&gram"));
  SSTab->addTab(new OptionPageQt(m_watch, SSTab), TrQ("&Watch"));
  for (PortPageQt* page : {m_input, m_output}) {
    connect(page->Port, &QLineEdit::textChanged, this, [this] { ShowDevices(); });
    connect(page->Choose, &QPushButton::clicked, this, [this, page] { ChooseDevice(*page); });
  }
  for (QRadioButton* option : m_input->Format) {
    connect(option, &QRadioButton::clicked, this, [this] { m_input->List->Clear(); });
    connect(option, &QRadioButton::toggled, this, [this] { m_input->List->Clear(); });
  }
  connect(m_pilot->cmdPilotTest, &QPushButton::clicked, this, [this] { cmdPilotTest_Click(); });
  lstNmeaSentence = new SentenceListQt(this);
  lstNmeaSentence->hide();
  m_data->SentencePlace->installEventFilter(this);
  setTabOrder(m_data->txtNmeaBoatSpeedFactor, lstNmeaSentence);
}

void frmOptions::MakeButtons() {
  const auto button = [this](const char* name, const char* text) {
    auto* made = new QPushButton(TrQ(text), this);
    made->setObjectName(QLatin1String(name));
    return made;
  };
  cmdOk = button("cmdOk", TrMark("OK"));
  cmdCancel = button("cmdCancel", TrMark("Cancel"));
  cmdApply = button("cmdApply", TrMark("&Apply"));
  cmdOk->setDefault(true);
  connect(cmdOk, &QPushButton::clicked, this, [this] { cmdOk_Click(); });
  connect(cmdCancel, &QPushButton::clicked, this, [this] { cmdCancel_Click(); });
  connect(cmdApply, &QPushButton::clicked, this, [this] { cmdApply_Click(); });
}

void frmOptions::ConnectMarks() {
  const auto marks = [this](OptionEntryQt* box) {
    connect(box, &QLineEdit::textChanged, this, [this, box] { Mark(box); });
  };
  for (OptionEntryQt* box :
       {m_input->Port, m_data->txtNmeaTrueWindAverage, m_data->txtNmeaWindIndicatorAverage, m_output->Port}) {
    marks(box);
  }
  for (OptionEntryQt* box : m_simulate->Marking()) {
    marks(box);
  }
  for (OptionEntryQt* box : m_track->Marking()) {
    marks(box);
  }
  connect(m_track->cmbTrackMethod, &QComboBox::currentIndexChanged, this,
          [this] { Mark(m_track->cmbTrackMethod); });
  m_simulate->Changed([this](QWidget* control) { Mark(control); });
  m_data->Changed([this](QWidget* control) { Mark(control); });
  m_watch->Changed([this](QWidget* control) { Mark(control); });
  m_pilot->Changed([this](QWidget* control) {
    Mark(control);
    PilotPreviewShow();
  });
  lstNmeaSentence->Changed([this] { Mark(lstNmeaSentence); });
}

// Its layout

void frmOptions::LargerText() {
  QFont larger = QApplication::font();
  if (larger.pixelSize() > 0) {
    larger.setPixelSize(qRound(larger.pixelSize() * kTextShare));
  } else {
    larger.setPointSizeF(larger.pointSizeF() * kTextShare);
  }
  setFont(larger);
  // They have a font of their own and take its size from the page around them when it changes.
  for (const char* name : {"lstNmeaData", "lstPilotData"}) {
    if (auto* list = findChild<QListView*>(QLatin1String(name))) {
      list->setFont(larger);
    }
  }
}

QSize frmOptions::LeastSize() const {
  const QSize tabs = SSTab->minimumSizeHint();
  const int buttons = cmdOk->width() + cmdCancel->width() + cmdApply->width() + 2 * kGap;
  return {std::max(tabs.width(), buttons) + 2 * kMargin,
          kMargin + tabs.height() + kMargin + cmdApply->height() + kMargin};
}

void frmOptions::Fit() {
  // All three as large as the largest, with room for a bold text.
  QSize size(0, 0);
  for (const QPushButton* button : {cmdOk, cmdCancel, cmdApply}) {
    QFont bold = button->font();
    bold.setBold(true);
    const int text = button->fontMetrics().horizontalAdvance(button->text());
    const int larger = QFontMetrics(bold).horizontalAdvance(button->text()) - text;
    size = size.expandedTo(button->sizeHint() + QSize(larger, 0));
  }
  for (QPushButton* button : {cmdOk, cmdCancel, cmdApply}) {
    button->resize(size);
  }
  const QSize room = screen()->availableSize() * kScreenShare;
  m_data->SentencePlace->setMinimumSize(lstNmeaSentence->minimumSizeHint());
  if (LeastSize().height() > room.height()) {
    m_data->ShortenList();
  }
  setMinimumSize(LeastSize().boundedTo(room));
  LayOut();
}

void frmOptions::LayOut() {
  const int top = height() - kMargin - cmdApply->height();
  cmdApply->move(width() - kMargin - cmdApply->width(), top);
  cmdCancel->move(cmdApply->x() - kGap - cmdCancel->width(), top);
  cmdOk->move(cmdCancel->x() - kGap - cmdOk->width(), top);
  SSTab->setGeometry(kMargin, kMargin, width() - 2 * kMargin, top - 2 * kMargin);
  // The lists end a margin off the edges of the tab control, not off those of the page in it.
  const QWidget* shown = SSTab->currentWidget();
  const QRect page(shown->mapTo(SSTab, QPoint(0, 0)), shown->size());
  const QMargins margins(kMargin - page.left(), kGap, kMargin - (SSTab->width() - page.right() - 1),
                         kMargin - (SSTab->height() - page.bottom() - 1));
  for (const QWidget* listPage : std::initializer_list<const QWidget*>{m_input, m_data, m_output}) {
    listPage->layout()->setContentsMargins(margins);
  }
  lstNmeaSentence->PutOver(*m_data->SentencePlace, SSTab->geometry());
}

QPoint frmOptions::Centre() const {
  const QRect display = screen()->geometry();
  const QSize spare = (display.size() - FramedSize(*this)).expandedTo({0, 0});
  return display.topLeft() + QPoint(spare.width() / 2, spare.height() / 2);
}

void frmOptions::ShowCenter() {
  ShowAt(Centre());
  // The frame may have its size only now.
  move(Centre());
}

void frmOptions::ShowAt(QPoint topLeft) {
  setWindowState(windowState() & ~Qt::WindowMinimized);
  move(topLeft);
  show();
  raise();
  activateWindow();
}

// What the helm tells

void frmOptions::OnNmeaLine(std::string_view line, LineFault fault, bool used) {
  if (!isVisible()) {
    return;
  }
  if (m_input->Format[0]->isChecked()) {
    ListedLine(line, fault, m_line);
    NmeaList(m_line, used);
  }
  if (m_input->Format[1]->isChecked() && fault != LineFault::None) {
    ListedFault(line, fault, m_line);
    NmeaList(m_line, false);
  }
}

void frmOptions::NmeaList(std::string_view line, bool checked) {
  if (m_input->ListOn->isChecked()) {
    m_input->List->Add(line, checked);
  }
}

void frmOptions::OnPilotData(std::string_view sentence) {
  if (isVisible() && m_output->ListOn->isChecked() && SSTab->isTabEnabled(Output)) {
    m_output->List->Add(sentence, false);
  }
}

void frmOptions::OnInputState(InputState state) { m_input->Status->setText(TrQ(InputStateText(state))); }

void frmOptions::OnOutputState(OutputState state) { m_output->Status->setText(TrQ(OutputStateText(state))); }

void frmOptions::OnTrackMode(TrackMode /*mode*/) {
  const auto tuning = m_parts.Main.Now().InUse;
  m_track->lblTrackInUse->setText(tuning ? Text(TrackInUseText(*tuning)) : QString());
  m_track->lblTrackInUse->setVisible(tuning.has_value());
}

void frmOptions::OnTick() {
  if (isVisible() && SSTab->currentIndex() == Tracking) {
    m_track->ShowRate();
  }
  PilotPreviewShow();
}

void frmOptions::PilotPreviewShow() {
  if (SSTab->currentIndex() == Output) {
    m_pilot->Preview(PilotPreviewOf(Form(), m_parts.Main, m_parts.Main.Record(), m_parts.Main.Now()));
  }
}

void frmOptions::ShowHelm() {
  const HelmNow now = m_parts.Main.Now();
  OnInputState(now.Input);
  OnInputFailure(now.InputFailure);
  OnSourceAdvice(now.Advice);
  OnOutputState(now.Output);
  OnOutputFailure(now.OutputFailure);
  OnTrackMode(now.Mode);
}

// Where the ports lead

int frmOptions::NumberIn(const PortPageQt& page) {
  const Converted<std::int16_t> whole = ToOptionWhole(page.Port->text().toStdString());
  const auto* port = std::get_if<std::int16_t>(&whole);
  return port != nullptr && *port > 0 ? *port : 0;
}

void frmOptions::ShowDevices() const {
  for (const PortPageQt* page : {m_input, m_output}) {
    const int number = NumberIn(*page);
    const auto chosen = m_devices.find(number);
    page->Leads(chosen != m_devices.end() ? chosen->second
                : number > 0              ? PortDevice(m_parts.Store, number)
                                          : std::string());
  }
}

void frmOptions::ChooseDevice(PortPageQt& page) {
  const int number = NumberIn(page);
  // What was chosen and not applied counts as named.
  std::map<int, std::string> named = m_devices;
  for (const PortEntry& entry : PortEntries(m_parts.Store)) {
    named.emplace(entry.Number, entry.Endpoints);
  }
  std::vector<PortEntry> entries;
  entries.reserve(named.size());
  for (const auto& [port, endpoints] : named) {
    entries.push_back({port, endpoints});
  }
  const bool both = NumberIn(*m_input) == NumberIn(*m_output);
  const char* one = &page == m_input ? TrMark("Port %1, input:") : TrMark("Port %1, output:");
  const DeviceChoices choices(std::move(entries), DeviceIsThere);
  const auto taken = [this, &page, number, choices](const std::string& text) {
    const DevicePick pick = choices.PickFor(text, number);
    if (!pick.IsNamed) {
      m_devices[pick.Number] = pick.Endpoints;
    }
    page.Port->setText(QString::number(pick.Number));
    ShowDevices();
    ApplyBold(true);
  };
  DeviceDialogQt::Open({Filled(both ? Tr("Port %1, input and output:") : Tr(one), {std::to_string(number)}),
                        page.Device->text().toStdString(), choices, m_parts.Finder},
                       this, taken);
}

// Settings to controls and back

OptionsForm frmOptions::Form() const {
  OptionsForm form;
  m_data->Read(form);
  lstNmeaSentence->Read(form);
  form.NmeaPort = m_input->Port->text().toStdString();
  form.PilotPort = m_output->Port->text().toStdString();
  form.PortDevices = m_devices;
  m_simulate->Read(form);
  m_pilot->Read(form);
  m_track->Read(form);
  m_watch->Read(form);
  return form;
}

void frmOptions::OptionsReload() {
  const OptionsForm form = OptionsFormOf(m_parts.Main);
  m_data->Show(form);
  lstNmeaSentence->Show(form);
  m_input->Port->Show(QString::fromStdString(form.NmeaPort));
  m_output->Port->Show(QString::fromStdString(form.PilotPort));
  m_devices.clear();
  ShowDevices();
  m_input->List->Clear();
  m_output->List->Clear();
  m_simulate->Show(form);
  m_pilot->Show(form);
  m_track->Show(form);
  m_watch->Show(form);
  SimulateWaypointShow();
  ApplyBold(false);
  PilotPreviewShow();
  if (SSTab->currentIndex() == Tracking) {
    m_track->TrackPreviewDraw();
  }
}

bool frmOptions::OptionsApply() {
  if (const auto problem = m_store.Store(Form())) {
    const std::string hint = DeviceHint(Form());
    m_asks->Inform(kApplicationTitle, hint.empty() ? *problem : *problem + "\r\r" + hint);
    return false;
  }
  for (QLineEdit* control : findChildren<QLineEdit*>()) {
    if (auto* box = dynamic_cast<EntryLineQt*>(control)) {
      box->Take();
    }
  }
  m_devices.clear();
  ShowDevices();
  ApplyBold(false);
  return true;
}

void frmOptions::SimulateWaypointShow() {
  const Converted<float> time = SimulateTimeParse(m_simulate->txtSimulateTime->text().toStdString());
  const float* hours = std::get_if<float>(&time);
  float bearing = 0.0F;
  float range = 0.0F;
  m_parts.Main.SimulateTime(hours != nullptr ? *hours : 0.0F, bearing, range);
  m_simulate->ShowWaypoint(bearing, range);
}

// What the user does

void frmOptions::cmdOk_Click() {
  if (OptionsApply()) {
    hide();
  }
}

void frmOptions::cmdCancel_Click() {
  hide();
  ApplyBold(false);
}

void frmOptions::cmdApply_Click() {
  if (OptionsApply()) {
    OptionsReload();
  } else if (SSTab->currentIndex() == Tracking) {
    m_track->TrackPreviewDraw();
  }
}

void frmOptions::Suggested(const TrackSuggestion& suggestion) {
  m_data->txtNmeaTrueWindAverage->setText(QString::fromStdString(ShortestText(suggestion.WindAverage)));
  ApplyBold(true);
}

void frmOptions::cmdPilotTest_Click() {
  PilotTestQt::Ask({m_parts.Main, m_parts.Time, *m_asks, *this}, [this](const std::string& lag) {
    TabSelect(Tracking);
    m_track->SuggestFor(lag);
  });
}

void frmOptions::SSTab_Click(int index) {
  lstNmeaSentence->setVisible(index == Data);
  if (index == Data) {
    lstNmeaSentence->raise();
  } else if (index == Tracking) {
    m_track->TrackPreviewDraw();
  }
  PilotPreviewShow();
}

void frmOptions::vscSimulate_Changed() {
  if (m_simulate->chkSimulateAutoApply->isChecked()) {
    cmdApply_Click();
  } else {
    ApplyBold(true);
  }
}

// Deliberate: the sources and "Auto Apply" never come here, and what changes without the keyboard marks
// nothing.
void frmOptions::Mark(const QWidget* control) {
  if (control == QApplication::focusWidget()) {
    ApplyBold(true);
  }
}

void frmOptions::ApplyBold(bool bold) {
  QFont font = cmdApply->font();
  font.setBold(bold);
  cmdApply->setFont(font);
}

// What the desktop does

void frmOptions::closeEvent(QCloseEvent* event) {
  event->accept();
  hide();
  if (m_closed) {
    m_closed();
  }
}

void frmOptions::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  LayOut();
}

bool frmOptions::event(QEvent* event) {
  const bool handled = QDialog::event(event);
  if (event->type() == QEvent::ApplicationFontChange) {
    LargerText();
  } else if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Show) {
    Fit();
  }
  return handled;
}

bool frmOptions::eventFilter(QObject* watched, QEvent* event) {
  if (watched == m_data->SentencePlace &&
      (event->type() == QEvent::Resize || event->type() == QEvent::Move || event->type() == QEvent::Show)) {
    lstNmeaSentence->PutOver(*m_data->SentencePlace, SSTab->geometry());
  }
  return QDialog::eventFilter(watched, event);
}

}  // namespace veerwatch
