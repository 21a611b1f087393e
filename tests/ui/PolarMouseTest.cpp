// What the polar window reads out under the mouse, through real events.

#include <QMouseEvent>
#include <cmath>

#include "tests/ui/PolarWindowTester.h"

namespace veerwatch {
namespace {

class PolarMouse : public PolarWindowTester {
 public:
  /// Where the cell of that angle and speed is drawn, on a plot of `size` pixels and 16 knots.
  static QPoint At(double angle, double speed, double size = 480.0) {
    const Point cell = PointAt(PlotGeometry(size, size, 16.0), angle, speed);
    return {static_cast<int>(std::lround(cell.X)), static_cast<int>(std::lround(cell.Y))};
  }
};

TEST_F(PolarMouse, ReadsTheCellUnderTheMouseOut) {
  Store.ProfileSet("Polar Data", "Speed Range", 16.0F);
  Start();
  Square(480);
  const QPoint at = At(120.0, 14.0);
  auto& label = Find<QLabel>("lblMouse");
  EXPECT_FALSE(label.isVisible());
  QTest::mousePress(&Plot(), Qt::LeftButton, {}, at);
  ASSERT_TRUE(label.isVisible());
  EXPECT_EQ(label.text(), QStringLiteral("120.0\n20\n14.0"));
  EXPECT_EQ(label.palette().color(QPalette::WindowText), QColor(0, 0, 255));
  EXPECT_FALSE(label.geometry().contains(at)) << "beside the mouse";
  EXPECT_TRUE(Plot().rect().contains(label.geometry()));
  QTest::mouseMove(&Plot(), at + QPoint(6, 8));
  EXPECT_TRUE(label.isVisible()) << "10 px away";
  QTest::mouseMove(&Plot(), at + QPoint(7, 8));
  EXPECT_FALSE(label.isVisible());
  QTest::mousePress(&Plot(), Qt::LeftButton, {}, at);
  EXPECT_TRUE(label.isVisible());
  QTest::mousePress(&Plot(), Qt::LeftButton, {}, QPoint(240, 240));
  EXPECT_FALSE(label.isVisible()) << "nothing is near the centre";
  QTest::mousePress(&Plot(), Qt::RightButton, {}, at);
  EXPECT_FALSE(label.isVisible());
}

TEST_F(PolarMouse, ReadsTheReferenceOutInAnotherColour) {
  WriteFile(Program / "r.pol", "TWA\t10\n60\t6\n150\t13\n");
  Store.ProfileSet("Polar Data", "Speed Range", 16.0F);
  Start();
  Square(480);
  Dialogs.Files = {(Program / "r.pol").string()};
  Choose("mnuOverlayFile2");
  QTest::mousePress(&Plot(), Qt::LeftButton, {}, At(-150.0, 13.0));
  auto& label = Find<QLabel>("lblMouse");
  EXPECT_EQ(label.text(), QStringLiteral("-150.0\n10\n13.0"));
  EXPECT_NE(label.palette().color(QPalette::WindowText), QColor(0, 0, 255));
}

TEST_F(PolarMouse, KeepsTheMouseReadoutWhileTheMouseRests) {
  Store.ProfileSet("Polar Data", "Speed Range", 16.0F);
  Start();
  Square(480);
  QTest::mousePress(&Plot(), Qt::LeftButton, {}, At(120.0, 14.0));
  ASSERT_TRUE(Find<QLabel>("lblMouse").isVisible());
  Sail(80.0F, 20.0F, 9.0F);
  Window->PolarDraw();
  EXPECT_TRUE(Find<QLabel>("lblMouse").isVisible());
  Window->close();
  Window->show();
  EXPECT_FALSE(Find<QLabel>("lblMouse").isVisible()) << "not for a mouse of long ago";
}

TEST_F(PolarMouse, TakesTheMouseReadoutBackWhenTheCellHasMoved) {
  Store.ProfileSet("Polar Data", "Speed Range", 16.0F);
  Start();
  Square(480);
  QTest::mousePress(&Plot(), Qt::LeftButton, {}, At(120.0, 14.0));
  ASSERT_TRUE(Find<QLabel>("lblMouse").isVisible());
  Find<QAction>("mnuRange6").trigger();
  EXPECT_FALSE(Find<QLabel>("lblMouse").isVisible()) << "now far outside";
}

TEST_F(PolarMouse, ReadsOutWhereTheMouseRests) {
  Store.ProfileSet("Polar Data", "Speed Range", 16.0F);
  Start();
  Square(480);
  auto& label = Find<QLabel>("lblMouse");
  QTest::mouseMove(&Plot(), At(120.0, 14.0));
  EXPECT_FALSE(label.isVisible()) << "still on its way, perhaps";
  EXPECT_TRUE(QTest::qWaitFor([&] { return label.isVisible(); }));
  EXPECT_EQ(label.text(), QStringLiteral("120.0\n20\n14.0"));
  QTest::mouseMove(&Plot(), At(80.0, 11.0));
  EXPECT_FALSE(label.isVisible());
  EXPECT_TRUE(QTest::qWaitFor([&] { return label.isVisible(); }));
  EXPECT_EQ(label.text(), QStringLiteral("80.0\n20\n11.0"));
  QEvent leaves(QEvent::Leave);
  QApplication::sendEvent(&Plot(), &leaves);
  EXPECT_FALSE(label.isVisible());
}

TEST_F(PolarMouse, WritesTheMouseReadoutLargeWithItsCaptions) {
  Store.ProfileSet("Polar Data", "Speed Range", 16.0F);
  Start();
  Square(700);
  QTest::mousePress(&Plot(), Qt::LeftButton, {}, At(120.0, 14.0, 700.0));
  auto& label = Find<QLabel>("lblMouse");
  ASSERT_TRUE(label.isVisible());
  const QFontMetrics metrics(label.font());
  EXPECT_GT(label.height(), 4 * metrics.height());
  EXPECT_GT(label.width(), metrics.horizontalAdvance(QStringLiteral("Polar (Kts) 120.0")));
  // Captions at the left, values at the right, in every one of the three lines.
  const QImage image = label.grab().toImage();
  const double scale = image.width() / static_cast<double>(label.width());
  for (const double left : {0.0, 0.6}) {
    for (int line = 0; line < 3; ++line) {
      const QImage part = image.copy(QRectF(left * label.width() * scale, line * label.height() / 3.0 * scale,
                                            0.4 * label.width() * scale, label.height() / 3.0 * scale)
                                         .toRect());
      const Point middle{part.width() / 2.0, part.height() / 2.0};
      EXPECT_GT(Count(part, middle, part.width(), QColor(0, 0, 255)), 10) << left << " " << line;
    }
  }
}

}  // namespace
}  // namespace veerwatch
