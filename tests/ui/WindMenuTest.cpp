// Options > Wind in the real main window.

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QDialog>
#include <QDoubleSpinBox>

#include "platform/Angles.h"
#include "tests/ui/MainWindowTester.h"

namespace veerwatch {
namespace {

using testing::HasSubstr;

class WindMenu : public MainWindowTester {
 public:
  void Choose(const char* item) const { Find<QAction>(item).trigger(); }
  bool Ticked(const char* item) const { return Find<QAction>(item).isChecked(); }

  /// Three seconds of a wind on starboard, on a heading of 0.
  void Sail() {
    for (int i = 0; i < 3; ++i) {
      Time.Pass(1000);
      NmeaPort.Receive("$IIVHW,,T,0.0,M,6.0,N,,K\r\n$IIMWV,045.0,R,10.5,N,A\r\n$IIMWV,060.0,T,9.5,N,A\r\n");
      tmrNmea.Tick();
    }
  }

  void StartTracking(const std::string& more = {}) {
    Start(
        "[Nmea]\nHeading=0\nBoat Speed=0\nTrue Wind=0\nTrue Wind "
        "Average=0\n[Track]\nAlarm=False\nMethod=Clock\n" +
        more);
    Sail();
    Choose("tbrTrack(7)");
    ASSERT_EQ(Window->m_eTrackMode, TrackMode::Track);
    Sail();
  }

  void Press(Qt::Key key) const { QTest::keyClick(Window.get(), key, Qt::ControlModifier); }
  std::string Bearing() const { return Find<QLineEdit>("txtAutoPilot").text().toStdString(); }
};

TEST_F(WindMenu, SetsAndStoresEachChoice) {
  Start();
  for (const char* item : {"mnuWindGuard", "mnuWindShift", "mnuWindSide", "mnuWindPolar", "mnuWindDodge"}) {
    EXPECT_FALSE(Ticked(item)) << item;
    Choose(item);
    EXPECT_TRUE(Ticked(item)) << item;
  }
  EXPECT_TRUE(Window->m_bWindGuard && Window->m_bWindShift && Window->m_bWindSide && Window->m_bWindPolar &&
              Window->m_bWindDodge);
  Choose("mnuWindGuard");
  EXPECT_FALSE(Window->m_bWindGuard);
  Window->close();
  EXPECT_THAT(ReadProfile(), HasSubstr("Angle Guard=False"));
  EXPECT_THAT(ReadProfile(), HasSubstr("Shift Alarm=True"));
}

TEST_F(WindMenu, ShowsTheProfile) {
  Start("[Wind]\nAngle Guard=True\nDodge Keys=True\n");
  EXPECT_TRUE(Ticked("mnuWindGuard"));
  EXPECT_TRUE(Ticked("mnuWindDodge"));
  Choose("mnuFileDefault");
  EXPECT_FALSE(Ticked("mnuWindGuard"));
}

TEST_F(WindMenu, TheKeysDodgeOnlyWhereChosen) {
  StartTracking();
  const std::string before = Bearing();
  Press(Qt::Key_Right);
  EXPECT_EQ(Bearing(), before);
  Choose("mnuWindDodge");
  Press(Qt::Key_Right);
  EXPECT_NEAR(std::stof(Bearing()), std::stof(before) + 10.0F, 0.2F);
  Press(Qt::Key_Up);
  EXPECT_EQ(Bearing(), before);
  EXPECT_EQ(Window->DesiredAngle[1], 45.0F);
}

TEST_F(WindMenu, TheKeysDodgeFromAnEntryBoxToo) {
  StartTracking("[Wind]\nDodge Keys=True\n");
  const std::string before = Bearing();
  auto& box = Find<QLineEdit>("txtDesired(1)");
  box.setFocus();
  QTest::keyClick(&box, Qt::Key_Left, Qt::ControlModifier);
  EXPECT_NEAR(FoldRelative(std::stod(Bearing()) - std::stod(before)), -10.0F, 0.2F);
}

TEST_F(WindMenu, TheLastAngleIsThereAfterALargeChange) {
  StartTracking();
  EXPECT_FALSE(Find<QAction>("mnuWindLast").isEnabled());
  Window->TrackSteerTo(-20.0F);
  Sail();
  ASSERT_TRUE(Find<QAction>("mnuWindLast").isEnabled());
  Choose("mnuWindLast");
  EXPECT_EQ(Window->DesiredAngle[1], 45.0F);
}

TEST_F(WindMenu, TheLimitsAreTakenWithOkAlone) {
  Start();
  const auto ask = [this](const char* button) {
    Choose("mnuWindLimits");
    auto* dialog = Window->findChild<QDialog*>(QStringLiteral("dlgWindLimits"));
    ASSERT_NE(dialog, nullptr);
    dialog->findChild<QDoubleSpinBox*>(QStringLiteral("txtLeastApparent"))->setValue(32.0);
    dialog->findChild<QDoubleSpinBox*>(QStringLiteral("txtLargestTrue"))->setValue(999.0);
    dialog->findChild<QPushButton*>(QLatin1String(button))->click();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  };
  ask("cmdWindLimitsCancel");
  EXPECT_EQ(Window->m_fWindLeastApparent, 25.0F);
  ask("cmdWindLimitsOk");
  EXPECT_EQ(Window->m_fWindLeastApparent, 32.0F);
  EXPECT_EQ(Window->m_fWindLargestTrue, 179.0F) << "the box keeps its range";
}

TEST_F(WindMenu, APolarWithoutABestAngleIsToldAndEndsTheFunction) {
  StartTracking("[Wind]\nPolar Angle=True\n[Polar Data]\nFile 1=none.pol\n");
  EXPECT_FALSE(Ticked("mnuWindPolar"));
  EXPECT_THAT(Find<QAbstractButton>("Banner").text().toStdString(),
              HasSubstr("Polar Angle Off: no best angle to windward"));
}

}  // namespace
}  // namespace veerwatch
