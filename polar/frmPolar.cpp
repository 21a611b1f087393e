#include "polar/frmPolar.h"

#include <QCloseEvent>
#include <QFrame>
#include <QGuiApplication>
#include <QPushButton>
#include <QScreen>
#include <algorithm>
#include <cmath>

#include "polar/PolarQuestions.h"

namespace veerwatch {

namespace {

constexpr QSize kDefaultSize(1000, 740);
constexpr QSize kSmallestSize(220, 180);
constexpr double kScreenShare = 0.92;
/// The mouse readout goes when the mouse is so far from where it was pressed [px].
constexpr double kMouseLeash = 10.0;
constexpr int kMouseGap = 12;
constexpr QColor kMainMouse(0, 0, 255);
constexpr QColor kReferenceMouse(160, 0, 96);

/// A place that can be seen on one of the screens.
bool OnScreen(const QRect& place) {
  constexpr int kLeastSeen = 40;
  const auto screens = QGuiApplication::screens();
  return std::any_of(screens.begin(), screens.end(), [&](const QScreen* screen) {
    const QRect seen = screen->availableGeometry().intersected(place);
    return seen.width() >= kLeastSeen && seen.height() >= kLeastSeen;
  });
}

std::int16_t Short(int value) {
  return static_cast<std::int16_t>(std::clamp<int>(value, INT16_MIN + 1, INT16_MAX));
}

}  // namespace

frmPolar::frmPolar(const PolarParts& parts)
    : m_parts(parts),
      m_model(parts.Folders),
      m_scene(m_model),
      m_menu(*this),
      m_canvas(new PolarCanvasQt(this)),
      lblMouse(new QLabel(m_canvas)) {
  setObjectName(QStringLiteral("frmPolar"));
  setWindowTitle(QStringLiteral("Veerwatch - Polar"));
  setAttribute(Qt::WA_QuitOnClose, false);
  setMinimumSize(kSmallestSize);
  QSize size = kDefaultSize;
  if (const QScreen* display = screen()) {
    size = size.boundedTo(display->availableSize() * kScreenShare);
  }
  resize(size);
  setCentralWidget(m_canvas);
  m_canvas->setObjectName(QStringLiteral("pctPlot"));
  m_canvas->setAccessibleName(QStringLiteral("Polar plot"));
  m_canvas->Pressed = [this](QPointF at) { pctPlot_MouseDown(at); };
  m_canvas->Moved = [this](QPointF at) { pctPlot_MouseMove(at); };
  m_canvas->Resized = [this] { PolarDraw(); };
  lblMouse->setObjectName(QStringLiteral("lblMouse"));
  lblMouse->setTextFormat(Qt::PlainText);
  lblMouse->setAttribute(Qt::WA_TransparentForMouseEvents);
  lblMouse->setMargin(4);
  lblMouse->setAutoFillBackground(true);
  lblMouse->hide();
  MakeCourseControls();
  ConnectMenus();
  PolarInit(true);
}

void frmPolar::MakeCourseControls() {
  auto* ledger = new QFrame(m_canvas);
  ledger->setObjectName(QStringLiteral("frmLedger"));
  ledger->setToolTip(QStringLiteral("You can drag this ledger to a different location"));
  auto* steer = new QLabel(QStringLiteral("Steer -100 >"), m_canvas);
  steer->setObjectName(QStringLiteral("lblSteer"));
  auto* cmdSteer = new QPushButton(QStringLiteral("Steer -100 >"), m_canvas);
  cmdSteer->setObjectName(QStringLiteral("cmdSteer"));
  auto* cmdTack = new QPushButton(QStringLiteral("Tack"), m_canvas);
  cmdTack->setObjectName(QStringLiteral("cmdTack"));
  for (QWidget* control : {static_cast<QWidget*>(ledger), static_cast<QWidget*>(steer),
                           static_cast<QWidget*>(cmdSteer), static_cast<QWidget*>(cmdTack)}) {
    control->hide();
  }
}

template <class Command>
void frmPolar::OnItem(QAction* item, Command command) {
  connect(item, &QAction::triggered, this, [this, command] {
    command();
    Follow();
  });
}

void frmPolar::ConnectMenus() {
  OnItem(m_menu.mnuWindApparent, [this] { m_model.ShowWind(PlotType::ApparentWind); });
  OnItem(m_menu.mnuWindTrue, [this] { m_model.ShowWind(PlotType::TrueWind); });
  OnItem(m_menu.mnuPlotLabelWindSpeed, [this] { m_model.ToggleWindSpeedLabel(); });
  for (const auto& [range, item] : m_menu.mnuRange) {
    OnItem(item, [this, knots = range] { m_model.Range(knots); });
  }
  OnItem(m_menu.mnuRangeCustom, [this] { AskRange(m_model, m_parts.Asks); });
  OnItem(m_menu.mnuOverlayFile1, [this] { AskOpen(m_model, PolarModel::kMain, m_parts.Asks); });
  OnItem(m_menu.mnuSaveAs, [this] { PolarSaveAs(m_model, m_parts.Asks); });
  OnItem(m_menu.mnuOverlayColor, [this] { AskColor(m_model, m_parts.Asks); });
  OnItem(m_menu.mnuOverlayScale, [this] { AskScaling(m_model, m_parts.Asks); });
  OnItem(m_menu.mnuOverlayFile2, [this] { AskOpen(m_model, PolarModel::kReference, m_parts.Asks); });
  for (const auto& [seconds, item] : m_menu.mnuAverage) {
    OnItem(item, [this, time = seconds] { m_model.Average(time); });
  }
  for (std::size_t i = 0; i < m_menu.mnuCourseWaypoint.size(); ++i) {
    OnItem(m_menu.mnuCourseWaypoint[i], [this, i] { m_model.ChooseCourse(static_cast<CourseSource>(i)); });
  }
  OnItem(m_menu.mnuCourseTargetBearing, [this] { AskTargetBearing(m_model, m_parts.Asks); });
  OnItem(m_menu.mnuCourseScale, [this] { m_model.ToggleCourseScale(); });
  for (std::size_t i = 0; i < m_menu.mnuBoatType.size(); ++i) {
    OnItem(m_menu.mnuBoatType[i], [this, i] { m_model.Boat(static_cast<BoatType>(i)); });
  }
  OnItem(m_menu.mnuBoatMotorSpeed, [this] { AskMotorSpeed(m_model, m_parts.Asks); });
}

void frmPolar::PolarInit(bool recall) {
  m_model.Reset(nullptr);
  if (recall) {
    PolarRecall();
  }
  PolarMenus();
  PolarLoadAndTell(m_model, PolarModel::kMain, m_parts.Asks);
  PolarDraw();
}

void frmPolar::PolarRecall() {
  m_model.Reset(&m_parts.Store);
  const auto place = PolarPlaceRecall(m_parts.Store);
  if (!place) {
    return;
  }
  const QRect window(place->Left, place->Top, place->Width, place->Height);
  resize(window.size());
  if (OnScreen(window)) {
    move(window.topLeft());
  }
}

void frmPolar::PolarStore() {
  veerwatch::PolarStore(m_parts.Store, m_model.Settings(), m_parts.Folders.Program);
  if (!isMaximized() && !isFullScreen() && !isMinimized()) {
    PolarPlaceStore(m_parts.Store, {Short(y()), Short(x()), Short(height()), Short(width())});
  }
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
  PolarDraw();
  m_parts.Tells.OnPolarValue("Polar Speed", m_model.PolarSpeedText());
}

void frmPolar::PolarMenus() { m_menu.Refresh(m_model); }

void frmPolar::PolarDraw() {
  lblMouse->hide();
  const PolarStill& still = m_scene.Still(m_canvas->width(), m_canvas->height());
  m_canvas->Show(still, m_scene.Moving());
}

void frmPolar::Follow() {
  PolarMenus();
  PolarDraw();
}

void frmPolar::pctPlot_MouseDown(QPointF at) {
  m_pressed = at;
  const auto& geometry = m_scene.Still(m_canvas->width(), m_canvas->height()).Geometry;
  const auto found = m_model.Nearest(at.x(), at.y(), geometry);
  lblMouse->setVisible(found.has_value());
  if (!found) {
    return;
  }
  QPalette colours = lblMouse->palette();
  colours.setColor(QPalette::Window, PolarPaletteQt(palette()).MousePlate);
  colours.setColor(QPalette::WindowText, found->Reference ? kReferenceMouse : kMainMouse);
  lblMouse->setPalette(colours);
  lblMouse->setText(QString::fromStdString(found->Text));
  lblMouse->adjustSize();
  const int x = static_cast<int>(at.x()) + kMouseGap;
  const int y = static_cast<int>(at.y()) - lblMouse->height() / 2;
  lblMouse->move(x + lblMouse->width() > m_canvas->width() ? x - 2 * kMouseGap - lblMouse->width() : x,
                 std::clamp(y, 0, std::max(0, m_canvas->height() - lblMouse->height())));
}

void frmPolar::pctPlot_MouseMove(QPointF at) {
  if (std::hypot(at.x() - m_pressed.x(), at.y() - m_pressed.y()) > kMouseLeash) {
    lblMouse->hide();
  }
}

void frmPolar::closeEvent(QCloseEvent* event) {
  PolarStore();
  event->accept();
}

void frmPolar::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  m_parts.Tells.OnPolarVisible(true);
}

void frmPolar::hideEvent(QHideEvent* event) {
  QMainWindow::hideEvent(event);
  m_parts.Tells.OnPolarVisible(isVisible());
}

}  // namespace veerwatch
