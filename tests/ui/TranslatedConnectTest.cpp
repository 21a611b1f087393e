// Every text of the assistant goes through the translation: its pages, what it says of candidates that bring
// nothing, its questions, and what it would write.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QtTest/QTest>

#include "tests/ui/ConnectTester.h"
#include "tests/ui/TextWalk.h"

namespace veerwatch {
namespace {

class TranslatedConnect : public ConnectTester {
 public:
  TextWalk Walk;

  ~TranslatedConnect() override { delete Window; }

  void LookAtPages() {
    for (int page = 0; page < 5; ++page) {
      Look();
      Walk.LookAtAll();
      if (page < 4) {
        Next(1);
      }
    }
  }
  void Pass(int seconds) {
    for (int second = 0; second < seconds; ++second) {
      Rig.Time.Pass(1000);
      Look();
      Walk.LookAtAll();
    }
  }
};

TEST_F(TranslatedConnect, IsEveryPage) {
  Open();
  Walk.LookAtAll();
  HearAll();
  LookAtPages();
  EXPECT_EQ(Walk.Found(), "");
  EXPECT_GT(Walk.Looked(), 800);
}

TEST_F(TranslatedConnect, IsEveryPageWhereNothingComes) {
  Open();
  Pass(25);
  LookAtPages();
  EXPECT_EQ(Walk.Found(), "");
}

TEST_F(TranslatedConnect, IsWhatWouldBeWrittenOfEverythingThatCanBeChosen) {
  Open();
  HearAll();
  Next(1);
  for (const char* each : {"cmdConnectVane", "cmdConnectLog", "cmdConnectCompass"}) {
    Click(each);
  }
  Next(1);
  auto& profile = Find<QComboBox>("cmbPilotProfile");
  for (int i = 0; i < profile.count(); ++i) {
    profile.setCurrentIndex(i);
    Look();
    Walk.LookAtAll();
  }
  QTest::mouseClick(&Find<QAbstractButton>("chkPilotInvalidWhenLost"), Qt::LeftButton, {}, QPoint(8, 8));
  Find<QComboBox>("cmbPilotCadence").setCurrentIndex(3);
  Find<QComboBox>("cmbPilotOwnBearing").setCurrentIndex(1);
  Next(2);
  Walk.LookAtAll();
  EXPECT_EQ(Walk.Found(), "");
}

TEST_F(TranslatedConnect, IsWhatGoesWrong) {
  Rig.Script = [](const std::string& endpoint, ScriptedPort& port) {
    port.OpensOtherwise = endpoint.find("udp") == std::string::npos;
    port.Complaint = endpoint.find("2000") != std::string::npos ? Tr("connecting") : "";
    port.Noisy = endpoint.find("ttyUSB") != std::string::npos;
  };
  Open();
  Walk.Allow("Gate");
  Reader.Asked("=;e;IPv4;Gate;_nmea-0183._tcp;local;g.local;10.0.0.9;1456;\n");
  Find<QLineEdit>("txtConnectHost").setText(QStringLiteral("10.0.0.7"));
  Click("cmdConnectListen");
  Rig.Ports.at("tcp://localhost:10110")->Receive("$XX\r\n+++\r\n");
  Pass(3);
  Device().Lose();
  Pass(22);
  EXPECT_EQ(Walk.Found(), "");
}

TEST_F(TranslatedConnect, IsTheSameWindOnTwoCandidates) {
  Open();
  for (int second = 0; second < 12; ++second) {
    const std::string wind = Sentence("IIMWV,35" + std::to_string(second % 10) + ",R,10,N,A");
    Device().Receive(wind);
    Rig.Ports.at("tcp://localhost:10110")->Receive(wind);
    Pass(1);
  }
  EXPECT_EQ(Walk.Found(), "");
}

TEST_F(TranslatedConnect, IsTheTestOfThePilot) {
  Open();
  HearAll();
  Next(2);
  Find<QComboBox>("cmbConnectPilot").setEditText(QStringLiteral("tcp://10.0.0.9:x"));
  Walk.LookAtAll();
  Find<QComboBox>("cmbConnectPilot").setEditText(QStringLiteral("tcp://10.0.0.9:2000"));
  Main.m_eTrackMode = TrackMode::Manual;
  Click("cmdPilotTest");
  Walk.LookAtAll();
  Main.m_eTrackMode = TrackMode::Setup;
  Click("cmdPilotTest");
  Walk.LookAtAll();
  Main.m_eTrackMode = TrackMode::Manual;
  Main.Answer.Mode = TrackMode::Manual;
  Main.Answer.Hand = PilotHand::User;
  Look();
  Walk.LookAtAll();
  Main.Answer.InputStarted = true;
  Main.Answer.InputOpen = true;
  Main.Answer.OutputOpen = true;
  Main.Answer.Heading = 100.0F;
  Look();
  ASSERT_EQ(Dialogs.Questions.size(), 1U);
  Walk.LookAt(Dialogs);
  EXPECT_EQ(Walk.Found(), "");
}

}  // namespace
}  // namespace veerwatch
