// Red on black over every window, judged by the pixels. Each grab is kept as a picture beside the
// test program.

#include <QAction>
#include <QApplication>
#include <QImage>
#include <QToolTip>

#include "tests/support/PictureQt.h"
#include "tests/ui/MainWindowTester.h"

namespace veerwatch {
namespace {

class NightColours : public MainWindowTester {
 public:
  ~NightColours() override { WearNightColours(false); }

  static QImage Grab(QWidget& window, const char* name) {
    QTest::qWait(0);
    const QImage image = window.grab().toImage();
    KeepPicture(image, QStringLiteral("night-") + QLatin1String(name));
    return image;
  }

  static QWidget* Other(const char* name) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (window->objectName() == QLatin1String(name)) {
        return window;
      }
    }
    return nullptr;
  }

  QAction& Command() { return Find<QAction>("mnuViewNight"); }
};

/// How many pixels of a picture would hurt eyes that are used to the dark: bluish, or greener than an orange.
int Hurting(const QImage& image) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QRgb pixel = image.pixel(x, y);
      if (qBlue(pixel) > 130 || qBlue(pixel) > qRed(pixel) || 10 * qGreen(pixel) > 7 * qRed(pixel) + 60) {
        ++count;
      }
    }
  }
  return count;
}

double MeanBrightness(const QImage& image) {
  double sum = 0.0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      sum += qGray(image.pixel(x, y));
    }
  }
  return sum / (static_cast<double>(image.width()) * image.height());
}

TEST_F(NightColours, EveryWindowIsRedOnBlack) {
  Start(std::string(kSimulated) +
        "[Polar Window]\nVisible=True\n[Polar Data]\nCourse Waypoint=True\nCourse Waypoint Index=2\n"
        "[History Window]\nVisible=True\n");
  Window->resize(1160, 760);
  for (int i = 0; i < 30; ++i) {
    tmrNmea.Tick();
  }
  for (const char* command : {"mnuOptionsInput", "mnuViewDiagram"}) {
    Find<QAction>(command).trigger();
  }
  Command().trigger();
  ASSERT_TRUE(Command().isChecked());
  EXPECT_TRUE(Window->m_bNightColours);
  for (const char* name : {"frmMain", "frmPolar", "frmHistory", "frmOptions", "frmDiagram"}) {
    QWidget* window = Other(name);
    ASSERT_NE(window, nullptr) << name;
    const QImage image = Grab(*window, name);
    EXPECT_EQ(Hurting(image), 0) << name;
    EXPECT_LT(MeanBrightness(image), 30.0) << name;
  }
}

TEST_F(NightColours, EveryPageOfTheOptionsIsRedOnBlack) {
  Start(kSimulated);
  Command().trigger();
  Find<QAction>("mnuOptionsInput").trigger();
  auto* options = dynamic_cast<frmOptions*>(Other("frmOptions"));
  ASSERT_NE(options, nullptr);
  options->findChild<QRadioButton*>(QStringLiteral("optNmeaListOn"))->setChecked(true);
  for (int i = 0; i < 30; ++i) {
    Window->Observers().Tell(
        [i](HelmObserver& told) { told.OnNmeaLine("$WIMWV,040,R,10.0,N,A", LineFault::None, i % 2 == 0); });
  }
  for (int tab = 0; tab < 7; ++tab) {
    options->TabSelect(tab);
    const QImage image = Grab(*options, qPrintable(QStringLiteral("frmOptions-%1").arg(tab)));
    EXPECT_EQ(Hurting(image), 0) << tab;
    // The page is raised from the window.
    EXPECT_LT(MeanBrightness(image), 40.0) << tab;
  }
}

TEST_F(NightColours, ADiagramTheAboutBoxAndATurnAreRedOnBlackAlsoWhenTheyAreOpenAlready) {
  for (const bool before : {true, false}) {
    Start(kOnPorts);
    if (before) {
      Command().trigger();
    }
    Window->TackOpen(190.0F, 100.0F, 45.0F);
    QTest::mouseClick(Other("frmTack")->findChild<QPushButton*>(QStringLiteral("cmdOk")), Qt::LeftButton);
    TimerTack.Tick(3);
    Find<QAction>("mnuViewDiagram").trigger();
    Find<QAction>("mnuHelpAbout").trigger();
    if (!before) {
      Command().trigger();
    }
    for (const char* name : {"frmTack", "frmDiagram", "frmAbout"}) {
      const QImage image = Grab(*Other(name), name);
      EXPECT_EQ(Hurting(image), 0) << name << before;
      EXPECT_LT(MeanBrightness(image), 40.0) << name << before;
    }
    tmrNmea.Tick(4);
    EXPECT_EQ(Hurting(Grab(*Other("frmDiagram"), "frmDiagram-silent")), 0);
    Mode(7);
    EXPECT_EQ(Hurting(Grab(*Other("frmDiagram"), "frmDiagram-track")), 0);
    WearNightColours(false);
    Window->close();
    Window.reset();
  }
}

TEST_F(NightColours, ACaretIsRed) {
  Start(kOnPorts);
  Command().trigger();
  Window->resize(1160, 760);
  auto& box = Find<QLineEdit>("txtAutoPilot");
  box.setFocus();
  box.deselect();
  box.setCursorPosition(0);
  for (int i = 0; i < 3; ++i) {
    // In one of them the caret is on.
    EXPECT_EQ(Hurting(Grab(*Window, "caret")), 0);
    QTest::qWait(QApplication::cursorFlashTime() / 3);
  }
  WearNightColours(false);
}

TEST_F(NightColours, APageIsNoBrighterThanItsWindow) {
  Start(kSimulated);
  Command().trigger();
  Find<QAction>("mnuOptionsData").trigger();
  auto* options = dynamic_cast<frmOptions*>(Other("frmOptions"));
  ASSERT_NE(options, nullptr);
  const QImage image = Grab(*options, "page");
  const auto* page = options->findChild<QWidget*>(QStringLiteral("cmbNmeaHeading"))->parentWidget();
  const QColor ground = image.pixelColor(page->mapTo(options, QPoint(2, page->height() - 3)));
  EXPECT_LE(qGray(ground.rgb()), qGray(options->palette().color(QPalette::Window).rgb()) + 2) << ground.red();
  const auto* apply = options->findChild<QPushButton*>(QStringLiteral("cmdApply"));
  ASSERT_NE(apply, nullptr);
  const QColor button = image.pixelColor(apply->mapTo(options, QPoint(6, apply->height() / 2)));
  EXPECT_GT(button.red(), ground.red() + 15) << "buttons stay raised";
}

TEST_F(NightColours, GoAgain) {
  Start(kSimulated);
  const QPalette desktop = QApplication::palette();
  const QPalette tips = QToolTip::palette();
  Command().trigger();
  EXPECT_NE(QApplication::palette().color(QPalette::Window), desktop.color(QPalette::Window));
  EXPECT_NE(QToolTip::palette().color(QPalette::ToolTipBase), tips.color(QPalette::ToolTipBase));
  Command().trigger();
  EXPECT_EQ(QApplication::palette().color(QPalette::Window), desktop.color(QPalette::Window));
  EXPECT_EQ(QToolTip::palette().color(QPalette::ToolTipBase), tips.color(QPalette::ToolTipBase));
  EXPECT_FALSE(Window->m_bNightColours);
}

TEST_F(NightColours, ComeBackWithTheProfileAndStayWithTheDefaults) {
  Start(std::string(kSimulated) + "[View]\nNight Colours=True\n");
  EXPECT_TRUE(Command().isChecked());
  EXPECT_TRUE(IsNight(Window->palette().color(QPalette::Window)));
  Window->ProfileRecall(false);
  EXPECT_TRUE(Command().isChecked());
  EXPECT_TRUE(IsNight(Window->palette().color(QPalette::Window)));
}

TEST(NightShade, KeepsBlackBlackAndTakesTheBlueOut) {
  EXPECT_EQ(NightShade(Qt::black), QColor(Qt::black));
  EXPECT_EQ(NightShade(Qt::white).blue(), 0);
  EXPECT_EQ(NightShade(Qt::white).red(), 255);
  EXPECT_GT(NightShade(QColor(0x5a, 0xb8, 0xee)).red(), NightShade(QColor(0x10, 0x30, 0x60)).red());
  EXPECT_EQ(NightShade(QColor(255, 255, 255, 100)).alpha(), 100);
  EXPECT_GT(NightShade(Qt::red).red(), 150) << "a red line stays a line that is seen";
}

}  // namespace
}  // namespace veerwatch
