#include "app/OtherWindowsQt.h"

#include <QScreen>
#include <algorithm>
#include <filesystem>
#include <system_error>

#include "app/IconsQt.h"
#include "app/PlotTurnOf.h"
#include "app/TurnAimOf.h"
#include "connect/frmConnect.h"
#include "draw/DrawQt.h"
#include "draw/WindowPlaceQt.h"
#include "options/RecommendedQt.h"
#include "platform/Language.h"
#include "platform/NumberText.h"

namespace veerwatch {

namespace {

WindCrossing SaidBy(TurnButton button) {
  switch (button) {
    case TurnButton::Tack:
      return WindCrossing::Bow;
    case TurnButton::Jibe:
      return WindCrossing::Stern;
    case TurnButton::Steer:
      break;
  }
  return WindCrossing::None;
}

/// A value that plot and course are made of is no more of now.
bool AnyGone(const WatchNow& watch) {
  return watch.Of(Watched::WindApparent).Gone() || watch.Of(Watched::WindTrue).Gone() ||
         watch.Of(Watched::BoatSpeed).Gone() || watch.Of(Watched::Heading).Gone();
}

/// Shows the window in front of all others.
void BringUp(QWidget& window) {
  window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
  window.show();
  window.raise();
  window.activateWindow();
}

}  // namespace

OtherWindowsQt::OtherWindowsQt(const MainWindowParts& parts, const frmMainMenu& menu, MainWindowApi& main,
                               QWidget* window, const ForTurns& turns)
    : m_parts(parts),
      m_menu(menu),
      m_main(main),
      m_window(window),
      m_run(turns.Run),
      m_recorded(main.Observers(), main.Record()),
      m_told(main.Observers().Join(*this)),
      m_turns({main, turns.Run, turns.Asks, *window, menu, turns.Say, [this]() -> frmTack& { return Tack(); },
               [this] { return m_tack.get(); }, [this](bool upwind) { return BestAim(upwind); }}),
      m_sails({main, turns.Boat, turns.Run, turns.Asks, *window, turns.Say, turns.Notice, turns.Sound,
               [this]() -> frmPolar& { return Polar(); }, [this] { return Tack().Kept(); },
               [this](const TurnPlan& plan) { m_turns.Begin(plan); }}),
      m_connect({parts, main, *window, [this] { return RecommendedOf().SmoothWinds; },
                 [this](bool smooth) { Polar().SmoothWinds(smooth); }, [this] { OptionsReload(); }}),
      m_helpKey([this](const QWidget& pressedIn) { HelpShow(pressedIn); }) {
  QObject::connect(menu.mnuViewHistory, &QAction::triggered, [this] { HistoryShow(); });
  for (const QAction* command : {menu.mnuViewDiagram, menu.mnuHelpDiagram}) {
    QObject::connect(command, &QAction::triggered, [this] { DiagramShow(); });
  }
  QObject::connect(menu.mnuHelpManual, &QAction::triggered, [this] { Manual().Open({"README.md", ""}); });
  menu.mnuHelpConnect->setEnabled(m_connect.Can());
  QObject::connect(menu.mnuHelpConnect, &QAction::triggered, [this] { m_connect.Show(); });
  QObject::connect(menu.mnuHelpHere, &QAction::triggered, [this] { HelpShow(*m_window); });
  QObject::connect(menu.mnuHelpAbout, &QAction::triggered, [this] { AboutShow(); });
  QObject::connect(menu.mnuViewPolar, &QAction::triggered, [this] { PolarShow(); });
  for (const auto& [command, tab] :
       {std::pair{menu.mnuOptionsInput, frmOptions::Input}, std::pair{menu.mnuOptionsData, frmOptions::Data},
        std::pair{menu.mnuOptionsOutput, frmOptions::Output},
        std::pair{menu.mnuOptionsTrack, frmOptions::Tracking},
        std::pair{menu.mnuOptionsSimulate, frmOptions::Simulate},
        std::pair{menu.mnuOptionsWatch, frmOptions::Watch}}) {
    QObject::connect(command, &QAction::triggered, [this, selected = tab] {
      Options().TabSelect(selected);
      Options().ShowCenter();
    });
  }
  QObject::connect(menu.mnuOptionsRecommended, &QAction::triggered, [this] {
    RecommendedQt::Open(RecommendedOf(), *m_window,
                        [this](const RecommendedTicks& ticks) { RecommendedSet(ticks); });
  });
}

RecommendedSeen OtherWindowsQt::RecommendedOf() {
  // To be looked at it needs no polar window, which would read its file.
  PolarSettings polar;
  SettingsRead(PolarSettingsTable(), m_parts.Store, polar);
  return {m_main, m_polar ? m_polar->Model().Settings().SmoothWinds : polar.SmoothWinds};
}

void OtherWindowsQt::RecommendedSet(const RecommendedTicks& ticks) {
  bool smooth = RecommendedOf().SmoothWinds;
  ApplyRecommended(ticks, {m_main, smooth});
  if (smooth != RecommendedOf().SmoothWinds) {
    Polar().SmoothWinds(smooth);
  }
  OptionsReload();
}

void OtherWindowsQt::Store() {
  if (m_history) {
    m_history->Unload();
  }
  if (m_polar) {
    m_polar->PolarStore();
  }
  if (m_tack) {
    m_tack->Unload();
  }
}

void OtherWindowsQt::Hide() {
  m_connect.Hide();
  if (m_about) {
    m_about->hide();
  }
  if (m_manual) {
    m_manual->hide();
  }
  if (m_diagram) {
    m_diagram->hide();
  }
  if (m_history) {
    m_history->hide();
  }
  if (m_options) {
    m_options->hide();
  }
  if (m_polar) {
    m_polar->hide();
  }
  if (m_tack) {
    m_tack->hide();
  }
}

// The history window

frmHistory& OtherWindowsQt::History() {
  if (!m_history) {
    m_history = std::make_unique<frmHistory>(frmHistory::Parts{m_parts.Time, m_parts.Asks, m_parts.Store});
    m_history->setWindowIcon(ProgramIcon());
    m_history->VisibleChanged([this](bool visible) { m_menu.mnuViewHistory->setChecked(visible); });
  }
  return *m_history;
}

void OtherWindowsQt::HistoryShow() {
  BringUp(History());
  // A click on the command has turned its tick over.
  m_menu.mnuViewHistory->setChecked(true);
}

void OtherWindowsQt::OnHeading(float heading) { History().SetValue("Heading", heading, "M"); }

void OtherWindowsQt::OnBoatSpeed(float speed) { History().SetValue("Boat Speed", speed, "Kts"); }

void OtherWindowsQt::OnWindApparent(float angle, float speed) {
  History().SetValue("App Wind Angle", angle, "R");
  History().SetValue("App Wind Speed", speed, "Kts");
}

void OtherWindowsQt::OnWindTrue(float angle, float speed) {
  History().SetValue("True Wind Angle", angle, "M");
  History().SetValue("True Wind Speed", speed, "Kts");
}

void OtherWindowsQt::OnPilotDelta(float error) {
  HistorySample("Pilot Delta", FormatNumber(error, "0.0") + " deg");
}

void OtherWindowsQt::OnPilotHeading(float bearing) {
  HistorySample("Pilot Heading", FormatNumber(bearing, "0.00") + " deg");
}

void OtherWindowsQt::OnTick() {
  DiagramLights();
  const HelmNow now = m_main.Now();
  HistoryMarks::Sense sense{now.Mode, now.Hand, std::nullopt, now.Side,
                            now.Desired[static_cast<std::size_t>(now.Side)]};
  if (m_run.Running()) {
    sense.Turn = m_run.Made().Kind;
  }
  if (const auto mark = m_marks.Look(sense)) {
    History().Chart().MarkAdd(*mark);
  }
}

// The polar window

frmPolar& OtherWindowsQt::Polar() {
  if (!m_polar) {
    m_polar = std::make_unique<frmPolar>(PolarParts{m_parts.Store, m_parts.Asks, *this, m_parts.Polars});
    m_polar->setWindowIcon(ProgramIcon());
  }
  return *m_polar;
}

std::optional<BestCourse> OtherWindowsQt::BestAngleOf(double windSpeed, bool upwind) {
  const PolarModel& polar = Polar().Model();
  const BestAngles& best = m_best.Of(polar.Table(), polar.Version(), static_cast<float>(windSpeed));
  const std::optional<BestAngle>& found = upwind ? best.Upwind : best.Downwind;
  if (!found) {
    return std::nullopt;
  }
  return BestCourse{static_cast<double>(found->Angle), IsLastAngle(polar.Table(), found->Angle)};
}

void OtherWindowsQt::PolarShow() {
  Polar();
  FadePolar();
  BringUp(*m_polar);
  m_menu.mnuViewPolar->setChecked(true);
}

std::optional<PlotTurn> OtherWindowsQt::TurnToCome() const {
  const InstrumentData& data = m_main.Record().Data();
  if (m_run.Running()) {
    return PlotTurnOf(m_run.Made(), std::max(0.0, m_run.Engine().Turned()), data);
  }
  auto plan = m_sails.Ahead();
  if (!plan && m_tack) {
    plan = m_tack->Ahead();
  }
  return plan ? std::optional(PlotTurnOf(*plan, 0.0, data)) : std::nullopt;
}

PlotHold OtherWindowsQt::HoldNow(TrackMode mode) const {
  PlotHold hold;
  hold.Turn = TurnToCome();
  if (mode != TrackMode::Track) {
    return hold;
  }
  if (m_watch.Side == TrackSide::Apparent) {
    hold.Apparent = m_main.DesiredAngle[1];
    hold.True = HeldInOtherWind(TrackSide::Apparent, *hold.Apparent, m_main.Record().Data());
  } else {
    hold.True = m_main.DesiredAngle[2];
    hold.Apparent = HeldInOtherWind(TrackSide::True, *hold.True, m_main.Record().Data());
  }
  if (m_main.m_bWindGuard) {
    hold.LeastApparent = m_main.m_fWindLeastApparent;
    hold.LargestTrue = m_main.m_fWindLargestTrue;
  }
  return hold;
}

void OtherWindowsQt::OnPolarUpdate(TrackMode mode, const InstrumentData& record) {
  if (m_polar) {
    m_polar->PolarHold(HoldNow(mode));
    m_polar->PolarUpdate(mode, record.HeadingValid, record.Heading, record.BoatSpeed,
                         record.WindAngleApparent, record.WindSpeedApparent, record.WindAngleTrue,
                         record.WindSpeedTrue, record.WaypointValid, record.WaypointBearing,
                         record.WaypointRange);
  }
}

// How old the values are

void OtherWindowsQt::OnWatch(const WatchNow& watch) {
  m_watch = watch;
  FadePolar();
  DiagramLights();
  if (!m_history) {
    return;
  }
  const bool off = watch.Mode == TrackMode::Off;
  for (const auto& [trace, what] :
       {std::pair{"Heading", Watched::Heading}, std::pair{"Boat Speed", Watched::BoatSpeed},
        std::pair{"App Wind Angle", Watched::WindApparent},
        std::pair{"App Wind Speed", Watched::WindApparent}, std::pair{"True Wind Angle", Watched::WindTrue},
        std::pair{"True Wind Speed", Watched::WindTrue}, std::pair{"Pilot Delta", Watched::WindApparent}}) {
    m_history->Chart().TraceFade(trace, off || watch.Of(what).Gone());
  }
}

void OtherWindowsQt::FadePolar() {
  if (m_polar) {
    m_polar->PolarFade(m_watch.Mode == TrackMode::Off || AnyGone(m_watch));
  }
}

// The manoeuvre

frmTack& OtherWindowsQt::Tack() {
  if (!m_tack) {
    m_tack = std::make_unique<frmTack>(TackParts{m_main, m_parts.TimerTack, m_parts.Store, m_parts.Time,
                                                 [this] { return ManoeuvreNow(); }, m_turns},
                                       m_window);
  }
  return *m_tack;
}

std::optional<TurnAim> OtherWindowsQt::BestAim(bool upwind) {
  return TurnAimOf(Polar().Model().Table(), m_main.Record().Data().WindSpeedTrue, upwind);
}

TurnNow OtherWindowsQt::ManoeuvreNow() const {
  TurnNow now{m_main.Now(), std::nullopt};
  if (m_polar && m_asked) {
    now.Helm.WindAngleTrue = m_polar->Model().Values().WindAngleTrue;
    now.NewHeading = m_polar->TurnHeading(*m_asked);
  }
  return now;
}

void OtherWindowsQt::TackOpen(float newHeading, float heading, float windAngleTrue) {
  m_asked.reset();
  Tack().TackOpen(newHeading, {heading, m_main.m_fAutoPilot, windAngleTrue}, WindCrossing::None, *m_window);
}

void OtherWindowsQt::OnManoeuvre(TurnButton button, float newHeading, float heading, float windAngleTrue) {
  m_asked = button;
  Tack().TackOpen(newHeading, {heading, m_main.m_fAutoPilot, windAngleTrue}, SaidBy(button), *m_polar);
}

void OtherWindowsQt::OnPolarVisible(bool visible) {
  m_menu.mnuViewPolar->setChecked(visible);
  if (!visible && m_tack) {
    m_tack->StayInFrontOf(*m_window);
  }
}

void OtherWindowsQt::TimerTack_Timer() {
  if (m_tack) {
    m_tack->TimerTack_Timer();
  }
}

// The options dialog

frmOptions& OtherWindowsQt::Options() {
  if (!m_options) {
    m_options = std::make_unique<frmOptions>(frmOptions::Parts{m_main, *this, m_parts.Asks, m_parts.Random,
                                                               m_recorded, m_parts.Store, m_parts.Finder,
                                                               m_parts.Time});
    m_options->setWindowIcon(ProgramIcon());
    m_options->Closed([this] { m_options.release()->deleteLater(); });
  }
  return *m_options;
}

void OtherWindowsQt::OptionsReload() {
  if (m_options) {
    m_options->OptionsReload();
  }
}

bool OtherWindowsQt::PilotPortOpen() const {
  const bool shared = m_main.m_iNmeaPort == m_main.m_iPilotPort;
  return (shared ? m_parts.MSCommNmea : m_parts.MSCommPilot).PortOpen();
}

// The block diagram and the about box

void OtherWindowsQt::DiagramShow() {
  if (!m_diagram) {
    m_diagram = std::make_unique<frmDiagram>(static_cast<DiagramObserver&>(*this));
    m_diagram->setWindowIcon(ProgramIcon());
  }
  DiagramLights();
  BringUp(*m_diagram);
  m_menu.mnuViewDiagram->setChecked(true);
}

void OtherWindowsQt::DiagramLights() {
  if (!m_diagram) {
    return;
  }
  const HelmNow now = m_main.Now();
  DiagramSystem system{now.Input,          NmeaPortOpen(),  m_main.m_eTrackMode,
                       m_main.m_bSimulate, PilotPortOpen(), AnyGone(m_watch)};
  system.Turns = now.Hand == PilotHand::Turn;
  system.Sails = m_sails.Sails();
  system.WindFunctions =
      m_main.m_bWindGuard || m_main.m_bWindShift || m_main.m_bWindSide || m_main.m_bWindPolar;
  m_diagram->ShowState(DiagramStateOf(system));
}

void OtherWindowsQt::OnDiagramOptions(int tab, const DiagramAnchor& anchor) {
  frmOptions& options = Options();
  options.TabSelect(tab);
  const QRect screen = m_diagram->screen()->availableGeometry();
  const auto corner = [&options, &anchor, screen] {
    const QSize size = FramedSize(options);
    return ToQt(DiagramShowNear(anchor, size.width(), size.height(), screen.x() + screen.width(),
                                screen.y() + screen.height()))
        .toPoint();
  };
  options.ShowAt(corner());
  // The frame may have its size only now.
  options.move(corner());
}

void OtherWindowsQt::OnDiagramHistory() {
  if (HistoryVisible()) {
    m_history->ConfigurePopup();
  } else {
    HistoryShow();
  }
}

frmManual& OtherWindowsQt::Manual() {
  if (!m_manual) {
    m_manual = std::make_unique<frmManual>([this] { ManualInBrowser(); });
    m_manual->setWindowIcon(ProgramIcon());
  }
  return *m_manual;
}

void OtherWindowsQt::ManualInBrowser() {
  std::error_code error;
  if (!std::filesystem::is_regular_file(m_parts.ManualPage, error)) {
    m_parts.Asks.Inform(kApplicationTitle, Filled(Tr("The manual is not there:\r%1"), {m_parts.ManualPage}));
  } else if (!m_parts.Asks.ShowPage(m_parts.ManualPage)) {
    m_parts.Asks.Inform(kApplicationTitle,
                        Filled(Tr("No browser shows the manual. It begins at:\r%1"), {m_parts.ManualPage}));
  }
}

void OtherWindowsQt::HelpShow(const QWidget& window) {
  if (m_manual && &window == m_manual.get()) {
    return;
  }
  const auto* assistant = dynamic_cast<const frmConnect*>(&window);
  const int tab = assistant != nullptr ? assistant->PageIndex() : m_options ? m_options->Tab() : 0;
  Manual().Open(ManualPlaceOf(window.objectName().toStdString(), tab));
}

void OtherWindowsQt::AboutShow() {
  if (!m_about) {
    m_about = std::make_unique<frmAbout>(kApplicationTitle, VEERWATCH_VERSION, ProgramIcon());
  }
  BringUp(*m_about);
}

}  // namespace veerwatch
