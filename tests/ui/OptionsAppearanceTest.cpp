// What the options dialog looks like, judged by its pixels. Each grab is kept as a picture beside the test
// program.

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QComboBox>
#include <QImage>
#include <QScreen>
#include <vector>

#include "tests/support/PictureQt.h"
#include "tests/ui/DarkPalette.h"
#include "tests/ui/OptionsTester.h"

namespace veerwatch {
namespace {

class OptionsAppearance : public OptionsTester {
 public:
  ~OptionsAppearance() override {
    Window.reset();
    QApplication::setPalette(m_palette);
    QApplication::setFont(m_font);
  }

  /// Shows the dialog with everything that can stand in it: a simulation, states, lines in both lists.
  void StartFull() {
    Main.m_bSimulate = true;
    Main.m_fSimulateTime = 1.5F;
    Start(frmOptions::Input);
    InputIs(InputState::Running);
    OutputIs(OutputState::Running);
    Main.Answer.InUse = TrackTuning{33.5F, 2.25F};
    Main.Answer.WindsASecond = 5.0;
    Find<QPushButton>("cmdTrackSuggest").click();
    Find<QLineEdit>("txtTrackBandwidth").setText("20");
    Main.Tells.Tell([](HelmObserver& told) { told.OnTrackMode(TrackMode::Track); });
    Find<QRadioButton>("optNmeaListOn").setChecked(true);
    for (int i = 0; i < 30; ++i) {
      Receive("$IIMWV,045.0,R,12." + std::to_string(i % 10) + ",N,A*2A", i % 4 != 0);
      Receive("$GPRMC,120344,A,4807.038,N,01131.000,E,007.4,084.4,230394,003.1,W*6A", false);
    }
  }

 private:
  QPalette m_palette = QApplication::palette();
  QFont m_font = QApplication::font();
};

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
  /// What shows a text on the present tab.
  std::vector<const QWidget*> TextControls() const {
    std::vector<const QWidget*> controls;
    for (const QWidget* control : Window->findChildren<QWidget*>()) {
      const bool text = qobject_cast<const QLabel*>(control) != nullptr ||
                        (qobject_cast<const QAbstractButton*>(control) != nullptr &&
                         control->objectName() != QLatin1String("ScrollLeftButton") &&
                         control->objectName() != QLatin1String("ScrollRightButton")) ||
                        qobject_cast<const QLineEdit*>(control) != nullptr ||
                        qobject_cast<const QComboBox*>(control) != nullptr ||
                        control->objectName().startsWith(QLatin1String("vsc"));
      if (control->isVisible() && text) {
        controls.push_back(control);
      }
    }
    return controls;
  }

  void ExpectAllRoom() const {
    std::size_t seen = 0;
    for (int tab = 0; tab < 7; ++tab) {
      Window->TabSelect(tab);
      QApplication::processEvents();
      for (const QWidget* control : TextControls()) {
        EXPECT_EQ(Cut(*Window, *control), "") << tab;
      }
      seen += TextControls().size();
    }
    EXPECT_GT(seen, 80U);
  }

  QRect Place(const QWidget& control) const {
    return {control.mapTo(Window.get(), QPoint(0, 0)), control.size()};
  }
};

/// Whether the control shows a text at this moment that is to be read: no empty box, none that does not
/// answer.
bool Reads(const QWidget& control) {
  const QVariant text =
      control.property(qobject_cast<const QComboBox*>(&control) != nullptr ? "currentText" : "text");
  return control.isEnabled() && !text.toString().isEmpty();
}

class OptionsInPalette : public OptionsRoom, public testing::WithParamInterface<const char*> {};

TEST_P(OptionsInPalette, EveryTextIsWholeAndStandsOutFromItsGround) {
  const std::string shade = GetParam();
  QApplication::setPalette(shade == "dark" ? DarkPalette() : QApplication::palette());
  StartFull();
  const QPalette palette = QApplication::palette();
  int read = 0;
  int boxes = 0;
  for (int tab = 0; tab < 7; ++tab) {
    Window->TabSelect(tab);
    QApplication::processEvents();
    const QImage image = Window->grab().toImage();
    KeepPicture(image, QStringLiteral("options-%1-%2").arg(QString::fromStdString(shade)).arg(tab));
    EXPECT_EQ(image.pixelColor(2, 2), palette.color(QPalette::Window)) << tab;
    for (const QWidget* control : TextControls()) {
      const std::string name = control->objectName().toStdString() + " on tab " + std::to_string(tab);
      const QImage part = PartOf(image, Place(*control));
      if (Reads(*control)) {
        ++read;
        EXPECT_GE(InkContrast(part), 4.0) << name;
      }
      if (qobject_cast<const QLineEdit*>(control) != nullptr && control->isEnabled()) {
        ++boxes;
        EXPECT_EQ(GroundOf(part), palette.color(QPalette::Base)) << name;
      }
    }
  }
  EXPECT_GT(read, 70);
  EXPECT_GT(boxes, 15);
  ExpectAllRoom();
}

TEST_P(OptionsInPalette, TheLinesThatCameInStandOutFromTheList) {
  const bool dark = std::string(GetParam()) == "dark";
  QApplication::setPalette(dark ? DarkPalette() : QApplication::palette());
  StartFull();
  QApplication::processEvents();
  const auto& list = Find<QAbstractScrollArea>("lstNmeaData");
  const QImage image = list.viewport()->grab().toImage();
  EXPECT_EQ(GroundOf(image), QApplication::palette().color(QPalette::Base));
  EXPECT_GE(InkContrast(image), 4.0);
}

INSTANTIATE_TEST_SUITE_P(Shades, OptionsInPalette, testing::Values("light", "dark"),
                         [](const auto& shade) { return std::string(shade.param); });

class OptionsInFont : public OptionsRoom, public testing::WithParamInterface<int> {};

TEST_P(OptionsInFont, NothingIsCutOff) {
  QFont font = QApplication::font();
  font.setPointSize(GetParam());
  QApplication::setFont(font);
  Main.m_bSimulate = true;
  Start(frmOptions::Input);
  InputIs(InputState::NoData);
  OutputIs(OutputState::Simulate);
  // As on a screen that has the room.
  Window->resize(2600, 1900);
  QApplication::processEvents();
  ExpectAllRoom();
}

INSTANTIATE_TEST_SUITE_P(Points, OptionsInFont, testing::Values(7, 9, 12, 16, 20, 26),
                         testing::PrintToStringParamName());

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
