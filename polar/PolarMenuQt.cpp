#include "polar/PolarMenuQt.h"

#include <QMenuBar>

#include "platform/Language.h"
#include "platform/LanguageQt.h"

namespace veerwatch {

namespace {

QMenu* Menu(QMainWindow& window, const char* name, const char* text) {
  QMenu* menu = window.menuBar()->addMenu(TrQ(text));
  menu->setObjectName(QLatin1String(name));
  return menu;
}

QAction* Item(QMenu* menu, const QString& name, const char* text) {
  auto* action = new QAction(TrQ(text), menu);
  action->setObjectName(name);
  menu->addAction(action);
  return action;
}

QAction* Item(QMenu* menu, const char* name, const char* text) {
  return Item(menu, QString::fromLatin1(name), text);
}

QAction* Ticked(QAction* action) {
  action->setCheckable(true);
  return action;
}

void Separator(QMenu* menu, const char* name) { menu->addSeparator()->setObjectName(QLatin1String(name)); }

}  // namespace

PolarMenuQt::PolarMenuQt(QMainWindow& window) {
  QMenu* wind = Menu(window, "mnuWind", TrMark("Wind"));
  mnuWindApparent = Ticked(Item(wind, "mnuWindApparent", TrMark("Show Apparent Wind")));
  mnuWindTrue = Ticked(Item(wind, "mnuWindTrue", TrMark("Show True Wind")));
  Separator(wind, "mnuSeparator1");
  mnuPlotLabelWindSpeed = Ticked(Item(wind, "mnuPlotLabelWindSpeed", TrMark("Show Wind Speed Label")));

  QMenu* range = Menu(window, "mnuRange", TrMark("Range"));
  for (std::size_t i = 0; i < kMenuRanges.size(); ++i) {
    const QString knots = QString::number(static_cast<int>(kMenuRanges[i]));
    // Two blanks are as wide as a digit.
    const QString text = (knots.size() < 2 ? QStringLiteral("  ") : QString()) + knots + TrQ(" Kts");
    mnuRange[i] = {kMenuRanges[i], Ticked(Item(range, QStringLiteral("mnuRange") + knots, text.toUtf8()))};
  }
  mnuRangeFit = Item(range, "mnuRangeFit", TrMark("Fit"));
  Separator(range, "mnuSeparator3");
  mnuRangeCustom = Ticked(Item(range, "mnuRangeCustom", TrMark("Other...")));

  QMenu* polars = Menu(window, "mnuPolars", TrMark("Polars"));
  mnuOverlayFile1 = Item(polars, "mnuOverlayFile1", TrMark("Open..."));
  mnuSaveAs = Item(polars, "mnuSaveAs", TrMark("Save As..."));
  Separator(polars, "mnuSeparator4");
  mnuOverlayColor = Item(polars, "mnuOverlayColor", TrMark("Set Color..."));
  mnuOverlayScale = Item(polars, "mnuOverlayScale", TrMark("Set Scaling..."));
  mnuOverlaySmooth = Ticked(Item(polars, "mnuOverlaySmooth", TrMark("Smooth Between Winds")));
  // Deliberate: "mnuSeparartor5".
  Separator(polars, "mnuSeparartor5");
  mnuOverlayFile2 = Ticked(Item(polars, "mnuOverlayFile2", TrMark("Show Reference...")));

  QMenu* average = Menu(window, "mnuAverage", TrMark("Average"));
  mnuAverage = {{{0.0F, Ticked(Item(average, "mnuAverage0", TrMark("  None")))},
                 {2.0F, Ticked(Item(average, "mnuAverage2", TrMark("  2 Sec")))},
                 {4.0F, Ticked(Item(average, "mnuAverage4", TrMark("  4 Sec")))},
                 {8.0F, Ticked(Item(average, "mnuAverage8", TrMark("  8 Sec")))},
                 {16.0F, Ticked(Item(average, "mnuAverage16", TrMark("16 Sec")))},
                 {32.0F, Ticked(Item(average, "mnuAverage32", TrMark("32 Sec")))}}};

  QMenu* course = Menu(window, "mnuCourse", TrMark("Course"));
  mnuCourseWaypoint = {Ticked(Item(course, "mnuCourseWaypoint(0)", TrMark("Use Target Bearing"))),
                       Ticked(Item(course, "mnuCourseWaypoint(1)", TrMark("Use Waypoint Brg"))),
                       Ticked(Item(course, "mnuCourseWaypoint(2)", TrMark("Use Waypoint Rng, Brg")))};
  Separator(course, "mnuCourseTargetSeparator");
  mnuCourseTargetBearing = Item(course, "mnuCourseTargetBearing", TrMark("Set Target Bearing..."));
  mnuCourseScale = Ticked(
      Item(course, "mnuCourseScale", TrMark("Scale Projected Times and Speeds by Current Boat Speed")));
  Separator(course, "mnuCourseSailSeparator");
  course->setToolTipsVisible(true);
  mnuCourseSail = Ticked(Item(course, "mnuCourseSail", TrMark("Sail the Course")));
  mnuCourseSail->setToolTip(
      TrQ("Track holds the leg to sail now, and the turn to the other one is prompted for"));
  mnuCourseTack = Ticked(Item(course, "mnuCourseTack", TrMark("Tack By Itself")));
  mnuCourseTack->setToolTip(
      TrQ("A course that is sailed tacks at the line without Enter; it jibes only with it"));
  Separator(course, "mnuSeparator8");
  mnuCourseLedger = Item(course, "mnuCourseLedger", TrMark("Show Course Ledger"));

  mnuLedger = new QMenu(TrQ("Ledger"), &window);
  mnuLedger->setObjectName(QStringLiteral("mnuLedger"));
  mnuLedgerHide = Item(mnuLedger, "mnuLedgerHide", TrMark("Hide Ledger"));

  QMenu* boat = Menu(window, "mnuBoat", TrMark("Boat"));
  mnuBoatType = {Ticked(Item(boat, "mnuBoatType(0)", TrMark("Sail Only"))),
                 Ticked(Item(boat, "mnuBoatType(1)", TrMark("Motor and Sail")))};
  Separator(boat, "mnuSeparator7");
  mnuBoatMotorSpeed = Item(boat, "mnuBoatMotorSpeed", TrMark("Set Motor Only Speed..."));
}

void PolarMenuQt::Refresh(const PolarModel& model) const {
  const PolarSettings& settings = model.Settings();
  mnuWindApparent->setChecked(settings.Type == PlotType::ApparentWind);
  mnuWindTrue->setChecked(settings.Type == PlotType::TrueWind);
  mnuPlotLabelWindSpeed->setChecked(settings.PlotLabelWindSpeed);
  bool custom = true;
  for (const auto& [range, item] : mnuRange) {
    item->setChecked(range == settings.SpeedRange);
    custom = custom && !item->isChecked();
  }
  mnuRangeCustom->setChecked(custom);
  mnuOverlaySmooth->setChecked(settings.SmoothWinds);
  mnuOverlayFile2->setChecked(model.PolarsShown() == 2);
  for (const auto& [seconds, item] : mnuAverage) {
    item->setChecked(seconds == settings.PlotAverage);
  }
  for (std::size_t i = 0; i < mnuCourseWaypoint.size(); ++i) {
    mnuCourseWaypoint[i]->setChecked(settings.CourseWaypoint &&
                                     settings.CourseWaypointIndex == static_cast<CourseSource>(i));
  }
  mnuCourseScale->setChecked(settings.CourseScale);
  mnuCourseTack->setChecked(settings.TackByItself);
  for (std::size_t i = 0; i < mnuBoatType.size(); ++i) {
    mnuBoatType[i]->setChecked(settings.Boat == static_cast<BoatType>(i));
  }
  mnuOverlayScale->setText(QString::fromStdString(model.ScalingCaption()));
  mnuCourseTargetBearing->setText(QString::fromStdString(model.TargetBearingCaption()));
  mnuBoatMotorSpeed->setText(QString::fromStdString(model.MotorSpeedCaption()));
}

}  // namespace veerwatch
