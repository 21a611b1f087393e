// What a wind brings for the autopilot is with the system before anything is shown for it.

#include "helm/Helm.h"
#include "tests/support/FixedRandom.h"
#include "tests/support/HandClock.h"
#include "tests/support/HandTimer.h"
#include "tests/support/ScriptedPort.h"
#include "tests/support/Sentences.h"
#include "tests/ui/serial/SerialPortQtFixture.h"

namespace veerwatch {
namespace {

class SentenceFirst : public SerialPortQtTest, public HelmObserver {
 protected:
  void OnPolarUpdate(TrackMode /*mode*/, const InstrumentData& /*data*/) override {
    SentBefore.push_back(m_pty.Read());
  }

  std::vector<std::string> SentBefore;
};

TEST_F(SentenceFirst, LeavesBeforeThePolarIsUpdated) {
  Settings settings;
  settings.m_iPilotPort = 1;
  settings.m_iNmeaPort = 2;
  ScriptedPort nmeaPort;
  HandTimer timer;
  HandClock clock;
  FixedRandom random;
  Helm helm(settings, nmeaPort, m_port, timer, clock, random);
  const HelmObservers::Membership told = helm.Observers().Join(*this);
  helm.Modes().TrackSetSetup();
  nmeaPort.Receive(WithChecksum("$GPVTG,,T,123.0,M,6.0,N,,K") + "\r\n");
  nmeaPort.Receive(WithChecksum("$IIMWV,045,R,14.0,N,A") + "\r\n");
  helm.Modes().TrackSetManual();
  SentBefore.clear();
  for (const char* bearing : {"100.0", "110.0", "120.0"}) {
    helm.Loop().SetAutoPilot(std::stod(bearing));
    nmeaPort.Receive(WithChecksum("$IIMWV,045,R,14.0,N,A") + "\r\n");
    QCoreApplication::processEvents();
    ASSERT_FALSE(SentBefore.empty());
    EXPECT_NE(SentBefore.back().find(bearing), std::string::npos) << SentBefore.back();
  }
  EXPECT_EQ(SentBefore.size(), 3U);
}

}  // namespace
}  // namespace veerwatch
