// When sentences leave for the pilot: by the cadence of the settings, on the steady clock.

#include <algorithm>
#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "tests/helm/HelmFixture.h"

namespace veerwatch {
namespace {

using testing::Each;
using testing::Ge;
using testing::IsEmpty;
using testing::SizeIs;

/// A timer that ticks by a HandClock.
class ClockedTimer final : public Timer {
 public:
  explicit ClockedTimer(const HandClock& clock) : m_clock(clock) {}

  std::function<void()> OnTick;

  void Interval(int milliseconds) override { m_interval = milliseconds; }
  void Enabled(bool enabled) override {
    m_enabled = enabled;
    m_next = m_clock.Time.Steady + m_interval;
  }
  bool Enabled() const override { return m_enabled; }
  /// Ticks if it is time to.
  void Look() {
    if (m_enabled && m_clock.Time.Steady >= m_next) {
      m_next += m_interval;
      OnTick();
    }
  }

 private:
  const HandClock& m_clock;
  int m_interval = 1000;
  std::int64_t m_next = 0;
  bool m_enabled = false;
};

class Cadence : public HelmTest {
 protected:
  Cadence() {
    m_settings.m_iNmeaTrueWind = 0;
    m_settings.m_fAutoPilot = 100.0F;
    m_pilotTimer.OnTick = [this] { m_helm.PilotTick(); };
    m_helm.PilotTimer(m_pilotTimer);
    m_helm.Modes().TrackSetSetup();
    Receive(kSpeed);
    Receive(kTrue);
    m_helm.Modes().TrackSetManual();
  }

  /// So many milliseconds with a wind every `spacing` [ms], 0 for none; keeps when a bundle left.
  void Pass(int milliseconds, int spacing) {
    for (int i = 0; i < milliseconds; i += kStep) {
      m_clock.Pass(kStep);
      m_passed += kStep;
      if (spacing > 0 && m_passed % spacing == 0) {
        Receive(kApparent);
        Receive(kTrue);
      }
      m_pilotTimer.Look();
      if (m_passed % 1000 == 0) {
        m_timer.Tick();
      }
      for (const std::string& bundle : m_pilotPort.Written) {
        m_left.push_back(m_clock.Time.Steady);
        m_bundles.push_back(bundle);
      }
      m_pilotPort.TakeWritten();
    }
  }

  /// Bundles of the last Pass, and the times between them [ms].
  std::vector<std::string> TakeBundles() { return std::exchange(m_bundles, {}); }
  std::vector<std::int64_t> TakeSpacings() {
    std::vector<std::int64_t> spacings;
    for (std::size_t i = 1; i < m_left.size(); ++i) {
      spacings.push_back(m_left[i] - m_left[i - 1]);
    }
    m_left.clear();
    return spacings;
  }

  ClockedTimer m_pilotTimer{m_clock};

 private:
  static constexpr int kStep = 10;  // [ms]
  int m_passed = 0;
  std::vector<std::int64_t> m_left;
  std::vector<std::string> m_bundles;
};

TEST_F(Cadence, WithoutOneEveryWindSendsAndNothingComesBetween) {
  Pass(10000, 100);
  EXPECT_THAT(TakeBundles(), SizeIs(200)) << "two wind sentences each";
  Pass(3000, 0);
  EXPECT_THAT(TakeBundles(), IsEmpty());
  EXPECT_FALSE(m_pilotTimer.Enabled());
}

TEST_F(Cadence, AVaneOfTenHertzDoesNotFloodTheLine) {
  m_settings.m_iPilotCadence = 2;
  Pass(10000, 100);
  EXPECT_THAT(TakeBundles(), SizeIs(20));
  EXPECT_THAT(TakeSpacings(), Each(Ge(500)));
}

TEST_F(Cadence, ASlowVaneIsFilledUpWithTheNewestBearing) {
  m_settings.m_iPilotCadence = 4;
  Pass(10000, 2000);
  EXPECT_NEAR(static_cast<double>(TakeBundles().size()), 33.0, 1.0) << "from the first wind at 2 s on";
  EXPECT_THAT(TakeSpacings(), Each(Ge(250)));
}

TEST_F(Cadence, ABearingLeavesAtTheNextTimeAndNoneIsMadeUpFor) {
  m_settings.m_iPilotCadence = 1;
  Pass(2500, 100);
  TakeBundles();
  for (int degrees = 101; degrees <= 120; ++degrees) {
    m_helm.UserSteersTo(degrees);
  }
  Pass(3000, 100);
  const auto bundles = TakeBundles();
  ASSERT_THAT(bundles, SizeIs(3));
  EXPECT_THAT(bundles, Each(Sentence("120.0") + "\r\n")) << "the newest, once each second";
}

TEST_F(Cadence, SilenceFollowsWhenTheWindIsStale) {
  m_settings.m_iPilotCadence = 2;
  Pass(10000, 1000);
  TakeBundles();
  Pass(20000, 0);
  // Stale after four seconds.
  EXPECT_NEAR(static_cast<double>(TakeBundles().size()), 8.0, 1.0);
  Pass(5000, 1000);
  EXPECT_NEAR(static_cast<double>(TakeBundles().size()), 9.0, 1.0);
}

TEST_F(Cadence, NothingLeavesInSetupAndInOff) {
  m_settings.m_iPilotCadence = 5;
  Pass(2000, 500);
  EXPECT_FALSE(TakeBundles().empty());
  m_helm.Modes().TrackSetSetup();
  Pass(3000, 500);
  EXPECT_THAT(TakeBundles(), IsEmpty());
  EXPECT_FALSE(m_pilotTimer.Enabled());
  Receive(kTrue);
  m_helm.Modes().TrackSetManual();
  Pass(2000, 500);
  EXPECT_FALSE(TakeBundles().empty());
  m_helm.Modes().TrackSetOff();
  Pass(3000, 0);
  EXPECT_THAT(TakeBundles(), IsEmpty());
}

TEST_F(Cadence, EveryRepetitionIsToldLikeAnySentence) {
  m_settings.m_iPilotCadence = 2;
  Pass(1000, 1000);
  m_view.Take();
  m_helm.UserSteersTo(123.5);
  Pass(990, 0);
  EXPECT_EQ(m_view.Count("OnPilotData"), 1U);
  EXPECT_THAT(m_view.Only({"OnPilotData", "OnPilotHeading"}),
              testing::ElementsAre("OnPilotData " + Sentence("123.5"), "OnPilotHeading 123.5"));
  EXPECT_EQ(m_helm.LastSentence().Bearing, 123.5F);
}

TEST_F(Cadence, APilotThatHearsRepetitionsIsNotLost) {
  m_settings.m_iPilotCadence = 1;
  Pass(10000, 1000);
  m_pilotPort.Stuck = true;
  Pass(6000, 1000);
  EXPECT_NE(m_view.Watches.back().Find(Condition::PilotLost), nullptr);
}

TEST_F(Cadence, ATurnLeavesWithIt) {
  m_settings.m_iPilotCadence = 2;
  Pass(2000, 1000);
  m_helm.TurnBegins();
  TakeBundles();
  for (int i = 0; i < 20; ++i) {
    m_helm.TurnSteersTo(100.0F + static_cast<float>(i));
    Pass(100, 0);
  }
  const auto bundles = TakeBundles();
  EXPECT_THAT(bundles, SizeIs(4));
  EXPECT_TRUE(std::is_sorted(bundles.begin(), bundles.end(), [](const std::string& a, const std::string& b) {
    return a.substr(24, 5) < b.substr(24, 5);
  }));
  EXPECT_NE(bundles.front(), bundles.back());
}

TEST_F(Cadence, KeepSendingGoesOnAtIt) {
  m_settings.m_iPilotCadence = 2;
  m_settings.m_bWatchAct = m_settings.m_bWatchKeepSending = true;
  m_settings.m_fTrackBandwidth = 40.0F;
  Pass(3000, 1000);
  m_helm.Modes().TrackSetTrack();
  Pass(3000, 1000);
  TakeBundles();
  TakeSpacings();
  Pass(60000, 0);
  // Thirty seconds after the two for which a pass needs its wind.
  EXPECT_NEAR(static_cast<double>(TakeBundles().size()), 64.0, 3.0);
  EXPECT_THAT(TakeSpacings(), Each(Ge(500)));
}

class Validity : public Cadence {
 protected:
  Validity() { m_settings.m_bPilotInvalidWhenLost = true; }

  static std::string Invalid(const std::string& bearing) {
    return WithChecksum("$ECAPB,V,V,0.00,R,N,V,V," + bearing + ",M,1," + bearing + ",M," + bearing + ",M") +
           "\r\n";
  }
};

TEST_F(Validity, ALostWindIsSaidForFiveSecondsAndThenNothing) {
  Pass(5000, 1000);
  EXPECT_THAT(TakeBundles(), Each(Sentence("100.0") + "\r\n"));
  m_view.Take();
  Pass(20000, 0);
  const auto bundles = TakeBundles();
  EXPECT_THAT(bundles, SizeIs(5));
  EXPECT_THAT(bundles, Each(Invalid("100.0")));
  EXPECT_EQ(m_view.Count("OnPilotData"), 5U);
  EXPECT_EQ(m_view.Count("OnPilotHeading"), 0U) << "no bearing was sent";
}

TEST_F(Validity, BothRepetitionsAndTheStatusKeepToTheCadence) {
  m_settings.m_iPilotCadence = 2;
  m_settings.m_fPilotInvalidSeconds = 3.0F;
  Pass(5000, 1000);
  TakeBundles();
  TakeSpacings();
  Pass(20000, 0);
  const auto bundles = TakeBundles();
  EXPECT_EQ(std::count(bundles.begin(), bundles.end(), Invalid("100.0")), 6);
  EXPECT_EQ(bundles.back(), Invalid("100.0"));
  EXPECT_THAT(TakeSpacings(), Each(Ge(500)));
}

TEST_F(Validity, AWindThatComesBackIsSentAsValid) {
  Pass(5000, 1000);
  Pass(6000, 0);
  TakeBundles();
  Pass(4000, 1000);
  const auto bundles = TakeBundles();
  ASSERT_FALSE(bundles.empty());
  EXPECT_EQ(bundles.back(), Sentence("100.0") + "\r\n");
}

TEST_F(Validity, OneWindOfTwoDoesNotMakeTheOtherValid) {
  m_helm.Track(TrackSide::True);
  Pass(5000, 1000);
  TakeBundles();
  // The true wind is lost; the apparent one goes on.
  for (int i = 0; i < 15; ++i) {
    Receive(kApparent);
    Pass(1000, 0);
  }
  const auto bundles = TakeBundles();
  EXPECT_EQ(std::count(bundles.begin(), bundles.end(), Invalid("100.0")), 5);
  EXPECT_EQ(bundles.back(), Invalid("100.0"));
}

TEST_F(Validity, ByDefaultNothingIsSaid) {
  m_settings.m_bPilotInvalidWhenLost = false;
  Pass(5000, 1000);
  TakeBundles();
  Pass(20000, 0);
  EXPECT_THAT(TakeBundles(), IsEmpty());
}

TEST_F(Validity, NothingIsSaidBeforeAnyBearingWas) {
  Pass(20000, 0);
  EXPECT_THAT(TakeBundles(), IsEmpty());
}

}  // namespace
}  // namespace veerwatch
