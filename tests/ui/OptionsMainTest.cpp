// How the main window opens, feeds and closes the options dialog.

#include <gmock/gmock.h>

#include <QScreen>

#include "options/frmOptions.h"
#include "tests/ui/MainWindowTester.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;

class OptionsMain : public MainWindowTester {
 public:
  ~OptionsMain() override { Window.reset(); }

  /// The dialog, null when it is not loaded.
  static frmOptions* Loaded() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      if (auto* dialog = dynamic_cast<frmOptions*>(widget)) {
        return dialog;
      }
    }
    return nullptr;
  }

  /// Chooses a command of the Options menu.
  void Open(const char* command) const {
    Find<QAction>(command).trigger();
    ASSERT_NE(Loaded(), nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowActive(Loaded()));
  }

  template <class Control>
  static Control& In(const char* name) {
    auto* control = Loaded()->findChild<Control*>(QString::fromLatin1(name));
    if (control == nullptr) {
      throw std::runtime_error(std::string("no control ") + name);
    }
    return *control;
  }
  static void ClickIn(const char* name) {
    auto& control = In<QWidget>(name);
    QTest::mouseClick(&control, Qt::LeftButton, {}, QPoint(8, control.height() / 2));
  }
  static void TypeIn(const char* name, const char* text) {
    auto& box = In<QLineEdit>(name);
    box.setFocus();
    box.selectAll();
    QTest::keyClicks(&box, QString::fromLatin1(text));
  }
  static std::vector<std::string> Lines(const char* list) {
    const QAbstractItemModel& model = *In<QListView>(list).model();
    std::vector<std::string> lines;
    for (int row = 0; row < model.rowCount(); ++row) {
      lines.push_back(model.index(row, 0).data().toString().toStdString());
    }
    return lines;
  }
};

TEST_F(OptionsMain, EachCommandOpensItsTab) {
  Start(kOnPorts);
  EXPECT_EQ(Loaded(), nullptr);
  int tab = 0;
  for (const char* command :
       {"mnuOptionsInput", "mnuOptionsData", "mnuOptionsOutput", "mnuOptionsTrack", "mnuOptionsSimulate"}) {
    Open(command);
    EXPECT_EQ(In<QTabWidget>("SSTab").currentIndex(), tab) << command;
    ++tab;
  }
}

TEST_F(OptionsMain, TheFirstSentenceToThePilotLoadsItUnseen) {
  Start(kOnPorts);
  NmeaPort.Receive(Winds("40", "60"));
  EXPECT_EQ(Loaded(), nullptr);
  Mode(5);
  NmeaPort.Receive(Winds("40", "60"));
  ASSERT_NE(Loaded(), nullptr);
  EXPECT_FALSE(Loaded()->isVisible());
}

TEST_F(OptionsMain, ListsWhatComesInAndWhatGoesOut) {
  Start(kOnPorts);
  Mode(5);
  Open("mnuOptionsInput");
  ClickIn("optNmeaListOn");
  In<QTabWidget>("SSTab").setCurrentIndex(frmOptions::Output);
  ClickIn("optPilotListOn");
  NmeaPort.Receive("$WIMWV,040,R,10.0,N,A\r$GPGGA,1\rnoise\r$WIMWV,060,T,8.0,N,A\r$WIMWV,x,R,8.0,N,A\r");
  EXPECT_THAT(Lines("lstNmeaData"),
              ElementsAre("$WIMWV,040,R,10.0,N,A", "$GPGGA,1", "noise <<Sentence Error>>",
                          "$WIMWV,060,T,8.0,N,A", "$WIMWV,x,R,8.0,N,A"));
  const auto& model = *In<QListView>("lstNmeaData").model();
  EXPECT_TRUE(model.index(0, 0).data(LiveListModelQt::kHighlighted).toBool());
  EXPECT_FALSE(model.index(1, 0).data(LiveListModelQt::kHighlighted).toBool());
  EXPECT_FALSE(model.index(2, 0).data(LiveListModelQt::kHighlighted).toBool());
  ASSERT_FALSE(Lines("lstPilotData").empty());
  EXPECT_EQ(Lines("lstPilotData")[0], PilotPort.Written.at(0).substr(0, PilotPort.Written.at(0).size() - 2));
  In<QTabWidget>("SSTab").setCurrentIndex(frmOptions::Input);
  ClickIn("optNmeaDataFormat(2)");
  NmeaPort.Receive("$WIMWV,x,R,8.0,N,A\r");
  EXPECT_THAT(Lines("lstNmeaData"), ElementsAre("Decode Error - $WIMWV,x,R,8.0,N,A"));
}

TEST_F(OptionsMain, ShowsThePresentStatesOfThePortsWhenItIsLoaded) {
  Start(kOnPorts);
  tmrNmea.Tick(4);
  Open("mnuOptionsInput");
  EXPECT_EQ(In<QLabel>("lblNmeaStatus").text(), "No Input Data");
  EXPECT_EQ(In<QLabel>("lblPilotStatus").text(), "Running");
  NmeaPort.Receive("$GPGGA,1\r");
  tmrNmea.Tick();
  EXPECT_EQ(In<QLabel>("lblNmeaStatus").text(), "Running");
  Mode(1);
  EXPECT_EQ(In<QLabel>("lblNmeaStatus").text(), "Stopped");
}

TEST_F(OptionsMain, AStartOfTheInputClearsItsList) {
  Start(kOnPorts);
  Open("mnuOptionsInput");
  ClickIn("optNmeaListOn");
  NmeaPort.Receive("$GPGGA,1\r");
  ASSERT_EQ(Lines("lstNmeaData").size(), 1U);
  Mode(3);
  EXPECT_TRUE(Lines("lstNmeaData").empty());
}

TEST_F(OptionsMain, ANewInputPortIsOpenedAndLeavesSetup) {
  Start(kOnPorts);
  Mode(7);
  Open("mnuOptionsInput");
  TypeIn("txtNmeaPort", "9");
  ClickIn("cmdApply");
  EXPECT_EQ(Window->m_iNmeaPort, 9);
  EXPECT_EQ(Window->m_eTrackMode, TrackMode::Setup);
  EXPECT_THAT(NmeaPort.OpenedNumbers, ElementsAre(3, 9));
}

TEST_F(OptionsMain, APortThatIsClosedIsStoredWithoutTurningTrackingOff) {
  NmeaPort.OpensOtherwise = false;
  PilotPort.OpensOtherwise = false;
  Start(kOnPorts);
  Mode(5);
  Open("mnuOptionsInput");
  TypeIn("txtNmeaPort", "9");
  TypeIn("txtPilotPort", "10");
  ClickIn("cmdApply");
  EXPECT_EQ(Window->m_iNmeaPort, 9);
  EXPECT_EQ(Window->m_iPilotPort, 10);
  EXPECT_EQ(Window->m_eTrackMode, TrackMode::Manual);
}

TEST_F(OptionsMain, WithEqualNumbersTheOpenPortIsThatOfTheInstruments) {
  Start("[Nmea]\nPort=3\n[Pilot]\nPort=3\n");
  ASSERT_TRUE(NmeaPort.PortOpen());
  ASSERT_FALSE(PilotPort.PortOpen());
  Mode(5);
  Open("mnuOptionsOutput");
  TypeIn("txtPilotPort", "4");
  ClickIn("cmdApply");
  EXPECT_EQ(Window->m_eTrackMode, TrackMode::Setup);
  EXPECT_TRUE(PilotPort.PortOpen());
  EXPECT_EQ(PilotPort.CommPort(), 4);
}

TEST_F(OptionsMain, ATypedTimeMovesTheSimulatedBoat) {
  Start(kSimulated);
  tmrNmea.Tick();
  Open("mnuOptionsSimulate");
  TypeIn("txtSimulateTime", "1:00");
  ClickIn("cmdApply");
  // 7.2 nm on 275 towards a waypoint 12 nm away on 268.
  EXPECT_EQ(In<QLabel>("lblSimulateWaypointRng").text(), "4.9");
  EXPECT_EQ(In<QLabel>("lblSimulateWaypointBrg").text(), "-102");
  EXPECT_EQ(Window->m_fSimulateTime, 1.0F);
  ClickIn("cmdApply");
  EXPECT_EQ(In<QLabel>("lblSimulateWaypointRng").text(), "4.9");
}

TEST_F(OptionsMain, TheFrameDestroysItAndTheNextUseMakesItAfresh) {
  Start(kOnPorts);
  Open("mnuOptionsTrack");
  TypeIn("txtTrackBandwidth", "77");
  Loaded()->close();
  EXPECT_EQ(Loaded(), nullptr);
  Open("mnuOptionsTrack");
  EXPECT_EQ(In<QLineEdit>("txtTrackBandwidth").text(), "20");
}

TEST_F(OptionsMain, ACommandRightAfterTheCloseOpensANewOne) {
  Start(kOnPorts);
  Open("mnuOptionsTrack");
  Loaded()->close();
  Find<QAction>("mnuOptionsData").trigger();
  ASSERT_NE(Loaded(), nullptr);
  EXPECT_TRUE(Loaded()->isVisible());
}

TEST_F(OptionsMain, WhatTheWiresTellBetweenItsCloseAndItsEndGoesToANewOne) {
  Start(kOnPorts);
  Mode(5);
  Open("mnuOptionsOutput");
  ClickIn("optPilotListOn");
  Loaded()->close();
  NmeaPort.Receive("$WIMWV,x,R,8.0,N,A\r" + Winds("40", "60"));
  NmeaPort.Receive(Winds("41", "61"));
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  int dialogs = 0;
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    dialogs += dynamic_cast<frmOptions*>(widget) != nullptr ? 1 : 0;
  }
  EXPECT_EQ(dialogs, 1);
  EXPECT_FALSE(Loaded()->isVisible());
  EXPECT_TRUE(Lines("lstPilotData").empty());
  EXPECT_TRUE(In<QRadioButton>("OptPilotListOff").isChecked());
  EXPECT_EQ(In<QLabel>("lblPilotStatus").text(), "Running");
}

TEST_F(OptionsMain, CancelKeepsItsTextsForTheNextCommand) {
  Start(kOnPorts);
  Open("mnuOptionsTrack");
  TypeIn("txtTrackBandwidth", "77");
  ClickIn("cmdCancel");
  Open("mnuOptionsTrack");
  EXPECT_EQ(In<QLineEdit>("txtTrackBandwidth").text(), "77");
}

TEST_F(OptionsMain, TheDefaultsAreShownInADialogThatIsLoaded) {
  Start(kOnPorts);
  Open("mnuOptionsTrack");
  TypeIn("txtTrackBandwidth", "77");
  ClickIn("cmdApply");
  TypeIn("txtTrackDamping", "9");
  In<QTabWidget>("SSTab").setCurrentIndex(frmOptions::Input);
  Find<QAction>("mnuFileDefault").trigger();
  EXPECT_EQ(In<QLineEdit>("txtNmeaPort").text(), "5");
  EXPECT_EQ(In<QLineEdit>("txtTrackBandwidth").text(), "20");
  EXPECT_EQ(In<QLineEdit>("txtTrackDamping").text(), "4");
  EXPECT_FALSE(In<QPushButton>("cmdApply").font().bold());
  Loaded()->close();
  ASSERT_EQ(Loaded(), nullptr);
  Find<QAction>("mnuFileDefault").trigger();
  EXPECT_EQ(Loaded(), nullptr) << "nothing is loaded for it";
}

TEST_F(OptionsMain, AppearsInTheMiddleWithItsFrame) {
  Start(kOnPorts);
  Mode(5);
  NmeaPort.Receive(Winds("40", "60"));
  ASSERT_NE(Loaded(), nullptr) << "not shown yet";
  const QSize frame = Window->frameGeometry().size() - Window->size();
  ASSERT_GT(frame.height(), 0) << "a desktop with frames";
  FirstPlace first;
  Loaded()->installEventFilter(&first);
  Open("mnuOptionsInput");
  const QRect screen = Loaded()->screen()->geometry();
  const QSize spare = screen.size() - Loaded()->size() - frame;
  EXPECT_EQ(first.At, QPoint(spare.width() / 2, spare.height() / 2) + screen.topLeft());
  EXPECT_EQ(Loaded()->pos(), first.At);
}

TEST_F(OptionsMain, SaysWhatTrackWorksWithUntilTrackIsPressedAgain) {
  Start(kOnPorts);
  NmeaPort.Receive(Winds("40", "60"));
  Mode(7);
  Open("mnuOptionsTrack");
  EXPECT_EQ(In<QLabel>("lblTrackInUse").text(), "In use: 20 s, 4. Press Track to use what you apply.");
  TypeIn("txtTrackBandwidth", "33.5");
  TypeIn("txtTrackDamping", "2");
  ClickIn("cmdApply");
  ASSERT_EQ(Window->m_fTrackBandwidth, 33.5F);
  EXPECT_EQ(In<QLabel>("lblTrackInUse").text(), "In use: 20 s, 4. Press Track to use what you apply.");
  Mode(7);
  EXPECT_EQ(In<QLabel>("lblTrackInUse").text(), "In use: 33.5 s, 2. Press Track to use what you apply.");
  Mode(5);
  EXPECT_EQ(In<QLabel>("lblTrackInUse").text(), "");
}

TEST_F(OptionsMain, GoesWithTheMainWindow) {
  Start(kOnPorts);
  Open("mnuOptionsInput");
  Window->close();
  EXPECT_FALSE(Window->isVisible());
  EXPECT_FALSE(Loaded() != nullptr && Loaded()->isVisible());
  Window.reset();
  EXPECT_EQ(Loaded(), nullptr);
}

TEST_F(OptionsMain, WhatItStoresGoesToTheProfileAtTheClose) {
  Start(kOnPorts);
  Open("mnuOptionsTrack");
  TypeIn("txtTrackBandwidth", "33.5");
  EXPECT_EQ(ReadProfile(), kOnPorts);
  ClickIn("cmdOk");
  EXPECT_EQ(ReadProfile(), kOnPorts);
  Window->close();
  EXPECT_THAT(ReadProfile(), testing::HasSubstr("Bandwidth=33.5\n"));
}

}  // namespace
}  // namespace veerwatch
