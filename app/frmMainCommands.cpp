#include "app/frmMainCommands.h"

#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>
#include <QWidget>
#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "app/IconsQt.h"
#include "platform/Language.h"
#include "platform/LanguageQt.h"

namespace veerwatch {

namespace {

struct ModeButton {
  TrackMode Mode;
  const char* Text;
  const char* Icon;
  const char* ToolTip;
  Qt::Key Key;
};

constexpr std::array<ModeButton, 4> kModes{{
    {TrackMode::Off, TrMark("Off"), "off", TrMark("Off, Stop input and autopilot output"), Qt::Key_F5},
    {TrackMode::Setup, TrMark("Setup"), "setup", TrMark("Setup, Set software to hardware autopilot heading"),
     Qt::Key_F6},
    {TrackMode::Manual, TrMark("Manual"), "manual",
     TrMark("Manual, adjust autopilot heading for desired wind angle"), Qt::Key_F7},
    {TrackMode::Track, TrMark("Track"), "track", TrMark("Track, adjust desired wind angle to fine tuning"),
     Qt::Key_F8},
}};

// Height of the mode texts [px] at the window's design size, and at the least.
constexpr double kTextHeight = 26.0;
constexpr int kLeastTextHeight = 9;

/// A new command in `menu`.
QAction* Command(QMainWindow& window, QMenu* menu, const char* name, const char* text) {
  auto* action = new QAction(TrQ(text), &window);
  action->setObjectName(QLatin1String(name));
  menu->addAction(action);
  return action;
}

/// A new command that is on or off.
QAction* Tick(QMainWindow& window, QMenu* menu, const char* name, const char* text, const char* toolTip) {
  QAction* action = Command(window, menu, name, text);
  action->setCheckable(true);
  action->setToolTip(TrQ(toolTip));
  return action;
}

}  // namespace

frmMainMenu::frmMainMenu(QMainWindow& window) {
  QMenu* file = window.menuBar()->addMenu(TrQ("&File"));
  mnuFileDefault = Command(window, file, "mnuFileDefault", TrMark("&Default"));
  mnuFileRecord = Command(window, file, "mnuFileRecord", TrMark("&Record Input..."));
  mnuFileRecord->setCheckable(true);
  mnuFileProfiles = file->addMenu(TrQ("&Profiles"));
  mnuFileProfiles->setObjectName(QStringLiteral("mnuFileProfiles"));
  file->addSeparator();
  mnuFileExit = Command(window, file, "mnuFileExit", TrMark("E&xit"));
  mnuFileExit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
  mnuFileExit->setMenuRole(QAction::QuitRole);
  QMenu* view = window.menuBar()->addMenu(TrQ("&View"));
  mnuViewDiagram = Command(window, view, "mnuViewDiagram", TrMark("&Block Diagram..."));
  mnuViewDiagram->setCheckable(true);
  mnuViewHistory = Command(window, view, "mnuViewHistory", TrMark("&History Plot..."));
  mnuViewHistory->setCheckable(true);
  mnuViewPolar = Command(window, view, "mnuViewPolar", TrMark("&Polar Plot..."));
  mnuViewPolar->setCheckable(true);
  view->addSeparator();
  mnuViewAlarms = Command(window, view, "mnuViewAlarms", TrMark("&Alarms..."));
  mnuViewMute = Command(window, view, "mnuViewMute", TrMark("&Mute Alarms for Ten Minutes"));
  mnuViewMute->setCheckable(true);
  view->addSeparator();
  mnuViewNight = Command(window, view, "mnuViewNight", TrMark("&Night Colours"));
  mnuViewNight->setCheckable(true);
  mnuViewNight->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_N));
  mnuViewSave = Command(window, view, "mnuViewSave", TrMark("&Save While Running"));
  mnuViewSave->setCheckable(true);
  mnuViewSave->setToolTip(TrQ("Settings are also saved ten seconds after a change"));
  AddLanguage(window, view);
  QMenu* options = window.menuBar()->addMenu(TrQ("&Options"));
  mnuOptionsInput = Command(window, options, "mnuOptionsInput", TrMark("&Input..."));
  mnuOptionsData = Command(window, options, "mnuOptionsData", TrMark("&Data..."));
  mnuOptionsOutput = Command(window, options, "mnuOptionsOutput", TrMark("&Output..."));
  mnuOptionsTrack = Command(window, options, "mnuOptionsTrack", TrMark("&Tracking..."));
  mnuOptionsSimulate = Command(window, options, "mnuOptionsSimulate", TrMark("&Simulate..."));
  mnuOptionsWatch = Command(window, options, "mnuOptionsWatch", TrMark("&Watch..."));
  options->addSeparator();
  AddWind(window, options);
  options->addSeparator();
  mnuOptionsRecommended = Command(window, options, "mnuOptionsRecommended", TrMark("&Recommended..."));
  AddTurns(window);
  QMenu* help = window.menuBar()->addMenu(TrQ("&Help"));
  mnuHelpHere = Command(window, help, "mnuHelpHere", TrMark("On This &Window"));
  // Shown in the menu; HelpKeyQt hears it in every window.
  mnuHelpHere->setShortcut(QKeySequence(Qt::Key_F1));
  mnuHelpManual = Command(window, help, "mnuHelpManual", TrMark("&Manual"));
  help->addSeparator();
  mnuHelpConnect = Command(window, help, "mnuHelpConnect", TrMark("&Connect Your Boat..."));
  mnuHelpDiagram = Command(window, help, "mnuHelpDiagram", TrMark("&Block Diagram..."));
  mnuHelpReport = help->addAction(TrQ("Save &Report..."));
  mnuHelpReport->setObjectName(QStringLiteral("mnuHelpReport"));
  mnuHelpAbout = Command(window, help, "mnuHelpAbout", TrMark("&About..."));
}

void frmMainMenu::AddTurns(QMainWindow& window) {
  QMenu* turn = window.menuBar()->addMenu(TrQ("&Turn"));
  turn->setToolTipsVisible(true);
  mnuTurnTack = Command(window, turn, "mnuTurnTack", TrMark("&Tack"));
  mnuTurnTack->setToolTip(TrQ("In Track: through the wind, and track the other tack"));
  mnuTurnTack->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_T));
  mnuTurnJibe = Command(window, turn, "mnuTurnJibe", TrMark("&Jibe"));
  mnuTurnJibe->setToolTip(TrQ("In Track: the stern through the wind, and track the other tack"));
  mnuTurnJibe->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_J));
  for (QAction* action : {mnuTurnTack, mnuTurnJibe}) {
    // In whichever window of the program.
    action->setShortcutContext(Qt::ApplicationShortcut);
    action->setAutoRepeat(false);
  }
  turn->addSeparator();
  // The key is shown only: it ends a turn wherever the keyboard is.
  mnuTurnStop = Command(window, turn, "mnuTurnStop", TrMark("&Stop\tEsc"));
  mnuTurnStop->setToolTip(TrQ("End the turn here and leave the pilot where it is"));
}

void frmMainMenu::AddLanguage(QMainWindow& window, QMenu* view) {
  QMenu* language = view->addMenu(TrQ("&Language"));
  language->setObjectName(QStringLiteral("mnuViewLanguage"));
  language->setToolTipsVisible(true);
  mnuViewLanguage = new QActionGroup(&window);
  // The names of languages are in the language itself.
  for (const auto& [chosen, text] : {std::pair{WindowLanguage::Desktop, TrQ("The Desktop's")},
                                     std::pair{WindowLanguage::English, QStringLiteral("English")},
                                     std::pair{WindowLanguage::German, QStringLiteral("Deutsch")}}) {
    QAction* action = language->addAction(text);
    action->setObjectName(
        QStringLiteral("mnuViewLanguage(%1)").arg(QLatin1String(WindowLanguageName(chosen))));
    action->setData(static_cast<int>(chosen));
    action->setToolTip(TrQ("From the next start on"));
    action->setCheckable(true);
    mnuViewLanguage->addAction(action);
  }
}

void frmMainMenu::TickLanguage(WindowLanguage language) const {
  for (QAction* action : mnuViewLanguage->actions()) {
    action->setChecked(action->data().toInt() == static_cast<int>(language));
  }
}

void frmMainMenu::AddWind(QMainWindow& window, QMenu* options) {
  QMenu* wind = options->addMenu(TrQ("Wi&nd"));
  wind->setToolTipsVisible(true);
  mnuWindGuard = Tick(window, wind, "mnuWindGuard", TrMark("Angle &Guard"),
                      TrMark("Track keeps the boat from pinching and from an accidental gybe"));
  mnuWindShift = Tick(window, wind, "mnuWindShift", TrMark("&Shift Alarm"),
                      TrMark("A lasting shift of the true wind since the angle was set is told"));
  mnuWindSide = Tick(
      window, wind, "mnuWindSide", TrMark("Apparent &Upwind, True Downwind"),
      TrMark("Track holds the apparent wind below 70 degrees of true wind angle and the true one beyond 80"));
  mnuWindPolar = Tick(window, wind, "mnuWindPolar", TrMark("&Polar Angle"),
                      TrMark("Track holds the best angle of the opened polar, to windward or to leeward"));
  mnuWindDodge = Tick(window, wind, "mnuWindDodge", TrMark("&Dodge Keys"),
                      TrMark("Ctrl+Left and Ctrl+Right steer off by 10 degrees in Track, Ctrl+Up back"));
  wind->addSeparator();
  mnuWindLast = Command(window, wind, "mnuWindLast", TrMark("&Last Angle"));
  mnuWindLast->setToolTip(TrQ("The angle before the latest change of more than 10 degrees"));
  mnuWindLimits = Command(window, wind, "mnuWindLimits", TrMark("Li&mits..."));
}

frmMainModeBar::frmMainModeBar(QMainWindow& window) : QToolBar(&window), m_theme(window.palette()) {
  setObjectName(QStringLiteral("tbrTrack"));
  setWindowTitle(TrQ("Tracking Mode"));
  setMovable(false);
  setContextMenuPolicy(Qt::PreventContextMenu);
  setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  auto* group = new QActionGroup(this);
  for (const ModeButton& mode : kModes) {
    if (!m_buttons.empty()) {
      addSeparator();
    }
    QAction* action = addAction(TrQ(mode.Text));
    action->setObjectName(QStringLiteral("tbrTrack(%1)").arg(static_cast<int>(mode.Mode)));
    action->setToolTip(TrQ(mode.ToolTip));
    action->setData(TrQ(mode.Text));
    action->setShortcut(QKeySequence(mode.Key));
    action->setAutoRepeat(false);
    action->setCheckable(true);
    group->addAction(action);
    m_buttons[mode.Mode] = action;
    QWidget* button = widgetForAction(action);
    button->setProperty("mode", static_cast<int>(mode.Mode));
    button->setFocusPolicy(Qt::TabFocus);
  }
  window.addToolBar(this);
}

void frmMainModeBar::Theme(const ThemeQt& theme) {
  m_theme = theme;
  for (const ModeButton& mode : kModes) {
    Button(mode.Mode)->setIcon(ModeIcon(QLatin1String(mode.Icon), theme.Text, theme.Mode(mode.Mode).Text));
  }
  Dress();
}

double WindowScale(const QSize& window) {
  return std::min(static_cast<double>(window.width()) / kDesignSize.width(),
                  static_cast<double>(window.height()) / kDesignSize.height());
}

void frmMainModeBar::Fit(const QSize& window) {
  const int height =
      std::max(kLeastTextHeight, static_cast<int>(std::lround(kTextHeight * WindowScale(window))));
  if (height != m_textHeight) {
    m_textHeight = height;
    Dress();
  }
  const int count = static_cast<int>(kModes.size());
  int room = window.width() - 2 * Margin() - (count - 1) * Gap();
  int left = count;
  for (const ModeButton& mode : kModes) {
    const int width = std::max(1, room / left--);
    widgetForAction(Button(mode.Mode))->setFixedWidth(width);
    room -= width;
  }
}

int frmMainModeBar::Margin() const { return std::max(3, m_textHeight * 12 / 26); }

int frmMainModeBar::Gap() const { return std::max(2, m_textHeight / 3); }

void frmMainModeBar::Dress() {
  const int icon = std::max(8, m_textHeight * 5 / 4);
  setIconSize(QSize(qRound(icon * kModeIconShare), icon));
  QString sheet =
      QStringLiteral(
          "QToolBar{background:%1;border:0;padding:%6px %7px 0 %7px;spacing:0}"
          "QToolBar::separator{width:%6px;background:transparent}"
          "QToolButton{background:%2;color:%3;border:1px solid %4;border-radius:8px;"
          "padding:%6px;font-size:%5px;font-weight:600}"
          "QToolButton:hover{border-color:%3}"
          "QToolButton:focus{border:2px solid %8}")
          .arg(m_theme.Window.name(), m_theme.Card.name(), m_theme.Text.name(), m_theme.Edge.name())
          .arg(std::max(1, m_textHeight))
          .arg(std::max(2, m_textHeight / 3))
          .arg(std::max(3, m_textHeight * 12 / 26))
          .arg(m_theme.Accent.name());
  for (const ModeButton& mode : kModes) {
    const ThemeQt::Pair pair = m_theme.Mode(mode.Mode);
    sheet += QStringLiteral(
                 "QToolButton[mode=\"%1\"]:checked{background:%2;color:%3;border-color:%2;font-weight:800}")
                 .arg(static_cast<int>(mode.Mode))
                 .arg(pair.Fill.name(), pair.Text.name());
  }
  setStyleSheet(sheet);
}

}  // namespace veerwatch
