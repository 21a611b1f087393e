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
    {TrackMode::Off, "Off", "off", "Off, Stop input and autopilot output", Qt::Key_F5},
    {TrackMode::Setup, "Setup", "setup", "Setup, Set software to hardware autopilot heading", Qt::Key_F6},
    {TrackMode::Manual, "Manual", "manual", "Manual, adjust autopilot heading for desired wind angle",
     Qt::Key_F7},
    {TrackMode::Track, "Track", "track", "Track, adjust desired wind angle to fine tuning", Qt::Key_F8},
}};

// Height of the mode texts [px] at the window's design size, and at the least.
constexpr double kTextHeight = 26.0;
constexpr int kLeastTextHeight = 9;

/// A new command in `menu`.
QAction* Command(QMainWindow& window, QMenu* menu, const char* name, const char* text) {
  auto* action = new QAction(QLatin1String(text), &window);
  action->setObjectName(QLatin1String(name));
  menu->addAction(action);
  return action;
}

/// A new command that is on or off.
QAction* Tick(QMainWindow& window, QMenu* menu, const char* name, const char* text, const char* toolTip) {
  QAction* action = Command(window, menu, name, text);
  action->setCheckable(true);
  action->setToolTip(QLatin1String(toolTip));
  return action;
}

}  // namespace

frmMainMenu::frmMainMenu(QMainWindow& window) {
  QMenu* file = window.menuBar()->addMenu(QStringLiteral("&File"));
  mnuFileDefault = Command(window, file, "mnuFileDefault", "&Default");
  mnuFileRecord = Command(window, file, "mnuFileRecord", "&Record Input...");
  mnuFileRecord->setCheckable(true);
  mnuFileProfiles = file->addMenu(TrQ("&Profiles"));
  mnuFileProfiles->setObjectName(QStringLiteral("mnuFileProfiles"));
  file->addSeparator();
  mnuFileExit = Command(window, file, "mnuFileExit", "E&xit");
  mnuFileExit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
  mnuFileExit->setMenuRole(QAction::QuitRole);
  QMenu* view = window.menuBar()->addMenu(QStringLiteral("&View"));
  mnuViewDiagram = Command(window, view, "mnuViewDiagram", "&Block Diagram...");
  mnuViewDiagram->setCheckable(true);
  mnuViewHistory = Command(window, view, "mnuViewHistory", "&History Plot...");
  mnuViewHistory->setCheckable(true);
  mnuViewPolar = Command(window, view, "mnuViewPolar", "&Polar Plot...");
  mnuViewPolar->setCheckable(true);
  view->addSeparator();
  mnuViewAlarms = Command(window, view, "mnuViewAlarms", "&Alarms...");
  mnuViewMute = Command(window, view, "mnuViewMute", "&Mute Alarms for Ten Minutes");
  mnuViewMute->setCheckable(true);
  view->addSeparator();
  mnuViewNight = Command(window, view, "mnuViewNight", "&Night Colours");
  mnuViewNight->setCheckable(true);
  mnuViewNight->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_N));
  mnuViewSave = Command(window, view, "mnuViewSave", "&Save While Running");
  mnuViewSave->setCheckable(true);
  mnuViewSave->setToolTip(QStringLiteral("Settings are also saved ten seconds after a change"));
  AddLanguage(window, view);
  QMenu* options = window.menuBar()->addMenu(QStringLiteral("&Options"));
  mnuOptionsInput = Command(window, options, "mnuOptionsInput", "&Input...");
  mnuOptionsData = Command(window, options, "mnuOptionsData", "&Data...");
  mnuOptionsOutput = Command(window, options, "mnuOptionsOutput", "&Output...");
  mnuOptionsTrack = Command(window, options, "mnuOptionsTrack", "&Tracking...");
  mnuOptionsSimulate = Command(window, options, "mnuOptionsSimulate", "&Simulate...");
  mnuOptionsWatch = Command(window, options, "mnuOptionsWatch", "&Watch...");
  options->addSeparator();
  AddWind(window, options);
  options->addSeparator();
  mnuOptionsRecommended = Command(window, options, "mnuOptionsRecommended", "&Recommended...");
  AddTurns(window);
  QMenu* help = window.menuBar()->addMenu(QStringLiteral("&Help"));
  mnuHelpManual = Command(window, help, "mnuHelpManual", "&Manual");
  mnuHelpManual->setShortcut(QKeySequence(Qt::Key_F1));
  // In whichever window of the program.
  mnuHelpManual->setShortcutContext(Qt::ApplicationShortcut);
  help->addSeparator();
  mnuHelpConnect = Command(window, help, "mnuHelpConnect", "&Connect Your Boat...");
  mnuHelpDiagram = Command(window, help, "mnuHelpDiagram", "&Block Diagram...");
  mnuHelpReport = help->addAction(TrQ("Save &Report..."));
  mnuHelpReport->setObjectName(QStringLiteral("mnuHelpReport"));
  mnuHelpAbout = Command(window, help, "mnuHelpAbout", "&About...");
}

void frmMainMenu::AddTurns(QMainWindow& window) {
  QMenu* turn = window.menuBar()->addMenu(QStringLiteral("&Turn"));
  turn->setToolTipsVisible(true);
  mnuTurnTack = Command(window, turn, "mnuTurnTack", "&Tack");
  mnuTurnTack->setToolTip(QStringLiteral("In Track: through the wind, and track the other tack"));
  mnuTurnTack->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_T));
  mnuTurnJibe = Command(window, turn, "mnuTurnJibe", "&Jibe");
  mnuTurnJibe->setToolTip(QStringLiteral("In Track: the stern through the wind, and track the other tack"));
  mnuTurnJibe->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_J));
  for (QAction* action : {mnuTurnTack, mnuTurnJibe}) {
    // In whichever window of the program.
    action->setShortcutContext(Qt::ApplicationShortcut);
    action->setAutoRepeat(false);
  }
  turn->addSeparator();
  // The key is shown only: it ends a turn wherever the keyboard is.
  mnuTurnStop = Command(window, turn, "mnuTurnStop", "&Stop\tEsc");
  mnuTurnStop->setToolTip(QStringLiteral("End the turn here and leave the pilot where it is"));
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
  QMenu* wind = options->addMenu(QStringLiteral("Wi&nd"));
  wind->setToolTipsVisible(true);
  mnuWindGuard = Tick(window, wind, "mnuWindGuard", "Angle &Guard",
                      "Track keeps the boat from pinching and from an accidental gybe");
  mnuWindShift = Tick(window, wind, "mnuWindShift", "&Shift Alarm",
                      "A lasting shift of the true wind since the angle was set is told");
  mnuWindSide =
      Tick(window, wind, "mnuWindSide", "Apparent &Upwind, True Downwind",
           "Track holds the apparent wind below 70 degrees of true wind angle and the true one beyond 80");
  mnuWindPolar = Tick(window, wind, "mnuWindPolar", "&Polar Angle",
                      "Track holds the best angle of the opened polar, to windward or to leeward");
  mnuWindDodge = Tick(window, wind, "mnuWindDodge", "&Dodge Keys",
                      "Ctrl+Left and Ctrl+Right steer off by 10 degrees in Track, Ctrl+Up back");
  wind->addSeparator();
  mnuWindLast = Command(window, wind, "mnuWindLast", "&Last Angle");
  mnuWindLast->setToolTip(QStringLiteral("The angle before the latest change of more than 10 degrees"));
  mnuWindLimits = Command(window, wind, "mnuWindLimits", "Li&mits...");
}

frmMainModeBar::frmMainModeBar(QMainWindow& window) : QToolBar(&window), m_theme(window.palette()) {
  setObjectName(QStringLiteral("tbrTrack"));
  setWindowTitle(QStringLiteral("Tracking Mode"));
  setMovable(false);
  setContextMenuPolicy(Qt::PreventContextMenu);
  setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  auto* group = new QActionGroup(this);
  for (const ModeButton& mode : kModes) {
    if (!m_buttons.empty()) {
      addSeparator();
    }
    QAction* action = addAction(QLatin1String(mode.Text));
    action->setObjectName(QStringLiteral("tbrTrack(%1)").arg(static_cast<int>(mode.Mode)));
    action->setToolTip(QLatin1String(mode.ToolTip));
    action->setData(QLatin1String(mode.Text));
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
