// What the options dialog looks like. Each grab is kept as a picture in the folder that the tests run in.

#include <QAbstractScrollArea>
#include <QImage>
#include <QStyle>

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

}  // namespace
}  // namespace veerwatch
