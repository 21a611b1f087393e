// What leaves for the pilot by its profile, with all that the helm knows.

#include <string>

#include "helm/SettingsProfile.h"
#include "tests/helm/HelmFixture.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PilotProfiles : public HelmTest {
 protected:
  PilotProfiles() {
    m_settings.m_fAutoPilot = 100.0F;
    m_helm.Modes().TrackSetSetup();
    m_helm.Modes().TrackSetManual();
    Receive(kSpeed);
  }

  /// A wind, and what leaves then.
  std::string Wind() {
    Receive(kApparent);
    return m_pilotPort.TakeWritten();
  }

  static std::string Apb(const std::string& bearing, char kind) {
    const std::string text = bearing + "," + kind;
    return WithChecksum("$ECAPB,A,A,0.00,R,N,V,V," + text + ",1," + text + "," + text) + "\r\n";
  }
};

TEST_F(PilotProfiles, TrueApbWaitsForAVariationAndAddsIt) {
  m_settings.m_ePilotProfile = PilotProfile::TrueApb;
  m_view.Take();
  EXPECT_EQ(Wind(), "");
  EXPECT_THAT(m_view.Only({"OnOutputRefused", "OnPilotData", "OnPilotHeading"}),
              ElementsAre("OnOutputRefused True APB Needs the Variation"));
  EXPECT_EQ(Wind(), "");
  EXPECT_EQ(m_view.Count("OnOutputRefused"), 1U) << "told once";
  EXPECT_FALSE(m_helm.LastSentence().Sent);
  EXPECT_EQ(PilotRefusalText(m_helm.Now().Refused), "True APB Needs the Variation");
  Receive(kVariation);
  m_view.Take();
  EXPECT_EQ(Wind(), Apb("105.0", 'T'));
  EXPECT_THAT(m_view.Only({"OnOutputRefused", "OnPilotHeading"}),
              ElementsAre("OnOutputRefused ", "OnPilotHeading 100"));
}

TEST_F(PilotProfiles, AVariationOfAnHourAgoIsNotAdded) {
  m_settings.m_ePilotProfile = PilotProfile::TrueApb;
  Receive(kVariation);
  EXPECT_EQ(Wind(), Apb("105.0", 'T'));
  m_clock.Pass(3600000);
  EXPECT_EQ(Wind(), Apb("105.0", 'T'));
  m_clock.Pass(1);
  EXPECT_EQ(Wind(), "");
  EXPECT_EQ(PilotRefusalText(m_helm.Now().Refused), "True APB: Variation Older Than 1 h");
}

TEST_F(PilotProfiles, CompanionsLeaveInOneBundleAfterTheApb) {
  m_settings.m_ePilotProfile = PilotProfile::ApbAndRmb;
  Receive(kVariation);
  m_view.Take();
  Receive(kApparent);
  const std::string rmb = WithChecksum("$ECRMB,A,0.00,R,,1,,,,,10.0,105.0,,V");
  EXPECT_THAT(m_pilotPort.Written, ElementsAre(Apb("100.0", 'M') + rmb + "\r\n"));
  EXPECT_THAT(m_view.Only({"OnPilotData", "OnPilotHeading"}),
              ElementsAre("OnPilotData " + Sentence("100.0"), "OnPilotData " + rmb, "OnPilotHeading 100"));
}

TEST_F(PilotProfiles, OneBundleCountsAsOneForTheTurnAndTheAge) {
  m_settings.m_ePilotProfile = PilotProfile::ApbAndRmb;
  Receive(kVariation);
  const std::uint64_t before = m_helm.Pilot().Sent();
  Wind();
  EXPECT_EQ(m_helm.Pilot().Sent(), before + 1);
}

TEST_F(PilotProfiles, AVanePilotHoldsTheWindAndTrackOnlyShows) {
  m_settings.m_ePilotProfile = PilotProfile::Wind;
  m_helm.Modes().TrackSetTrack();
  m_settings.DesiredAngle[1] = 30.0F;
  m_view.Take();
  EXPECT_EQ(Wind(), WithChecksum("$ECVWR,045.0,R,10.5,N,5.4,M,19.4,K") + "\r\n" +
                        WithChecksum("$ECMWV,045.0,R,10.5,N,A") + "\r\n");
  Wind();
  EXPECT_EQ(m_settings.m_fAutoPilot, 100.0F) << "no bearing runs away from a boat that does not take it";
  EXPECT_EQ(m_settings.DesiredAngle[1], 30.0F);
  EXPECT_THAT(m_view.Only({"OnDelta"}), testing::Contains(testing::StartsWith("OnDelta 15 ")));
  EXPECT_EQ(m_view.Count("OnPilotHeading"), 0U);
  EXPECT_EQ(m_view.Count("OnPilotData"), 4U);
}

TEST_F(PilotProfiles, AVanePilotIsNotSaidNotToFollow) {
  m_settings.m_ePilotProfile = PilotProfile::Wind;
  for (int i = 0; i < 60; ++i) {
    Receive(kSpeed);
    Wind();
    m_clock.Pass(1000);
    m_timer.Tick();
  }
  EXPECT_EQ(m_view.Watches.back().Find(Condition::PilotNotFollowing), nullptr);
  m_settings.m_ePilotProfile = PilotProfile::MagneticApb;
  for (int i = 0; i < 60; ++i) {
    Receive(kSpeed);
    Wind();
    m_clock.Pass(1000);
    m_timer.Tick();
  }
  EXPECT_NE(m_view.Watches.back().Find(Condition::PilotNotFollowing), nullptr) << "the heading is 100 off";
}

TEST_F(PilotProfiles, WorksOnAfterTheDefaultsWereTaken) {
  m_settings.m_ePilotProfile = PilotProfile::Own;
  m_settings.m_sPilotOwnTalker = "GP";
  m_settings.m_sPilotOwnPoint = "FARAWY";
  m_settings.m_iPilotCadence = 1;
  EXPECT_THAT(Wind(), testing::StartsWith("$GPAPB"));
  SettingsDefault(m_settings);
  m_settings.m_iPilotPort = 6;
  m_settings.m_fAutoPilot = 100.0F;
  m_helm.Modes().TrackSetSetup();
  m_helm.Modes().TrackSetManual();
  Receive(kSpeed);
  EXPECT_EQ(Wind(), Apb("100.0", 'M'));
  EXPECT_EQ(Wind(), Apb("100.0", 'M')) << "with each wind";
  m_settings.m_ePilotProfile = PilotProfile::TrueApb;
  Receive(kVariation);
  EXPECT_EQ(Wind(), Apb("105.0", 'T'));
}

TEST_F(PilotProfiles, SetupForgetsWhatWasRefused) {
  m_settings.m_ePilotProfile = PilotProfile::TrueApb;
  Wind();
  m_helm.Modes().TrackSetSetup();
  EXPECT_EQ(m_helm.Now().Refused, PilotRefusal());
}

TEST_F(PilotProfiles, WhatThePilotSendsBackIsNoInput) {
  m_pilotPort.Receive(WithChecksum("$ECRMB,A,0.00,R,,1,,,,,10.0,105.0,,V") + "\r\n");
  m_pilotPort.Receive(WithChecksum("$IIMWV,170,R,40.0,N,A") + "\r\n");
  EXPECT_FALSE(m_helm.Data().WaypointValid);
  EXPECT_FALSE(m_helm.Data().WindApparentValid);
  EXPECT_THAT(m_pilotPort.TakeWritten(), IsEmpty());
}

}  // namespace
}  // namespace veerwatch
