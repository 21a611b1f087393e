// The banner across the main window and the list that it opens.

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QApplication>
#include <QImage>

#include "alarms/AlarmColoursQt.h"
#include "tests/support/PictureQt.h"
#include "tests/ui/DarkPalette.h"
#include "tests/ui/MainWindowTester.h"

namespace veerwatch {
namespace {

class MainWindowBanner : public MainWindowTester {
 public:
  ~MainWindowBanner() override {
    WearNightColours(false);
    QApplication::setPalette(m_palette);
  }

  QAbstractButton& Banner() const { return Find<QAbstractButton>("Banner"); }
  std::string Line() const { return Banner().isVisible() ? Banner().text().toStdString() : ""; }

  /// `seconds` in each of which `lines` come.
  void Sail(int seconds, const std::string& lines = "") {
    for (int i = 0; i < seconds; ++i) {
      Time.Pass(1000);
      if (!lines.empty()) {
        NmeaPort.Receive(lines);
      }
      tmrNmea.Tick();
    }
  }

  /// Sails so in Track that nothing is wrong.
  void SailWell(int seconds) {
    for (int i = 0; i < seconds; ++i) {
      m_angle = 31 - m_angle + 30;
      Sail(1, kHeading + Winds(std::to_string(m_angle), std::to_string(m_angle + 10)));
    }
  }

  void StartWell() {
    // By the clock, two winds a second are not too many.
    Start(std::string(kOnPorts) + "[Track]\nMethod=Clock\n");
    Window->resize(1160, 760);
    Sail(1, kHeading + Winds("30", "40"));
    Mode(7);
    SailWell(5);
  }

  /// What stands in the list of that name, from the top on.
  std::vector<std::string> Listed(const char* name) const {
    std::vector<std::string> texts;
    for (const QLabel* label : Window->findChildren<QLabel*>(QString::fromLatin1(name))) {
      if (label->isVisible()) {
        texts.push_back(label->text().toStdString());
      }
    }
    return texts;
  }

  const std::string kHeading = "$GPVTG,,T,100.0,M,6.0,N,11.0,K,A\r";

 private:
  QPalette m_palette = QApplication::palette();
  int m_angle = 30;
};

TEST_F(MainWindowBanner, IsHiddenWhileAllIsWellAndComesWithoutMovingACard) {
  StartWell();
  EXPECT_EQ(Line(), "");
  const QRect before = Find<QWidget>("lblHeading").geometry();
  Sail(5);
  EXPECT_THAT(Line(), testing::StartsWith("No Wind 5 s"));
  EXPECT_EQ(Find<QWidget>("lblHeading").geometry(), before);
  EXPECT_GE(Banner().height(), 40);
  EXPECT_GE(Banner().width(), 1100);
  SailWell(3);
  EXPECT_EQ(Line(), "");
}

TEST_F(MainWindowBanner, NamesTheWorstFirstAndCountsTheOthers) {
  StartWell();
  Window->NoticeSet(AlarmKind::Save, "Settings not saved");
  EXPECT_EQ(Line(), "Settings not saved");
  Sail(5);
  EXPECT_THAT(Line(), testing::MatchesRegex("No Wind 5 s \\+[0-9] more"));
}

TEST_F(MainWindowBanner, AClickAcknowledgesAndOpensTheList) {
  StartWell();
  Sail(6);
  QTest::mouseClick(&Banner(), Qt::LeftButton);
  auto* list = Window->findChild<QDialog*>(QStringLiteral("frmAlarms"));
  ASSERT_NE(list, nullptr);
  EXPECT_TRUE(list->isVisible());
  EXPECT_FALSE(list->isModal());
  ASSERT_FALSE(Listed("lblAlarm").empty());
  EXPECT_EQ(Listed("lblAlarm")[0], "No Wind 6 s");
  const std::string lines = Listed("lblAlarmLines")[0];
  EXPECT_THAT(lines, testing::HasSubstr("acknowledged"));
  EXPECT_THAT(lines, testing::HasSubstr("Apparent Wind from MWV (WI), 6 s old"));
  EXPECT_THAT(lines, testing::HasSubstr("The program: Tells it, and steers on."));
  EXPECT_THAT(lines, testing::HasSubstr("You: Take the helm"));
  EXPECT_THAT(Text("lblWhy"), testing::MatchesRegex("Why\\? [0-9.]+ by Clock: apparent .*"));
  EXPECT_THAT(Line(), testing::StartsWith("No Wind 6 s")) << "acknowledged, and still there";
  Sail(1);
  EXPECT_EQ(Listed("lblAlarm")[0], "No Wind 7 s");
  SailWell(3);
  EXPECT_TRUE(Listed("lblAlarm").empty());
  EXPECT_TRUE(list->isVisible());
  Mode(3);
  Window->close();
  EXPECT_FALSE(list->isVisible());
}

TEST_F(MainWindowBanner, TheMainWindowAnswersWhileTheListIsOpen) {
  StartWell();
  Sail(6);
  QTest::mouseClick(&Banner(), Qt::LeftButton);
  Mode(5);
  EXPECT_EQ(Window->m_eTrackMode, TrackMode::Manual);
  QTest::keyClick(Window->findChild<QDialog*>(QStringLiteral("frmAlarms")), Qt::Key_Escape);
  EXPECT_FALSE(Window->findChild<QDialog*>(QStringLiteral("frmAlarms"))->isVisible());
}

TEST_F(MainWindowBanner, LevelsDifferByColourAndAtNightByBrightness) {
  for (const bool night : {false, true}) {
    const QPalette palette = night ? NightPalette() : QPalette(QColor(0xef, 0xef, 0xef));
    const AlarmColoursQt red(palette, Level::Red);
    const AlarmColoursQt amber(palette, Level::Amber);
    const AlarmColoursQt note(palette, Level::Note);
    for (const AlarmColoursQt* colours : {&red, &amber, &note}) {
      EXPECT_GE(Contrast(colours->Text, colours->Fill), 4.5);
    }
    EXPECT_NE(red.Fill, amber.Fill);
    EXPECT_NE(amber.Fill, note.Fill);
    EXPECT_GT(red.FrameWidth, amber.FrameWidth);
  }
  const QPalette night = NightPalette();
  EXPECT_GE(Contrast(AlarmColoursQt(night, Level::Red).Fill, AlarmColoursQt(night, Level::Amber).Fill), 3.0);
  EXPECT_GE(Contrast(AlarmColoursQt(night, Level::Amber).Fill, night.color(QPalette::Window)), 1.2);
}

TEST_F(MainWindowBanner, StandsOutInADarkWindowAndInASmallOne) {
  QApplication::setPalette(DarkPalette());
  StartWell();
  Sail(6);
  QTest::qWait(0);
  const QImage dark = Window->grab().toImage();
  KeepPicture(dark, QStringLiteral("banner-dark"));
  const AlarmColoursQt colours(Window->palette(), Level::Red);
  const QPoint inside = Banner().mapTo(Window.get(), Banner().rect().center());
  EXPECT_EQ(dark.pixelColor(inside), colours.Fill);
  EXPECT_GE(Contrast(colours.Frame, Window->palette().color(QPalette::Window)), 3.0);
  Window->resize(Window->minimumSize());
  QTest::qWait(0);
  KeepPicture(Window->grab().toImage(), QStringLiteral("banner-small"));
  EXPECT_GE(Banner().height(), 12);
  EXPECT_GE(Banner().font().pixelSize(), 6);
}

TEST_F(MainWindowBanner, ATextThatIsTooLongKeepsTheCount) {
  StartWell();
  Window->NoticeSet(AlarmKind::Save, std::string(500, 'W'));
  Window->NoticeSet(AlarmKind::Profile, "Profile");
  QTest::qWait(0);
  KeepPicture(Window->grab().toImage(), QStringLiteral("banner-long"));
  const QImage with = Banner().grab().toImage();
  Window->NoticeSet(AlarmKind::Profile, "");
  const QImage without = Banner().grab().toImage();
  int differing = 0;
  for (int x = with.width() * 9 / 10; x < with.width(); ++x) {
    for (int y = 0; y < with.height(); ++y) {
      differing += with.pixel(x, y) != without.pixel(x, y) ? 1 : 0;
    }
  }
  EXPECT_GT(differing, 50) << "its end says how many more";
}

}  // namespace
}  // namespace veerwatch
