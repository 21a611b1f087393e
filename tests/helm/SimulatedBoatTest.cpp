// The simulator's boat: the program steers her, and her pilot reads nothing but its sentences.
#include "helm/SimulatedBoat.h"

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

#include "control/PilotTest.h"
#include "platform/Random.h"
#include "tests/helm/HelmFixture.h"

namespace veerwatch {
namespace {

class SimulatedBoatTest : public HelmTest {
 protected:
  SimulatedBoatTest() {
    m_settings.m_bSimulate = true;
    m_settings.m_eSimulateModel = SimulateModel::Boat;
    m_settings.m_fSimulateTrueWindAngle = 100.0F;
    m_settings.m_fSimulateCompassOffset = 4.0F;
    m_settings.m_fNmeaTrueWindAverage = 2.0F;
    m_settings.m_fTrackBandwidth = 20.0F;
    m_settings.m_fTrackDamping = 4.0F;
    m_settings.m_eTrackMethod = TrackMethod::Direction;
  }

  void Sail(int seconds) {
    for (int second = 0; second < seconds; ++second) {
      m_clock.Pass(1000);
      m_timer.Tick();
    }
  }

  /// A minute in Setup, then Manual.
  void Begin() {
    m_helm.Modes().TrackSetSetup();
    Sail(60);
    m_helm.Modes().TrackSetManual();
    Sail(10);
  }

  double Heading() const { return static_cast<double>(m_helm.Data().Heading); }
  FollowVerdict Follow() const { return m_helm.Now().Watch.Follow; }
};

double Between(double a, double b) { return std::remainder(a - b, 360.0); }

TEST_F(SimulatedBoatTest, ASteadyBoatIsTheDefault) {
  EXPECT_EQ(Settings().m_eSimulateModel, SimulateModel::Steady);
  EXPECT_FALSE(Settings().SimulatesBoat());
}

TEST_F(SimulatedBoatTest, LiesOnTheBearingOfTheProfileUntilSheIsTold) {
  Begin();
  EXPECT_NEAR(Between(Heading(), 40.0), 0.0, 12.0);
  EXPECT_TRUE(m_helm.Data().WindTrueValid);
  EXPECT_TRUE(m_helm.Data().VariationValid);
  EXPECT_GT(m_helm.Data().BoatSpeed, 2.0F);
  EXPECT_FALSE(m_nmeaPort.PortOpen()) << "no port is needed";
  EXPECT_FALSE(m_pilotPort.PortOpen());
}

TEST_F(SimulatedBoatTest, FollowsABearingInEachProfileThatHasOne) {
  Begin();
  double bearing = 40.0;
  for (const PilotProfile profile : {PilotProfile::MagneticApb, PilotProfile::TrueApb,
                                     PilotProfile::ApbAndRmb, PilotProfile::Hsc, PilotProfile::Own}) {
    m_settings.m_ePilotProfile = profile;
    bearing = bearing > 60.0 ? 40.0 : 90.0;
    m_helm.UserSteersTo(bearing);
    Sail(60);
    EXPECT_NEAR(Between(Heading(), bearing), 4.0, 8.0) << static_cast<int>(profile);
    EXPECT_EQ(Follow(), FollowVerdict::Follows) << static_cast<int>(profile);
  }
}

TEST_F(SimulatedBoatTest, TrackHoldsTheTrueWindOverGustsShiftsAndSea) {
  m_settings.DesiredAngle[2] = 60.0F;
  m_helm.Track(TrackSide::True);
  Begin();
  m_helm.Modes().TrackSetTrack();
  ASSERT_EQ(m_settings.m_eTrackMode, TrackMode::Track);
  const auto held = static_cast<double>(m_settings.DesiredAngle[2]);
  const double before = Heading();
  m_settings.m_fSimulateTrueWindAngle += 40.0F;
  Sail(180);
  EXPECT_NEAR(Between(Heading(), before), 40.0, 12.0) << "a boat that does not turn loses the angle";
  double sum = 0.0;
  double turned = 0.0;
  constexpr int kSeconds = 600;
  for (int second = 0; second < kSeconds; ++second) {
    const double last = Heading();
    Sail(1);
    sum += std::fabs(Between(static_cast<double>(m_helm.Data().WindAngleTrue), held));
    turned += std::fabs(Between(Heading(), last));
  }
  EXPECT_LT(sum / kSeconds, 6.0);
  EXPECT_GT(turned / kSeconds, 0.1) << "a boat that never moves would hold anything";
  EXPECT_EQ(Follow(), FollowVerdict::Follows);
}

TEST_F(SimulatedBoatTest, APilotThatReadsNoneOfTheSentencesStandsStillAndIsFound) {
  m_settings.m_eSimulatePilot = PilotReads::Hsc;
  Begin();
  const double before = Heading();
  m_helm.UserSteersTo(120.0);
  Sail(45);
  EXPECT_NEAR(Between(Heading(), before), 0.0, 12.0);
  EXPECT_EQ(Follow(), FollowVerdict::DoesNotFollow);
  EXPECT_NE(m_helm.Now().Watch.Find(Condition::PilotNotFollowing), nullptr);
  m_settings.m_ePilotProfile = PilotProfile::Hsc;
  Sail(60);
  EXPECT_NEAR(Between(Heading(), 120.0), 4.0, 8.0);
  EXPECT_EQ(Follow(), FollowVerdict::Follows);
}

TEST_F(SimulatedBoatTest, AVaneModePilotTurnsWithTheWind) {
  m_settings.m_ePilotProfile = PilotProfile::Wind;
  Begin();
  Sail(120);
  const double before = Heading();
  m_settings.m_fSimulateTrueWindAngle += 40.0F;
  Sail(180);
  EXPECT_NEAR(Between(Heading(), before), 40.0, 12.0);
}

/// Tries the pilot as the options do.
class TriedPilot final : private HelmObserver {
 public:
  explicit TriedPilot(Helm& helm) : m_helm(helm), m_told(helm.Observers().Join(*this)) {}

  PilotTestResult Result(HandClock& clock, HandTimer& timer, float bearing) {
    m_now = clock.Now().Steady;
    m_test.Begin(bearing, m_now);
    while (m_test.Runs()) {
      clock.Pass(1000);
      m_now = clock.Now().Steady;
      timer.Tick();
      m_test.Tick(m_now);
      m_helm.TurnSteersTo(m_test.Bearing());
    }
    return m_test.Result();
  }

 private:
  void OnHeading(float heading) override { m_test.Heading(heading, m_now); }

  Helm& m_helm;
  PilotTest m_test;
  std::int64_t m_now = 0;
  HelmObservers::Membership m_told;
};

TEST_F(SimulatedBoatTest, HerPilotCanBeTested) {
  Begin();
  Sail(120);
  const PilotTestResult follows = TriedPilot(m_helm).Result(m_clock, m_timer, m_settings.m_fAutoPilot);
  EXPECT_EQ(follows.Verdict, FollowVerdict::Follows);
  ASSERT_TRUE(follows.Lag);
  EXPECT_GT(*follows.Lag, 1.0);
  EXPECT_LT(*follows.Lag, 12.0);
  m_settings.m_eSimulatePilot = PilotReads::Nothing;
  const PilotTestResult deaf = TriedPilot(m_helm).Result(m_clock, m_timer, m_settings.m_fAutoPilot);
  EXPECT_EQ(deaf.Verdict, FollowVerdict::DoesNotFollow);
}

TEST_F(SimulatedBoatTest, BeginsAnewWithTheInput) {
  Begin();
  m_helm.UserSteersTo(200.0);
  Sail(60);
  m_helm.Modes().TrackSetOff();
  m_settings.m_fAutoPilot = 10.0F;
  m_helm.Modes().TrackSetSetup();
  Sail(1);
  EXPECT_NEAR(Between(Heading(), 10.0), 0.0, 8.0);
}

TEST_F(SimulatedBoatTest, SailsWhateverTheSettingsHold) {
  constexpr float kMost = std::numeric_limits<float>::max();
  for (const float value : {kMost, -kMost, 0.0F}) {
    for (float Settings::*number :
         {&Settings::m_fSimulateBoatSpeed, &Settings::m_fSimulateCompassOffset,
          &Settings::m_fSimulateNoiseAngle, &Settings::m_fSimulateTrueWindAngle,
          &Settings::m_fSimulateTrueWindSpeed, &Settings::m_fSimulateVariation,
          &Settings::m_fSimulateWaypointBearing, &Settings::m_fSimulateWaypointRange,
          &Settings::m_fSimulatePilotLag, &Settings::m_fSimulateGusts, &Settings::m_fSimulateShifts,
          &Settings::m_fSimulateLeeway}) {
      m_settings.*number = value;
    }
    m_helm.Modes().TrackSetOff();
    Begin();
    const InstrumentData& data = m_helm.Data();
    for (const float shown :
         {data.Heading, data.BoatSpeed, data.WindAngleApparent, data.WindSpeedApparent, data.WindAngleTrue,
          data.WindSpeedTrue, data.WaypointRange, data.WaypointBearing}) {
      ASSERT_TRUE(std::isfinite(shown)) << value;
    }
  }
}

/// Headings of a minute with the random numbers `numbers` and the seed `seed` of the settings.
std::string Passage(std::uint64_t numbers, std::int16_t seed = 0) {
  Settings settings;
  settings.m_iSimulateSeed = seed;
  settings.m_bSimulate = true;
  settings.m_eSimulateModel = SimulateModel::Boat;
  InstrumentRecord record(settings);
  SeededRandom random(numbers);
  SimulatedBoat boat(settings, record, random);
  std::string all;
  for (int second = 0; second < 60; ++second) {
    boat.Tick({second * 1000, 0});
    all +=
        std::to_string(record.Data().Heading) + " " + std::to_string(record.Data().WindAngleApparent) + "\n";
  }
  return all;
}

TEST(SimulatedBoat, TheSameSeedSailsTheSame) {
  EXPECT_EQ(Passage(1), Passage(1));
  EXPECT_NE(Passage(1), Passage(2));
}

TEST(SimulatedBoat, ASeedOfTheSettingsBringsTheSameGustsAtEachStart) {
  EXPECT_EQ(Passage(1, 7), Passage(2, 7));
  EXPECT_NE(Passage(1, 7), Passage(1, 8));
  EXPECT_NE(Passage(1, 7), Passage(1, 0));
}

TEST(SimulatedBoat, TheWindOfASeedIsTheSameHoweverSheIsSteered) {
  Settings settings;
  settings.m_fSimulateTrueWindSpeed = 15.0F;
  BoatModel straight(SimulatedBoatOf(settings), 40.0, 7);
  BoatModel turned(SimulatedBoatOf(settings), 40.0, 7);
  turned.Steer({PilotOrder::What::Bearing, 90.0});
  for (int tick = 0; tick < 2400; ++tick) {
    straight.Tick();
    turned.Tick();
    ASSERT_EQ(straight.State().WindSpeed, turned.State().WindSpeed) << tick;
    ASSERT_EQ(straight.State().WindFrom, turned.State().WindFrom) << tick;
  }
  EXPECT_GT(std::fabs(Between(straight.State().Heading, turned.State().Heading)), 30.0);
}

/// Wind speeds of a minute after the input started.
std::string Gusts(Helm& helm, HandClock& clock, HandTimer& timer) {
  helm.Modes().TrackSetOff();
  helm.Modes().TrackSetSetup();
  std::string all;
  for (int second = 0; second < 60; ++second) {
    clock.Pass(1000);
    timer.Tick();
    all += std::to_string(helm.Data().WindSpeedApparent) + "\n";
  }
  return all;
}

TEST_F(SimulatedBoatTest, TheGustsOfASeedComeAgainAfterOff) {
  m_settings.m_iSimulateSeed = 3;
  const std::string first = Gusts(m_helm, m_clock, m_timer);
  EXPECT_EQ(Gusts(m_helm, m_clock, m_timer), first);
  m_settings.m_iSimulateSeed = 0;
  EXPECT_NE(Gusts(m_helm, m_clock, m_timer), first);
}

}  // namespace
}  // namespace veerwatch
