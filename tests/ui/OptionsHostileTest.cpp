// The options dialog under hands and events that come at the wrong moment, and with texts of any length.

#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMessageBox>
#include <QScrollBar>
#include <QTimer>
#include <QTreeWidget>

#include "platform/DialogsQt.h"
#include "tests/ui/OptionsTester.h"

namespace veerwatch {
namespace {

class OptionsHostile : public OptionsTester {
 public:
  /// Presses the upper arrow of a spinner with -1, the lower with 1.
  void Spin(const char* name, int scroll) const { Find<QScrollBar>(name).setValue(scroll); }

  static int BoxesShown() {
    int shown = 0;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      shown += qobject_cast<QMessageBox*>(widget) != nullptr && widget->isVisible() ? 1 : 0;
    }
    return shown;
  }
};

TEST_F(OptionsHostile, EnterOnAButtonPressesThatButton) {
  Start(frmOptions::Tracking);
  Type("txtTrackBandwidth", "12.5");
  auto& cancel = Find<QPushButton>("cmdCancel");
  cancel.setFocus();
  QTest::keyClick(&cancel, Qt::Key_Return);
  EXPECT_EQ(Main.m_fTrackBandwidth, 20.0F);
  EXPECT_FALSE(Window->isVisible());
  Show(frmOptions::Tracking);
  auto& apply = Find<QPushButton>("cmdApply");
  apply.setFocus();
  QTest::keyClick(&apply, Qt::Key_Return);
  EXPECT_EQ(Main.m_fTrackBandwidth, 12.5F);
  EXPECT_TRUE(Window->isVisible());
}

TEST_F(OptionsHostile, AReloadDoesNotMarkTheBoxThatHasTheKeyboard) {
  Start(frmOptions::Tracking);
  Type("txtTrackBandwidth", " 12.50 ");
  QTest::keyClick(Window.get(), Qt::Key_A, Qt::AltModifier);
  ASSERT_TRUE(QTest::qWaitFor([this] { return Main.m_fTrackBandwidth == 12.5F; }));
  EXPECT_TRUE(QTest::qWaitFor([this] { return Entry("txtTrackBandwidth") == "12.5"; }));
  EXPECT_TRUE(Find<QLineEdit>("txtTrackBandwidth").hasFocus());
  EXPECT_FALSE(Bold());
}

TEST_F(OptionsHostile, TicksWithoutTheKeyboardDoNotMark) {
  Main.m_bSimulate = true;
  Start(frmOptions::Simulate);
  Find<QPushButton>("cmdOk").setFocus();
  Find<QCheckBox>("chkSimulate").setChecked(false);
  EXPECT_FALSE(Bold());
  Tab(frmOptions::Data);
  Find<QPushButton>("cmdOk").setFocus();
  Find<QTreeWidget>("lstNmeaSentence").topLevelItem(0)->setCheckState(0, Qt::Unchecked);
  EXPECT_FALSE(Bold());
}

TEST_F(OptionsHostile, PastingMarks) {
  Start(frmOptions::Tracking);
  QApplication::clipboard()->setText(QStringLiteral("3"));
  auto& box = Find<QLineEdit>("txtTrackDamping");
  QTest::mouseClick(&box, Qt::LeftButton);
  box.selectAll();
  bool pasted = false;
  QTimer::singleShot(50, Window.get(), [&] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    for (QAction* action : menu->actions()) {
      if (action->text().contains(QLatin1String("Paste"))) {
        menu->setActiveAction(action);
        QTest::keyClick(menu, Qt::Key_Return);
        pasted = true;
      }
    }
  });
  QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(3, 3), box.mapToGlobal(QPoint(3, 3)));
  QApplication::sendEvent(&box, &event);
  ASSERT_TRUE(QTest::qWaitFor([&] { return pasted; }));
  EXPECT_EQ(Entry("txtTrackDamping"), "3");
  EXPECT_TRUE(Bold());
}

TEST_F(OptionsHostile, TextsOfAnyLengthAreRefusedAndChangeNothing) {
  Main.m_bSimulate = true;
  Start(frmOptions::Input);
  const Settings before = Main;
  for (const auto& [fill, fault] : {std::pair{'9', "Overflow"}, std::pair{'x', "Type mismatch"}}) {
    for (auto* box : Window->findChildren<OptionEntryQt*>()) {
      box->setText(QString(100000, QLatin1Char(fill)));
    }
    for (int tab = 0; tab < 7; ++tab) {
      Tab(tab);
      QApplication::processEvents();
    }
    EXPECT_EQ(Find<TrackPreviewQt>("pctTrack").Picture().Trouble, "Bandwidth is not a number");
    Dialogs.Messages.clear();
    Click("cmdApply");
    ASSERT_EQ(Dialogs.Messages.size(), 1U);
    EXPECT_EQ(Dialogs.Messages[0].Text, std::string("Data Options Problem ") + fault + ": True Wind Average");
    EXPECT_EQ(Main.m_fNmeaTrueWindAverage, before.m_fNmeaTrueWindAverage);
    EXPECT_EQ(Main.m_fTrackBandwidth, before.m_fTrackBandwidth);
    Spin("vscSimulateTrueWindAngle(0)", 1);
    EXPECT_EQ(Entry("txtSimulateTrueWindAngle"), "-10");
  }
}

TEST_F(OptionsHostile, AFailedAutoApplyTellsAndKeepsTheTexts) {
  Main.m_bSimulate = true;
  Start(frmOptions::Simulate);
  Click("chkSimulateAutoApply");
  Type("txtSimulateTrueWindSpeed", "1.2.3");
  Spin("vscSimulateTrueWindAngle(0)", -1);
  ASSERT_EQ(Dialogs.Messages.size(), 1U);
  EXPECT_EQ(Dialogs.Messages[0].Text, "Simulate Options Problem Type mismatch: True Wind Speed");
  EXPECT_EQ(Entry("txtSimulateTrueWindSpeed"), "1.2.3");
  EXPECT_EQ(Main.m_fSimulateTrueWindAngle, 10.0F);
  EXPECT_TRUE(Bold());
}

/// The dialog with the message boxes of the desktop.
class OptionsMessages : public OptionsHostile {
 public:
  OptionsMessages() {
    Window = std::make_unique<frmOptions>(
        frmOptions::Parts{Main, Ports, m_real, Random, Recorded, Store, &Finder, Time});
    Show(frmOptions::Tracking);
    Type("txtTrackBandwidth", "x");
    Click("cmdApply");
  }

 private:
  DialogsQt m_real;
};

TEST_F(OptionsMessages, TheSameOneIsOpenOnce) {
  EXPECT_EQ(BoxesShown(), 1);
  Click("cmdApply");
  Click("cmdOk");
  EXPECT_EQ(BoxesShown(), 1);
  EXPECT_TRUE(Window->isVisible());
}

TEST_F(OptionsMessages, GoWithTheDialogAndNotWithItsTab) {
  Tab(frmOptions::Data);
  EXPECT_EQ(BoxesShown(), 1);
  Click("cmdCancel");
  EXPECT_EQ(BoxesShown(), 0);
  Show(frmOptions::Tracking);
  EXPECT_EQ(BoxesShown(), 0);
}

TEST_F(OptionsMessages, GoWithTheCloseAndTheEndOfTheDialog) {
  EXPECT_EQ(BoxesShown(), 1);
  Window->close();
  EXPECT_EQ(BoxesShown(), 0);
  Window.reset();
  EXPECT_EQ(BoxesShown(), 0);
}

TEST_F(OptionsMessages, MayBeOpenWhenTheDialogIsDestroyed) {
  Window.reset();
  EXPECT_EQ(BoxesShown(), 0);
}

}  // namespace
}  // namespace veerwatch
