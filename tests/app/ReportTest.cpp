#include "app/Report.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "app/ReportLog.h"
#include "app/WatchDiary.h"
#include "helm/Helm.h"
#include "tests/support/FixedRandom.h"
#include "tests/support/HandClock.h"
#include "tests/support/HandTimer.h"
#include "tests/support/ScriptedPort.h"
#include "tests/support/Sentences.h"

namespace veerwatch {
namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

/// A helm that hears what the test sends, and the report about it.
class ReportTest : public testing::Test {
 protected:
  ReportTest() {
    m_settings.m_iPilotPort = 6;
    m_settings.m_iNmeaPort = 5;
    m_timer.OnTick = [this] { m_helm.Tick(); };
    m_helm.Modes().TrackSetSetup();
  }

  void Hear(const std::string& line) { m_port.Receive(line + "\r\n"); }
  void Good(const std::string& body) { Hear(WithChecksum(body)); }
  void Seconds(int count) {
    for (int i = 0; i < count; ++i) {
      m_clock.Pass(1000);
      m_timer.Tick();
    }
  }
  std::string Text(const Profile& profile) const {
    ReportFacts facts{
        m_clock.Now().Wall,    "0.1",          "Qt 6", "Debian, linux 6, x86_64", profile, m_helm.Now(), {},
        m_log.SentenceLines(), m_diary.Lines()};
    return ReportText(facts);
  }

  Settings m_settings;
  ScriptedPort m_port;
  ScriptedPort m_pilot;
  HandTimer m_timer;
  HandClock m_clock;
  FixedRandom m_random;
  Helm m_helm{m_settings, m_port, m_pilot, m_timer, m_clock, m_random};
  ReportLog m_log{m_helm.Observers(), m_clock};
  WatchDiary m_diary{m_helm.Observers(), m_clock};
};

TEST_F(ReportTest, CountsTheSentencesOfTheLastMinutes) {
  for (int second = 0; second < 60; ++second) {
    Good("$WIMWV,045.0,R,10.5,N,A");
    Good("$WIMWV,045.0,R,10.5,N,A");
    Good("$SDDBT,10.0,f,3.0,M,1.6,F");
    Seconds(1);
  }
  Hear("$WIMWV,045.0,R,10.5,N,A*00");
  EXPECT_THAT(m_log.SentenceLines(), Contains("WIMWV 121 lines, 2.0 a second, 120 used, 1 wrong"));
  EXPECT_THAT(m_log.SentenceLines(), Contains("SDDBT 60 lines, 1.0 a second, 0 used, 0 wrong"));
  Seconds(9 * 60 + 30);
  Good("$SDDBT,10.0,f,3.0,M,1.6,F");
  Seconds(60);
  EXPECT_THAT(m_log.SentenceLines(), testing::ElementsAre(HasSubstr("SDDBT 1 lines, 0.0 a second")))
      << "the rest is older than ten minutes";
  Seconds(3600);
  EXPECT_THAT(m_log.SentenceLines(), IsEmpty());
}

TEST_F(ReportTest, KeepsNothingOfWhatStandsInASentence) {
  for (const std::string line :
       {"$BOATY,x", "$MARYS-IPAD,1", "ssh ann@harbour", "$PSRFX,harbour", "$GP1234567,",
        "!AIVDM,1,1,,A,13u?,0*00", "$", "", "$GPRMCX,1", "$GPQQQ,1"}) {
    Hear(line);
  }
  EXPECT_THAT(m_log.SentenceLines(),
              testing::ElementsAre(HasSubstr("AIVDM 1 lines"), HasSubstr("other 9 lines")));
}

TEST_F(ReportTest, MoreTypesThanThereIsRoomForAreOthers) {
  for (char a = 'A'; a <= 'Z'; ++a) {
    for (char b = 'A'; b <= 'Z'; ++b) {
      Hear(std::string("$") + a + b + "GGA,1");
    }
  }
  const auto lines = m_log.SentenceLines();
  EXPECT_EQ(lines.size(), 64U);
  EXPECT_THAT(lines, Contains(HasSubstr("other 613 lines")));
}

TEST_F(ReportTest, TellsTheSettingsThatAreNoDefaults) {
  Profile profile;
  profile.ProfileSet("Track", "Bandwidth", "33");
  profile.ProfileSet("Track", "Damping", "4");
  profile.ProfileSet("Pilot", "Profile", "Heading command HSC");
  profile.ProfileSet("Pilot", "Own Point", "54031");
  profile.ProfileSet("Watch", "Alarm Command", "/home/ann/bin/siren --boat Mary");
  const std::string text = Text(profile);
  EXPECT_THAT(text, HasSubstr("Track / Bandwidth = 33\n"));
  EXPECT_THAT(text, HasSubstr("Pilot / Profile = Heading command HSC\n"));
  EXPECT_THAT(text, HasSubstr("Watch / Alarm Command = <name>\n"));
  EXPECT_THAT(text, HasSubstr("Pilot / Own Point = <name>\n")) << "it may be called anything, a number too";
  EXPECT_THAT(text, Not(HasSubstr("Damping")));
  for (const char* caption :
       {"Program\nVeerwatch 0.1\n", "\nPorts\n", "\nSentences of the last ten minutes\nnone\n",
        "\nWhat the watch found in the last day\n"}) {
    EXPECT_THAT(text, HasSubstr(caption));
  }
}

TEST_F(ReportTest, HoldsNoPositionAndNoName) {
  Profile profile;
  profile.ProfileSet("Ports", "5",
                     "tcp://mary-boat.lan:10110, udp://192.168.77.13:2000, /home/ann/tty?baud=38400, "
                     "file:///home/ann/log.nmea, /dev/serial/by-id/usb-marys-gps");
  profile.ProfileSet("Ports", "6", "tcp://mary-pilot.lan:2000");
  profile.ProfileSet("Pilot", "Own Point", "MARYS");
  profile.ProfileSet("Polar Data", "File 1", "/home/ann/mary.pol");
  profile.ProfileSet("Watch", "Alarm Command", "ssh ann@mary-boat.lan siren");
  m_port.OpensOtherwise = false;
  for (int second = 0; second < 30; ++second) {
    Good("$GPRMC,091523,A,5403.127,N,01008.456,E,5.20,157.0,221126,3.0,E");
    Good("$GPGLL,5403.127,N,01008.456,E,091523,A");
    Good("$GPGGA,091523,5403.127,N,01008.456,E,1,08,0.9,5.0,M,45.0,M,,");
    Good("$GPRMB,A,0.00,R,START,MARYS,5404.987,N,01009.321,E,10.00,158.7,4.7,V");
    Hear("$5403.127,N,01008.456,E");
    Hear("mary-boat.lan 5403.127N 01008.456E");
    Seconds(1);
  }
  HelmNow now = m_helm.Now();
  now.InputFailure = "tcp://mary-boat.lan:10110: Host mary-boat.lan not found for ann at 192.168.77.13";
  now.OutputFailure = "mary-pilot.lan: Connection refused";
  const ReportFacts facts{m_clock.Now().Wall,    "0.1",          "", "", profile, now, {},
                          m_log.SentenceLines(), m_diary.Lines()};
  const std::string text = ReportText(facts);
  for (const char* secret :
       {"5403", "127",  "1008", "456", "5404",  "987",  "321",   "mary",     "Mary",    "MARY",
        "lan:", ".lan", "192",  "168", "77.13", "ann@", "/home", "home/ann", "harbour", "marys"}) {
    EXPECT_THAT(text, Not(HasSubstr(secret))) << text;
  }
  EXPECT_THAT(text, HasSubstr("GPRMC 30 lines"));
  EXPECT_THAT(
      text,
      HasSubstr("input: 5, tcp://<host>:10110, udp://<host>:2000, device <name>?baud=38400, file <name>, "
                "device <name>?baud=4800"));
  EXPECT_THAT(text, HasSubstr("Connection refused"));
}

TEST(BlankedEndpoints, KeepsWhatNamesNobody) {
  EXPECT_EQ(BlankedEndpoints("/dev/ttyUSB0?baud=38400"), "/dev/ttyUSB0?baud=38400");
  EXPECT_EQ(BlankedEndpoints("/dev/ttyS11"), "/dev/ttyS11?baud=4800");
  EXPECT_EQ(BlankedEndpoints("/dev/ttymary"), "device <name>?baud=4800");
  EXPECT_EQ(BlankedEndpoints("/dev/ttyUSB5403127"), "device <name>?baud=4800");
  EXPECT_EQ(BlankedEndpoints("tcp://127.0.0.1:10110?silence=20"), "tcp://127.0.0.1:10110?silence=20");
  EXPECT_EQ(BlankedEndpoints("tcp://[::1]:10110"), "tcp://[::1]:10110");
  EXPECT_EQ(BlankedEndpoints("tcp-listen://:10110"), "tcp-listen://:10110");
  EXPECT_EQ(BlankedEndpoints("tcp://[2001:db8::7]:1"), "tcp://<host>:1");
  EXPECT_EQ(BlankedEndpoints("tcp://mary:x"), "not understood");
}

TEST(BlankedFailure, KeepsOnlyPlainWords) {
  EXPECT_EQ(BlankedFailure("No such file or directory", "/dev/ttyUSB0"), "No such file or directory");
  EXPECT_EQ(BlankedFailure("mary: Connection refused.", "tcp://mary:1"), "<name> Connection refused.");
  EXPECT_EQ(BlankedFailure("mary: host not found, next try in 16 s", "tcp://mary:1"),
            "<name> host not found, next try in 16 s");
  EXPECT_EQ(BlankedFailure("54.03 540 N", "/dev/ttyUSB0"), "<name> <name> N");
  EXPECT_EQ(BlankedFailure("/home/ann/x: Permission denied", "/dev/ttyUSB0"), "<name> Permission denied");
}

TEST(BlankedFailure, KeepsTheLettersOfEveryLanguage) {
  EXPECT_EQ(BlankedFailure("mary: der Rechner antwortet nicht, nächster Versuch in 16 s", "tcp://mary:1"),
            "<name> der Rechner antwortet nicht, nächster Versuch in 16 s");
  EXPECT_EQ(BlankedFailure("54°03 5403°", "/dev/ttyUSB0"), "<name> <name>");
}

}  // namespace
}  // namespace veerwatch
