// What the history window looks like, judged by its pixels. Each grab is kept as a picture in the folder that
// the tests run in.

#include <QImage>

#include "tests/ui/DarkPalette.h"
#include "tests/ui/history/HistoryTester.h"

namespace veerwatch {
namespace {

class HistoryAppearance : public HistoryTester, public testing::WithParamInterface<const char*> {
 public:
  HistoryAppearance() {
    if (std::string(GetParam()) == "dark") {
      QApplication::setPalette(DarkPalette());
    }
  }
  ~HistoryAppearance() override { QApplication::setPalette(m_palette); }

  QImage Grab(const std::string& name) {
    QTest::qWait(0);
    const QImage image = Window->grab().toImage();
    image.save(
        QStringLiteral("history-%1-%2.png").arg(QLatin1String(GetParam()), QString::fromStdString(name)));
    return image;
  }

 private:
  QPalette m_palette = QApplication::palette();
};

TEST_P(HistoryAppearance, Pictures) {
  Load();
  Record(86400, 10);
  Show();
  Grab("default");
  Window->resize(1200, 600);
  Grab("1200x600");
  QTest::mouseMove(&Chart(), QPoint(500, 300));
  Grab("reading");
  QTest::mouseMove(&Chart(), QPoint(1190, 10));
  for (int i = 0; i < 3; ++i) {
    QTest::keyClick(&Chart(), Qt::Key_Minus);
  }
  Grab("3h");
  for (int i = 0; i < 6; ++i) {
    QTest::keyClick(&Chart(), Qt::Key_Minus);
  }
  Grab("24h");
  for (int i = 0; i < 8; ++i) {
    QTest::keyClick(&Chart(), Qt::Key_Plus);
  }
  QTest::keyClick(&Chart(), Qt::Key_PageUp);
  Window->resize(700, 420);
  Grab("700x420-back");
  Window->resize(1600, 900);
  Grab("1600x900");
  Window->ConfigurePopup();
  auto& popup = Find<QWidget>("frmConfigPopup");
  popup.grab().save(QStringLiteral("history-%1-popup.png").arg(QLatin1String(GetParam())));
  popup.close();
}

INSTANTIATE_TEST_SUITE_P(Shades, HistoryAppearance, testing::Values("light", "dark"));

}  // namespace
}  // namespace veerwatch
