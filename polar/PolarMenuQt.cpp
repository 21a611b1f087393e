#include "polar/PolarMenuQt.h"

#include <QMenuBar>

namespace veerwatch {

namespace {

QMenu* Menu(QMainWindow& window, const char* name, const char* text) {
  QMenu* menu = window.menuBar()->addMenu(QLatin1String(text));
  menu->setObjectName(QLatin1String(name));
  return menu;
}

QAction* Item(QMenu* menu, const QString& name, const char* text) {
  auto* action = new QAction(QLatin1String(text), menu);
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
  QMenu* wind = Menu(window, "mnuWind", "Wind");
  mnuWindApparent = Ticked(Item(wind, "mnuWindApparent", "Show Apparent Wind"));
  mnuWindTrue = Ticked(Item(wind, "mnuWindTrue", "Show True Wind"));
  Separator(wind, "mnuSeparator1");
  mnuPlotLabelWindSpeed = Ticked(Item(wind, "mnuPlotLabelWindSpeed", "Show Wind Speed Label"));

  QMenu* range = Menu(window, "mnuRange", "Range");
  for (std::size_t i = 0; i < kMenuRanges.size(); ++i) {
    const QString knots = QString::number(static_cast<int>(kMenuRanges[i]));
    // Two blanks are as wide as a digit.
    const QString text =
        (knots.size() < 2 ? QStringLiteral("  ") : QString()) + knots + QStringLiteral(" Kts");
    mnuRange[i] = {kMenuRanges[i], Ticked(Item(range, QStringLiteral("mnuRange") + knots, text.toLatin1()))};
  }
  mnuRangeFit = Item(range, "mnuRangeFit", "Fit");
  Separator(range, "mnuSeparator3");
  mnuRangeCustom = Ticked(Item(range, "mnuRangeCustom", "Other..."));

  QMenu* polars = Menu(window, "mnuPolars", "Polars");
  mnuOverlayFile1 = Item(polars, "mnuOverlayFile1", "Open...");
  mnuSaveAs = Item(polars, "mnuSaveAs", "Save As...");
  Separator(polars, "mnuSeparator4");
  mnuOverlayColor = Item(polars, "mnuOverlayColor", "Set Color...");
  mnuOverlayScale = Item(polars, "mnuOverlayScale", "Set Scaling...");
  mnuOverlaySmooth = Ticked(Item(polars, "mnuOverlaySmooth", "Smooth Between Winds"));
  // Deliberate: "mnuSeparartor5".
  Separator(polars, "mnuSeparartor5");
  mnuOverlayFile2 = Ticked(Item(polars, "mnuOverlayFile2", "Show Reference..."));

  QMenu* average = Menu(window, "mnuAverage", "Average");
  mnuAverage = {{{0.0F, Ticked(Item(average, "mnuAverage0", "  None"))},
                 {2.0F, Ticked(Item(average, "mnuAverage2", "  2 Sec"))},
                 {4.0F, Ticked(Item(average, "mnuAverage4", "  4 Sec"))},
                 {8.0F, Ticked(Item(average, "mnuAverage8", "  8 Sec"))},
                 {16.0F, Ticked(Item(average, "mnuAverage16", "16 Sec"))},
                 {32.0F, Ticked(Item(average, "mnuAverage32", "32 Sec"))}}};

  QMenu* course = Menu(window, "mnuCourse", "Course");
  mnuCourseWaypoint = {Ticked(Item(course, "mnuCourseWaypoint(0)", "Use Target Bearing")),
                       Ticked(Item(course, "mnuCourseWaypoint(1)", "Use Waypoint Brg")),
                       Ticked(Item(course, "mnuCourseWaypoint(2)", "Use Waypoint Rng, Brg"))};
  Separator(course, "mnuCourseTargetSeparator");
  mnuCourseTargetBearing = Item(course, "mnuCourseTargetBearing", "Set Target Bearing...");
  mnuCourseScale =
      Ticked(Item(course, "mnuCourseScale", "Scale Projected Times and Speeds by Current Boat Speed"));
  Separator(course, "mnuCourseSailSeparator");
  course->setToolTipsVisible(true);
  mnuCourseSail = Ticked(Item(course, "mnuCourseSail", "Sail the Course"));
  mnuCourseSail->setToolTip(
      QStringLiteral("Track holds the leg to sail now, and the turn to the other one is prompted for"));
  mnuCourseTack = Ticked(Item(course, "mnuCourseTack", "Tack By Itself"));
  mnuCourseTack->setToolTip(
      QStringLiteral("A course that is sailed tacks at the line without Enter; it jibes only with it"));
  Separator(course, "mnuSeparator8");
  mnuCourseLedger = Item(course, "mnuCourseLedger", "Show Course Ledger");

  mnuLedger = new QMenu(QStringLiteral("Ledger"), &window);
  mnuLedger->setObjectName(QStringLiteral("mnuLedger"));
  mnuLedgerHide = Item(mnuLedger, "mnuLedgerHide", "Hide Ledger");

  QMenu* boat = Menu(window, "mnuBoat", "Boat");
  mnuBoatType = {Ticked(Item(boat, "mnuBoatType(0)", "Sail Only")),
                 Ticked(Item(boat, "mnuBoatType(1)", "Motor and Sail"))};
  Separator(boat, "mnuSeparator7");
  mnuBoatMotorSpeed = Item(boat, "mnuBoatMotorSpeed", "Set Motor Only Speed...");
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
