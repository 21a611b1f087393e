// What the history window looks like, judged by its pixels. Each grab is kept as a picture beside
// the test program.

#include <QFontMetricsF>
#include <QImage>
#include <QLabel>

#include "tests/support/PictureQt.h"
#include "tests/support/WaitQt.h"
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

  bool Dark() const { return std::string(GetParam()) == "dark"; }

  /// Grabs the window and expects every text of the chart to be whole and legible.
  void Look(const std::string& name) {
    QTest::qWait(0);
    const QImage image = Window->grab().toImage();
    KeepPicture(image,
                QStringLiteral("history-%1-%2").arg(QLatin1String(GetParam()), QString::fromStdString(name)));
    EXPECT_EQ(PartOf(image, Chart().geometry()).pixelColor(1, 1),
              QApplication::palette().color(QPalette::Window))
        << name;
    const std::vector<PlacedText> texts = Texts();
    EXPECT_GT(texts.size(), 20U) << name;
    std::vector<QRectF> taken;
    for (const PlacedText& text : texts) {
      const QRectF drawn = Drawn(text);
      EXPECT_TRUE(QRectF(Chart().rect()).adjusted(-1.0, -1.0, 1.0, 1.0).contains(drawn))
          << text.Text << " is cut off in " << name;
      for (const QRectF& other : taken) {
        EXPECT_FALSE(other.adjusted(1.0, 1.0, -1.0, -1.0).intersects(drawn))
            << text.Text << " is written over in " << name;
      }
      taken.push_back(drawn);
      EXPECT_GE(InkContrast(PartOf(image, drawn.toAlignedRect().translated(Chart().pos()))), 4.0)
          << text.Text << " in " << name;
    }
  }

  /// Where the characters of a text stand, which may be more than its box.
  QRectF Drawn(const PlacedText& text) {
    QFont font = Chart().font();
    font.setPixelSize(qRound(text.Height));
    const double width = QFontMetricsF(font).horizontalAdvance(QString::fromStdString(text.Text));
    const double room = text.Place.Width - width;
    const double left = text.Align == PlacedText::Side::Left    ? 0.0
                        : text.Align == PlacedText::Side::Right ? room
                                                                : room / 2.0;
    return {text.Place.X + left, text.Place.Y + (text.Place.Height - text.Height) / 2.0, width, text.Height};
  }

  /// Every text that the chart shows.
  std::vector<PlacedText> Texts() {
    std::vector<PlacedText> texts;
    const auto add = [&texts](const PlacedText& text) {
      if (!text.Text.empty()) {
        texts.push_back(text);
      }
    };
    for (const ChartPanel& panel : Chart().Picture().Panels) {
      for (const ChartAxis& axis : panel.Axes) {
        add(axis.Title);
        add(axis.Units);
        for (const PlacedText& label : axis.Labels) {
          add(label);
        }
      }
    }
    for (const ChartTimeTick& tick : Chart().Picture().TimeTicks) {
      add(tick.Label);
    }
    for (const ChartLegendEntry& entry : Chart().Picture().Legend) {
      add(entry.Name);
      add(entry.Value);
      add(entry.Units);
    }
    return texts;
  }

 private:
  QPalette m_palette = QApplication::palette();
};

TEST_P(HistoryAppearance, EveryTextOfTheChartIsWholeAndStandsOutFromItsGround) {
  Load();
  Record(86400, 10);
  Show();
  Look("default");
  Window->resize(1200, 600);
  Look("1200x600");
  for (int i = 0; i < 3; ++i) {
    QTest::keyClick(&Chart(), Qt::Key_Minus);
  }
  Look("3h");
  for (int i = 0; i < 6; ++i) {
    QTest::keyClick(&Chart(), Qt::Key_Minus);
  }
  Look("24h");
  for (int i = 0; i < 8; ++i) {
    QTest::keyClick(&Chart(), Qt::Key_Plus);
  }
  QTest::keyClick(&Chart(), Qt::Key_PageUp);
  Window->resize(700, 420);
  Look("700x420-back");
  Window->resize(1600, 900);
  Look("1600x900");
}

TEST_P(HistoryAppearance, TheValuesUnderTheMouseStandOut) {
  Load();
  Record(86400, 10);
  Show();
  Window->resize(1200, 600);
  QTest::qWait(0);
  const QImage before = Window->grab().toImage();
  QTest::mouseMove(&Chart(), QPoint(1190, 10));
  QTest::mouseMove(&Chart(), QPoint(500, 300));
  EXPECT_TRUE(WaitFor([&] { return Window->grab().toImage() != before; }));
  const QImage reading = Window->grab().toImage();
  KeepPicture(reading, QStringLiteral("history-%1-reading").arg(QLatin1String(GetParam())));
  // Only what the reading changes.
  QRect changed;
  for (int y = 0; y < reading.height(); ++y) {
    for (int x = 0; x < reading.width(); ++x) {
      if (reading.pixel(x, y) != before.pixel(x, y)) {
        changed |= QRect(x, y, 1, 1);
      }
    }
  }
  EXPECT_GT(changed.width(), 60);
  EXPECT_GE(InkContrast(PartOf(reading, changed)), 4.0);
}

TEST_P(HistoryAppearance, EveryTextOfThePopupIsWholeAndStandsOutFromItsGround) {
  Load();
  Show();
  Window->ConfigurePopup();
  auto& popup = Find<QWidget>("frmConfigPopup");
  QTest::qWait(0);
  const QImage image = popup.grab().toImage();
  KeepPicture(image, QStringLiteral("history-%1-popup").arg(QLatin1String(GetParam())));
  int read = 0;
  for (const QWidget* control : popup.findChildren<QWidget*>()) {
    const QString text = control->property("text").toString();
    if (text.isEmpty() || !control->isVisible() || !control->isEnabled()) {
      continue;
    }
    ++read;
    EXPECT_GE(control->width(), control->sizeHint().width()) << text.toStdString();
    EXPECT_GE(control->height(), control->sizeHint().height()) << text.toStdString();
    const QRect place(control->mapTo(&popup, QPoint(0, 0)), control->size());
    EXPECT_TRUE(popup.rect().contains(place)) << text.toStdString();
    EXPECT_GE(InkContrast(PartOf(image, place)), 4.0) << text.toStdString();
  }
  EXPECT_GT(read, 15);
  EXPECT_EQ(image.pixelColor(image.width() / 2, 3).lightness() < 128, Dark());
  popup.close();
}

INSTANTIATE_TEST_SUITE_P(Shades, HistoryAppearance, testing::Values("light", "dark"),
                         [](const auto& shade) { return std::string(shade.param); });

}  // namespace
}  // namespace veerwatch
