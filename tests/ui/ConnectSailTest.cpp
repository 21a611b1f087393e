// From the first start to a boat that is steered by the true wind, by somebody who knows nothing but what
// stands on the screen: the real window on real ports, a simulated boat on a pseudo terminal with her compass
// and position on TCP.

#ifdef __unix__

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QtTest/QTest>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>

#include "app/PortMakerQt.h"
#include "app/frmMain.h"
#include "pilot/WireBoat.h"
#include "platform/PortNames.h"
#include "platform/SystemClock.h"
#include "platform/TimerQt.h"
#include "tests/support/FixedRandom.h"
#include "tests/support/ListedPorts.h"
#include "tests/support/Pty.h"
#include "tests/support/QueuedDialogs.h"
#include "tests/support/WaitQt.h"

namespace veerwatch {
namespace {

using testing::HasSubstr;

/// The boat: winds and speed go to the terminal, from which her pilot reads; compass and position to TCP.
class TwoWires {
 public:
  TwoWires() {
    m_boat.Set().CurrentSpeed = 0.0;
    EXPECT_TRUE(m_server.listen(QHostAddress::LocalHost));
    QObject::connect(&m_timer, &QTimer::timeout, [this] { Sail(); });
    m_timer.start(kBeat);
  }

  std::string Device() const { return m_terminal.Device(); }
  std::string Gateway() const { return "127.0.0.1:" + std::to_string(m_server.serverPort()); }
  const BoatState& State() const { return m_boat.State(); }
  void Shift(double degrees) { m_boat.Set().WindFrom += degrees; }
  const std::string& Heard() const { return m_heard; }

 private:
  static constexpr int kBeat = 100;  // [ms]

  void Sail() {
    while (QTcpSocket* caller = m_server.nextPendingConnection()) {
      m_callers.push_back(caller);
    }
    const std::string orders = m_terminal.Read();
    m_heard += orders;
    m_boat.Steer(orders);
    std::istringstream lines(m_boat.Step(0.001 * kBeat));
    for (std::string line; std::getline(lines, line);) {
      line += '\n';
      const bool other = line.find("HDG") != std::string::npos || line.find("RMC") != std::string::npos;
      if (!other) {
        m_terminal.Write(line);
        continue;
      }
      for (QTcpSocket* caller : m_callers) {
        caller->write(line.data(), static_cast<qint64>(line.size()));
      }
    }
  }

  Pty m_terminal;
  QTcpServer m_server;
  std::vector<QTcpSocket*> m_callers;
  WireBoat m_boat{BoatSettings(), 155.0, 1};
  std::string m_heard;
  QTimer m_timer;
};

class ConnectSail : public testing::Test {
 protected:
  TwoWires Boat;
  QTemporaryDir Folder;
  Profile Store;
  SystemClock Time;
  NamedPort NmeaPort{Store, PortMaker(Time), DeviceIsThere};
  NamedPort PilotPort{Store, PortMaker(Time), DeviceIsThere};
  TimerQt tmrNmea{QStringLiteral("tmrNmea")};
  TimerQt tmrUnload{QStringLiteral("tmrUnload")};
  TimerQt TimerTack{QStringLiteral("TimerTack")};
  TimerQt tmrPilot{QStringLiteral("tmrPilot"), Qt::PreciseTimer};
  FixedRandom Random;
  QueuedDialogs Dialogs;
  ListedPorts Finder;
  std::unique_ptr<frmMain> Window;
  int Steps = 0;  ///< clicks, and texts that were typed

  std::string ProfileFile() const { return Folder.filePath("Veerwatch.ini").toStdString(); }

  void Start() {
    Finder.Plugged = {{Boat.Device(), "Multiplexer", ""}};
    Window = std::make_unique<frmMain>(MainWindowParts{NmeaPort,
                                                       PilotPort,
                                                       tmrNmea,
                                                       tmrUnload,
                                                       TimerTack,
                                                       Time,
                                                       Random,
                                                       Dialogs,
                                                       Store,
                                                       ProfileFile(),
                                                       {},
                                                       {},
                                                       nullptr,
                                                       nullptr,
                                                       &Finder,
                                                       &tmrPilot,
                                                       nullptr,
                                                       PortMaker(Time)});
    tmrNmea.Ticks([this] { Window->tmrNmea_Timer(); });
    tmrPilot.Ticks([this] { Window->tmrPilot_Timer(); });
    Window->Form_Load();
    Window->show();
    Window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Window.get()));
  }

  // What stands on the screen, and what one does with it.

  static QString Plain(QString text) { return text.remove(QLatin1Char('&')); }

  /// The window in front: the one in which the user works.
  QWidget& Front() const {
    QWidget* front = QApplication::activeWindow();
    return front != nullptr ? *front : *Window;
  }
  template <class Control>
  static Control* Seen(QWidget& window, const QString& text) {
    for (Control* each : window.findChildren<Control*>()) {
      if (each->isVisible() && Plain(each->text()) == text) {
        return each;
      }
    }
    return nullptr;
  }
  void Click(const char* text) {
    auto* button = Seen<QAbstractButton>(Front(), QString::fromLatin1(text));
    ASSERT_NE(button, nullptr) << text;
    ASSERT_TRUE(button->isEnabled()) << text;
    ++Steps;
    const bool round = button->inherits("QRadioButton") || button->inherits("QCheckBox");
    QTest::mouseClick(button, Qt::LeftButton, {}, round ? QPoint(12, button->height() / 2) : QPoint());
  }
  /// Types over what stands in the box that a caption belongs to, and Enter.
  void Type(const char* caption, const std::string& text) {
    auto* label = Seen<QLabel>(Front(), QString::fromLatin1(caption));
    ASSERT_NE(label, nullptr) << caption;
    auto* box = qobject_cast<QLineEdit*>(label->buddy());
    ASSERT_NE(box, nullptr) << caption;
    ++Steps;
    QTest::mouseClick(box, Qt::LeftButton);
    QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(box, QString::fromStdString(text));
    QTest::keyClick(box, Qt::Key_Return);
  }
  /// A row of a list that begins and ends like that, and is ticked.
  bool Ticked(const QString& begins, const QString& holds) const {
    for (const QListWidget* list : Front().findChildren<QListWidget*>()) {
      for (int row = 0; row < list->count(); ++row) {
        const QListWidgetItem& item = *list->item(row);
        if (item.text().startsWith(begins) && item.text().contains(holds)) {
          return item.checkState() == Qt::Checked;
        }
      }
    }
    return false;
  }
  /// All rows of its lists.
  std::string Rows() const {
    std::string all;
    for (const QListWidget* list : Front().findChildren<QListWidget*>()) {
      for (int row = 0; row < list->count(); ++row) {
        all += list->item(row)->text().toStdString() + "\n";
      }
    }
    return all;
  }
  bool Reads(const char* text) const { return Seen<QLabel>(Front(), QString::fromLatin1(text)) != nullptr; }
};

TEST_F(ConnectSail, FromTheFirstStartToTheTrueWindByWhatStandsOnTheScreen) {
  Start();
  Click("Connect Your Boat...");
  ASSERT_TRUE(WaitFor([this] { return &Front() != Window.get() && Reads("1 of 5: Instruments"); }));
  Type("Other place:", Boat.Gateway());
  constexpr int kListens = 40000;
  ASSERT_TRUE(WaitFor(
      [this] {
        return Ticked(QStringLiteral("USB serial (Multiplexer), 4800: "), QStringLiteral("MWV R 1/s")) &&
               Ticked(QStringLiteral("TCP "), QStringLiteral("HDG 1/s"));
      },
      kListens))
      << Rows();
  Click("Next");
  ASSERT_TRUE(Reads("2 of 5: Values"));
  // What comes fills the page.
  ASSERT_TRUE(WaitFor([this] {
    return !Reads("no heading: no turns, and nothing shows whether the pilot follows") &&
           !Reads("no true wind: the apparent wind only");
  }));
  Click("Next");
  ASSERT_TRUE(Reads("3 of 5: Autopilot"));
  EXPECT_TRUE(Reads("One port for both ways: the instruments and the autopilot."));
  Click("Next");
  ASSERT_TRUE(Reads("4 of 5: How it steers"));
  Click("Next");
  ASSERT_TRUE(Reads("5 of 5: Ready"));
  EXPECT_FALSE(std::ifstream(ProfileFile()).good()) << "nothing is written before";
  Click("Save and go to Setup");
  // As a desktop does it, when the window in front has gone.
  Window->activateWindow();
  ASSERT_TRUE(WaitActive(*Window));
  std::ostringstream profile;
  profile << std::ifstream(ProfileFile()).rdbuf();
  EXPECT_THAT(profile.str(), HasSubstr(Boat.Device() + "?baud=4800, tcp://127.0.0.1:"));

  ASSERT_TRUE(WaitFor([this] { return Window->Record().Data().WindTrueValid && Window->Now().Heading; }));
  Type("AutoPilot Bearing", std::to_string(std::lround(Boat.State().Compass)));
  Click("Track True Wind Angle");
  Click("Manual");
  ASSERT_TRUE(WaitFor([this] { return Boat.Heard().find("$ECAPB,") != std::string::npos; }));
  Click("Track");
  EXPECT_EQ(Window->m_eTrackMode, TrackMode::Track);
  EXPECT_LE(Steps, 12);
  // The wind shifts, and she follows it.
  const double before = Boat.State().Compass;
  Boat.Shift(20.0);
  constexpr int kSails = 60000;
  EXPECT_TRUE(WaitFor(
      [this, before] {
        const double turned = std::remainder(Boat.State().Compass - before, 360.0);
        const double held = static_cast<double>(Window->DesiredAngle[2]);
        return turned > 15.0 && std::fabs(std::remainder(Boat.State().TrueAngle - held, 360.0)) < 6.0;
      },
      kSails))
      << Boat.State().Compass << " from " << before << ", true wind " << Boat.State().TrueAngle << " for "
      << Window->DesiredAngle[2];
  EXPECT_TRUE(Dialogs.Questions.empty()) << "no box came up";
}

}  // namespace
}  // namespace veerwatch

#endif
