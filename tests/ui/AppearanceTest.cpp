// What the main window looks like, judged by its pixels. Each grab is kept as a picture in the folder that
// the tests run in.

#include <QApplication>
#include <QImage>
#include <QScopeGuard>
#include <cmath>

#include "tests/ui/MainWindowTester.h"

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

class Appearance : public MainWindowTester {
 public:
  ~Appearance() override { QApplication::setPalette(m_palette); }

  QImage Grab(const std::string& name) const {
    QTest::qWait(0);
    const QImage image = Window->grab().toImage();
    image.save(QStringLiteral("veerwatch-%1.png").arg(QString::fromStdString(name)));
    return image;
  }

 private:
  QPalette m_palette = QApplication::palette();
};

class AppearanceInPalette : public Appearance, public testing::WithParamInterface<const char*> {};

TEST_P(AppearanceInPalette, Modes) {
  const std::string shade = GetParam();
  if (shade == "dark") {
    QApplication::setPalette(DarkPalette());
  }
  Start(kSimulated);
  tmrNmea.Tick(3);
  for (const int mode : {5, 7, 3, 1}) {
    Mode(mode);
    tmrNmea.Tick();
    Grab(shade + "-mode" + std::to_string(mode));
  }
  Mode(3);
  tmrNmea.Tick(2);
  Mode(7);
  Type("txtDesired(1)", "-60");
  Enter("txtDesired(1)");
  tmrNmea.Tick();
  Grab(shade + "-alarm");
  Window->m_fTrackBandwidth = 0.0F;
  Mode(5);
  Mode(7);
  Click("optControl(2)");
  Window->m_fTrackBandwidth = 0.0F;
  Mode(7);
  Window->resize(1024, 600);
  Grab(shade + "-1024x600");
  Window->resize(640, 400);
  Grab(shade + "-640x400");
  Window->resize(320, 220);
  Grab(shade + "-320x220");
  Window->resize(480, 900);
  Grab(shade + "-480x900");
  Window->resize(1600, 500);
  Grab(shade + "-1600x500");
}

INSTANTIATE_TEST_SUITE_P(Shades, AppearanceInPalette, testing::Values("light", "dark"));

}  // namespace
}  // namespace veerwatch
