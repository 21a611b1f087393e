// What the manoeuvre dialog looks like. Each grab is kept as a picture beside the test program.

#include <QApplication>
#include <QImage>

#include "tests/support/PictureQt.h"
#include "tests/ui/DarkPalette.h"
#include "tests/ui/TackTester.h"

namespace veerwatch {
namespace {

class TackAppearance : public TackTester, public testing::WithParamInterface<const char*> {
 public:
  ~TackAppearance() override { QApplication::setPalette(m_palette); }

  void Grab(const std::string& name) const {
    QTest::qWait(0);
    KeepPicture(Dialog()->grab().toImage(),
                QStringLiteral("tack-%1-%2").arg(QLatin1String(GetParam()), QString::fromStdString(name)));
  }

 private:
  QPalette m_palette = QApplication::palette();
};

TEST_P(TackAppearance, ShowsEveryTextWholeAndKeepsItsSize) {
  if (std::string(GetParam()) == "dark") {
    QApplication::setPalette(DarkPalette());
  }
  Start(kOnPorts);
  const std::vector<std::pair<float, float>> turns{{120.0F, 45.0F}, {190.0F, 45.0F}, {190.0F, -135.0F}};
  QSize size;
  for (const auto& [heading, wind] : turns) {
    Wind = std::to_string(static_cast<int>(wind));
    Send();
    Window->TackOpen(heading, 100.0F, wind);
    const std::string kind = Dialog()->windowTitle().mid(12).toStdString();
    Grab(kind);
    Click("cmdOk");
    Seconds(2);
    Grab(kind + "-running");
    EXPECT_TRUE(size.isEmpty() || size == Dialog()->size()) << kind;
    size = Dialog()->size();
    for (const QLabel* label : Dialog()->findChildren<QLabel*>()) {
      if (!label->wordWrap()) {
        EXPECT_GE(label->width(), label->sizeHint().width()) << label->text().toStdString();
      }
      EXPECT_GE(label->height(), label->heightForWidth(label->width())) << label->text().toStdString();
    }
    for (const QLineEdit* box : Dialog()->findChildren<QLineEdit*>()) {
      EXPECT_GT(box->width(), box->fontMetrics().horizontalAdvance(QStringLiteral("-000.0")));
    }
    const auto& list = Find<QListWidget>("lstTack");
    EXPECT_LE(list.visualItemRect(list.item(list.count() - 1)).bottom(), list.viewport()->height());
    EXPECT_GE(list.viewport()->width(), list.sizeHintForColumn(0));
    EXPECT_GE(Find<QLineEdit>("txtHeading").fontMetrics().capHeight(), 28) << "to be read from a distance";
    EXPECT_GE(Find<QPushButton>("cmdCancel").height(), 44) << "to be hit on a moving boat";
  }
}

TEST_P(TackAppearance, ATurnThatIsFollowedIsReadFromADistanceAndStoppedOnAMovingBoat) {
  if (std::string(GetParam()) == "dark") {
    QApplication::setPalette(DarkPalette());
  }
  Start(kSimulated);
  tmrNmea.Tick(12);
  Mode(7);
  QTest::keyClick(Window.get(), Qt::Key_T, Qt::ControlModifier);
  for (int second = 0; second < 4; ++second) {
    tmrNmea.Tick();
    TimerTack.Tick();
  }
  auto* turn = Window->findChild<QDialog*>(QStringLiteral("frmTurn"));
  ASSERT_TRUE(turn != nullptr && turn->isVisible());
  QTest::qWait(0);
  KeepPicture(turn->grab().toImage(), QStringLiteral("turn-%1").arg(QLatin1String(GetParam())));
  for (const QLabel* label : turn->findChildren<QLabel*>()) {
    EXPECT_GE(label->height(), label->heightForWidth(label->width())) << label->text().toStdString();
    EXPECT_GE(label->fontMetrics().capHeight(), 15) << label->text().toStdString();
  }
  const auto& stop = *turn->findChild<QPushButton*>(QStringLiteral("cmdStop"));
  EXPECT_GE(stop.height(), 100);
  EXPECT_GE(stop.width(), 400);
  EXPECT_LE(turn->height(), 320) << "leaves room beside it on a small screen";
}

INSTANTIATE_TEST_SUITE_P(Shades, TackAppearance, testing::Values("light", "dark"),
                         [](const auto& shade) { return std::string(shade.param); });

}  // namespace
}  // namespace veerwatch
