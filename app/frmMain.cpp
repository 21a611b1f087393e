#include "app/frmMain.h"

#include <QScreen>
#include <QShortcut>
#include <QStatusBar>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <utility>

#include "app/IconsQt.h"
#include "platform/AtomicFile.h"
#include "platform/Language.h"
#include "platform/NumberText.h"
#include "platform/VisibleText.h"

namespace veerwatch {

namespace {

constexpr int kTimerInterval = 1000;  // [ms]
constexpr int kInsteadTime = 10000;   // [ms]
constexpr QSize kSmallestSize(320, 220);
// Height of the status texts [px] at the default size of the window, and at the least.
constexpr double kStatusTextHeight = 18.0;
constexpr int kLeastStatusTextHeight = 11;
/// Part of the screen that the window takes at most.
constexpr double kScreenShare = 0.96;

QString Text(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString Number(float value, std::string_view pattern) { return Text(FormatNumber(value, pattern)); }

constexpr std::size_t At(int index) { return static_cast<std::size_t>(index - 1); }

}  // namespace

frmMain::frmMain(const MainWindowParts& parts)
    : m_parts(parts),
      m_asks(parts.Asks.Of(*this)),
      m_menu(*this),
      m_tbrTrack(new frmMainModeBar(*this)),
      m_panel(new InstrumentPanelQt(this)),
      m_status(new StatusPanelsQt(this)),
      m_helm(*this, parts.MSCommNmea, parts.MSCommPilot, parts.tmrNmea, parts.Time, parts.Random),
      m_told(m_helm.Observers().Join(*this)),
      m_turn(m_helm, parts.TimerTack, parts.Time),
      m_others(m_parts, m_menu, *this, this,
               {m_helm, m_turn, *m_asks, [this](const std::string& text) { SayForAWhile(text); },
                [this](const std::string& text) { ShowPrompt(text); }, [this] { m_alarms.TurnSounds(); }}),
      m_alarms(m_parts, m_menu, *this, *m_panel->Banner, *this),
      m_recording(m_parts, m_menu, m_helm, *m_asks, *statusBar(),
                  [this](const std::string& text) { NoticeSet(AlarmKind::Record, text); }),
      m_windMenu(*this, m_menu, *this, m_helm,
                 [this](const std::string& text) { NoticeSet(AlarmKind::Wind, text); }),
      m_profiles(parts.Profiles, *m_menu.mnuFileProfiles, *m_asks, ProfileWishes()),
      m_report(m_parts, m_menu, m_helm, *m_asks, [this] { return Present(); }) {
  setObjectName(QStringLiteral("frmMain"));
  ShowTitle();
  setWindowIcon(ProgramIcon());
  setCentralWidget(m_panel);
  setMinimumSize(kSmallestSize);
  QSize size = kDesignSize;
  if (const QScreen* display = screen()) {
    size = size.boundedTo(display->availableSize() * kScreenShare);
  }
  resize(size);
  m_helm.Functions().Polar(
      [this](double windSpeed, bool upwind) { return m_others.BestAngleOf(windSpeed, upwind); });
  MakeStatusBar();
  ConnectControls();
  ConnectKeys();
  ApplyTheme();
  // The keyboard starts in front of the first control instead of on a mode.
  m_panel->setFocus();
  m_parts.tmrNmea.Interval(kTimerInterval);
  if (m_parts.tmrPilot != nullptr) {
    m_helm.PilotTimer(*m_parts.tmrPilot);
  }
  m_parts.tmrUnload.Interval(kTimerInterval);
  m_insteadTimer.setObjectName(QStringLiteral("tmrInstead"));
  m_insteadTimer.setSingleShot(true);
  m_insteadTimer.setInterval(kInsteadTime);
  connect(&m_insteadTimer, &QTimer::timeout, this, [this] {
    m_instead.clear();
    ShowModeText();
  });
}

frmMain::~frmMain() {
  // A box that loses the keyboard hands in what was typed: while there is somebody to take it.
  hide();
}

void frmMain::MakeStatusBar() {
  QStatusBar* bar = statusBar();
  bar->setObjectName(QStringLiteral("StatusBar"));
  // The frame is grip enough; the bar's own keeps its colours at night.
  bar->setSizeGripEnabled(false);
  bar->insertWidget(0, m_status, 1);
}

void frmMain::ConnectControls() {
  connect(m_menu.mnuFileDefault, &QAction::triggered, this, [this] { ProfileRecall(false); });
  connect(m_menu.mnuFileExit, &QAction::triggered, this, [this] {
    m_profiles.Stay();
    close();
  });
  connect(m_menu.mnuViewNight, &QAction::toggled, this, [this](bool checked) {
    m_bNightColours = checked;
    WearNightColours(checked);
  });
  connect(m_menu.mnuViewSave, &QAction::toggled, this,
          [this](bool checked) { m_bSaveWhileRunning = checked; });
  connect(m_menu.mnuViewLanguage, &QActionGroup::triggered, this, [this](const QAction* action) {
    m_eLanguage = static_cast<WindowLanguage>(action->data().toInt());
    SayForAWhile(Tr("The language changes at the next start"));
  });
  for (const TrackMode mode : {TrackMode::Off, TrackMode::Setup, TrackMode::Manual, TrackMode::Track}) {
    connect(m_tbrTrack->Button(mode), &QAction::triggered, this,
            [this, mode] { tbrTrack_ButtonClick(mode); });
  }
  m_panel->txtAutoPilot->Taken([this] { txtAutoPilot_Taken(); });
  for (int index = 1; index <= 2; ++index) {
    m_panel->txtDesired[At(index)]->Taken([this, index] { txtDesired_Taken(index); });
    connect(m_panel->optControl[At(index)], &QRadioButton::toggled, this, [this, index](bool checked) {
      if (checked) {
        optControl_Click(index);
      }
    });
    connect(m_panel->cmdAutoPilot[At(index)], &QPushButton::clicked, this,
            [this, index] { cmdAutoPilot_Click(index); });
    for (const NudgeButtonQt* button :
         {m_panel->cmdDesiredApp[At(index)], m_panel->cmdDesiredTrue[At(index)]}) {
      connect(button, &QPushButton::clicked, this, [this, index] { cmdDesired_Click(index); });
    }
  }
}

void frmMain::ConnectKeys() {
  for (const auto& [key, index] : {std::pair{Qt::Key_Left, 1}, std::pair{Qt::Key_Right, 2}}) {
    // With Shift by ten degrees; an entry box keeps Shift and an arrow for itself.
    for (const Qt::KeyboardModifiers with :
         {Qt::KeyboardModifiers(Qt::AltModifier), Qt::ShiftModifier | Qt::AltModifier,
          Qt::KeyboardModifiers(Qt::ShiftModifier)}) {
      auto* shortcut = new QShortcut(QKeySequence(QKeyCombination(with, key)), this);
      shortcut->setAutoRepeat(false);
      connect(shortcut, &QShortcut::activated, this, [this, pressed = index] { NudgeKey(pressed); });
    }
  }
}

void frmMain::ApplyTheme() {
  const ThemeQt theme(palette());
  m_tbrTrack->Theme(theme);
  m_status->Theme(theme);
}

void frmMain::Form_Load(bool changed) {
  m_staysOff = changed;
  ProfileRecall(true);
  m_staysOff = false;
  m_report.Diary().Keep(m_sProfileFile);
  m_others.ConnectOffer(*this);
}

void frmMain::ShowInFront() {
  show();
  raise();
  activateWindow();
}

void frmMain::ProfileRecall(bool recall) {
  SettingsDefault(*this);
  m_sProfileFile = m_parts.ProfileFile;
  if (recall) {
    if (m_parts.Store.Load(m_sProfileFile) == Profile::LoadResult::Unreadable) {
      const std::string kind(OtherKind(m_sProfileFile));
      const char* text =
          kind.empty()
              ? TrMark("%1 cannot be read: defaults are used; at the close it is put aside, not overwritten")
              : TrMark("%1 cannot be read, %2: defaults are used, and nothing is saved");
      std::fprintf(stderr, "%s\n", VisibleText(Filled(text, {m_sProfileFile, kind})).c_str());
      NoticeSet(AlarmKind::Profile, Filled(Tr(text), {m_sProfileFile, Tr(kind)}));
    }
    m_named = PortEntries(m_parts.Store);
    ProfileRead(m_parts.Store, *this, m_others);
  }
  m_menu.mnuViewNight->setChecked(m_bNightColours);
  m_menu.mnuViewSave->setChecked(m_bSaveWhileRunning);
  m_menu.TickLanguage(m_eLanguage);
  m_windMenu.Reload();
  m_panel->txtAutoPilot->Show(Number(m_fAutoPilot, "0.0"));
  for (int index = 1; index <= 2; ++index) {
    m_panel->txtDesired[At(index)]->Show(Number(DesiredAngle[static_cast<std::size_t>(index)], "0"));
  }
  if (m_staysOff) {
    TrackSetOff();
  } else {
    TrackSetSetup();
    if (m_bSimulate) {
      TrackSetManual();
    }
  }
  m_others.OptionsReload();
  if (recall) {
    m_save.Saved(Keepable());
  }
}

void frmMain::tmrNmea_Timer() { m_helm.Tick(); }

void frmMain::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  m_tbrTrack->Fit(size());
  const int status = std::max(kLeastStatusTextHeight,
                              static_cast<int>(std::lround(kStatusTextHeight * WindowScale(size()))));
  m_status->TextHeight(status);
  m_recording.TextHeight(status);
}

void frmMain::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) {
    ApplyTheme();
  }
}

// What the user does

void frmMain::LeaveControls() {
  if (m_panel->isAncestorOf(focusWidget())) {
    m_panel->setFocus();
  }
}

void frmMain::tbrTrack_ButtonClick(TrackMode mode) {
  // What is typed is taken in the mode that it was typed in; and no control that the new mode disables hands
  // the keyboard on to whatever comes next.
  LeaveControls();
  switch (mode) {
    case TrackMode::Off:
      TrackSetOff();
      break;
    case TrackMode::Setup:
      TrackSetSetup();
      break;
    case TrackMode::Manual:
      TrackSetManual();
      break;
    case TrackMode::Track:
      TrackSetTrack();
      break;
    case TrackMode::Switching:
      break;
  }
}

void frmMain::optControl_Click(int index) {
  m_instead.clear();
  m_helm.Track(index == 2 ? TrackSide::True : TrackSide::Apparent);
  ShowControls();
  ShowModeText();
}

}  // namespace veerwatch
