// Choosing where a port leads.

#include <gmock/gmock.h>

#include <QListWidget>

#include "platform/PortNames.h"
#include "tests/support/WaitQt.h"
#include "tests/ui/OptionsTester.h"

namespace veerwatch {
namespace {

using testing::HasSubstr;

class OptionsDevice : public OptionsTester {
 public:
  void SetUp() override {
    Main.m_iNmeaPort = 1;
    Main.m_iPilotPort = 2;
    NamePort(Store, 1, "/dev/ttyS5");
    NamePort(Store, 2, "tcp://pilot:2000");
  }

  void Open(const std::string& button) {
    Click(button);
    ASSERT_TRUE(Asked());
  }
  bool Asked() const { return DialogOrNull() != nullptr; }
  QDialog* DialogOrNull() const {
    auto* dialog = Window->findChild<QDialog*>(QStringLiteral("dlgDevice"));
    return dialog != nullptr && dialog->isVisible() ? dialog : nullptr;
  }
  std::vector<std::string> Rows() const {
    std::vector<std::string> rows;
    const auto& list = Find<QListWidget>("lstDevices");
    for (int row = 0; row < list.count(); ++row) {
      rows.push_back(list.item(row)->text().toStdString());
    }
    return rows;
  }
  void Choose(const std::string& text) {
    Find<QLineEdit>("txtDevice").setText(QString::fromStdString(text));
    Find<QPushButton>("cmdDeviceOk").click();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
};

TEST_F(OptionsDevice, SaysWhereThePortsLead) {
  Start(frmOptions::Input);
  EXPECT_EQ(Text("lblNmeaDevice"), "/dev/ttyS5");
  EXPECT_EQ(Text("lblPilotDevice"), "tcp://pilot:2000");
  Type("txtNmeaPort", "2");
  EXPECT_EQ(Text("lblNmeaDevice"), "tcp://pilot:2000");
  Type("txtNmeaPort", "x");
  EXPECT_EQ(Text("lblNmeaDevice"), "");
  EXPECT_FALSE(Find<QPushButton>("cmdNmeaDevice").isEnabled());
}

TEST_F(OptionsDevice, ListsWhatIsPluggedInAndNamedAndFollowsThePlugs) {
  Finder.Plugged = {{"/dev/ttyUSB0", "USB UART", "A50285"}};
  Start(frmOptions::Input);
  Open("cmdNmeaDevice");
  EXPECT_THAT(Rows(), testing::ElementsAre("/dev/ttyUSB0 - USB UART, serial number A50285",
                                           "Port 1: /dev/ttyS5", "Port 2: tcp://pilot:2000"));
  EXPECT_EQ(Entry("txtDevice"), "/dev/ttyS5");
  Find<QLineEdit>("txtDevice").setText(QStringLiteral("/dev/half"));
  Finder.Plugged.clear();
  EXPECT_TRUE(WaitFor([this] { return Rows().size() == 2; }));
  Finder.Plugged = {{"/dev/ttyUSB1", "", ""}};
  EXPECT_TRUE(WaitFor([this] { return Rows().size() == 3 && Rows()[0] == "/dev/ttyUSB1"; }));
  EXPECT_EQ(Entry("txtDevice"), "/dev/half") << "what is typed stays";
}

TEST_F(OptionsDevice, ARowFillsTheLineAndMistakesAreToldAsOneTypes) {
  Finder.Plugged = {{"/dev/ttyUSB0", "USB UART", "A50285"}};
  Start(frmOptions::Input);
  Open("cmdNmeaDevice");
  Find<QListWidget>("lstDevices").setCurrentRow(0);
  EXPECT_EQ(Entry("txtDevice"), "/dev/ttyUSB0");
  EXPECT_TRUE(Find<QPushButton>("cmdDeviceOk").isEnabled());
  QTest::keyClicks(&Find<QLineEdit>("txtDevice"), QStringLiteral("?baud=38"));
  EXPECT_THAT(Text("lblDeviceRemark"), HasSubstr("\"38\" is no baud rate"));
  EXPECT_FALSE(Find<QPushButton>("cmdDeviceOk").isEnabled());
  QTest::keyClicks(&Find<QLineEdit>("txtDevice"), QStringLiteral("400"));
  EXPECT_EQ(Text("lblDeviceRemark"), "/dev/ttyUSB0 is not there now");
  EXPECT_TRUE(Find<QPushButton>("cmdDeviceOk").isEnabled());
}

TEST_F(OptionsDevice, NothingIsWrittenBeforeApply) {
  Ports.Nmea = true;
  Start(frmOptions::Input);
  Open("cmdNmeaDevice");
  const std::string before = Store.Content();
  Main.Calls.clear();
  Choose("udp://:10110");
  EXPECT_FALSE(Asked());
  EXPECT_EQ(Text("lblNmeaDevice"), "udp://:10110");
  EXPECT_TRUE(Bold());
  EXPECT_EQ(Store.Content(), before);
  EXPECT_THAT(Main.Calls, testing::IsEmpty());
  Click("cmdApply");
  EXPECT_EQ(Store.Text("Ports", "1"), "udp://:10110");
  EXPECT_EQ(Store.Text("Ports", "2"), "tcp://pilot:2000");
  EXPECT_THAT(Main.Calls, testing::SizeIs(2));
  EXPECT_FALSE(Bold());
}

TEST_F(OptionsDevice, WhatAnotherPortLeadsToTakesItsNumber) {
  Start(frmOptions::Output);
  Open("cmdPilotDevice");
  Choose("/dev/ttyS5");
  EXPECT_EQ(Entry("txtPilotPort"), "1");
  EXPECT_EQ(Text("lblPilotDevice"), "/dev/ttyS5");
  const std::string before = Store.Content();
  Click("cmdApply");
  EXPECT_EQ(Store.Content(), before);
  EXPECT_EQ(Main.m_iPilotPort, 1);
}

TEST_F(OptionsDevice, BothPagesShowWhatWasChosenForTheNumberTheyShare) {
  Main.m_iPilotPort = 1;
  Start(frmOptions::Input);
  Open("cmdNmeaDevice");
  Choose("tcp://boat:10110");
  EXPECT_EQ(Text("lblPilotDevice"), "tcp://boat:10110");
}

TEST_F(OptionsDevice, TheDialogGoesWithItsWindowAndCancelChangesNothing) {
  Start(frmOptions::Input);
  Open("cmdNmeaDevice");
  EXPECT_EQ(DialogOrNull()->windowModality(), Qt::WindowModal);
  Find<QLineEdit>("txtDevice").setText(QStringLiteral("udp://:10110"));
  Window->hide();
  EXPECT_FALSE(Asked());
  EXPECT_EQ(Text("lblNmeaDevice"), "/dev/ttyS5");
}

}  // namespace
}  // namespace veerwatch
