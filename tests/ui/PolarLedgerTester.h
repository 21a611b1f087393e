// The course ledger on a polar window with fakes.
#pragma once

#include <string>
#include <vector>

#include "polar/LedgerPanelQt.h"
#include "tests/ui/PolarWindowTester.h"

namespace veerwatch {

class PolarLedgerTester : public PolarWindowTester {
 public:
  PolarLedgerTester() {
    // 6 kn from 45 degrees on: two legs at 45 degrees to windward, straight elsewhere.
    WriteFile(Program / kDefaultPolar, "TWA\t5\t20\n45\t6\t6\n180\t6\t6\n");
    Store.ProfileSet("Polar Data", "Plot Average", 0.0F);
  }

  /// A course to `bearing` from the start.
  void StartTo(float bearing, CourseSource source = CourseSource::TargetBearing) {
    Store.ProfileSet("Polar Data", "Course Waypoint", true);
    Store.ProfileSet("Polar Data", "Course Waypoint Index", static_cast<std::int16_t>(source));
    Store.ProfileSet("Polar Data", "Course Target Bearing", bearing);
    Start();
  }

  struct Moment {
    float Heading = 135.0F;
    float WindAngle = -35.0F;
    float BoatSpeed = 6.0F;
    bool HeadingValid = true;
    bool WaypointValid = true;
    float Bearing = 100.0F;
    float Range = 12.0F;
    float WindSpeed = 12.0F;
  };
  /// One set of values, shown.
  void At(const Moment& moment) const {
    Take(moment);
    Settle();
  }
  /// The same, not shown yet.
  void Take(const Moment& moment) const {
    Window->PolarUpdate(TrackMode::Track, moment.HeadingValid, moment.Heading, moment.BoatSpeed,
                        moment.WindAngle * 0.6F, moment.WindSpeed + 4.0F, moment.WindAngle, moment.WindSpeed,
                        moment.WaypointValid, moment.Bearing, moment.Range);
  }

  LedgerPanelQt& Ledger() const { return dynamic_cast<LedgerPanelQt&>(Find<QWidget>("frmLedger")); }
  QPushButton& Steer() const { return Find<QPushButton>("cmdSteer"); }
  QPushButton& Tack() const { return Find<QPushButton>("cmdTack"); }
  QLabel& Label() const { return Find<QLabel>("lblSteer"); }
  std::vector<std::string> Figures() const {
    std::vector<std::string> lines;
    for (const LedgerFigure& figure : Ledger().Content().Figures) {
      lines.push_back(figure.Heading + "=" + figure.Value);
    }
    return lines;
  }
  /// Which of ledger, buttons and label show: all or none.
  bool Shows() const {
    const bool ledger = Ledger().isVisible();
    EXPECT_EQ(Steer().isVisible(), ledger);
    EXPECT_EQ(Tack().isVisible(), ledger);
    EXPECT_EQ(Label().isVisible(), ledger);
    return ledger;
  }
  void Click(QPushButton& button) const {
    ASSERT_TRUE(button.isVisible());
    QTest::mouseClick(&button, Qt::LeftButton);
  }
  void Drag(QPoint by) const {
    const QPoint grab(20, 8);
    QTest::mousePress(&Ledger(), Qt::LeftButton, {}, grab);
    QTest::mouseMove(&Ledger(), grab + by);
    QTest::mouseRelease(&Ledger(), Qt::LeftButton, {}, grab);
  }
  bool Inside() const { return Plot().rect().contains(Ledger().geometry()); }
};

}  // namespace veerwatch
