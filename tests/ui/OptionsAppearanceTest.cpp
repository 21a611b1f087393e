// What the options dialog looks like. Each grab is kept as a picture in the folder that the tests run in.

#include <QAbstractButton>
#include <QComboBox>
#include <QImage>
#include <QScreen>

#include "tests/ui/OptionsTester.h"

namespace veerwatch {
namespace {

QPalette DarkPalette() {
  QPalette palette(QColor(0x2a, 0x2d, 0x31), QColor(0x1b, 0x1e, 0x22));
  palette.setColor(QPalette::Base, QColor(0x12, 0x14, 0x17));
  palette.setColor(QPalette::WindowText, QColor(0xe6, 0xea, 0xee));
  palette.setColor(QPalette::Text, QColor(0xe6, 0xea, 0xee));
  palette.setColor(QPalette::ButtonText, QColor(0xe6, 0xea, 0xee));
  return palette;
}

class OptionsAppearance : public OptionsTester {
 public:
  ~OptionsAppearance() override {
    Window.reset();
    QApplication::setPalette(m_palette);
    QApplication::setFont(m_font);
  }

  /// Shows every tab in turn and keeps a picture of it.
  void GrabAll(const std::string& name) {
    Main.m_bSimulate = true;
    Main.m_fSimulateTime = 1.5F;
    Start(frmOptions::Input);
    Window->NmeaStatus("Running");
    Window->PilotStatus("Running");
    Find<QRadioButton>("optNmeaListOn").setChecked(true);
    for (int i = 0; i < 30; ++i) {
      Window->NmeaData("$IIMWV,045.0,R,12." + std::to_string(i % 10) + ",N,A*2A", i % 4 != 0);
      Window->NmeaData("$GPRMC,120344,A,4807.038,N,01131.000,E,007.4,084.4,230394,003.1,W*6A", false);
    }
    for (int tab = 0; tab < 6; ++tab) {
      Window->TabSelect(tab);
      QTest::qWait(20);
      Window->grab().toImage().save(
          QStringLiteral("veerwatch-options-%1-%2.png").arg(QString::fromStdString(name)).arg(tab));
    }
  }

 private:
  QPalette m_palette = QApplication::palette();
  QFont m_font = QApplication::font();
};

TEST_F(OptionsAppearance, Light) { GrabAll("light"); }

TEST_F(OptionsAppearance, Dark) {
  QApplication::setPalette(DarkPalette());
  GrabAll("dark");
}

/// What is wrong with the room that `control` has; "" for nothing.
std::string Cut(const QWidget& window, const QWidget& control) {
  const QString name =
      control.objectName() + QLatin1Char(' ') +
      (qobject_cast<const QLabel*>(&control) != nullptr ? static_cast<const QLabel&>(control).text()
                                                        : QString());
  if (control.width() < control.sizeHint().width() || control.height() < control.sizeHint().height()) {
    return name.toStdString() + " is too small";
  }
  for (const QWidget* around = control.parentWidget(); around != nullptr; around = around->parentWidget()) {
    if (!around->rect().contains(QRect(control.mapTo(around, QPoint(0, 0)), control.size()))) {
      return name.toStdString() + " is cut off by " + around->metaObject()->className();
    }
    if (around == &window) {
      break;
    }
  }
  return "";
}

class OptionsRoom : public OptionsAppearance {
 public:
  void ExpectAllRoom() {
    int seen = 0;
    for (int tab = 0; tab < 6; ++tab) {
      Window->TabSelect(tab);
      QApplication::processEvents();
      for (const QWidget* control : Window->findChildren<QWidget*>()) {
        const bool text = qobject_cast<const QLabel*>(control) != nullptr ||
                          (qobject_cast<const QAbstractButton*>(control) != nullptr &&
                           control->objectName() != QLatin1String("ScrollLeftButton") &&
                           control->objectName() != QLatin1String("ScrollRightButton")) ||
                          qobject_cast<const QLineEdit*>(control) != nullptr ||
                          qobject_cast<const QComboBox*>(control) != nullptr ||
                          control->objectName().startsWith(QLatin1String("vsc"));
        if (control->isVisible() && text) {
          ++seen;
          EXPECT_EQ(Cut(*Window, *control), "") << tab;
        }
      }
    }
    EXPECT_GT(seen, 80);
  }
};

class OptionsInFont : public OptionsRoom, public testing::WithParamInterface<int> {};

TEST_P(OptionsInFont, NothingIsCutOff) {
  QFont font = QApplication::font();
  font.setPointSize(GetParam());
  QApplication::setFont(font);
  Main.m_bSimulate = true;
  Start(frmOptions::Input);
  Window->NmeaStatus("No Input Data");
  Window->PilotStatus("Simulate");
  // As on a screen that has the room.
  Window->resize(2600, 1900);
  QApplication::processEvents();
  ExpectAllRoom();
}

INSTANTIATE_TEST_SUITE_P(Points, OptionsInFont, testing::Values(7, 9, 12, 16, 20, 26));

TEST_F(OptionsRoom, NothingIsCutOffInTheSmallestWindow) {
  Main.m_bSimulate = true;
  Start(frmOptions::Input);
  Window->resize(Window->minimumSize());
  QApplication::processEvents();
  ExpectAllRoom();
}

TEST_F(OptionsAppearance, StaysOnASmallScreenInALargeFont) {
  QFont font = QApplication::font();
  font.setPointSize(26);
  QApplication::setFont(font);
  Start(frmOptions::Simulate);
  const QSize screen = Window->screen()->availableSize();
  EXPECT_LE(Window->width(), screen.width());
  EXPECT_LE(Window->height(), screen.height());
  for (const char* name : {"cmdOk", "cmdCancel", "cmdApply"}) {
    EXPECT_TRUE(Window->rect().contains(Find<QWidget>(name).geometry())) << name;
  }
}

TEST_F(OptionsAppearance, AnotherFontOfTheDesktopIsTakenOver) {
  Start(frmOptions::Simulate);
  const int before = Find<QWidget>("txtSimulateTime").fontMetrics().height();
  QFont font = QApplication::font();
  font.setPointSize(font.pointSize() * 2);
  QApplication::setFont(font);
  QApplication::processEvents();
  EXPECT_GT(Find<QWidget>("txtSimulateTime").fontMetrics().height(), before * 3 / 2);
  EXPECT_GT(Find<QWidget>("lstNmeaData").fontMetrics().height(), before * 5 / 4);
}

}  // namespace
}  // namespace veerwatch
