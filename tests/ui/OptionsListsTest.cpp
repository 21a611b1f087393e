// The live lists of the options dialog.

#include <QAbstractItemView>
#include <QClipboard>
#include <QComboBox>
#include <QScrollBar>

#include "tests/ui/OptionsTester.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class OptionsLists : public OptionsTester {};

TEST_F(OptionsLists, TakeLinesOnlyWhenOnAndVisible) {
  Start(frmOptions::Input);
  Receive("off", true);
  Click("optNmeaListOn");
  Receive("on", true);
  EXPECT_THAT(Lines("lstNmeaData"), ElementsAre("on"));
  Window->hide();
  Receive("hidden", true);
  EXPECT_THAT(Lines("lstNmeaData"), ElementsAre("on"));
  Show(frmOptions::Input);
  Click("optNmeaListOff");
  Receive("off again", true);
  EXPECT_THAT(Lines("lstNmeaData"), ElementsAre("on"));
}

TEST_F(OptionsLists, FollowTheFormat) {
  Start(frmOptions::Input);
  Click("optNmeaListOn");
  Receive("raw selected", false, LineFault::Checksum);
  EXPECT_THAT(Lines("lstNmeaData"), ElementsAre("raw selected <<Checksum Error>>"));
  Receive("$A", true);
  EXPECT_THAT(Lines("lstNmeaData"), ElementsAre("raw selected <<Checksum Error>>", "$A"));
  Click("optNmeaDataFormat(2)");
  EXPECT_THAT(Lines("lstNmeaData"), IsEmpty());
  Receive("$B", true);
  EXPECT_THAT(Lines("lstNmeaData"), IsEmpty());
  Receive("$C", false, LineFault::Decode);
  EXPECT_THAT(Lines("lstNmeaData"), ElementsAre("Decode Error - $C"));
  EXPECT_FALSE(Highlighted("lstNmeaData", 0));
  Click("optNmeaDataFormat(2)");
  EXPECT_THAT(Lines("lstNmeaData"), IsEmpty());
}

TEST_F(OptionsLists, HighlightWhatWasUsed) {
  Start(frmOptions::Input);
  Click("optNmeaListOn");
  Receive("$A", true);
  Receive("$B", false);
  EXPECT_TRUE(Highlighted("lstNmeaData", 0));
  EXPECT_FALSE(Highlighted("lstNmeaData", 1));
  // Also in what is painted.
  QApplication::processEvents();
  auto& list = Find<QListView>("lstNmeaData");
  const QImage image = list.viewport()->grab().toImage();
  const auto ground = [&](int row) {
    const QRect place = list.visualRect(list.model()->index(row, 0));
    return image.pixel(place.right() - 2, place.center().y());
  };
  EXPECT_NE(ground(0), ground(1));
}

TEST_F(OptionsLists, HoldTheNewest101Of10000Lines) {
  Start(frmOptions::Input);
  Click("optNmeaListOn");
  for (int i = 1; i <= 10000; ++i) {
    Receive("line " + std::to_string(i), i % 3 == 0);
    if (i == 100 || i == 101 || i == 102) {
      EXPECT_EQ(Lines("lstNmeaData").size(), i == 100 ? 100U : 101U);
    }
    if (i % 500 == 0) {
      QApplication::processEvents();
    }
  }
  const auto lines = Lines("lstNmeaData");
  ASSERT_EQ(lines.size(), 101U);
  EXPECT_EQ(lines.front(), "line 9900");
  EXPECT_EQ(lines.back(), "line 10000");
  EXPECT_TRUE(Highlighted("lstNmeaData", 0));
  EXPECT_FALSE(Highlighted("lstNmeaData", 1));
}

TEST_F(OptionsLists, ScrollToTheNewestLine) {
  Start(frmOptions::Input);
  Click("optNmeaListOn");
  auto& list = Find<QListView>("lstNmeaData");
  for (int i = 0; i < 300; ++i) {
    Receive("line " + std::to_string(i), false);
  }
  QApplication::processEvents();
  EXPECT_EQ(list.verticalScrollBar()->value(), list.verticalScrollBar()->maximum());
  const QRect last = list.visualRect(list.model()->index(100, 0));
  EXPECT_TRUE(list.viewport()->rect().contains(last));
  list.verticalScrollBar()->setValue(0);
  Receive("one more", false);
  QApplication::processEvents();
  EXPECT_EQ(list.verticalScrollBar()->value(), list.verticalScrollBar()->maximum());
}

TEST_F(OptionsLists, AreClearedByAReloadAndByAStartOfTheInput) {
  Start(frmOptions::Input);
  Click("optNmeaListOn");
  Receive("$A", true);
  Main.Tells.Tell([](HelmObserver& told) { told.OnInputStarts(); });
  EXPECT_THAT(Lines("lstNmeaData"), IsEmpty());
  Receive("$B", true);
  Tab(frmOptions::Output);
  Click("optPilotListOn");
  Send("$ECAPB");
  Click("cmdApply");
  EXPECT_THAT(Lines("lstNmeaData"), IsEmpty());
  EXPECT_THAT(Lines("lstPilotData"), IsEmpty());
}

TEST_F(OptionsLists, OfTheOutputTakesWhatIsSent) {
  Start(frmOptions::Output);
  Send("off");
  Click("optPilotListOn");
  for (int i = 1; i <= 150; ++i) {
    Send("$ECAPB " + std::to_string(i));
  }
  ASSERT_EQ(Lines("lstPilotData").size(), 101U);
  EXPECT_EQ(Lines("lstPilotData").front(), "$ECAPB 50");
  EXPECT_FALSE(Highlighted("lstPilotData", 100));
  // The other tabs do not matter, a disabled one does.
  Tab(frmOptions::Input);
  Send("from elsewhere");
  EXPECT_EQ(Lines("lstPilotData").back(), "from elsewhere");
  Find<QTabWidget>("SSTab").setTabEnabled(frmOptions::Output, false);
  Send("disabled");
  EXPECT_EQ(Lines("lstPilotData").back(), "from elsewhere");
  Find<QTabWidget>("SSTab").setTabEnabled(frmOptions::Output, true);
  Window->hide();
  Send("hidden");
  EXPECT_EQ(Lines("lstPilotData").back(), "from elsewhere");
}

TEST_F(OptionsLists, ShowHostileLinesWithoutHarm) {
  Start(frmOptions::Input);
  Click("optNmeaListOn");
  Receive(std::string_view("\0\x1b[2J\t<b>\xff\xfe\n\x80", 12), false);
  Receive(std::string(4096, '\xc3'), true);
  Receive("", false);
  EXPECT_FALSE(Window->grab().isNull());
  const auto lines = Lines("lstNmeaData");
  EXPECT_EQ(lines[0], "\u2400\u241b[2J\t<b>\u00ff\u00fe\u240a");
  EXPECT_EQ(lines.size(), 3U);
}

TEST_F(OptionsLists, StandStillInAPause) {
  Start(frmOptions::Input);
  Click("optNmeaListOn");
  for (int i = 0; i < 90; ++i) {
    Receive("line " + std::to_string(i), false);
  }
  QApplication::processEvents();
  Click("chkNmeaPause");
  auto& bar = *Find<QListView>("lstNmeaData").verticalScrollBar();
  bar.setValue(3);
  const auto before = Lines("lstNmeaData");
  Receive("in the pause", true);
  QApplication::processEvents();
  EXPECT_EQ(Lines("lstNmeaData"), before);
  EXPECT_EQ(bar.value(), 3);
  Click("chkNmeaPause");
  QApplication::processEvents();
  EXPECT_EQ(Lines("lstNmeaData").back(), "in the pause");
  EXPECT_EQ(bar.value(), bar.maximum());
  EXPECT_FALSE(Bold()) << "nothing to apply";
}

TEST_F(OptionsLists, OfTheOutputPausesAndIsCopied) {
  Start(frmOptions::Output);
  Click("optPilotListOn");
  Send("$ECAPB,1");
  Click("chkPilotPause");
  Send("$ECAPB,2");
  EXPECT_THAT(Lines("lstPilotData"), ElementsAre("$ECAPB,1"));
  Click("cmdPilotCopy");
  EXPECT_EQ(QApplication::clipboard()->text(), "$ECAPB,1\n");
  Click("chkPilotPause");
  EXPECT_THAT(Lines("lstPilotData"), ElementsAre("$ECAPB,1", "$ECAPB,2"));
}

TEST_F(OptionsLists, AreCopiedWhole) {
  Start(frmOptions::Input);
  Click("optNmeaListOn");
  for (int i = 0; i < 60; ++i) {
    Receive("$WIMWV," + std::to_string(i), false);
  }
  Click("cmdNmeaCopy");
  const QStringList copied = QApplication::clipboard()->text().split('\n');
  ASSERT_EQ(copied.size(), 61);
  EXPECT_EQ(copied.front(), "$WIMWV,0");
  EXPECT_EQ(copied.at(59), "$WIMWV,59");
  EXPECT_EQ(copied.back(), "");
}

TEST_F(OptionsLists, AreFilteredByTheTypesThatCame) {
  Start(frmOptions::Input);
  Click("optNmeaListOn");
  auto& types = Find<QComboBox>("cmbNmeaType");
  EXPECT_EQ(types.count(), 1);
  for (const char* line : {"$WIMWV,1", "$GPRMC,1", "noise", "$IIHDG,1", "$WIMWV,2"}) {
    Receive(line, false);
  }
  ASSERT_EQ(types.count(), 4);
  EXPECT_EQ(types.itemText(0), "All");
  EXPECT_EQ(types.itemText(1), "HDG");
  EXPECT_EQ(types.itemText(2), "MWV");
  EXPECT_EQ(types.itemText(3), "RMC");
  types.setFocus();
  QTest::keyClicks(&types, "M");
  ASSERT_EQ(types.currentText(), "MWV");
  EXPECT_THAT(Lines("lstNmeaData"), ElementsAre("$WIMWV,1", "$WIMWV,2"));
  Receive("$GPRMC,2", false);
  Receive("$GPGGA,1", false);
  Receive("$WIMWV,3", true);
  EXPECT_THAT(Lines("lstNmeaData"), ElementsAre("$WIMWV,1", "$WIMWV,2", "$WIMWV,3"));
  EXPECT_EQ(types.currentText(), "MWV") << "another type came meanwhile";
  QTest::keyClick(&types, Qt::Key_Home);
  Receive("$GPRMC,3", false);
  EXPECT_EQ(Lines("lstNmeaData").back(), "$GPRMC,3");
  EXPECT_FALSE(Bold()) << "nothing to apply";
}

TEST_F(OptionsLists, ScrollSidewaysAndStayThere) {
  Start(frmOptions::Input);
  Click("optNmeaListOn");
  auto& list = Find<QListView>("lstNmeaData");
  Receive("short", false);
  QApplication::processEvents();
  EXPECT_EQ(list.horizontalScrollBar()->maximum(), 0);
  Receive(std::string(400, '.') + "END", false);
  QApplication::processEvents();
  auto& bar = *list.horizontalScrollBar();
  const int advance = QFontMetrics(list.font()).horizontalAdvance('0');
  EXPECT_GE(bar.maximum() + list.viewport()->width(), 403 * advance);
  const QImage before = list.viewport()->grab().toImage();
  bar.setValue(bar.maximum());
  EXPECT_NE(list.viewport()->grab().toImage(), before);
  Receive("one more", false);
  QApplication::processEvents();
  EXPECT_EQ(bar.value(), bar.maximum());
}

TEST_F(OptionsLists, UseAFixedWidth) {
  Start(frmOptions::Input);
  for (const char* name : {"lstNmeaData", "lstPilotData"}) {
    const QFontMetrics metrics(Find<QWidget>(name).font());
    EXPECT_EQ(metrics.horizontalAdvance('i'), metrics.horizontalAdvance('W')) << name;
    EXPECT_GE(metrics.height(), Window->fontMetrics().height() - 2) << name;
  }
}

}  // namespace
}  // namespace veerwatch
