#include "polar/frmPolar.h"

#include <QCloseEvent>
#include <QScreen>

#include "draw/WindowPlaceQt.h"
#include "platform/LanguageQt.h"

namespace veerwatch {

namespace {

constexpr QSize kDefaultSize(1000, 740);
constexpr QSize kSmallestSize(220, 180);
constexpr double kScreenShare = 0.92;

}  // namespace

frmPolar::frmPolar(const PolarParts& parts)
    : m_parts(parts),
      m_asks(parts.Asks.Of(*this)),
      m_model(parts.Folders),
      m_questions(m_model, *m_asks, [this] { Follow(); }),
      m_scene(m_model),
      m_menu(*this),
      m_canvas(new PolarCanvasQt(this)),
      lblMouse(new MouseReadoutQt(m_canvas)),
      m_course(m_canvas),
      tbrSail(new SailBarQt(*this)),
      m_show(parts.Rest, [this] { ShowUpdate(); }) {
  setObjectName(QStringLiteral("frmPolar"));
  setWindowTitle(TrQ("Veerwatch - Polar"));
  setAttribute(Qt::WA_QuitOnClose, false);
  setMinimumSize(kSmallestSize);
  QSize size = kDefaultSize;
  if (const QScreen* display = screen()) {
    size = size.boundedTo(display->availableSize() * kScreenShare);
  }
  resize(size);
  setCentralWidget(m_canvas);
  m_canvas->setObjectName(QStringLiteral("pctPlot"));
  m_canvas->setAccessibleName(TrQ("Polar plot"));
  m_canvas->Pressed = [this](QPointF at) { lblMouse->Press(at); };
  m_canvas->Moved = [this](QPointF at) { lblMouse->Move(at); };
  m_canvas->Left = [this] { lblMouse->Leave(); };
  m_canvas->Resized = [this] { PolarDraw(); };
  lblMouse->Find = [this](QPointF at) {
    const PolarStill& still = m_scene.Still(m_canvas->width(), m_canvas->height(), m_course.Room());
    return m_model.Nearest(at.x(), at.y(), still.Geometry);
  };
  ConnectMenus();
  ConnectCourse();
  PolarInit(true);
}

template <class Command>
void frmPolar::OnItem(QAction* item, Command command) {
  connect(item, &QAction::triggered, this, [this, command] {
    command();
    Follow();
  });
}

void frmPolar::SmoothWinds(bool smooth) {
  if (m_model.Settings().SmoothWinds != smooth) {
    m_menu.mnuOverlaySmooth->trigger();
  }
}

void frmPolar::ConnectMenus() {
  OnItem(m_menu.mnuWindApparent, [this] { m_model.ShowWind(PlotType::ApparentWind); });
  OnItem(m_menu.mnuWindTrue, [this] { m_model.ShowWind(PlotType::TrueWind); });
  OnItem(m_menu.mnuPlotLabelWindSpeed, [this] { m_model.ToggleWindSpeedLabel(); });
  for (const auto& [range, item] : m_menu.mnuRange) {
    OnItem(item, [this, knots = range] { m_model.Range(knots); });
  }
  OnItem(m_menu.mnuRangeFit, [this] { m_model.RangeFit(); });
  OnItem(m_menu.mnuRangeCustom, [this] { m_questions.AskRange(); });
  OnItem(m_menu.mnuOverlayFile1, [this] { m_questions.AskOpen(PolarModel::kMain); });
  OnItem(m_menu.mnuSaveAs, [this] { m_questions.SaveAs(); });
  OnItem(m_menu.mnuOverlayColor, [this] { m_questions.AskColor(); });
  OnItem(m_menu.mnuOverlayScale, [this] { m_questions.AskScaling(); });
  OnItem(m_menu.mnuOverlaySmooth, [this] { m_model.ToggleSmoothWinds(); });
  OnItem(m_menu.mnuOverlayFile2, [this] { m_questions.AskOpen(PolarModel::kReference); });
  for (const auto& [seconds, item] : m_menu.mnuAverage) {
    OnItem(item, [this, time = seconds] { m_model.Average(time); });
  }
  for (std::size_t i = 0; i < m_menu.mnuCourseWaypoint.size(); ++i) {
    OnItem(m_menu.mnuCourseWaypoint[i], [this, i] { m_model.ChooseCourse(static_cast<CourseSource>(i)); });
  }
  OnItem(m_menu.mnuCourseTargetBearing, [this] { m_questions.AskTargetBearing(); });
  OnItem(m_menu.mnuCourseTack, [this] { m_model.ToggleTackByItself(); });
  connect(m_menu.mnuCourseSail, &QAction::triggered, this,
          [this](bool wanted) { m_parts.Tells.OnSailCourse(wanted); });
  tbrSail->Turn = [this] { m_parts.Tells.OnSailTurn(); };
  OnItem(m_menu.mnuCourseScale, [this] { m_model.ToggleCourseScale(); });
  for (std::size_t i = 0; i < m_menu.mnuBoatType.size(); ++i) {
    OnItem(m_menu.mnuBoatType[i], [this, i] { m_model.Boat(static_cast<BoatType>(i)); });
  }
  OnItem(m_menu.mnuBoatMotorSpeed, [this] { m_questions.AskMotorSpeed(); });
}

void frmPolar::ConnectCourse() {
  OnItem(m_menu.mnuCourseLedger, [this] { m_course.Want(true); });
  OnItem(m_menu.mnuLedgerHide, [this] { m_course.Want(false); });
  const auto turn = [this](TurnButton button) {
    if (const auto heading = TurnHeading(button)) {
      m_parts.Tells.OnManoeuvre(button, *heading, m_model.Present().Heading, m_model.Values().WindAngleTrue);
    }
  };
  LedgerPanelQt& ledger = m_course.Ledger();
  ledger.Steer = [turn] { turn(TurnButton::Steer); };
  ledger.Tack = [this, turn] { turn(m_ledger && m_ledger->Upwind ? TurnButton::Tack : TurnButton::Jibe); };
  ledger.MenuWanted = [this](QPoint at) { m_menu.mnuLedger->popup(at); };
}

std::optional<float> frmPolar::TurnHeading(TurnButton button) {
  m_show.Now();
  if (!m_ledger) {
    return std::nullopt;
  }
  return button == TurnButton::Steer ? m_ledger->SteerHeading : m_ledger->TackHeading;
}

void frmPolar::PolarInit(bool recall) {
  m_model.Reset(nullptr);
  if (recall) {
    PolarRecall();
  }
  PolarMenus();
  m_questions.LoadAndTell(PolarModel::kMain);
  PolarDraw();
}

void frmPolar::PolarRecall() {
  m_model.Reset(&m_parts.Store);
  if (const auto place = PolarPlaceRecall(m_parts.Store)) {
    RestoreInner(*this, *place);
  }
}

void frmPolar::PolarStore() {
  veerwatch::PolarStore(m_parts.Store, m_model.Settings(), m_parts.Folders.Program);
  if (const auto place = InnerPlace(*this)) {
    PolarPlaceStore(m_parts.Store, *place);
  }
}

void frmPolar::SailShow(const SailView& sails) {
  m_menu.mnuCourseSail->setChecked(sails.Sails);
  tbrSail->Show(sails);
}

void frmPolar::PolarFade(bool fade) {
  m_canvas->Fade(fade);
  m_course.Fade(fade);
}

void frmPolar::PolarUpdate(TrackMode mode, bool headingValid, float heading, float boatSpeed,
                           float windAngleApparent, float windSpeedApparent, float windAngleTrue,
                           float windSpeedTrue, bool waypointValid, float waypointBearing,
                           float waypointRange) {
  const bool visible = isVisible();
  const bool newMode =
      m_model.Update(mode,
                     {headingValid, heading, boatSpeed, windAngleApparent, windSpeedApparent, windAngleTrue,
                      windSpeedTrue, waypointValid, waypointBearing, waypointRange},
                     visible);
  if (!visible) {
    return;
  }
  if (newMode) {
    PolarMenus();
  }
  m_parts.Tells.OnPolarValue("Polar Speed", m_model.PolarSpeedText());
  m_show.Wish();
}

void frmPolar::ShowUpdate() {
  CourseUpdate();
  PolarDraw();
}

void frmPolar::CourseUpdate() {
  const auto bearing = m_model.CourseBearing();
  if (!bearing) {
    CourseHide();
    return;
  }
  const PolarValues values = m_model.Values();
  CourseLedger(values.Heading, *bearing, values.WindAngleTrue, values.WindSpeedTrue, values.BoatSpeed,
               m_model.PolarSpeed());
}

void frmPolar::CourseLedger(float heading, float targetBearing, float windAngleTrue, float windSpeedTrue,
                            float boatSpeed, float polarSpeed) {
  const LedgerInput input{{heading, targetBearing, windAngleTrue, windSpeedTrue},
                          boatSpeed,
                          polarSpeed,
                          m_model.Values().WaypointRange};
  m_ledger = veerwatch::CourseLedger(m_model.Settings(), input,
                                     m_memory.Solve(m_model.Table(), m_model.Version(), input.Query));
  m_course.Show(*m_ledger);
}

void frmPolar::CourseHide() {
  m_ledger.reset();
  m_course.Hide();
}

void frmPolar::PolarMenus() { m_menu.Refresh(m_model); }

void frmPolar::PolarDraw() {
  const PolarStill& still = m_scene.Still(m_canvas->width(), m_canvas->height(), m_course.Room());
  m_course.Place(still);
  m_canvas->Show(still, m_scene.Moving(m_ledger ? &*m_ledger : nullptr));
  lblMouse->Follow(still.TextHeight);
}

void frmPolar::Follow() {
  PolarMenus();
  CourseUpdate();
  PolarDraw();
}

void frmPolar::closeEvent(QCloseEvent* event) {
  PolarStore();
  // Nothing follows the course of a closed window; opened again, it waits for the next update.
  m_show.Forget();
  CourseHide();
  event->accept();
}

void frmPolar::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  m_parts.Tells.OnPolarVisible(true);
}

void frmPolar::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::PaletteChange && m_ledger) {
    m_course.Show(*m_ledger);
  }
}

void frmPolar::hideEvent(QHideEvent* event) {
  QMainWindow::hideEvent(event);
  lblMouse->Leave();
  m_parts.Tells.OnPolarVisible(isVisible());
}

}  // namespace veerwatch
